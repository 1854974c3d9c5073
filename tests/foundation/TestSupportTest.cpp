// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <variant>
#include <vector>

#include "support/FaultyFileStore.h"
#include "support/FixedClock.h"
#include "support/RuleCalendar.h"

namespace nascor::tests {
namespace {

TEST(FixedClock, moveOnlyWhenItIsMoved) {
  FixedClock clock({100.0});
  EXPECT_EQ(clock.now(), foundation::Date{100.0});
  clock.advance(-0.5);
  EXPECT_EQ(clock.now(), foundation::Date{99.5});
  clock.set({7.0});
  EXPECT_EQ(clock.now(), foundation::Date{7.0});
}

TEST(FaultyFileStore, failsTheChosenCallAlone) {
  const std::vector<std::byte> bytes{std::byte{1}, std::byte{2}};
  FaultyFileStore disk;
  disk.failWriteAt = 1;
  disk.failReadAt = 0;
  EXPECT_EQ(disk.replaceContents("a", bytes), std::nullopt);
  EXPECT_TRUE(disk.replaceContents("a", {}).has_value());
  EXPECT_EQ(disk.files.at("a"), bytes);
  EXPECT_EQ(disk.writes(), 2);

  EXPECT_TRUE(std::holds_alternative<foundation::FileError>(disk.contents("a")));
  EXPECT_EQ(std::get<0>(disk.contents("a")), bytes);
  EXPECT_TRUE(std::holds_alternative<foundation::FileError>(disk.contents("b")));
  EXPECT_EQ(disk.reads(), 3);
}

TEST(RuleCalendar, changesAtTheVeryMoment) {
  const RuleCalendar calendar(1.0, {{100.0, 2.0}, {200.0, 3.0}});
  EXPECT_EQ(calendar.offsetFromUtc({99.999}), 1.0);
  EXPECT_EQ(calendar.offsetFromUtc({100.0}), 2.0);
  EXPECT_EQ(calendar.offsetFromUtc({200.0}), 3.0);
}

}  // namespace
}  // namespace nascor::tests
