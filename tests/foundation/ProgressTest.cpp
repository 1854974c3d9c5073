// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Progress.h"

#include <gtest/gtest.h>

namespace nascor::foundation {
namespace {

struct ProgressCase {
  const char* name;
  std::int64_t total;
  std::int64_t done;
  double seconds;
  const char* text;
};
class AProgress : public testing::TestWithParam<ProgressCase> {};

TEST_P(AProgress, saysWhatIsDoneHowFastAndForHowLong) {
  constexpr double kBegin = 1000.0;
  Progress progress(GetParam().total, kBegin);
  progress.set(GetParam().done, kBegin + GetParam().seconds);
  EXPECT_EQ(progress.text(EnglishLocalizer()), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    table, AProgress,
    testing::Values(ProgressCase{"beginning", 300, 0, 0.0, "0 of 300"},
                    ProgressCase{"noTimeYet", 300, 1, 0.0, "1 of 300"},
                    ProgressCase{"nothingYet", 300, 0, 5.0, "0 of 300"},
                    ProgressCase{"underWay", 300, 12, 3.0, "12 of 300, 4 a second, 72 s left"},
                    ProgressCase{"oneASecond", 99, 2, 2.0, "2 of 99, 1 a second, 97 s left"},
                    ProgressCase{"slow", 10, 1, 30.0, "1 of 10, 2 a minute, 5 min left"},
                    ProgressCase{"long", 1000, 10, 10.0, "10 of 1000, 1 a second, 17 min left"},
                    ProgressCase{"almost", 1000, 999, 9.99, "999 of 1000, 100 a second, 1 s left"},
                    ProgressCase{"end", 8, 8, 4.0, "8 of 8, 2 a second"},
                    ProgressCase{"withoutTotal", 0, 12, 3.0, "12, 4 a second"},
                    ProgressCase{"clockWentBack", 8, 2, -4.0, "2 of 8"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AProgressLine, writesOverItself) {
  Progress progress(4, 0.0);
  EXPECT_EQ(progress.line(EnglishLocalizer()), "\r[                              ] 0 of 4\033[K");
  progress.set(2, 1.0);
  EXPECT_EQ(progress.line(EnglishLocalizer()),
            "\r[###############               ] 2 of 4, 2 a second, 1 s left\033[K");
  progress.set(7, 2.0);  // more than was counted
  EXPECT_EQ(progress.line(EnglishLocalizer()), "\r[##############################] 7 of 4, 4 a second\033[K");
  Progress unknown(0, 0.0);
  unknown.set(3, 1.0);
  EXPECT_EQ(unknown.line(EnglishLocalizer()), "\r3, 3 a second\033[K");
}

TEST(AProgressLine, isDrawnTenTimesASecondAtMost) {
  Progress progress(100, 50.0);
  EXPECT_TRUE(progress.isDue());
  progress.set(1, 50.05);
  EXPECT_FALSE(progress.isDue());
  progress.set(2, 50.1);
  EXPECT_TRUE(progress.isDue());
  progress.set(3, 50.15);
  EXPECT_FALSE(progress.isDue());
}

TEST(AProgress, takesATotalThatIsKnownLater) {
  Progress progress(0, 0.0);
  progress.set(1, 14, 1.0);
  EXPECT_EQ(progress.text(EnglishLocalizer()), "1 of 14, 1 a second, 13 s left");
}

}  // namespace
}  // namespace nascor::foundation
