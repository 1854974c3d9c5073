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
  patientRecord_->setStandard(standard);
  gestationInFile_.reset();  // the plan is as late as the new standard permits, and stays so
  updateAdjustDeliveryStepperForNewStandard();
  services().notifications.post(NotificationName::updateStandards, this);
  services().defaults.setValue(defaults_key::standard, std::to_string(patientRecord_->standard()));
  refreshEDDfromMeasurements();
  assess();
}

void NCDocument::doSetEFWStandard(std::int64_t standard) {
  if (!patientRecord_) return;
  patientRecord_->setFetalWeightStandard(standard);
  services().notifications.post(NotificationName::updateStandards, this);
  services().defaults.setValue(defaults_key::estimatedFetalWeightStandard,
                               std::to_string(patientRecord_->fetalWeightStandard()));
  assess();
}

void NCDocument::doSetCRLStandard(std::int64_t standard) {
  if (!patientRecord_) return;
  patientRecord_->setCRLStandard(standard);
  crlStandardReference_.setText(calc::crlStandardTitle(standard, services().localizer));
  services().defaults.setValue(defaults_key::crlStandard, std::to_string(standard));
  assessDialogs();
}

void NCDocument::updateShowAll() { tabView().setNeedsDisplay(); }

}  // namespace nascor::app
