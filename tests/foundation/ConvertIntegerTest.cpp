// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/ConvertInteger.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace nascor::foundation {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(TruncatedToInteger, dropsTheFraction) {
  EXPECT_EQ(truncatedToInteger(0.0), 0);
  EXPECT_EQ(truncatedToInteger(2.999999), 2);
  EXPECT_EQ(truncatedToInteger(-2.999999), -2);
  EXPECT_EQ(truncatedToInteger(-0.5), 0);
  EXPECT_EQ(truncatedToInteger(2147483648.0), 2147483648);
  EXPECT_EQ(truncatedToInteger(9007199254740993.0), 9007199254740992);
  EXPECT_EQ(truncatedToInteger(5e-324), 0);
}

TEST(TruncatedToInteger, stopsAtTheLimits) {
  EXPECT_EQ(truncatedToInteger(0x1p63), kMost);
  EXPECT_EQ(truncatedToInteger(std::nextafter(0x1p63, 0.0)), 9223372036854774784);
  EXPECT_EQ(truncatedToInteger(-0x1p63), kLeast);
  EXPECT_EQ(truncatedToInteger(std::nextafter(-0x1p63, -kInfinity)), kLeast);
  EXPECT_EQ(truncatedToInteger(1e300), kMost);
  EXPECT_EQ(truncatedToInteger(-1e300), kLeast);
  EXPECT_EQ(truncatedToInteger(kInfinity), kMost);
  EXPECT_EQ(truncatedToInteger(-kInfinity), kLeast);
}

TEST(TruncatedToInteger, takesWhatIsNoNumberAsZero) {
  EXPECT_EQ(truncatedToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(truncatedToInteger(-std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(NarrowedToFloat, roundsToTheNearest) {
  EXPECT_EQ(narrowedToFloat(25.3), 25.3F);
  EXPECT_EQ(static_cast<double>(narrowedToFloat(45.3)), 45.29999923706055);
  EXPECT_EQ(narrowedToFloat(1e-60), 0.0F);
  EXPECT_TRUE(std::signbit(narrowedToFloat(-0.0)));
  EXPECT_EQ(narrowedToFloat(0x1p-149), std::numeric_limits<float>::denorm_min());
}

TEST(NarrowedToFloat, goesOverToInfinityHalfAStepBehindTheGreatestFloat) {
  constexpr float kGreatest = std::numeric_limits<float>::max();
  constexpr float kFloatInfinity = std::numeric_limits<float>::infinity();
  constexpr double kTie = 0x1.ffffffp+127;
  const auto greatest = static_cast<double>(kGreatest);

  EXPECT_EQ(narrowedToFloat(greatest), kGreatest);
  EXPECT_EQ(narrowedToFloat(std::nextafter(greatest, kInfinity)), kGreatest);
  EXPECT_EQ(narrowedToFloat(std::nextafter(kTie, 0.0)), kGreatest);
  EXPECT_EQ(narrowedToFloat(kTie), kFloatInfinity);
  EXPECT_EQ(narrowedToFloat(1e300), kFloatInfinity);
  EXPECT_EQ(narrowedToFloat(kInfinity), kFloatInfinity);

  EXPECT_EQ(narrowedToFloat(-greatest), -kGreatest);
  EXPECT_EQ(narrowedToFloat(std::nextafter(-greatest, -kInfinity)), -kGreatest);
  EXPECT_EQ(narrowedToFloat(std::nextafter(-kTie, 0.0)), -kGreatest);
  EXPECT_EQ(narrowedToFloat(-kTie), -kFloatInfinity);
  EXPECT_EQ(narrowedToFloat(-kInfinity), -kFloatInfinity);
}

TEST(NarrowedToFloat, keepsWhatIsNoNumber) {
  EXPECT_TRUE(std::isnan(narrowedToFloat(std::numeric_limits<double>::quiet_NaN())));
}

TEST(Low32Bits, extendsTheSign) {
  EXPECT_EQ(low32Bits(0), 0);
  EXPECT_EQ(low32Bits(7), 7);
  EXPECT_EQ(low32Bits(-7), -7);
  EXPECT_EQ(low32Bits(0x7FFFFFFF), 2147483647);
  EXPECT_EQ(low32Bits(0x80000000), -2147483647 - 1);
  EXPECT_EQ(low32Bits(0xFFFFFFFF), -1);
  EXPECT_EQ(low32Bits(0x100000000), 0);
  EXPECT_EQ(low32Bits(0x123456789), 0x23456789);
  EXPECT_EQ(low32Bits(kMost), -1);
  EXPECT_EQ(low32Bits(kLeast), 0);
  EXPECT_EQ(low32Bits(-4294967297), -1);
}

}  // namespace
}  // namespace nascor::foundation
