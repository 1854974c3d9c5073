// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Centile.h"

#include <cmath>
#include <numbers>

#include "calc/LookUp.h"

namespace nascor::calc {

double zScore(const ReferenceTable& table, double value, double age) {
  const auto [mean, sd] = meanAndSDForGestation(table, age);
  return zScore(value, mean, sd);
}

double centileOfZ(double z) {
  // 1 - erf would leave no digits in the lower tail.
  return 50.0 * std::erfc(-z / std::numbers::sqrt2);
}

double zOfCentile(double centile) {
  constexpr double kMiddle = 50.0;
  constexpr double kBelowAll = -40.0;  // the share below it is no double above 0
  constexpr int kHalvings = 64;
  if (centile == kMiddle) return 0.0;
  // The lower tail keeps its digits.
  if (centile > kMiddle) return -zOfCentile(100.0 - centile);
  double low = kBelowAll;
  double high = 0.0;
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = low + (high - low) / 2.0;
    (centileOfZ(middle) < centile ? low : high) = middle;
  }
  return high;
}

}  // namespace nascor::calc
