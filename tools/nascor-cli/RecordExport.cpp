// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/RecordExport.h"

#include <algorithm>
#include <span>

#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/Target.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"
#include "foundation/Utf8.h"
#include "posix/PosixCalendar.h"
#include "reports/Reports.h"

namespace nascor::cli {

namespace {

using exchange::OutgoingExamination;

/// Why the reference ID cannot stand in a report; nothing when it can.
std::optional<Sentence> faultOf(const std::string& patientID) {
  constexpr std::size_t kLongest = 64;
  const auto isRefused = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == '\\'; };
  if (std::ranges::any_of(patientID, isRefused))
    return Sentence("CommandLine", "the reference ID has a character that a DICOM report cannot hold");
  if (foundation::codePoints(patientID) <= kLongest) return std::nullopt;
  return Sentence("CommandLine", "the reference ID is longer than the 64 characters of a DICOM report");
}

void writeReports(const std::string& file, const std::string& name,
                  std::span<const OutgoingExamination> examinations, Target& target, Console& console) {
  const auto files = reports::reportFiles();
  if (const auto* why = std::get_if<Sentence>(&files))
    return console.complain(nameOf(file), Sentence("CommandLine", "cannot be written: %1").with(*why));
  for (std::size_t i = 0; i < examinations.size(); ++i) {
    if (const auto fault = faultOf(examinations[i].patientID)) return console.complain(nameOf(file), *fault);
    const auto bytes = std::get<exchange::ReportFiles*>(files)->write(reportOf(examinations[i]));
    if (const auto* why = std::get_if<Sentence>(&bytes)) return console.complain(nameOf(file), *why);
    target.write(name + " " + std::to_string(i + 1) + ".dcm", std::get<std::vector<std::byte>>(bytes));
  }
}

void check(const std::string& format, const Arguments& arguments) {
  for (const char* option : {"pages", "fetus", "overlay", "join-marks", "no-foot"}) {
    if (arguments.has(option))
      throw UsageError(
          Sentence("CommandLine", "--%1 is for pages, not for --format %2").with(option, format));
  }
  const bool isLines = arguments.has("ndjson");
  if (isLines && format != "fhir") throw UsageError(Sentence("CommandLine", "--ndjson is for --format fhir"));
  const std::string folder = arguments.option("out").value_or("");
  if (isLines && !folder.empty())
    throw UsageError(Sentence("CommandLine", "--ndjson writes to standard output, and takes no --out"));
  if (!isLines && (folder.empty() || folder == "-"))
    throw UsageError(Sentence("CommandLine", "--out is missing, or no folder"));
}

}  // namespace

void exportRecords(const std::string& format, const Arguments& arguments, Console& console) {
  check(format, arguments);
  const bool isLines = arguments.has("ndjson");
  Target target(isLines ? std::string() : outFolderIn(arguments), arguments.has("no-clobber"), console);
  const posix::PosixCalendar calendar;
  for (const std::string& file : arguments.operands) {
    const auto document = documentIn(file, console);
    if (!document) continue;
    const auto examinations = exchange::outgoingExaminations(*document->patient, calendar);
    const std::string name = target.nameFor(file);
    if (examinations.empty())
      console.warn(nameOf(file), Sentence("CommandLine", "it holds no examination, and nothing is written"));
    for (const OutgoingExamination& examination : examinations) {
      for (const Sentence& warning : examination.warnings) console.warn(nameOf(file), warning);
    }
    if (examinations.empty()) continue;
    if (format == "sr") {
      writeReports(file, name, examinations, target, console);
    } else if (isLines) {
      console.out() += exchange::writeFhir(examinations, exchange::FhirForm::lines);
      console.linesDone();
    } else {
      const std::string bundle = exchange::writeFhir(examinations, exchange::FhirForm::bundle);
      target.write(name + ".json", std::as_bytes(std::span(bundle)));
    }
  }
}

}  // namespace nascor::cli
