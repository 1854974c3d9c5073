// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/PosixCalendar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "foundation/Calendar.h"
#include "support/ScopedTimeZone.h"
#include "support/Zones.h"

namespace nascor::posix {
namespace {

using foundation::Date;

class PosixCalendarIn : public testing::TestWithParam<tests::Zone> {};

TEST_P(PosixCalendarIn, knowsTheOffsetAtEveryHalfHourOf2010To2028) {
  const tests::ScopedTimeZone zone(GetParam().name);
  const PosixCalendar calendar;
  constexpr double kFirst = 3287.0 * 86400.0;  // 2010-01-01
  constexpr double kLast = 10226.0 * 86400.0;  // 2028-12-31
  int wrong = 0;
  for (double seconds = kFirst; seconds < kLast; seconds += 1800.0) {
    const Date date{seconds};
    if (calendar.offsetFromUtc(date) != GetParam().calendar.offsetFromUtc(date)) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

std::string zoneName(const testing::TestParamInfo<tests::Zone>& zone) {
  std::string name = zone.param.name;
  for (char& character : name) {
    if (character == '/') character = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(aZone, PosixCalendarIn, testing::ValuesIn(tests::allZones()), zoneName);

TEST(PosixCalendar, changesTheOffsetAtTheVeryMoment) {
  const tests::ScopedTimeZone zone("America/New_York");
  const PosixCalendar calendar;
  const Date change{763196400.0};  // 2025-03-09 07:00 UTC
  EXPECT_EQ(calendar.offsetFromUtc(change), -4.0 * 3600.0);
  EXPECT_EQ(calendar.offsetFromUtc({change.secondsSince2001 + 0.5}), -4.0 * 3600.0);
  EXPECT_EQ(calendar.offsetFromUtc({change.secondsSince2001 - 0.001}), -5.0 * 3600.0);
}

TEST(PosixCalendar, cutsFractionsTowardThePastBefore1970Too) {
  const tests::ScopedTimeZone zone("America/New_York");
  const PosixCalendar calendar;
  // Daylight saving of 1969 ended on 26 October at 06:00 UTC.
  const Date change{-984074400.0};
  EXPECT_EQ(calendar.offsetFromUtc(change), -5.0 * 3600.0);
  EXPECT_EQ(calendar.offsetFromUtc({change.secondsSince2001 - 0.25}), -4.0 * 3600.0);
}

TEST(PosixCalendar, hasNoOffsetForInstantsThatAreNotInTime) {
  const tests::ScopedTimeZone zone("Asia/Tokyo");
  const PosixCalendar calendar;
  ASSERT_EQ(calendar.offsetFromUtc({0.0}), 9.0 * 3600.0);
  for (const double beyond :
       {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), 1e17,
        -1e17, 6.75e16, 1e300, -1e300, std::numeric_limits<double>::max(), 9.3e18}) {
    EXPECT_EQ(calendar.offsetFromUtc({beyond}), 0.0) << beyond;
  }
}

TEST(PosixCalendar, readsTheZoneWhenItIsMade) {
  const tests::ScopedTimeZone first("Asia/Tokyo");
  ASSERT_EQ(PosixCalendar().offsetFromUtc({0.0}), 9.0 * 3600.0);
  ::setenv("TZ", "Asia/Kolkata", 1);
  EXPECT_EQ(PosixCalendar().offsetFromUtc({0.0}), 5.5 * 3600.0);
}

TEST(ATimeZone, isChosenByItsNameAlone) {
  const tests::ScopedTimeZone before("Asia/Tokyo");
  for (const char* unknown : {"", "Nowhere", "/etc/localtime", "../zoneinfo/UTC", "Europe"}) {
    EXPECT_FALSE(chooseTimeZone(unknown)) << unknown;
    EXPECT_STREQ(std::getenv("TZ"), "Asia/Tokyo") << unknown;
  }
  EXPECT_FALSE(chooseTimeZone(std::string("UTC\0x", 5)));
  for (const char* known : {"UTC", "Asia/Kolkata"}) {
    EXPECT_TRUE(chooseTimeZone(known));
    EXPECT_STREQ(std::getenv("TZ"), known);
  }
  EXPECT_EQ(PosixCalendar().offsetFromUtc({0.0}), 5.5 * 3600.0);
}

TEST(PosixCalendar, adds280DaysToEveryDayInTheZoneOfTheTestRun) {
  const PosixCalendar calendar;
  for (std::int64_t day = 5113; day < 5113 + 4018; ++day) {  // 2015 to 2025
    const auto civil = foundation::civilDayFromDaysSince2001(day);
    ASSERT_TRUE(civil.has_value());
    const Date midnight = foundation::startOfDay(*civil, calendar);
    const Date later = foundation::dateByAddingWallClockSeconds(midnight, 280 * 86400.0, calendar);
    EXPECT_EQ(foundation::localDay(later, calendar), foundation::civilDayFromDaysSince2001(day + 280));
  }
}

}  // namespace
}  // namespace nascor::posix
