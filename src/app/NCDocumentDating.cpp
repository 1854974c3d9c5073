// Menstrual age, crown-rump length, planned delivery.

#include <optional>

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "calc/EditingBounds.h"

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

void NCDocument::doAdjustDeliveryDate(Sender) {
  adjustDeliveryPanel_.center();
  adjustDeliveryPanel_.makeKeyAndOrderFront();
}

void NCDocument::adjustDeliveryDate(Sender sender) {
  if (!patientRecord_) return;
  std::optional<OneStep> step;
  if (sender != this) {
    step.emplace(*this);
    gestationInFile_.reset();
  }
  const double days = adjustDeliveryStepper_.value();
  patientRecord_->setExtrapolatedGestation(calc::plannedGestation(days));
  if (!patientRecord_->edd()) return;
  adjustEDDField_.setText(shortDateText(patientRecord_->edd()));
  adjustDeliverOnField_.setText(
      shortDateText(calc::plannedDeliveryDate(*patientRecord_->edd(), days, services().calendar)));
  adjustDeliverAtField_.setText(menstrualAgeStringForGestation(patientRecord_->extrapolatedGestation()));
  if (sender != this) directUpdateDisplayAndSetDirty(true);
}

void NCDocument::updateAdjustDeliveryStepperForNewStandard() {
  adjustDeliveryStepper_.setMaximum(calc::plannedDeliveryDays(standard()).greatest);
  adjustDeliveryDate(this);
}

}  // namespace nascor::app
