// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/LeadingInteger.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace nascor::foundation {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

struct LeadingIntegerCase {
  const char* text;
  std::int64_t value;
};

TEST(LeadingInteger, readsTheNumberThatTheTextBeginsWith) {
  for (const LeadingIntegerCase& row : {LeadingIntegerCase{"3", 3},
                                        {" \t\n3", 3},
                                        {"+3", 3},
                                        {"-3", -3},
                                        {"3rd", 3},
                                        {"3.9", 3},
                                        {"3 4", 3},
                                        {"007", 7},
                                        {"-0", 0},
                                        {"2147483648", 2147483648},
                                        {"-2147483649", -2147483649}}) {
    EXPECT_EQ(leadingInteger(row.text), row.value) << '"' << row.text << '"';
  }
}

TEST(LeadingInteger, isZeroWhereThereIsNone) {
  for (const char* text : {"", "  ", "G3", "-", "+", "--3", "+-3", "- 3", ".5", "\u0663", "YES", "\u00A03"}) {
    EXPECT_EQ(leadingInteger(text), 0) << '"' << text << '"';
  }
}

TEST(LeadingInteger, stopsAtTheLimits) {
  for (const LeadingIntegerCase& row : {LeadingIntegerCase{"9223372036854775806", kMost - 1},
                                        {"9223372036854775807", kMost},
                                        {"9223372036854775808", kMost},
                                        {"9223372036854775809", kMost},
                                        {"9223372036854775810", kMost},
                                        {"92233720368547758070", kMost},
                                        {"-9223372036854775807", kLeast + 1},
                                        {"-9223372036854775808", kLeast},
                                        {"-9223372036854775809", kLeast},
                                        {"-9223372036854775810", kLeast},
                                        {"-92233720368547758080", kLeast},
                                        {"9223372036854775808 g", kMost}}) {
    EXPECT_EQ(leadingInteger(row.text), row.value) << row.text;
  }
  EXPECT_EQ(leadingInteger(std::string(1000, '9')), kMost);
  EXPECT_EQ(leadingInteger("-" + std::string(1000, '9')), kLeast);
}

}  // namespace
}  // namespace nascor::foundation
