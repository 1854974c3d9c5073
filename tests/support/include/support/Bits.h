// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace nascor::tests {

inline std::string exactText(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.17g (%a)", value, value);
  return text;
}

/// Whether `actual` is `expected` to the last bit: 0.0 is not -0.0. Any NaN is like any other.
inline testing::AssertionResult isExactly(double actual, double expected) {
  const bool same = std::bit_cast<std::uint64_t>(actual) == std::bit_cast<std::uint64_t>(expected) ||
                    (std::isnan(actual) && std::isnan(expected));
  if (same) return testing::AssertionSuccess() << "is exactly " << exactText(expected);
  return testing::AssertionFailure() << "is " << exactText(actual) << ", not " << exactText(expected);
}

/// Whether `actual` is `expected` or one of the two doubles beside it.
inline testing::AssertionResult isWithinTheLastDigit(double actual, double expected) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  if (actual >= std::nextafter(expected, -kInfinity) && actual <= std::nextafter(expected, kInfinity)) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "is " << exactText(actual) << ", not " << exactText(expected);
}

}  // namespace nascor::tests
