// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>

#include "calc/Centile.h"
#include "calc/References.h"

namespace nascor::calc {
namespace {

void check(const char* property, const std::function<void()>& testable) {
  EXPECT_TRUE(rc::check(property, testable));
}

struct Asked {
  const Reference* reference;
  Quantity quantity;
  double week;
  Population population;
};

/// A reference, one of its quantities, and an age within its weeks.
Asked anyPopulation() {
  const Reference& reference = references()[static_cast<std::size_t>(*rc::gen::inRange(0, 8))];
  const auto count = static_cast<int>(reference.quantities.size());
  const Quantity quantity = reference.quantities[static_cast<std::size_t>(*rc::gen::inRange(0, count))];
  const double week = *rc::gen::inRange(reference.firstWeek * 1000, reference.lastWeek * 1000 + 1) / 1000.0;
  return {&reference, quantity, week, *populationAt(reference, quantity, week)};
}

double anyCentile() { return *rc::gen::inRange(1001, 98999) / 1000.0; }
double anyZ() { return *rc::gen::inRange(-4000, 4001) / 1000.0; }

TEST(APopulation, givesBackTheCentileOfTheValueOfACentile) {
  check("centile(value(p)) = p", [] {
    const Asked asked = anyPopulation();
    const double percent = anyCentile();
    const double value = asked.population.valueAtCentile(percent).value();
    RC_ASSERT(std::abs(asked.population.centile(value).value().percent - percent) < 1e-9);
  });
}

TEST(APopulation, givesBackTheZOfTheValueOfAZ) {
  check("z(value(z)) = z", [] {
    const Asked asked = anyPopulation();
    const double z = anyZ();
    const auto value = asked.population.valueAtZ(z);
    RC_ASSERT(value.has_value() == (asked.reference->form != ReferenceForm::quantiles));
    if (value) RC_ASSERT(std::abs(asked.population.z(*value).value() - z) < 1e-9);
  });
}

TEST(APopulation, hasCentilesThatGrowWithTheValue) {
  check("a < b: centile(a) < centile(b), value(p) < value(q)", [] {
    const Asked asked = anyPopulation();
    const double percent = anyCentile();
    const double more = percent + 0.001;
    const double value = asked.population.valueAtCentile(percent).value();
    const double larger = asked.population.valueAtCentile(more).value();
    RC_ASSERT(value < larger);
    RC_ASSERT(asked.population.centile(value)->percent < asked.population.centile(larger)->percent);
  });
}

TEST(APopulation, hasItsMedianInTheMiddle) {
  check("centile(median) = 50", [] {
    const Asked asked = anyPopulation();
    RC_ASSERT(std::abs(asked.population.centile(asked.population.median())->percent - 50.0) < 1e-9);
    RC_ASSERT(std::abs(*asked.population.valueAtCentile(50.0) / asked.population.median() - 1.0) < 1e-12);
  });
}

TEST(WeekOfMedian, leadsBackToTheValue) {
  check("median(week(v)) = v", [] {
    const Asked asked = anyPopulation();
    const double value = asked.population.median();
    const auto week = weekOfMedian(*asked.reference, asked.quantity, value);
    // The very top of a curve that turns lies between two days.
    if (!week) {
      RC_ASSERT(asked.quantity == Quantity::fl && asked.week > 39.8);
      return;
    }
    RC_ASSERT(std::abs(populationAt(*asked.reference, asked.quantity, *week)->median() / value - 1.0) <
              1e-11);
  });
}

TEST(ZOfCentile, givesBackTheCentileToItsDigits) {
  check("centile(z(p)) = p", [] {
    const double percent = std::pow(10.0, *rc::gen::inRange(-30000, 1690) / 1000.0);
    RC_ASSERT(std::abs(centileOfZ(zOfCentile(percent)) / percent - 1.0) < 1e-9);
  });
}

}  // namespace
}  // namespace nascor::calc
