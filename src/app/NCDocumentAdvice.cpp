// What the window says over a page that lacks something.

#include <algorithm>

#include "app/NCDocument.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"

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

std::vector<std::string> NCDocument::adviceOnPage(std::int64_t index) const {
  const auto page = model::patientPageAt(index);
  if (!patientRecord_ || !page) return {};
  const foundation::Localizer& localizer = services().localizer;
  const auto& examinations = patientRecord_->ncRecordsArray();
  if (examinations.empty())
    return {localizer.text("NCDocument", "No examination. Patient > Add Examination")};

  const bool isReport = page == PatientPage::report;
  const bool isWeight = page == PatientPage::weight;
  std::vector<std::string> advice;
  if (!calc::growthStandard(standard())) {
    advice.push_back(
        isReport
            ? localizer.text("NCDocument",
                             "No known growth standard, so no projection. Choose from Standards.")
            : localizer.text("NCDocument", "No known growth standard, so no curves. Choose from Standards."));
  }
  const bool hasFormula = calc::weightFormula(fetalWeightStandard()) != nullptr;
  if ((isWeight || isReport) && !hasFormula) {
    advice.push_back(localizer.text(
        "NCDocument", "No known weight formula, so no weights. Choose from Estimated Fetal Weight."));
  }
  if (!patientRecord_->edd()) {
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
    return isReport ? isReported(*this) : std::ranges::any_of(pages_.graphsOn(*page), isPlotted);
  };
  if ((!isWeight || hasFormula) && !isMeasured())
    advice.push_back(localizer.text("NCDocument", model::factsOf(*page).withoutValues));
  return advice;
}

}  // namespace nascor::app
