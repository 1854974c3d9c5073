#include "charts/MeasurementCharts.h"

#include <algorithm>

namespace nascor::charts {
namespace {

/// Identifiers of the growth standards, as the builders' names give them.
enum StandardIdentifier : std::int64_t { kASUM = 0, kHadlock = 1, kSchluter = 2, kCFEF = 3 };

}  // namespace

void NoXaxisGraphView::setGraphRect(const framework::Rect& rect) {
  NascorGraphView::setGraphRect(
      {.x = rect.x + 50.0, .y = rect.y + 5.0, .width = rect.width - 60.0, .height = rect.height - 10.0});
}

void NoYaxisGraphView::initWithFrame(const framework::Rect& frame) {
  NascorGraphView::initWithFrame(frame);
  setMinX(8.0);
  setMaxX(42.0);
  setMajorXInterval(4.0);
  setMinorXInterval(1.0);
  setXTitle(localized("Menstrual Age (Weeks)"));
}

framework::Rect NoYaxisGraphView::offeredGraphRect() const {
  constexpr double kHeight = 10.0;
  const double height = std::min(kHeight, bounds().height);
  return {
      .x = bounds().x, .y = bounds().y + bounds().height - height, .width = bounds().width, .height = height};
}

void MeasurementGraphView::initWithFrame(const framework::Rect& frame) {
  NoXaxisGraphView::initWithFrame(frame);
  setYTitle(localized(chart_.yTitle));
  setMinY(0.0);
  setMaxY(chart_.maxY);
  setMajorYInterval(chart_.majorYInterval);
}

void MeasurementGraphView::initASUMStandards() { calc::appendStandard(table(), kASUM, chart_.measurement); }

void MeasurementGraphView::initHadlockStandards() {
  calc::appendStandard(table(), kHadlock, chart_.measurement);
}

void MeasurementGraphView::initSchluterStandards() {
  calc::appendStandard(table(), kSchluter, chart_.measurement);
}

void MeasurementGraphView::initCFEFStandards() { calc::appendStandard(table(), kCFEF, chart_.measurement); }

double MeasurementGraphView::valueForFetus(std::uint64_t fetus, std::uint64_t exam) const {
  if (!owningDocument()) return 0.0;
  const model::MeasurementsRecord* measured = owningDocument()->measurementsForFetus(
      static_cast<std::int64_t>(fetus), static_cast<std::int64_t>(exam));
  return measured ? measured->biometry().*calc::memberFor(chart_.measurement) : 0.0;
}

}  // namespace nascor::charts
