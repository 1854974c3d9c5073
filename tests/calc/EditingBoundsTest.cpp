// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/EditingBounds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nascor::calc {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(EditingBounds, permitBothBoundsAndNothingBeyond) {
  struct Case {
    Measurement measurement;
    double greatest;
  };
  constexpr Case kCases[] = {{Measurement::bpd, 200.0},
                             {Measurement::hc, 500.0},
                             {Measurement::ac, 600.0},
                             {Measurement::fl, 200.0}};
  for (const Case& row : kCases) {
    const EditingBounds bounds = editingBounds(row.measurement);
    SCOPED_TRACE(nameOf(row.measurement));
    for (const double value : {0.0, -0.0, 5e-324, 45.3, row.greatest})
      EXPECT_TRUE(bounds.permit(value)) << value;
    for (const double value : {-0.1, -5e-324, std::nextafter(row.greatest, kInfinity), row.greatest + 0.04,
                               row.greatest + 0.1, kInfinity, -kInfinity, std::nan("")}) {
      EXPECT_FALSE(bounds.permit(value)) << value;
    }
  }
}

TEST(EditingBounds, ofThePlannedDeliveryEndAtTheEddUnderTheStandardThatEndsThere) {
  for (const std::int64_t standard : {-1, 0, 1, 2, 4}) {
    EXPECT_TRUE(plannedDeliveryDays(standard).permit(7.0)) << standard;
    EXPECT_FALSE(plannedDeliveryDays(standard).permit(8.0)) << standard;
  }
  EXPECT_TRUE(plannedDeliveryDays(3).permit(0.0));
  EXPECT_FALSE(plannedDeliveryDays(3).permit(1.0));
  for (const std::int64_t standard : {0, 3}) {
    EXPECT_TRUE(plannedDeliveryDays(standard).permit(-280.0)) << standard;
    EXPECT_FALSE(plannedDeliveryDays(standard).permit(-281.0)) << standard;
  }
}

TEST(EditingBounds, countOneToFiveFetusesAndNoNegativeGravidity) {
  EXPECT_EQ(kFewestFetuses, 1);
  EXPECT_EQ(kMostFetuses, 5);
  EXPECT_EQ(kLeastGravida, 0);
}

}  // namespace
}  // namespace nascor::calc
