// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/FetalWeight.h"

#include <array>
#include <cmath>
#include <concepts>
#include <utility>

namespace nascor::calc {
namespace {

bool anyMissing(std::same_as<double> auto... lengths) { return ((lengths == 0.0) || ...); }

std::string weightTitlePrefix(const foundation::Localizer& localizer) {
  return localizer.text("", "Fetal Weight Formula: ");
}

}  // namespace

double estimatedFetalWeightHadlock1(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(hc, ac, fl)) return 0.0;
  return std::pow(10.0, 1.326 - 3.26e-05 * ac * fl + 0.00107 * hc + 0.00438 * ac + 0.0158 * fl);
}

double estimatedFetalWeightHadlock2(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(ac, fl)) return 0.0;
  return std::pow(10.0, 1.304 + 0.005281 * ac + 0.01938 * fl - 4e-05 * ac * fl);
}

double estimatedFetalWeightHadlock3(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(bpd, ac, fl)) return 0.0;
  return std::pow(10.0, 1.335 - 3.4e-05 * ac * fl + 0.00316 * bpd + 0.00457 * ac + 0.01623 * fl);
}

// From here on some coefficients are for centimetres: those formulas divide each length by ten where it stands.
// The mixture is that of the publications and of the documents in use; the divisions decide the last bit.

double estimatedFetalWeightHadlock4(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(bpd, hc, ac, fl)) return 0.0;
  return std::pow(10.0, 1.3596 - 0.00386 * (ac / 10.0) * (fl / 10.0) + 0.0064 * (hc / 10.0) +
                            0.00061 * (bpd / 10.0) * (ac / 10.0) + 0.0424 * (ac / 10.0) +
                            0.174 * (fl / 10.0));
}

double estimatedFetalWeightCampbell(const Biometry& measured) {
  const double ac = measured.ac;
  if (anyMissing(ac)) return 0.0;
  return std::exp(-4.564 + 0.0282 * ac - 3.31e-05 * std::pow(ac, 2.0)) * 1000.0;
}

double estimatedFetalWeightCombs(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(hc, ac, fl)) return 0.0;
  return 0.23718 * std::pow(ac / 10.0, 2.0) * (fl / 10.0) + 0.03312 * std::pow(hc / 10.0, 3.0);
}

double estimatedFetalWeightOtt(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(hc, ac, fl)) return 0.0;
  return std::pow(10.0, -2.0661 + 0.04355 * (hc / 10.0) + 0.05394 * (ac / 10.0) -
                            0.0008582 * (hc / 10.0) * (ac / 10.0) + 1.2594 * fl / ac) *
         1000.0;
}

double estimatedFetalWeightShepard(const Biometry& measured) {
  const auto [bpd, hc, ac, fl] = measured;
  if (anyMissing(bpd, ac)) return 0.0;
  return std::pow(10.0, -1.7492 + 0.166 * (bpd / 10.0) + 0.046 * (ac / 10.0) -
                            0.002646 * (ac / 10.0) * (bpd / 10.0)) *
         1000.0;
}

std::span<const WeightFormula, kWeightFormulaCount> weightFormulas() {
  static constexpr std::array<WeightFormula, kWeightFormulaCount> kFormulas{{
      {"Hadlock 1 (HC/AC/FL)", "Hadlock 1", "hadlock1", 0.074, estimatedFetalWeightHadlock1},
      {"Hadlock 2 (AC/FL)", "Hadlock 2", "hadlock2", 0.077, estimatedFetalWeightHadlock2},
      {"Hadlock 3 (BPD/AC/FL)", "Hadlock 3", "hadlock3", 0.073, estimatedFetalWeightHadlock3},
      {"Hadlock 4 (BPD/HC/AC/FL)", "Hadlock 4", "hadlock4", 0.073, estimatedFetalWeightHadlock4},
      {"Campbell (AC)", "Campbell", "campbell", 0.0, estimatedFetalWeightCampbell},
      {"Combs (HC/AC/FL)", "Combs", "combs", 0.0, estimatedFetalWeightCombs},
      {"Ott (HC/AC/FL)", "Ott", "ott", 0.0, estimatedFetalWeightOtt},
      {"Shepard (BPD/AC)", "Shepard", "shepard", 0.106, estimatedFetalWeightShepard},
  }};
  return kFormulas;
}

const WeightFormula* weightFormula(std::int64_t fetalWeightStandard) {
  const auto formulas = weightFormulas();
  if (fetalWeightStandard < 0 || std::cmp_greater_equal(fetalWeightStandard, formulas.size())) return nullptr;
  return &formulas[static_cast<std::size_t>(fetalWeightStandard)];
}

double estimatedFetalWeight(const Biometry& measured, std::int64_t fetalWeightStandard) {
  const WeightFormula* formula = weightFormula(fetalWeightStandard);
  return formula ? formula->weight(measured) : 0.0;
}

std::string fetalWeightTitle(std::int64_t fetalWeightStandard, const foundation::Localizer& localizer) {
  const WeightFormula* formula = weightFormula(fetalWeightStandard);
  return weightTitlePrefix(localizer) + std::string(formula ? formula->longLabel : "");
}

std::string shortFetalWeightTitle(std::int64_t fetalWeightStandard, const foundation::Localizer& localizer) {
  const WeightFormula* formula = weightFormula(fetalWeightStandard);
  return weightTitlePrefix(localizer) + std::string(formula ? formula->shortLabel : "Unknown");
}

}  // namespace nascor::calc
