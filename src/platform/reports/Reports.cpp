// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "reports/Reports.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "exchange/FhirReader.h"
#include "exchange/OutgoingExamination.h"
#include "exchange/TableFindings.h"
#include "model/PatientJsonReader.h"
#include "posix/Module.h"
#include "posix/PosixCalendar.h"

namespace nascor::reports {

using foundation::Sentence;

namespace {

std::string_view textOf(std::span<const std::byte> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool isObject(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && text[first] == '{';
}

/// A DICOM file (PS3.10) begins with a preamble of 128 bytes, which readers ignore, and the prefix "DICM".
bool isDicom(std::string_view text) {
  constexpr std::size_t kPreamble = 128;
  return text.size() > kPreamble && text.substr(kPreamble).starts_with("DICM");
}

/// The examinations of a document in JSON, each as the report that holds the same; nothing for other JSON.
std::optional<std::vector<exchange::StructuredReport>> reportsOfOwnJson(std::string_view text) {
  const posix::PosixCalendar calendar;
  try {
    const auto read = model::patientFromJson(text, calendar);
    std::vector<exchange::StructuredReport> reports;
    for (const auto& examination : exchange::outgoingExaminations(*read.patient, calendar))
      reports.push_back(exchange::reportOf(examination));
    return reports.empty() ? std::nullopt : std::optional(std::move(reports));
  } catch (const model::JsonDocumentError&) {
    return std::nullopt;
  }
}

/// "PATH: No such file or directory."
Sentence failureOf(const std::string& path, const foundation::FileError& error) {
  // Such a reason names the file itself.
  if (!error.details.empty()) return Sentence::verbatim(error.reason);
  //: %1 is the path of a file, %2 what the operating system says of it.
  return Sentence("ReportFiles", "%1: %2").with(path, Sentence::ofSystem(error.reason));
}

}  // namespace

std::variant<exchange::ReportFiles*, Sentence> reportFiles() {
  const auto found = posix::moduleFunction<exchange::ReportFiles* (*)()>("nascor-dicom", "nascorReportFiles");
  if (const auto* why = std::get_if<Sentence>(&found)) return *why;
  return std::get<0>(found)();
}

std::variant<exchange::ReportServer*, Sentence> reportServer() {
  const auto found =
      posix::moduleFunction<exchange::ReportServer* (*)()>("nascor-dicom-net", "nascorReportServer");
  if (const auto* why = std::get_if<Sentence>(&found)) return *why;
  return std::get<0>(found)();
}

bool isReport(std::span<const std::byte> bytes) {
  const std::string_view text = textOf(bytes);
  return isDicom(text) || isObject(text) || exchange::findingsInTable(text).has_value();
}

std::variant<std::vector<exchange::StructuredReport>, Sentence> reportsIn(std::span<const std::byte> bytes) {
  const std::string_view text = textOf(bytes);
  if (isObject(text)) return exchange::reportsInBundle(text);
  if (!isDicom(text))
    return Sentence("ReportFiles",
                    "is no report that is read: no DICOM file, no FHIR bundle, and no table whose first line "
                    "names exam_date and lengths such as bpd_mm, with commas between");

  const auto files = reportFiles();
  if (const auto* why = std::get_if<Sentence>(&files))
    return Sentence("ReportFiles", "cannot be read: %1").with(*why);
  auto report = std::get<exchange::ReportFiles*>(files)->read(bytes);
  if (auto* why = std::get_if<Sentence>(&report)) return std::move(*why);
  std::vector<exchange::StructuredReport> reports;
  reports.push_back(std::move(std::get<exchange::StructuredReport>(report)));
  return reports;
}

std::variant<std::vector<exchange::Findings>, std::vector<Sentence>> findingsIn(
    std::span<const std::byte> bytes) {
  const std::string_view text = textOf(bytes);
  if (!isDicom(text)) {
    if (auto found = exchange::findingsInTable(text)) return std::move(*found);
  }
  auto reports = reportsIn(bytes);
  if (auto* why = std::get_if<Sentence>(&reports)) {
    auto own = isObject(text) ? reportsOfOwnJson(text) : std::nullopt;
    if (!own) return std::vector{std::move(*why)};
    reports = std::move(*own);
  }
  std::vector<exchange::Findings> all;
  for (const exchange::StructuredReport& report : std::get<0>(reports)) {
    auto findings = exchange::findingsIn(report);
    if (auto* why = std::get_if<Sentence>(&findings)) return std::vector{std::move(*why)};
    all.push_back(std::move(std::get<exchange::Findings>(findings)));
  }
  return all;
}

FoundInFiles findingsInFiles(std::span<const std::string> paths, const foundation::FileStore& files) {
  constexpr std::size_t kMostSentences = 5;
  FoundInFiles all;
  for (const std::string& path : paths) {
    const auto contents = files.contents(path);
    if (const auto* error = std::get_if<foundation::FileError>(&contents)) {
      all.failures.push_back(failureOf(path, *error));
      continue;
    }
    auto found = findingsIn(std::get<std::vector<std::byte>>(contents));
    if (auto* findings = std::get_if<0>(&found)) {
      std::ranges::move(*findings, std::back_inserter(all.findings));
      continue;
    }
    const std::string name = std::filesystem::path(path).filename().string();
    const auto& sentences = std::get<std::vector<Sentence>>(found);
    for (std::size_t i = 0; i < std::min(sentences.size(), kMostSentences); ++i)
      //: %1 is the name of a file, %2 a sentence about it that begins with a small letter.
      all.failures.push_back(Sentence("ReportFiles", "%1: %2.").with(name, sentences[i]));
    if (sentences.size() > kMostSentences) {
      const std::size_t others = sentences.size() - kMostSentences;
      //: %2 rows of the file %1 do not fit either.
      const auto one = Sentence("ReportFiles", "%1: %2 more row.");
      const auto many = Sentence("ReportFiles", "%1: %2 more rows.");
      all.failures.push_back(Sentence::counted(others, one.with(name, others), many.with(name, others)));
    }
  }
  return all;
}

}  // namespace nascor::reports
