// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientReport.h"

#include <utility>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/Projection.h"
#include "calc/Report.h"
#include "foundation/NumberText.h"

namespace nascor::model {

using calc::Measurement;

const NCRecord* PatientReport::examination(std::int64_t exam) const {
  if (exam < 0 || std::cmp_greater_equal(exam, examinations())) return nullptr;
  return patient_.ncRecordsArray()[static_cast<std::size_t>(exam)].get();
}

const NCRecord* PatientReport::lastExamination() const {
  return examination(static_cast<std::int64_t>(examinations()) - 1);
}

double PatientReport::age(const NCRecord* examination) const {
  return examination != nullptr ? calc::menstrualAge(examination->examDate(), patient_.edd()) : 0.0;
}

bool PatientReport::projectionIsShown() const {
  return calc::projectionIsShown(age(lastExamination()), plannedGestation_);
}

PatientReport::Head PatientReport::head(const NCRecord* examination, const DayText& dayText,
                                        const foundation::Localizer& localizer) const {
  const bool hasDaysToGo = patient_.edd() && projectionIsShown();
  return {.identifier = patient_.maternalIDString().value_or(""),
          .gravida = std::to_string(patient_.gravida()),
          .examDate = examination != nullptr ? dayText(examination->examDate()) : "",
          .edd = patient_.edd() ? dayText(patient_.edd()) : "-",
          .age = calc::gestationText(age(examination), localizer),
          .daysToGo = hasDaysToGo ? calc::daysToGoLine(plannedGestation_, localizer) : ""};
}

std::string PatientReport::Row::lengthText(Measurement measurement) const {
  return foundation::fixedText(lengths.*calc::memberFor(measurement), 1);
}

std::string PatientReport::Row::weightText() const {
  return isProjected ? foundation::fixedText(weight, 0) : calc::reportedWeight(weight);
}

PatientReport::Row PatientReport::row(const NCRecord& examination, const MeasurementsRecord* measured) const {
  const calc::Biometry lengths = measured != nullptr ? measured->biometry() : calc::Biometry{};
  return {.examDate = examination.examDate(),
          .age = age(&examination),
          .lengths = lengths,
          .weight = calc::estimatedFetalWeight(lengths, patient_.fetalWeightStandard())};
}

double PatientReport::projectedLength(double length, const calc::ReferenceTable& standard) const {
  return calc::projectedValue(standard, length, age(lastExamination()), plannedGestation_);
}

PatientReport::Row PatientReport::projectedRow(const calc::Biometry& lengths) const {
  return {.examDate = {},
          .age = plannedGestation_,
          .lengths = lengths,
          .weight = calc::estimatedFetalWeight(lengths, patient_.fetalWeightStandard()),
          .isProjected = true};
}

PatientReport::Cells PatientReport::titles(const foundation::Localizer& localizer) {
  return {localizer.text("", "Exam Date"), localizer.text("", "Menstrual Age"),
          localizer.text("", "BPD (mm)"),  localizer.text("", "HC (mm)"),
          localizer.text("", "AC (mm)"),   localizer.text("", "FL (mm)"),
          localizer.text("", "EFW (g)")};
}

PatientReport::Cells PatientReport::cells(const Row& row, std::string first,
                                          const foundation::Localizer& localizer) {
  return {std::move(first),
          calc::gestationText(row.age, localizer),
          row.lengthText(Measurement::bpd),
          row.lengthText(Measurement::hc),
          row.lengthText(Measurement::ac),
          row.lengthText(Measurement::fl),
          row.weightText()};
}

std::string PatientReport::projectedTitle(const foundation::Localizer& localizer) {
  return localizer.text("", "Projected");
}

}  // namespace nascor::model
