// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The colours of the charts as people see them: contrast by the Web Content Accessibility Guidelines 2.1 (relative luminance),
// dichromatic sight by the matrices of Machado, Oliveira and Fernandes, "A physiologically-based model for simulation of
// color vision deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (2009), severity 1.

#include "framework/Color.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace nascor::framework {
namespace {

using Channels = std::array<double, 3>;  // linear light

double linear(double value) {
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The light of `color` where it lies on `below`, both as sRGB from 0 to 1.
Channels on(NamedColor color, const Channels& below) {
  const Rgba value = valueOf(color);
  const auto mix = [&](double part, double under) {
    return part * value.alpha + under * (1.0 - value.alpha);
  };
  return {mix(value.red, below[0]), mix(value.green, below[1]), mix(value.blue, below[2])};
}

constexpr Channels kPaper{1.0, 1.0, 1.0};

struct Sight {
  std::string name;
  std::array<Channels, 3> matrix;
};
const std::array<Sight, 3> kSights{
    {{"normal", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
     {"protanopia",
      {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
     {"deuteranopia",
      {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}}}};

double luminance(const Channels& srgb, const Sight& sight) {
  constexpr Channels kWeights{0.2126, 0.7152, 0.0722};
  double sum = 0.0;
  for (std::size_t row = 0; row < 3; ++row) {
    double light = 0.0;
    for (std::size_t i = 0; i < 3; ++i) light += sight.matrix.at(row).at(i) * linear(srgb.at(i));
    sum += kWeights.at(row) * std::clamp(light, 0.0, 1.0);
  }
  return sum;
}

double contrast(const Channels& a, const Channels& b, const Sight& sight) {
  const auto [dark, light] = std::minmax({luminance(a, sight), luminance(b, sight)});
  return (light + 0.05) / (dark + 0.05);
}

struct Chart {
  const char* name;
  NamedColor points, mean, band;
};
constexpr std::array<Chart, 6> kCharts{
    {{"BPD", NamedColor::orange, NamedColor::moderateOrange, NamedColor::faintOrange},
     {"HC", NamedColor::red, NamedColor::moderateRed, NamedColor::quiteFaintRed},
     {"AC", NamedColor::blue, NamedColor::moderateBlue, NamedColor::quiteFaintBlue},
     {"FL", NamedColor::heavyGreen, NamedColor::heavyGreen, NamedColor::faintGreen},
     {"weight", NamedColor::heavyGray, NamedColor::heavyGray, NamedColor::faintGray},
     {"plain", NamedColor::blue, NamedColor::gray, NamedColor::quiteFaintBlue}}};

TEST(TheColoursOfTheCharts, standOutForEveryKindOfSight) {
  for (const Sight& sight : kSights) {
    for (const Chart& chart : kCharts) {
      SCOPED_TRACE(std::string(chart.name) + ", " + sight.name);
      const Channels band = on(chart.band, kPaper);
      const Channels discOnBand = on(NamedColor::faintGray, band);
      // Small shapes and thin lines need 3, texts (the captions bear the colour of the points) 4.5.
      EXPECT_GE(contrast(on(chart.points, kPaper), kPaper, sight), 4.5);
      EXPECT_GE(contrast(on(chart.points, kPaper), band, sight), 4.5);
      EXPECT_GE(contrast(on(chart.points, kPaper), discOnBand, sight), 3.0);
      EXPECT_GE(contrast(on(chart.mean, kPaper), band, sight), 3.0);
      // A band is an area: it is seen, and stays light enough.
      EXPECT_GE(contrast(band, kPaper, sight), 1.15);
      EXPECT_LE(contrast(band, kPaper, sight), 1.5);
      EXPECT_GE(contrast(discOnBand, band, sight), 1.15);
    }
  }
}

TEST(TheColoursOfTheCharts, keepTheirOrderInGrey) {
  for (const Chart& chart : kCharts) {
    const Sight& normal = kSights[0];
    const double points = luminance(on(chart.points, kPaper), normal);
    const double mean = luminance(on(chart.mean, kPaper), normal);
    EXPECT_LE(points, mean) << chart.name;
    EXPECT_LT(mean, luminance(on(chart.band, kPaper), normal)) << chart.name;
  }
}

}  // namespace
}  // namespace nascor::framework
