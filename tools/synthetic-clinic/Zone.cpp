// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "synthetic_clinic/Zone.h"

#include <array>

namespace nascor::clinic {

namespace {

using foundation::CivilDay;
using foundation::kSecondsPerDay;

/// 01:00 UTC on the last Sunday of a month with 31 days.
double lastSunday(std::int64_t year, int month) {
  const std::int64_t last = foundation::daysSince2001(CivilDay{.year = year, .month = month, .day = 31});
  // The first day of 2001 was a Monday.
  const std::int64_t sunday = last - (last + 1) % 7;
  return static_cast<double>(sunday) * kSecondsPerDay + 3600.0;
}

}  // namespace

double Zone::offsetFromUtc(foundation::Date instant) const {
  if (summer_ == Summer::none) return offset_;
  const auto day = foundation::civilDayFromDaysSince2001(
      static_cast<std::int64_t>(instant.secondsSince2001 / kSecondsPerDay));
  if (!day) return offset_;
  const bool isNorthern = instant.secondsSince2001 >= lastSunday(day->year, 3) &&
                          instant.secondsSince2001 < lastSunday(day->year, 10);
  return isNorthern == (summer_ == Summer::northern) ? offset_ + 3600.0 : offset_;
}

std::span<const Zone> zones() {
  using enum Zone::Summer;
  static const std::array<Zone, 5> kZones{Zone(0.0, none), Zone(3600.0, northern), Zone(-18000.0, northern),
                                          Zone(36000.0, southern), Zone(19800.0, none)};
  return kZones;
}

}  // namespace nascor::clinic
