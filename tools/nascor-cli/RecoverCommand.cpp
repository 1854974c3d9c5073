// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>
#include <variant>

#include "cli_commands/Command.h"
#include "cli_commands/DocumentFile.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "foundation/JsonText.h"
#include "model/PatientDifferences.h"
#include "posix/PosixFileStore.h"
#include "posix/RecoveryFolder.h"

namespace nascor::cli {

namespace {

constexpr std::size_t kMostDifferences = 1000;

/// The patient in the document that was saved last; an empty one where there is none that can be read.
model::PatientRecord savedPatient(const std::string& path) {
  if (path.empty()) return {};
  const auto contents = posix::PosixFileStore().contents(path);
  const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
  if (!bytes) return {};
  auto document = documentFrom(*bytes);
  auto* read = std::get_if<model::UnarchivedPatient>(&document);
  return read && read->patient ? std::move(*read->patient) : model::PatientRecord();
}

void writeText(foundation::JsonText& json, std::string_view key, const std::optional<std::string>& text) {
  json.key(key);
  text ? json.text(*text) : json.null();
}

void list(Console& console) {
  const posix::RecoveryFolder folder(posix::RecoveryFolder::usualPath());
  for (const foundation::RecoveryFile& file : folder.files()) {
    const auto document = documentIn(file.path, console);
    if (!document) continue;
    const model::PatientRecord& patient = *document->patient;
    foundation::JsonText json(console.out());
    json.beginObject();
    writeText(json, "recovery", file.path);
    writeText(json, "document",
              file.origin.document.empty() ? std::nullopt : std::optional(file.origin.document));
    writeText(json, "patient", patient.maternalIDString());
    json.key("saved").number(file.saved.secondsSince2001);
    json.key("fetuses").integer(patient.numberOfFetuses());
    json.key("examinations").integer(static_cast<std::int64_t>(patient.ncRecordsArray().size()));
    json.key("differs").beginArray();
    for (const auto& difference :
         model::patientDifferences(savedPatient(file.origin.document), patient, kMostDifferences)) {
      json.text(difference.key);
    }
    json.endArray().endObject();
    console.lineDone();
  }
}

void runRecover(const Arguments& arguments, Console& console) {
  const auto target = arguments.option("out");
  if (arguments.operands.empty()) {
    if (target)
      throw UsageError(
          Sentence("CommandLine", "--out needs the recovery file to write; recover alone lists them"));
    list(console);
    return;
  }
  if (!target) throw UsageError(Sentence("CommandLine", "give --out DOCUMENT, where to write the document"));
  const std::string& path = arguments.operands[0];
  const auto contents = contentsOf(path, console);
  if (!contents) return;
  const auto document = documentFrom(*contents);
  if (const auto* sentence = std::get_if<Sentence>(&document)) {
    console.complain(nameOf(path), *sentence);
    return;
  }
  DocumentFile file(*target, console);
  if (file.isOurs()) file.write(*contents);
}

}  // namespace

Command recoverCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{.name = "FILE",
        .help = translatable("CommandHelp", "a recovery file, as the list names it"),
        .isOptional = true}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"out", "DOCUMENT",
        translatable("CommandHelp", "where to write the document, as a whole or not at all")}}};
  return {
      .name = "recover",
      .usage = "[FILE --out DOCUMENT]",
      .summary = translatable(
          "CommandHelp", "Unsaved changes that the application kept: a list, or one of them as a document."),
      .details = Sentence(
          "CommandHelp",
          "The list has one JSON object a line: recovery (the file), document (the path of the "
          "document's own\n"
          "file; null when it was never saved), patient, saved (seconds since 2001-01-01 UTC), fetuses,\n"
          "examinations, and differs, the keys of json that the saved document holds otherwise. It also "
          "names\n"
          "what running applications keep. A recovery file is a document: json, report and check read "
          "it. It\n"
          "stays where it is until the application has offered it.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runRecover};
}

}  // namespace nascor::cli
