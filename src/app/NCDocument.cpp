// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/NCDocument.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "calc/Dating.h"
#include "foundation/Calendar.h"
#include "foundation/ConvertInteger.h"
#include "foundation/Localizer.h"
#include "model/PatientFile.h"
#include "model/PatientReport.h"

namespace nascor::app {
NCDocument::NCDocument(const framework::DocumentEnvironment& environment)
    : CorvelDocument(environment),
      gravidaField_("gravidaField", this),
      bpdField_("bpdField", 1, services().localizer, this),
      hcField_("hcField", 1, services().localizer, this),
      acField_("acField", 1, services().localizer, this),
      flField_("flField", 1, services().localizer, this),
      pages_(services(), *this) {
  textFields_ = {&referenceIDField(), &gravidaField_, &birthDateField(), &examDateField(), &ageField(),
                 &bpdField_,          &hcField_,      &acField_,         &flField_};
  for (const model::PatientPageFacts& each : model::kPatientPages) {
    if (!each.titleField.empty()) textFields_.push_back(&headers_.emplace_back(std::string(each.titleField)));
  }
  for (DatingPanel* each : datingPanels_) {
    panels_.push_back(&each->panel());
    textFields_.insert(textFields_.end(), each->fields().begin(), each->fields().end());
  }

  for (framework::Page& page : pages_.pages()) tabView().addPage(page);
}

NCDocument::~NCDocument() = default;

framework::TextField* NCDocument::fieldNamed(std::string_view name) const {
  const auto found = std::ranges::find(textFields_, name, &framework::TextField::name);
  return found != textFields_.end() ? *found : nullptr;
}

framework::Panel* NCDocument::panelNamed(std::string_view name) const {
  const auto found = std::ranges::find(panels_, name, &framework::Panel::name);
  return found != panels_.end() ? *found : nullptr;
}

std::vector<std::byte> NCDocument::dataRepresentationOfType(std::string_view) const {
  if (!patientRecord_) return {};
  const double shown = patientRecord_->extrapolatedGestation();
  patientRecord_->setExtrapolatedGestation(gestationInFile_.value_or(shown));
  std::vector<std::byte> bytes = model::archivedPatient(*patientRecord_);
  patientRecord_->setExtrapolatedGestation(shown);
  return bytes;
}

std::vector<std::byte> NCDocument::contentsAsTyped() {
  if (!patientRecord_) return {};
  model::NCRecord* exam = currentExamination();
  const auto identifier = patientRecord_->maternalIDString();
  const auto edd = patientRecord_->edd();
  const std::int64_t gravida = patientRecord_->gravida();
  const model::NCRecord before = exam ? *exam : model::NCRecord();
  storeTyped(*patientRecord_, exam);
  std::vector<std::byte> bytes = dataRepresentationOfType("");
  patientRecord_->setMaternalIDString(identifier);
  patientRecord_->setEDD(edd);
  patientRecord_->setGravida(gravida);
  if (exam) *exam = before;
  return bytes;
}

bool NCDocument::takesTypedText(framework::TextField& field) {
  if (fieldEditor().field() != &field) return true;
  const std::string& text = fieldEditor().text();
  return field.accepts(text) && controlTextShouldEndEditing(field, text);
}

void NCDocument::storeTyped(model::PatientRecord& patient, model::NCRecord* exam) {
  const std::string identifier = reader_.text(referenceIDField(), Reading::typed);
  // A file may lack a text, which is shown as an empty one.
  if (identifier != patient.maternalIDString().value_or("")) patient.setMaternalIDString(identifier);
  if (takesTypedText(gravidaField_))
    patient.setGravida(reader_.integer(gravidaField_, Reading::typed).value_or(0));
  // What is no date yet, or none any more, leaves the date that is known.
  const auto typedDate = [this](const framework::TextField& field) {
    const bool isTyped = field.wasEdited() || fieldEditor().field() == &field;
    return isTyped ? reader_.date(field, Reading::typed) : std::nullopt;
  };
  if (const auto edd = typedDate(birthDateField())) patient.setEDD(edd);
  if (!exam) return;
  if (const auto examDate = typedDate(examDateField())) exam->setExamDate(examDate);
  if (notesField().text() != exam->note().value_or("")) exam->setNote(notesField().text());
  model::MeasurementsRecord* measured = currentMeasurements();
  if (!measured) return;
  calc::Biometry lengths = measured->biometry();
  for (const calc::Measurement measurement : calc::kMeasurements) {
    framework::NumberField& field = fieldFor(measurement);
    const bool isStale = field.isStale() && fieldEditor().field() != &field;
    if (!isStale && takesTypedText(field))
      lengths.*calc::memberFor(measurement) = reader_.number(field, Reading::typed);
  }
  *measured = model::MeasurementsRecord(lengths);
}

bool NCDocument::loadDataRepresentation(std::span<const std::byte> data, std::string_view) {
  patientRecord_ = model::unarchivedPatient(data).patient;
  return true;
}

std::optional<std::string> NCDocument::lossInFile() const {
  if (!patientRecord_) return std::nullopt;
  const std::int64_t gravida = patientRecord_->gravida();
  const std::int32_t kept = foundation::low32Bits(gravida);
  if (kept == gravida) return std::nullopt;
  return foundation::format(
      services().localizer.text("NCDocument",
                                "The gravidity %ld will be read as %ld. A file holds gravidities up to %ld."),
      {gravida, kept, std::numeric_limits<std::int32_t>::max()});
}

std::vector<std::string> NCDocument::factsOfFile(std::span<const std::byte> data) const {
  std::unique_ptr<model::PatientRecord> patient;
  try {
    patient = model::unarchivedPatient(data).patient;
  } catch (const std::runtime_error&) {
    return {};  // opening the file tells why
  }
  if (!patient) return {};
  const foundation::Localizer& localizer = services().localizer;
  const auto fact = [&](const std::string& label, const std::optional<foundation::Date>& date) {
    return label + " " + (date ? longDateText(*date) : "-");
  };
  const auto& examinations = patient->ncRecordsArray();
  return {fact(localizer.text("NCDocument", "Last examination:"),
               examinations.empty() ? std::nullopt : examinations.back()->examDate()),
          fact(localizer.text("NCDocument", "EDD:"), patient->edd())};
}

std::string NCDocument::longDateText(const foundation::Date& date) const {
  const auto day = foundation::localDay(date, services().calendar);
  return day ? services().localizer.longDateText(*day) : std::string();
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

std::int64_t NCDocument::numberOfExaminations() const {
  return patientRecord_ ? static_cast<std::int64_t>(patientRecord_->ncRecordsArray().size()) : 0;
}

const model::NCRecord* NCDocument::examination(std::int64_t exam) const {
  if (exam < 0 || exam >= numberOfExaminations()) return nullptr;
  return patientRecord_->ncRecordsArray()[static_cast<std::size_t>(exam)].get();
}

model::NCRecord* NCDocument::currentExamination() {
  if (currentExam() < 0 || currentExam() >= numberOfExaminations()) return nullptr;
  return patientRecord_->ncRecordsArray()[static_cast<std::size_t>(currentExam())].get();
}

model::MeasurementsRecord* NCDocument::currentMeasurements() {
  model::NCRecord* exam = currentExamination();
  if (exam == nullptr || measurementsForFetus(currentFetus_, currentExam()) == nullptr) return nullptr;
  return &exam->measurementsForFetus(currentFetus_);
}

double NCDocument::extrapolatedBPDForCurrentFetus() {
  return projected(&model::MeasurementsRecord::bpd, &model::MeasurementsRecord::setBPD,
                   pages_.graph(calc::Measurement::bpd));
}
double NCDocument::extrapolatedHCForCurrentFetus() {
  return projected(&model::MeasurementsRecord::hc, &model::MeasurementsRecord::setHC,
                   pages_.graph(calc::Measurement::hc));
}
double NCDocument::extrapolatedACForCurrentFetus() {
  return projected(&model::MeasurementsRecord::ac, &model::MeasurementsRecord::setAC,
                   pages_.graph(calc::Measurement::ac));
}
double NCDocument::extrapolatedFLForCurrentFetus() {
  return projected(&model::MeasurementsRecord::fl, &model::MeasurementsRecord::setFL,
                   pages_.graph(calc::Measurement::fl));
}

double NCDocument::projected(double (model::MeasurementsRecord::*value)() const,
                             void (model::MeasurementsRecord::*store)(double),
                             const charts::NascorGraphView& graph) {
  (extrapolatedMeasurementsRecord_.*store)(0.0);
  if (!patientRecord_) return 0.0;
  const model::MeasurementsRecord* last = lastMeasurementsRecordForCurrentFetus();
  const model::PatientReport report(*patientRecord_, patientRecord_->extrapolatedGestation());
  const double result =
      report.projectedLength(last != nullptr ? (last->*value)() : 0.0, graph.standardData());
  (extrapolatedMeasurementsRecord_.*store)(result);
  return result;
}

}  // namespace nascor::app
