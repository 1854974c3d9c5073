// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "foundation/Localizer.h"

namespace nascor::foundation {

/// How far a long piece of work has come: a window's and a terminal's progress are read from this. Times are seconds of
/// one clock that runs evenly, from any beginning.
class Progress {
 public:
  /// `total` is 0 where it is not known beforehand.
  Progress(std::int64_t total, double now) : total_(total), begin_(now), now_(now) {}

  /// `done` of the total are done at `now`.
  void set(std::int64_t done, double now);
  /// As above, when the total is known only now or has changed.
  void set(std::int64_t done, std::int64_t total, double now);

  std::int64_t done() const { return done_; }
  std::int64_t total() const { return total_; }

  /// "12 of 300, 4 a second, 72 s left": a rate below 1 a second is given by the minute, a time from 100 s on in minutes.
  /// Without a total "12, 4 a second". Rate and time are left out while nothing is done or no time has gone by.
  std::string text(const Localizer& localizer) const;

  /// One changing line of a terminal, which writes over itself: a bar where the total is known, and the text.
  std::string line(const Localizer& localizer) const;
  /// Wipes that line.
  static constexpr const char* kWiped = "\r\033[K";

  /// Whether the line may be drawn again: not more often than ten times a second. The first time is always due.
  bool isDue();

 private:
  std::int64_t total_;
  std::int64_t done_ = 0;
  double begin_;
  double now_;
  double nextDue_ = 0.0;
  bool wasDrawn_ = false;
};

}  // namespace nascor::foundation
