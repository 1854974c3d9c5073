// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/ScriptValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace nascor::scripting {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

TEST(AScriptsNumber, isCutTowardZeroWhereAWholeNumberIsWanted) {
  EXPECT_EQ(integerValue(std::int64_t{3}), 3);
  EXPECT_EQ(integerValue(2.9), 2);
  EXPECT_EQ(integerValue(-2.9), -2);
  EXPECT_EQ(integerValue(kMost), kMost);
  EXPECT_EQ(integerValue(1e300), kMost);
  EXPECT_EQ(integerValue(std::nan("")), 0);
}

TEST(AScriptsNumber, isTheNearestOfSinglePrecisionWhereALengthIsWanted) {
  EXPECT_EQ(static_cast<double>(floatValue(45.3)), 45.29999923706055);
  EXPECT_EQ(floatValue(std::int64_t{45}), 45.0F);
  EXPECT_EQ(floatValue(1e300), std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isnan(floatValue(std::nan(""))));
}

TEST(AScriptsWholeNumber, isRoundedOnce) {
  // 2^60 + 2^36 + 1 lies above the middle of two neighbours, 2^60 and 2^60 + 2^37. As a double it would be the middle itself,
  // which goes to the even one, 2^60.
  constexpr std::int64_t kAboveTheMiddle = (std::int64_t{1} << 60) + (std::int64_t{1} << 36) + 1;
  EXPECT_EQ(floatValue(kAboveTheMiddle), 0x1p60F + 0x1p37F);
}

}  // namespace
}  // namespace nascor::scripting
