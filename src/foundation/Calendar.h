// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

#include "foundation/Date.h"

namespace nascor::foundation {

/// A day of the proleptic Gregorian calendar, without a time zone.
struct CivilDay {
  std::int64_t year = 2001;
  int month = 1;  ///< 1 to 12
  int day = 1;    ///< 1 to 31

  friend auto operator<=>(const CivilDay&, const CivilDay&) = default;
};

/// Whether `day` stands in the calendar: month and day exist, year from 1 to 9999.
bool isValid(const CivilDay& day);

/// Days from 2001-01-01 to `day`; negative before it. Precondition: `isValid(day)`.
std::int64_t daysSince2001(const CivilDay& day);

/// The day that lies `days` after 2001-01-01; nothing outside the years 1 to 9999.
std::optional<CivilDay> civilDayFromDaysSince2001(std::int64_t days);

/// The rules of the user's time zone. Implemented once for the operating system; tests choose zones.
class Calendar {
 public:
  virtual ~Calendar() = default;

  /// Seconds by which the local wall clock is ahead of UTC at `instant`; 0 for an instant that the
  /// zone's rules do not reach (not finite, or beyond the range of the system's clock).
  virtual double offsetFromUtc(Date instant) const = 0;
};

/// The moment that the wall clock shows `seconds` after it shows `date`: so an EDD 280 days after a
/// local midnight is a local midnight too, whatever daylight saving did meanwhile. A wall time that
/// a change of the clock leaves out becomes the first moment after the gap. Where the offset does
/// not change this is `date` plus `seconds` to the last bit.
Date dateByAddingWallClockSeconds(Date date, double seconds, const Calendar& calendar);

/// The first moment of `day`: local midnight, or the first moment after the gap on a day without one.
/// Precondition: `isValid(day)`.
Date startOfDay(const CivilDay& day, const Calendar& calendar);

/// The moment at which the local wall clock shows `secondsOfDay` on `day`; a time that the zone leaves
/// out becomes the first moment after the gap, a time that comes twice its first occurrence.
Date dateFromWallClock(const CivilDay& day, double secondsOfDay, const Calendar& calendar);

/// The local day of `date`; nothing for a date that is not finite or lies outside the years 1 to 9999.
std::optional<CivilDay> localDay(Date date, const Calendar& calendar);

}  // namespace nascor::foundation
