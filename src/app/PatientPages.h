// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <deque>
#include <vector>

#include "calc/Biometry.h"
#include "charts/ChartDocument.h"
#include "charts/NascorDataView.h"
#include "charts/NascorGraphView.h"
#include "foundation/Services.h"
#include "framework/MakeView.h"
#include "framework/Page.h"
#include "model/PatientPage.h"

namespace nascor::app {

/// The pages of a document, those of `model::kPatientPages`, and the views on them.
class PatientPages {
 public:
  /// The views belong to `document`, which outlives them.
  PatientPages(const foundation::Services& services, charts::ChartDocument& document);

  std::deque<framework::Page>& pages() { return pages_; }
  const std::deque<framework::Page>& pages() const { return pages_; }

  charts::NascorGraphView& graph(calc::Measurement length) const {
    return *graphs_.at(static_cast<std::size_t>(length));
  }
  charts::NascorGraphView& efwGraph() const { return *efwGraph_; }
  charts::NascorDataView& report() const { return *report_; }
  /// The charts whose marks that page shows; none for the report.
  std::vector<const charts::NascorGraphView*> graphsOn(model::PatientPage page) const;

 private:
  template <class View>
  View& add();
  template <class Summary>
  void addSummary(std::size_t row, std::size_t column);
  template <class Chart, class Strip>
  Chart* addChartPage(model::PatientPage which);

  framework::Page& page(model::PatientPage page) { return pages_.at(model::placeOf(page)); }
  void addTrends();
  void addCharts();

  foundation::Services services_;
  charts::ChartDocument& document_;
  std::vector<framework::ViewOwner<charts::UpdatingGraphView>> views_;
  std::array<charts::NascorGraphView*, calc::kMeasurements.size()> graphs_{};
  charts::NascorGraphView* efwGraph_ = nullptr;
  charts::NascorDataView* report_ = nullptr;
  std::deque<framework::Page> pages_;
};

}  // namespace nascor::app
