// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/SystemClock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace nascor::posix {
namespace {

TEST(SystemClock, countsFromTheBeginningOf2001) {
  constexpr double kEpochTo2001 = 978307200.0;
  const auto before = static_cast<double>(std::time(nullptr));
  const double now = SystemClock().now().secondsSince2001 + kEpochTo2001;
  const auto after = static_cast<double>(std::time(nullptr));

  // time() may lag behind the fine clock by one of its ticks.
  EXPECT_GE(now, before);
  EXPECT_LT(now, after + 2.0);
}

TEST(SystemClock, tellsFractionsOfASecond) {
  const SystemClock clock;
  const double start = clock.now().secondsSince2001;
  double later = start;
  for (int i = 0; i < 10'000'000 && later == start; ++i) later = clock.now().secondsSince2001;

  EXPECT_GT(later, start);
  EXPECT_LT(later - start, 0.5);
}

}  // namespace
}  // namespace nascor::posix
