// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/MeasurementCharts.h"

#include <algorithm>
#include <utility>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"

namespace nascor::charts {

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
  setXTitle(localized("", "Menstrual Age (Weeks)"));
}

framework::Rect NoYaxisGraphView::offeredGraphRect() const {
  constexpr double kHeight = 10.0;
  const double height = std::min(kHeight, bounds().height);
  return {
      .x = bounds().x, .y = bounds().y + bounds().height - height, .width = bounds().width, .height = height};
}

void NoYaxisGraphView::drawXAxis() {
  drawCurrentWeek();
  NascorGraphView::drawXAxis();
}

void NoYaxisGraphView::drawCurrentWeek() {
  if (!owningDocument() || !owningDocument()->patientRecord()) return;
  const auto& examinations = owningDocument()->patientRecord()->ncRecordsArray();
  const std::int64_t exam = owningDocument()->currentExam();
  if (exam < 0 || std::cmp_greater_equal(exam, examinations.size())) return;
  const std::optional<double> week = calc::currentWeekOnAxis(
      examinations[static_cast<std::size_t>(exam)]->examDate(), owningDocument()->patientRecord()->edd());
  if (!week || !(*week >= 8.0 && *week < 42.0)) return;
  const framework::Point place = pointForXY(*week, 0.0);
  canvas().setColor(framework::NamedColor::red);
  framework::Path marker = framework::Path::line({place.x, place.y + 1.0}, {place.x, place.y - 5.0});
  marker.setLineWidth(3.0);
  canvas().strokePath(marker);
  canvas().setColor(framework::NamedColor::black);
}

void NoYaxisEFWGraphView::setReferenceTitle(const std::string& title) {
  const model::PatientRecord* patient = owningDocument() ? owningDocument()->patientRecord() : nullptr;
  const std::int64_t formula = patient ? patient->fetalWeightStandard() : 0;
  NoYaxisGraphView::setReferenceTitle(
      std::string(title).append(" / ").append(calc::shortFetalWeightTitle(formula, services().localizer)));
}

void TitledGraphView::initWithFrame(const framework::Rect& frame) {
  NoXaxisGraphView::initWithFrame(frame);
  setYTitle(localized("", facts_.yTitle));
  setMinY(0.0);
  setMaxY(facts_.maxY);
  setMajorYInterval(facts_.majorYInterval);
}

std::string TitledGraphView::valueText(double value) const {
  return foundation::fieldText(value, facts_.decimals, services().localizer.decimalSign())
      .append(" ")
      .append(localized("", facts_.unit));
}

const model::MeasurementsRecord* TitledGraphView::measurementsForFetus(std::uint64_t fetus,
                                                                       std::uint64_t exam) const {
  return owningDocument() ? owningDocument()->measurementsForFetus(static_cast<std::int64_t>(fetus),
                                                                   static_cast<std::int64_t>(exam))
                          : nullptr;
}

void MeasurementGraphView::appendStandard(std::int64_t standard) {
  calc::appendStandard(table(), standard, measurement_);
}

double MeasurementGraphView::valueForFetus(std::uint64_t fetus, std::uint64_t exam) const {
  const model::MeasurementsRecord* measured = measurementsForFetus(fetus, exam);
  return measured ? measured->biometry().*calc::memberFor(measurement_) : 0.0;
}

}  // namespace nascor::charts
