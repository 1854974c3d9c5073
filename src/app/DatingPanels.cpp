// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/DatingPanels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "calc/Dating.h"
#include "calc/Plausibility.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

using calc::Measurement;
using framework::TextField;

void ProposedEDD::refuse(const TextField& field, const std::string& reason) {
  obstacles.push_back(&field);
  if (std::ranges::find(reasons, reason) == reasons.end()) reasons.push_back(reason);
}

ProposedEDD DatingPanel::proposed(const std::optional<foundation::Date>& date,
                                  const std::vector<const TextField*>& obstacles,
                                  const std::string& reason) const {
  const foundation::Services& services = reader_.services();
  const foundation::ShortDateForm form = foundation::dateForm(services.localizer);
  std::string text = reader_.shortDateText(date);
  // The records take the date from this text.
  if (text.empty() ||
      foundation::civilDayFromShortText(text, form) != foundation::localDay(*date, services.calendar)) {
    ProposedEDD refused;
    for (const TextField* each : obstacles) refused.refuse(*each, reason);
    return refused;
  }
  ProposedEDD proposal;
  proposal.text = std::move(text);
  return proposal;
}

std::string DatingPanel::whyNoDate(const TextField& field, Reading reading) const {
  const std::string typed = reader_.text(field, reading);
  return typed.empty() ? localizer().text("NCDocument", "Type the date.")
                       : localizer().text("NCDocument", "This is no date:") + " " + typed;
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
  if (!scan) refused.refuse(date, whyNoDate(date, reading));
  const double age = calc::menstrualAgeFromCRL(reader().number(length, reading), crlStandard);
  const calc::CRLFormula* formula = calc::crlFormula(crlStandard);
  if (formula == nullptr) {
    refused.refuse(standardReference, localizer().text("NCDocument", "No formula is chosen."));
  } else if (age == 0.0) {
    refused.refuse(length, whyNoAge(*formula, reading));
  }
  if (!refused.obstacles.empty()) return refused;
  return proposed(calc::eddFromAgeAtScan(*scan, age, reader().services().calendar), {&date},
                  localizer().text("NCDocument", "The EDD would lie outside the calendar."));
}

std::string CRLPanel::whyNoAge(const calc::CRLFormula& formula, Reading reading) const {
  if (reader().number(length, reading) == 0.0)
    return localizer().text("NCDocument", "Type the crown-rump length.");
  const auto number = [this](double value) {
    const int decimals = value == std::floor(value) ? 0 : 1;
    return foundation::fieldText(value, decimals, localizer().decimalSign());
  };
  return localizer().text("NCDocument", "The formula dates these lengths, in mm:") + " " +
         number(formula.least) + "\u2013" + number(formula.greatest);
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
  ProposedEDD refused;
  if (!day) {
    refused.refuse(lastPeriod, whyNoDate(lastPeriod, reading));
    return refused;
  }
  const auto days = [&](const framework::IntegerField& field) {
    const auto typed = reader().integer(field, reading);
    if (!typed) refused.refuse(field, localizer().text("NCDocument", "Type whole days."));
    return typed.value_or(0);
  };
  const std::int64_t cycleDays = days(cycle);
  const std::int64_t lutealDays = days(luteal);
  if (!refused.obstacles.empty()) return refused;
  const auto edd = calc::eddFromLMP(*day, cycleDays, lutealDays, reader().services().calendar);
  ProposedEDD proposal =
      proposed(edd, {&cycle, &luteal}, localizer().text("NCDocument", "There is no such cycle."));
  if (!proposal.text.empty()) proposal.remark = remarkOnCycle(cycleDays, lutealDays, reading);
  return proposal;
}

std::string LastPeriodPanel::remarkOnCycle(std::int64_t cycleDays, std::int64_t lutealDays,
                                           Reading reading) const {
  if (calc::isUsualCycle(cycleDays, lutealDays)) return {};
  const bool isEmpty = reader().text(cycle, reading).empty() || reader().text(luteal, reading).empty();
  return isEmpty ? localizer().text("NCDocument", "An empty number of days counts as 0.")
                 : localizer().text("NCDocument",
                                    "Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.");
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
  if (!examDate) {
    ProposedEDD refused;
    refused.refuse(examDateField, localizer().text("NCDocument", "The examination has no date."));
    return refused;
  }
  // An average of 0, with nothing checked, is dated like any other.
  return proposed(calc::eddFromMeasurements(*examDate, averageGestation_, reader().services().calendar),
                  {&examDateField},
                  localizer().text("NCDocument", "The EDD would lie outside the calendar."));
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
