// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/IsoDate.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "support/FixedOffsetCalendar.h"
#include "support/Zones.h"

namespace nascor::foundation {
namespace {

using tests::FixedOffsetCalendar;

constexpr double kHour = 3600.0;
constexpr double kDay = 829008000.0;  // 2027-04-10 00:00 UTC
const FixedOffsetCalendar kTwoHoursAhead(2.0 * kHour);

struct IsoCase {
  const char* text;
  double seconds;
};

TEST(DateFromIsoText, readsDaysAndWallClockTimesByTheZoneAndOffsetsWithoutIt) {
  constexpr double kLocal = kDay - 2.0 * kHour;
  for (const IsoCase& row : {IsoCase{"2027-04-10", kLocal},
                             {"2027-04-10T00:00", kLocal},
                             {"2027-04-10T09:30", kLocal + 9.5 * kHour},
                             {"2027-04-10 09:30", kLocal + 9.5 * kHour},
                             {"2027-04-10T09:30:15", kLocal + 34215.0},
                             {"2027-04-10T09:30:15.25", kLocal + 34215.25},
                             {"2027-04-10T23:59:59.5", kLocal + 86399.5},
                             {"2027-04-10T09:30Z", kDay + 9.5 * kHour},
                             {"2027-04-10T09:30:15.25Z", kDay + 34215.25},
                             {"2027-04-10T00:00:00Z", kDay},
                             {"2027-04-10T09:30:15+02:00", 829035015.0},
                             {"2027-04-10T09:30:15+0200", 829035015.0},
                             {"2027-04-10T09:30:15+02", 829035015.0},
                             {"2027-04-10T09:30-05:30", kDay + 15.0 * kHour},
                             {"2027-04-10 09:30+00:00", kDay + 9.5 * kHour},
                             {"2027-04-10T09:30-00:00", kDay + 9.5 * kHour},
                             {"2001-01-01T00:00:00Z", 0.0},
                             {"2000-12-31T23:59:59.75Z", -0.25},
                             {"0001-01-01T00:00Z", -730485 * 86400.0},
                             {"9999-12-31T00:00Z", 2921573 * 86400.0}}) {
    const auto date = dateFromIsoText(row.text, kTwoHoursAhead);
    ASSERT_TRUE(date.has_value()) << row.text;
    EXPECT_EQ(date->secondsSince2001, row.seconds) << row.text;
  }
}

TEST(DateFromIsoText, refusesEverythingElse) {
  for (const char* text : {"",
                           " ",
                           "2027",
                           "2027-04",
                           "20270410",
                           "2027-4-10",
                           "2027-04-1",
                           "27-04-10",
                           "02027-04-10",
                           "2027/04/10",
                           "2027-04-10T",
                           "2027-04-10 ",
                           " 2027-04-10",
                           "2027-04-10T9:30",
                           "2027-04-10T09",
                           "2027-04-10T09:3",
                           "2027-04-10T0930",
                           "2027-04-10T09:30:",
                           "2027-04-10T09:30:5",
                           "2027-04-10T09:30:15.",
                           "2027-04-10T09:30:15,5",
                           "2027-04-10T09:30:15.2e1",
                           "2027-04-10T09:30.5",
                           "2027-04-10T24:00",
                           "2027-04-10T09:60",
                           "2027-04-10T09:30:60",
                           "2027-04-10t09:30",
                           "2027-04-10T09:30z",
                           "2027-04-10Z",
                           "2027-04-10+02:00",
                           "2027-04-10T09:30+2",
                           "2027-04-10T09:30+02:",
                           "2027-04-10T09:30+02:0",
                           "2027-04-10T09:30+020",
                           "2027-04-10T09:30+24:00",
                           "2027-04-10T09:30+02:60",
                           "2027-04-10T09:30 Z",
                           "2027-04-10T09:30ZZ",
                           "2027-04-10T09:30Z+02",
                           "2027-04-10T-9:30",
                           "2027-04-10T09:30:-5",
                           "2027-04-10T+9:30",
                           "2027-02-29",
                           "2027-04-31",
                           "2027-13-01",
                           "2027-00-10",
                           "2027-04-00",
                           "0000-01-01",
                           "-001-01-01",
                           "10000-01-01",
                           "2027-04-10x",
                           "\u06F2\u06F0\u06F2\u06F7-04-10",
                           "nan",
                           "null",
                           "tomorrow"}) {
    EXPECT_EQ(dateFromIsoText(text, kTwoHoursAhead), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(dateFromIsoText(std::string_view("2027-04-10\0", 11), kTwoHoursAhead), std::nullopt);
  EXPECT_TRUE(
      dateFromIsoText(std::string_view("2027-04-10T09:30").substr(0, 10), kTwoHoursAhead).has_value());
}

TEST(DateFromIsoText, findsTheFirstMomentOfADayWithoutMidnight) {
  const tests::Zone zone = tests::saoPaulo();
  EXPECT_EQ(dateFromIsoText("2018-11-04", zone.calendar), Date{562993200.0});
  EXPECT_EQ(dateFromIsoText("2018-11-04T00:30", zone.calendar), Date{562993200.0});
  EXPECT_EQ(dateFromIsoText("2018-11-04T01:00", zone.calendar), Date{562993200.0});
  EXPECT_EQ(dateFromIsoText("2018-11-04T03:00Z", zone.calendar), Date{562993200.0});
}

TEST(DateFromIsoText, readsAnyNumberOfDecimals) {
  const FixedOffsetCalendar utc;
  EXPECT_EQ(dateFromIsoText("2001-01-01T00:00:00.123456789", utc), Date{0.123456789});
  EXPECT_EQ(dateFromIsoText("2001-01-01T00:00:01." + std::string(500, '0') + "1", utc), Date{1.0});
}

TEST(IsoTexts, showTheLocalWallClock) {
  EXPECT_EQ(isoDateTimeText({kDay}, kTwoHoursAhead), "2027-04-10T02:00:00");
  EXPECT_EQ(isoDayText({kDay}, kTwoHoursAhead), "2027-04-10");
  EXPECT_EQ(isoDateTimeText({kDay - 2.0 * kHour}, kTwoHoursAhead), "2027-04-10T00:00:00");
  EXPECT_EQ(isoDateTimeText({kDay + 22.0 * kHour - 1.0}, kTwoHoursAhead), "2027-04-10T23:59:59");
  EXPECT_EQ(isoDayText({kDay + 22.0 * kHour}, kTwoHoursAhead), "2027-04-11");
  EXPECT_EQ(isoDateTimeText({783754200.0}, tests::newYork().calendar), "2025-11-02T01:30:00");
  EXPECT_EQ(isoDateTimeText({763196400.0}, tests::newYork().calendar), "2025-03-09T03:00:00");
}

TEST(IsoTexts, cutFractionsTowardThePast) {
  const FixedOffsetCalendar utc;
  EXPECT_EQ(isoDateTimeText({0.999}, utc), "2001-01-01T00:00:00");
  EXPECT_EQ(isoDateTimeText({-0.001}, utc), "2000-12-31T23:59:59");
  EXPECT_EQ(isoDayText({-1e-12}, utc), "2000-12-31");
  EXPECT_EQ(isoDateTimeText({-1e-12}, utc), "2000-12-31T23:59:59");
}

TEST(IsoTexts, areEmptyForADateThatHasNoText) {
  const FixedOffsetCalendar utc;
  EXPECT_EQ(isoDateTimeText({-730485 * 86400.0}, utc), "0001-01-01T00:00:00");
  EXPECT_EQ(isoDateTimeText({2921574 * 86400.0 - 1.0}, utc), "9999-12-31T23:59:59");
  for (const double seconds :
       {-730485 * 86400.0 - 1.0, 2921574 * 86400.0, 1e18, -1e18, 1e300, -1e300, std::nan(""),
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(isoDateTimeText({seconds}, utc), "") << seconds;
    EXPECT_EQ(isoDayText({seconds}, utc), "") << seconds;
  }
}

RC_GTEST_PROP(IsoTexts, readBackToTheSameSecond, ()) {
  const FixedOffsetCalendar calendar(900.0 * *rc::gen::inRange(-48, 57));
  const auto seconds = *rc::gen::inRange<std::int64_t>(-730484LL * 86400, 2921573LL * 86400);
  const Date date{static_cast<double>(seconds)};
  const std::string text = isoDateTimeText(date, calendar);
  RC_ASSERT(text.size() == 19U);
  RC_ASSERT(dateFromIsoText(text, calendar) == date);
  RC_ASSERT(text.starts_with(isoDayText(date, calendar)));
  RC_ASSERT(dateFromIsoText(text + "Z", calendar) ==
            Date{date.secondsSince2001 + calendar.offsetFromUtc(date)});
}

}  // namespace
}  // namespace nascor::foundation
