// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Calendar.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <functional>

namespace nascor::foundation {

namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days kReferenceDay{chrono::year{2001} / chrono::January / 1};

constexpr std::int64_t daysFrom2001(chrono::year_month_day day) {
  return (chrono::sys_days{day} - kReferenceDay).count();
}

constexpr std::int64_t kFirstDay = daysFrom2001(chrono::year{1} / chrono::January / 1);
constexpr std::int64_t kLastDay = daysFrom2001(chrono::year{9999} / chrono::December / 31);

chrono::year_month_day chronoDay(const CivilDay& day) {
  return chrono::year{static_cast<int>(day.year)} / chrono::month{static_cast<unsigned>(day.month)} /
         chrono::day{static_cast<unsigned>(day.day)};
}

double offsetAt(double seconds, const Calendar& calendar) { return calendar.offsetFromUtc(Date{seconds}); }

/// The first moment in (`before`, `after`] from which on the wall clock shows `wall` or more.
double firstMomentAfterGap(double before, double after, double wall, const Calendar& calendar) {
  const auto isShown = [&](double instant) { return instant + offsetAt(instant, calendar) >= wall; };
  for (;;) {
    const double middle = before + (after - before) / 2;
    if (!(before < middle && middle < after)) return after;
    (isShown(middle) ? after : before) = middle;
  }
}

}  // namespace

bool isValid(const CivilDay& day) {
  // Checked as they stand: chrono's fields are narrower and would wrap.
  if (day.year < 1 || day.year > 9999 || day.month < 1 || day.month > 12 || day.day < 1 || day.day > 31) {
    return false;
  }
  return chronoDay(day).ok();
}

std::int64_t daysSince2001(const CivilDay& day) { return daysFrom2001(chronoDay(day)); }

std::optional<CivilDay> civilDayFromDaysSince2001(std::int64_t days) {
  if (days < kFirstDay || days > kLastDay) return std::nullopt;
  const chrono::year_month_day day{kReferenceDay + chrono::days{days}};
  return CivilDay{.year = static_cast<int>(day.year()),
                  .month = static_cast<int>(static_cast<unsigned>(day.month())),
                  .day = static_cast<int>(static_cast<unsigned>(day.day()))};
}

Date dateByAddingWallClockSeconds(Date date, double seconds, const Calendar& calendar) {
  const double sum = date.secondsSince2001 + seconds;
  if (!std::isfinite(sum)) return Date{sum};
  const double offsetAtDate = calendar.offsetFromUtc(date);
  const double offsetAtSum = offsetAt(sum, calendar);
  if (offsetAtSum == offsetAtDate) return Date{sum};

  const double moved = sum - (offsetAtSum - offsetAtDate);
  const double offsetAtMoved = offsetAt(moved, calendar);
  if (offsetAtMoved == offsetAtSum) return Date{moved};

  // The clock changes between the two: the other side's offset may still fit; if not, no moment shows this time.
  const double movedBack = sum - (offsetAtMoved - offsetAtDate);
  if (offsetAt(movedBack, calendar) == offsetAtMoved) return Date{movedBack};
  const auto [before, after] = std::minmax(moved, movedBack);
  return Date{firstMomentAfterGap(before, after, sum + offsetAtDate, calendar)};
}

Date startOfDay(const CivilDay& day, const Calendar& calendar) {
  return dateFromWallClock(day, 0.0, calendar);
}

Date dateFromWallClock(const CivilDay& day, double secondsOfDay, const Calendar& calendar) {
  const double wall = static_cast<double>(daysSince2001(day)) * kSecondsPerDay + secondsOfDay;
  if (!std::isfinite(wall)) return Date{wall};

  // Every zone is less than a day from UTC, so these see the rules on either side of the moment sought. The
  // greatest offset gives the earliest moment.
  std::array offsets{offsetAt(wall - kSecondsPerDay, calendar), offsetAt(wall, calendar),
                     offsetAt(wall + kSecondsPerDay, calendar)};
  std::sort(offsets.begin(), offsets.end(), std::greater<>());
  for (const double offset : offsets) {
    if (offsetAt(wall - offset, calendar) == offset) return Date{wall - offset};
  }
  return Date{firstMomentAfterGap(wall - offsets.front(), wall - offsets.back(), wall, calendar)};
}

std::optional<CivilDay> localDay(Date date, const Calendar& calendar) {
  if (!std::isfinite(date.secondsSince2001)) return std::nullopt;
  // Whole seconds first: a fraction just below midnight must not be rounded up by the sum.
  const double wall = std::floor(date.secondsSince2001) + calendar.offsetFromUtc(date);
  const double days = std::floor(wall / kSecondsPerDay);
  if (days < static_cast<double>(kFirstDay) || days > static_cast<double>(kLastDay)) return std::nullopt;
  return civilDayFromDaysSince2001(static_cast<std::int64_t>(days));
}

}  // namespace nascor::foundation
