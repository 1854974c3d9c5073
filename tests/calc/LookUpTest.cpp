// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/LookUp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "ExpectedValues.h"
#include "support/Bits.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using tests::isExactly;

ReferenceTable tableOf(std::int64_t standard, Measurement measurement) {
  ReferenceTable table;
  appendStandard(table, standard, measurement);
  return table;
}

/// Steps of 10, 20 and 30 mm, so that every answer can be seen.
const ReferenceTable kSteps{
    DatabaseRecord::initWithData(10.0, 20.0, 1.0), DatabaseRecord::initWithData(11.0, 30.0, 2.0),
    DatabaseRecord::initWithData(12.0, 50.0, 5.0), DatabaseRecord::initWithData(13.0, 80.0, 4.0)};

/// Calls `check(table, name)` for the sixteen tables of the program.
template <class Check>
void forEveryTable(Check check) {
  for (std::int64_t standard = 0; standard < 4; ++standard) {
    for (const Measurement measurement : kMeasurements) {
      check(tableOf(standard, measurement),
            std::string(growthStandard(standard)->label) + " " + std::string(nameOf(measurement)));
    }
  }
}

// The gestation for a measurement.

TEST(GestationForMeasurement, interpolatesBetweenWeeksAndStaysWithinThem) {
  struct Case {
    const char* name;
    double value;
    double weeks;
  };
  const Case kCases[] = {
      {"nothing measured", 0.0, 0.0},
      {"minus nothing", -0.0, 0.0},
      {"negative", -25.0, 0.0},
      {"no number", kNaN, 0.0},
      {"minus infinity", -kInfinity, 0.0},
      {"the smallest", 5e-324, 10.0},
      {"below the first mean", 19.0, 10.0},
      {"the first mean", 20.0, 10.0},
      {"between the first two", 22.5, 10.25},
      {"the second mean", 30.0, 11.0},
      {"between the next two", 45.0, 11.75},
      {"just below the last mean but one", 49.0, 11.95},
      {"the last mean but one", 50.0, 12.0},
      {"just above it, far below the last mean", std::nextafter(50.0, 51.0), 13.0},
      {"between the last two", 65.0, 13.0},
      {"the last mean", 80.0, 13.0},
      {"above the last mean", 81.0, 13.0},
      {"infinity", kInfinity, 13.0},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(gestationForMeasurement(kSteps, row.value), row.weeks)) << row.name;
  }
}

TEST(GestationForMeasurement, isReckonedToTheLastBit) {
  for (const expected::LookUpCase& row : expected::kGestations) {
    EXPECT_TRUE(
        isExactly(gestationForMeasurement(tableOf(row.standard, row.measurement), row.value), row.weeks))
        << row.standard << " " << nameOf(row.measurement) << " " << row.value;
  }
}

TEST(GestationForMeasurement, ofTheMeanOfAWeekIsThatWeekInEveryTable) {
  forEveryTable([](const ReferenceTable& table, const std::string& name) {
    for (const DatabaseRecord& row : table) {
      EXPECT_TRUE(isExactly(gestationForMeasurement(table, row.mean()), row.observation())) << name;
    }
  });
}

TEST(GestationForMeasurement, ofAMeanIsItsRowsOwnWeekAndNotReckoned) {
  // No table of the program has such a gap: 0.2 + (0.9 - 0.2) is not 0.9.
  const ReferenceTable gap{DatabaseRecord::initWithData(0.2, 20.0, 1.0),
                           DatabaseRecord::initWithData(0.9, 30.0, 2.0),
                           DatabaseRecord::initWithData(1.0, 40.0, 2.0)};
  EXPECT_TRUE(isExactly(gestationForMeasurement(gap, 30.0), 0.9));
}

TEST(GestationForMeasurement, aboveTheLastMeanButOneIsTheLastWeekInEveryTable) {
  forEveryTable([](const ReferenceTable& table, const std::string& name) {
    const DatabaseRecord& lastButOne = table[table.size() - 2];
    const double above = std::nextafter(lastButOne.mean(), kInfinity);
    ASSERT_LT(above, table.back().mean());
    EXPECT_EQ(gestationForMeasurement(table, above), table.back().observation()) << name;
    EXPECT_EQ(gestationForMeasurement(table, 1e300), table.back().observation()) << name;
    const double below = std::nextafter(lastButOne.mean(), 0.0);
    EXPECT_LE(gestationForMeasurement(table, below), lastButOne.observation()) << name;
    EXPECT_GT(gestationForMeasurement(table, below), lastButOne.observation() - 1e-9) << name;
    EXPECT_EQ(gestationForMeasurement(table, 1.0), table.front().observation()) << name;
  });
}

TEST(GestationForMeasurement, halfwayBetweenTwoMeansIsHalfAWeek) {
  const ReferenceTable table = tableOf(0, Measurement::bpd);
  const auto meanAt = [&](std::size_t week) { return table[week - 11].mean(); };
  EXPECT_EQ(gestationForMeasurement(table, (meanAt(20) + meanAt(21)) / 2.0), 20.5);
}

TEST(GestationForMeasurement, ofAnEmptyTableIsUnknownAndOfOneRowItsWeek) {
  EXPECT_TRUE(isExactly(gestationForMeasurement({}, 50.0), 0.0));
  const ReferenceTable oneRow{DatabaseRecord::initWithData(20.0, 50.0, 2.0)};
  for (const double value : {1.0, 50.0, 60.0, kInfinity})
    EXPECT_EQ(gestationForMeasurement(oneRow, value), 20.0);
  EXPECT_EQ(gestationForMeasurement(oneRow, 0.0), 0.0);
}

// The mean and the standard deviation at a gestation.

TEST(MeanAndSDForGestation, interpolateBetweenWeeksAndStayWithinThem) {
  struct Case {
    const char* name;
    double gestation;
    double mean, sd;
  };
  const Case kCases[] = {
      {"unknown", 0.0, 0.0, 0.0},
      {"minus unknown", -0.0, 0.0, 0.0},
      {"the smallest", 5e-324, 20.0, 1.0},
      {"negative", -3.0, 20.0, 1.0},
      {"minus infinity", -kInfinity, 20.0, 1.0},
      {"below the first week", 5.0, 20.0, 1.0},
      {"the first week", 10.0, 20.0, 1.0},
      {"between the first two", 10.25, 22.5, 1.25},
      {"the second week", 11.0, 30.0, 2.0},
      {"between the next two", 11.75, 45.0, 4.25},
      {"between the last two, where the spread falls", 12.5, 65.0, 4.5},
      {"the last week", 13.0, 80.0, 4.0},
      {"just beyond the last week", std::nextafter(13.0, 14.0), 80.0, 4.0},
      {"far beyond the last week", 44.0, 80.0, 4.0},
      {"infinity", kInfinity, 80.0, 4.0},
      {"no number", kNaN, 80.0, 4.0},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(meanForGestation(kSteps, row.gestation), row.mean)) << row.name;
    EXPECT_TRUE(isExactly(sdForGestation(kSteps, row.gestation), row.sd)) << row.name;
  }
}

TEST(MeanAndSDForGestation, areReckonedToTheLastBit) {
  for (const expected::AtGestationCase& row : expected::kAtGestation) {
    const ReferenceTable table = tableOf(row.standard, row.measurement);
    SCOPED_TRACE(testing::Message() << row.standard << " " << nameOf(row.measurement) << " at "
                                    << row.gestation);
    EXPECT_TRUE(isExactly(meanForGestation(table, row.gestation), row.mean));
    if (row.standard == 0) {
      // The rows themselves may differ there by the last bit.
      EXPECT_NEAR(sdForGestation(table, row.gestation), row.sd, 1e-14);
    } else {
      EXPECT_TRUE(isExactly(sdForGestation(table, row.gestation), row.sd));
    }
  }
}

TEST(MeanAndSDForGestation, divideByTheDistanceOfTheRowsBeforeTheyMultiply) {
  // No table of the program has such a gap; over a week the order of the two would not show.
  const ReferenceTable gap{DatabaseRecord::initWithData(10.0, 20.1, 1.0),
                           DatabaseRecord::initWithData(13.0, 50.7, 2.0)};
  EXPECT_TRUE(isExactly(meanForGestation(gap, 11.0), 30.3));
  EXPECT_TRUE(isExactly(meanForGestation(gap, 12.5), 45.60000000000001));
}

/// The definition: row after row from the first.
double byScan(const ReferenceTable& table, double gestation, double (DatabaseRecord::*column)() const) {
  if (gestation == 0.0 || table.empty()) return 0.0;
  std::size_t i = 0;
  while (i < table.size() && !(table[i].observation() >= gestation)) ++i;
  if (i == table.size()) return (table.back().*column)();
  if (i == 0) return (table.front().*column)();
  const DatabaseRecord& before = table[i - 1];
  const DatabaseRecord& after = table[i];
  return (before.*column)() + (gestation - before.observation()) /
                                  (after.observation() - before.observation()) *
                                  ((after.*column)() - (before.*column)());
}

void expectWhatAScanFinds(const ReferenceTable& table, const std::string& name) {
  std::vector<double> gestations{-1.0, -0.0, 0.0, 5e-324, kInfinity, -kInfinity, kNaN};
  for (int i = 0; i < 6000; ++i) gestations.push_back(i / 128.0);
  for (const DatabaseRecord& row : table) {
    gestations.push_back(std::nextafter(row.observation(), 0.0));
    gestations.push_back(row.observation());
    gestations.push_back(std::nextafter(row.observation(), 100.0));
  }
  for (const double gestation : gestations) {
    EXPECT_TRUE(
        isExactly(meanForGestation(table, gestation), byScan(table, gestation, &DatabaseRecord::mean)))
        << name << " at " << gestation;
    EXPECT_TRUE(isExactly(sdForGestation(table, gestation), byScan(table, gestation, &DatabaseRecord::sd)))
        << name << " at " << gestation;
    const auto [mean, sd] = meanAndSDForGestation(table, gestation);
    EXPECT_TRUE(isExactly(mean, meanForGestation(table, gestation))) << name << " at " << gestation;
    EXPECT_TRUE(isExactly(sd, sdForGestation(table, gestation))) << name << " at " << gestation;
  }
}

TEST(MeanAndSDForGestation, areWhatAScanFindsInEveryTable) {
  forEveryTable(expectWhatAScanFinds);
  expectWhatAScanFinds(kSteps, "steps");
}

TEST(MeanAndSDForGestation, areWhatAScanFindsWhereRowsAreNoWeekApart) {
  ReferenceTable apart;
  ReferenceTable close;
  for (int i = 0; i < 9; ++i) {
    apart.push_back(DatabaseRecord::initWithData(10.0 + 2.5 * i, 20.0 + i * i, 1.0 + i));
    close.push_back(DatabaseRecord::initWithData(10.0 + 0.25 * i, 20.0 + i * i, 1.0 + i));
  }
  // On its last row, too, a table is interpolated: 8.7 + 1.0 * (51.9 - 8.7) is no 51.9.
  const ReferenceTable steep{DatabaseRecord::initWithData(10.0, 8.7, 8.7),
                             DatabaseRecord::initWithData(11.0, 51.9, 51.9)};
  EXPECT_TRUE(isExactly(meanForGestation(steep, 11.0), 51.900000000000006));
  expectWhatAScanFinds(steep, "steep");
  expectWhatAScanFinds(apart, "apart");
  expectWhatAScanFinds(close, "close");
}

TEST(MeanAndSDForGestation, areThoseOfTheRowAtEveryWholeWeekOfEveryTable) {
  forEveryTable([](const ReferenceTable& table, const std::string& name) {
    for (const DatabaseRecord& row : table) {
      EXPECT_TRUE(isExactly(meanForGestation(table, row.observation()), row.mean())) << name;
      EXPECT_TRUE(isExactly(sdForGestation(table, row.observation()), row.sd())) << name;
    }
  });
}

TEST(MeanAndSDForGestation, halfwayBetweenWeeksIsTheAverageInEveryTable) {
  forEveryTable([](const ReferenceTable& table, const std::string& name) {
    for (std::size_t i = 1; i < table.size(); ++i) {
      const double halfway = table[i - 1].observation() + 0.5;
      EXPECT_TRUE(isExactly(meanForGestation(table, halfway), (table[i - 1].mean() + table[i].mean()) / 2.0))
          << name;
    }
  });
}

TEST(MeanAndSDForGestation, ofAnEmptyTableAreZeroAndOfOneRowItsOwn) {
  for (const double gestation : {-1.0, 0.0, 20.0, kInfinity, kNaN}) {
    EXPECT_TRUE(isExactly(meanForGestation({}, gestation), 0.0));
    EXPECT_TRUE(isExactly(sdForGestation({}, gestation), 0.0));
  }
  const ReferenceTable oneRow{DatabaseRecord::initWithData(20.0, 50.0, 2.0)};
  for (const double gestation : {-1.0, 20.0, 21.0, kNaN}) {
    EXPECT_EQ(meanForGestation(oneRow, gestation), 50.0);
    EXPECT_EQ(sdForGestation(oneRow, gestation), 2.0);
  }
}

// Where the first or the last week stands in.

TEST(BeyondTheTable, liesAWeekThatTheTableDoesNotHave) {
  EXPECT_EQ(weekBeyondTable(kSteps, 10.0), BeyondTable::no);
  EXPECT_EQ(weekBeyondTable(kSteps, std::nextafter(10.0, 0.0)), BeyondTable::before);
  EXPECT_EQ(weekBeyondTable(kSteps, -3.0), BeyondTable::before);
  EXPECT_EQ(weekBeyondTable(kSteps, 11.5), BeyondTable::no);
  EXPECT_EQ(weekBeyondTable(kSteps, 13.0), BeyondTable::no);
  EXPECT_EQ(weekBeyondTable(kSteps, std::nextafter(13.0, 14.0)), BeyondTable::after);
  EXPECT_EQ(weekBeyondTable(kSteps, kNaN), BeyondTable::after);
  EXPECT_EQ(weekBeyondTable(kSteps, 0.0), BeyondTable::no) << "unknown";
  EXPECT_EQ(weekBeyondTable({}, 20.0), BeyondTable::no);
}

TEST(BeyondTheTable, liesAValueWithoutAWeekOnEitherSide) {
  EXPECT_EQ(valueBeyondTable(kSteps, 20.0), BeyondTable::no) << "the first mean";
  EXPECT_EQ(valueBeyondTable(kSteps, 19.9), BeyondTable::before);
  EXPECT_EQ(valueBeyondTable(kSteps, 45.0), BeyondTable::no);
  EXPECT_EQ(valueBeyondTable(kSteps, 50.0), BeyondTable::no) << "the last mean but one";
  EXPECT_EQ(valueBeyondTable(kSteps, 50.1), BeyondTable::after)
      << "the last week's own mean is not looked at";
  EXPECT_EQ(valueBeyondTable(kSteps, 80.0), BeyondTable::no) << "the last mean itself";
  EXPECT_EQ(valueBeyondTable(kSteps, 80.1), BeyondTable::after);
  EXPECT_EQ(valueBeyondTable(kSteps, 0.0), BeyondTable::no) << "not measured";
  EXPECT_EQ(valueBeyondTable(kSteps, kNaN), BeyondTable::no);
  EXPECT_EQ(valueBeyondTable({}, 20.0), BeyondTable::no);
}

}  // namespace
}  // namespace nascor::calc
