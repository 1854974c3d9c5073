// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "charts/MeasurementCharts.h"

namespace nascor::charts {

/// The chart of the estimated fetal weight in grams. Its rows are the weights of a fetus whose lengths are the means of
/// the document's four measurement charts, so they are rebuilt after all four have announced new rows.
class EFWGraphView final : public TitledGraphView {
 public:
  explicit EFWGraphView(const foundation::Services& services) : TitledGraphView(services, kWeightFacts) {}
  std::string_view className() const override { return "EFWGraphView"; }
  void initWithFrame(const framework::Rect& frame) override;
  void dealloc() override;

  double valueForFetus(std::uint64_t fetus, std::uint64_t exam) const override;
  std::optional<calc::Quantity> quantity() const override { return calc::Quantity::efw; }

  // Selector: initEFWStandards:
  /// Strikes the chart that announces itself from those awaited; the last one lets the rows be rebuilt.
  void initEFWStandards(const foundation::Notification& notification);
  /// Awaits the four measurement charts of the document, as far as it has them.
  void resetUpdatingGraphArray();

 private:
  /// The measurement charts of the document whose announcement is still to come.
  std::vector<const NascorGraphView*> updatingGraphArray_;
  foundation::Subscription subscription_;
};

}  // namespace nascor::charts
