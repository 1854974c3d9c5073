#include "app/DatingPanels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

using calc::Measurement;
using framework::TextField;

ProposedEDD DatingPanel::proposed(const std::optional<foundation::Date>& date,
                                  std::vector<const TextField*> obstacles) const {
  const foundation::Services& services = reader_.services();
  const foundation::ShortDateForm form = foundation::dateForm(services.localizer);
  std::string text = reader_.shortDateText(date);
  // The records take the date from this text.
  if (text.empty() ||
      foundation::civilDayFromShortText(text, form) != foundation::localDay(*date, services.calendar)) {
    return {.text = {}, .obstacles = std::move(obstacles)};
  }
  return {.text = std::move(text), .obstacles = {}};
}

CRLPanel::CRLPanel(const FieldReader& reader)
    : DatingPanel("crlWindow", reader), length("crlWindowCRL", 1, reader.services().localizer) {
  setFields({&date, &length, &standardReference});
}

void CRLPanel::open() {
  if (date.text().empty()) {
    date.setText(reader().shortDateText(reader().services().clock.now()));
    panel().center();
  }
  panel().makeKeyAndOrderFront();
}

ProposedEDD CRLPanel::proposedEDD(std::int64_t crlStandard, Reading reading) const {
  ProposedEDD refused;
  const auto scan = reader().date(date, reading);
  if (!scan) refused.obstacles.push_back(&date);
  const double age = calc::menstrualAgeFromCRL(reader().number(length, reading), crlStandard);
  if (calc::crlFormula(crlStandard) == nullptr) {
    refused.obstacles.push_back(&standardReference);
  } else if (age == 0.0) {
    refused.obstacles.push_back(&length);
  }
  if (!refused.obstacles.empty()) return refused;
  return proposed(calc::eddFromAgeAtScan(*scan, age, reader().services().calendar), {&date});
}

LastPeriodPanel::LastPeriodPanel(const FieldReader& reader) : DatingPanel("lmpWindow", reader) {
  setFields({&lastPeriod, &cycle, &luteal});
  // The usual cycle, to be typed over.
  cycle.setIntegerValue(28);
  luteal.setIntegerValue(14);
}

void LastPeriodPanel::open() {
  if (lastPeriod.text().empty()) panel().center();
  panel().makeKeyAndOrderFront();
}

ProposedEDD LastPeriodPanel::proposedEDD(Reading reading) const {
  const auto day = reader().date(lastPeriod, reading);
  if (!day) return {.text = {}, .obstacles = {&lastPeriod}};
  ProposedEDD refused;
  const auto days = [&](const framework::IntegerField& field) {
    const auto typed = reader().integer(field, reading);
    if (!typed) refused.obstacles.push_back(&field);
    return typed.value_or(0);
  };
  const std::int64_t cycleDays = days(cycle);
  const std::int64_t lutealDays = days(luteal);
  if (!refused.obstacles.empty()) return refused;
  const auto edd = calc::eddFromLMP(*day, cycleDays, lutealDays, reader().services().calendar);
  return proposed(edd, {&cycle, &luteal});
}

MeasurementsPanel::MeasurementsPanel(const FieldReader& reader) : DatingPanel("measurementsWindow", reader) {
  setFields({&row(Measurement::bpd).gestation, &row(Measurement::hc).gestation,
             &row(Measurement::ac).gestation, &row(Measurement::fl).gestation, &average});
}

void MeasurementsPanel::open() {
  panel().center();
  panel().makeKeyAndOrderFront();
}

void MeasurementsPanel::dateLengths(const calc::Biometry& lengths, const PatientPages& pages) {
  std::array<double, calc::kMeasurements.size()> gestations{};
  averageGestation_ = 0.0;
  int checked = 0;
  for (const Measurement measurement : calc::kMeasurements) {
    const double gestation =
        pages.graph(measurement).gestationForMeasurement(lengths.*calc::memberFor(measurement));
    gestations.at(static_cast<std::size_t>(measurement)) = gestation;
    if (!row(measurement).check.isOn()) continue;
    averageGestation_ += gestation;
    ++checked;
  }
  if (checked > 1) averageGestation_ /= checked;
  for (const Measurement measurement : calc::kMeasurements) {
    const charts::NascorGraphView& graph = pages.graph(measurement);
    // At an average of 0 mean and deviation are 0 as well: whatever was measured is far from them.
    const double distance =
        std::abs(lengths.*calc::memberFor(measurement) - graph.meanForGestation(averageGestation_));
    TextField& text = row(measurement).gestation;
    text.setRed(distance > 2.0 * graph.sdForGestation(averageGestation_));
    text.setText(calc::gestationText(gestations.at(static_cast<std::size_t>(measurement)),
                                     reader().services().localizer));
  }
}

void MeasurementsPanel::showAverage() {
  average.setText(calc::gestationText(averageGestation_, reader().services().localizer));
}

ProposedEDD MeasurementsPanel::proposedEDD(const std::optional<foundation::Date>& examDate,
                                           const TextField& examDateField) const {
  if (!examDate) return {.text = {}, .obstacles = {&examDateField}};
  // An average of 0, with nothing checked, is dated like any other.
  return proposed(calc::eddFromMeasurements(*examDate, averageGestation_, reader().services().calendar),
                  {&examDateField});
}

DeliveryPanel::DeliveryPanel(const FieldReader& reader) : DatingPanel("adjustDeliveryPanel", reader) {
  setFields({&edd, &deliverOn, &deliverAt});
}

void DeliveryPanel::open() {
  panel().center();
  panel().makeKeyAndOrderFront();
}

void DeliveryPanel::setPlannedDays(double days, std::int64_t growthStandard) {
  stepper.setMinimum(std::min(stepper.minimum(), std::floor(days)));
  limitFor(growthStandard);
  stepper.setValue(days);
}

void DeliveryPanel::limitFor(std::int64_t growthStandard) {
  stepper.setMaximum(calc::plannedDeliveryDays(growthStandard).greatest);
}

double DeliveryPanel::plannedGestation() const { return calc::plannedGestation(stepper.value()); }

void DeliveryPanel::show(foundation::Date dueDate) {
  const foundation::Services& services = reader().services();
  edd.setText(reader().shortDateText(dueDate));
  deliverOn.setText(
      reader().shortDateText(calc::plannedDeliveryDate(dueDate, stepper.value(), services.calendar)));
  deliverAt.setText(calc::gestationText(plannedGestation(), services.localizer));
}

}  // namespace nascor::app
