// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/LongText.h"

#include <algorithm>

#include "foundation/Utf8.h"

namespace nascor::framework {
namespace {

using foundation::continuesCodePoint;
using foundation::kCutSign;

/// What the code point that begins with `byte` takes in UTF-16; 0 for a byte inside one.
std::size_t units(char byte) {
  if (continuesCodePoint(byte)) return 0;
  return static_cast<unsigned char>(byte) >= 0xF0U ? 2 : 1;
}

/// The bytes of the beginning of `text` that takes no more than `most`.
std::size_t bytesWithin(std::string_view text, std::size_t most) {
  std::size_t taken = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    taken += units(text[i]);
    if (taken > most) return i;
  }
  return text.size();
}

}  // namespace

bool isTooLong(std::string_view text, std::size_t most) { return bytesWithin(text, most) < text.size(); }

std::string shownInEdit(std::string_view text, std::size_t most) {
  if (!isTooLong(text, most)) return std::string(text);
  const std::size_t room = bytesWithin(text, most - 1);
  // The code point behind is seen too, so that a letter is not parted from its accent.
  const std::string_view seen = text.substr(0, room + foundation::characterLength(text.substr(room)));
  const std::size_t codePoints = foundation::codePoints(text.substr(0, room));
  return std::string(text.substr(0, foundation::lengthOfBeginning(seen, codePoints))).append(kCutSign);
}

TypedText typedOver(std::string_view held, std::string_view typed, std::size_t most) {
  TypedText result{.text = std::string(typed)};
  if (isTooLong(typed, most)) {
    const std::size_t shorter = std::min(held.size(), typed.size());
    std::size_t start = 0;
    while (start < shorter && held[start] == typed[start]) ++start;
    while (start > 0 && continuesCodePoint(typed[start])) --start;
    std::size_t end = 0;
    while (end < shorter - start && held[held.size() - 1 - end] == typed[typed.size() - 1 - end]) ++end;
    while (end > 0 && continuesCodePoint(typed[typed.size() - end])) --end;

    const std::string_view kept = typed.substr(typed.size() - end);
    std::size_t room = most;
    for (const char byte : typed.substr(0, start)) room -= std::min(room, units(byte));
    for (const char byte : kept) room -= std::min(room, units(byte));
    const std::string_view put = typed.substr(start, typed.size() - start - end);
    result.text.assign(typed.substr(0, start)).append(put.substr(0, bytesWithin(put, room))).append(kept);
    result.isFull = true;
  }
  return result;
}

}  // namespace nascor::framework
