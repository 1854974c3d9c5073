// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>

#include "calc/Biometry.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"
#include "cli_commands/Command.h"
#include "cli_commands/Improbable.h"
#include "cli_commands/Input.h"
#include "cli_commands/Names.h"
#include "cli_commands/Numbers.h"
#include "cli_commands/Table.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"

namespace nascor::cli {

namespace {

using foundation::JsonText;
using foundation::shortestText;

/// A column of a standard: one of the lengths, or the weight.
struct Quantity {
  std::string name;
  std::string title;
  calc::ReferenceTable table;
};

calc::ReferenceTable tableOf(std::int64_t standard, calc::Measurement measurement) {
  calc::ReferenceTable table;
  calc::appendStandard(table, standard, measurement);
  return table;
}

Quantity weightOf(std::int64_t standard, std::int64_t formula) {
  using calc::Measurement;
  return {.name = std::string(kWeightName),
          .title = "EFW (g)",
          .table = calc::fetalWeightTable(
              tableOf(standard, Measurement::bpd), tableOf(standard, Measurement::hc),
              tableOf(standard, Measurement::ac), tableOf(standard, Measurement::fl), formula)};
}

Quantity lengthOf(std::int64_t standard, calc::Measurement measurement) {
  const std::string_view name = calc::nameOf(measurement);
  return {.name = std::string(name),
          .title = inCapitals(name) + " (mm)",
          .table = tableOf(standard, measurement)};
}

std::optional<std::int64_t> formulaIn(const Arguments& arguments) {
  const auto text = arguments.option("formula");
  if (!text) return std::nullopt;
  return requiredFormula("--formula", *text);
}

Quantity quantityOf(std::int64_t standard, const std::string& name, std::optional<std::int64_t> formula) {
  const Measure measure = requiredMeasure(name);
  if (measure.length) return lengthOf(standard, *measure.length);
  if (!formula) throw UsageError(Sentence("CommandLine", "efw needs --formula"));
  return weightOf(standard, *formula);
}

void writeRows(JsonText& json, const calc::ReferenceTable& table, const Digits& digits) {
  json.beginArray();
  for (const calc::DatabaseRecord& row : table) {
    json.beginArray().number(row.observation());
    digits.write(json, row.mean());
    digits.write(json, row.sd());
    json.endArray();
  }
  json.endArray();
}

void runStandard(const Arguments& arguments, Console& console) {
  const std::int64_t standard = requiredStandard("N", arguments.operands[0]);
  const auto formula = formulaIn(arguments);
  const auto measurement = arguments.option("measurement");
  const Digits digits(arguments);

  std::vector<Quantity> quantities;
  if (measurement) {
    quantities.push_back(quantityOf(standard, *measurement, formula));
  } else {
    for (const calc::Measurement each : calc::kMeasurements) quantities.push_back(lengthOf(standard, each));
    if (formula) quantities.push_back(weightOf(standard, *formula));
  }

  if (arguments.has("json")) {
    JsonText json(console.out());
    if (measurement) {
      writeRows(json, quantities.front().table, digits);
    } else {
      json.beginObject();
      for (const Quantity& quantity : quantities) {
        json.key(quantity.name);
        writeRows(json, quantity.table, digits);
      }
      json.endObject();
    }
    console.lineDone();
    return;
  }

  console.out() += calc::growthStandards()[static_cast<std::size_t>(standard)].label;
  if (formula && quantities.back().name == kWeightName) {
    console.out() += ", " + std::string(calc::weightFormulas()[static_cast<std::size_t>(*formula)].longLabel);
  }
  console.lineDone();
  std::vector<Table::Column> columns{{"Week", Table::Align::right}};
  for (const Quantity& quantity : quantities) {
    columns.push_back({quantity.title});
    columns.push_back({"SD"});
  }
  Table table(std::move(columns));
  // The tables of one standard have the same weeks.
  for (std::size_t row = 0; row < quantities.front().table.size(); ++row) {
    std::vector<std::string> cells{shortestText(quantities.front().table[row].observation())};
    for (const Quantity& quantity : quantities) {
      cells.push_back(digits.text(quantity.table[row].mean()));
      cells.push_back(digits.text(quantity.table[row].sd()));
    }
    table.addRow(std::move(cells));
  }
  table.print(console);
}

struct Question {
  std::string_view option;
  double (*answer)(const calc::ReferenceTable& table, double value);
  calc::BeyondTable (*beyond)(const calc::ReferenceTable& table, double value);
};
constexpr std::array<Question, 3> kQuestions{
    {{"mean", calc::meanForGestation, calc::weekBeyondTable},
     {"sd", calc::sdForGestation, calc::weekBeyondTable},
     {"gestation", calc::gestationForMeasurement, calc::valueBeyondTable}}};

/// A sentence where another week of the table stands in for what was asked.
std::optional<Sentence> beyondText(const Question& asked, const Quantity& quantity, double value) {
  const auto beyond = asked.beyond(quantity.table, value);
  if (beyond == calc::BeyondTable::no) return std::nullopt;
  const bool isBefore = beyond == calc::BeyondTable::before;
  const auto& row = isBefore ? quantity.table.front() : quantity.table.back();
  const Sentence sentence =
      isBefore ? Sentence("CommandLine", "%1 lies beyond the table, whose first week, %2, counts")
               : Sentence("CommandLine", "%1 lies beyond the table, whose last week, %2, counts");
  return sentence.with(shortestText(value), shortestText(row.observation()));
}

void runLookup(const Arguments& arguments, Console& console) {
  const std::int64_t standard = requiredStandard("N", arguments.operands[0]);
  const Quantity quantity = quantityOf(standard, arguments.operands[1], formulaIn(arguments));
  const Question* asked = nullptr;
  for (const Question& question : kQuestions) {
    if (!arguments.has(question.option)) continue;
    if (asked) throw UsageError(Sentence("CommandLine", "--mean, --sd and --gestation exclude each other"));
    asked = &question;
  }
  if (!asked) throw UsageError(Sentence("CommandLine", "one of --mean, --sd and --gestation is missing"));

  const bool asJson = arguments.has("json");
  const Digits digits(arguments);
  const auto answer = [&](std::optional<double> value) {
    if (!asJson) {
      console.out() += value ? digits.text(asked->answer(quantity.table, *value)) : "nan";
    } else if (value) {
      JsonText json(console.out());
      digits.write(json, asked->answer(quantity.table, *value));
    } else {
      JsonText(console.out()).null();
    }
    console.lineDone();
  };
  const std::string text = *arguments.option(asked->option);
  if (text != "-") {
    const double value = requiredNumber("--" + std::string(asked->option), text);
    if (const auto sentence = beyondText(*asked, quantity, value)) warn(console, *sentence);
    answer(value);
    return;
  }
  StreamWarnings warnings(console);
  forEachNumberOfInput(console, [&](std::optional<double> value) {
    if (const auto sentence = value ? beyondText(*asked, quantity, *value) : std::nullopt)
      warnings.add(*sentence);
    answer(value);
  });
  warnings.end();
}

/// One line a fact: its number, its name, its label.
template <class Facts>
std::string numbered(Facts facts, std::string_view std::remove_cvref_t<decltype(facts[0])>::*label) {
  std::string text;
  std::size_t identifier = 0;
  for (const auto& fact : facts) {
    std::string name(fact.name);
    name.resize(9, ' ');
    text += "  " + std::to_string(identifier++) + "  " + name + "  " + std::string(fact.*label) + "\n";
  }
  return text;
}

Sentence identifiers() {
  return Sentence("CommandHelp",
                  "Growth standards (N):\n"
                  "%1\n"
                  "Weight formulas (K):\n"
                  "%2\n"
                  "The number or the name, in letters of any size.\n")
      .with(numbered(calc::growthStandards(), &calc::GrowthStandard::label),
            numbered(calc::weightFormulas(), &calc::WeightFormula::longLabel));
}

}  // namespace

Command standardCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"N", translatable("CommandHelp", "growth standard, see below")}}};
  static constexpr std::array<OptionSpec, 4> kOptions{{
      {"measurement", "M",
       translatable("CommandHelp", "one of bpd, hc, ac, fl, efw; without it the four lengths")},
      {"formula", "K", translatable("CommandHelp", "weight formula, see below; needed for efw")},
      kFixedOption,
      {"json", "",
       translatable("CommandHelp",
                    "rows [week, mean, sd]; without --measurement an object of such rows by measurement")},
  }};
  return {
      .name = "standard",
      .usage = "N [--measurement M] [--formula K] [--fixed] [--json]",
      .summary = translatable("CommandHelp",
                              "A reference table: mean and standard deviation at each week, in mm or g."),
      .details =
          Sentence("CommandHelp",
                   "%1\nThe mean weight is that of a fetus whose four lengths are the means. Its standard "
                   "deviation is the\n"
                   "error of the formula, not the spread of a population; 0 where none is published.\n")
              .with(identifiers()),
      .operands = kOperands,
      .options = kOptions,
      .run = runStandard};
}

Command lookupCommand() {
  static constexpr std::array<OperandSpec, 2> kOperands{
      {{"N", translatable("CommandHelp", "growth standard, see below")},
       {"M", translatable("CommandHelp", "one of bpd, hc, ac, fl, efw")}}};
  static constexpr std::array<OptionSpec, 6> kOptions{{
      {"mean", "W", translatable("CommandHelp", "the mean at W weeks")},
      {"sd", "W", translatable("CommandHelp", "the standard deviation at W weeks")},
      {"gestation", "MM",
       translatable("CommandHelp", "the age in weeks of which MM (grams for efw) is the mean")},
      {"formula", "K", translatable("CommandHelp", "weight formula, see below; needed for efw")},
      kFixedOption,
      {"json", "", translatable("CommandHelp", "the same number as JSON")},
  }};
  return {
      .name = "lookup",
      .usage = "N M (--mean W | --sd W | --gestation MM) [--formula K] [--fixed] [--json]",
      .summary = translatable(
          "CommandHelp", "One look-up in a reference table, between whole weeks by linear interpolation."),
      .details =
          Sentence(
              "CommandHelp",
              "The value may be -: then values are read from standard input, one a line, and answered one a "
              "line; a\n"
              "line that is no number is answered by nan (null in JSON). Nothing is extrapolated: beyond the "
              "table\n"
              "its first or last week counts, and standard error says so (of standard input once).\n\n"
              "%1")
              .with(identifiers()),
      .operands = kOperands,
      .options = kOptions,
      .run = runLookup};
}

}  // namespace nascor::cli
