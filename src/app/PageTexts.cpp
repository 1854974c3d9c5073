// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/PageTexts.h"

#include <algorithm>
#include <optional>

#include "app/NCDocument.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Calendar.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"

namespace nascor::app {

using charts::NascorGraphView;
using model::PatientPage;

namespace {

/// Whether an examination has a value that the chart would plot.
bool hasValues(const NascorGraphView& chart, std::uint64_t examinations) {
  const auto fetuses = chart.plottedFetuses();
  return std::ranges::any_of(fetuses, [&](std::int64_t fetus) {
    for (std::uint64_t exam = 0; exam < examinations; ++exam) {
      if (chart.valueForFetus(static_cast<std::uint64_t>(fetus), exam) > 0.0) return true;
    }
    return false;
  });
}

/// Whether the fetus on show has a length at any examination.
bool isReported(const NCDocument& document) {
  for (std::int64_t exam = 0; exam < document.numberOfExaminations(); ++exam) {
    const model::MeasurementsRecord* measured = document.measurementsForCurrentFetus(exam);
    if (measured != nullptr && calc::isAnyMeasured(measured->biometry())) return true;
  }
  return false;
}

}  // namespace

std::string examinationText(const NCDocument& document) {
  const foundation::Services& services = document.services();
  const model::NCRecord* exam = document.examination(document.currentExam());
  if (exam == nullptr) return {};
  const auto day = exam->examDate() ? foundation::localDay(*exam->examDate(), services.calendar)
                                    : std::optional<foundation::CivilDay>();
  const std::string date =
      day ? services.localizer.longDateText(*day) : services.localizer.text("NCDocument", "no date");
  return foundation::format(services.localizer.text("NCDocument", "Examination %ld of %ld: "),
                            {document.currentExam() + 1, document.numberOfExaminations()}) +
         date;
}

std::string spokenPage(const NCDocument& document, std::int64_t index) {
  const foundation::Localizer& localizer = document.services().localizer;
  const auto page = model::patientPageAt(index);
  std::string text;
  if (page) {
    for (const NascorGraphView* graph : document.patientPages().graphsOn(*page)) {
      const std::string value = graph->spokenValue(document.currentExam());
      if (!value.empty()) text += value + " ";
    }
  }
  text += calc::growthStandardTitle(document.standard(), localizer);
  if (page == PatientPage::weight)
    text += ". " + calc::fetalWeightTitle(document.fetalWeightStandard(), localizer);
  const std::string over = page ? document.spokenOverlay(*page) : std::string();
  return over.empty() ? text : text + ". " + over;
}

std::vector<std::string> adviceOnPage(const NCDocument& document, std::int64_t index) {
  const auto page = model::patientPageAt(index);
  const model::PatientRecord* patient = document.patientRecord();
  if (patient == nullptr || !page) return {};
  const foundation::Localizer& localizer = document.services().localizer;
  const auto& examinations = patient->ncRecordsArray();
  if (examinations.empty())
    return {localizer.text("NCDocument", "No examination. Patient > Add Examination")};

  const bool isReport = page == PatientPage::report;
  const bool isWeight = page == PatientPage::weight;
  std::vector<std::string> advice;
  if (!calc::growthStandard(document.standard())) {
    advice.push_back(
        isReport
            ? localizer.text("NCDocument",
                             "No known growth standard, so no projection. Choose from Standards.")
            : localizer.text("NCDocument", "No known growth standard, so no curves. Choose from Standards."));
  }
  const bool hasFormula = calc::weightFormula(document.fetalWeightStandard()) != nullptr;
  if ((isWeight || isReport) && !hasFormula) {
    advice.push_back(localizer.text(
        "NCDocument", "No known weight formula, so no weights. Choose from Estimated Fetal Weight."));
  }
  if (!patient->edd()) {
    advice.push_back(isReport ? localizer.text("NCDocument", "No EDD, so no ages. Patient > EDD from ...")
                              : localizer.text("NCDocument", "No EDD, so no marks. Patient > EDD from ..."));
  } else if (std::ranges::none_of(examinations,
                                  [](const auto& exam) { return exam->examDate().has_value(); })) {
    advice.push_back(isReport
                         ? localizer.text("NCDocument", "No date, so no ages. Type it beside the page.")
                         : localizer.text("NCDocument", "No date, so no marks. Type it beside the page."));
  }

  const auto isPlotted = [&](const NascorGraphView* chart) { return hasValues(*chart, examinations.size()); };
  const auto isMeasured = [&] {
    return isReport ? isReported(document)
                    : std::ranges::any_of(document.patientPages().graphsOn(*page), isPlotted);
  };
  if ((!isWeight || hasFormula) && !isMeasured())
    advice.push_back(localizer.text("NCDocument", model::factsOf(*page).withoutValues));
  return advice;
}

std::vector<compare::Table> comparison(const NCDocument& document) {
  if (document.examination(document.currentExam()) == nullptr) return {};
  return compare::tablesOf(*document.patientRecord(), static_cast<std::size_t>(document.currentExam()),
                           static_cast<std::size_t>(document.currentFetus()), document.services().localizer);
}

std::optional<compare::Table> comparison(const NCDocument& document, compare::TableKind kind) {
  if (document.examination(document.currentExam()) == nullptr) return std::nullopt;
  return compare::tableOf(kind, *document.patientRecord(), static_cast<std::size_t>(document.currentExam()),
                          static_cast<std::size_t>(document.currentFetus()), document.services().localizer);
}

std::string comparisonHeading(const NCDocument& document) {
  std::string heading;
  const std::string age =
      document.menstrualAgeStringForRecord(static_cast<std::uint64_t>(document.currentExam()));
  for (const std::string& part : {document.shownTitle(false), document.multiplePopUp().titleOfSelectedItem(),
                                  examinationText(document), age}) {
    if (!part.empty()) heading.append(heading.empty() ? "" : "  \u00b7  ").append(part);
  }
  return heading;
}

}  // namespace nascor::app
