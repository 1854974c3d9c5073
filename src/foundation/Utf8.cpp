// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Utf8.h"

#include <unigbrk.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace nascor::foundation {

std::size_t characterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const auto within = [&](std::size_t i, unsigned first, unsigned last) {
    return i < text.size() && byte(i) >= first && byte(i) <= last;
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

std::size_t codePoints(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char byte) { return !continuesCodePoint(byte); }));
}

std::size_t lengthWithin(std::string_view text, std::size_t most) {
  if (most >= text.size()) return text.size();
  const std::size_t least = most - std::min<std::size_t>(most, 3);
  while (most > least && continuesCodePoint(text[most])) --most;
  return most;
}

char32_t decoded(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return lead;
  char32_t point = lead & (0x7FU >> character.size());
  for (const char byte : character.substr(1))
    point = point << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
  return point;
}

namespace {

bool isWithin(char32_t point, char32_t first, char32_t last) { return point >= first && point <= last; }

bool isControl(char32_t point) { return point < 0x20 || isWithin(point, 0x7F, 0x9F); }

/// Also the two separators, of lines and of paragraphs, which end the line that they stand in.
bool isSignOfDirection(char32_t point) { return isDirectionMark(point) || isWithin(point, 0x2028, 0x2029); }

/// For each byte of `text` whether what a reader counts as one character begins there.
std::string beginningsOfCharacters(std::string_view text) {
  std::string begins(text.size(), '\0');
  u8_grapheme_breaks(reinterpret_cast<const std::uint8_t*>(text.data()), text.size(), begins.data());
  return begins;
}

}  // namespace

void removeLastCharacter(std::string& text) {
  const std::size_t last = beginningsOfCharacters(text).rfind('\1');
  text.resize(last == std::string::npos ? 0 : last);
}

bool isValidUtf8(std::string_view bytes) {
  // Most texts are ASCII, which is seen eight characters at a time.
  std::uint64_t eight = 0;
  while (bytes.size() >= sizeof eight) {
    std::memcpy(&eight, bytes.data(), sizeof eight);
    if ((eight & 0x8080808080808080U) != 0) break;
    bytes.remove_prefix(sizeof eight);
  }
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

bool isDirectionMark(char32_t point) {
  return point == 0x061C || isWithin(point, 0x200E, 0x200F) || isWithin(point, 0x202A, 0x202E) ||
         isWithin(point, 0x2066, 0x2069);
}

char32_t codeOfUnseen(std::string_view character) {
  constexpr char32_t kReplacement = 0xFFFD;
  if (character.empty() || characterLength(character) != character.size()) return kReplacement;
  const char32_t point = decoded(character);
  return isControl(point) || isSignOfDirection(point) ? point : kReplacement;
}

std::string oneLine(std::string_view text) {
  std::string line;
  const auto addHexDigits = [&](char32_t point, unsigned digits) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    while (digits > 0) line += kHexDigits[point >> (4U * --digits) & 15U];
  };
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    text.remove_prefix(character.size());
    if (length == 0) {
      line += "\xEF\xBF\xBD";
    } else if (const char32_t point = decoded(character); point == U'\n') {
      line += "\\n";
    } else if (point == U'\t') {
      line += "\\t";
    } else if (isControl(point)) {
      line += "\\x";
      addHexDigits(point, 2);
    } else if (isSignOfDirection(point)) {
      line += "\\u";
      addHexDigits(point, 4);
    } else {
      line += character;
    }
  }
  return line;
}

std::size_t lengthOfBeginning(std::string_view text, std::size_t most) {
  const auto next = [&](std::size_t at) {
    return at + std::max<std::size_t>(characterLength(text.substr(at)), 1);
  };
  std::vector<std::size_t> ends{0};  // of each code point
  while (ends.back() < text.size() && ends.size() <= most) ends.push_back(next(ends.back()));
  if (ends.back() == text.size()) return text.size();

  // The code point behind the cut tells whether it parts a character.
  constexpr std::size_t kLongestCharacter = 64;  // code points
  const std::size_t from = ends.size() > kLongestCharacter ? ends[ends.size() - 1 - kLongestCharacter] : 0;
  const std::string begins = beginningsOfCharacters(text.substr(from, next(ends.back()) - from));
  const std::size_t cut = begins.rfind('\1', ends.back() - from);
  return cut == std::string::npos || cut == 0 ? ends.back() : from + cut;
}

std::string shownLine(std::string_view text) {
  const auto cut = [](std::string_view whole) { return lengthOfBeginning(whole, kMostShown); };
  // Control characters grow as they become visible.
  const std::size_t read = cut(text);
  std::string line = oneLine(text.substr(0, read));
  const std::size_t shown = cut(line);
  if (read == text.size() && shown == line.size()) return line;
  line.resize(shown);
  line += kCutSign;
  return line;
}

}  // namespace nascor::foundation
