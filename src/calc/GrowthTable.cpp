// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/GrowthTable.h"

#include "calc/Centile.h"
#include "calc/Standards.h"

namespace nascor::calc {

GrowthTable::GrowthTable(std::int64_t standard) {
  for (const Measurement measurement : kMeasurements) {
    ReferenceTable table;
    appendStandard(table, standard, measurement);
    weeks_.resize(table.size());
    for (std::size_t week = 0; week < table.size(); ++week) {
      weeks_[week].mean[static_cast<std::size_t>(measurement)] = table[week].mean();
      weeks_[week].sd[static_cast<std::size_t>(measurement)] = table[week].sd();
    }
    firstWeek_ = table.front().observation();
    lastWeek_ = table.back().observation();
  }
}

inline GrowthTable::Place GrowthTable::placeOf(double gestation) const {
  static constexpr Normals kNone{};
  const auto all = [](const Normals& week) { return Place{.low = week, .high = week, .part = 0.0}; };
  if (gestation == 0.0) return all(kNone);
  if (!(gestation <= lastWeek_)) return all(weeks_.back());
  if (gestation <= firstWeek_) return all(weeks_.front());
  // Exact: both are multiples of the last bit of `gestation`. So is the part of a week, and a week is 1.0 long. A whole week
  // is the end of the week before it, and there a sum may differ in its last bit from what the table says.
  const double weeks = gestation - firstWeek_;
  auto before = static_cast<std::size_t>(weeks);
  if (static_cast<double>(before) == weeks) --before;
  return {.low = weeks_[before], .high = weeks_[before + 1], .part = weeks - static_cast<double>(before)};
}

GrowthTable::Normals GrowthTable::at(double gestation) const {
  const Place place = placeOf(gestation);
  Normals found;
  for (std::size_t i = 0; i < found.mean.size(); ++i) {
    found.mean[i] = place.mean(i);
    found.sd[i] = place.sd(i);
  }
  return found;
}

std::array<double, kMeasurements.size()> GrowthTable::zScores(const Biometry& lengths,
                                                              double gestation) const {
  const Place place = placeOf(gestation);
  std::array<double, kMeasurements.size()> scores{lengths.bpd, lengths.hc, lengths.ac, lengths.fl};
  for (std::size_t i = 0; i < scores.size(); ++i) scores[i] = zScore(scores[i], place.mean(i), place.sd(i));
  return scores;
}

}  // namespace nascor::calc
