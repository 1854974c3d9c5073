// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Progress.h"

#include <algorithm>
#include <cmath>

#include "foundation/ConvertInteger.h"

namespace nascor::foundation {

namespace {

/// To the nearest whole number, at least 1.
std::int64_t rounded(double value) {
  return std::max<std::int64_t>(truncatedToInteger(std::round(value)), 1);
}

}  // namespace

void Progress::set(std::int64_t done, double now) {
  done_ = done;
  now_ = now;
}

void Progress::set(std::int64_t done, std::int64_t total, double now) {
  total_ = total;
  set(done, now);
}

std::string Progress::text(const Localizer& localizer) const {
  std::string text =
      total_ > 0 ? format(localizer.text("Progress", "%ld of %ld"), {done_, total_}) : std::to_string(done_);
  const double gone = now_ - begin_;
  if (done_ <= 0 || !(gone > 0.0)) return text;

  constexpr double kMinute = 60.0;
  const double rate = static_cast<double>(done_) / gone;
  text += ", ";
  text += rate >= 1.0 ? format(localizer.text("Progress", "%ld a second"), {rounded(rate)})
                      : format(localizer.text("Progress", "%ld a minute"), {rounded(rate * kMinute)});
  if (done_ >= total_) return text;

  constexpr double kLongestInSeconds = 100.0;
  const double left = static_cast<double>(total_ - done_) / rate;
  text += ", ";
  text += left < kLongestInSeconds
              ? format(localizer.text("Progress", "%ld s left"), {rounded(left)})
              : format(localizer.text("Progress", "%ld min left"), {rounded(left / kMinute)});
  return text;
}

std::string Progress::line(const Localizer& localizer) const {
  constexpr std::int64_t kWidth = 30;
  std::string line = "\r";
  if (total_ > 0) {
    const auto filled =
        static_cast<std::size_t>(std::clamp<std::int64_t>(kWidth * done_ / total_, 0, kWidth));
    line += '[' + std::string(filled, '#') + std::string(kWidth - filled, ' ') + "] ";
  }
  return line + text(localizer) + "\033[K";
}

bool Progress::isDue() {
  constexpr double kInterval = 0.1;
  if (wasDrawn_ && now_ < nextDue_) return false;
  wasDrawn_ = true;
  nextDue_ = now_ + kInterval;
  return true;
}

}  // namespace nascor::foundation
