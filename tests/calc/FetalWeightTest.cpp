// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/FetalWeight.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "ExpectedValues.h"
#include "support/Bits.h"
#include "support/MarkedLocalizer.h"

namespace nascor::calc {
namespace {

using expected::kNaN;
using tests::isExactly;

constexpr std::int64_t kUnknownIdentifiers[] = {-1, 8, 1000, std::numeric_limits<std::int64_t>::min(),
                                                std::numeric_limits<std::int64_t>::max()};

struct Formula {
  std::int64_t identifier;
  double (*weight)(const Biometry&);
  const char* longLabel;
  const char* shortLabel;
  double sdFactor;
  struct {
    bool bpd, hc, ac, fl;
  } needs;
  double exampleGrams;  // of BPD 90, HC 320, AC 300, FL 70, to one decimal
};

constexpr Formula kFormulas[] = {
    {0,
     estimatedFetalWeightHadlock1,
     "Hadlock 1 (HC/AC/FL)",
     "Hadlock 1",
     0.074,
     {false, true, true, true},
     2534.0},
    {1,
     estimatedFetalWeightHadlock2,
     "Hadlock 2 (AC/FL)",
     "Hadlock 2",
     0.077,
     {false, false, true, true},
     2540.4},
    {2,
     estimatedFetalWeightHadlock3,
     "Hadlock 3 (BPD/AC/FL)",
     "Hadlock 3",
     0.073,
     {true, false, true, true},
     2585.2},
    {3,
     estimatedFetalWeightHadlock4,
     "Hadlock 4 (BPD/HC/AC/FL)",
     "Hadlock 4",
     0.073,
     {true, true, true, true},
     2561.5},
    {4, estimatedFetalWeightCampbell, "Campbell (AC)", "Campbell", 0.0, {false, false, true, false}, 2501.8},
    {5, estimatedFetalWeightCombs, "Combs (HC/AC/FL)", "Combs", 0.0, {false, true, true, true}, 2579.5},
    {6, estimatedFetalWeightOtt, "Ott (HC/AC/FL)", "Ott", 0.0, {false, true, true, true}, 2604.3},
    {7,
     estimatedFetalWeightShepard,
     "Shepard (BPD/AC)",
     "Shepard",
     0.106,
     {true, false, true, false},
     2572.6},
};

void PrintTo(const Formula& formula, std::ostream* out) { *out << formula.longLabel; }

/// The lengths of `measured`, with those of which `lacks` says so set to `instead`.
Biometry without(Biometry measured, unsigned lacks, double instead) {
  if (lacks & 1u) measured.bpd = instead;
  if (lacks & 2u) measured.hc = instead;
  if (lacks & 4u) measured.ac = instead;
  if (lacks & 8u) measured.fl = instead;
  return measured;
}

unsigned neededLengths(const Formula& formula) {
  return (formula.needs.bpd ? 1u : 0u) | (formula.needs.hc ? 2u : 0u) | (formula.needs.ac ? 4u : 0u) |
         (formula.needs.fl ? 8u : 0u);
}

constexpr Biometry kExample{.bpd = 90.0, .hc = 320.0, .ac = 300.0, .fl = 70.0};

class FetalWeightFormula : public testing::TestWithParam<Formula> {};

TEST_P(FetalWeightFormula, givesThePublishedExpressionToTheLastBit) {
  const Formula& formula = GetParam();
  for (const expected::WeightCase& row : expected::kWeights) {
    const double grams = row.grams[static_cast<std::size_t>(formula.identifier)];
    EXPECT_TRUE(isExactly(formula.weight(row.measured), grams)) << row.name;
    EXPECT_TRUE(isExactly(estimatedFetalWeight(row.measured, formula.identifier), grams)) << row.name;
  }
}

TEST_P(FetalWeightFormula, givesTheWorkedExample) {
  EXPECT_NEAR(GetParam().weight(kExample), GetParam().exampleGrams, 0.05);
}

TEST_P(FetalWeightFormula, givesNoWeightAsSoonAsALengthThatItNeedsIsMissing) {
  const Formula& formula = GetParam();
  for (unsigned missing = 0; missing < 16; ++missing) {
    for (const double nothing : {0.0, -0.0}) {
      SCOPED_TRACE(testing::Message() << "missing: " << missing << " as " << nothing);
      const double weight = formula.weight(without(kExample, missing, nothing));
      if (missing & neededLengths(formula)) {
        EXPECT_TRUE(isExactly(weight, 0.0));
        EXPECT_TRUE(isExactly(formula.weight(without({kNaN, kNaN, kNaN, kNaN}, missing, nothing)), 0.0));
      } else {
        EXPECT_TRUE(isExactly(weight, formula.weight(kExample)));
      }
    }
  }
}

TEST_P(FetalWeightFormula, doesNotLookAtTheLengthsThatItDoesNotUse) {
  const unsigned unused = 15u & ~neededLengths(GetParam());
  for (const double anything : {0.0, -1.0, 1e300, kNaN}) {
    EXPECT_TRUE(
        isExactly(GetParam().weight(without(kExample, unused, anything)), GetParam().weight(kExample)));
  }
}

TEST_P(FetalWeightFormula, isKnownByItsIdentifier) {
  const Formula& formula = GetParam();
  const WeightFormula* known = weightFormula(formula.identifier);
  ASSERT_NE(known, nullptr);
  EXPECT_EQ(known, &weightFormulas()[static_cast<std::size_t>(formula.identifier)]);
  EXPECT_EQ(known->weight, formula.weight);
  EXPECT_EQ(known->longLabel, formula.longLabel);
  EXPECT_EQ(known->shortLabel, formula.shortLabel);
  EXPECT_TRUE(isExactly(known->sdFactor, formula.sdFactor));
}

TEST_P(FetalWeightFormula, hasALongTitleAndAShortOneBehindATranslatedPrefix) {
  const Formula& formula = GetParam();
  const foundation::EnglishLocalizer english;
  const tests::MarkedLocalizer marked;
  EXPECT_EQ(fetalWeightTitle(formula.identifier, english),
            "Fetal Weight Formula: " + std::string(formula.longLabel));
  EXPECT_EQ(shortFetalWeightTitle(formula.identifier, english),
            "Fetal Weight Formula: " + std::string(formula.shortLabel));
  EXPECT_EQ(fetalWeightTitle(formula.identifier, marked),
            "[:Fetal Weight Formula: ]" + std::string(formula.longLabel));
  EXPECT_EQ(shortFetalWeightTitle(formula.identifier, marked),
            "[:Fetal Weight Formula: ]" + std::string(formula.shortLabel));
}

INSTANTIATE_TEST_SUITE_P(each, FetalWeightFormula, testing::ValuesIn(kFormulas), [](const auto& row) {
  std::string name;
  for (const char letter : std::string(row.param.shortLabel)) {
    if (letter != ' ') name += letter;
  }
  return name;
});

TEST(FetalWeightFormulas, areEight) { EXPECT_EQ(weightFormulas().size(), std::size(kFormulas)); }

TEST(FetalWeightFormulas, answerForIncompleteMeasurementsAccordingToWhatEachNeeds) {
  struct Case {
    const char* name;
    Biometry measured;
    std::array<bool, 8> hasWeight;
  };
  constexpr Case kCases[] = {
      {"nothing", {}, {}},
      {"all but AC", {.bpd = 90, .hc = 320, .fl = 70}, {}},
      {"AC and FL", {.ac = 300, .fl = 70}, {false, true, false, false, true, false, false, false}},
      {"BPD and AC", {.bpd = 90, .ac = 300}, {false, false, false, false, true, false, false, true}},
      {"AC", {.ac = 300}, {false, false, false, false, true, false, false, false}},
      {"HC, AC and FL",
       {.hc = 320, .ac = 300, .fl = 70},
       {true, true, false, false, true, true, true, false}},
      {"all", kExample, {true, true, true, true, true, true, true, true}},
  };
  for (const Case& row : kCases) {
    for (std::size_t formula = 0; formula < 8; ++formula) {
      EXPECT_EQ(estimatedFetalWeight(row.measured, static_cast<std::int64_t>(formula)) != 0.0,
                row.hasWeight[formula])
          << row.name << ", formula " << formula;
    }
  }
}

TEST(AnUnknownWeightFormula, givesNoWeight) {
  for (const std::int64_t identifier : kUnknownIdentifiers) {
    EXPECT_EQ(weightFormula(identifier), nullptr) << identifier;
    EXPECT_TRUE(isExactly(estimatedFetalWeight(kExample, identifier), 0.0)) << identifier;
    EXPECT_TRUE(isExactly(estimatedFetalWeight({kNaN, kNaN, kNaN, kNaN}, identifier), 0.0)) << identifier;
  }
}

TEST(AnUnknownWeightFormula, hasTheBarePrefixAsItsLongTitleAndUnknownAsItsShortOne) {
  const foundation::EnglishLocalizer english;
  const tests::MarkedLocalizer marked;
  for (const std::int64_t identifier : kUnknownIdentifiers) {
    EXPECT_EQ(fetalWeightTitle(identifier, english), "Fetal Weight Formula: ");
    EXPECT_EQ(shortFetalWeightTitle(identifier, english), "Fetal Weight Formula: Unknown");
    EXPECT_EQ(shortFetalWeightTitle(identifier, marked), "[:Fetal Weight Formula: ]Unknown");
  }
}

TEST(Measurements, areListedAsBpdHcAcAndFl) {
  constexpr Biometry kDistinct{.bpd = 1.0, .hc = 2.0, .ac = 3.0, .fl = 4.0};
  std::string names;
  double next = 1.0;
  for (const Measurement measurement : kMeasurements) {
    names += std::string(nameOf(measurement)) + " ";
    EXPECT_EQ(kDistinct.*memberFor(measurement), next);
    next += 1.0;
  }
  EXPECT_EQ(names, "bpd hc ac fl ");
}

}  // namespace
}  // namespace nascor::calc
