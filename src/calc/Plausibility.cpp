// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Plausibility.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "calc/Centile.h"
#include "calc/EditingBounds.h"
#include "calc/LookUp.h"

namespace nascor::calc {

namespace {

/// The least mean that any growth standard begins with.
double shortestMean(Measurement measurement) {
  double shortest = editingBounds(measurement).greatest;
  for (const GrowthStandard& standard : growthStandards())
    shortest = std::min(shortest, standard.row(measurement, standard.firstWeek).mean());
  return shortest;
}

}  // namespace

bool isUsualCycle(std::int64_t cycle, std::int64_t luteal) {
  return cycle >= 24 && cycle <= 38 && luteal >= 11 && luteal <= 17;
}

std::optional<Improbable> improbableAge(double age) {
  constexpr double kLongPastTerm = 45.0;  // weeks
  if (age < 0.0) return Improbable::beforeLastPeriod;
  if (age > kLongPastTerm) return Improbable::longPastTerm;
  return std::nullopt;
}

std::vector<Improbable> improbableLength(Measurement measurement, const Biometry& lengths, double age,
                                         const ReferenceTable& table) {
  constexpr double kFar = 4.0;  // standard deviations
  constexpr double kLeastOfCircle = 0.9;
  const double value = lengths.*memberFor(measurement);
  if (value == 0.0) return {};
  if (!editingBounds(measurement).permit(value)) return {Improbable::outsideBounds};

  std::vector<Improbable> found;
  if (age == 0.0) {
    if (value < shortestMean(measurement)) found.push_back(Improbable::shorterThanAnywhere);
  } else if (!table.empty() && std::isfinite(age)) {
    // Beyond the table its first or last week counts: who is younger than the first is not larger, nor who is older than the
    // last smaller.
    const BeyondTable beyond = weekBeyondTable(table, age);
    const double z = zScore(table, value, age);
    if (z < -kFar && beyond != BeyondTable::before) found.push_back(Improbable::farBelowStandard);
    if (z > kFar && beyond != BeyondTable::after) found.push_back(Improbable::farAboveStandard);
  }
  if (measurement == Measurement::hc && lengths.bpd > 0.0 &&
      value < kLeastOfCircle * std::numbers::pi * lengths.bpd) {
    found.push_back(Improbable::headTooSmall);
  }
  return found;
}

}  // namespace nascor::calc
