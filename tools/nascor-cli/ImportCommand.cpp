// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <set>
#include <system_error>

#include "calc/EditingBounds.h"
#include "cli_commands/Command.h"
#include "cli_commands/DocumentFile.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "exchange/DecimalText.h"
#include "exchange/Findings.h"
#include "exchange/FindingsJson.h"
#include "exchange/Storing.h"
#include "foundation/JsonText.h"
#include "foundation/Utf8.h"
#include "model/PatientFile.h"
#include "posix/PosixCalendar.h"
#include "reports/Reports.h"

namespace nascor::cli {

namespace {

/// ID=N, where N counts from 1; what stands before the last equals sign is the ID.
std::pair<std::string, std::int64_t> fetusPlaceIn(const std::string& text) {
  const std::size_t equals = text.rfind('=');
  const std::string_view number =
      std::string_view(text).substr(equals == std::string::npos ? text.size() : equals + 1);
  std::int64_t place = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), place);
  const bool isNumber = error == std::errc() && end == number.data() + number.size();
  if (!isNumber || place < calc::kFewestFetuses || place > calc::kMostFetuses)
    throw UsageError(
        Sentence("CommandLine", "--fetus: expected ID=N with a number from 1 to 5, but \"%1\" stands here")
            .with(text));
  return {text.substr(0, equals), place - 1};
}

/// The reference ID that was typed, as a document keeps it; nothing where none was.
std::optional<std::string> patientIn(const Arguments& arguments) {
  const auto typed = arguments.option("patient");
  if (!typed) return std::nullopt;
  const std::string id(exchange::withoutBlanks(*typed));
  if (id.empty())
    throw UsageError(Sentence("CommandLine", "--patient takes a reference ID, and an empty one is none"));
  const bool hasControls = std::ranges::any_of(id, [](unsigned char c) { return c < ' ' || c == 0x7F; });
  if (!foundation::isValidUtf8(id) || hasControls)
    throw UsageError(Sentence("CommandLine", "--patient takes a reference ID of UTF-8 text in one line"));
  return id;
}

exchange::Confirmation confirmationIn(const Arguments& arguments) {
  exchange::Confirmation confirmation{
      .patientID = patientIn(arguments), .fetusPlaces = {}, .takeEDD = arguments.has("edd")};
  const auto fetuses = arguments.repeated.find("fetus");
  if (fetuses == arguments.repeated.end()) return confirmation;
  for (const std::string& text : fetuses->second) {
    const auto [id, place] = fetusPlaceIn(text);
    const auto [found, isNew] = confirmation.fetusPlaces.emplace(id, place);
    if (!isNew && found->second != place)
      throw UsageError(Sentence("CommandLine", "--fetus: \"%1\" is given two numbers").with(id));
  }
  return confirmation;
}

/// The findings of a file, one for each examination.
struct Found {
  std::string file;
  std::vector<exchange::Findings> findings;
};

/// What was read.
struct FoundInAll {
  std::vector<Found> files;
  bool isWhole = true;  ///< every file could be read
};

/// The findings of every file that can be read, printed as they come.
FoundInAll findAndPrint(const std::vector<std::string>& files, Console& console) {
  FoundInAll found;
  std::vector<Found>& all = found.files;
  for (const std::string& file : files) {
    const auto bytes = contentsOf(file, console);
    if (!bytes) {
      found.isWhole = false;
      continue;
    }
    auto reports = reports::findingsIn(*bytes);
    if (const auto* sentences = std::get_if<std::vector<Sentence>>(&reports)) {
      for (const Sentence& why : *sentences) console.complain(nameOf(file), why);
      found.isWhole = false;
      continue;
    }
    all.push_back({file, std::move(std::get<0>(reports))});
    for (const exchange::Findings& findings : all.back().findings) {
      foundation::JsonText json(console.out());
      exchange::writeFindingsJson(json, file, findings);
      console.lineDone();
    }
  }
  return found;
}

/// Why files do not go into one document together: they name different patients. Each is of one.
std::optional<Sentence> severalPatients(const std::vector<Found>& all) {
  std::set<std::string> named;
  for (const Found& found : all) {
    const auto first = std::ranges::find_if(
        found.findings, [](const exchange::Findings& findings) { return findings.patientID.has_value(); });
    if (first != found.findings.end()) named.insert(*first->patientID);
  }
  if (named.size() < 2) return std::nullopt;
  return Sentence(
             "CommandLine",
             "is of patient \"%1\", others are of \"%2\"; nothing is stored. Please import those of each "
             "patient alone")
      .with(*named.rbegin(), *named.begin());
}

/// What findings are stored in, and what its file holds.
struct Stored {
  model::UnarchivedPatient document;
  foundation::FileContents contents{};
};

/// The document of --into, or a new one.
std::optional<Stored> documentFor(const Arguments& arguments, Console& console) {
  if (const auto into = arguments.option("into")) {
    const auto contents = contentsOf(*into, console);
    if (!contents) return std::nullopt;
    auto document = documentFrom(*contents);
    if (auto* read = std::get_if<model::UnarchivedPatient>(&document))
      return Stored{.document = std::move(*read), .contents = *contents};
    console.complain(nameOf(*into), std::get<Sentence>(document));
    return std::nullopt;
  }
  const std::string out = arguments.option("out").value_or("");
  std::error_code ignored;
  if (std::filesystem::symlink_status(out, ignored).type() != std::filesystem::file_type::not_found) {
    console.complain(out, Sentence("CommandLine", "it is there already, and stays as it is"));
    return std::nullopt;
  }
  model::UnarchivedPatient document{.patient = std::make_unique<model::PatientRecord>(), .facts = {}};
  document.patient->setMaternalIDString("");
  document.patient->setNumberOfFetuses(1);
  constexpr double kWeeks = 40.0;
  document.patient->setExtrapolatedGestation(kWeeks);
  return Stored{.document = std::move(document)};
}

/// Why findings are not stored, and by which option they would be.
Sentence withRemedy(const Sentence& why, const exchange::Findings& findings,
                    const exchange::Confirmation& confirmation, bool isNew,
                    const model::PatientRecord& patient) {
  using Doubt = exchange::PatientDoubt;
  const Doubt doubt = exchange::patientDoubt(findings, isNew, patient.maternalIDString().value_or(""));
  const bool helpsToNameHer = !confirmation.patientID && doubt != Doubt::none && doubt != Doubt::isAnother;
  return helpsToNameHer ? Sentence("CommandLine", "%1, by --patient").with(why) : why;
}

/// All of them, or nothing is written.
void store(const std::vector<Found>& all, const Arguments& arguments, Console& console) {
  const exchange::Confirmation confirmation = confirmationIn(arguments);
  const posix::PosixCalendar calendar;
  const bool isNewDocument = !arguments.has("into");
  const std::string target = arguments.option(isNewDocument ? "out" : "into").value_or("");
  // Before it is read, or what another program writes meanwhile would be lost.
  DocumentFile document(target, console);
  if (!document.isOurs()) return;
  auto stored = documentFor(arguments, console);
  if (!stored || all.empty()) return;
  model::PatientRecord& patient = *stored->document.patient;

  if (const auto why = severalPatients(all)) {
    console.complain(nameOf(all.back().file), *why);
    return;
  }
  bool isNew = isNewDocument;
  bool isRefused = false;
  std::vector<std::pair<std::string, Sentence>> warnings;
  for (const Found& found : all) {
    const std::string file = nameOf(found.file);
    std::set<std::string> saidOfFile;
    const auto refuse = [&](const Sentence& why) {
      // Each of its examinations may have the same fault.
      if (saidOfFile.insert(english(why)).second) console.complain(file, why);
      isRefused = true;
    };
    if (const auto why = exchange::severalPatientsFault(found.findings)) {
      refuse(*why);
      continue;
    }
    for (const exchange::Findings& findings : found.findings) {
      const auto taken = exchange::storeFindings(findings, confirmation, isNew, calendar, patient);
      if (const auto* why = std::get_if<Sentence>(&taken)) {
        refuse(withRemedy(*why, findings, confirmation, isNew, patient));
        continue;
      }
      isNew = false;
      for (const Sentence& warning : warningsOf(std::get<exchange::Stored>(taken), findings))
        warnings.emplace_back(file, warning);
    }
  }
  if (isRefused) return;
  for (const auto& [file, warning] : warnings) console.warn(file, warning);
  document.writeExpected(model::archivedPatient(patient), stored->contents);
}

void runImport(const Arguments& arguments, Console& console) {
  const bool isStored = arguments.has("out") || arguments.has("into");
  if (arguments.has("out") && arguments.has("into"))
    throw UsageError(Sentence("CommandLine", "--out and --into are two ways to store"));
  for (const char* name : {"out", "into"}) {
    if (arguments.has(name) && (arguments.option(name)->empty() || *arguments.option(name) == "-"))
      throw UsageError(Sentence("CommandLine", "%1 takes a file").with("--" + std::string(name)));
  }
  // What is wrong with it is said before anything is printed.
  static_cast<void>(confirmationIn(arguments));

  const FoundInAll found = findAndPrint(arguments.operands, console);
  // Of several files that belong together all are stored, or none.
  if (isStored && found.isWhole) store(found.files, arguments, console);
}

}  // namespace

Command importCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...",
        translatable("CommandHelp",
                     "a DICOM report, a FHIR bundle of this program, or a CSV table of examinations; - is "
                     "standard input"),
        true}}};
  static constexpr std::array<OptionSpec, 5> kOptions{{
      {"out", "FILE", translatable("CommandHelp", "store what was found in a new document")},
      {"into", "FILE", translatable("CommandHelp", "add what was found to a document")},
      {"patient", "ID",
       translatable("CommandHelp", "the reports are of the patient of this reference ID, whatever they say")},
      {"fetus", "ID=N",
       translatable("CommandHelp",
                    "the fetus that the reports call ID is fetus N of the document; once for each"),
       false, true},
      {"edd", "", translatable("CommandHelp", "the report's EDD takes the place of the document's")},
  }};
  return {
      .name = "import",
      .usage = "FILE... [--out FILE | --into FILE] [--patient ID] [--fetus ID=N]... [--edd]",
      .summary = translatable(
          "CommandHelp",
          "What reports of ultrasound machines and tables hold, as JSON; stored only on demand."),
      .details = Sentence(
          "CommandHelp",
          "One object a report, of a table one for each patient and day: file, patientID, examDate, edd,\n"
          "eddFrom, gravida, numberOfFetuses, fetuses (id, bpd, hc, ac, fl and crl in mm, efw in g, "
          "chosen),\n"
          "notTaken, warnings.\n"
          "A table has the columns that rows writes: exam_date, any of bpd_mm, hc_mm, ac_mm and fl_mm, and,\n"
          "where it has them, reference_id, fetus (from 0) or fetus_number (from 1), edd, gravida and\n"
          "number_of_fetuses. When a row does not fit, nothing of the table is printed or stored.\n"
          "Nothing is stored when patient or fetus are in doubt, and nothing that stands is overwritten.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runImport};
}

}  // namespace nascor::cli
