// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace nascor::foundation {

/// `value` without its fraction. NaN becomes 0, values beyond the 64-bit range the nearest limit:
/// converting them directly is undefined, and dates and measurements from a file can hold anything.
inline std::int64_t truncatedToInteger(double value) {
  constexpr double kTwoTo63 = 9223372036854775808.0;
  if (std::isnan(value)) return 0;
  if (value >= kTwoTo63) return std::numeric_limits<std::int64_t>::max();
  if (value < -kTwoTo63) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(value);
}

/// `value` as the nearest single-precision number; beyond its range an infinity of the same sign.
/// Plain conversion of such a value is undefined in C++.
inline float narrowedToFloat(double value) {
  static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);
  constexpr double kMax = std::numeric_limits<float>::max();
  if (value >= -kMax && value <= kMax) return static_cast<float>(value);
  // Half a unit above the largest float: from here on rounding to nearest gives infinity.
  constexpr double kFirstInfinite = 0x1.ffffffp+127;
  if (value >= kFirstInfinite) return std::numeric_limits<float>::infinity();
  if (value <= -kFirstInfinite) return -std::numeric_limits<float>::infinity();
  if (value > kMax) return std::numeric_limits<float>::max();
  if (value < -kMax) return std::numeric_limits<float>::lowest();
  return static_cast<float>(value);
}

/// The low 32 bits of `value`, as a signed number.
inline std::int32_t low32Bits(std::int64_t value) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

}  // namespace nascor::foundation
