// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What reports of ultrasound machines do to the document.

#include <algorithm>
#include <utility>

#include "app/NCDocument.h"
#include "foundation/Calendar.h"
#include "foundation/Localizer.h"
#include "framework/DocumentController.h"

namespace nascor::app {

bool NCDocument::holdsOnlyBlankExamination() const {
  return !filePath() && !isRecovered() && numberOfExaminations() == 1 && !examDateWasTyped_ &&
         !currentExaminationHoldsData() && !notesField().wasEdited();
}

NCDocument& NCDocument::documentOfPatient(std::span<const exchange::Findings> reports) {
  const auto named =
      std::ranges::find_if(reports, [](const auto& report) { return report.patientID.has_value(); });
  if (named == reports.end() || !isNewPatient() || !referenceIDField().text().empty()) return *this;
  std::string id = *named->patientID;
  std::ranges::replace(id, '/', '-');
  if (!opensDocumentOf(id, id + " (G" + std::to_string(named->gravida.value_or(0)) + ")", true)) return *this;
  auto* opened = dynamic_cast<NCDocument*>(environment().controller.currentDocument());
  return opened != nullptr ? *opened : *this;
}

bool NCDocument::userModifiesEDD(const std::optional<foundation::Date>& edd) {
  const foundation::Localizer& localizer = services().localizer;
  return environment().alerts.runModal(
             {.message = localizer.text("NCDocument", "EDD is already specified"),
              .information =
                  localizer.text("NCDocument", "Are you sure you want to modify the established EDD?"),
              .defaultButton = localizer.text("CorvelDocument", "Modify"),
              .alternateButton = localizer.text("ZuVersion", "Cancel"),
              .isCancelledByReturn = true,
              .addition = (patientRecord_->edd() ? longDateText(*patientRecord_->edd()) : "") + " \u2192 " +
                          (edd ? longDateText(*edd) : "")}) == framework::AlertReturn::defaultButton;
}

void NCDocument::takeImported(std::unique_ptr<model::PatientRecord> patient, const Imported& imported) {
  {
    const OneStep step(*this);
    nameOfStep_ = PatientChange::reportsImported;
    statusLine().clear();
    patientRecord_ = std::move(patient);
    if (!patientRecord_->maternalIDString().value_or("").empty()) setDocIsBlank(false);
    setLookUpRequired(false);
    // As when an examination is added by hand.
    examinationWasAdded_ = true;
    takeDates();
    const auto& examinations = patientRecord_->ncRecordsArray();
    const auto shown = std::ranges::find_if(examinations, [&](const auto& examination) {
      return imported.shownDay && examination->examDate() &&
             foundation::localDay(*examination->examDate(), services().calendar) == imported.shownDay;
    });
    if (shown != examinations.end()) setCurrentExam(shown - examinations.begin());
    setCurrentExam(std::clamp<std::int64_t>(currentExam(), 0, lastExam()));
    if (imported.shownDay) setCurrentFetus(imported.shownFetus);
    updateMultiplePopUp();
    if (multiplePopUp_.numberOfItems() > 0) multiplePopUp_.selectItemAtIndex(currentFetus_);
    showPatient();
    updateChangeCount(ChangeType::changeDone);
  }
  if (!imported.crl) return;
  crlPanel_.length.setDoubleValue(*imported.crl);
  if (imported.crlDay)
    crlPanel_.date.setText(
        reader_.shortDateText(foundation::startOfDay(*imported.crlDay, services().calendar)));
  doSetEDDfromCRL(this);
}

}  // namespace nascor::app
