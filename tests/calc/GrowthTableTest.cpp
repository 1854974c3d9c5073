// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/GrowthTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "ExpectedValues.h"
#include "calc/Centile.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"
#include "support/Bits.h"

namespace nascor::calc {
namespace {

using tests::isExactly;

/// Compares all numbers of a standard at an age with the look-ups one by one.
class AGrowthTable : public testing::TestWithParam<std::int64_t> {
 protected:
  void SetUp() override {
    for (const Measurement measurement : kMeasurements)
      appendStandard(tables_.at(static_cast<std::size_t>(measurement)), GetParam(), measurement);
  }
  void compareAt(double gestation) const {
    const Biometry lengths{.bpd = 48.3, .hc = 0.0, .ac = 150.1, .fl = 31.7};
    const GrowthTable::Normals found = table_.at(gestation);
    const auto scores = table_.zScores(lengths, gestation);
    for (std::size_t i = 0; i < tables_.size(); ++i) {
      ASSERT_TRUE(isExactly(found.mean.at(i), meanForGestation(tables_.at(i), gestation))) << gestation;
      ASSERT_TRUE(isExactly(found.sd.at(i), sdForGestation(tables_.at(i), gestation))) << gestation;
      const double score = zScore(tables_.at(i), lengths.*memberFor(kMeasurements.at(i)), gestation);
      ASSERT_TRUE(isExactly(scores.at(i), score) || (std::isnan(score) && std::isnan(scores.at(i))))
          << gestation;
    }
  }

 private:
  GrowthTable table_{GetParam()};
  std::array<ReferenceTable, 4> tables_;
};

TEST_P(AGrowthTable, hasTheBitsOfEachLookUpAtWholeWeeksAndBesideThem) {
  for (double week = 1.0; week <= 60.0; ++week) {
    compareAt(week);
    compareAt(std::nextafter(week, 0.0));
    compareAt(std::nextafter(week, 100.0));
  }
}

TEST_P(AGrowthTable, hasTheBitsOfEachLookUpWhereThereIsNoWeek) {
  for (const double gestation :
       {0.0, -0.0, -1.0, 5e-324, 1e300, expected::kInfinity, -expected::kInfinity, expected::kNaN})
    compareAt(gestation);
}

TEST_P(AGrowthTable, hasTheBitsOfEachLookUpBetweenWeeks) {
  for (int hundredth = 0; hundredth < 6000; ++hundredth) compareAt(hundredth / 100.0);
  for (int day = 0; day < 420; ++day) compareAt(day / 7.0);
  std::mt19937_64 random{20261123};
  std::uniform_real_distribution<double> ages(5.0, 50.0);
  for (int i = 0; i < 20'000; ++i) compareAt(ages(random));
}

INSTANTIATE_TEST_SUITE_P(, AGrowthTable, testing::Range<std::int64_t>(0, kGrowthStandardCount));

}  // namespace
}  // namespace nascor::calc
