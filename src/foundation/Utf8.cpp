#include "foundation/Utf8.h"

#include <unigbrk.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

namespace {

bool isWithin(char32_t point, char32_t first, char32_t last) { return point >= first && point <= last; }

constexpr char32_t kReplacement = 0xFFFD;

/// Takes the last code point off `text`, which is not empty.
char32_t popCodePoint(std::string& text) {
  char32_t point = 0;
  for (unsigned shift = 0;; shift += 6) {
    const auto byte = static_cast<unsigned char>(text.back());
    text.pop_back();
    if ((byte & 0xC0U) == 0x80U && !text.empty()) {
      point |= static_cast<char32_t>(byte & 0x3FU) << shift;
      continue;
    }
    // The lead byte keeps 7 bits alone, and 5, 4 or 3 before one, two or three others.
    const unsigned lead = shift == 0 ? byte : byte & (0x3FU >> (shift / 6U));
    return point | (static_cast<char32_t>(lead) << shift);
  }
}

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
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

namespace {

/// Marks, embeddings, overrides and isolates of direction, and the two separators of lines and paragraphs.
bool isSignOfDirection(std::string_view character) {
  if (character == "\xD8\x9C") return true;  // U+061C
  if (character.size() != 3 || character[0] != '\xE2') return false;
  const auto middle = static_cast<unsigned char>(character[1]);
  const auto low = static_cast<unsigned char>(character[2]);
  if (middle == 0x80) return low == 0x8E || low == 0x8F || (low >= 0xA8 && low <= 0xAE);  // U+200E to U+202E
  return middle == 0x81 && low >= 0xA6 && low <= 0xA9;                                    // U+2066 to U+2069
}

}  // namespace

char32_t codeOfUnseen(std::string_view character) {
  std::string copy(character);
  const char32_t point = copy.empty() ? kReplacement : popCodePoint(copy);
  const bool isControl = point < 0x20 || isWithin(point, 0x7F, 0x9F);
  return copy.empty() && (isControl || isSignOfDirection(character)) ? point : kReplacement;
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
    } else if (isSignOfDirection(text.substr(0, length))) {
      std::string sign(text.substr(0, length));
      const char32_t point = popCodePoint(sign);
      line += "\\u";
      for (const unsigned shift : {12U, 8U, 4U, 0U}) line += kHexDigits[(point >> shift) & 15U];
    } else {
      line += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
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
