// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/PatientPages.h"

#include "charts/EFWGraphView.h"
#include "charts/MeasurementCharts.h"
#include "charts/SummaryCharts.h"

namespace nascor::app {
namespace {

using framework::Rect;
using model::PatientPage;

constexpr double kMargin = 10.0;
constexpr double kTitleHeight = 30.0;
constexpr double kStripHeight = 50.0;
/// With room for the strip's two titles below each other.
constexpr double kHighStripHeight = 62.0;

/// Under the chart, as far to the right and as wide as the chart's plotting area.
Rect under(const Rect& chart, double height) {
  return {.x = chart.x + 50.0, .y = chart.y + chart.height, .width = chart.width - 60.0, .height = height};
}

// A chart page: its title line, the chart, the axis strip under it.

double stripHeight(double pageWidth) {
  return pageWidth < framework::Page::kWidth ? kHighStripHeight : kStripHeight;
}

Rect chartPlacement(double width, double height) {
  return {.x = kMargin,
          .y = kTitleHeight,
          .width = width - 2.0 * kMargin,
          .height = height - kTitleHeight - stripHeight(width) - kMargin};
}

Rect stripPlacement(double width, double height) {
  return under(chartPlacement(width, height), stripHeight(width));
}

// The trends: two rows and two columns of charts, each with its caption above it; a strip under each column.

constexpr double kCaptionHeight = 18.0;
constexpr std::size_t kRows = 2;

Rect summaryPlacement(std::size_t row, std::size_t column, double width, double height) {
  const double columnWidth = (width - 2.0 * kMargin) / 2.0;
  const double rowHeight = (height - kTitleHeight - kHighStripHeight) / static_cast<double>(kRows);
  return {.x = kMargin + static_cast<double>(column) * columnWidth,
          .y = kTitleHeight + static_cast<double>(row) * rowHeight + kCaptionHeight,
          .width = columnWidth,
          .height = rowHeight - kCaptionHeight};
}

framework::Page::Placement summary(std::size_t row, std::size_t column) {
  return [row, column](double width, double height) { return summaryPlacement(row, column, width, height); };
}

framework::Page::Placement captionOver(std::size_t row, std::size_t column) {
  return [row, column](double width, double height) {
    const Rect chart = summaryPlacement(row, column, width, height);
    return Rect{.x = chart.x + 50.0,
                .y = chart.y - kCaptionHeight + 4.0,
                .width = chart.width - 60.0,
                .height = 14.0};
  };
}

framework::Page::Placement trendsStrip(std::size_t column) {
  return [column](double width, double height) {
    return under(summaryPlacement(kRows - 1, column, width, height), kHighStripHeight);
  };
}

Rect wholePage(double width, double height) { return {.x = 0.0, .y = 0.0, .width = width, .height = height}; }

}  // namespace

template <class View>
View& PatientPages::add() {
  auto view = framework::make<View>(services_, {});
  view->setOwningDocument(&document_);
  View& added = *view;
  views_.push_back(std::move(view));
  return added;
}

template <class Summary>
void PatientPages::addSummary(std::size_t row, std::size_t column) {
  auto& chart = add<Summary>();
  page(PatientPage::trends).addCaption(chart.yTitle(), chart.facts().points, captionOver(row, column));
  page(PatientPage::trends).addView(chart, summary(row, column));
}

template <class Chart, class Strip>
Chart* PatientPages::addChartPage(PatientPage which) {
  auto& chart = add<Chart>();
  page(which).addView(chart, chartPlacement);
  page(which).addView(add<Strip>(), stripPlacement);
  return &chart;
}

PatientPages::PatientPages(const foundation::Services& services, charts::ChartDocument& document)
    : services_(services), document_(document) {
  for (const model::PatientPageFacts& each : model::kPatientPages) pages_.emplace_back(each.name);
  addTrends();
  addCharts();
}

void PatientPages::addTrends() {
  addSummary<charts::BPDSummaryGraphView>(0, 0);
  addSummary<charts::HeadCircumferenceSummaryGraphView>(0, 1);
  addSummary<charts::AbdoCircumferenceSummaryGraphView>(1, 0);
  addSummary<charts::FemurLengthSummaryGraphView>(1, 1);
  for (const std::size_t column : {0U, 1U}) {
    page(PatientPage::trends).addView(add<charts::NoYaxisGraphView>(), trendsStrip(column));
  }
}

void PatientPages::addCharts() {
  using charts::NoYaxisGraphView;
  graphs_ = {addChartPage<charts::BPDGraphView, NoYaxisGraphView>(PatientPage::bpd),
             addChartPage<charts::HeadCircumferenceGraphView, NoYaxisGraphView>(PatientPage::hc),
             addChartPage<charts::AbdoCircumferenceGraphView, NoYaxisGraphView>(PatientPage::ac),
             addChartPage<charts::FemurLengthGraphView, NoYaxisGraphView>(PatientPage::fl)};
  efwGraph_ = addChartPage<charts::EFWGraphView, charts::NoYaxisEFWGraphView>(PatientPage::weight);
  report_ = &add<charts::NascorDataView>();
  page(PatientPage::report).addView(*report_, wholePage);
}

std::vector<const charts::NascorGraphView*> PatientPages::graphsOn(PatientPage page) const {
  if (const auto length = model::factsOf(page).length) return {&graph(*length)};
  if (page == PatientPage::trends) return {graphs_.begin(), graphs_.end()};
  if (page == PatientPage::weight) return {efwGraph_};
  return {};
}

}  // namespace nascor::app
