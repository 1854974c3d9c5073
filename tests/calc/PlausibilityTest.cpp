// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Plausibility.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "ExpectedValues.h"
#include "calc/Standards.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Lengths, areMeasuredWhereAnyIs) {
  EXPECT_FALSE(isAnyMeasured({}));
  for (const Biometry& lengths :
       {Biometry{.bpd = 1.0}, Biometry{.hc = 1.0}, Biometry{.ac = 1.0}, Biometry{.fl = 1.0}})
    EXPECT_TRUE(isAnyMeasured(lengths));
}

TEST(AUsualCycle, has24To38DaysAndALutealPhaseOf11To17) {
  EXPECT_TRUE(isUsualCycle(24, 11));
  EXPECT_TRUE(isUsualCycle(38, 17));
  EXPECT_FALSE(isUsualCycle(23, 14));
  EXPECT_FALSE(isUsualCycle(39, 14));
  EXPECT_FALSE(isUsualCycle(28, 10));
  EXPECT_FALSE(isUsualCycle(28, 18));
}

TEST(ImprobableAge, isOneBelow0OrAbove45Weeks) {
  EXPECT_EQ(improbableAge(-1.0 / 7.0), Improbable::beforeLastPeriod);
  EXPECT_EQ(improbableAge(0.0), std::nullopt) << "unknown";
  EXPECT_EQ(improbableAge(1.0 / 7.0), std::nullopt);
  EXPECT_EQ(improbableAge(45.0), std::nullopt);
  EXPECT_EQ(improbableAge(std::nextafter(45.0, 46.0)), Improbable::longPastTerm);
  EXPECT_EQ(improbableAge(kInfinity), Improbable::longPastTerm);
  EXPECT_EQ(improbableAge(kNaN), std::nullopt);
}

const ReferenceTable kTable{DatabaseRecord::initWithData(20.0, 50.0, 2.0),
                            DatabaseRecord::initWithData(30.0, 75.0, 3.0)};

std::vector<Improbable> about(Measurement measurement, const Biometry& lengths, double age = 20.0) {
  return improbableLength(measurement, lengths, age, kTable);
}

TEST(ImprobableLength, liesMoreThan4StandardDeviationsFromTheMean) {
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 42.0}), IsEmpty());
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 41.9}), ElementsAre(Improbable::farBelowStandard));
  EXPECT_THAT(about(Measurement::ac, {.ac = 58.0}), IsEmpty());
  EXPECT_THAT(about(Measurement::ac, {.ac = 58.1}), ElementsAre(Improbable::farAboveStandard));
  EXPECT_THAT(about(Measurement::fl, {.fl = 58.1}, 30.0), ElementsAre(Improbable::farBelowStandard));
  EXPECT_THAT(about(Measurement::fl, {}), IsEmpty()) << "not measured";
}

TEST(ImprobableLength, isMeasuredByTheNearestWeekThatTheStandardHas) {
  for (const double age : {19.9, 7.0, -2.0}) {
    EXPECT_THAT(about(Measurement::bpd, {.bpd = 190.0}, age), ElementsAre(Improbable::farAboveStandard))
        << age;
    EXPECT_THAT(about(Measurement::bpd, {.bpd = 5.0}, age), IsEmpty()) << age << ": it is younger";
  }
  for (const double age : {30.1, 50.0}) {
    EXPECT_THAT(about(Measurement::bpd, {.bpd = 5.0}, age), ElementsAre(Improbable::farBelowStandard)) << age;
    EXPECT_THAT(about(Measurement::bpd, {.bpd = 190.0}, age), IsEmpty()) << age << ": it is older";
  }
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 190.0}, kNaN), IsEmpty());
  EXPECT_THAT(improbableLength(Measurement::bpd, {.bpd = 190.0}, 20.0, {}), IsEmpty());
}

TEST(ImprobableLength, liesOutsideWhatMayBeTyped) {
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 200.0}, 0.0), IsEmpty());
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 200.1}), ElementsAre(Improbable::outsideBounds));
  EXPECT_THAT(about(Measurement::hc, {.bpd = 90.0, .hc = -5.0}), ElementsAre(Improbable::outsideBounds));
  EXPECT_THAT(about(Measurement::ac, {.ac = 600.1}, 0.0), ElementsAre(Improbable::outsideBounds));
  EXPECT_THAT(about(Measurement::fl, {.fl = kNaN}), ElementsAre(Improbable::outsideBounds));
}

// The shortest first means: BPD 15.5549 mm and HC 54.9661 mm (Westerway, 11 weeks), AC 45.8288 mm (Hadlock, 12 weeks), FL
// 5.32103 mm (Schluter, 77 days).
TEST(ImprobableLength, withoutAnAgeIsShorterThanAnyStandardBegins) {
  struct Case {
    Measurement measurement;
    Biometry least;
    Biometry tooShort;
  };
  const Case kCases[] = {{Measurement::bpd, {.bpd = 15.56}, {.bpd = 15.55}},
                         {Measurement::hc, {.hc = 54.97}, {.hc = 54.96}},
                         {Measurement::ac, {.ac = 45.83}, {.ac = 45.82}},
                         {Measurement::fl, {.fl = 5.33}, {.fl = 5.32}}};
  for (const Case& row : kCases) {
    EXPECT_THAT(about(row.measurement, row.least, 0.0), IsEmpty()) << nameOf(row.measurement);
    EXPECT_THAT(about(row.measurement, row.tooShort, 0.0), ElementsAre(Improbable::shorterThanAnywhere))
        << nameOf(row.measurement);
  }
  double shortest = 1000.0;
  for (const GrowthStandard& standard : growthStandards())
    shortest = std::min(shortest, standard.row(Measurement::bpd, standard.firstWeek).mean());
  EXPECT_THAT(about(Measurement::bpd, {.bpd = shortest}, 0.0), IsEmpty()) << "the shortest mean itself";
  EXPECT_THAT(about(Measurement::bpd, {.bpd = std::nextafter(shortest, 0.0)}, 0.0),
              ElementsAre(Improbable::shorterThanAnywhere));
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 12.0}, 10.0), IsEmpty()) << "at a known age it may be right";
}

// 0.9 pi 90 mm is 254.469 mm.
TEST(ImprobableLength, isAHeadTooSmallForItsBreadth) {
  EXPECT_THAT(about(Measurement::hc, {.bpd = 90.0, .hc = 254.5}, 0.0), IsEmpty());
  EXPECT_THAT(about(Measurement::hc, {.bpd = 90.0, .hc = 254.4}, 0.0), ElementsAre(Improbable::headTooSmall));
  EXPECT_THAT(about(Measurement::bpd, {.bpd = 90.0, .hc = 254.4}, 0.0), IsEmpty()) << "said of the HC alone";
  EXPECT_THAT(about(Measurement::hc, {.bpd = 0.0, .hc = 254.4}, 0.0), IsEmpty());
  EXPECT_THAT(about(Measurement::hc, {.bpd = 90.0, .hc = 40.0}),
              ElementsAre(Improbable::farBelowStandard, Improbable::headTooSmall));
}

}  // namespace
}  // namespace nascor::calc
