// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "calc/Biometry.h"

namespace nascor::calc {

/// The means and standard deviations of one growth standard by whole week, those of the four lengths side by side: for many
/// look-ups of all four at one age. The numbers are those of `meanForGestation` and `sdForGestation`, to the last bit.
class GrowthTable {
 public:
  /// In millimetres, in the order of `kMeasurements`.
  struct Normals {
    std::array<double, kMeasurements.size()> mean;
    std::array<double, kMeasurements.size()> sd;
  };

  /// Precondition: there is such a standard.
  explicit GrowthTable(std::int64_t standard);

  /// At `gestation` weeks. All 0.0 for a gestation of exactly 0.0; the first week's at or below it, the last week's beyond it
  /// or for NaN.
  Normals at(double gestation) const;

  /// The z-scores of the four lengths by `at(gestation)`, whatever they are: one that was not measured has one too.
  std::array<double, kMeasurements.size()> zScores(const Biometry& lengths, double gestation) const;

 private:
  /// Where an age lies: two neighbouring weeks, and the part of the way from one to the other.
  struct Place {
    const Normals& low;
    const Normals& high;
    double part;
    double mean(std::size_t i) const { return low.mean[i] + part * (high.mean[i] - low.mean[i]); }
    double sd(std::size_t i) const { return low.sd[i] + part * (high.sd[i] - low.sd[i]); }
  };
  Place placeOf(double gestation) const;

  double firstWeek_ = 0.0;
  double lastWeek_ = 0.0;
  std::vector<Normals> weeks_;
};

}  // namespace nascor::calc
