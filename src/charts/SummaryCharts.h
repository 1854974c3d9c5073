// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "charts/MeasurementCharts.h"
#include "model/PatientPage.h"

namespace nascor::charts {

/// A chart as the trends page shows it: without vertical axis and frame. A double click in its band opens the chart's own
/// page.
template <class Chart, model::PatientPage kOwnPage>
class SummaryOf : public Chart {
 public:
  using Chart::Chart;

 protected:
  void drawYAxis() override {}
  void switchToSingleGraphFromTrends() override {
    if (this->owningDocument()) this->owningDocument()->switchToGraph(model::indexOf(kOwnPage));
  }
};

/// The one that keeps the legend, so that the page shows it once.
class BPDSummaryGraphView final : public SummaryOf<BPDGraphView, model::PatientPage::bpd> {
 public:
  using SummaryOf::SummaryOf;
  std::string_view className() const override { return "BPDSummaryGraphView"; }
  void initWithFrame(const framework::Rect& frame) override {
    SummaryOf::initWithFrame(frame);
    setMaxY(110.0);
  }
};

class HeadCircumferenceSummaryGraphView final
    : public SummaryOf<HeadCircumferenceGraphView, model::PatientPage::hc> {
 public:
  using SummaryOf::SummaryOf;
  std::string_view className() const override { return "HeadCircumferenceSummaryGraphView"; }

 protected:
  void drawLegend() override {}
};

class AbdoCircumferenceSummaryGraphView final
    : public SummaryOf<AbdoCircumferenceGraphView, model::PatientPage::ac> {
 public:
  using SummaryOf::SummaryOf;
  std::string_view className() const override { return "AbdoCircumferenceSummaryGraphView"; }

 protected:
  void drawLegend() override {}
};

class FemurLengthSummaryGraphView final : public SummaryOf<FemurLengthGraphView, model::PatientPage::fl> {
 public:
  using SummaryOf::SummaryOf;
  std::string_view className() const override { return "FemurLengthSummaryGraphView"; }

 protected:
  void drawLegend() override {}
};

}  // namespace nascor::charts
