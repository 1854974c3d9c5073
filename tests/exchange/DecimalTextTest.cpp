// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/DecimalText.h"

#include <gtest/gtest.h>

namespace nascor::tests {
namespace {

using exchange::decimalMoved;
using exchange::shortestSingleText;

TEST(MovingThePoint, givesTheDoubleNearestTheDecimal) {
  EXPECT_EQ(decimalMoved("29.08", 1), 290.8);
  EXPECT_EQ(decimalMoved("+.5", 1), 5.0);
  EXPECT_EQ(decimalMoved("5.", 0), 5.0);
  EXPECT_EQ(decimalMoved(" 2273e-1 ", 0), 227.3);
  EXPECT_EQ(decimalMoved("0.868", 3), 868.0);
  EXPECT_EQ(decimalMoved("-1E+1", 0), -10.0);
}

TEST(MovingThePoint, takesNothingButDecimals) {
  for (const char* text : {"", " ", "+", ".", "1e", "e1", "1 2", "0x10", "inf", "nan", "1,5", "1e400", "--1",
                           "1e1e1", "1\\2", "1e9999999999"}) {
    EXPECT_EQ(decimalMoved(text, 0), std::nullopt) << text;
  }
}

TEST(ASingleNumber, isTheShortestDecimalOfAtMostSixteenCharacters) {
  EXPECT_EQ(shortestSingleText(static_cast<double>(60.9F)), "60.9");
  EXPECT_EQ(shortestSingleText(125.0), "125");
  for (const double value : {1e-30, 1.17549435e-38, 3.4028235e38, 123456.789, 0.1}) {
    const std::string text = shortestSingleText(value);
    EXPECT_LE(text.size(), 16U) << text;
    EXPECT_EQ(static_cast<float>(*decimalMoved(text, 0)), static_cast<float>(value)) << text;
  }
}

TEST(ADayInDigits, isADayOfTheCalendar) {
  EXPECT_EQ(exchange::dayFromDigits("20270304"), (foundation::CivilDay{2027, 3, 4}));
  EXPECT_EQ(exchange::dayFromDigits("2027.03.04 "), (foundation::CivilDay{2027, 3, 4}));
  for (const char* text : {"20270230", "2027-3-4", "2027034", "202703041", "        ", "00000101"})
    EXPECT_EQ(exchange::dayFromDigits(text), std::nullopt) << text;
  EXPECT_EQ(exchange::digitsOfDay({812, 3, 4}), "08120304");
  EXPECT_EQ(exchange::isoText({2027, 3, 4}), "2027-03-04");
}

}  // namespace
}  // namespace nascor::tests
