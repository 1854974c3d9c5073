// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The document's window: loading, fields to records and back, the rules of editing, the title.

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "foundation/Calendar.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"
#include "foundation/Utf8.h"

namespace nascor::app {

using calc::Measurement;
using foundation::Date;
using framework::TextField;

void NCDocument::windowControllerDidLoadNib() {
  examDateWasTyped_ = false;
  examinationWasAdded_ = false;
  madeNow_.reset();
  statusLine().clear();
  if (!patientRecord_) {
    patientRecord_ = std::make_unique<model::PatientRecord>(services().clock, services().defaults);
    madeNow_ = patientRecord_->ncRecordsArray().front()->examDate();
    setLookUpRequired(true);
  }
  showAllSubscription_ =
      services().notifications.subscribe(foundation::NotificationName::updateShowAll,
                                         [this](const foundation::Notification&) { updateShowAll(); });

  gestationInFile_ = patientRecord_->extrapolatedGestation();
  deliveryPanel_.setPlannedDays(calc::plannedDays(*gestationInFile_, standard()), standard());

  setCurrentExam(lastExam());
  setCurrentFetus(0);
  // A document that is read again has a fetus selected already.
  if (multiplePopUp_.numberOfItems() > 0) multiplePopUp_.selectItemAtIndex(0);
  updateMultiplePopUp();
  showPatient();
  doSetCRLStandard(patientRecord_->crlStandard());
  beginHistory();
}

void NCDocument::showPatient() {
  const OneStep step(*this);
  synchronizeFromData();
  services().notifications.post(foundation::NotificationName::updateStandards, this);
  updateAdjustDeliveryStepperForNewStandard();
  refreshEDDfromMeasurements();
  // The charts have had the document's own standard only since it was posted.
  assess();
}

void NCDocument::windowWillClose() { showAllSubscription_.reset(); }

void NCDocument::synchronizeFromData() {
  if (!patientRecord_) return;
  // Before anything is shown or stored: fields of which some are read would be those of two patients.
  foundation::dateForm(services().localizer);
  fieldEditor().revert();
  referenceIDField().setText(patientRecord_->maternalIDString().value_or(""));
  gravidaField_.setIntegerValue(patientRecord_->gravida());
  birthDateField().setText(reader_.shortDateText(patientRecord_->edd()));
  adjustDeliveryDate(this);

  const model::NCRecord* exam = currentExamination();
  examDateField().setText(exam ? reader_.shortDateText(exam->examDate()) : "");
  const model::MeasurementsRecord* measured = currentMeasurements();
  for (const Measurement measurement :
       {Measurement::hc, Measurement::bpd, Measurement::ac, Measurement::fl}) {
    if (measured) {
      fieldFor(measurement).setDoubleValue(measured->biometry().*calc::memberFor(measurement));
    } else {
      fieldFor(measurement).clear();
    }
  }
  notesField().setText(exam ? exam->note().value_or("") : "");
  showWhatTakesTyping();
  updateDisplay();
  refreshEDDfromMeasurements();
  if (!isInStep()) history_.moveTo({.examination = currentExam(), .fetus = currentFetus_});
}

void NCDocument::showWhatTakesTyping() {
  const bool hasExamination = currentExamination() != nullptr;
  examDateField().setEditable(hasExamination);
  notesField().setEditable(hasExamination);
  const bool hasRecord = currentMeasurements() != nullptr;
  for (const Measurement measurement : calc::kMeasurements) fieldFor(measurement).setEditable(hasRecord);
}

void NCDocument::synchronizeToData() {
  if (!patientRecord_) return;
  foundation::dateForm(services().localizer);
  // A file may lack a text. It is shown as an empty one, and stays missing until something is typed.
  if (referenceIDField().text() != patientRecord_->maternalIDString().value_or(""))
    patientRecord_->setMaternalIDString(referenceIDField().text());
  patientRecord_->setGravida(gravidaField_.integerValue());
  takeDates();
  notesField().forgetEdits();
  model::NCRecord* exam = currentExamination();
  if (!exam) return;
  if (model::MeasurementsRecord* measured = currentMeasurements()) {
    calc::Biometry lengths = measured->biometry();
    for (const Measurement measurement : calc::kMeasurements) {
      const framework::NumberField& field = fieldFor(measurement);
      if (!field.isStale()) lengths.*calc::memberFor(measurement) = field.doubleValue();
    }
    *measured = model::MeasurementsRecord(lengths);
  }
  if (notesField().text() != exam->note().value_or("")) exam->setNote(notesField().text());
}

void NCDocument::takeDates() {
  model::NCRecord* exam = currentExamination();
  const bool setsEDD = birthDateField().wasEdited();
  const bool setsExamDate = exam != nullptr && examDateField().wasEdited();
  if (setsEDD) patientRecord_->setEDD(reader_.date(birthDateField(), Reading::held));
  if (setsExamDate) exam->setExamDate(reader_.date(examDateField(), Reading::held));
  birthDateField().forgetEdits();
  examDateField().forgetEdits();

  const bool allToTheirDays = std::exchange(examinationWasAdded_, false) || setsEDD || setsExamDate;
  const std::optional<Date> madeNow = std::exchange(madeNow_, std::nullopt);
  if (allToTheirDays) patientRecord_->setEDD(beginningOfDay(patientRecord_->edd()));
  for (const auto& record : patientRecord_->ncRecordsArray()) {
    if (allToTheirDays || (madeNow && record->examDate() == madeNow))
      record->setExamDate(beginningOfDay(record->examDate()));
  }
}

std::optional<Date> NCDocument::beginningOfDay(const std::optional<Date>& date) const {
  if (!date) return date;
  const auto day = foundation::localDay(*date, services().calendar);
  return day ? foundation::startOfDay(*day, services().calendar) : date;
}

void NCDocument::updateDisplay() {
  CorvelDocument::updateDisplay();
  const std::string title = preferredFileName(true);
  const std::string shown = shownTitle(true);
  for (const model::PatientPageFacts& each : model::kPatientPages) setHeader(each.page, title, shown);
  ageField().setText(menstrualAgeStringForRecord(static_cast<std::uint64_t>(currentExam())));
  assess();
  tabView().setNeedsDisplay();
}

void NCDocument::setHeader(model::PatientPage page, const std::string& title, const std::string& shown) {
  TextField* field = fieldNamed(model::factsOf(page).titleField);
  if (field == nullptr) return;
  field->setText(title);
  pages_.pages().at(model::placeOf(page)).setTitle(shown);
}

void NCDocument::switchToGraph(std::int64_t tabIndex) { tabView().selectPage(tabIndex); }

bool NCDocument::controlTextShouldBeginEditing(TextField& field) {
  const foundation::Localizer& localizer = services().localizer;
  if (&field == &gravidaField_ && patientRecord_ && patientRecord_->gravida() != 0) {
    return mayModify(localizer.text("NCDocument", "Gravidity is already specified"),
                     localizer.text("NCDocument", "Are you sure you want to modify it?"));
  }
  if (&field == &birthDateField() && patientRecord_ && patientRecord_->edd()) {
    return mayModify(localizer.text("NCDocument", "EDD is already specified"),
                     localizer.text("NCDocument", "Are you sure you want to modify the established EDD?"));
  }
  return CorvelDocument::controlTextShouldBeginEditing(field);
}

bool NCDocument::controlTextShouldEndEditing(TextField& field, std::string_view text) {
  if (&field == &gravidaField_) {
    return foundation::integerFromFieldText(text).value_or(0) >= calc::kLeastGravida;
  }
  if (const auto measurement = measurementOf(field)) {
    return calc::editingBounds(*measurement).permit(foundation::numberFromFieldText(text).value_or(0.0));
  }
  return true;
}

void NCDocument::controlTextDidEndEditing(TextField& field) {
  const OneStep step(*this);
  setLookUpRequired(&field == &gravidaField_ && isBlank());
  if (&field == &examDateField()) examDateWasTyped_ = true;
  if (&field == &referenceIDField() && isBlank()) {
    field.takeEditedText(services().localizer.upperCased(field.text()));
  }
  const std::string name = preferredFileName(false);
  if (lookUpRequired() && !name.empty()) {
    setDocIsBlank(false);
    setLookUpRequired(false);
    lookUp(name, true);
    return;
  }
  const std::string typed = erasesDate(field) ? field.text() : "";
  updateArrayOrder();
  if (typed.empty()) return;
  const foundation::Localizer& localizer = services().localizer;
  const std::string what =
      &field == &birthDateField()
          ? localizer.text("NCDocument", "The EDD is empty now. This is no date: ")
          : localizer.text("NCDocument", "The examination has no date now. This is no date: ");
  statusLine().say(what + typed, &field);
}

bool NCDocument::erasesDate(const TextField& field) const {
  if (&field != &birthDateField() && &field != &examDateField()) return false;
  return field.text().find_first_not_of(" \t") != std::string::npos && !reader_.date(field, Reading::held);
}

std::string NCDocument::preferredFileName(bool withFetus) const {
  std::string name = referenceIDForFileName();
  return name.empty() ? name : name.append(gravidaAndFetus(withFetus));
}

std::string NCDocument::shownTitle(bool withFetus) const {
  const std::string name = foundation::shownLine(referenceIDForFileName());
  return name.empty() ? name : name + foundation::shownLine(gravidaAndFetus(withFetus));
}

std::string NCDocument::gravidaAndFetus(bool withFetus) const {
  std::string text = " (G" + std::to_string(patientRecord_ ? patientRecord_->gravida() : 0) + ")";
  if (withFetus && patientRecord_ && patientRecord_->numberOfFetuses() > 1) {
    text += foundation::format(services().localizer.text("NCDocument", " %ld of %ld"),
                               {currentFetus_ + 1, patientRecord_->numberOfFetuses()});
  }
  return text;
}

std::string NCDocument::referenceIDForFileName() const {
  std::string name = referenceIDField().text();
  std::ranges::replace(name, '/', '-');
  return name;
}

framework::NumberField& NCDocument::fieldFor(Measurement measurement) {
  switch (measurement) {
    case Measurement::bpd: return bpdField_;
    case Measurement::hc: return hcField_;
    case Measurement::ac: return acField_;
    case Measurement::fl: break;
  }
  return flField_;
}

std::optional<Measurement> NCDocument::measurementOf(const TextField& field) {
  for (const Measurement measurement : calc::kMeasurements) {
    if (&field == &fieldFor(measurement)) return measurement;
  }
  return std::nullopt;
}

bool NCDocument::mayModify(const std::string& message, const std::string& information) {
  const foundation::Localizer& localizer = services().localizer;
  return environment().alerts.runModal({.message = message,
                                        .information = information,
                                        .defaultButton = localizer.text("CorvelDocument", "Modify"),
                                        .alternateButton = localizer.text("ZuVersion", "Cancel"),
                                        .interruptsTyping = true}) == framework::AlertReturn::defaultButton;
}

bool NCDocument::currentExaminationHoldsData() const {
  const model::NCRecord* exam = examination(currentExam());
  if (!exam) return false;
  if (!exam->note().value_or("").empty()) return true;
  return std::ranges::any_of(exam->measurements(), [](const model::MeasurementsRecord& record) {
    return calc::isAnyMeasured(record.biometry());
  });
}

bool NCDocument::holdsMoreThanIdentity() const {
  if (!patientRecord_) return false;
  // Every field was left before, and reached the records; the note may still wait in its view.
  return currentExaminationHoldsData() || patientRecord_->edd() || numberOfExaminations() > 1 ||
         patientRecord_->numberOfFetuses() > 1 || examDateWasTyped_ || notesField().wasEdited();
}

}  // namespace nascor::app
