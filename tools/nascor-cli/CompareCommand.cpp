// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>

#include "calc/Biometry.h"
#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "cli_commands/Command.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/ReferenceText.h"
#include "cli_commands/Table.h"
#include "compare/Comparison.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "posix/PosixCalendar.h"
#include "rows/Warnings.h"

namespace nascor::cli {

namespace {

using compare::Caution;
using compare::Comparison;
using compare::Placed;
using foundation::fixedText;
using foundation::JsonText;

/// One fetus at one examination of a document.
struct Subject {
  std::string file;
  std::size_t examination;
  std::size_t fetus;
  std::string day;  ///< ISO; empty for an unknown one
};

std::string cautionText(Caution caution, const calc::Reference& reference, std::optional<double> age) {
  const std::string name(reference.name);
  switch (caution) {
    case Caution::ageUnknown: return "the age is not known";
    case Caution::outsideWeeks: return rows::outsideText(reference, age.value_or(0.0));
    case Caution::otherFormula:
      return name + " fits weights by " +
             std::string(calc::weightFormulas()[static_cast<std::size_t>(reference.onlyFormula.value_or(0))]
                             .longLabel) +
             " only";
    case Caution::withoutPlace: break;
  }
  return name + " has no place for this value";
}

std::string warningOf(const Placed& figure, std::optional<double> age) {
  std::string text;
  for (const Caution caution : figure.cautions)
    text += (text.empty() ? "" : "; ") + cautionText(caution, *figure.reference, age);
  return text;
}

// As JSON

void writeWarning(JsonText& json, const Placed& figure, std::optional<double> age) {
  if (!figure.cautions.empty()) json.key("warning").text(warningOf(figure, age));
}

void writeLength(JsonText& json, const compare::Length& length, std::optional<double> age) {
  json.beginObject().key("measure").text(calc::nameOf(length.measurement));
  writeOrNull(json.key("value"), length.value);
  json.key("references").beginArray();
  for (const Placed& figure : length.references) {
    json.beginObject().key("reference").text(figure.reference->name);
    writeOrNull(json.key("mean"), figure.mean);
    writeOrNull(json.key("sd"), figure.sd);
    writeOrNull(json.key("median"), figure.median);
    writeOrNull(json.key("z"), figure.z);
    writeOrNull(json.key("centile"), figure.centile);
    writeOrNull(json.key("weeks"), figure.weeks);
    writeWarning(json, figure, age);
    json.endObject();
  }
  json.endArray().endObject();
}

void writeWeight(JsonText& json, const compare::Weight& weight, std::optional<double> age) {
  json.beginObject().key("formula").text(calc::weightFormula(weight.formula)->name);
  writeOrNull(json.key("efw"), weight.grams);
  writeOrNull(json.key("difference"), weight.difference);
  json.key("references").beginArray();
  for (const Placed& figure : weight.references) {
    json.beginObject().key("reference").text(figure.reference->name);
    writeOrNull(json.key("z"), figure.z);
    writeOrNull(json.key("centile"), figure.centile);
    writeWarning(json, figure, age);
    json.endObject();
  }
  json.endArray().endObject();
}

void writeComparison(JsonText& json, const Subject& subject, const Comparison& comparison) {
  json.beginObject().key("file").text(subject.file);
  json.key("examination").unsignedInteger(subject.examination).key("examDate");
  if (subject.day.empty()) {
    json.null();
  } else {
    json.text(subject.day);
  }
  json.key("fetus").unsignedInteger(subject.fetus);
  writeOrNull(json.key("weeks"), comparison.age);
  json.key("lengths").beginArray();
  for (const compare::Length& length : comparison.lengths) writeLength(json, length, comparison.age);
  json.endArray().key("weights").beginArray();
  for (const compare::Weight& weight : comparison.weights) writeWeight(json, weight, comparison.age);
  json.endArray().key("ratios").beginObject();
  writeOrNull(json.key("hcAC"), comparison.ratios.hcToAC);
  writeOrNull(json.key("flAC"), comparison.ratios.flToAC);
  writeOrNull(json.key("flBPD"), comparison.ratios.flToBPD);
  json.endObject();
  writeOrNull(json.key("discordance"), comparison.discordance);
  json.key("growth").beginArray();
  for (const compare::Growth& growth : comparison.growth) {
    json.beginObject().key("measure").text(calc::nameOf(growth.quantity));
    writeOrNull(json.key("perWeek"), growth.perWeek);
    writeOrNull(json.key("zChange"), growth.zChange);
    json.endObject();
  }
  json.endArray().endObject();
}

// For people

constexpr int kLengthDecimals = 1;
constexpr int kZDecimals = 2;

std::string shown(std::optional<double> number, int decimals) {
  if (!number) return "-";
  const std::string text = fixedText(*number, decimals);
  const bool isMinusZero = text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos;
  return isMinusZero ? text.substr(1) : text;
}

std::string shown(const std::optional<calc::Centile>& centile) {
  if (!centile) return "-";
  if (centile->side != calc::Centile::Side::within) return centileText(*centile);
  return fixedText(centile->percent, kLengthDecimals);
}

std::string ageText(std::optional<double> weeks) {
  return calc::gestationText(weeks.value_or(0.0), foundation::EnglishLocalizer());
}

void printLengths(Console& console, const Comparison& comparison) {
  using enum Table::Align;
  Table table({{"Length"},
               {"mm", right},
               {"Reference"},
               {"Mean", right},
               {"SD", right},
               {"Median", right},
               {"z", right},
               {"Centile", right},
               {"Age", right},
               {"Remark"}});
  for (const compare::Length& length : comparison.lengths) {
    for (const Placed& figure : length.references) {
      table.addRow({inCapitals(calc::nameOf(length.measurement)), shown(length.value, kLengthDecimals),
                    std::string(figure.reference->name), shown(figure.mean, kLengthDecimals),
                    shown(figure.sd, kZDecimals), shown(figure.median, kLengthDecimals),
                    shown(figure.z, kZDecimals), shown(figure.centile), ageText(figure.weeks),
                    warningOf(figure, comparison.age)});
    }
  }
  table.print(console);
}

void printWeights(Console& console, const Comparison& comparison) {
  using enum Table::Align;
  Table table({{"Weight"},
               {"g", right},
               {"Difference", right},
               {"Reference"},
               {"z", right},
               {"Centile", right},
               {"Remark"}});
  for (const compare::Weight& weight : comparison.weights) {
    for (const Placed& figure : weight.references) {
      table.addRow({std::string(calc::weightFormula(weight.formula)->longLabel), shown(weight.grams, 0),
                    shown(weight.difference, 0), std::string(figure.reference->name),
                    shown(figure.z, kZDecimals), shown(figure.centile), warningOf(figure, comparison.age)});
    }
  }
  table.print(console);
}

void printGrowth(Console& console, const Comparison& comparison) {
  if (comparison.growth.empty()) return;
  using enum Table::Align;
  Table table({{"Growth"}, {"Per Week", right}, {"Change of z", right}});
  for (const compare::Growth& growth : comparison.growth) {
    const bool isWeight = growth.quantity == calc::Quantity::efw;
    table.addRow({inCapitals(calc::nameOf(growth.quantity)) + (isWeight ? " (g)" : " (mm)"),
                  shown(growth.perWeek, kLengthDecimals), shown(growth.zChange, kZDecimals)});
  }
  console.lineDone();
  table.print(console);
}

void printComparison(Console& console, const Subject& subject, const Comparison& comparison) {
  console.out() += oneLine(subject.file) + ", examination " + std::to_string(subject.examination) +
                   ", fetus " + std::to_string(subject.fetus) + ": " +
                   (subject.day.empty() ? "-" : subject.day) + ", " + ageText(comparison.age);
  console.lineDone();
  printLengths(console, comparison);
  console.lineDone();
  printWeights(console, comparison);
  console.lineDone();
  const auto& [hcToAC, flToAC, flToBPD] = comparison.ratios;
  console.out() += "HC/AC " + shown(hcToAC, 3) + "  FL/AC " + shown(flToAC, 3) + "  FL/BPD " +
                   shown(flToBPD, 3) + "  Discordance " + shown(comparison.discordance, 1) +
                   (comparison.discordance ? " %" : "");
  console.lineDone();
  printGrowth(console, comparison);
}

void runCompare(const Arguments& arguments, Console& console) {
  const posix::PosixCalendar calendar;
  const bool asJson = arguments.has("json");
  bool isFirst = true;
  for (const std::string& path : arguments.operands) {
    const auto document = documentIn(path, console);
    if (!document) continue;
    const auto& examinations = document->patient->ncRecordsArray();
    for (std::size_t place = 0; place < examinations.size(); ++place) {
      const auto& date = examinations[place]->examDate();
      Subject subject{.file = nameOf(path),
                      .examination = place,
                      .fetus = 0,
                      .day = date ? foundation::isoDayText(*date, calendar) : std::string()};
      for (; subject.fetus < examinations[place]->measurements().size(); ++subject.fetus) {
        const Comparison comparison = compare::comparisonOf(*document->patient, place, subject.fetus);
        if (asJson) {
          JsonText json(console.out());
          writeComparison(json, subject, comparison);
          console.lineDone();
        } else {
          if (!isFirst) console.lineDone();
          printComparison(console, subject, comparison);
        }
        isFirst = false;
      }
    }
  }
}

}  // namespace

Command compareCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", translatable("CommandHelp", "a document; - is standard input"), true}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"json", "",
        translatable("CommandHelp",
                     "one object a document, examination and fetus, on a line: unrounded numbers")}}};
  return {.name = "compare",
          .usage = "FILE... [--json]",
          .summary = translatable(
              "CommandHelp", "Each length and weight by every reference and formula, ratios, twins, growth."),
          .details = Sentence(
              "CommandHelp",
              "Examinations and fetuses count from 0. Difference is that from the weight by the document's "
              "formula.\n"
              "Age is that of which the value is the median of the reference; outside its weeks a dash. "
              "Discordance\n"
              "is the share, of the heaviest fetus, by which the lightest weighs less. Growth is that since "
              "the\n"
              "examination before which has the length; the change of z is by the document's standard. "
              "Centiles of\n"
              "weights are those of references; the error of a formula is no population.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runCompare};
}

}  // namespace nascor::cli
