#include "foundation/Utf8.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace nascor::foundation
