// The three dialogs that set the EDD, and the question before an established one is modified.

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

using framework::Panel;
using framework::TextField;

void NCDocument::doSetEDDfromCRL(Sender) {
  if (crlWindowDate_.text().empty()) {
    crlWindowDate_.setText(shortDateText(services().clock.now()));
    crlWindow_.center();
  }
  crlWindow_.makeKeyAndOrderFront();
  assessDialogs();
  checkOverwriteEDD(crlWindow_);
}

void NCDocument::okSetEDDfromCRL(Sender) { enterEDD(eddFromCRL(), crlWindow_); }

NCDocument::ProposedEDD NCDocument::eddFromCRL() const { return eddFromCRL(Reading::held); }

NCDocument::ProposedEDD NCDocument::eddFromCRL(Reading reading) const {
  if (!patientRecord_) return {};
  ProposedEDD refused;
  const bool isTyped = reading == Reading::typed;
  const auto scan = isTyped ? dateFromTypedText(crlWindowDate_) : dateFromText(crlWindowDate_);
  if (!scan) refused.obstacles.push_back(&crlWindowDate_);
  const std::int64_t standard = patientRecord_->crlStandard();
  const double length = isTyped ? typedNumber(crlWindowCRL_) : crlWindowCRL_.doubleValue();
  const double age = calc::menstrualAgeFromCRL(length, standard);
  if (!calc::crlFormula(standard)) {
    refused.obstacles.push_back(&crlStandardReference_);
  } else if (age == 0.0) {
    refused.obstacles.push_back(&crlWindowCRL_);
  }
  if (!refused.obstacles.empty()) return refused;
  return proposed(calc::eddFromAgeAtScan(*scan, age, services().calendar), {&crlWindowDate_});
}

void NCDocument::doSetEDDfromLMP(Sender) {
  if (lmpWindowLMP_.text().empty()) lmpWindow_.center();
  lmpWindow_.makeKeyAndOrderFront();
  assessDialogs();
  checkOverwriteEDD(lmpWindow_);
}

void NCDocument::okSetEDDfromLMP(Sender) { enterEDD(eddFromLMP(), lmpWindow_); }

NCDocument::ProposedEDD NCDocument::eddFromLMP() const { return eddFromLMP(Reading::held); }

NCDocument::ProposedEDD NCDocument::eddFromLMP(Reading reading) const {
  const bool isTyped = reading == Reading::typed;
  const auto lmp = isTyped ? dateFromTypedText(lmpWindowLMP_) : dateFromText(lmpWindowLMP_);
  if (!lmp) return {.text = {}, .obstacles = {&lmpWindowLMP_}};
  ProposedEDD refused;
  const auto days = [&](const framework::IntegerField& field) {
    const auto typed = isTyped ? typedInteger(field) : field.integerValue();
    if (!typed) refused.obstacles.push_back(&field);
    return typed.value_or(0);
  };
  const std::int64_t cycle = days(lmpWindowCycleField_);
  const std::int64_t luteal = days(lmpWindowLutealField_);
  if (!refused.obstacles.empty()) return refused;
  const auto edd = calc::eddFromLMP(*lmp, cycle, luteal, services().calendar);
  return proposed(edd, {&lmpWindowCycleField_, &lmpWindowLutealField_});
}

void NCDocument::doSetEDDfromMeasurements(Sender) {
  updateEDDfromMeasurements(this);
  measurementsWindow_.center();
  measurementsWindow_.makeKeyAndOrderFront();
  assessDialogs();
  checkOverwriteEDD(measurementsWindow_);
}

void NCDocument::updateEDDfromMeasurements(Sender) {
  struct Row {
    const framework::NumberField& length;
    const charts::NascorGraphView& graph;
    const framework::CheckBox& check;
    TextField& text;
    double gestation = 0.0;
  };
  std::array<Row, 4> rows{
      {{bpdField_, *BPDGraph(), measurementsWindowBPDCheck_, measurementsWindowBPDGestation_},
       {hcField_, *HCGraph(), measurementsWindowHCCheck_, measurementsWindowHCGestation_},
       {acField_, *ACGraph(), measurementsWindowACCheck_, measurementsWindowACGestation_},
       {flField_, *FLGraph(), measurementsWindowFLCheck_, measurementsWindowFLGestation_}}};
  avGestation_ = 0.0;
  int checked = 0;
  for (Row& row : rows) {
    row.gestation = row.graph.gestationForMeasurement(row.length.doubleValue());
    if (!row.check.isOn()) continue;
    avGestation_ += row.gestation;
    ++checked;
  }
  if (checked > 1) avGestation_ /= checked;
  for (const Row& row : rows) {
    // At an average of 0 mean and deviation are 0 as well: whatever was measured is far from them.
    const double distance = std::abs(row.length.doubleValue() - row.graph.meanForGestation(avGestation_));
    row.text.setRed(distance > 2.0 * row.graph.sdForGestation(avGestation_));
    row.text.setText(menstrualAgeStringForGestation(row.gestation));
  }
  assessDialogs();
  measurementsWindowAvGestation_.setText(menstrualAgeStringForGestation(avGestation_));
}

void NCDocument::refreshEDDfromMeasurements() {
  if (measurementsWindow_.isShown()) updateEDDfromMeasurements(this);
}

void NCDocument::okSetEDDfromMeasurements(Sender) { enterEDD(eddFromMeasurements(), measurementsWindow_); }

NCDocument::ProposedEDD NCDocument::eddFromMeasurements() const {
  const model::NCRecord* exam = examination(currentExam());
  if (!exam || !exam->examDate()) return {.text = {}, .obstacles = {&examDateField()}};
  // An average of 0, with nothing checked, is dated like any other.
  return proposed(calc::eddFromMeasurements(*exam->examDate(), avGestation_, services().calendar),
                  {&examDateField()});
}

NCDocument::ProposedEDD NCDocument::proposed(const std::optional<foundation::Date>& date,
                                             std::vector<const TextField*> obstacles) const {
  const foundation::ShortDateForm form = foundation::dateForm(services().localizer);
  std::string text = shortDateText(date);
  // The records take the date from this text.
  if (text.empty() ||
      foundation::civilDayFromShortText(text, form) != foundation::localDay(*date, services().calendar)) {
    return {.text = {}, .obstacles = std::move(obstacles)};
  }
  return {.text = std::move(text), .obstacles = {}};
}

void NCDocument::enterEDD(const ProposedEDD& proposal, Panel& window) {
  if (!patientRecord_ || proposal.text.empty()) return;
  const OneStep step(*this);
  birthDateField().takeEditedText(proposal.text);
  cancelDialog(window);
  directUpdateDisplayAndSetDirty(true);
  adjustDeliveryDate(this);
}

void NCDocument::checkOverwriteEDD(Panel& window) {
  if (!patientRecord_ || !patientRecord_->edd()) return;
  const foundation::Localizer& localizer = services().localizer;
  environment().alerts.beginSheet(
      {.message = localizer.text("NCDocument", "EDD is already specified"),
       .information = localizer.text("NCDocument", "Are you sure you want to modify the established EDD?"),
       .defaultButton = localizer.text("CorvelDocument", "Modify"),
       .alternateButton = localizer.text("ZuVersion", "Cancel"),
       .window = &window},
      [this, &window](framework::AlertReturn returnCode) {
        checkOverwriteEDDAlertDidEnd(returnCode, window);
      });
}

void NCDocument::checkOverwriteEDDAlertDidEnd(framework::AlertReturn returnCode, Panel& contextInfo) {
  if (returnCode == framework::AlertReturn::defaultButton) {
    contextInfo.makeKeyAndOrderFront();
  } else {
    cancelDialog(contextInfo);
  }
}

void NCDocument::cancelDialog(Panel& window) {
  // Drops refused texts: a field that is not shown must not hold back every action.
  const std::array<std::pair<const Panel*, const TextField*>, 5> fields{
      {{&crlWindow_, &crlWindowDate_},
       {&crlWindow_, &crlWindowCRL_},
       {&lmpWindow_, &lmpWindowLMP_},
       {&lmpWindow_, &lmpWindowCycleField_},
       {&lmpWindow_, &lmpWindowLutealField_}}};
  for (const auto& [panel, field] : fields) {
    if (panel == &window && fieldEditor().field() == field) fieldEditor().revert();
  }
  window.close();
}

}  // namespace nascor::app
