// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>
#include <vector>

#include "foundation/Calendar.h"

namespace nascor::tests {

/// A zone made of a first offset and the instants, in ascending order, at which another begins. It needs no
/// zone files, so a test can build any change of the clock.
class RuleCalendar final : public foundation::Calendar {
 public:
  struct Change {
    double secondsSince2001;
    double offsetFromThenOn;
  };

  RuleCalendar(double firstOffset, std::vector<Change> changes)
      : firstOffset_(firstOffset), changes_(std::move(changes)) {}

  double offsetFromUtc(foundation::Date instant) const override {
    double offset = firstOffset_;
    for (const Change& change : changes_) {
      // Written so that NaN never reaches a change.
      if (!(instant.secondsSince2001 >= change.secondsSince2001)) break;
      offset = change.offsetFromThenOn;
    }
    return offset;
  }

 private:
  double firstOffset_;
  std::vector<Change> changes_;
};

}  // namespace nascor::tests
