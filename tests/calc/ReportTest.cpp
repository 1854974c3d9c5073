// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Report.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/Bits.h"
#include "support/MarkedLocalizer.h"

namespace nascor::calc {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TheReportedWeight, isInWholeGramsAbove100GramsOnly) {
  struct Case {
    double grams;
    const char* text;
  };
  constexpr Case kCases[] = {
      {0.0, "-"},           {-2579.5, "-"},     {99.9, "-"},    {100.0, "-"},
      {100.00001, "100"},   {100.5, "100"},     {101.5, "102"}, {2533.9614293978416, "2534"},
      {2579.51016, "2580"}, {21217.4, "21217"}, {kNaN, "-"},    {kInfinity, "inf"},
  };
  for (const Case& row : kCases) EXPECT_EQ(reportedWeight(row.grams), row.text) << row.grams;
}

TEST(TheDeliveryAdjustment, isTheDifferenceFrom40WeeksInDays) {
  EXPECT_TRUE(tests::isExactly(deliveryAdjustment(40.0), 0.0));
  EXPECT_TRUE(tests::isExactly(deliveryAdjustment(39.0), -7.0));
  EXPECT_TRUE(tests::isExactly(deliveryAdjustment(39.57142857142857), -3.000000000000014));
  EXPECT_TRUE(tests::isExactly(deliveryAdjustment(kNaN), kNaN));
}

TEST(TheDaysToGo, areAlways0WithTheAdjustmentBehind) {
  struct Case {
    double plannedGestation;
    const char* text;
  };
  constexpr Case kCases[] = {
      {40.0, "Days to Go:\t0"},
      {39.0, "Days to Go:\t0 (-7)"},
      {41.0, "Days to Go:\t0 (7)"},
      {39.57142857142857, "Days to Go:\t0 (-3)"},
      {39.57143020629883, "Days to Go:\t0 (-3)"},  // as a file gives it back
      {40.01, "Days to Go:\t0 (0)"},
      {39.99, "Days to Go:\t0 (-0)"},
      {kNaN, "Days to Go:\t0 (nan)"},
  };
  for (const Case& row : kCases) {
    EXPECT_EQ(daysToGoLine(row.plannedGestation, foundation::EnglishLocalizer()), row.text)
        << row.plannedGestation;
  }
  EXPECT_EQ(daysToGoLine(39.0, tests::MarkedLocalizer()), "[:Days to Go:\t0] (-7)");
}

TEST(TheRowsThatFit, areTheLatestAndGiveOneUpForTheProjection) {
  struct Case {
    std::uint64_t examinations;
    double height;
    bool withProjection;
    std::uint64_t first;
  };
  constexpr Case kCases[] = {
      {5, 230, false, 3},     // (230 - 148) / 41 = 2
      {5, 230, true, 4},      //
      {2, 230, false, 0},     // as many as fit
      {3, 230, false, 1},     //
      {5, 189, false, 4},     // one
      {5, 188.99, false, 5},  // none
      {5, 108, false, 5},     //
      {5, 188, true, 0},      // none, less one: it wraps, and all are listed
      {5, 189, true, 5},      //
      {5, 107, false, 0},     // less than none: the same
      {5, 107, true, 0},      //
      {5, 0, false, 0},       //
      {20, 560, false, 10},   // a whole page: (560 - 148) / 41 = 10
      {20, 560, true, 11},    //
      {0, 560, false, 0},
  };
  for (const Case& row : kCases) {
    EXPECT_EQ(firstExaminationShown(row.examinations, row.height, row.withProjection), row.first)
        << row.examinations << " at " << row.height << (row.withProjection ? " with the projection" : "");
  }
}

}  // namespace
}  // namespace nascor::calc
