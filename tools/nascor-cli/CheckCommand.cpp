// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>

#include "cli_commands/Command.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/PatientCheck.h"
#include "foundation/JsonText.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

void writeJson(Console& console, const std::string& path, const std::vector<Oddity>& oddities) {
  foundation::JsonText json(console.out());
  json.beginObject().key("file").text(nameOf(path)).key("oddities").beginArray();
  for (const Oddity& oddity : oddities) {
    json.beginObject().key("kind").text(oddity.kind);
    json.key("examination");
    oddity.examination ? json.integer(static_cast<std::int64_t>(*oddity.examination)) : json.null();
    json.key("fetus");
    oddity.fetus ? json.integer(static_cast<std::int64_t>(*oddity.fetus)) : json.null();
    json.key("text").text(english(oddity.text)).endObject();
  }
  json.endArray().endObject();
  console.lineDone();
}

void runCheck(const Arguments& arguments, Console& console) {
  const posix::PosixCalendar calendar;
  for (const std::string& path : arguments.operands) {
    const auto document = documentIn(path, console);
    if (!document) continue;
    const auto oddities = odditiesOf(*document, calendar);
    if (arguments.has("json")) {
      writeJson(console, path, oddities);
      continue;
    }
    for (const Oddity& oddity : oddities) {
      console.out() += oneLine(nameOf(path)) + ": " + oneLine(said(oddity.text, console.localizer()));
      console.lineDone();
    }
    if (oddities.empty() && arguments.has("verbose")) {
      console.out() += oneLine(nameOf(path)) + ": ok";
      console.lineDone();
    }
  }
}

}  // namespace

Command checkCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", translatable("CommandHelp", "a document; - is standard input"), true}}};
  static constexpr std::array<OptionSpec, 2> kOptions{{
      {"json", "", translatable("CommandHelp", "one JSON object a document, on a line")},
      {"verbose", "", translatable("CommandHelp", "say ok where there is nothing to say")},
  }};
  return {.name = "check",
          .usage = "FILE... [--json | --verbose]",
          .summary = translatable("CommandHelp",
                                  "Reads each document whole and names every oddity in it, one a line."),
          .details = Sentence(
              "CommandHelp",
              "An oddity is accepted everywhere else: a count that disagrees, a date that is missing, a "
              "length beyond\n"
              "what can be typed, an old class version. It leaves the exit status at 0; a file that cannot "
              "be read\n"
              "makes it 1. Keys of the JSON: file, and oddities, an array of objects with kind, examination, "
              "fetus,\n"
              "text.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runCheck};
}

}  // namespace nascor::cli
