// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>
#include <optional>
#include <utility>

#include "cli_commands/Command.h"
#include "cli_commands/Input.h"
#include "cli_commands/RowOptions.h"
#include "rows/Calculation.h"
#include "rows/CsvReader.h"

namespace nascor::cli {

namespace {

Sentence atLine(std::uint64_t line, const Sentence& sentence) {
  return Sentence("CommandLine", "line %1: %2").with(line, sentence);
}

/// The records of standard input.
class Records {
 public:
  explicit Records(Console& console) : input_(console, "-") {}

  /// False at the end. Throws CsvError, and UnreadableInput.
  bool next() {
    for (;;) {
      const auto next = reader_.next();
      if (next != rows::CsvReader::Next::more) return next == rows::CsvReader::Next::record;
      const auto piece = input_.next();
      if (const auto* error = std::get_if<Sentence>(&piece)) throw rows::CsvError(0, *error);
      const auto bytes = std::get<0>(piece);
      bytes.empty() ? reader_.finish() : reader_.read(bytes);
    }
  }

  std::span<const rows::CsvCell> cells() const { return reader_.cells(); }
  std::uint64_t line() const { return reader_.line(); }

 private:
  InputStream input_;
  rows::CsvReader reader_;
};

class CalcRun {
 public:
  CalcRun(const Arguments& arguments, Console& console)
      : choice_{.standards = chosenStandards(arguments), .formula = chosenFormula(arguments)},
        names_(chosenColumnNames(arguments)),
        isFixed_(arguments.has("fixed")),
        console_(console) {
    if (choice_.standards.empty()) choice_.standards = rows::allStandards();
  }

  void run() {
    try {
      Records records(console_);
      if (!records.next()) {
        console_.complain(kInput, Sentence("CommandLine", "there is no header"));
        return;
      }
      rows::Calculation calculation(records.cells(), choice_, names_, isFixed_);
      for (const Sentence& column : calculation.missingColumns()) {
        console_.warn(kInput, Sentence("CommandLine", "there is no column %1: never measured").with(column));
      }
      calculation.appendHeader(console_.out());
      console_.linesDone();
      while (records.next()) {
        const auto wrong = calculation.append(console_.out(), records.cells());
        console_.linesDone();
        if (wrong) console_.complain(kInput, atLine(records.line(), *wrong));
      }
    } catch (const rows::HeaderError& error) {
      console_.complain(kInput, error.sentence());
    } catch (const rows::UnknownColumn& error) {
      throw UsageError(Sentence("CommandLine", "--columns: %1").with(error.sentence()));
    } catch (const rows::CsvError& error) {
      console_.complain(kInput,
                        error.line() == 0 ? error.sentence() : atLine(error.line(), error.sentence()));
    }
  }

 private:
  const std::string kInput = nameOf("-");

  rows::Choice choice_;
  std::optional<std::vector<std::string>> names_;
  bool isFixed_;
  Console& console_;
};

void runCalc(const Arguments& arguments, Console& console) {
  CalcRun run(arguments, console);
  Console::endOnInterrupt();
  run.run();
}

}  // namespace

Command calcCommand() {
  static constexpr std::array<OptionSpec, 4> kOptions{{
      {"standard", "LIST",
       translatable(
           "CommandHelp",
           "growth standards by number or name, intergrowth-2014, with commas between; without it all four")},
      {"formula", "N", translatable("CommandHelp", "one weight, by number or name, instead of all eight")},
      {"columns", "LIST",
       translatable("CommandHelp", "only these columns, of the input or computed, in this order")},
      {"fixed", "", translatable("CommandHelp", "what is computed with one decimal, z-scores with three")},
  }};
  return {
      .name = "calc",
      .usage = "[--standard LIST] [--formula N] [--columns LIST] [--fixed] <TABLE.csv",
      .summary = translatable(
          "CommandHelp", "Weights, means and z-scores beside the columns of a CSV table on standard input."),
      .details = Sentence(
          "CommandHelp",
          "The first line names the columns; those that count are ga_weeks or ga, bpd_mm or bpd, hc_mm or\n"
          "hc, ac_mm or ac, fl_mm or fl, in any order. All columns of the table stay as they came. Behind\n"
          "them stand\n"
          "  efw_0_g,...,efw_7_g,westerway_bpd_mean_mm,westerway_bpd_sd_mm,westerway_bpd_z,...,cfef_fl_z\n"
          "  warning,error\n"
          "An empty cell, 0, nan and NA are not measured. What is no number (45mm, 45,2) is named in error\n"
          "and, with its line, on standard error; nothing is computed in that row, the others go on, and\n"
          "the status is 1. Memory does not grow with the table.\n"
          "Texts stay as they are. A spreadsheet runs cells that begin with '=': import them as text.\n"),
      .operands = {},
      .options = kOptions,
      .run = runCalc};
}

}  // namespace nascor::cli
