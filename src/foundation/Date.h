// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

namespace nascor::foundation {

/// One day in seconds. All arithmetic on dates adds seconds.
inline constexpr double kSecondsPerDay = 86400.0;

/// A moment: seconds since 2001-01-01 00:00:00 UTC, exactly as a document file holds it.
/// A file may hold anything here, NaN and infinities included; such a date has no text.
struct Date {
  double secondsSince2001 = 0.0;

  friend bool operator==(const Date&, const Date&) = default;
};

/// Seconds from `earlier` to `later`; negative when they stand the other way round.
inline double timeIntervalSince(Date later, Date earlier) {
  return later.secondsSince2001 - earlier.secondsSince2001;
}

}  // namespace nascor::foundation
