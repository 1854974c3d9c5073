// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

namespace nascor::tests {

/// A clock that stands still until a test moves it.
class FixedClock final : public foundation::Clock {
 public:
  explicit FixedClock(foundation::Date start = {}) : now_(start) {}

  foundation::Date now() const override { return now_; }
  void set(foundation::Date now) { now_ = now; }
  void advance(double seconds) { now_.secondsSince2001 += seconds; }

 private:
  foundation::Date now_;
};

}  // namespace nascor::tests
