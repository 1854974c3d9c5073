// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/PlaceText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace nascor::calc {
namespace {

const foundation::EnglishLocalizer kEnglish;

TEST(TheTextOfAZ, hasItsSign) {
  EXPECT_EQ(zText(1.254, kEnglish), "+1.25");
  EXPECT_EQ(zText(0.0, kEnglish), "+0.00");
  EXPECT_EQ(zText(-0.35, kEnglish), "-0.35");
  EXPECT_EQ(zText(std::nan(""), kEnglish), "-");
}

TEST(TheTextOfACentile, isNever0Or100) {
  EXPECT_EQ(centileText({.percent = 89.44}, kEnglish), "89.4");
  EXPECT_EQ(centileText({.percent = 0.04}, kEnglish), "<0.1");
  EXPECT_EQ(centileText({.percent = 99.96}, kEnglish), ">99.9");
  EXPECT_EQ(centileText({.percent = std::nan("")}, kEnglish), "-");
}

TEST(TheTextOfACentile, saysWhereTheCurvesEnd) {
  EXPECT_EQ(centileText({.percent = 1.0, .side = Centile::Side::below}, kEnglish), "<1");
  EXPECT_EQ(centileText({.percent = 99.0, .side = Centile::Side::above}, kEnglish), ">99");
}

}  // namespace
}  // namespace nascor::calc
