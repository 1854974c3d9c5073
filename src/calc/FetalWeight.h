// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "calc/Biometry.h"
#include "foundation/Localizer.h"

namespace nascor::calc {

// Estimated fetal weight: published regressions. Each takes millimetres and gives grams, and returns 0.0
// ("no weight") as soon as a length that it needs is exactly 0.0. Nothing else is checked: negative or huge values
// are evaluated as they stand. Lengths that a formula does not use may be missing. The terms and the conversions to
// centimetres stand in one fixed order, because the order decides the last bit.
// The citations are in docs/sources.md, under the label of each formula.

double estimatedFetalWeightHadlock1(const Biometry& measured);  ///< needs HC, AC, FL
double estimatedFetalWeightHadlock2(const Biometry& measured);  ///< needs AC, FL
double estimatedFetalWeightHadlock3(const Biometry& measured);  ///< needs BPD, AC, FL
double estimatedFetalWeightHadlock4(const Biometry& measured);  ///< needs BPD, HC, AC, FL
double estimatedFetalWeightCampbell(const Biometry& measured);  ///< needs AC
double estimatedFetalWeightCombs(const Biometry& measured);     ///< needs HC, AC, FL
double estimatedFetalWeightOtt(const Biometry& measured);       ///< needs HC, AC, FL
double estimatedFetalWeightShepard(const Biometry& measured);   ///< needs BPD, AC

/// One formula: all that the program knows of it.
struct WeightFormula {
  std::string_view longLabel;   ///< with the lengths that it uses; for the report and the menus
  std::string_view shortLabel;  ///< for the title of the weight chart
  std::string_view name;        ///< on the command line: small letters without blanks
  /// One standard deviation of the formula's error as a fraction of the weight; 0.0 where none is published,
  /// which makes a band without width. It is not the spread of a population.
  double sdFactor;
  double (*weight)(const Biometry&);
};

inline constexpr std::size_t kWeightFormulaCount = 8;

/// All formulas; a formula's place is its identifier.
std::span<const WeightFormula, kWeightFormulaCount> weightFormulas();

/// The formula of an identifier, null for an unknown one. Documents keep unknown identifiers unchanged.
const WeightFormula* weightFormula(std::int64_t fetalWeightStandard);

/// The weight in grams by the formula of that identifier; 0.0 for an unknown one.
double estimatedFetalWeight(const Biometry& measured, std::int64_t fetalWeightStandard);

/// "Fetal Weight Formula: " and the long label; the bare prefix for an unknown identifier.
std::string fetalWeightTitle(std::int64_t fetalWeightStandard, const foundation::Localizer& localizer);

/// "Fetal Weight Formula: " and the short label; "Unknown" for an unknown identifier.
std::string shortFetalWeightTitle(std::int64_t fetalWeightStandard, const foundation::Localizer& localizer);

}  // namespace nascor::calc
