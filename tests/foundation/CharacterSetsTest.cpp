// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/CharacterSets.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace nascor::foundation {
namespace {

enum class Kind { letter, punctuation, other };

struct Character {
  char32_t point;
  Kind kind;
};

constexpr Character kCharacters[] = {
    {U'A', Kind::letter},       {U'z', Kind::letter},       {U'ª', Kind::letter},
    {U'ß', Kind::letter},       {U'é', Kind::letter},       {U'ǅ', Kind::letter},  // a title-case letter
    {U'ʰ', Kind::letter},       {U'Ω', Kind::letter},                              // a modifier letter
    {U'я', Kind::letter},       {U'א', Kind::letter},       {U'ع', Kind::letter},
    {U'あ', Kind::letter},      {U'漢', Kind::letter},      {U'한', Kind::letter},
    {0x0301, Kind::letter},     {0x0903, Kind::letter},   // combining marks: non-spacing, spacing
    {0x20DD, Kind::letter},     {0xFE0F, Kind::letter},   // enclosing, a variation selector
    {0x10400, Kind::letter},    {0x1D400, Kind::letter},  // beyond the basic plane
    {0xE01EF, Kind::letter},

    {U'!', Kind::punctuation},  {U'"', Kind::punctuation},  {U'#', Kind::punctuation},
    {U'%', Kind::punctuation},  {U'&', Kind::punctuation},  {U'\'', Kind::punctuation},
    {U'(', Kind::punctuation},  {U')', Kind::punctuation},  {U'*', Kind::punctuation},
    {U',', Kind::punctuation},  {U'-', Kind::punctuation},  {U'.', Kind::punctuation},
    {U'/', Kind::punctuation},  {U':', Kind::punctuation},  {U';', Kind::punctuation},
    {U'?', Kind::punctuation},  {U'@', Kind::punctuation},  {U'[', Kind::punctuation},
    {U'\\', Kind::punctuation}, {U']', Kind::punctuation},  {U'_', Kind::punctuation},
    {U'{', Kind::punctuation},  {U'}', Kind::punctuation},  {U'¡', Kind::punctuation},
    {U'§', Kind::punctuation},  {U'«', Kind::punctuation},  {U'·', Kind::punctuation},
    {U'–', Kind::punctuation},  {U'“', Kind::punctuation},  {U'…', Kind::punctuation},
    {U'、', Kind::punctuation}, {U'！', Kind::punctuation}, {0x1E95F, Kind::punctuation},

    {U'$', Kind::other},        {U'+', Kind::other},        {U'<', Kind::other},
    {U'=', Kind::other},        {U'>', Kind::other},        {U'^', Kind::other},
    {U'`', Kind::other},        {U'|', Kind::other},        {U'~', Kind::other},
    {U' ', Kind::other},        {U'0', Kind::other},        {U'9', Kind::other},
    {0x0000, Kind::other},      {0x007F, Kind::other},      {U'½', Kind::other},
    {U'²', Kind::other},        {U'°', Kind::other},        {U'€', Kind::other},
    {U'٣', Kind::other},        {U'Ⅲ', Kind::other},    // a digit and a number of other scripts
    {U'Ⓖ', Kind::other},        {0x00A0, Kind::other},  // a symbol in the shape of a letter, a blank
    {0x00AD, Kind::other},      {0x200D, Kind::other},      {0xE000, Kind::other},
    {0x1F600, Kind::other},     {0xE01F0, Kind::other},     {0x10FFFF, Kind::other}};

TEST(TheKindsOfCharacters, areThoseOfTheirGeneralCategories) {
  for (const Character& character : kCharacters) {
    EXPECT_EQ(isLetter(character.point), character.kind == Kind::letter)
        << std::hex << std::uint32_t{character.point};
    EXPECT_EQ(isPunctuation(character.point), character.kind == Kind::punctuation)
        << std::hex << std::uint32_t{character.point};
  }
}

struct Fingerprint {
  std::size_t count = 0;
  std::uint64_t hash = 0xcbf29ce484222325;

  friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// How many characters a set has, and the FNV-1a hash of their numbers as four bytes each, lowest byte first.
Fingerprint fingerprintOf(bool (*contains)(char32_t)) {
  Fingerprint print;
  for (char32_t point = 0; point <= 0x10FFFF; ++point) {
    if (!contains(point)) continue;
    ++print.count;
    for (unsigned shift = 0; shift < 32; shift += 8) {
      print.hash = (print.hash ^ (point >> shift & 0xFFU)) * 0x100000001b3;
    }
  }
  return print;
}

// The numbers come from Python's unicodedata 14.0.0, hashed there.
TEST(TheKindsOfCharacters, holdExactlyTheCharactersOfUnicode14) {
  EXPECT_EQ(fingerprintOf(isLetter), (Fingerprint{134164, 0x3176395cc3d86230}));
  EXPECT_EQ(fingerprintOf(isPunctuation), (Fingerprint{819, 0x4077e199a0e2bd4b}));
}

struct Trimming {
  std::string_view text;
  std::string_view withoutLetters;
  std::string_view withoutPunctuation;
};

constexpr Trimming kTrimmings[] = {
    {"", "", ""},
    {"3", "3", "3"},
    {"G3P2", "3P2", "G3P2"},
    {"abc", "", "abc"},
    {"...", "...", ""},
    {"(G3)", "(G3)", "G3"},
    {" G3 ", " G3 ", " G3 "},
    {"é3漢", "3", "é3漢"},
    {"3e\u0301", "3", "3e\u0301"},  // the accent is a mark of its own
    {"«3»", "«3»", "3"},
    {"\U00010400-3-\U00010400", "-3-", "\U00010400-3-\U00010400"},
    {"\U0001F6003\U0001F600", "\U0001F6003\U0001F600", "\U0001F6003\U0001F600"},
    {"\u00BF\u20143\u2026", "\u00BF\u20143\u2026", "3"},
};

TEST(Trimming, takesTheCharactersOfASetFromBothEndsOnly) {
  for (const Trimming& row : kTrimmings) {
    EXPECT_EQ(trimmed(row.text, isLetter), row.withoutLetters) << row.text;
    EXPECT_EQ(trimmed(row.text, isPunctuation), row.withoutPunctuation) << row.text;
  }
}

}  // namespace
}  // namespace nascor::foundation
