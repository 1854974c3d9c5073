// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace nascor::foundation {
namespace {

std::string shortened(std::string text) {
  removeLastCharacter(text);
  return text;
}

TEST(TheLastCharacter, isWhatAReaderCountsAsOne) {
  EXPECT_EQ(shortened(""), "");
  EXPECT_EQ(shortened("a"), "");
  EXPECT_EQ(shortened("ab"), "a");
  EXPECT_EQ(shortened("a\xC3\xA9"), "a") << "two bytes";
  EXPECT_EQ(shortened("a\xE2\x82\xAC"), "a") << "three bytes";
  EXPECT_EQ(shortened("a\xF0\x9F\x91\xB6"), "a") << "four bytes";
  EXPECT_EQ(shortened("xe\xCC\x81"), "x") << "a letter and the acute accent that combines with it";
  EXPECT_EQ(shortened("xa\xCC\x81\xCC\xA3"), "x") << "two of them";
  EXPECT_EQ(shortened("x\xE2\x9D\xA4\xEF\xB8\x8F"), "x") << "a variation selector";
  EXPECT_EQ(shortened("x\xF0\x9F\x91\xB6\xF0\x9F\x8F\xBD"), "x") << "a modifier";
  EXPECT_EQ(shortened("x\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xB6"), "x") << "two signs joined";
  EXPECT_EQ(shortened("x\xF0\x9F\x87\xA6\xF0\x9F\x87\xBA"), "x") << "a flag";
  EXPECT_EQ(shortened("\xCC\x81"), "") << "an accent by itself";
}

TEST(CodePoints, areCountedByTheirFirstBytes) {
  EXPECT_EQ(codePoints(""), 0U);
  EXPECT_EQ(codePoints("a\u00E9\u20AC\U0001F476"), 4U);
  EXPECT_EQ(codePoints("e\u0301"), 2U) << "a letter and its accent";
}

TEST(CodePoints, areDecodedFromOneToFourBytes) {
  EXPECT_EQ(decoded("a"), U'a');
  EXPECT_EQ(decoded("\u00E9"), U'\u00E9');
  EXPECT_EQ(decoded("\u20AC"), U'\u20AC');
  EXPECT_EQ(decoded("\U0001F476"), U'\U0001F476');
  EXPECT_EQ(decoded("\xF4\x8F\xBF\xBF"), char32_t{0x10FFFF});
}

TEST(ALengthInBytes, partsNoCodePoint) {
  EXPECT_EQ(lengthWithin("", 0), 0U);
  EXPECT_EQ(lengthWithin("abc", 0), 0U);
  EXPECT_EQ(lengthWithin("abc", 2), 2U);
  EXPECT_EQ(lengthWithin("abc", 4), 3U);
  for (const std::size_t most : {1U, 2U, 3U, 4U}) EXPECT_EQ(lengthWithin("a\U0001F476b", most), 1U) << most;
  EXPECT_EQ(lengthWithin("a\U0001F476b", 5), 5U);
  EXPECT_EQ(lengthWithin("\u20AC", 2), 0U);
  EXPECT_EQ(lengthWithin(std::string(10, '\x80'), 8), 5U) << "bytes that are no UTF-8";
}

TEST(ADirectionMark, isNeitherBlankNorLetter) {
  for (const char32_t mark : U"\u061C\u200E\u200F\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069") {
    EXPECT_EQ(isDirectionMark(mark), mark != U'\0') << static_cast<std::uint32_t>(mark);
  }
  for (const char32_t other : U"\u061B\u061D\u200B\u200D\u2010\u2028\u2029\u202F\u2065\u206A\uFEFF") {
    EXPECT_FALSE(isDirectionMark(other)) << static_cast<std::uint32_t>(other);
  }
}

TEST(TheCodeOfTheUnseen, isOfOneWholeCharacterThatShowsNothingOfItsOwn) {
  constexpr char32_t kSeen = 0xFFFD;
  EXPECT_EQ(codeOfUnseen("\n"), char32_t{0x0A});
  EXPECT_EQ(codeOfUnseen("\x7F"), char32_t{0x7F});
  EXPECT_EQ(codeOfUnseen("\xC2\x9F"), char32_t{0x9F});
  EXPECT_EQ(codeOfUnseen("\u2028"), char32_t{0x2028});
  EXPECT_EQ(codeOfUnseen("\u202E"), char32_t{0x202E});
  for (const std::string_view other : {"", "a", "\xC2\xA0", "\u2010", "\n\n", "\x80", "\xC0\x80"}) {
    EXPECT_EQ(codeOfUnseen(other), kSeen) << other;
  }
}

std::string beginning(std::string_view text, std::size_t most) {
  return std::string(text.substr(0, lengthOfBeginning(text, most)));
}

TEST(TheBeginningOfAText, isCountedInCodePointsAndPartsNoCharacter) {
  EXPECT_EQ(beginning("", 3), "");
  EXPECT_EQ(beginning("abc", 0), "");
  EXPECT_EQ(beginning("abc", 2), "ab");
  EXPECT_EQ(beginning("abc", 3), "abc");
  EXPECT_EQ(beginning("abc", 4), "abc");
  EXPECT_EQ(beginning("\u00E4\u00F6\u00FC", 2), "\u00E4\u00F6");
  EXPECT_EQ(beginning("xe\u0301", 2), "x") << "a letter and its accent";
  EXPECT_EQ(beginning("xe\u0301y", 3), "xe\u0301");
  EXPECT_EQ(beginning("x\U0001F469\u200D\U0001F476", 3), "x") << "two signs joined";
  EXPECT_EQ(beginning("\U0001F1E6\U0001F1FA\U0001F1E6\U0001F1FA", 3), "\U0001F1E6\U0001F1FA") << "two flags";
  EXPECT_EQ(beginning("\xFF\xFF\xFF", 2), "\xFF\xFF") << "bytes that are no UTF-8";
}

TEST(TheBeginningOfAText, partsACharacterThatIsLongerThanAnyone) {
  std::string text = "a";
  for (int i = 0; i < 1000; ++i) text += "\u0301";
  EXPECT_EQ(lengthOfBeginning(text, 200), 1U + 199U * 2U);
}

TEST(AShownLine, isTheOneLineOfAShortText) {
  EXPECT_EQ(shownLine(""), "");
  EXPECT_EQ(shownLine("AB\n\x7F\u202E"), "AB\\n\\x7f\\u202e");
  EXPECT_EQ(shownLine(std::string(kMostShown, 'A')), std::string(kMostShown, 'A'));
}

TEST(AShownLine, saysThatItIsCut) {
  EXPECT_EQ(shownLine(std::string(kMostShown + 1, 'A')), std::string(kMostShown, 'A') + "\u2026");
  // What becomes visible takes room too: six signs for each of these.
  std::string signs;
  for (int i = 0; i < 500; ++i) signs += "\u202E";
  const std::string line = shownLine(signs);
  EXPECT_EQ(line.size(), kMostShown + kCutSign.size());
  EXPECT_TRUE(line.ends_with(kCutSign)) << line;
}

}  // namespace
}  // namespace nascor::foundation
