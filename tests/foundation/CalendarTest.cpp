// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Calendar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>

#include "support/FixedOffsetCalendar.h"
#include "support/RuleCalendar.h"
#include "support/Zones.h"

namespace nascor::foundation {
namespace {

using tests::FixedOffsetCalendar;
using tests::RuleCalendar;

constexpr double kHour = 3600.0;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t kFirstDay = -730485;  // 0001-01-01
constexpr std::int64_t kLastDay = 2921573;   // 9999-12-31

bool isLeap(std::int64_t year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int daysInMonth(std::int64_t year, int month) {
  if (month == 2) return isLeap(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// Days without a zone

struct DayCase {
  CivilDay day;
  std::int64_t days;
};

TEST(CivilDays, countFromTheBeginningOf2001) {
  for (const DayCase& row : {DayCase{{1, 1, 1}, kFirstDay},
                             {{4, 2, 29}, -729331},
                             {{1582, 10, 15}, -152750},
                             {{1900, 2, 28}, -36832},
                             {{1900, 3, 1}, -36831},
                             {{1950, 1, 1}, -18628},
                             {{1970, 1, 1}, -11323},
                             {{2000, 2, 29}, -307},
                             {{2000, 12, 31}, -1},
                             {{2001, 1, 1}, 0},
                             {{2024, 2, 29}, 8459},
                             {{2027, 4, 10}, 9595},
                             {{2049, 12, 31}, 17896},
                             {{2100, 3, 1}, 36218},
                             {{9999, 12, 31}, kLastDay}}) {
    EXPECT_EQ(daysSince2001(row.day), row.days) << row.day.year;
    EXPECT_EQ(civilDayFromDaysSince2001(row.days), row.day) << row.day.year;
  }
}

TEST(CivilDays, followEachOtherThroughAllYears) {
  std::int64_t days = kFirstDay;
  for (std::int64_t year = 1; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const int last = daysInMonth(year, month);
      for (const int day : {1, 28, last}) {
        const CivilDay civil{year, month, day};
        ASSERT_TRUE(isValid(civil)) << year << ' ' << month;
        ASSERT_EQ(daysSince2001(civil), days + day - 1) << year << ' ' << month;
        ASSERT_EQ(civilDayFromDaysSince2001(days + day - 1), civil) << year << ' ' << month;
      }
      ASSERT_FALSE(isValid({year, month, last + 1})) << year << ' ' << month;
      days += last;
    }
  }
  EXPECT_EQ(days, kLastDay + 1);
}

TEST(CivilDays, endWithTheYears1And9999) {
  EXPECT_EQ(civilDayFromDaysSince2001(kFirstDay - 1), std::nullopt);
  EXPECT_EQ(civilDayFromDaysSince2001(kLastDay + 1), std::nullopt);
  EXPECT_EQ(civilDayFromDaysSince2001(std::numeric_limits<std::int64_t>::min()), std::nullopt);
  EXPECT_EQ(civilDayFromDaysSince2001(std::numeric_limits<std::int64_t>::max()), std::nullopt);
}

TEST(CivilDays, areValidInTheCalendarAlone) {
  for (const CivilDay& day :
       {CivilDay{0, 1, 1}, CivilDay{10000, 1, 1}, CivilDay{-1, 1, 1}, CivilDay{2026, 0, 1},
        CivilDay{2026, 13, 1}, CivilDay{2026, 1, 0}, CivilDay{2026, 1, 32}, CivilDay{2026, 4, 31},
        CivilDay{2026, 2, 29}, CivilDay{2026, -1, 1}, CivilDay{2026, 1, -1},
        // These would wrap into a day that exists, were they narrowed first.
        CivilDay{65536 + 2026, 1, 1}, CivilDay{2026, 256 + 1, 1}, CivilDay{2026, 1, 256 + 1},
        CivilDay{(std::int64_t{1} << 32) + 2026, 1, 1}}) {
    EXPECT_FALSE(isValid(day)) << day.year << ' ' << day.month << ' ' << day.day;
  }
}

TEST(CivilDays, areOrderedAsInTheCalendar) {
  EXPECT_LT((CivilDay{2025, 12, 31}), (CivilDay{2026, 1, 1}));
  EXPECT_LT((CivilDay{2026, 1, 31}), (CivilDay{2026, 2, 1}));
  EXPECT_LT((CivilDay{2026, 2, 1}), (CivilDay{2026, 2, 2}));
}

// Moving the wall clock. The moments were computed from public zone files by another program.

struct AddingCase {
  const char* name;
  tests::Zone (*zone)();
  double date;
  double seconds;
  double expected;
};

class WallClockAdding : public testing::TestWithParam<AddingCase> {};

TEST_P(WallClockAdding, shiftsWhatTheClockShows) {
  const AddingCase& row = GetParam();
  const tests::Zone zone = row.zone();
  EXPECT_EQ(dateByAddingWallClockSeconds({row.date}, row.seconds, zone.calendar).secondsSince2001,
            row.expected);
}

constexpr double k280Days = 280 * 86400.0;

INSTANTIATE_TEST_SUITE_P(
    inZones, WallClockAdding,
    testing::Values(AddingCase{"winterToSummer", tests::newYork, 757400400, k280Days, 781588800},
                    AddingCase{"summerBackToWinter", tests::newYork, 781588800, -k280Days, 757400400},
                    AddingCase{"summerToSummer", tests::newYork, 739166400, k280Days, 763358400},
                    AddingCase{"intoTheGap", tests::newYork, 763111800, 86400, 763196400},
                    AddingCase{"backIntoTheGap", tests::newYork, 763281000, -86400, 763196400},
                    AddingCase{"summerTimeThatComesTwice", tests::newYork, 783667800, 86400, 783754200},
                    AddingCase{"winterTimeThatComesTwice", tests::newYork, 783844200, -86400, 783757800},
                    AddingCase{"parisWinterToSummer", tests::paris, 758156400, k280Days, 782344800},
                    AddingCase{"southernSummerToSummer", tests::sydney, 760021200, k280Days, 784213200},
                    AddingCase{"southernWinterToSummer", tests::sydney, 767714400, k280Days, 791902800},
                    AddingCase{"halfAnHour", tests::lordHowe, 767712600, k280Days, 791902800},
                    AddingCase{"intoAGapOfHalfAnHour", tests::lordHowe, 781198800, 86400, 781284600},
                    AddingCase{"intoADayWithoutMidnight", tests::saoPaulo, 562906800, 86400, 562993200},
                    AddingCase{"farIntoADayWithoutMidnight", tests::saoPaulo, 538797600, k280Days, 562993200},
                    AddingCase{"overTheDateLine", tests::apia, 322826400, k280Days, 346932000},
                    AddingCase{"intoADayThatNeverWas", tests::apia, 346845600, 86400, 346932000},
                    AddingCase{"overADayThatNeverWas", tests::apia, 346845600, 2 * 86400.0, 346932000},
                    AddingCase{"backIntoADayThatNeverWas", tests::apia, 346932000, -86400, 346932000},
                    AddingCase{"nothing", tests::newYork, 763196399.5, 0.0, 763196399.5}),
    [](const auto& row) { return std::string(row.param.name); });

class EveryDay : public testing::TestWithParam<tests::Zone> {};

TEST_P(EveryDay, plus280DaysIsTheBeginningOfThe280thDayAfter) {
  const Calendar& calendar = GetParam().calendar;
  constexpr std::int64_t kFirst = 5113;  // 2015-01-01
  constexpr std::int64_t kDays = 4018;   // to 2025-12-31
  int daysWithoutMidnight = 0;
  for (std::int64_t days = kFirst; days < kFirst + kDays; ++days) {
    const Date start = startOfDay(*civilDayFromDaysSince2001(days), calendar);
    const Date due = dateByAddingWallClockSeconds(start, k280Days, calendar);
    const auto wall = [&](Date date) { return date.secondsSince2001 + calendar.offsetFromUtc(date); };
    const double startOfWall = static_cast<double>(days) * 86400.0;

    ASSERT_EQ(localDay(start, calendar), civilDayFromDaysSince2001(days));
    ASSERT_EQ(localDay(due, calendar), civilDayFromDaysSince2001(days + 280));
    if (wall(start) != startOfWall || wall(due) != startOfWall + k280Days) {
      // Only a day without midnight, at either end, begins later: at 01:00 here.
      ++daysWithoutMidnight;
      ASSERT_EQ(std::max(wall(start) - startOfWall, wall(due) - startOfWall - k280Days), kHour);
    }
  }
  // Sao Paulo: 2015-10-18, 2016-10-16, 2017-10-15 and 2018-11-04, each once as the start and once as the end.
  EXPECT_EQ(daysWithoutMidnight, GetParam().name == "America/Sao_Paulo" ? 8 : 0);
}

TEST_P(EveryDay, hasEveryHalfHourOfTheWallClockOrTheFirstMomentAfterIt) {
  const Calendar& calendar = GetParam().calendar;
  for (std::int64_t days = 3652; days < 5113; ++days) {  // 2011 to 2014
    const CivilDay day = *civilDayFromDaysSince2001(days);
    for (double seconds = 0.0; seconds < 86400.0; seconds += 1800.0) {
      const double wall = static_cast<double>(days) * 86400.0 + seconds;
      const Date date = dateFromWallClock(day, seconds, calendar);
      const double shown = date.secondsSince2001 + calendar.offsetFromUtc(date);
      if (shown == wall) {
        // The first time that it is shown: an hour or half an hour earlier it was not.
        for (const double earlier : {kHour, kHour / 2}) {
          const Date before{date.secondsSince2001 - earlier};
          ASSERT_NE(before.secondsSince2001 + calendar.offsetFromUtc(before), wall);
        }
      } else {
        const Date before{date.secondsSince2001 - 1.0};
        ASSERT_GT(shown, wall);
        ASSERT_LT(before.secondsSince2001 + calendar.offsetFromUtc(before), wall);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(ofAZone, EveryDay, testing::ValuesIn(tests::allZones()), [](const auto& row) {
  std::string name = row.param.name;
  for (char& character : name) {
    if (character == '/') character = '_';
  }
  return name;
});

RC_GTEST_PROP(WallClockAdding, isThePlainSumToTheLastBitWhereTheOffsetStays, (double date, double seconds)) {
  const FixedOffsetCalendar calendar(-5.0 * kHour);
  RC_ASSERT(dateByAddingWallClockSeconds({date}, seconds, calendar).secondsSince2001 == date + seconds);
}

RC_GTEST_PROP(WallClockAdding, movesTheClockBySecondsUnlessThatTimeIsLeftOut, ()) {
  const tests::Zone zone = tests::newYork();
  // 2011 to 2027 in quarters of an hour; whole seconds are exact.
  const auto date = Date{900.0 * *rc::gen::inRange(3652 * 96, 9800 * 96)};
  const double seconds = 900.0 * *rc::gen::inRange(-300 * 96, 300 * 96);
  const Date result = dateByAddingWallClockSeconds(date, seconds, zone.calendar);
  const auto wall = [&](Date at) { return at.secondsSince2001 + zone.calendar.offsetFromUtc(at); };
  const double skipped = wall(result) - wall(date) - seconds;
  RC_ASSERT((skipped == 0.0 || (skipped > 0.0 && skipped <= kHour)));
  if (skipped > 0.0) RC_ASSERT(zone.calendar.offsetFromUtc({result.secondsSince2001 - 1.0}) == -5.0 * kHour);
}

TEST(WallClockAddingTo, keepsFractionsOfASecond) {
  const tests::Zone zone = tests::newYork();
  EXPECT_EQ(dateByAddingWallClockSeconds({757400400.25}, k280Days, zone.calendar).secondsSince2001,
            781588800.25);
  EXPECT_EQ(dateByAddingWallClockSeconds({763111800.25}, 86400, zone.calendar).secondsSince2001, 763196400.0);
}

TEST(WallClockAddingTo, whatIsNoDateStaysNoDate) {
  const tests::Zone zone = tests::newYork();
  const auto added = [&](double date, double seconds) {
    return dateByAddingWallClockSeconds({date}, seconds, zone.calendar).secondsSince2001;
  };
  EXPECT_TRUE(std::isnan(added(std::nan(""), 86400)));
  EXPECT_TRUE(std::isnan(added(0.0, std::nan(""))));
  EXPECT_TRUE(std::isnan(added(kInfinity, -kInfinity)));
  EXPECT_EQ(added(kInfinity, 86400), kInfinity);
  EXPECT_EQ(added(-kInfinity, 86400), -kInfinity);
  EXPECT_EQ(added(0.0, kInfinity), kInfinity);
  EXPECT_EQ(added(1.7e308, 1.7e308), kInfinity);
}

TEST(WallClockAddingTo, farAwayDatesEnds) {
  // A zone whose rules end: the offset falls to 0 at both ends, as with the operating system's.
  const RuleCalendar calendar(0.0, {{-1e17, -5.0 * kHour}, {1e17, 0.0}});
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, 1e18, calendar).secondsSince2001, 1e18 - 5.0 * kHour);
  EXPECT_EQ(dateByAddingWallClockSeconds({1e300}, -1e300, calendar).secondsSince2001, 5.0 * kHour);
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, -1e300, calendar).secondsSince2001, -1e300);
  EXPECT_TRUE(std::isfinite(dateByAddingWallClockSeconds({0.0}, 1e17, calendar).secondsSince2001));
  EXPECT_TRUE(std::isfinite(dateByAddingWallClockSeconds({0.0}, -1e17, calendar).secondsSince2001));
}

TEST(WallClockAddingTo, fitsTheOffsetAfterASecondChangeToo) {
  // The plain sum falls before the second change and the moment sought after it.
  const RuleCalendar calendar(0.0, {{1000.0, -kHour}, {10500.0, -kHour / 2}});
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, 10000.0, calendar).secondsSince2001, 11800.0);
}

TEST(WallClockAddingTo, findsTheEndOfAGapToTheLastBit) {
  const RuleCalendar calendar(0.0, {{1000000.125, kHour}});
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, 1000001.0, calendar).secondsSince2001, 1000000.125);
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, 1000000.125 + kHour, calendar).secondsSince2001, 1000000.125);
  EXPECT_EQ(dateByAddingWallClockSeconds({0.0}, 1000000.0, calendar).secondsSince2001, 1000000.0);
}

// Days of a zone

TEST(StartOfDay, isTheFirstOfTwoMidnights) {
  // The clock goes back from 01:00 to 00:00 on 1 November 2026, and the day has two midnights.
  const CivilDay day{2026, 11, 1};
  const double midnight = static_cast<double>(daysSince2001(day)) * 86400.0;
  const RuleCalendar calendar(-4.0 * kHour, {{midnight + 5.0 * kHour, -5.0 * kHour}});
  EXPECT_EQ(startOfDay(day, calendar).secondsSince2001, midnight + 4.0 * kHour);
}

TEST(StartOfDay, isMidnightWhereTheDayBeforeGetsAnHourMore) {
  // The clock goes back from midnight to 23:00: that midnight is never shown, the one an hour later is.
  const CivilDay day{2026, 2, 22};
  const double midnight = static_cast<double>(daysSince2001(day)) * 86400.0;
  const RuleCalendar calendar(-2.0 * kHour, {{midnight + 2.0 * kHour, -3.0 * kHour}});
  EXPECT_EQ(startOfDay(day, calendar).secondsSince2001, midnight + 3.0 * kHour);
}

TEST(StartOfDay, ofADayWithoutMidnightIsTheEndOfTheGap) {
  EXPECT_EQ(startOfDay({2018, 11, 4}, tests::saoPaulo().calendar).secondsSince2001, 562993200.0);
  EXPECT_EQ(startOfDay({2011, 12, 30}, tests::apia().calendar).secondsSince2001, 346932000.0);
  EXPECT_EQ(startOfDay({2011, 12, 31}, tests::apia().calendar).secondsSince2001, 346932000.0);
}

TEST(StartOfDay, reachesBothEndsOfTheCalendar) {
  for (const double offset : {-12.0 * kHour, 0.0, 14.0 * kHour}) {
    const FixedOffsetCalendar calendar(offset);
    EXPECT_EQ(startOfDay({1, 1, 1}, calendar).secondsSince2001,
              static_cast<double>(kFirstDay) * 86400.0 - offset);
    EXPECT_EQ(startOfDay({9999, 12, 31}, calendar).secondsSince2001,
              static_cast<double>(kLastDay) * 86400.0 - offset);
  }
}

TEST(DateFromWallClock, takesTheFirstOfTwoAndTheEndOfAGap) {
  const tests::Zone zone = tests::newYork();
  EXPECT_EQ(dateFromWallClock({2025, 11, 2}, 1.5 * kHour, zone.calendar).secondsSince2001, 783754200.0);
  EXPECT_EQ(dateFromWallClock({2025, 3, 9}, 2.5 * kHour, zone.calendar).secondsSince2001, 763196400.0);
  EXPECT_EQ(dateFromWallClock({2025, 3, 9}, 2.0 * kHour, zone.calendar).secondsSince2001, 763196400.0);
  EXPECT_EQ(dateFromWallClock({2025, 3, 9}, 3.0 * kHour, zone.calendar).secondsSince2001, 763196400.0);
  EXPECT_EQ(dateFromWallClock({2025, 3, 9}, 2.0 * kHour - 0.25, zone.calendar).secondsSince2001,
            763196399.75);
}

TEST(DateFromWallClock, knowsAnOffsetThatLastsForADayAlone) {
  const CivilDay day{2026, 6, 1};
  const double midnight = static_cast<double>(daysSince2001(day)) * 86400.0;
  const RuleCalendar calendar(0.0, {{midnight - 12.0 * kHour, kHour}, {midnight + 12.0 * kHour, 0.0}});
  EXPECT_EQ(startOfDay(day, calendar).secondsSince2001, midnight - kHour);
}

TEST(LocalDay, changesAtLocalMidnight) {
  const FixedOffsetCalendar calendar(-5.0 * kHour);
  const double midnight = 9595.0 * 86400.0 + 5.0 * kHour;  // 2027-04-10
  EXPECT_EQ(localDay({midnight}, calendar), (CivilDay{2027, 4, 10}));
  EXPECT_EQ(localDay({std::nextafter(midnight, 0.0)}, calendar), (CivilDay{2027, 4, 9}));
  EXPECT_EQ(localDay({midnight + 86399.999}, calendar), (CivilDay{2027, 4, 10}));
}

TEST(LocalDay, doesNotRoundTheLastMomentOfADayIntoTheNext) {
  EXPECT_EQ(localDay({-1e-12}, FixedOffsetCalendar(0.0)), (CivilDay{2000, 12, 31}));
  // Added as doubles, the last moment before 10:00 UTC and 14 hours make exactly 24 hours.
  const double last = std::nextafter(10.0 * kHour, 0.0);
  ASSERT_EQ(last + 14.0 * kHour, 24.0 * kHour);
  EXPECT_EQ(localDay({last}, FixedOffsetCalendar(14.0 * kHour)), (CivilDay{2001, 1, 1}));
}

TEST(LocalDay, isMissingOutsideTheCalendar) {
  const FixedOffsetCalendar calendar(0.0);
  EXPECT_EQ(localDay({static_cast<double>(kFirstDay) * 86400.0}, calendar), (CivilDay{1, 1, 1}));
  EXPECT_EQ(localDay({static_cast<double>(kFirstDay) * 86400.0 - 0.5}, calendar), std::nullopt);
  EXPECT_EQ(localDay({static_cast<double>(kLastDay) * 86400.0 + 86399.5}, calendar),
            (CivilDay{9999, 12, 31}));
  EXPECT_EQ(localDay({static_cast<double>(kLastDay + 1) * 86400.0}, calendar), std::nullopt);
  for (const double seconds : {std::nan(""), kInfinity, -kInfinity, 1e300, -1e300, 1e18, -1e18}) {
    EXPECT_EQ(localDay({seconds}, calendar), std::nullopt) << seconds;
  }
}

}  // namespace
}  // namespace nascor::foundation
