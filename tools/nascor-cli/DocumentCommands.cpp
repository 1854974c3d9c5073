// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>

#include "archive/FormatError.h"
#include "archive/TreeDump.h"
#include "cli_commands/Command.h"
#include "cli_commands/DocumentFile.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "model/PatientJson.h"
#include "model/PatientJsonReader.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

void runJson(const Arguments& arguments, Console& console) {
  const posix::PosixCalendar calendar;
  for (const std::string& path : arguments.operands) {
    const auto document = documentIn(path, console);
    if (!document) continue;
    foundation::JsonText json(console.out());
    model::writePatientJson(json, *document->patient, calendar, model::JsonNumbers::inMemory);
    console.lineDone();
  }
}

void runMake(const Arguments& arguments, Console& console) {
  const std::string& path = arguments.operands[0];
  const std::string target = arguments.option("out").value_or("-");
  if (target == "-" && console.outputIsTerminal()) {
    throw UsageError(
        Sentence("CommandLine",
                 "a document is no text for a terminal; give --out FILE or send standard output to a file"));
  }
  const auto contents = contentsOf(path, console);
  if (!contents) return;

  model::PatientFromJson document;
  try {
    const std::string_view text(reinterpret_cast<const char*>(contents->data()), contents->size());
    document = model::patientFromJson(text, posix::PosixCalendar());
  } catch (const model::JsonDocumentError& error) {
    console.complain(nameOf(path), error.sentence());
    return;
  }
  for (const Sentence& warning : document.warnings) console.warn(nameOf(path), warning);

  const auto bytes = model::archivedPatient(*document.patient);
  if (target == "-") {
    console.writeBytes(bytes);
    return;
  }
  DocumentFile file(target, console);
  if (file.isOurs()) file.write(bytes);
}

void runDump(const Arguments& arguments, Console& console) {
  const bool asJson = arguments.has("json");
  for (const std::string& path : arguments.operands) {
    const auto contents = contentsOf(path, console);
    if (!contents) continue;
    try {
      std::string before;
      if (!asJson && arguments.operands.size() > 1) before.append(oneLine(nameOf(path))).append(": ");
      const auto take = [&](std::string_view piece) {
        const bool endsLine = piece.ends_with('\n');
        console.out() += before;
        console.out() += endsLine ? piece.substr(0, piece.size() - 1) : piece;
        console.partDone();
        before.clear();
        if (endsLine) before += '\n';  // the last line end is not the dump's to write
      };
      asJson ? archive::dumpAsJsonInPieces(*contents, take) : archive::dumpAsTextInPieces(*contents, take);
      console.lineDone();
    } catch (const archive::FormatError& error) {
      console.complain(nameOf(path), error.sentence());
    }
  }
}

constexpr std::string_view kDocument = translatable("CommandHelp", "a document; - is standard input");

}  // namespace

Command jsonCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{{{"FILE...", kDocument, true}}};
  return {
      .name = "json",
      .usage = "FILE...",
      .summary = translatable("CommandHelp",
                              "Each document as JSON: every field that it holds, one object on a line."),
      .details = Sentence(
          "CommandHelp",
          "Keys: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,\n"
          "extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with "
          "note,\n"
          "examDate, examDateISO and measurements, an array of objects with bpd, hc, ac and fl (mm; 0 = not\n"
          "measured). Dates are seconds since 2001-01-01 UTC; beside each stands its local time as ISO "
          "text.\n"),
      .operands = kOperands,
      .options = {},
      .run = runJson};
}

Command makeCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE.json", translatable("CommandHelp", "a document as JSON; - is standard input")}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"out", "FILE",
        translatable("CommandHelp",
                     "where to write it, as a whole or not at all; without it, or -, to standard output")}}};
  return {
      .name = "make",
      .usage = "FILE.json [--out FILE]",
      .summary = translatable("CommandHelp", "A document from JSON."),
      .details = Sentence(
          "CommandHelp",
          "Reads what json prints: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,\n"
          "extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with\n"
          "note, examDate and measurements, an array of objects with bpd, hc, ac and fl (mm). Every key may "
          "be\n"
          "missing; an unknown one is an error. A date is a number of\n"
          "seconds since 2001-01-01 UTC, an ISO date (2027-04-10 is local midnight), an ISO date and "
          "time, or\n"
          "null. Lengths are stored in single precision, whole numbers in 32 bits.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runMake};
}

Command dumpCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", translatable("CommandHelp", "any typed stream; - is standard input"), true}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"json", "", translatable("CommandHelp", "one JSON object a stream, on a line")}}};
  return {.name = "dump",
          .usage = "FILE... [--json]",
          .summary = translatable(
              "CommandHelp", "All that a typed stream holds, as a tree; of any program, not only documents."),
          .details = Sentence(
              "CommandHelp",
              "Each line begins with the byte at which the value begins. Keys of the JSON: byte_order,\n"
              "system_version, and groups, an array of objects with types and values; docs/json.md lists the "
              "values.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runDump};
}

}  // namespace nascor::cli
