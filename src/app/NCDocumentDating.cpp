// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Menstrual age, crown-rump length, planned delivery.

#include <optional>

#include "app/NCDocument.h"
#include "calc/Dating.h"

namespace nascor::app {

double NCDocument::menstrualAgeForRecord(std::uint64_t exam) const {
  const model::NCRecord* record = examination(static_cast<std::int64_t>(exam));
  return record ? calc::menstrualAge(record->examDate(), patientRecord_->edd()) : 0.0;
}

std::string NCDocument::menstrualAgeStringForRecord(std::uint64_t exam) const {
  return menstrualAgeStringForGestation(menstrualAgeForRecord(exam));
}

std::string NCDocument::menstrualAgeStringForGestation(double weeks) const {
  return calc::gestationText(weeks, services().localizer);
}

double NCDocument::menstrualAgeFromCRLHadlock(double crl) const {
  return calc::menstrualAgeFromCRLHadlock(crl);
}
double NCDocument::menstrualAgeFromCRLNelson(double crl) const {
  return calc::menstrualAgeFromCRLNelson(crl);
}
double NCDocument::menstrualAgeFromCRLRobinson(double crl) const {
  return calc::menstrualAgeFromCRLRobinson(crl);
}
double NCDocument::menstrualAgeFromCRLWesterway(double crl) const {
  return calc::menstrualAgeFromCRLWesterway(crl);
}

bool NCDocument::canAdjustDelivery() const { return patientRecord_ && patientRecord_->edd(); }

void NCDocument::doAdjustDeliveryDate(Sender) { deliveryPanel_.open(); }

void NCDocument::adjustDeliveryDate(Sender sender) {
  if (!patientRecord_) return;
  std::optional<OneStep> step;
  if (sender != this) {
    step.emplace(*this);
    gestationInFile_.reset();
  }
  patientRecord_->setExtrapolatedGestation(deliveryPanel_.plannedGestation());
  if (!patientRecord_->edd()) return;
  deliveryPanel_.show(*patientRecord_->edd());
  if (sender != this) directUpdateDisplayAndSetDirty(true);
}

void NCDocument::updateAdjustDeliveryStepperForNewStandard() {
  deliveryPanel_.limitFor(standard());
  adjustDeliveryDate(this);
}

}  // namespace nascor::app
