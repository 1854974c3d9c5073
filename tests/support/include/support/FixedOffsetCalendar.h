// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Calendar.h"

namespace nascor::tests {

/// A zone without daylight saving: always the same number of seconds ahead of UTC.
class FixedOffsetCalendar final : public foundation::Calendar {
 public:
  explicit FixedOffsetCalendar(double secondsAheadOfUtc = 0.0) : offset_(secondsAheadOfUtc) {}
  double offsetFromUtc(foundation::Date) const override { return offset_; }

 private:
  double offset_;
};

}  // namespace nascor::tests
