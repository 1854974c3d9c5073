// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/NCRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "Lengths.h"
#include "foundation/RangeError.h"
#include "support/FixedClock.h"

namespace nascor::model {
namespace {

using foundation::Date;
using foundation::RangeError;
using tests::FixedClock;
using tests::kUnmeasured;
using tests::lengthsOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

NCRecord examinationOn(std::optional<Date> date) {
  NCRecord record;
  record.setExamDate(date);
  return record;
}

TEST(ANewExamination, isDatedNowToTheFractionOfASecond) {
  const NCRecord record(FixedClock({221234567.890625}));
  EXPECT_EQ(record.examDate(), Date{221234567.890625});
}

TEST(ANewExamination, hasAnEmptyNoteAndOneUnmeasuredFetus) {
  const NCRecord record{FixedClock()};
  EXPECT_EQ(record.note(), "");
  ASSERT_EQ(record.measurements().size(), 1U);
  EXPECT_EQ(lengthsOf(record.measurements()[0]), kUnmeasured);
}

TEST(AnExaminationToBeReadInto, isEmpty) {
  const NCRecord record;
  EXPECT_EQ(record.note(), std::nullopt);
  EXPECT_EQ(record.examDate(), std::nullopt);
  EXPECT_TRUE(record.measurements().empty());
}

TEST(AnExamination, keepsItsNoteAndDate) {
  NCRecord record{FixedClock()};
  record.setNote("breech");
  record.setExamDate(Date{-5.0});
  EXPECT_EQ(record.note(), "breech");
  EXPECT_EQ(record.examDate(), Date{-5.0});
  record.setNote(std::nullopt);
  record.setExamDate(std::nullopt);
  EXPECT_EQ(record.note(), std::nullopt);
  EXPECT_EQ(record.examDate(), std::nullopt);
}

TEST(AnExamination, takesANoteThatIsItsOwn) {
  NCRecord record{FixedClock()};
  record.setNote("a note that is longer than a small string");
  record.setNote(record.note());
  EXPECT_EQ(record.note(), "a note that is longer than a small string");
}

TEST(AnExamination, appendsAnUnmeasuredFetus) {
  NCRecord record{FixedClock()};
  record.measurementsForFetus(0).setBPD(90.0);
  record.addMeasurementsRecord();
  ASSERT_EQ(record.measurements().size(), 2U);
  EXPECT_EQ(record.measurementsForFetus(0).bpd(), 90.0);
  EXPECT_EQ(lengthsOf(record.measurementsForFetus(1)), kUnmeasured);
}

TEST(AnExamination, handsOutTheStoredRecordOfAFetus) {
  NCRecord record{FixedClock()};
  MeasurementsRecord& stored = record.measurementsForFetus(0);
  stored.setFL(70.0);
  EXPECT_EQ(&record.measurementsForFetus(0), &stored);
  EXPECT_EQ(&std::as_const(record).measurementsForFetus(0), &stored);
  EXPECT_EQ(record.measurements()[0].fl(), 70.0);
}

TEST(AnExamination, movesLaterFetusesDownWhenOneIsDeleted) {
  NCRecord record{FixedClock()};
  record.addMeasurementsRecord();
  record.addMeasurementsRecord();
  for (const std::int64_t fetus : {0, 1, 2})
    record.measurementsForFetus(fetus).setAC(static_cast<double>(10 * fetus + 5));

  record.deleteMeasurementsRecord(1);
  ASSERT_EQ(record.measurements().size(), 2U);
  EXPECT_EQ(record.measurementsForFetus(0).ac(), 5.0);
  EXPECT_EQ(record.measurementsForFetus(1).ac(), 25.0);

  record.deleteMeasurementsRecord(0);
  EXPECT_EQ(record.measurementsForFetus(0).ac(), 25.0);

  record.deleteMeasurementsRecord(0);
  EXPECT_TRUE(record.measurements().empty());
}

class AFetusThatIsNotThere : public testing::TestWithParam<std::int64_t> {};

TEST_P(AFetusThatIsNotThere, isARangeError) {
  NCRecord record{FixedClock()};
  record.addMeasurementsRecord();
  EXPECT_THROW(record.measurementsForFetus(GetParam()), RangeError);
  EXPECT_THROW(std::as_const(record).measurementsForFetus(GetParam()), RangeError);
  EXPECT_THROW(record.deleteMeasurementsRecord(GetParam()), RangeError);
  EXPECT_EQ(record.measurements().size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(ofTwins, AFetusThatIsNotThere,
                         testing::Values(-1, 2, std::int64_t{1} << 32,
                                         std::numeric_limits<std::int64_t>::min(),
                                         std::numeric_limits<std::int64_t>::max()));

TEST(AnExaminationWithoutRecords, hasNoFetus) {
  NCRecord record;
  EXPECT_THROW(record.measurementsForFetus(0), RangeError);
  EXPECT_THROW(record.deleteMeasurementsRecord(0), RangeError);
}

struct RankedDate {
  std::optional<Date> date;
  int rank;
};

// Examinations of the same rank are equal, those of a lower one come first.
const std::vector<RankedDate> kRankedDates{
    {std::nullopt, 0}, {Date{kNaN}, 0},         {Date{-kNaN}, 0},       {Date{-kInfinity}, 1},
    {Date{-1.0}, 2},   {Date{-0.0}, 3},         {Date{0.0}, 3},         {Date{1.0}, 4},
    {Date{1.0}, 4},    {Date{220000000.25}, 5}, {Date{220000000.5}, 6}, {Date{kInfinity}, 7}};

TEST(TheOrderOfExaminations, isByDateWithTheUndatedFirst) {
  for (const RankedDate& left : kRankedDates) {
    for (const RankedDate& right : kRankedDates) {
      EXPECT_EQ(examinationOn(left.date).compare(examinationOn(right.date)), left.rank <=> right.rank)
          << left.rank << " against " << right.rank;
    }
  }
}

// What sorting relies on: without it, a file with odd dates would be undefined behaviour.
TEST(TheOrderOfExaminations, isAStrictWeakOrderingOfAllDates) {
  const auto before = [](const RankedDate& a, const RankedDate& b) {
    return examinationOn(a.date).compare(examinationOn(b.date)) < 0;
  };
  const auto equal = [&](const RankedDate& a, const RankedDate& b) { return !before(a, b) && !before(b, a); };
  for (const RankedDate& a : kRankedDates) {
    EXPECT_FALSE(before(a, a));
    for (const RankedDate& b : kRankedDates) {
      EXPECT_FALSE(before(a, b) && before(b, a));
      for (const RankedDate& c : kRankedDates) {
        EXPECT_TRUE(!before(a, b) || !before(b, c) || before(a, c));
        EXPECT_TRUE(!equal(a, b) || !equal(b, c) || equal(a, c));
      }
    }
  }
}

TEST(TheOrderOfExaminations, keepsThoseOfTheSameDateAndTheirOwnOrder) {
  std::vector<std::unique_ptr<NCRecord>> examinations;
  std::vector<const NCRecord*> places;
  for (const std::optional<Date> date :
       {std::optional(Date{20.0}), std::optional(Date{10.0}), std::optional(Date{20.0}),
        std::optional<Date>(), std::optional(Date{10.0}), std::optional(Date{kNaN})}) {
    examinations.push_back(std::make_unique<NCRecord>(examinationOn(date)));
    places.push_back(examinations.back().get());
  }
  std::stable_sort(examinations.begin(), examinations.end(),
                   [](const auto& a, const auto& b) { return a->compare(*b) < 0; });
  std::vector<const NCRecord*> sorted;
  for (const auto& examination : examinations) sorted.push_back(examination.get());
  const std::vector<const NCRecord*> expected{places[3], places[5], places[1],
                                              places[4], places[0], places[2]};
  EXPECT_EQ(sorted, expected);
}

}  // namespace
}  // namespace nascor::model
