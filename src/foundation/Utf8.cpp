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

std::string oneLine(std::string_view text) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string line;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    const auto byte = static_cast<unsigned char>(text.front());
    // U+0080 to U+009F are control characters too; in UTF-8 they begin with C2.
    const bool isC1 = length == 2 && byte == 0xC2 && static_cast<unsigned char>(text[1]) < 0xA0;
    if (length == 0) {
      line += "\xEF\xBF\xBD";
    } else if (byte == '\n') {
      line += "\\n";
    } else if (byte == '\t') {
      line += "\\t";
    } else if (byte < 0x20 || byte == 0x7F || isC1) {
      const auto code = isC1 ? static_cast<unsigned char>(text[1]) : byte;
      line += "\\x";
      line += kHexDigits[code >> 4U];
      line += kHexDigits[code & 15U];
    } else {
      line += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return line;
}

}  // namespace nascor::foundation
