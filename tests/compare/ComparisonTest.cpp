// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "compare/Comparison.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>

#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"
#include "foundation/RangeError.h"
#include "support/Bits.h"
#include "support/Examined.h"

namespace nascor::compare {
namespace {

using calc::Quantity;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::examined;
using tests::isExactly;

constexpr calc::Biometry kAt20{.bpd = 47.4, .hc = 174.0, .ac = 154.4, .fl = 32.1};
constexpr calc::Biometry kAt24{.bpd = 60.4, .hc = 217.2, .ac = 194.2, .fl = 43.2};

const Placed& by(const std::vector<Placed>& figures, std::string_view name) {
  for (const Placed& figure : figures) {
    if (figure.reference->name == name) return figure;
  }
  throw std::invalid_argument(std::string(name));
}

std::vector<std::string> namesOf(const std::vector<Placed>& figures) {
  std::vector<std::string> names;
  for (const Placed& figure : figures) names.emplace_back(figure.reference->name);
  return names;
}

TEST(AComparison, placesEachLengthInEveryReferenceThatTellsOfIt) {
  const Comparison comparison = comparisonOf(examined({{20.0, {kAt20}}}), 0, 0);
  ASSERT_EQ(comparison.age, 20.0);
  ASSERT_EQ(comparison.lengths.size(), 4U);
  for (const Length& length : comparison.lengths) {
    EXPECT_THAT(namesOf(length.references),
                ElementsAre("westerway", "hadlock", "schluter", "cfef", "intergrowth-2014", "who-2017"));
    EXPECT_TRUE(isExactly(length.value.value(), kAt20.*calc::memberFor(length.measurement)));
    for (const Placed& figure : length.references) {
      const auto population =
          calc::populationAt(*figure.reference, calc::quantityOf(length.measurement), 20.0);
      EXPECT_EQ(figure.mean, population->mean());
      EXPECT_EQ(figure.sd, population->sd());
      EXPECT_EQ(figure.median, population->median());
      EXPECT_EQ(figure.z, population->z(*length.value));
      EXPECT_EQ(figure.centile->percent, population->centile(*length.value)->percent);
      EXPECT_THAT(figure.cautions, IsEmpty());
      EXPECT_NEAR(figure.weeks.value(), 20.0, 1.5);
    }
  }
}

TEST(AComparison, putsTheEightWeightsBesideTheOneOfTheDocument) {
  auto patient = examined({{20.0, {kAt20}}});
  patient.setFetalWeightStandard(3);
  const Comparison comparison = comparisonOf(patient, 0, 0);
  ASSERT_EQ(comparison.weights.size(), 8U);
  const double chosen = calc::estimatedFetalWeight(kAt20, 3);
  for (std::int64_t formula = 0; formula < 8; ++formula) {
    const Weight& weight = comparison.weights[static_cast<std::size_t>(formula)];
    EXPECT_EQ(weight.formula, formula);
    EXPECT_TRUE(isExactly(weight.grams.value(), calc::estimatedFetalWeight(kAt20, formula)));
    EXPECT_TRUE(isExactly(weight.difference.value(), *weight.grams - chosen));
    EXPECT_THAT(namesOf(weight.references), ElementsAre("intergrowth-2020", "hadlock-1991", "who-2017"));
    EXPECT_TRUE(by(weight.references, "intergrowth-2020").z.has_value());
    EXPECT_FALSE(by(weight.references, "who-2017").z.has_value());
    EXPECT_TRUE(by(weight.references, "who-2017").centile.has_value());
  }
}

TEST(AComparison, warnsOfAWeightByAFormulaThatAReferenceDoesNotFit) {
  const Comparison comparison = comparisonOf(examined({{20.0, {kAt20}}}), 0, 0);
  for (const Weight& weight : comparison.weights) {
    const auto& cautions = by(weight.references, "intergrowth-2020").cautions;
    if (weight.formula == 0) {
      EXPECT_THAT(cautions, IsEmpty());
    } else {
      EXPECT_THAT(cautions, ElementsAre(Caution::otherFormula)) << weight.formula;
    }
    EXPECT_THAT(by(weight.references, "hadlock-1991").cautions, IsEmpty());
    EXPECT_THAT(by(weight.references, "who-2017").cautions, IsEmpty());
  }
}

TEST(AComparison, saysNothingOfWhatWasNotMeasured) {
  const Comparison comparison = comparisonOf(examined({{20.0, {{.ac = 154.4}}}}), 0, 0);
  const Length& bpd = comparison.lengths[0];
  EXPECT_FALSE(bpd.value.has_value());
  for (const Placed& figure : bpd.references) {
    EXPECT_TRUE(figure.median.has_value()) << "the reference has it all the same";
    EXPECT_FALSE(figure.z.has_value());
    EXPECT_FALSE(figure.centile.has_value());
    EXPECT_FALSE(figure.weeks.has_value());
    EXPECT_THAT(figure.cautions, IsEmpty());
  }
  EXPECT_TRUE(comparison.weights[4].grams.has_value());
  EXPECT_FALSE(comparison.weights[0].grams.has_value());
  EXPECT_FALSE(comparison.weights[4].difference.has_value()) << "the document's own has none";
  EXPECT_THAT(by(comparison.weights[1].references, "intergrowth-2020").cautions, IsEmpty());
  EXPECT_FALSE(comparison.ratios.hcToAC.has_value());
  EXPECT_FALSE(comparison.discordance.has_value());
}

TEST(AComparison, takesWhatNoLengthCanBeForNotMeasured) {
  const Comparison comparison =
      comparisonOf(examined({{20.0, {{.bpd = -5.0, .hc = NAN, .ac = INFINITY, .fl = 32.0}}}}), 0, 0);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_FALSE(comparison.lengths[i].value.has_value());
  EXPECT_TRUE(comparison.lengths[3].value.has_value());
  EXPECT_FALSE(comparison.ratios.flToAC.has_value());
}

TEST(AComparison, extrapolatesNoReference) {
  const Comparison comparison = comparisonOf(examined({{40.0 + 1.0 / 7.0, {kAt24}}}), 0, 0);
  for (const Placed& figure : comparison.lengths[2].references) {
    const bool reaches = figure.reference->lastWeek == 41;
    EXPECT_EQ(figure.median.has_value(), reaches) << figure.reference->name;
    EXPECT_EQ(figure.mean.has_value(), reaches);
    EXPECT_EQ(figure.z.has_value(), reaches);
    EXPECT_EQ(figure.centile.has_value(), reaches);
    EXPECT_TRUE(figure.weeks.has_value()) << "an age of its own, which needs no other";
    EXPECT_EQ(figure.cautions.empty(), reaches);
  }
}

TEST(AComparison, ofAnExaminationWithoutAnAgeTellsWhatNeedsNone) {
  auto patient = examined({{20.0, {kAt20}}});
  patient.setEDD(std::nullopt);
  const Comparison comparison = comparisonOf(patient, 0, 0);
  EXPECT_FALSE(comparison.age.has_value());
  const Placed& figure = by(comparison.lengths[0].references, "westerway");
  EXPECT_THAT(figure.cautions, ElementsAre(Caution::ageUnknown));
  EXPECT_FALSE(figure.median.has_value());
  EXPECT_TRUE(figure.weeks.has_value());
  EXPECT_TRUE(comparison.weights[0].grams.has_value());
  EXPECT_TRUE(comparison.ratios.hcToAC.has_value());
}

TEST(AComparison, givesTheRatiosOfLengths) {
  const Ratios ratios = comparisonOf(examined({{20.0, {kAt20}}}), 0, 0).ratios;
  EXPECT_TRUE(isExactly(ratios.hcToAC.value(), 174.0 / 154.4));
  EXPECT_TRUE(isExactly(ratios.flToAC.value(), 32.1 / 154.4));
  EXPECT_TRUE(isExactly(ratios.flToBPD.value(), 32.1 / 47.4));
}

TEST(Discordance, isTheShareByWhichTheLightestWeighsLess) {
  const double heavy = calc::estimatedFetalWeight(kAt24, 0);
  const double light = calc::estimatedFetalWeight(kAt20, 0);
  const auto twins = examined({{22.0, {kAt20, kAt24}}});
  for (std::size_t fetus = 0; fetus < 2; ++fetus) {
    EXPECT_TRUE(
        isExactly(comparisonOf(twins, 0, fetus).discordance.value(), (heavy - light) / heavy * 100.0));
  }
  const auto triplets = examined({{22.0, {kAt20, {}, kAt24}}});
  EXPECT_TRUE(isExactly(comparisonOf(triplets, 0, 1).discordance.value(), (heavy - light) / heavy * 100.0));
  EXPECT_FALSE(comparisonOf(examined({{22.0, {kAt20, {}}}}), 0, 0).discordance.has_value());
  EXPECT_FALSE(comparisonOf(examined({{22.0, {kAt20}}}), 0, 0).discordance.has_value());
}

const Growth* growthOf(const Comparison& comparison, Quantity quantity) {
  for (const Growth& growth : comparison.growth) {
    if (growth.quantity == quantity) return &growth;
  }
  return nullptr;
}

TEST(Growth, isPerWeekSinceTheExaminationBefore) {
  const auto patient = examined({{20.0, {kAt20}}, {24.0, {kAt24}}});
  EXPECT_THAT(comparisonOf(patient, 0, 0).growth, IsEmpty());
  const Comparison comparison = comparisonOf(patient, 1, 0);
  ASSERT_EQ(comparison.growth.size(), 5U);
  EXPECT_TRUE(isExactly(growthOf(comparison, Quantity::bpd)->perWeek.value(), (60.4 - 47.4) / 4.0));
  EXPECT_TRUE(isExactly(growthOf(comparison, Quantity::efw)->perWeek.value(),
                        (calc::estimatedFetalWeight(kAt24, 0) - calc::estimatedFetalWeight(kAt20, 0)) / 4.0));
}

TEST(Growth, tellsTheChangeOfZByTheDocumentsStandard) {
  auto patient = examined({{20.0, {kAt20}}, {24.0, {kAt24}}});
  patient.setStandard(3);
  const Comparison comparison = comparisonOf(patient, 1, 0);
  // CFEF: 48.22 and 2.71 at 20 weeks, 60.42 and 3.04 at 24.
  EXPECT_NEAR(growthOf(comparison, Quantity::bpd)->zChange.value(),
              (60.4 - 60.42) / 3.04 - (47.4 - 48.22) / 2.71, 1e-12);
  EXPECT_FALSE(growthOf(comparison, Quantity::efw)->zChange.has_value());
  patient.setStandard(9);
  EXPECT_FALSE(growthOf(comparisonOf(patient, 1, 0), Quantity::bpd)->zChange.has_value());
}

TEST(Growth, tellsNoChangeOfZFromBeyondTheStandard) {
  auto patient = examined({{15.0, {kAt20}}, {24.0, {kAt24}}});
  patient.setStandard(3);
  const Comparison comparison = comparisonOf(patient, 1, 0);
  EXPECT_FALSE(growthOf(comparison, Quantity::bpd)->zChange.has_value());
  EXPECT_TRUE(growthOf(comparison, Quantity::bpd)->perWeek.has_value());
}

TEST(Growth, passesOverAnExaminationThatLacksTheLength) {
  const auto patient = examined({{20.0, {kAt20}}, {22.0, {{.bpd = 54.0}}}, {24.0, {kAt24}}});
  const Comparison comparison = comparisonOf(patient, 2, 0);
  EXPECT_TRUE(isExactly(growthOf(comparison, Quantity::bpd)->perWeek.value(), (60.4 - 54.0) / 2.0));
  EXPECT_TRUE(isExactly(growthOf(comparison, Quantity::ac)->perWeek.value(), (194.2 - 154.4) / 4.0));
  EXPECT_EQ(growthOf(comparisonOf(patient, 1, 0), Quantity::ac), nullptr);
}

TEST(Growth, isOfTheSameFetus) {
  const auto patient = examined({{20.0, {kAt20}}, {24.0, {kAt24, kAt24}}});
  EXPECT_THAT(comparisonOf(patient, 1, 1).growth, IsEmpty());
}

TEST(Growth, countsDaysWhereNoAgeIsKnownAndNothingBackwards) {
  auto patient = examined({{20.0, {kAt20}}, {24.0, {kAt24}}, {24.0, {kAt24}}, {22.0, {kAt20}}});
  EXPECT_FALSE(growthOf(comparisonOf(patient, 2, 0), Quantity::bpd)->perWeek.has_value()) << "the same day";
  EXPECT_FALSE(growthOf(comparisonOf(patient, 3, 0), Quantity::bpd)->perWeek.has_value()) << "before it";
  patient.setEDD(std::nullopt);
  EXPECT_TRUE(
      isExactly(growthOf(comparisonOf(patient, 1, 0), Quantity::bpd)->perWeek.value(), (60.4 - 47.4) / 4.0));
  EXPECT_FALSE(growthOf(comparisonOf(patient, 1, 0), Quantity::bpd)->zChange.has_value());
  patient.ncRecordsArray()[0]->setExamDate(std::nullopt);
  EXPECT_FALSE(growthOf(comparisonOf(patient, 1, 0), Quantity::bpd)->perWeek.has_value());
}

TEST(AComparison, ofAFetusWithoutARecordMeasuresNothing) {
  const auto patient = examined({{20.0, {kAt20}}});
  EXPECT_FALSE(comparisonOf(patient, 0, 3).lengths[0].value.has_value());
  EXPECT_THROW(comparisonOf(patient, 1, 0), foundation::RangeError);
}

}  // namespace
}  // namespace nascor::compare
