// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The patient's numbers for spreadsheets and other programs.

#include <algorithm>
#include <span>
#include <utility>
#include <variant>

#include "app/NCDocument.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"
#include "foundation/JsonText.h"
#include "foundation/Localizer.h"
#include "foundation/Sentence.h"
#include "framework/FileName.h"
#include "model/PatientJson.h"
#include "rows/PatientRows.h"

namespace nascor::app {

std::string NCDocument::dataAsCsv() const {
  const rows::RowFormat format(rows::patientColumns({}), {});
  std::string text;
  format.appendHeader(text);
  if (patientRecord_) rows::appendPatientRows(text, *patientRecord_, {}, format, services().calendar);
  return text;
}

std::string NCDocument::dataAsJson() const {
  std::string text;
  if (!patientRecord_) return text;
  foundation::JsonText json(text);
  model::writePatientJson(json, *patientRecord_, services().calendar, model::JsonNumbers::inMemory);
  return text + '\n';
}

std::string NCDocument::dataFileName(std::string_view extension) const {
  std::string name = preferredFileName(false);
  if (name.empty()) name = services().localizer.text("CorvelDocument", "Untitled");
  const std::string ending = " - " + services().localizer.text("NCDocument", "Data");
  return framework::fileNameEndingIn(framework::portableFileNameText(name), ending + std::string(extension));
}

std::string NCDocument::dataAsFhir() const {
  if (!patientRecord_) return {};
  const auto examinations = exchange::outgoingExaminations(*patientRecord_, services().calendar);
  return examinations.empty() ? "" : exchange::writeFhir(examinations, exchange::FhirForm::bundle);
}

std::variant<std::vector<std::byte>, std::string> NCDocument::examinationAsReport(
    const FindReportFiles& reportFiles) const {
  const auto all = exchange::outgoingExaminations(*patientRecord_, services().calendar);
  const auto shown =
      std::ranges::find(all, static_cast<std::size_t>(currentExam()), &exchange::OutgoingExamination::place);
  if (shown == all.end()) return services().localizer.text("NCDocument", "There is no examination.");
  if (!reportFiles) return services().localizer.text("NCDocument", "Nothing here writes DICOM reports.");
  const auto files = reportFiles();
  if (const auto* why = std::get_if<foundation::Sentence>(&files)) return said(*why, services().localizer);
  auto written = std::get<exchange::ReportFiles*>(files)->write(exchange::reportOf(*shown));
  if (const auto* why = std::get_if<foundation::Sentence>(&written)) return said(*why, services().localizer);
  return std::get<std::vector<std::byte>>(std::move(written));
}

std::optional<std::string> NCDocument::exportData(const std::string& path,
                                                  const FindReportFiles& reportFiles) {
  if (!commitsEditing())
    return services().localizer.text("CorvelDocument", "A field holds a text that is not permitted.");
  if (!patientRecord_) return std::nullopt;
  std::vector<std::byte> bytes;
  const auto take = [&bytes](const std::string& text) {
    const auto all = std::as_bytes(std::span(text));
    bytes.assign(all.begin(), all.end());
  };
  if (framework::hasExtension(path, "dcm")) {
    auto report = examinationAsReport(reportFiles);
    if (auto* why = std::get_if<std::string>(&report)) return std::move(*why);
    bytes = std::move(std::get<std::vector<std::byte>>(report));
  } else if (framework::hasExtension(path, "fhir.json")) {
    take(dataAsFhir());
  } else {
    take(framework::hasExtension(path, "json") ? dataAsJson() : dataAsCsv());
  }
  if (const auto error = services().files.replaceContents(path, bytes))
    return foundation::sentenceAbout(path, *error);
  return std::nullopt;
}

}  // namespace nascor::app
