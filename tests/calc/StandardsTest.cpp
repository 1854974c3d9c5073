// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Standards.h"

#include <gtest/gtest.h>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>

#include "ExpectedValues.h"
#include "calc/FetalWeight.h"
#include "support/Bits.h"
#include "support/MarkedLocalizer.h"

namespace nascor::calc {
namespace {

using tests::isExactly;
using tests::isWithinTheLastDigit;

constexpr std::int64_t kUnknownIdentifiers[] = {-1, 4, 1000, std::numeric_limits<std::int64_t>::min(),
                                                std::numeric_limits<std::int64_t>::max()};
constexpr std::int64_t kWesterway = 0;
constexpr std::int64_t kCFEF = 3;

struct Standard {
  std::int64_t identifier;
  const char* label;
  int firstWeek;
  int lastWeek;
  std::size_t rows;
};

constexpr Standard kStandards[] = {
    {0, "Westerway (ASUM 2001)", 11, 41, 31},
    {1, "Hadlock (1984)", 12, 40, 29},
    {2, "Schluter (2004)", 11, 41, 31},
    {3, "CFEF (Biom\xC3\xA9trie 2000)", 16, 40, 25},
};

void PrintTo(const Standard& standard, std::ostream* out) { *out << standard.label; }

ReferenceTable tableOf(std::int64_t standard, Measurement measurement) {
  ReferenceTable table;
  appendStandard(table, standard, measurement);
  return table;
}

// A row.

TEST(DatabaseRecord, holdsWhatItIsMadeWithAndTakesOtherValues) {
  DatabaseRecord row = DatabaseRecord::initWithData(20.0, 47.5, 1.25);
  EXPECT_EQ(row.observation(), 20.0);
  EXPECT_EQ(row.mean(), 47.5);
  EXPECT_EQ(row.sd(), 1.25);

  row.setObservation(21.0);
  row.setMean(50.5);
  row.setSD(1.5);
  EXPECT_EQ(row.observation(), 21.0);
  EXPECT_EQ(row.mean(), 50.5);
  EXPECT_EQ(row.sd(), 1.5);
}

TEST(DatabaseRecord, isEqualToAnythingSoThatNothingMaySearchByIt) {
  const DatabaseRecord row = DatabaseRecord::initWithData(20.0, 47.5, 1.25);
  EXPECT_TRUE(row.isEqual(row));
  EXPECT_TRUE(row.isEqual(DatabaseRecord::initWithData(1.0, 2.0, 3.0)));
  EXPECT_TRUE(row.isEqual(nullptr));
  EXPECT_TRUE(row.isEqual(std::string("a row of another kind")));
  static_assert(!std::equality_comparable<DatabaseRecord>,
                "std::find would then find the first row, whatever it seeks");
}

// The four standards.

class GrowthStandardTables : public testing::TestWithParam<Standard> {};

TEST_P(GrowthStandardTables, haveOneRowForEachWholeWeekInOrder) {
  for (const Measurement measurement : kMeasurements) {
    const ReferenceTable table = tableOf(GetParam().identifier, measurement);
    ASSERT_EQ(table.size(), GetParam().rows) << nameOf(measurement);
    for (std::size_t i = 0; i < table.size(); ++i) {
      EXPECT_TRUE(isExactly(table[i].observation(), GetParam().firstWeek + static_cast<double>(i)));
    }
    EXPECT_EQ(table.back().observation(), GetParam().lastWeek);
  }
}

TEST_P(GrowthStandardTables, growFromWeekToWeekAndHaveASpread) {
  for (const Measurement measurement : kMeasurements) {
    const ReferenceTable table = tableOf(GetParam().identifier, measurement);
    EXPECT_GT(table.front().mean(), 0.0) << nameOf(measurement);
    for (std::size_t i = 0; i < table.size(); ++i) {
      EXPECT_GT(table[i].sd(), 0.0) << nameOf(measurement) << ", row " << i;
      if (i > 0) {
        EXPECT_LT(table[i - 1].mean(), table[i].mean()) << nameOf(measurement) << ", row " << i;
      }
    }
  }
}

TEST_P(GrowthStandardTables, areKnownByTheirIdentifierAndTitle) {
  const Standard& standard = GetParam();
  const GrowthStandard* known = growthStandard(standard.identifier);
  ASSERT_NE(known, nullptr);
  EXPECT_EQ(known, &growthStandards()[static_cast<std::size_t>(standard.identifier)]);
  EXPECT_EQ(known->label, standard.label);
  EXPECT_EQ(known->firstWeek, standard.firstWeek);
  EXPECT_EQ(known->lastWeek, standard.lastWeek);
  EXPECT_EQ(growthStandardTitle(standard.identifier, foundation::EnglishLocalizer()),
            "Nascor Standard: " + std::string(standard.label));
  EXPECT_EQ(growthStandardTitle(standard.identifier, tests::MarkedLocalizer()),
            "[:Nascor Standard: ]" + std::string(standard.label));
}

INSTANTIATE_TEST_SUITE_P(each, GrowthStandardTables, testing::ValuesIn(kStandards), [](const auto& row) {
  const std::string label = row.param.label;
  return label.substr(0, label.find(' '));
});

TEST(GrowthStandards, areFour) { EXPECT_EQ(growthStandards().size(), std::size(kStandards)); }

TEST(GrowthStandards, appendToWhatTheTableHolds) {
  ReferenceTable table{DatabaseRecord::initWithData(1.0, 2.0, 3.0)};
  appendStandard(table, kCFEF, Measurement::bpd);
  appendStandard(table, kWesterway, Measurement::fl);
  ASSERT_EQ(table.size(), 1u + 25u + 31u);
  EXPECT_EQ(table[0].mean(), 2.0);
  EXPECT_EQ(table[1].mean(), 34.53);
  EXPECT_EQ(table[26].observation(), 11.0);
}

TEST(AnUnknownGrowthStandard, appendsNothingAndHasTheBarePrefixAsItsTitle) {
  for (const std::int64_t identifier : kUnknownIdentifiers) {
    EXPECT_EQ(growthStandard(identifier), nullptr) << identifier;
    EXPECT_EQ(growthStandardTitle(identifier, foundation::EnglishLocalizer()), "Nascor Standard: ")
        << identifier;
    for (const Measurement measurement : kMeasurements) {
      EXPECT_TRUE(tableOf(identifier, measurement).empty()) << identifier;
      ReferenceTable table{DatabaseRecord::initWithData(1.0, 2.0, 3.0)};
      appendStandard(table, identifier, measurement);
      EXPECT_EQ(table.size(), 1u) << identifier;
    }
  }
}

TEST(TheFormulaStandards, areThePublishedExpressionsToTheLastBit) {
  for (const expected::StandardRow& row : expected::kStandardRows) {
    for (std::size_t m = 0; m < 4; ++m) {
      const ReferenceTable table = tableOf(row.standard, kMeasurements[m]);
      const auto& actual = table.at(static_cast<std::size_t>(row.week - table.front().observation()));
      SCOPED_TRACE(testing::Message() << kStandards[row.standard].label << " " << nameOf(kMeasurements[m])
                                      << " at " << row.week << " weeks");
      EXPECT_TRUE(isExactly(actual.mean(), row.meanAndSD[2 * m]));
      if (row.standard == kWesterway) {
        // a + b * (w - 11) / 30 can be read in two orders, which differ here and there by the last bit.
        EXPECT_TRUE(isWithinTheLastDigit(actual.sd(), row.meanAndSD[2 * m + 1]));
      } else {
        EXPECT_TRUE(isExactly(actual.sd(), row.meanAndSD[2 * m + 1]));
      }
    }
  }
}

TEST(TheFormulaStandards, giveTheWorkedExamplesAtWeek20) {
  struct Case {
    std::int64_t standard;
    Measurement measurement;
    double mean, sd;
  };
  constexpr Case kCases[] = {
      {0, Measurement::bpd, 47.414, 1.9},   {0, Measurement::hc, 174.01, 9.0},
      {0, Measurement::ac, 154.374, 8.75},  {0, Measurement::fl, 32.117, 1.45},
      {1, Measurement::bpd, 46.32, 3.0},    {1, Measurement::hc, 176.816, 10.0},
      {1, Measurement::ac, 149.08, 13.4},   {1, Measurement::fl, 32.7, 3.0},
      {2, Measurement::bpd, 46.674, 2.342}, {2, Measurement::hc, 172.269, 7.455},
      {2, Measurement::ac, 149.553, 8.353}, {2, Measurement::fl, 31.496, 1.904},
  };
  for (const Case& row : kCases) {
    const DatabaseRecord record = growthStandard(row.standard)->row(row.measurement, 20);
    EXPECT_EQ(record.observation(), 20.0);
    EXPECT_NEAR(record.mean(), row.mean, 0.0005) << row.standard << nameOf(row.measurement);
    EXPECT_NEAR(record.sd(), row.sd, 0.0005) << row.standard << nameOf(row.measurement);
  }
}

// CFEF, whose numbers are copied. The rows below are the published ones; over all rows three sums of
// thousandths are kept, which no wrong, missing or exchanged number leaves alone.

TEST(CFEF, hasThePublishedRows) {
  struct Row {
    int week;
    double meanAndSD[8];
  };
  constexpr Row kRows[] = {
      {16, {34.53, 2.275, 120.86, 7.625, 106.4, 7.6, 19.95, 2.115}},
      {17, {38.12, 2.375, 134.49, 7.95, 118.0, 8.0, 23.12, 2.205}},
      {20, {48.22, 2.71, 172.47, 9.035, 151.4, 9.8, 32.23, 2.4}},
      {22, {54.53, 2.885, 195.74, 9.705, 173.0, 10.85, 37.87, 2.52}},
      {25, {63.25, 3.085, 227.32, 10.745, 204.4, 12.45, 45.69, 2.695}},
      {28, {71.03, 3.285, 254.77, 11.69, 234.4, 14.1, 52.8, 2.825}},
      {30, {75.8, 3.36, 270.84, 12.58, 253.6, 15.05, 57.13, 2.895}},
      {32, {80.16, 3.42, 285.29, 13.355, 272.0, 16.2, 61.11, 2.98}},
      {35, {85.9, 3.465, 303.62, 14.27, 298.8, 17.85, 66.47, 3.08}},
      {37, {89.24, 3.475, 313.52, 14.91, 316.0, 18.9, 69.63, 3.13}},
      {38, {90.7, 3.48, 317.88, 15.205, 324.7, 19.15, 71.11, 3.15}},
      {39, {92.1, 3.475, 321.86, 15.405, 332.4, 19.9, 72.48, 3.18}},
      {40, {93.45, 3.43, 324.0, 16.0, 339.0, 20.5, 73.79, 3.19}},
  };
  for (const Row& row : kRows) {
    for (std::size_t m = 0; m < 4; ++m) {
      const DatabaseRecord record = growthStandard(kCFEF)->row(kMeasurements[m], row.week);
      EXPECT_TRUE(isExactly(record.mean(), row.meanAndSD[2 * m])) << row.week << nameOf(kMeasurements[m]);
      EXPECT_TRUE(isExactly(record.sd(), row.meanAndSD[2 * m + 1])) << row.week << nameOf(kMeasurements[m]);
    }
  }
}

TEST(CFEF, hasNoOtherNumbersThanThePublishedOnes) {
  struct Column {
    Measurement measurement;
    double (DatabaseRecord::*column)() const;
    std::int64_t sum, sumTimesWeek, sumOfSquares;
  };
  constexpr Column kColumns[] = {
      {Measurement::bpd, &DatabaseRecord::mean, 1712780, 51152700, 125326234200},
      {Measurement::bpd, &DatabaseRecord::sd, 78070, 2249470, 247356950},
      {Measurement::hc, &DatabaseRecord::mean, 6081490, 181341100, 1576123648100},
      {Measurement::hc, &DatabaseRecord::sd, 295380, 8721990, 3646858800},
      {Measurement::ac, &DatabaseRecord::mean, 5758200, 173893800, 1449972240000},
      {Measurement::ac, &DatabaseRecord::sd, 351450, 10537400, 5314317500},
      {Measurement::fl, &DatabaseRecord::mean, 1266250, 38371750, 70771100100},
      {Measurement::fl, &DatabaseRecord::sd, 69170, 1993720, 193951900},
  };
  for (const Column& column : kColumns) {
    std::int64_t sum = 0, sumTimesWeek = 0, sumOfSquares = 0;
    for (const DatabaseRecord& row : tableOf(kCFEF, column.measurement)) {
      const std::int64_t thousandths = std::llround((row.*column.column)() * 1000.0);
      // A decimal of three places, and nothing behind it.
      EXPECT_TRUE(isExactly((row.*column.column)(), static_cast<double>(thousandths) / 1000.0));
      sum += thousandths;
      sumTimesWeek += thousandths * static_cast<std::int64_t>(row.observation());
      sumOfSquares += thousandths * thousandths;
    }
    EXPECT_EQ(sum, column.sum) << nameOf(column.measurement);
    EXPECT_EQ(sumTimesWeek, column.sumTimesWeek) << nameOf(column.measurement);
    EXPECT_EQ(sumOfSquares, column.sumOfSquares) << nameOf(column.measurement);
  }
}

TEST(CFEF, keepsTheSpreadOfTheBpdThatFallsAgainInTheLastWeeks) {
  const ReferenceTable table = tableOf(kCFEF, Measurement::bpd);
  const auto sdAt = [&](std::size_t week) { return table[week - 16].sd(); };
  EXPECT_EQ(sdAt(38), 3.48);
  EXPECT_EQ(sdAt(39), 3.475);
  EXPECT_EQ(sdAt(40), 3.43);
}

// The table of weights.

struct FourTables {
  explicit FourTables(std::int64_t standard)
      : bpd(tableOf(standard, Measurement::bpd)),
        hc(tableOf(standard, Measurement::hc)),
        ac(tableOf(standard, Measurement::ac)),
        fl(tableOf(standard, Measurement::fl)) {}

  ReferenceTable weights(std::int64_t formula) const { return fetalWeightTable(bpd, hc, ac, fl, formula); }

  ReferenceTable bpd, hc, ac, fl;
};

TEST(TheWeightTable, holdsTheWeightsOfTheMeansAndAFixedShareOfThem) {
  for (const expected::WeightRow& row : expected::kWeightRows) {
    const FourTables tables(row.standard);
    for (std::size_t formula = 0; formula < 8; ++formula) {
      const ReferenceTable weights = tables.weights(static_cast<std::int64_t>(formula));
      const auto& actual = weights.at(static_cast<std::size_t>(row.week - weights.front().observation()));
      SCOPED_TRACE(testing::Message()
                   << kStandards[row.standard].label << " " << row.week << ", formula " << formula);
      EXPECT_TRUE(isExactly(actual.mean(), row.grams[formula]));
      EXPECT_TRUE(isExactly(actual.sd(), row.sd[formula]));
    }
  }
}

TEST(TheWeightTable, hasTheWeeksOfTheBpdTableUnderEveryStandardAndFormula) {
  constexpr double kFactors[] = {0.074, 0.077, 0.073, 0.073, 0.0, 0.0, 0.0, 0.106};
  for (const Standard& standard : kStandards) {
    const FourTables tables(standard.identifier);
    for (std::int64_t formula = 0; formula < 8; ++formula) {
      const ReferenceTable weights = tables.weights(formula);
      ASSERT_EQ(weights.size(), standard.rows);
      for (std::size_t i = 0; i < weights.size(); ++i) {
        const Biometry means{tables.bpd[i].mean(), tables.hc[i].mean(), tables.ac[i].mean(),
                             tables.fl[i].mean()};
        EXPECT_EQ(weights[i].observation(), tables.bpd[i].observation());
        EXPECT_TRUE(
            isExactly(weights[i].mean(), weightFormulas()[static_cast<std::size_t>(formula)].weight(means)));
        EXPECT_TRUE(isExactly(weights[i].sd(), weights[i].mean() * kFactors[formula]));
      }
    }
  }
}

TEST(TheWeightTable, takesItsWeeksFromTheBpdTableWhateverTheOthersHold) {
  FourTables tables(kWesterway);
  for (ReferenceTable* other : {&tables.hc, &tables.ac, &tables.fl}) {
    for (DatabaseRecord& row : *other) row.setObservation(0.0);
  }
  const ReferenceTable weights = tables.weights(0);
  ASSERT_EQ(weights.size(), 31u);
  for (std::size_t i = 0; i < weights.size(); ++i) {
    EXPECT_EQ(weights[i].observation(), 11.0 + static_cast<double>(i));
  }
}

TEST(TheWeightTable, isEmptyWithoutABpdTable) {
  FourTables tables(kWesterway);
  tables.bpd.clear();
  for (std::int64_t formula = 0; formula < 8; ++formula) EXPECT_TRUE(tables.weights(formula).empty());
  EXPECT_TRUE(FourTables(-1).weights(0).empty());
}

TEST(TheWeightTable, countsAMissingTableAsNotMeasured) {
  FourTables tables(kWesterway);
  tables.hc.clear();
  constexpr bool kNeedsHC[] = {true, false, false, true, false, true, true, false};
  for (std::int64_t formula = 0; formula < 8; ++formula) {
    const ReferenceTable weights = tables.weights(formula);
    ASSERT_EQ(weights.size(), 31u);
    for (const DatabaseRecord& row : weights) EXPECT_EQ(row.mean() == 0.0, kNeedsHC[formula]) << formula;
  }
}

TEST(TheWeightTable, countsAMissingRowAsNotMeasuredAndIgnoresRowsTooMany) {
  FourTables tables(kWesterway);
  tables.fl.resize(10, DatabaseRecord::initWithData(0.0, 0.0, 0.0));
  tables.ac.push_back(DatabaseRecord::initWithData(42.0, 400.0, 20.0));
  const ReferenceTable weights = tables.weights(0);
  ASSERT_EQ(weights.size(), 31u);
  EXPECT_GT(weights[9].mean(), 0.0);
  EXPECT_EQ(weights[10].mean(), 0.0);
  EXPECT_EQ(weights[10].sd(), 0.0);
  EXPECT_EQ(weights[10].observation(), 21.0);
}

TEST(TheWeightTable, ofAnUnknownFormulaHasItsWeeksAndNoWeights) {
  const FourTables tables(kCFEF);
  for (const std::int64_t formula :
       {std::int64_t{-1}, std::int64_t{8}, std::numeric_limits<std::int64_t>::min()}) {
    const ReferenceTable weights = tables.weights(formula);
    ASSERT_EQ(weights.size(), 25u);
    EXPECT_EQ(weights.front().observation(), 16.0);
    for (const DatabaseRecord& row : weights) {
      EXPECT_TRUE(isExactly(row.mean(), 0.0));
      EXPECT_TRUE(isExactly(row.sd(), 0.0));
    }
  }
}

}  // namespace
}  // namespace nascor::calc
