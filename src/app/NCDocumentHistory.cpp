// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Undo and redo of what changes the patient.

#include <algorithm>
#include <utility>

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"

namespace nascor::app {
namespace {

std::string nameOf(PatientChange change, const foundation::Localizer& localizer) {
  switch (change) {
    case PatientChange::examinationAdded: return localizer.text("NCDocument", "Add Examination");
    case PatientChange::examinationDeleted: return localizer.text("NCDocument", "Delete Examination");
    case PatientChange::fetusAdded: return localizer.text("NCDocument", "Add Fetus");
    case PatientChange::fetusRemoved: return localizer.text("NCDocument", "Remove Fetus");
    case PatientChange::edd: return localizer.text("NCDocument", "EDD");
    case PatientChange::growthStandard: return localizer.text("NCDocument", "Growth Standard");
    case PatientChange::weightFormula: return localizer.text("NCDocument", "Weight Formula");
    case PatientChange::crlFormula: return localizer.text("NCDocument", "Crown-Rump Formula");
    case PatientChange::identifier: return localizer.text("NCDocument", "Reference ID");
    case PatientChange::gravidity: return localizer.text("NCDocument", "Gravidity");
    case PatientChange::examinationDate: return localizer.text("NCDocument", "Examination Date");
    case PatientChange::lengths: return localizer.text("NCDocument", "Lengths");
    case PatientChange::bpd: return localizer.text("NCDocument", "BPD");
    case PatientChange::hc: return localizer.text("NCDocument", "HC");
    case PatientChange::ac: return localizer.text("NCDocument", "AC");
    case PatientChange::fl: return localizer.text("NCDocument", "FL");
    case PatientChange::note: return localizer.text("NCDocument", "Note");
    case PatientChange::reportsImported: return localizer.text("NCDocument", "Import Report");
    case PatientChange::plannedDelivery: break;
  }
  return localizer.text("NCDocument", "Planned Delivery");
}

}  // namespace

std::optional<std::string> NCDocument::undoName() const {
  const auto change = history_.undone();
  return change ? std::optional(nameOf(*change, services().localizer)) : std::nullopt;
}

std::optional<std::string> NCDocument::redoName() const {
  const auto change = history_.redone();
  return change ? std::optional(nameOf(*change, services().localizer)) : std::nullopt;
}

void NCDocument::undo() {
  if (!patientRecord_ || !commitsEditing()) return;
  actionEnded();
  if (!history_.undone()) return;
  const auto shown = history_.undo();
  // The choice of a standard was one for new patients too, and so is taking it back.
  if (shown.preference && shown.preference->before)
    services().defaults.setValue(shown.preference->key, *shown.preference->before);
  goTo(shown);
}

void NCDocument::redo() {
  if (!patientRecord_ || !commitsEditing()) return;
  actionEnded();
  if (!history_.redone()) return;
  const auto shown = history_.redo();
  if (shown.preference) services().defaults.setValue(shown.preference->key, shown.preference->after);
  goTo(shown);
}

PatientState NCDocument::state() const {
  PatientState state;
  state.plannedDays = deliveryPanel_.stepper.value();
  state.gestationInFile = gestationInFile_;
  state.madeNow = madeNow_;
  state.isExamDateTyped = examDateWasTyped_;
  state.isBlank = isBlank();
  state.isLookUpRequired = lookUpRequired();
  state.take(*patientRecord_, history_.present().examinations);
  return state;
}

void NCDocument::beginHistory() {
  // What was recovered, and a copy of another document, is in no file of its own.
  const bool isSaved = !isRecovered() && (filePath() || isBlank());
  history_.begin(state(), {.examination = currentExam(), .fetus = currentFetus_}, isSaved);
  onHistoryChanged();
}

void NCDocument::actionEnded() {
  if (!patientRecord_) return;
  const Place place{.examination = currentExam(), .fetus = currentFetus_};
  if (history_.note(state(), place, std::exchange(preference_, std::nullopt),
                    std::exchange(nameOfStep_, std::nullopt)))
    onHistoryChanged();
}

void NCDocument::scriptHasStored() {
  if (!patientRecord_) return;
  if (history_.noteScript(state(), {.examination = currentExam(), .fetus = currentFetus_}))
    onHistoryChanged();
}

void NCDocument::changesWereCleared() {
  CorvelDocument::changesWereCleared();
  if (!patientRecord_) return;
  actionEnded();
  history_.wasSaved();
}

void NCDocument::goTo(const PatientHistory::Shown& shown) {
  const OneStep step(*this);
  const PatientState& state = shown.state;
  statusLine().clear();
  patientRecord_ = state.record();
  gestationInFile_ = state.gestationInFile;
  madeNow_ = state.madeNow;
  examDateWasTyped_ = state.isExamDateTyped;
  setDocIsBlank(state.isBlank);
  setLookUpRequired(state.isLookUpRequired);
  deliveryPanel_.setPlannedDays(state.plannedDays, standard());
  setCurrentExam(std::clamp<std::int64_t>(shown.place.examination, 0, lastExam()));
  setCurrentFetus(shown.place.fetus);
  updateMultiplePopUp();
  if (multiplePopUp_.numberOfItems() > 0) multiplePopUp_.selectItemAtIndex(currentFetus_);
  showPatient();
  crlPanel_.standardReference.setText(
      calc::crlStandardTitle(patientRecord_->crlStandard(), services().localizer));
  updateChangeCount(history_.isSaved() ? ChangeType::changeCleared : ChangeType::changeDone);
  onHistoryChanged();
}

}  // namespace nascor::app
