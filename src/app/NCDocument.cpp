#include "app/NCDocument.h"

#include <algorithm>
#include <array>
#include <utility>

#include "calc/Dating.h"
#include "calc/Projection.h"
#include "foundation/Calendar.h"
#include "foundation/Localizer.h"
#include "foundation/ShortDate.h"
#include "model/PatientFile.h"

namespace nascor::app {
namespace {

using framework::Rect;

constexpr double kTitleHeight = 30.0;
constexpr double kStripHeight = 50.0;
constexpr double kMargin = 10.0;

Rect chartPlacement(double width, double height) {
  return {.x = kMargin,
          .y = kTitleHeight,
          .width = width - 2.0 * kMargin,
          .height = height - kTitleHeight - kStripHeight - kMargin};
}

/// Under the chart, as far to the right and as wide as the chart's plotting area.
Rect stripPlacement(double width, double height) {
  const Rect chart = chartPlacement(width, height);
  return {
      .x = chart.x + 50.0, .y = chart.y + chart.height, .width = chart.width - 60.0, .height = kStripHeight};
}

/// What the fetuses are called, by their number.
struct FetusLabels {
  std::int64_t fetuses;
  std::array<std::string_view, 5> titles;
};

constexpr std::array<FetusLabels, 5> kFetusLabels{{
    {1, {"Singleton"}},
    {2, {"Twin 1", "Twin 2"}},
    {3, {"Triplet 1 of 3", "Triplet 2 of 3", "Triplet 3 of 3"}},
    {4, {"Quad 1 of 4", "Quad 2 of 4", "Quad 3 of 4", "Quad 4 of 4"}},
    {5, {"Quin 1 of 5", "Quin 2 of 5", "Quin 3 of 5", "Quin 4 of 5", "Quin 5 of 5"}},
}};

}  // namespace

NCDocument::NCDocument(const foundation::Services& services)
    : CorvelDocument(services),
      bpdGraph_(framework::make<charts::BPDGraphView>(services, {})),
      hcGraph_(framework::make<charts::HeadCircumferenceGraphView>(services, {})),
      acGraph_(framework::make<charts::AbdoCircumferenceGraphView>(services, {})),
      flGraph_(framework::make<charts::FemurLengthGraphView>(services, {})),
      bpdAxis_(framework::make<charts::NoYaxisGraphView>(services, {})),
      bpdPage_("BPD") {
  for (charts::UpdatingGraphView* view : std::initializer_list<charts::UpdatingGraphView*>{
           bpdGraph_.get(), hcGraph_.get(), acGraph_.get(), flGraph_.get(), bpdAxis_.get()}) {
    view->setOwningDocument(this);
  }
  bpdPage_.addView(*bpdGraph_, chartPlacement);
  bpdPage_.addView(*bpdAxis_, stripPlacement);
}

NCDocument::~NCDocument() = default;

std::vector<std::byte> NCDocument::dataRepresentationOfType(std::string_view) const {
  return patientRecord_ ? model::archivedPatient(*patientRecord_) : std::vector<std::byte>{};
}

bool NCDocument::loadDataRepresentation(std::span<const std::byte> data, std::string_view) {
  patientRecord_ = model::unarchivedPatient(data).patient;
  return true;
}

void NCDocument::windowControllerDidLoadNib() {
  if (!patientRecord_) {
    patientRecord_ = std::make_unique<model::PatientRecord>(services().clock, services().defaults);
  }
  setCurrentExam(lastExam());
  setCurrentFetus(0);
  updateMultiplePopUp();
  synchronizeFromData();
  services().notifications.post(foundation::NotificationName::updateStandards, this);
}

void NCDocument::synchronizeFromData() {
  if (!patientRecord_) return;
  referenceIDField_.setText(patientRecord_->maternalIDString().value_or(""));
  birthDateField_.setText(shortDateText(patientRecord_->edd()));
  const model::NCRecord* exam = examination(currentExam());
  examDateField_.setText(exam ? shortDateText(exam->examDate()) : "");
  updateDisplay();
}

void NCDocument::updateDisplay() {
  bpdPage_.setTitle(preferredFileName(true));
  ageField_.setText(menstrualAgeStringForRecord(static_cast<std::uint64_t>(currentExam())));
  if (onDisplayChanged) onDisplayChanged();
}

void NCDocument::updateMultiplePopUp() {
  const std::int64_t count = patientRecord_ ? patientRecord_->numberOfFetuses() : 0;
  multiplePopUp_.removeAllItems();
  const auto row = std::ranges::find(kFetusLabels, count, &FetusLabels::fetuses);
  if (row != kFetusLabels.end()) {
    for (std::int64_t fetus = 0; fetus < count; ++fetus) {
      const std::string_view title = row->titles.at(static_cast<std::size_t>(fetus));
      multiplePopUp_.addItem({.title = services().localizer.text(foundation::string_table::ncDocument, title),
                              .keyEquivalent = count > 1 ? std::to_string(fetus + 1) : std::string()});
    }
  }
  if (currentFetus_ > count - 1) currentFetus_ = std::max<std::int64_t>(count - 1, 0);
}

std::string NCDocument::preferredFileName(bool withFetus) const {
  std::string name = referenceIDField_.text();
  std::ranges::replace(name, '/', '-');
  if (name.empty() || !patientRecord_) return name;
  name += " (G" + std::to_string(patientRecord_->gravida()) + ")";
  if (withFetus && patientRecord_->numberOfFetuses() > 1) {
    name += foundation::format(services().localizer, foundation::string_table::ncDocument, " %ld of %ld",
                               {currentFetus_ + 1, patientRecord_->numberOfFetuses()});
  }
  return name;
}

std::int64_t NCDocument::standard() const { return patientRecord_ ? patientRecord_->standard() : 0; }

std::int64_t NCDocument::fetalWeightStandard() const {
  return patientRecord_ ? patientRecord_->fetalWeightStandard() : 0;
}

std::int64_t NCDocument::lastExam() const { return std::max<std::int64_t>(numberOfExaminations() - 1, 0); }

const model::MeasurementsRecord* NCDocument::measurementsForFetus(std::int64_t fetus,
                                                                  std::int64_t exam) const {
  const model::NCRecord* record = examination(exam);
  if (!record || fetus < 0 || std::cmp_greater_equal(fetus, record->measurements().size())) return nullptr;
  return &record->measurementsForFetus(fetus);
}

const model::MeasurementsRecord* NCDocument::measurementsForCurrentFetus(std::int64_t exam) const {
  return measurementsForFetus(currentFetus_, exam);
}

const model::MeasurementsRecord* NCDocument::lastMeasurementsRecordForCurrentFetus() const {
  return measurementsForCurrentFetus(numberOfExaminations() - 1);
}

void NCDocument::setCurrentRecordFromClick(double weeks) {
  if (!patientRecord_ || !patientRecord_->edd()) return;
  std::vector<std::optional<foundation::Date>> dates;
  for (const auto& record : patientRecord_->ncRecordsArray()) dates.push_back(record->examDate());
  const auto target = calc::dateAtAge(*patientRecord_->edd(), weeks, services().calendar);
  setCurrentExam(static_cast<std::int64_t>(calc::nearestDate(target, dates)));
  synchronizeFromData();
}

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

double NCDocument::extrapolatedBPDForCurrentFetus() {
  return projected(&model::MeasurementsRecord::bpd, &model::MeasurementsRecord::setBPD, *bpdGraph_);
}
double NCDocument::extrapolatedHCForCurrentFetus() {
  return projected(&model::MeasurementsRecord::hc, &model::MeasurementsRecord::setHC, *hcGraph_);
}
double NCDocument::extrapolatedACForCurrentFetus() {
  return projected(&model::MeasurementsRecord::ac, &model::MeasurementsRecord::setAC, *acGraph_);
}
double NCDocument::extrapolatedFLForCurrentFetus() {
  return projected(&model::MeasurementsRecord::fl, &model::MeasurementsRecord::setFL, *flGraph_);
}

double NCDocument::projected(double (model::MeasurementsRecord::*value)() const,
                             void (model::MeasurementsRecord::*store)(double),
                             const charts::NascorGraphView& graph) {
  (extrapolatedMeasurementsRecord_.*store)(0.0);
  if (!patientRecord_) return 0.0;
  const model::MeasurementsRecord* last = lastMeasurementsRecordForCurrentFetus();
  const double age = menstrualAgeForRecord(static_cast<std::uint64_t>(numberOfExaminations() - 1));
  const double result = calc::projectedValue(graph.standardData(), last ? (last->*value)() : 0.0, age,
                                             patientRecord_->extrapolatedGestation());
  (extrapolatedMeasurementsRecord_.*store)(result);
  return result;
}

std::int64_t NCDocument::numberOfExaminations() const {
  return patientRecord_ ? static_cast<std::int64_t>(patientRecord_->ncRecordsArray().size()) : 0;
}

const model::NCRecord* NCDocument::examination(std::int64_t exam) const {
  if (exam < 0 || exam >= numberOfExaminations()) return nullptr;
  return patientRecord_->ncRecordsArray()[static_cast<std::size_t>(exam)].get();
}

std::string NCDocument::shortDateText(const std::optional<foundation::Date>& date) const {
  const auto day = date ? foundation::localDay(*date, services().calendar) : std::nullopt;
  return day ? foundation::shortDateText(*day, services().localizer.shortDateForm()) : std::string();
}

}  // namespace nascor::app
