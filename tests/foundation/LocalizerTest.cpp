// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Localizer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <string>

namespace nascor::foundation {
namespace {

/// One table of translations, in which other keys stand for themselves.
class TableLocalizer final : public Localizer {
 public:
  std::map<std::string, std::string, std::less<>> translations;

  std::string text(std::string_view table, std::string_view key) const override {
    if (table != "Table") return std::string(key);
    const auto found = translations.find(key);
    return found == translations.end() ? std::string(key) : found->second;
  }
  ShortDateForm shortDateForm() const override { return {}; }
  std::string longDateText(const CivilDay&) const override { return {}; }
  char decimalSign() const override { return ','; }
  std::string upperCased(std::string_view text) const override { return std::string(text); }
};

TEST(Format, putsNumbersInOrderIntoTheTranslation) {
  TableLocalizer localizer;
  localizer.translations["%ldw %ldd"] = "%ld Wochen, %ld Tage";
  EXPECT_EQ(format(localizer.text("Table", "%ldw %ldd"), {25, 3}), "25 Wochen, 3 Tage");
  EXPECT_EQ(format(localizer.text("Other", "%ldw %ldd"), {25, 3}), "25w 3d");
}

TEST(Format, knowsNoOtherPlaceHolder) {
  EXPECT_EQ(format("100% of %ld %s%d %%ld%n", {1, 2}), "100% of 1 %s%d %2%n");
  EXPECT_EQ(format("%l%ld%", {5}), "%l5%");
}

TEST(Format, dropsNumbersLeftOverAndKeepsPlaceHoldersLeftOver) {
  EXPECT_EQ(format("nothing", {1, 2}), "nothing");
  EXPECT_EQ(format("%ld", {1, 2}), "1");
  EXPECT_EQ(format("%ld of %ld", {1}), "1 of %ld");
  EXPECT_EQ(format("", {1}), "");
  EXPECT_EQ(format("%ld", {}), "%ld");
}

TEST(Format, writesEveryNumberThatThereIs) {
  EXPECT_EQ(format("%ld|%ld|%ld",
                   {std::numeric_limits<std::int64_t>::min(), 0, std::numeric_limits<std::int64_t>::max()}),
            "-9223372036854775808|0|9223372036854775807");
}

TEST(EnglishLocalizer, namesTheMonthAndAllDigitsOfTheYear) {
  const EnglishLocalizer english;
  EXPECT_EQ(english.longDateText({2027, 3, 4}), "4 March 2027");
  EXPECT_EQ(english.longDateText({2026, 12, 31}), "31 December 2026");
  EXPECT_EQ(english.longDateText({1926, 1, 1}), "1 January 1926");
}

TEST(EnglishLocalizer, writesNothingForADayThatIsNone) {
  const EnglishLocalizer english;
  EXPECT_EQ(english.longDateText({2027, 2, 29}), "");
  EXPECT_EQ(english.longDateText({2027, 13, 1}), "");
}

TEST(EnglishLocalizer, speaksInKeys) {
  const EnglishLocalizer english;
  EXPECT_EQ(english.text("NCDocument", "Biparietal Diameter (mm)"), "Biparietal Diameter (mm)");
  EXPECT_EQ(english.decimalSign(), '.');
  EXPECT_EQ(english.shortDateForm().pattern, "M/d/yy");
}

}  // namespace
}  // namespace nascor::foundation
