#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "calc/Biometry.h"
#include "charts/ChartDocument.h"
#include "charts/NascorDataView.h"
#include "charts/NascorGraphView.h"
#include "foundation/Services.h"
#include "framework/MakeView.h"
#include "framework/Page.h"

namespace nascor::app {

/// The pages of a document and the views on them: trends, a page for each measurement, weight, report.
class PatientPages {
 public:
  /// The views belong to `document`, which outlives them.
  PatientPages(const foundation::Services& services, charts::ChartDocument& document);

  static constexpr std::size_t kNumberOfPages = 7;
  static constexpr std::int64_t kWeightPage = 5;
  static constexpr std::int64_t kReportPage = 6;

  std::array<framework::Page, kNumberOfPages>& pages() { return pages_; }
  const std::array<framework::Page, kNumberOfPages>& pages() const { return pages_; }

  charts::NascorGraphView& graph(calc::Measurement length) const {
    return *graphs_.at(static_cast<std::size_t>(length));
  }
  charts::NascorGraphView& efwGraph() const { return *efwGraph_; }
  charts::NascorDataView& report() const { return *report_; }

 private:
  template <class View>
  View& add();
  template <class Summary>
  void addSummary(std::size_t row, std::size_t column);
  template <class Chart, class Strip>
  Chart& addChartPage(std::size_t page);

  void addTrends();
  void addCharts();

  foundation::Services services_;
  charts::ChartDocument& document_;
  std::vector<framework::ViewOwner<charts::UpdatingGraphView>> views_;
  std::array<charts::NascorGraphView*, calc::kMeasurements.size()> graphs_{};
  charts::NascorGraphView* efwGraph_ = nullptr;
  charts::NascorDataView* report_ = nullptr;
  std::array<framework::Page, kNumberOfPages> pages_{
      framework::Page(foundation::translatable("MyDocument", "Trends")),
      framework::Page(foundation::translatable("MyDocument", "BPD")),
      framework::Page(foundation::translatable("MyDocument", "HC")),
      framework::Page(foundation::translatable("MyDocument", "AC")),
      framework::Page(foundation::translatable("MyDocument", "FL")),
      framework::Page(foundation::translatable("MyDocument", "Weight")),
      framework::Page(foundation::translatable("MyDocument", "Report"))};
};

}  // namespace nascor::app
