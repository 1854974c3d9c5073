// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The three dialogs that set the EDD, and the question before an established one is modified.

#include <algorithm>

#include "app/NCDocument.h"
#include "foundation/Localizer.h"

namespace nascor::app {

using framework::Panel;

void NCDocument::doSetEDDfromCRL(Sender) {
  crlPanel_.open();
  assessDialogs();
  checkOverwriteEDD(crlPanel_.panel());
}

void NCDocument::okSetEDDfromCRL(Sender) { enterEDD(eddFromCRL(), crlPanel_.panel()); }

ProposedEDD NCDocument::eddFromCRL(Reading reading) const {
  return patientRecord_ ? crlPanel_.proposedEDD(patientRecord_->crlStandard(), reading) : ProposedEDD{};
}

void NCDocument::doSetEDDfromLMP(Sender) {
  lastPeriodPanel_.open();
  assessDialogs();
  checkOverwriteEDD(lastPeriodPanel_.panel());
}

void NCDocument::okSetEDDfromLMP(Sender) { enterEDD(eddFromLMP(), lastPeriodPanel_.panel()); }

ProposedEDD NCDocument::eddFromLMP(Reading reading) const { return lastPeriodPanel_.proposedEDD(reading); }

void NCDocument::doSetEDDfromMeasurements(Sender) {
  updateEDDfromMeasurements(this);
  measurementsPanel_.open();
  assessDialogs();
  checkOverwriteEDD(measurementsPanel_.panel());
}

void NCDocument::updateEDDfromMeasurements(Sender) {
  measurementsPanel_.dateLengths(heldLengths(), pages_);
  assessDialogs();
  measurementsPanel_.showAverage();
}

void NCDocument::refreshEDDfromMeasurements() {
  if (measurementsPanel_.panel().isShown()) updateEDDfromMeasurements(this);
}

void NCDocument::okSetEDDfromMeasurements(Sender) {
  enterEDD(eddFromMeasurements(), measurementsPanel_.panel());
}

ProposedEDD NCDocument::eddFromMeasurements() const {
  const model::NCRecord* exam = examination(currentExam());
  return measurementsPanel_.proposedEDD(exam != nullptr ? exam->examDate() : std::nullopt, examDateField());
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
  for (const DatingPanel* each : datingPanels_) {
    const bool isInEdit = std::ranges::find(each->fields(), fieldEditor().field()) != each->fields().end();
    if (&each->panel() == &window && isInEdit) fieldEditor().revert();
  }
  window.close();
}

}  // namespace nascor::app
