// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "calc/Centile.h"
#include "calc/LookUp.h"
#include "calc/Projection.h"

namespace nascor::calc {
namespace {

/// A table as the program may hold one: up to forty weeks, means that grow. In steps of 1/64 mm, so that
/// differences of means are exact and what holds for numbers holds for doubles.
rc::Gen<ReferenceTable> anyTable() {
  return rc::gen::exec([] {
    const int firstWeek = *rc::gen::inRange(1, 20);
    const auto steps = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 1000)));
    ReferenceTable table;
    double mean = *rc::gen::inRange(1, 5000) / 64.0;
    for (std::size_t i = 0; i < std::min<std::size_t>(steps.size(), 40); ++i) {
      table.push_back(
          DatabaseRecord::initWithData(firstWeek + static_cast<double>(i), mean, steps[i] / 64.0));
      mean += steps[i] / 64.0;
    }
    return table;
  });
}

rc::Gen<ReferenceTable> anyTableOfTheProgram() {
  return rc::gen::exec([] {
    ReferenceTable table;
    appendStandard(table, *rc::gen::inRange(0, 4),
                   kMeasurements[static_cast<std::size_t>(*rc::gen::inRange(0, 4))]);
    return table;
  });
}

rc::Gen<ReferenceTable> table() { return rc::gen::oneOf(anyTable(), anyTableOfTheProgram()); }

/// From some way below the table to some way beyond it.
double anyGestation() { return *rc::gen::inRange(-5000, 60000) / 1000.0; }
double anyValue() { return *rc::gen::inRange(-5000, 700000) / 1000.0; }

void check(const char* property, const std::function<void()>& testable) {
  EXPECT_TRUE(rc::check(property, testable));
}

TEST(GestationForMeasurement, neverFallsWhenTheValueGrows) {
  check("a <= b: gestation(a) <= gestation(b)", [] {
    const ReferenceTable rows = *table();
    const auto [smaller, larger] = std::minmax({anyValue(), anyValue()});
    RC_ASSERT(gestationForMeasurement(rows, smaller) <= gestationForMeasurement(rows, larger));
  });
}

TEST(MeanForGestation, neverFallsBetweenTwoKnownGestationsThatGrow) {
  check("a <= b: mean(a) <= mean(b)", [] {
    const ReferenceTable rows = *anyTable();
    const auto [earlier, later] = std::minmax({anyGestation(), anyGestation()});
    RC_PRE(earlier != 0.0 && later != 0.0);
    RC_ASSERT(meanForGestation(rows, earlier) <= meanForGestation(rows, later));
  });
}

TEST(TheLookUps, stayWithinTheWholeTable) {
  check("no look-up leaves the table", [] {
    const ReferenceTable rows = *table();
    const double value = anyValue();
    const double gestation = gestationForMeasurement(rows, value);
    if (value > 0.0) {
      RC_ASSERT(gestation >= rows.front().observation());
      RC_ASSERT(gestation <= rows.back().observation());
    } else {
      RC_ASSERT(gestation == 0.0);
    }
    const auto [smallest, largest] = std::minmax_element(
        rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.sd() < b.sd(); });
    const double age = anyGestation();
    RC_PRE(age != 0.0);
    RC_ASSERT(sdForGestation(rows, age) >= smallest->sd() - 1e-9);
    RC_ASSERT(sdForGestation(rows, age) <= largest->sd() + 1e-9);
  });
}

TEST(TheLookUps, lieBetweenTheirNeighbours) {
  check("between the rows on either side", [] {
    const ReferenceTable rows = *anyTable();
    RC_PRE(rows.size() >= 3);
    const auto i = static_cast<std::size_t>(*rc::gen::inRange<int>(1, static_cast<int>(rows.size()) - 1));
    const double part = *rc::gen::inRange(1, 1000) / 1000.0;
    const DatabaseRecord& before = rows[i - 1];
    const DatabaseRecord& after = rows[i];

    const double age = before.observation() + part;
    RC_ASSERT(meanForGestation(rows, age) > before.mean());
    RC_ASSERT(meanForGestation(rows, age) <= after.mean());
    RC_ASSERT(sdForGestation(rows, age) >= std::min(before.sd(), after.sd()) - 1e-9);
    RC_ASSERT(sdForGestation(rows, age) <= std::max(before.sd(), after.sd()) + 1e-9);

    const double value = before.mean() + part * (after.mean() - before.mean());
    RC_ASSERT(gestationForMeasurement(rows, value) >= before.observation());
    RC_ASSERT(gestationForMeasurement(rows, value) <= after.observation());
    RC_ASSERT(std::abs(gestationForMeasurement(rows, value) - age) < 1e-9);
  });
}

TEST(TheLookUps, areInverseInAllRowsButTheLast) {
  check("gestation(mean(g)) is g up to the last week but one, and then the last week", [] {
    const ReferenceTable rows = *table();
    RC_PRE(rows.size() >= 2);
    const double lastButOne = rows[rows.size() - 2].observation();
    const double age = rows.front().observation() + *rc::gen::inRange(0, 45000) / 1000.0;
    const double back = gestationForMeasurement(rows, meanForGestation(rows, age));
    if (age <= lastButOne) {
      RC_ASSERT(std::abs(back - age) < 1e-9);
    } else {
      RC_ASSERT(back == rows.back().observation());
    }
  });
}

TEST(ProjectedValue, keepsTheZScore) {
  check("z of the projected value at the planned gestation is z of the value at its age", [] {
    const ReferenceTable rows = *table();
    const double value = anyValue();
    const double age = anyGestation();
    const double planned = anyGestation();
    RC_PRE(value != 0.0 && age != 0.0 && planned != 0.0);
    const double z = zScore(rows, value, age);
    RC_ASSERT(std::abs(zScore(rows, projectedValue(rows, value, age, planned), planned) - z) <
              1e-6 * (1.0 + std::abs(z)));
  });
}

}  // namespace
}  // namespace nascor::calc
