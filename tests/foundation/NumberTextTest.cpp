// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/NumberText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace nascor::foundation {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

/// Any double at all: what a file can hold.
double doubleOfBits(std::uint64_t bits) { return std::bit_cast<double>(bits); }

/// Numbers as they are measured, ties included.
double measured(std::uint64_t bits) {
  return static_cast<double>(static_cast<std::int64_t>(bits % 40001) - 20000) / 32;
}

struct ShortestCase {
  double value;
  const char* text;
};

TEST(ShortestText, isTheShortestThatReadsBack) {
  for (const ShortestCase& row : {ShortestCase{0.0, "0"},
                                  {-0.0, "-0"},
                                  {1.0, "1"},
                                  {0.1, "0.1"},
                                  {1.0 / 3.0, "0.3333333333333333"},
                                  {0.1 + 0.2, "0.30000000000000004"},
                                  {45.29999923706055, "45.29999923706055"},
                                  {1e23, "1e+23"},
                                  {5e-324, "5e-324"},
                                  {1.7976931348623157e308, "1.7976931348623157e+308"},
                                  {kInfinity, "inf"},
                                  {-kInfinity, "-inf"},
                                  {kNan, "nan"},
                                  {-kNan, "nan"}}) {
    EXPECT_EQ(shortestText(row.value), row.text);
  }
}

RC_GTEST_PROP(ShortestText, readsBackToTheSameBits, (std::uint64_t bits)) {
  const double value = doubleOfBits(bits);
  RC_PRE(!std::isnan(value));
  const std::string text = shortestText(value);
  double back = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), back);
  RC_ASSERT(result.ec == std::errc());
  RC_ASSERT(std::bit_cast<std::uint64_t>(back) == bits);
}

struct RoundingCase {
  double value;
  int decimals;
  const char* fixed;
  const char* field;
};

class Rounding : public testing::TestWithParam<RoundingCase> {};

TEST_P(Rounding, breaksTiesToEvenInReports) {
  EXPECT_EQ(fixedText(GetParam().value, GetParam().decimals), GetParam().fixed);
}

TEST_P(Rounding, breaksTiesAwayFromZeroInFields) {
  EXPECT_EQ(fieldText(GetParam().value, GetParam().decimals, '.'), GetParam().field);
}

// Both columns were computed with another program's exact decimal arithmetic.
INSTANTIATE_TEST_SUITE_P(
    ofTheExactValue, Rounding,
    testing::Values(RoundingCase{25.25, 1, "25.2", "25.3"}, RoundingCase{45.25, 1, "45.2", "45.3"},
                    RoundingCase{0.05, 1, "0.1", "0.1"}, RoundingCase{0.25, 1, "0.2", "0.3"},
                    RoundingCase{-0.25, 1, "-0.2", "-0.3"}, RoundingCase{-0.04, 1, "-0.0", "0.0"},
                    RoundingCase{-0.05, 1, "-0.1", "-0.1"}, RoundingCase{9.95, 1, "9.9", "9.9"},
                    RoundingCase{99.95, 1, "100.0", "100.0"}, RoundingCase{0.15, 1, "0.1", "0.1"},
                    RoundingCase{0.35, 1, "0.3", "0.3"}, RoundingCase{2.675, 2, "2.67", "2.67"},
                    RoundingCase{0.045, 2, "0.04", "0.04"}, RoundingCase{0.5, 0, "0", "1"},
                    RoundingCase{1.5, 0, "2", "2"}, RoundingCase{2.5, 0, "2", "3"},
                    RoundingCase{-0.5, 0, "-0", "-1"}, RoundingCase{-0.4, 0, "-0", "0"},
                    RoundingCase{0.49999999999999994, 0, "0", "0"}, RoundingCase{999.5, 0, "1000", "1000"},
                    RoundingCase{0.0, 1, "0.0", "0.0"}, RoundingCase{-0.0, 1, "-0.0", "0.0"},
                    RoundingCase{200.04, 1, "200.0", "200.0"}, RoundingCase{62.1, 1, "62.1", "62.1"},
                    RoundingCase{45.29999923706055, 1, "45.3", "45.3"},
                    RoundingCase{25.350000381469727, 1, "25.4", "25.4"},
                    RoundingCase{123456789.05, 1, "123456789.0", "123456789.0"},
                    RoundingCase{1e22, 1, "10000000000000000000000.0", "10000000000000000000000.0"},
                    RoundingCase{5e-324, 9, "0.000000000", "0.000000000"}));

TEST(FixedText, showsWhatIsNoNumberAsSuch) {
  EXPECT_EQ(fixedText(kInfinity, 1), "inf");
  EXPECT_EQ(fixedText(-kInfinity, 1), "-inf");
  EXPECT_EQ(fixedText(kNan, 1), "nan");
  EXPECT_EQ(fixedText(-kNan, 1), "nan");
}

std::string printed(double value, int decimals) {
  std::array<char, 400> text{};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  return text.data();
}

RC_GTEST_PROP(FixedText, isWhatTheCLibraryPrints, (std::uint64_t bits)) {
  const int decimals = static_cast<int>(bits % 10);
  RC_ASSERT(fixedText(measured(bits), decimals) == printed(measured(bits), decimals));
  const double any = doubleOfBits(bits);
  RC_PRE(!std::isnan(any));
  RC_ASSERT(fixedText(any, decimals) == printed(any, decimals));
}

TEST(FixedText, areThoseOfTheStandardLibraryAroundEveryTie) {
  const auto expectSame = [](double value) {
    for (const int decimals : {0, 1, 2, 3, 4}) {
      std::array<char, 400> text;
      const auto end =
          std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
      ASSERT_EQ(fixedText(value, decimals), std::string(text.data(), end.ptr)) << value << " " << decimals;
    }
  };
  // Multiples of a 16th are ties of one, two and three places; their neighbours lie on both sides.
  for (int i = 0; i < 3000; ++i) {
    const double tie = i / 16.0;
    for (const double value : {tie, std::nextafter(tie, 1e9), std::nextafter(tie, -1e9)}) {
      expectSame(value);
      expectSame(-value);
    }
  }
  std::uint64_t bits = 1;
  for (int i = 0; i < 10'000; ++i) {
    bits = bits * 6364136223846793005U + 1442695040888963407U;
    // All magnitudes from 2^-80 to 2^80.
    expectSame(std::ldexp(static_cast<double>(bits >> 11U), static_cast<int>(bits % 161) - 133));
  }
  for (const double border : {0x1p52, 0x1p53, 0x1p-11, 0x1p-12, 5e-324, 0x1p-1022}) {
    expectSame(border);
    expectSame(std::nextafter(border, 0.0));
  }
}

TEST(FixedText, holdsTheGreatestNumberWithTheMostDecimals) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  EXPECT_EQ(fixedText(-kGreatest, 9), printed(-kGreatest, 9));
}

TEST(FieldText, isEmptyForWhatIsNoNumber) {
  EXPECT_EQ(fieldText(kInfinity, 1, '.'), "");
  EXPECT_EQ(fieldText(-kInfinity, 1, '.'), "");
  EXPECT_EQ(fieldText(kNan, 1, '.'), "");
}

TEST(FieldText, showsTheUsersDecimalSign) {
  EXPECT_EQ(fieldText(45.25, 1, ','), "45,3");
  EXPECT_EQ(fieldText(-45.25, 1, ','), "-45,3");
  EXPECT_EQ(fieldText(45.25, 0, ','), "45");
}

TEST(FieldText, roundsWhatIsJustBelowATieDown) {
  // 0.000000000499999999999999937...: rounded to twenty places first it would be a tie.
  EXPECT_EQ(fieldText(std::nextafter(5e-10, 0.0), 9, '.'), "0.000000000");
  EXPECT_EQ(fieldText(5e-10, 9, '.'), "0.000000001");
  EXPECT_EQ(fieldText(std::nextafter(25.25, 0.0), 1, '.'), "25.2");
}

TEST(FieldText, carriesThroughNinesToANewDigit) {
  EXPECT_EQ(fieldText(9.75, 0, '.'), "10");
  EXPECT_EQ(fieldText(999.96875, 1, '.'), "1000.0");
  EXPECT_EQ(fieldText(-99.5, 0, '.'), "-100");
}

TEST(FieldText, showsTheGreatestNumberWithAllItsDigits) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  EXPECT_EQ(fieldText(kGreatest, 1, '.'), printed(kGreatest, 1));
  EXPECT_EQ(fieldText(1e300, 1, '.'), printed(1e300, 1));
}

RC_GTEST_PROP(FieldText, isTheNearestTenthAndOfTwoTheOneFartherFromZero, (std::uint64_t bits)) {
  // Thirty-seconds have at most five decimals, so whole hundred-thousandths hold them exactly.
  const double value = measured(bits);
  const auto scaled = std::llround(value * 100000.0);
  const auto tenths = (std::llabs(scaled) + 5000) / 10000;
  const std::string sign = value < 0 && tenths != 0 ? "-" : "";
  RC_ASSERT(fieldText(value, 1, '.') ==
            sign + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10));
}

TEST(NumberTexts, doNotFollowTheLocaleOfTheProcess) {
  ::setenv("LOCPATH", NASCOR_LOCALES, 1);
  ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(shortestText(0.5), "0.5");
  EXPECT_EQ(fixedText(0.5, 1), "0.5");
  EXPECT_EQ(fieldText(0.5, 1, '.'), "0.5");
  EXPECT_EQ(numberFromFieldText("0.5"), 0.5);
  std::setlocale(LC_NUMERIC, "C");
}

struct NumberCase {
  const char* text;
  double value;
};

TEST(NumberFromFieldText, readsNumbersWithEitherDecimalSignAndBlanksAround) {
  for (const NumberCase& row : {NumberCase{"45.3", 45.3},
                                {"45,3", 45.3},
                                {" 45.3\t", 45.3},
                                {"+45.3", 45.3},
                                {"-45.3", -45.3},
                                {"045", 45.0},
                                {".5", 0.5},
                                {",5", 0.5},
                                {"5.", 5.0},
                                {"5,", 5.0},
                                {"0", 0.0},
                                {"", 0.0},
                                {"  \t ", 0.0},
                                {"200.04", 200.04},
                                {"0.1", 0.1},
                                {"123456789012345678901234567890", 123456789012345678901234567890.0}}) {
    EXPECT_EQ(numberFromFieldText(row.text), row.value) << '"' << row.text << '"';
  }
}

TEST(NumberFromFieldText, refusesEverythingElse) {
  for (const char* text :
       {"1e2", "1E2", "inf",        "-inf",   "nan",     "infinity", "0x10",  "45.3 mm", "mm",  "4 5",
        "--5", "+-5", "- 5",        "5-",     "1.2.3",   "1,234.5",  "1.2,3", ".",       ",",   "-",
        "+",   "-.",  "45.3\u00A0", "\u0664", "\u22125", "5'",       "5\"",   "$5",      "1/2", "5f"}) {
    EXPECT_EQ(numberFromFieldText(text), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(numberFromFieldText(std::string_view("5\0", 2)), std::nullopt);
}

TEST(NumberFromFieldText, refusesWhatIsTooGreatAndTakesWhatIsTooSmallAsZero) {
  EXPECT_EQ(numberFromFieldText(std::string(400, '9')), std::nullopt);
  EXPECT_EQ(numberFromFieldText("-" + std::string(400, '9') + ".5"), std::nullopt);
  EXPECT_EQ(numberFromFieldText("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(numberFromFieldText("." + std::string(400, '0') + "1"), 0.0);
}

TEST(NumberFromFieldText, knowsNoNegativeZero) {
  for (const char* text : {"-0", "-0.0", "-,0"}) {
    const auto value = numberFromFieldText(text);
    ASSERT_TRUE(value.has_value());
    EXPECT_FALSE(std::signbit(*value)) << text;
  }
}

RC_GTEST_PROP(NumberFromFieldText, readsWhatAFieldShows, (std::uint64_t bits, bool comma)) {
  const double value = std::round(measured(bits) * 10.0) / 10.0;
  RC_ASSERT(numberFromFieldText(fieldText(value, 1, comma ? ',' : '.')) == value);
}

struct IntegerCase {
  const char* text;
  std::int64_t value;
};

TEST(IntegerFromFieldText, readsWholeNumbers) {
  for (const IntegerCase& row : {IntegerCase{"3", 3},
                                 {" 3 ", 3},
                                 {"+3", 3},
                                 {"-3", -3},
                                 {"007", 7},
                                 {"", 0},
                                 {"  ", 0},
                                 {"2147483648", 2147483648},
                                 {"9223372036854775807", kMost},
                                 {"9223372036854775808", kMost},
                                 {"-9223372036854775808", kLeast},
                                 {"-9223372036854775809", kLeast},
                                 {"99999999999999999999999", kMost}}) {
    EXPECT_EQ(integerFromFieldText(row.text), row.value) << '"' << row.text << '"';
  }
}

TEST(IntegerFromFieldText, refusesEverythingElse) {
  for (const char* text :
       {"3.0", "3,", ".", "3 4", "G3", "3G", "-", "+", "- 3", "--3", "1e2", "0x3", "\u0663"}) {
    EXPECT_EQ(integerFromFieldText(text), std::nullopt) << '"' << text << '"';
  }
}

}  // namespace
}  // namespace nascor::foundation
