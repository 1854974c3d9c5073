// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/CorvelDocument.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "foundation/Calendar.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "framework/DocumentController.h"
#include "framework/FileName.h"

namespace nascor::framework {

CorvelDocument::CorvelDocument(const DocumentEnvironment& environment)
    : ZuDocument(environment.services),
      environment_(environment),
      referenceIDField_("referenceIDField", this),
      birthDateField_("birthDateField", this),
      examDateField_("examDateField", this),
      ageField_("ageField"),
      notesField_("notesField") {
  subscriptions_.push_back(
      notesField_.onEdit.subscribe([this] { updateChangeCount(ChangeType::changeDone); }));
  subscriptions_.push_back(fieldEditor_.onChange.subscribe([this] { editedTextChanged(); }));
}

bool CorvelDocument::commitEditing() {
  const bool ended = fieldEditor_.end();
  // The note is stored beside a field that refuses too, or closing with such a field would lose it.
  noteWasLeft();
  return ended;
}

void CorvelDocument::noteWasLeft() {
  // The note has no field editor: what was typed waits in its view for the next synchronisation.
  if (!notesField_.wasEdited()) return;
  const OneStep step(*this);
  synchronizeToData();
}

void CorvelDocument::nextExamination() { showExamination(currentExam_ + 1); }

void CorvelDocument::previousExamination() { showExamination(currentExam_ - 1); }

void CorvelDocument::showExamination(std::int64_t exam) {
  if (exam < 0 || exam >= numberOfExaminations()) return;
  synchronizeToData();
  currentExam_ = exam;
  synchronizeFromData();
}

void CorvelDocument::addExaminationAction() {
  const OneStep step(*this);
  // The old examination's fields must reach it before the new one is the current one.
  synchronizeToData();
  addExamination();
  synchronizeFromData();
  updateArrayOrder();
  updateChangeCount(ChangeType::changeDone);
  if (const TextField* field = firstEmptyField()) field->selectText();
}

void CorvelDocument::deleteExaminationAction() {
  synchronizeToData();
  if (numberOfExaminations() <= 1) return;
  if (!currentExaminationHoldsData()) {
    removeExamination();
    return;
  }
  const auto& localizer = services().localizer;
  environment_.alerts.beginSheet(
      {.message = localizer.text("NCDocument", "Are you sure you want to remove this examination?"),
       .information = "",
       .defaultButton = localizer.text("CorvelDocument", "Remove"),
       .alternateButton = localizer.text("ZuVersion", "Cancel")},
      [this](AlertReturn answer) {
        if (answer == AlertReturn::defaultButton) removeExamination();
      });
}

void CorvelDocument::removeExamination() {
  const OneStep step(*this);
  // No synchronisation in between: the fields show an examination that is gone.
  deleteCurrentExamination();
  currentExam_ = std::min(currentExam_, numberOfExaminations() - 1);
  synchronizeFromData();
  updateChangeCount(ChangeType::changeDone);
}

bool CorvelDocument::opensDocumentOf(const std::string& referenceID, const std::string& name, bool ask) {
  return std::ranges::any_of(documentsOfPatient(referenceID, name), [&](const foundation::FileEntry& file) {
    // This document is gone once the other has taken its place.
    return (!ask || userOpens(file)) && environment_.controller.replaceDocument(*this, file.path);
  });
}

void CorvelDocument::lookUp(const std::string& name, bool ask) {
  if (opensDocumentOf(referenceIDForFileName(), name, ask)) return;
  if (!holdsContents()) return;
  directUpdateDisplayAndSetDirty(true);
}

void CorvelDocument::directUpdateDisplayAndSetDirty(bool dirty) {
  const OneStep step(*this);
  synchronizeToData();
  updateDisplay();
  if (dirty) updateChangeCount(ChangeType::changeDone);
}

void CorvelDocument::updateDisplay() { onDisplayChanged(); }

bool CorvelDocument::controlTextShouldBeginEditing(TextField&) { return true; }

void CorvelDocument::controlTextDidBeginEditing(TextField&) {
  isMarkedByEdit_ = true;
  updateChangeCount(ChangeType::changeDone);
}

void CorvelDocument::controlTextDidDropEditing(TextField&) {
  // Typing that was taken back changed nothing.
  if (std::exchange(isMarkedByEdit_, false)) updateChangeCount(ChangeType::changeUndone);
}

std::vector<foundation::FileEntry> CorvelDocument::documentsOfPatient(const std::string& referenceID,
                                                                      const std::string& name) const {
  const std::string extension =
      services().defaults.value(foundation::defaults_key::dataFileExtension).value_or("nascor");
  const std::string exactName = fileName(name, extension);
  // Documents of the same reference ID under any gravidity.
  const std::string prefix = fileNameText(referenceID + " (G");
  const std::string suffix = ")." + extension;

  const foundation::FileStore& files = services().files;
  std::vector<foundation::FileEntry> found;
  for (const foundation::FileEntry& file : files.entries(files.documentsFolder())) {
    if (filePath() && files.resolvedPath(file.path) == files.resolvedPath(*filePath())) continue;
    if (file.name == exactName || (file.name.starts_with(prefix) && file.name.ends_with(suffix) &&
                                   file.name.size() >= prefix.size() + suffix.size())) {
      found.push_back(file);
    }
  }
  std::ranges::stable_sort(found, [&](const auto& one, const auto& other) {
    const bool oneIsExact = one.name == exactName;
    const bool otherIsExact = other.name == exactName;
    if (oneIsExact != otherIsExact) return oneIsExact;
    return one.modified.secondsSince2001 > other.modified.secondsSince2001;
  });
  return found;
}

bool CorvelDocument::userOpens(const foundation::FileEntry& file) const {
  const auto& localizer = services().localizer;
  const auto day = foundation::localDay(file.modified, services().calendar);
  std::string information = file.name + "\n" +
                            (day ? foundation::shortDateText(*day, localizer.shortDateForm()) + ", " : "") +
                            foundation::format(localizer.text("CorvelDocument", "%ld bytes"), {file.size});
  if (holdsMoreThanIdentity()) {
    information += "\n";
    information += localizer.text("CorvelDocument",
                                  "What was entered here besides reference ID and gravidity will be lost.");
  }
  const auto contents = services().files.contents(file.path);
  if (const auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) {
    std::string separator = "\n\n";
    for (const std::string& fact : factsOfFile(*bytes)) information += std::exchange(separator, "\n") + fact;
  }
  return environment_.alerts.runModal(
             {.message = localizer.text("CorvelDocument", "This patient has a document already."),
              .information = information,
              .defaultButton = localizer.text("CorvelDocument", "Open"),
              .alternateButton = localizer.text("ZuVersion", "Cancel")}) == AlertReturn::defaultButton;
}

}  // namespace nascor::framework
