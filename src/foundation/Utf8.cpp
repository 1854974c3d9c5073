#include "foundation/Utf8.h"

#include <cstddef>

namespace nascor::foundation {
namespace {

/// The length of the character at the start of `bytes`, 0 when it is malformed.
std::size_t characterLength(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const auto within = [&](std::size_t i, unsigned first, unsigned last) {
    return i < bytes.size() && byte(i) >= first && byte(i) <= last;
  };
  const auto continues = [&](std::size_t i) { return within(i, 0x80, 0xBF); };

  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const unsigned lowest = lead == 0xE0 ? 0xA0 : 0x80;   // below: overlong
    const unsigned highest = lead == 0xED ? 0x9F : 0xBF;  // above: surrogates
    return within(1, lowest, highest) && continues(2) ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const unsigned lowest = lead == 0xF0 ? 0x90 : 0x80;   // below: overlong
    const unsigned highest = lead == 0xF4 ? 0x8F : 0xBF;  // above: beyond U+10FFFF
    return within(1, lowest, highest) && continues(2) && continues(3) ? 4 : 0;
  }
  return 0;
}

}  // namespace

bool isValidUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

}  // namespace nascor::foundation
