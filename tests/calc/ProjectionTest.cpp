// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Projection.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ExpectedValues.h"
#include "calc/LookUp.h"
#include "support/Bits.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using tests::isExactly;

const ReferenceTable kTable{DatabaseRecord::initWithData(30.0, 60.0, 2.0),
                            DatabaseRecord::initWithData(35.0, 80.0, 4.0),
                            DatabaseRecord::initWithData(40.0, 90.0, 8.0)};

TEST(TheProjection, isShownFrom30WeeksOnAndBeforeThePlannedDelivery) {
  struct Case {
    const char* name;
    double ageAtLastExam;
    double planned;
    bool shown;
  };
  const Case kCases[] = {
      {"at 30 weeks", 30.0, 40.0, true},
      {"just before 30 weeks", std::nextafter(30.0, 0.0), 40.0, false},
      {"at 20 weeks", 20.0, 40.0, false},
      {"age unknown", 0.0, 40.0, false},
      {"negative age", -1.0, 40.0, false},
      {"just before the planned delivery", std::nextafter(39.0, 0.0), 39.0, true},
      {"at the planned delivery", 39.0, 39.0, false},
      {"after it", 39.5, 39.0, false},
      {"delivery planned for 30 weeks", 30.0, 30.0, false},
      {"delivery planned before 30 weeks", 25.0, 28.0, false},
      {"infinite age", kInfinity, 40.0, false},
      {"infinite plan", 35.0, kInfinity, true},
      {"age no number", kNaN, 40.0, true},
      {"plan no number", 35.0, kNaN, true},
      {"plan no number, but before 30 weeks", 29.0, kNaN, false},
      {"neither a number", kNaN, kNaN, true},
  };
  for (const Case& row : kCases)
    EXPECT_EQ(projectionIsShown(row.ageAtLastExam, row.planned), row.shown) << row.name;
}

TEST(ProjectedValue, liesAsManyStandardDeviationsFromTheMeanAsTheMeasurement) {
  struct Case {
    const char* name;
    double value, age, planned;
    double projected;
  };
  const Case kCases[] = {
      {"on the mean", 80.0, 35.0, 40.0, 90.0},
      {"two above it", 88.0, 35.0, 40.0, 106.0},
      {"one below it", 58.0, 30.0, 40.0, 82.0},
      {"between weeks", 76.0, 32.5, 37.5, 97.0},
      {"to the same week", 83.0, 35.0, 35.0, 83.0},
      {"beyond the last week as at the last week", 88.0, 35.0, 41.0, 106.0},
      {"measured beyond the last week", 98.0, 41.0, 40.0, 98.0},
      {"negative, evaluated as it stands", -60.0, 30.0, 40.0, -390.0},
      {"to an unknown gestation", 88.0, 35.0, 0.0, 0.0},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(projectedValue(kTable, row.value, row.age, row.planned), row.projected))
        << row.name;
  }
}

TEST(ProjectedValue, isReckonedToTheLastDigits) {
  for (const expected::ProjectionCase& row : expected::kProjections) {
    ReferenceTable table;
    appendStandard(table, row.standard, row.measurement);
    const double projected = projectedValue(table, row.value, row.age, row.planned);
    if (row.standard == 0) {
      // The standard deviations themselves may differ there by the last bit.
      EXPECT_NEAR(projected, row.projected, 1e-12) << row.value;
    } else {
      EXPECT_TRUE(isExactly(projected, row.projected)) << row.value;
    }
  }
}

TEST(ProjectedValue, ofNothingMeasuredIsTheMean) {
  for (const double age : {0.0, 31.0, 50.0, kNaN}) {
    EXPECT_TRUE(isExactly(projectedValue(kTable, 0.0, age, 40.0), 90.0)) << age;
    EXPECT_TRUE(isExactly(projectedValue(kTable, -0.0, age, 37.5), 85.0)) << age;
  }
}

TEST(ProjectedValue, withoutAnAgeIsInfiniteWithTheSignOfTheMeasurement) {
  EXPECT_TRUE(isExactly(projectedValue(kTable, 80.0, 0.0, 40.0), kInfinity));
  EXPECT_TRUE(isExactly(projectedValue(kTable, -80.0, 0.0, 40.0), -kInfinity));
  EXPECT_TRUE(isExactly(projectedValue(kTable, 80.0, 0.0, 0.0), kNaN)) << "infinity times nothing";
}

TEST(ProjectedValue, onAnEmptyTableIsNoNumberUnlessNothingIsMeasured) {
  EXPECT_TRUE(isExactly(projectedValue({}, 80.0, 35.0, 40.0), kNaN));
  EXPECT_TRUE(isExactly(projectedValue({}, 0.0, 35.0, 40.0), 0.0));
}

}  // namespace
}  // namespace nascor::calc
