// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Dating.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "ExpectedValues.h"
#include "support/Bits.h"
#include "support/FixedOffsetCalendar.h"
#include "support/MarkedLocalizer.h"
#include "support/Zones.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using foundation::CivilDay;
using foundation::Date;
using tests::FixedOffsetCalendar;
using tests::isExactly;
using tests::Zone;

constexpr double kDay = 86400.0;
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

const foundation::EnglishLocalizer kEnglish;
const FixedOffsetCalendar kUtc;

std::string textOf(double gestation) { return gestationText(gestation, kEnglish); }

// The age at an examination.

TEST(MenstrualAge, isUnknownWithoutBothDates) {
  constexpr Date kSome{750000000.0};
  EXPECT_TRUE(isExactly(menstrualAge(std::nullopt, kSome), 0.0));
  EXPECT_TRUE(isExactly(menstrualAge(kSome, std::nullopt), 0.0));
  EXPECT_TRUE(isExactly(menstrualAge(std::nullopt, std::nullopt), 0.0));
}

TEST(MenstrualAge, counts280WholeDaysToTheEdd) {
  struct Case {
    const char* name;
    double secondsToEdd;
    double weeks;
    const char* text;
  };
  constexpr Case kCases[] = {
      {"on the EDD", 0.0, 40.0, "40w 0d"},
      {"a week before", 7 * kDay, 39.0, "39w 0d"},
      {"a day before", 1 * kDay, 39.857142857142854, "39w 6d"},
      {"280 days before", 280 * kDay, 0.0, "-"},
      {"281 days before", 281 * kDay, -0.14285714285714285, "0w -1d"},
      {"300 days before", 300 * kDay, -2.857142857142857, "-2w -6d"},
      {"a day after", -1 * kDay, 40.142857142857146, "40w 1d"},
      {"ten weeks after", -70 * kDay, 50.0, "50w 0d"},
      {"just less than half a day before", 43199.0, 40.0, "40w 0d"},
      {"half a day before counts as one", 43200.0, 39.857142857142854, "39w 6d"},
      {"half a day after counts as one", -43200.0, 40.142857142857146, "40w 1d"},
      {"the largest interval below half a day", 43199.999999999993, 40.0, "40w 0d"},
      {"one and a half", 1.5 * kDay, 39.714285714285715, "39w 5d"},
      {"two and a half", 2.5 * kDay, 39.57142857142857, "39w 4d"},
      {"minus two and a half", -2.5 * kDay, 40.42857142857143, "40w 3d"},
      {"280 days less the hour of daylight saving", 280 * kDay - 3600.0, 0.0, "-"},
      {"140 days more the hour of daylight saving", 140 * kDay + 3600.0, 20.0, "20w 0d"},
  };
  for (const Case& row : kCases) {
    for (const double examination : {0.0, 3600.0}) {
      const double age = menstrualAge(Date{examination}, Date{examination + row.secondsToEdd});
      EXPECT_EQ(age, row.weeks) << row.name;
      EXPECT_EQ(textOf(age), row.text) << row.name;
    }
  }
}

TEST(MenstrualAge, ofDatesThatNoCalendarHoldsIsStillANumber) {
  // An interval that is not a number counts as no days; one beyond 64 bits as the nearest limit.
  EXPECT_TRUE(isExactly(menstrualAge(Date{kNaN}, Date{0.0}), 40.0));
  EXPECT_TRUE(isExactly(menstrualAge(Date{kInfinity}, Date{kInfinity}), 40.0));
  EXPECT_TRUE(isExactly(menstrualAge(Date{0.0}, Date{kInfinity}), -1.3176245766935393e+18));
  EXPECT_TRUE(isExactly(menstrualAge(Date{kInfinity}, Date{0.0}), 1.3176245766935393e+18));
  EXPECT_TRUE(isExactly(menstrualAge(Date{-1e300}, Date{1e300}), -1.3176245766935393e+18));
}

// Its text.

TEST(GestationText, cutsWeeksAndDaysTowardZero) {
  struct Case {
    double weeks;
    const char* text;
  };
  constexpr Case kCases[] = {
      {0.0, "-"},
      {-0.0, "-"},
      {1e-300, "0w 0d"},
      {5e-324, "0w 0d"},
      {0.1428571428571428, "0w 0d"},
      {0.14285714285714285, "0w 1d"},
      {12.99, "12w 6d"},
      {20.5, "20w 3d"},
      {19.999999999999996, "19w 6d"},
      {39.99999999999999, "39w 6d"},
      {40.0, "40w 0d"},
      {41.142857142857146, "41w 1d"},
      {-0.1, "0w 0d"},
      {-0.5, "0w -3d"},
      {-1.0, "-1w 0d"},
      {-2.857142857142857, "-2w -6d"},
      {1e15, "1000000000000000w 0d"},
      {3.1705132793057296e16, "31705132793057300w 2d"},  // the weeks are those of the days, divided again
  };
  for (const Case& row : kCases) EXPECT_EQ(textOf(row.weeks), row.text) << tests::exactText(row.weeks);
}

TEST(GestationText, ofAWholeNumberOfDaysIsThatNumberButForSevenAgesADayShort) {
  // n / 7.0 * 7.0 lies just below n for these. Reports have shown them so from the first.
  const std::set<int> oneDayShort{61, 115, 122, 230, 237, 244, 251};
  for (int days = 1; days <= 350; ++days) {
    const int shown = days - (oneDayShort.contains(days) ? 1 : 0);
    const std::string text = std::to_string(shown / 7) + "w " + std::to_string(shown % 7) + "d";
    EXPECT_EQ(textOf(days / 7.0), text) << days << " days";
    EXPECT_EQ(textOf(menstrualAge(Date{0.0}, Date{(280 - days) * kDay})), text) << days << " days";
  }
  EXPECT_EQ(textOf(230 / 7.0), "32w 5d");
}

TEST(GestationText, ofANumberThatNoIntegerHoldsDoesNotOverflow) {
  EXPECT_EQ(textOf(kNaN), "0w 0d");
  EXPECT_EQ(textOf(kInfinity), "9223372036854775807w 0d");
  EXPECT_EQ(textOf(1e300), "9223372036854775807w 0d");
  EXPECT_EQ(textOf(1e308), "9223372036854775807w 0d");
  EXPECT_EQ(textOf(-kInfinity), "-9223372036854775808w -1d");
}

TEST(GestationText, isTranslatedWhereItIsNotTheDash) {
  const tests::MarkedLocalizer marked;
  EXPECT_EQ(gestationText(20.5, marked), "[NCDocument:20w 3d]");
  EXPECT_EQ(gestationText(0.0, marked), "-");
}

// The age from a crown-rump length.

struct Formula {
  std::int64_t identifier;
  double (*menstrualAge)(double crl);
  const char* label;
  double weeksAt45mm;  // to two decimals
  double least;        // mm
  double greatest;
};

constexpr Formula kFormulas[] = {
    {0, menstrualAgeFromCRLHadlock, "Hadlock (1992)", 11.33, 2.0, 120.0},
    {1, menstrualAgeFromCRLNelson, "Nelson (1981)", 11.14, 6.7, 82.4},
    {2, menstrualAgeFromCRLRobinson, "Robinson (1975)", 11.10, 7.0, 79.6},
    {3, menstrualAgeFromCRLWesterway, "Westerway (2000)", 11.00, 2.0, 87.0},
};

TEST(MenstrualAgeFromCRL, isThePublishedExpressionWithinTheRangeAndUnknownBesideIt) {
  for (const expected::CRLCase& row : expected::kCRLAges) {
    const Formula& formula = kFormulas[row.standard];
    SCOPED_TRACE(testing::Message() << formula.label << " at " << tests::exactText(row.crl) << " mm");
    EXPECT_TRUE(isExactly(formula.menstrualAge(row.crl), row.weeks));
    EXPECT_TRUE(isExactly(menstrualAgeFromCRL(row.crl, row.standard), row.weeks));
  }
}

TEST(MenstrualAgeFromCRL, givesTheWorkedExample) {
  for (const Formula& formula : kFormulas) {
    EXPECT_NEAR(formula.menstrualAge(45.0), formula.weeksAt45mm, 0.005) << formula.label;
  }
}

TEST(CRLFormulas, areKnownByTheirIdentifiersAndTitles) {
  const tests::MarkedLocalizer marked;
  EXPECT_EQ(crlFormulas().size(), std::size(kFormulas));
  for (const Formula& formula : kFormulas) {
    const CRLFormula* known = crlFormula(formula.identifier);
    ASSERT_NE(known, nullptr) << formula.label;
    EXPECT_EQ(known, &crlFormulas()[static_cast<std::size_t>(formula.identifier)]);
    EXPECT_EQ(known->label, formula.label);
    EXPECT_EQ(known->menstrualAge, formula.menstrualAge);
    EXPECT_EQ(known->least, formula.least);
    EXPECT_EQ(known->greatest, formula.greatest);
    EXPECT_GT(formula.menstrualAge(formula.least), 0.0);
    EXPECT_GT(formula.menstrualAge(formula.greatest), 0.0);
    EXPECT_TRUE(isExactly(formula.menstrualAge(formula.least - 0.01), 0.0)) << formula.label;
    EXPECT_TRUE(isExactly(formula.menstrualAge(formula.greatest + 0.01), 0.0)) << formula.label;
    EXPECT_EQ(crlStandardTitle(formula.identifier, kEnglish), "CRL Standard: " + std::string(formula.label));
    EXPECT_EQ(crlStandardTitle(formula.identifier, marked),
              "[NCDocument:CRL Standard: ]" + std::string(formula.label));
  }
}

TEST(AnUnknownCRLFormula, givesNoAgeAndIsUnspecified) {
  const tests::MarkedLocalizer marked;
  for (const std::int64_t identifier : {std::int64_t{-1}, std::int64_t{4}, kSmallest, kLargest}) {
    EXPECT_EQ(crlFormula(identifier), nullptr) << identifier;
    EXPECT_TRUE(isExactly(menstrualAgeFromCRL(45.0, identifier), 0.0)) << identifier;
    EXPECT_EQ(crlStandardTitle(identifier, kEnglish), "CRL Standard: Unspecified") << identifier;
    EXPECT_EQ(crlStandardTitle(identifier, marked), "[NCDocument:CRL Standard: ]Unspecified") << identifier;
  }
}

// The EDD.

TEST(EddFromAgeAtScan, liesTheRestOf40WeeksAfterTheScanToTheLastBit) {
  struct Case {
    double scan;
    double age;
    double edd;
  };
  // From 2001-01-01 the last bits of the product show; from a date of today few of them are left.
  constexpr Case kCases[] = {
      {0.0, 40.0, 0.0},
      {0.0, 11.327451732955241,
       17341157.19190867},  // 40 weeks less the age, times 604800, would end in ...672
      {0.0, 11.142971428571428, 17452730.88},
      {0.0, 11.104922580640704, 17475742.823228505},
      {0.0, 10.9981, 17540349.12},
      {0.0, 41.5, -907200.0},
      {763272000.0, 11.327451732955241, 780613157.1919087},
      {763311723.25, 10.9981, 780852072.37},
      {0.0, kNaN, kNaN},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(eddFromAgeAtScan(Date{row.scan}, row.age, kUtc).secondsSince2001, row.edd))
        << row.age;
  }
}

TEST(EddFromMeasurements, liesADayLaterThanFromTheSameAgeAtAScan) {
  struct Case {
    double examination;
    double gestation;
    double edd;
  };
  constexpr Case kCases[] = {
      {0.0, 40.0, 86400.0},
      {0.0, 20.0, 12182400.0},
      {0.0, 31.285714285714285, 5356800.000000001},
      {0.0, 24.15862957417917, 9667260.833536439},
      {763272000.0, 20.5, 775152000.0},
      {0.0, kInfinity, -kInfinity},
  };
  for (const Case& row : kCases) {
    const double edd = eddFromMeasurements(Date{row.examination}, row.gestation, kUtc).secondsSince2001;
    EXPECT_TRUE(isExactly(edd, row.edd)) << row.gestation;
  }
  EXPECT_EQ(eddFromMeasurements(Date{0.0}, 20.0, kUtc).secondsSince2001,
            eddFromAgeAtScan(Date{0.0}, 20.0, kUtc).secondsSince2001 + kDay);
}

TEST(EddFromLMP, moves280DaysByTheCycleAndItsLutealPhase) {
  struct Case {
    const char* name;
    std::int64_t cycle, luteal;
    std::optional<double> seconds;
  };
  constexpr Case kCases[] = {
      {"28 and 14", 28, 14, 280 * kDay},
      {"a week longer", 35, 14, 287 * kDay},
      {"a shorter luteal phase", 28, 10, 284 * kDay},
      {"a longer luteal phase", 28, 16, 278 * kDay},
      {"nothing entered", 0, 0, 266 * kDay},
      {"the sum is no day", 0, 266, 0.0},
      {"the sum is negative", 0, 267, std::nullopt},
      {"the sum is negative the other way", -267, 0, std::nullopt},
      {"a negative luteal phase", 0, -14, 280 * kDay},
      {"the longest that fits in 64 bits", 106751991167034, 0, 9223372036854720000.0},
      {"a day more", 106751991167035, 0, std::nullopt},
      {"the longest product, but not with 266 days", 106751991167300, 0, std::nullopt},
      {"a product beyond 64 bits", 106751991167301, 0, std::nullopt},
      {"a product below 64 bits", -106751991167301, 0, std::nullopt},
      {"a product whose low 64 bits look sensible", 213503982334602, 0, std::nullopt},
      {"a difference beyond 64 bits", kLargest, -1, std::nullopt},
      {"a difference below 64 bits", kSmallest, 1, std::nullopt},
      {"a difference from the smallest", 0, kSmallest, std::nullopt},
      {"largest less largest", kLargest, kLargest, 266 * kDay},
  };
  for (const Case& row : kCases) {
    const std::optional<Date> edd = eddFromLMP(Date{0.0}, row.cycle, row.luteal, kUtc);
    ASSERT_EQ(edd.has_value(), row.seconds.has_value()) << row.name;
    if (edd) {
      EXPECT_TRUE(isExactly(edd->secondsSince2001, *row.seconds)) << row.name;
    }
  }
}

TEST(PlannedDelivery, countsDaysFromTheEdd) {
  struct Case {
    double days;
    double gestation;
    double seconds;
  };
  constexpr Case kCases[] = {
      {0.0, 40.0, 0.0},
      {-7.0, 39.0, -604800.0},
      {7.0, 41.0, 604800.0},
      {1.0, 40.142857142857146, 86400.0},
      {-4.0, 39.42857142857143, -345600.0},
      {-35.0, 35.0, -3024000.0},
      {-280.0, 0.0, -24192000.0},
      {0.1, 40.01428571428571, 8640.000000000002},
      {kNaN, kNaN, kNaN},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(plannedGestation(row.days), row.gestation)) << row.days;
    EXPECT_TRUE(isExactly(plannedDeliveryDate(Date{0.0}, row.days, kUtc).secondsSince2001, row.seconds))
        << row.days;
  }
}

TEST(PlannedDays, areWholeWhereSinglePrecisionMissesThemAndNoneTooMany) {
  constexpr std::int64_t kWesterway = 0;
  constexpr std::int64_t kCFEF = 3;
  struct Case {
    double gestation;
    std::int64_t standard;
    double days;
  };
  constexpr Case kCases[] = {
      {39.428569793701172, kWesterway, -4.0},  // 39 3/7 in single precision
      {40.142856597900391, kWesterway, 1.0},   // 40 1/7
      {39.999, kWesterway, (39.999 - 40.0) * 7.0},
      // A thousandth of a day to either side is the border.
      {40.0 + 3.00099 / 7.0, kWesterway, 3.0},
      {40.0 + 3.00101 / 7.0, kWesterway, ((40.0 + 3.00101 / 7.0) - 40.0) * 7.0},
      {40.0 + 2.99901 / 7.0, kWesterway, 3.0},
      {40.0 + 2.99899 / 7.0, kWesterway, ((40.0 + 2.99899 / 7.0) - 40.0) * 7.0},
      {40.5, kWesterway, 3.5},
      {40.5, kCFEF, 0.0},
      {41.0, kWesterway, 7.0},
      {42.0, kWesterway, 7.0},
      {0.0, kWesterway, -280.0},
      {kInfinity, kWesterway, 7.0},
      {-kInfinity, kWesterway, -kInfinity},
      {kNaN, kWesterway, kNaN},
  };
  for (const Case& row : kCases)
    EXPECT_TRUE(isExactly(plannedDays(row.gestation, row.standard), row.days)) << row.gestation;
}

// From an age to an examination.

TEST(DateAtAge, liesTheRestOf40WeeksBeforeTheEdd) {
  struct Case {
    double edd;
    double weeks;
    double date;
  };
  constexpr Case kCases[] = {
      {0.0, 40.0, 0.0},
      {0.0, 20.5, -11793600.0},
      {0.0, 33.3, -4052160.000000002},
      {0.0, 20.2, -11975039.999999998},  // times 604800 it would be a whole number
      {0.0, 41.7, 1028160.0000000017},
      {787467600.0, 12.1, 770593680.0},
      {0.0, kNaN, kNaN},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(dateAtAge(Date{row.edd}, row.weeks, kUtc).secondsSince2001, row.date)) << row.weeks;
  }
}

TEST(DateAtAge, isALocalMidnightForALocalMidnightAndAWholeDay) {
  // New York: 140 days before 2025-12-15 is 2025-07-28, in summer.
  const Zone newYork = tests::newYork();
  EXPECT_TRUE(isExactly(dateAtAge(Date{787467600.0}, 20.0, newYork.calendar).secondsSince2001, 775368000.0));
}

TEST(NearestDate, isTheFirstOfTheNearestWithinElevenDaysAndAHalf) {
  using Dates = std::vector<std::optional<Date>>;
  const auto at = [](double seconds) { return std::optional(Date{seconds}); };
  struct Case {
    const char* name;
    Dates dates;
    std::size_t nearest;
  };
  const Case kCases[] = {
      {"none at all", {}, 0},
      {"the only one", {at(5.0)}, 0},
      {"the second", {at(-100.0), at(99.0)}, 1},
      {"the earlier in the list of equals", {at(-100.0), at(100.0)}, 0},
      {"equal in whole seconds", {at(-100.0), at(99.5), at(100.9)}, 1},
      {"equal in whole seconds, the later one a little nearer", {at(-100.9), at(100.1)}, 0},
      {"none within reach shows the first", {at(-5e6), at(2e6), at(999999.0)}, 0},
      {"just within reach", {at(-5e6), at(2e6), at(999998.9)}, 2},
      {"just within reach on the other side", {at(-5e6), at(-999998.0)}, 1},
      {"without a date", {std::nullopt, at(50.0), std::nullopt}, 1},
      {"none has a date", {std::nullopt, std::nullopt}, 0},
      {"a date beyond all integers", {at(kInfinity), at(-1e300), at(4.0)}, 2},
  };
  for (const Case& row : kCases) EXPECT_EQ(nearestDate(Date{0.0}, row.dates), row.nearest) << row.name;
}

// The EDD on the wall clock. The instants come from the zones' own rules, in seconds since 2001.

TEST(TheEdd, isTheLocalMidnight280DaysAfterALocalMidnight) {
  struct Case {
    const char* name;
    const Zone* zone;
    double lmp;
    double edd;
  };
  const Zone newYork = tests::newYork(), paris = tests::paris(), sydney = tests::sydney();
  const Zone saoPaulo = tests::saoPaulo();
  const Case kCases[] = {
      {"New York, 2025-03-10 to 2025-12-15", &newYork, 763272000.0, 787467600.0},
      {"New York, 2025-03-09 to 2025-12-14", &newYork, 763189200.0, 787381200.0},
      {"New York, 2025-08-01 to 2026-05-08", &newYork, 775713600.0, 799905600.0},
      {"New York, 2025-01-15 to 2025-10-22", &newYork, 758610000.0, 782798400.0},
      {"Paris, 2025-03-31 to 2026-01-05", &paris, 765064800.0, 789260400.0},
      {"Paris, 2025-06-01 to 2026-03-08", &paris, 770421600.0, 794617200.0},
      {"Paris, 2025-01-01 to 2025-10-08", &paris, 757378800.0, 781567200.0},
      {"Sydney, 2025-04-07 to 2026-01-12", &sydney, 765640800.0, 789829200.0},
      {"Sydney, 2025-10-06 to 2026-07-13", &sydney, 781362000.0, 805557600.0},
      {"Sydney, 2025-06-30 to 2026-04-06", &sydney, 772898400.0, 797090400.0},
      {"Sao Paulo, 2018-01-28 to 2018-11-04, which has no midnight", &saoPaulo, 538797600.0, 562993200.0},
  };
  for (const Case& row : kCases) {
    const Date lmp{row.lmp};
    const std::optional<Date> edd = eddFromLMP(lmp, 28, 14, row.zone->calendar);
    ASSERT_TRUE(edd.has_value()) << row.name;
    EXPECT_TRUE(isExactly(edd->secondsSince2001, row.edd)) << row.name;
    // The other three roads move the same wall clock.
    EXPECT_TRUE(isExactly(eddFromAgeAtScan(lmp, 0.0, row.zone->calendar).secondsSince2001, row.edd))
        << row.name;
    EXPECT_TRUE(isExactly(eddFromMeasurements(lmp, 1.0 / 7.0, row.zone->calendar).secondsSince2001, row.edd))
        << row.name;
    EXPECT_TRUE(isExactly(plannedDeliveryDate(lmp, 280.0, row.zone->calendar).secondsSince2001, row.edd))
        << row.name;
  }
}

TEST(TheEdd, isThe280thDayAfterEveryDayOfAYearInEveryZone) {
  for (const Zone& zone : tests::allZones()) {
    for (const int year : {2018, 2025}) {
      const std::int64_t first = daysSince2001(CivilDay{.year = year, .month = 1, .day = 1});
      for (std::int64_t day = first; day < first + 365; ++day) {
        SCOPED_TRACE(testing::Message() << zone.name << " " << year << ", day " << day - first);
        const Date lmp = startOfDay(*foundation::civilDayFromDaysSince2001(day), zone.calendar);
        const std::optional<Date> edd = eddFromLMP(lmp, 28, 14, zone.calendar);
        ASSERT_TRUE(edd.has_value());
        EXPECT_EQ(localDay(*edd, zone.calendar), foundation::civilDayFromDaysSince2001(day + 280));
        // And back: daylight saving never moves an age.
        EXPECT_EQ(menstrualAge(lmp, edd), 0.0);
      }
    }
  }
}

TEST(TheWeekOnTheAxis, isThatOfTheDeliveryOnItsDayOnly) {
  const auto at = [](double seconds) { return Date{seconds}; };
  EXPECT_EQ(currentWeekOnAxis(at(8e8), at(8e8)), 40.0);
  // The seconds are multiplied by 86400 and cut: 0.0001 s are 8 days, 40 - 8 / 7; a whole day is 1.07e9 weeks before.
  EXPECT_EQ(currentWeekOnAxis(at(0.0), at(0.0001)), 40.0 - 8.0 / 7.0);
  EXPECT_EQ(currentWeekOnAxis(at(0.0), at(-0.0001)), 40.0 + 8.0 / 7.0);
  EXPECT_EQ(currentWeekOnAxis(at(0.0), at(86400.0)), 40.0 - 7464960000.0 / 7.0);
  EXPECT_EQ(currentWeekOnAxis(std::nullopt, at(8e8)), std::nullopt);
  EXPECT_EQ(currentWeekOnAxis(at(8e8), std::nullopt), std::nullopt);
}

}  // namespace
}  // namespace nascor::calc
