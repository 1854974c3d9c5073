// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Standards.h"

#include <array>
#include <cmath>
#include <utility>

#include "calc/FetalWeight.h"

namespace nascor::calc {
namespace {

struct MeanAndSD {
  double mean;
  double sd;
};

// Westerway (ASUM 2001): weeks; the standard deviation grows evenly from week 11 to week 41.

MeanAndSD westerway(Measurement measurement, double w) {
  const double growth = (w - 11.0) / 30.0;
  switch (measurement) {
    case Measurement::bpd: return {-31.546 + 4.69 * w - 0.0371 * std::pow(w, 2.0), 1.0 + 3.0 * growth};
    case Measurement::hc: return {-127.91 + 18.494 * w - 0.1699 * std::pow(w, 2.0), 7.5 + 5.0 * growth};
    case Measurement::ac: return {-90.946 + 13.204 * w - 0.0469 * std::pow(w, 2.0), 5.0 + 12.5 * growth};
    case Measurement::fl: break;
  }
  return {-28.489 + 3.1263 * w + 0.0032 * std::pow(w, 2.0) - 0.0004 * std::pow(w, 3.0), 1.0 + 1.5 * growth};
}

// Hadlock (1984): weeks; the regressions give centimetres.

MeanAndSD hadlock(Measurement measurement, double w) {
  switch (measurement) {
    case Measurement::bpd: return {(-3.08 + 0.41 * w - 6.1e-05 * std::pow(w, 3.0)) * 10.0, 3.0};
    case Measurement::hc: return {(-11.48 + 1.56 * w - 0.0002548 * std::pow(w, 3.0)) * 10.0, 10.0};
    case Measurement::ac: return {(-13.3 + 1.61 * w - 0.00998 * std::pow(w, 2.0)) * 10.0, 13.4};
    case Measurement::fl: break;
  }
  return {(-3.91 + 0.427 * w - 0.0034 * std::pow(w, 2.0)) * 10.0, 3.0};
}

// Schluter (2004): days.

MeanAndSD schluter(Measurement measurement, double w) {
  const double d = w * 7.0;
  switch (measurement) {
    case Measurement::bpd:
      return {6.48248 + 0.00299 * std::pow(d, 2.0) - 6.71e-06 * std::pow(d, 3.0),
              -2.1 + 0.37538 * std::sqrt(d)};
    case Measurement::hc:
      return {18.26782 + 0.01171 * std::pow(d, 2.0) - 2.752e-05 * std::pow(d, 3.0), 1.09786 + 0.04541 * d};
    case Measurement::ac:
      return {-16.73221 + 0.03507 * std::pow(d, 2.0) - 0.00538 * std::log(d) * std::pow(d, 2.0),
              3.81822 + 0.00023138 * std::pow(d, 2.0)};
    case Measurement::fl: break;
  }
  return {-29.54744 + 0.46013 * d - 1.23e-06 * std::pow(d, 3.0), 1.37593 + 2.696e-05 * std::pow(d, 2.0)};
}

// CFEF (Biométrie 2000): published numbers, not a formula. They are not smooth (the SD of the BPD falls again at 39
// and 40 weeks) and must stay as they are.

constexpr int kFirstCFEFWeek = 16;
constexpr std::array<std::array<MeanAndSD, 4>, 25> kCFEFWeeks{{
    //  BPD              HC                AC              FL
    {{{34.53, 2.275}, {120.86, 7.625}, {106.4, 7.6}, {19.95, 2.115}}},     // 16
    {{{38.12, 2.375}, {134.49, 7.95}, {118.0, 8.0}, {23.12, 2.205}}},      // 17
    {{{41.58, 2.49}, {147.55, 8.28}, {129.2, 8.7}, {26.23, 2.285}}},       // 18
    {{{45.0, 2.59}, {160.29, 8.595}, {140.4, 9.2}, {29.25, 2.33}}},        // 19
    {{{48.22, 2.71}, {172.47, 9.035}, {151.4, 9.8}, {32.23, 2.4}}},        // 20
    {{{51.43, 2.785}, {184.21, 9.44}, {162.3, 10.35}, {35.05, 2.475}}},    // 21
    {{{54.53, 2.885}, {195.74, 9.705}, {173.0, 10.85}, {37.87, 2.52}}},    // 22
    {{{57.51, 2.97}, {206.64, 10.06}, {183.6, 11.35}, {40.5, 2.605}}},     // 23
    {{{60.42, 3.04}, {217.18, 10.41}, {194.0, 12.0}, {43.16, 2.63}}},      // 24
    {{{63.25, 3.085}, {227.32, 10.745}, {204.4, 12.45}, {45.69, 2.695}}},  // 25
    {{{65.94, 3.165}, {236.72, 11.255}, {214.5, 13.05}, {48.17, 2.725}}},  // 26
    {{{68.55, 3.225}, {246.0, 11.565}, {224.5, 13.55}, {50.53, 2.78}}},    // 27
    {{{71.03, 3.285}, {254.77, 11.69}, {234.4, 14.1}, {52.8, 2.825}}},     // 28
    {{{73.5, 3.295}, {263.0, 12.28}, {244.0, 14.65}, {54.94, 2.89}}},      // 29
    {{{75.8, 3.36}, {270.84, 12.58}, {253.6, 15.05}, {57.13, 2.895}}},     // 30
    {{{78.0, 3.4}, {278.33, 12.97}, {263.0, 15.7}, {59.15, 2.945}}},       // 31
    {{{80.16, 3.42}, {285.29, 13.355}, {272.0, 16.2}, {61.11, 2.98}}},     // 32
    {{{82.14, 3.45}, {292.0, 13.55}, {281.0, 16.8}, {63.0, 3.015}}},       // 33
    {{{84.07, 3.465}, {298.1, 13.905}, {290.2, 17.3}, {64.76, 3.04}}},     // 34
    {{{85.9, 3.465}, {303.62, 14.27}, {298.8, 17.85}, {66.47, 3.08}}},     // 35
    {{{87.61, 3.475}, {308.81, 14.595}, {307.4, 18.45}, {68.13, 3.085}}},  // 36
    {{{89.24, 3.475}, {313.52, 14.91}, {316.0, 18.9}, {69.63, 3.13}}},     // 37
    {{{90.7, 3.48}, {317.88, 15.205}, {324.7, 19.15}, {71.11, 3.15}}},     // 38
    {{{92.1, 3.475}, {321.86, 15.405}, {332.4, 19.9}, {72.48, 3.18}}},     // 39
    {{{93.45, 3.43}, {324.0, 16.0}, {339.0, 20.5}, {73.79, 3.19}}},        // 40
}};

DatabaseRecord row(MeanAndSD (*curve)(Measurement, double), Measurement measurement, int week) {
  const double w = week;
  const auto [mean, sd] = curve(measurement, w);
  return DatabaseRecord::initWithData(w, mean, sd);
}

DatabaseRecord westerwayRow(Measurement measurement, int week) { return row(westerway, measurement, week); }
DatabaseRecord hadlockRow(Measurement measurement, int week) { return row(hadlock, measurement, week); }
DatabaseRecord schluterRow(Measurement measurement, int week) { return row(schluter, measurement, week); }
DatabaseRecord cfefRow(Measurement measurement, int week) {
  const auto& [mean, sd] = kCFEFWeeks.at(static_cast<std::size_t>(week - kFirstCFEFWeek))
                               .at(static_cast<std::size_t>(measurement));
  return DatabaseRecord::initWithData(week, mean, sd);
}

}  // namespace

std::span<const GrowthStandard, kGrowthStandardCount> growthStandards() {
  static constexpr std::array<GrowthStandard, kGrowthStandardCount> kStandards{{
      {"Westerway (ASUM 2001)", "westerway", 11, 41, westerwayRow},
      {"Hadlock (1984)", "hadlock", 12, 40, hadlockRow},
      {"Schluter (2004)", "schluter", 11, 41, schluterRow},
      {"CFEF (Biométrie 2000)", "cfef", kFirstCFEFWeek, 40, cfefRow, 0.0},
  }};
  return kStandards;
}

const GrowthStandard* growthStandard(std::int64_t standard) {
  const auto standards = growthStandards();
  if (standard < 0 || std::cmp_greater_equal(standard, standards.size())) return nullptr;
  return &standards[static_cast<std::size_t>(standard)];
}

void appendStandard(ReferenceTable& table, std::int64_t standard, Measurement measurement) {
  const GrowthStandard* chosen = growthStandard(standard);
  if (!chosen) return;
  for (int week = chosen->firstWeek; week <= chosen->lastWeek; ++week) {
    table.push_back(chosen->row(measurement, week));
  }
}

std::string growthStandardTitle(std::int64_t standard, const foundation::Localizer& localizer) {
  const GrowthStandard* chosen = growthStandard(standard);
  return localizer.text("", "Nascor Standard: ") + std::string(chosen ? chosen->label : "");
}

ReferenceTable fetalWeightTable(const ReferenceTable& bpd, const ReferenceTable& hc, const ReferenceTable& ac,
                                const ReferenceTable& fl, std::int64_t fetalWeightStandard) {
  const WeightFormula* formula = weightFormula(fetalWeightStandard);
  const double factor = formula ? formula->sdFactor : 0.0;
  const auto mean = [](const ReferenceTable& table, std::size_t i) {
    return i < table.size() ? table[i].mean() : 0.0;
  };

  ReferenceTable weights;
  weights.reserve(bpd.size());
  for (std::size_t i = 0; i < bpd.size(); ++i) {
    const Biometry means{.bpd = mean(bpd, i), .hc = mean(hc, i), .ac = mean(ac, i), .fl = mean(fl, i)};
    const double weight = estimatedFetalWeight(means, fetalWeightStandard);
    weights.push_back(DatabaseRecord::initWithData(bpd[i].observation(), weight, weight * factor));
  }
  return weights;
}

}  // namespace nascor::calc
