// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypeString.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "archive/Encoding.h"

namespace nascor::archive {
namespace {

std::string repeatedText(std::size_t count, std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += text;
  return result;
}

TEST(ATypeString, listsItsTypesWithWhatTheyHold) {
  const auto types = parseTypeString("i[12{P=ff}]@");
  ASSERT_EQ(types.size(), 6U);
  EXPECT_EQ(types[0].code, 'i');
  EXPECT_EQ(types[0].size, 1U);
  EXPECT_EQ(types[1].code, '[');
  EXPECT_EQ(types[1].count, 12U);
  EXPECT_EQ(types[1].size, 4U);
  EXPECT_EQ(types[1].text, "[12{P=ff}]");
  EXPECT_EQ(types[1].minBytes, 24U);
  EXPECT_EQ(types[2].code, '{');
  EXPECT_EQ(types[2].structureName(), "P");
  EXPECT_EQ(types[2].size, 3U);
  EXPECT_EQ(types[2].minBytes, 2U);
  EXPECT_EQ(types[5].code, '@');
  EXPECT_EQ(types[5].text, "@");
}

TEST(ATypeString, mayBeEmpty) { EXPECT_TRUE(parseTypeString("").empty()); }

TEST(ATypeString, mayHoldEveryPlainCode) { EXPECT_EQ(parseTypeString("@#:*+%cCBsSiIlLqQfd").size(), 19U); }

TEST(ATypeString, mayHaveStructuresAndArraysOfNothing) {
  EXPECT_EQ(parseTypeString("{A=}")[0].minBytes, 0U);
  EXPECT_EQ(parseTypeString("[0c]")[0].minBytes, 0U);
  EXPECT_EQ(parseTypeString("[0{A=}]").size(), 2U);
}

TEST(ATypeString, tellsArraysOfBytesFromOthers) {
  EXPECT_TRUE(parseTypeString("[4c]")[0].isByteArray());
  EXPECT_TRUE(parseTypeString("[4C]")[0].isByteArray());
  EXPECT_FALSE(parseTypeString("[4B]")[0].isByteArray());
  EXPECT_FALSE(parseTypeString("c")[0].isByteArray());
}

TEST(ATypeString, saturatesTheLengthOfItsValues) {
  constexpr auto kMost = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(parseTypeString("[99999999999999999999999c]")[0].count, kMost);
  EXPECT_EQ(parseTypeString("[18446744073709551615c]")[0].count, kMost);
  EXPECT_EQ(parseTypeString("[18446744073709551614c]")[0].count, kMost - 1);
  EXPECT_EQ(parseTypeString("[4294967296[4294967296c]]")[0].minBytes, kMost);
  EXPECT_EQ(parseTypeString("{A=[18446744073709551615c]c}")[0].minBytes, kMost);
}

TEST(ATypeString, nestsAsDeepAsTheLimitAndNoDeeper) {
  const auto nested = [](std::size_t depth) {
    return repeatedText(depth, "[1") + "c" + repeatedText(depth, "]");
  };
  EXPECT_EQ(parseTypeString(nested(kDepthLimit)).size(), kDepthLimit + 1);
  EXPECT_THROW(parseTypeString(nested(kDepthLimit + 1)), TypeStringError);
  EXPECT_THROW(parseTypeString(nested(100'000)), TypeStringError);
  EXPECT_THROW(parseTypeString(repeatedText(100'000, "[1")), TypeStringError);
  EXPECT_THROW(parseTypeString(repeatedText(100'000, "{=")), TypeStringError);
}

struct BadTypeCase {
  const char* text;
  const char* reason;
};
class AMalformedTypeString : public testing::TestWithParam<BadTypeCase> {};

TEST_P(AMalformedTypeString, saysWhatIsWrong) {
  try {
    parseTypeString(GetParam().text);
    FAIL() << "taken";
  } catch (const TypeStringError& error) {
    EXPECT_EQ(english(error.reason), GetParam().reason);
  }
}

INSTANTIATE_TEST_SUITE_P(ofEveryKind, AMalformedTypeString,
                         testing::Values(BadTypeCase{"i?", "has the unknown type code \"?\""},
                                         BadTypeCase{"^i", "has the unknown type code \"^\""},
                                         BadTypeCase{"i]", "has the unknown type code \"]\""},
                                         BadTypeCase{"}", "has the unknown type code \"}\""},
                                         BadTypeCase{"\x80", "has the unknown type code \"\\x80\""},
                                         BadTypeCase{"[", "has an array without a count"},
                                         BadTypeCase{"[c]", "has an array without a count"},
                                         BadTypeCase{"[-1c]", "has an array without a count"},
                                         BadTypeCase{"[3", "ends inside an array"},
                                         BadTypeCase{"[3]", "has an array without an element type"},
                                         BadTypeCase{"[3c", "has an array that is not closed"},
                                         BadTypeCase{"[3ci]", "has an array that is not closed"},
                                         BadTypeCase{"[2147483647{A=}]",
                                                     "has an array whose elements take no bytes"},
                                         BadTypeCase{"[1[0c]]", "has an array whose elements take no bytes"},
                                         BadTypeCase{"{", "has a structure without members"},
                                         BadTypeCase{"{A", "has a structure without members"},
                                         BadTypeCase{"{A}", "has a structure without members"},
                                         BadTypeCase{"{A=", "has a structure that is not closed"},
                                         BadTypeCase{"{A=i", "has a structure that is not closed"}));

TEST(DescribingTypes, saysInWordsWhatIsMeant) {
  EXPECT_EQ(english(describeTypes("f")), "a 32-bit real (type \"f\")");
  EXPECT_EQ(english(describeTypes("@@")), "values (type \"@@\")");
  EXPECT_EQ(english(describeTypes("[24c]")), "an array (type \"[24c]\")");
  EXPECT_EQ(english(describeTypes("{A=i}")), "a structure (type \"{A=i}\")");
  EXPECT_EQ(english(describeTypes("?")), "a value (type \"?\")");
}

TEST(DescribingTypes, hasWordsForEveryCode) {
  for (const char code : std::string("@#:*+%cCBsSiIlLqQfd")) {
    EXPECT_FALSE(english(describeTypes({&code, 1})).starts_with("a value")) << code;
  }
}

TEST(QuotingTexts, keepsMessagesShortAndOnOneLine) {
  EXPECT_EQ(inQuotes("a b"), "\"a b\"");
  EXPECT_EQ(inQuotes("a\nb\x7f\xc3"), "\"a\\x0ab\\x7f\\xc3\"");
  EXPECT_EQ(inQuotes(std::string(48, 'a')), "\"" + std::string(48, 'a') + "\"");
  EXPECT_EQ(inQuotes(std::string(49, 'a')), "\"" + std::string(48, 'a') + "...\"");
}

}  // namespace
}  // namespace nascor::archive
