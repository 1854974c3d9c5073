// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Examinations and fetuses: adding, removing, putting in order, choosing.

#include <algorithm>
#include <compare>
#include <utility>

#include "app/NCDocument.h"
#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "foundation/Localizer.h"
#include "model/FetusLabels.h"

namespace nascor::app {

void NCDocument::addExamination() {
  if (!patientRecord_) return;
  // A damaged file may name a number of fetuses that no memory holds.
  constexpr std::int64_t kMostRecords = 1000;
  const std::int64_t fetuses = std::min(patientRecord_->numberOfFetuses(), kMostRecords);
  patientRecord_->addNCRecordWithNumberOfFetuses(fetuses, services().clock);
  setCurrentExam(numberOfExaminations() - 1);
  examinationWasAdded_ = true;
}

void NCDocument::deleteCurrentExamination() {
  if (patientRecord_) patientRecord_->deleteNCRecordWithIndex(static_cast<std::uint64_t>(currentExam()));
}

void NCDocument::setCurrentRecordFromRecord(const model::NCRecord* record) {
  if (!patientRecord_) return;
  const auto& examinations = patientRecord_->ncRecordsArray();
  const auto place = std::ranges::find(examinations, record, &std::unique_ptr<model::NCRecord>::get);
  setCurrentExam(place != examinations.end() ? place - examinations.begin()
                                             : std::clamp<std::int64_t>(currentExam(), 0, lastExam()));
}

void NCDocument::setCurrentRecordFromClick(double weeks) {
  if (!patientRecord_ || !patientRecord_->edd()) return;
  std::vector<std::optional<foundation::Date>> dates;
  for (const auto& record : patientRecord_->ncRecordsArray()) dates.push_back(record->examDate());
  const auto target = calc::dateAtAge(*patientRecord_->edd(), weeks, services().calendar);
  const auto nearest = static_cast<std::int64_t>(calc::nearestDate(target, dates));
  synchronizeToData();
  setCurrentExam(nearest);
  synchronizeFromData();
}

void NCDocument::updateArrayOrder() {
  if (!patientRecord_) return;
  const model::NCRecord* onShow = examination(currentExam());
  synchronizeToData();
  std::ranges::stable_sort(patientRecord_->ncRecordsArray(), [](const auto& one, const auto& other) {
    return std::is_lt(one->compare(*other));
  });
  setCurrentRecordFromRecord(onShow);
  synchronizeFromData();
}

void NCDocument::chooseFetus(const framework::PopUpButton& popUp) {
  const std::int64_t selected = popUp.indexOfSelectedItem();
  if (selected < 0) return;
  synchronizeToData();
  setCurrentFetus(selected);
  synchronizeFromData();
  bpdField_.selectText();
}

void NCDocument::addFetus(Sender) {
  if (!patientRecord_ || patientRecord_->numberOfFetuses() >= calc::kMostFetuses) return;
  const OneStep step(*this);
  patientRecord_->addFetus();
  updateChangeCount(ChangeType::changeDone);
  updateMultiplePopUp();
  if (multiplePopUp_.numberOfItems() > 0)
    multiplePopUp_.selectItemAtIndex(multiplePopUp_.numberOfItems() - 1);
  chooseFetus(multiplePopUp_);
}

void NCDocument::deleteFetus(Sender) {
  if (!patientRecord_ || patientRecord_->numberOfFetuses() <= calc::kFewestFetuses) return;
  const foundation::Localizer& localizer = services().localizer;
  environment().alerts.beginSheet(
      {.message = localizer.text("NCDocument", "Are you sure you want to remove this fetus?"),
       .information = "",
       .defaultButton = localizer.text("CorvelDocument", "Remove"),
       .alternateButton = localizer.text("ZuVersion", "Cancel"),
       .addition = whatGoesWithFetus()},
      [this](framework::AlertReturn returnCode) { deleteFetusAlertDidEnd(returnCode); });
}

std::string NCDocument::whatGoesWithFetus() const {
  std::int64_t lengths = 0;
  for (std::int64_t exam = 0; exam < numberOfExaminations(); ++exam) {
    const model::MeasurementsRecord* measured = measurementsForCurrentFetus(exam);
    if (!measured) continue;
    lengths += std::ranges::count_if(calc::kMeasurements, [&](calc::Measurement measurement) {
      return measured->biometry().*calc::memberFor(measurement) != 0.0;
    });
  }
  // Not the title that the pop-up shows: a damaged file may have more fetuses than the pop-up has items.
  const auto labels = model::fetusLabels(patientRecord_->numberOfFetuses());
  std::string which;
  if (currentFetus_ >= 0 && std::cmp_less(currentFetus_, labels.size())) {
    which = services().localizer.text("NCDocument", labels[static_cast<std::size_t>(currentFetus_)]) + ". ";
  }
  return which + foundation::format(
                     services().localizer.text("NCDocument", "Lengths that will be removed with it: %ld."),
                     {lengths});
}

void NCDocument::deleteFetusAlertDidEnd(framework::AlertReturn returnCode) {
  if (returnCode != framework::AlertReturn::defaultButton || !patientRecord_) return;
  const OneStep step(*this);
  updateChangeCount(ChangeType::changeDone);
  patientRecord_->deleteFetus(currentFetus_);
  // The fields go on showing the removed fetus, and no pop-up item is chosen anew. Mark their numbers as no fetus's.
  for (const calc::Measurement measurement : calc::kMeasurements) {
    fieldFor(measurement).forgetEdits();
    fieldFor(measurement).setStale();
  }
  updateMultiplePopUp();
  showWhatTakesTyping();
  assess();
  constexpr int kPuffOfSmoke = 10;
  const framework::Rect& frame = multiplePopUp_.frame();
  multiplePopUp_.showAnimationEffect(kPuffOfSmoke, {.x = frame.x - 20.0, .y = frame.y + frame.height / 2.0});
}

void NCDocument::updateMultiplePopUp() {
  const std::int64_t count = patientRecord_ ? patientRecord_->numberOfFetuses() : 0;
  multiplePopUp_.removeAllItems();
  const auto labels = model::fetusLabels(count);
  for (std::size_t fetus = 0; fetus < labels.size(); ++fetus) {
    multiplePopUp_.addItem({.title = services().localizer.text("NCDocument", labels[fetus]),
                            .keyEquivalent = labels.size() > 1 ? std::to_string(fetus + 1) : std::string()});
  }
  if (currentFetus_ > count - 1) currentFetus_ = std::max<std::int64_t>(count - 1, 0);
  tabView().setNeedsDisplay();
  setHeader(model::PatientPage::trends, preferredFileName(true), shownTitle(true));
}

}  // namespace nascor::app
