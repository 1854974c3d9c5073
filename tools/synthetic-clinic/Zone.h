// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "foundation/Calendar.h"

namespace nascor::clinic {

/// A time zone by rule alone, so that a clinic has the same bytes whatever the machine knows of zones.
class Zone final : public foundation::Calendar {
 public:
  /// When the wall clock is an hour ahead of `offset`.
  enum class Summer { none, northern, southern };

  /// `offset` in seconds ahead of UTC.
  constexpr Zone(double offset, Summer summer) : offset_(offset), summer_(summer) {}

  /// The northern summer lasts from the end of March to the end of October, 01:00 UTC on the last Sundays.
  double offsetFromUtc(foundation::Date instant) const override;

 private:
  double offset_;
  Summer summer_;
};

/// Zones on both sides of Greenwich, with and without summer, and one of half an hour.
std::span<const Zone> zones();

}  // namespace nascor::clinic
