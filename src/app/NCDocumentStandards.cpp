// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The choice of growth standard, weight formula and formula for the crown-rump length.

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "foundation/UserDefaults.h"

namespace nascor::app {

using foundation::NotificationName;
namespace defaults_key = foundation::defaults_key;

std::int64_t NCDocument::standard() const { return patientRecord_ ? patientRecord_->standard() : 0; }

std::int64_t NCDocument::fetalWeightStandard() const {
  return patientRecord_ ? patientRecord_->fetalWeightStandard() : 0;
}

// The preference is stored after everybody has heard of the choice: it is for the patients to come.

void NCDocument::doSetStandard(std::int64_t standard) {
  if (!patientRecord_) return;
  const OneStep step(*this);
  patientRecord_->setStandard(standard);
  gestationInFile_.reset();  // the plan is as late as the new standard permits, and stays so
  updateAdjustDeliveryStepperForNewStandard();
  services().notifications.post(NotificationName::updateStandards, this);
  prefer(defaults_key::standard, patientRecord_->standard());
  refreshEDDfromMeasurements();
  assess();
}

void NCDocument::doSetEFWStandard(std::int64_t standard) {
  if (!patientRecord_) return;
  const OneStep step(*this);
  patientRecord_->setFetalWeightStandard(standard);
  services().notifications.post(NotificationName::updateStandards, this);
  prefer(defaults_key::estimatedFetalWeightStandard, patientRecord_->fetalWeightStandard());
  assess();
}

void NCDocument::doSetCRLStandard(std::int64_t standard) {
  if (!patientRecord_) return;
  const OneStep step(*this);
  patientRecord_->setCRLStandard(standard);
  crlPanel_.standardReference.setText(calc::crlStandardTitle(standard, services().localizer));
  prefer(defaults_key::crlStandard, standard);
  assessDialogs();
}

void NCDocument::prefer(std::string_view key, std::int64_t value) {
  foundation::UserDefaults& defaults = services().defaults;
  std::string after = std::to_string(value);
  preference_ = {.key = std::string(key), .before = defaults.value(key), .after = after};
  defaults.setValue(key, std::move(after));
}

void NCDocument::updateShowAll() { tabView().setNeedsDisplay(); }

}  // namespace nascor::app
