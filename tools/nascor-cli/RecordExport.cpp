#include "cli_commands/RecordExport.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/Reports.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"
#include "foundation/Utf8.h"
#include "posix/PosixCalendar.h"
#include "posix/PosixFileStore.h"

namespace nascor::cli {

namespace {

using exchange::OutgoingExamination;

/// A folder that files are written to.
class Target {
 public:
  Target(std::string folder, bool keepsOld, Console& console)
      : folder_(std::move(folder)), keepsOld_(keepsOld), console_(&console) {}

  /// The name of a document's files: two documents of one name do not replace each other's.
  std::string nameFor(const std::string& path) {
    const std::string stem = path == "-" ? "Untitled" : std::filesystem::path(path).stem().string();
    std::string name = stem;
    for (int number = 2; !names_.insert(name).second; ++number)
      name = stem + " (" + std::to_string(number) + ")";
    return name;
  }

  void write(const std::string& name, std::span<const std::byte> bytes) {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    if (error) return console_->complain(folder_, error.message());
    const std::string path = (std::filesystem::path(folder_) / name).string();
    if (keepsOld_ && store_.exists(path))
      return console_->warn(path, "it is there already, and stays as it is");
    if (const auto problem = store_.replaceContents(path, bytes)) console_->complain(path, problem->reason);
  }

 private:
  std::string folder_;
  bool keepsOld_;
  Console* console_;
  std::set<std::string> names_;
  posix::PosixFileStore store_;
};

/// Why the reference ID cannot stand in a report; empty when it can.
std::string faultOf(const std::string& patientID) {
  constexpr std::size_t kLongest = 64;
  const auto isRefused = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == '\\'; };
  if (std::ranges::any_of(patientID, isRefused))
    return "the reference ID has a character that a DICOM report cannot hold";
  return foundation::codePoints(patientID) > kLongest
             ? "the reference ID is longer than the 64 characters of a DICOM report"
             : "";
}

void writeReports(const std::string& file, const std::string& name,
                  std::span<const OutgoingExamination> examinations, Target& target, Console& console) {
  const auto files = reportFiles();
  if (const auto* why = std::get_if<std::string>(&files))
    return console.complain(nameOf(file), "cannot be written: " + *why);
  for (std::size_t i = 0; i < examinations.size(); ++i) {
    if (const auto fault = faultOf(examinations[i].patientID); !fault.empty())
      return console.complain(nameOf(file), fault);
    const auto bytes = std::get<exchange::ReportFiles*>(files)->write(reportOf(examinations[i]));
    if (const auto* why = std::get_if<std::string>(&bytes)) return console.complain(nameOf(file), *why);
    target.write(name + " " + std::to_string(i + 1) + ".dcm", std::get<std::vector<std::byte>>(bytes));
  }
}

void check(const std::string& format, const Arguments& arguments) {
  for (const char* option : {"pages", "fetus", "no-foot"}) {
    if (arguments.has(option))
      throw UsageError("--" + std::string(option) + " is for pages, not for --format " + format);
  }
  const bool isLines = arguments.has("ndjson");
  if (isLines && format != "fhir") throw UsageError("--ndjson is for --format fhir");
  const std::string folder = arguments.option("out").value_or("");
  if (isLines && !folder.empty()) throw UsageError("--ndjson writes to standard output, and takes no --out");
  if (!isLines && (folder.empty() || folder == "-")) throw UsageError("--out is missing, or no folder");
}

}  // namespace

void exportRecords(const std::string& format, const Arguments& arguments, Console& console) {
  check(format, arguments);
  const bool isLines = arguments.has("ndjson");
  Target target(arguments.option("out").value_or(""), arguments.has("no-clobber"), console);
  const posix::PosixCalendar calendar;
  for (const std::string& file : arguments.operands) {
    const auto document = documentIn(file, console);
    if (!document) continue;
    const auto examinations = exchange::outgoingExaminations(*document->patient, calendar);
    const std::string name = target.nameFor(file);
    if (examinations.empty()) console.warn(nameOf(file), "it holds no examination, and nothing is written");
    for (const OutgoingExamination& examination : examinations) {
      for (const std::string& warning : examination.warnings) console.warn(nameOf(file), warning);
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
