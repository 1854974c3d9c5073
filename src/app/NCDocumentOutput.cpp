// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Pages into files and to the printer, and what stands under them.

#include <algorithm>

#include "app/NCDocument.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"
#include "foundation/ProgramVersion.h"
#include "foundation/Utf8.h"

namespace nascor::app {

std::vector<std::string> NCDocument::autoExport(const ExportProgress& goesOn) {
  std::vector<std::string> sentences;
  if (!commitsEditing()) {
    sentences.push_back(
        services().localizer.text("CorvelDocument", "A field holds a text that is not permitted."));
  } else if (patientRecord_) {
    // A damaged file may count more fetuses than can be chosen.
    const std::int64_t fetuses = std::min(patientRecord_->numberOfFetuses(), multiplePopUp_.numberOfItems());
    const std::array pages{model::kPatientPages.front().page, model::kPatientPages.back().page};
    const std::int64_t total = std::max<std::int64_t>(fetuses, 0) * static_cast<std::int64_t>(pages.size());
    std::int64_t done = 0;
    for (std::int64_t fetus = 0; fetus < fetuses; ++fetus) {
      for (const model::PatientPage page : pages) {
        if (goesOn && !goesOn(done, total)) return sentences;
        if (page == pages.front()) {
          multiplePopUp_.selectItemAtIndex(fetus);
          chooseFetus(multiplePopUp_);
        }
        tabView().selectPage(model::indexOf(page));
        if (auto sentence = doExport(nullptr)) sentences.push_back(std::move(*sentence));
        ++done;
      }
    }
  }
  return sentences;
}

void NCDocument::printDocumentWithSettings(const framework::PrintSettings& settings, bool showPrintPanel,
                                           const DidPrint& didPrint) {
  // One request, two prints: the page on show, and the weight page whichever is on show.
  printPages({tabView().indexOfSelectedPage(), model::indexOf(model::PatientPage::weight)}, settings,
             showPrintPanel, didPrint);
}

framework::PageFoot NCDocument::footOfPage(std::int64_t index, std::int64_t number,
                                           std::int64_t count) const {
  if (!patientRecord_) return {};
  const foundation::Localizer& localizer = services().localizer;
  const auto labelled = [](const std::string& label, const std::string& value) {
    return value.empty() ? std::string() : label + " " + value;
  };

  const auto& records = patientRecord_->ncRecordsArray();
  std::string first;
  for (auto record = records.begin(); record != records.end() && first.empty(); ++record) {
    if ((*record)->examDate()) first = longDateText(*(*record)->examDate());
  }
  const auto newest =
      std::find_if(records.rbegin(), records.rend(), [](const auto& record) { return record->examDate(); });
  const std::string last = newest != records.rend() ? longDateText(*(*newest)->examDate()) : std::string();
  const std::string examinations = first == last ? first : first + " \u2013 " + last;

  std::string leftOut;
  const std::int64_t examinationCount = numberOfExaminations();
  if (index == model::indexOf(model::PatientPage::report)) {
    tabView().page(index).layout(framework::Page::kWidth, framework::Page::kHeight);
    const std::int64_t shown = report().examinationsShown();
    if (shown < examinationCount) {
      leftOut = foundation::format(localizer.text("NCDocument", "%ld of %ld examinations shown"),
                                   {shown, examinationCount});
    }
  }

  std::string page = localizer.text(windowNibName, tabView().page(index).name());
  if (count > 1)
    page += foundation::format(localizer.text("NCDocument", ", page %ld of %ld"), {number, count});

  return {
      .lines = {
          {labelled(localizer.text("NCDocument", "Reference ID:"),
                    patientRecord_->maternalIDString().value_or("")),
           labelled(localizer.text("NCDocument", "Gravidity:"), std::to_string(patientRecord_->gravida())),
           labelled(localizer.text("NCDocument", "Fetus:"), multiplePopUp_.titleOfSelectedItem()),
           labelled(localizer.text("NCDocument", "EDD:"),
                    patientRecord_->edd() ? longDateText(*patientRecord_->edd()) : std::string()),
           labelled(first == last ? localizer.text("NCDocument", "Examination:")
                                  : localizer.text("NCDocument", "Examinations:"),
                    examinations)},
          {calc::growthStandardTitle(standard(), localizer),
           calc::fetalWeightTitle(fetalWeightStandard(), localizer), leftOut},
          {std::string("Nascor ").append(foundation::programVersion()),
           localizer.text("NCDocument", "Not a medical device. Not validated for clinical use."),
           labelled(localizer.text("NCDocument", "Printed:"), longDateText(services().clock.now())), page},
      }};
}

framework::SheetFacts NCDocument::factsOfPage(std::int64_t index) const {
  const foundation::Localizer& localizer = services().localizer;
  const std::string page =
      localizer.text(windowNibName, pages_.pages().at(static_cast<std::size_t>(index)).name());
  const std::string patient = foundation::oneLine(exportName());
  return {.title = patient.empty() ? page : patient,
          .author = std::string("Nascor ").append(foundation::programVersion()),
          .subject = localizer.text("NCDocument", "Obstetric ultrasound biometry")};
}

}  // namespace nascor::app
