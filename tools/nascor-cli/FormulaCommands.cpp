// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>

#include "calc/Biometry.h"
#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "cli_commands/Command.h"
#include "cli_commands/Improbable.h"
#include "cli_commands/Input.h"
#include "cli_commands/Numbers.h"
#include "cli_commands/Table.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"

namespace nascor::cli {

namespace {

using foundation::JsonText;
using foundation::shortestText;

/// For people: 0.0, which the formulas give where they do not apply, is a dash.
std::string shown(double value, const Digits& digits) { return value == 0.0 ? "-" : digits.text(value); }

void runWeight(const Arguments& arguments, Console& console) {
  calc::Biometry measured;
  bool anyGiven = false;
  for (const calc::Measurement measurement : calc::kMeasurements) {
    const auto value = arguments.option(calc::nameOf(measurement));
    if (!value) continue;
    anyGiven = true;
    measured.*calc::memberFor(measurement) =
        requiredNumber("--" + std::string(calc::nameOf(measurement)), *value);
  }
  if (!anyGiven) throw UsageError(Sentence("CommandLine", "a length is missing"));
  for (const calc::Measurement measurement : calc::kMeasurements) {
    // No age is known here, and so no standard to be far from.
    for (const calc::Improbable what : calc::improbableLength(measurement, measured, 0.0, {}))
      warn(console, improbableText(what, measurement, measured));
  }

  const Digits digits(arguments);
  if (arguments.has("json")) {
    JsonText json(console.out());
    json.beginArray();
    for (const calc::WeightFormula& formula : calc::weightFormulas())
      digits.write(json, formula.weight(measured));
    json.endArray();
    console.lineDone();
    return;
  }
  Table table({{"", Table::Align::right}, {"Formula"}, {"Weight (g)"}});
  std::size_t identifier = 0;
  for (const calc::WeightFormula& formula : calc::weightFormulas()) {
    table.addRow({std::to_string(identifier++), std::string(formula.longLabel),
                  shown(formula.weight(measured), digits)});
  }
  table.print(console);
}

/// The ages at one length, or the answer to a line that is no number.
void answerCRL(std::optional<double> crl, bool asJson, const Digits& digits, Console& console) {
  std::string& out = console.out();
  if (asJson && !crl) {
    JsonText(out).null();
  } else if (asJson) {
    JsonText json(out);
    json.beginArray();
    for (const calc::CRLFormula& formula : calc::crlFormulas())
      digits.write(json, formula.menstrualAge(*crl));
    json.endArray();
  } else {
    out += crl ? shortestText(*crl) : "nan";
    for (const calc::CRLFormula& formula : calc::crlFormulas()) {
      out += '\t';
      out += crl ? shown(formula.menstrualAge(*crl), digits) : "nan";
    }
  }
  console.lineDone();
}

/// A sentence where no formula dates that length.
std::optional<Sentence> undatedText(double crl) {
  const auto formulas = calc::crlFormulas();
  const auto dates = [crl](const calc::CRLFormula& formula) { return formula.menstrualAge(crl) != 0.0; };
  if (std::ranges::any_of(formulas, dates)) return std::nullopt;
  const double least = std::ranges::min(formulas, {}, &calc::CRLFormula::least).least;
  const double greatest = std::ranges::max(formulas, {}, &calc::CRLFormula::greatest).greatest;
  //: Crown-rump lengths.
  return Sentence("CommandLine", "no formula dates %1 mm; they reach from %2 to %3 mm")
      .with(shortestText(crl), shortestText(least), shortestText(greatest));
}

void printCRLTitles(Console& console) {
  console.out() += "CRL (mm)";
  for (const calc::CRLFormula& formula : calc::crlFormulas()) {
    console.out() += '\t';
    console.out() += formula.label;
  }
  console.lineDone();
}

void runCRL(const Arguments& arguments, Console& console) {
  const bool asJson = arguments.has("json");
  const auto answer = [&, digits = Digits(arguments)](std::optional<double> crl) {
    answerCRL(crl, asJson, digits, console);
  };

  // All are looked at before the first is answered: wrong usage prints nothing else.
  std::vector<std::optional<double>> lengths;
  for (const std::string& text : arguments.operands) {
    lengths.push_back(text == "-" ? std::nullopt : std::optional(requiredNumber("MM", text)));
  }
  if (!asJson) printCRLTitles(console);
  for (const auto& length : lengths) {
    if (length) {
      if (const auto sentence = undatedText(*length)) warn(console, *sentence);
      answer(length);
      continue;
    }
    StreamWarnings warnings(console);
    forEachNumberOfInput(console, [&](std::optional<double> crl) {
      if (const auto sentence = crl ? undatedText(*crl) : std::nullopt) warnings.add(*sentence);
      answer(crl);
    });
    warnings.end();
  }
}

}  // namespace

Command weightCommand() {
  static constexpr std::array<OptionSpec, 6> kOptions{{
      {"bpd", "MM", translatable("CommandHelp", "biparietal diameter")},
      {"hc", "MM", translatable("CommandHelp", "head circumference")},
      {"ac", "MM", translatable("CommandHelp", "abdominal circumference")},
      {"fl", "MM", translatable("CommandHelp", "femur length")},
      kFixedOption,
      {"json", "", translatable("CommandHelp", "an array of eight numbers, by identifier of the formula")},
  }};
  return {.name = "weight",
          .usage = "[--bpd MM] [--hc MM] [--ac MM] [--fl MM] [--fixed] [--json]",
          .summary = translatable(
              "CommandHelp", "The estimated weight of one fetus by each of the eight formulas, in grams."),
          .details = Sentence(
              "CommandHelp",
              "A length that is not given is 0, which means not measured. Where a formula needs it, the "
              "weight is\n"
              "a dash (0 in JSON). An improbable length is named on standard error.\n"
              "The formulas, by identifier: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),\n"
              "2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),\n"
              "6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).\n"),
          .operands = {},
          .options = kOptions,
          .run = runWeight};
}

Command crlCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"MM...",
        translatable("CommandHelp", "crown-rump lengths; - reads lengths from standard input, one a line"),
        true, true}}};
  static constexpr std::array<OptionSpec, 2> kOptions{
      {kFixedOption,
       {"json", "",
        translatable("CommandHelp", "an array of four numbers a length, each on a line of its own")}}};
  return {.name = "crl",
          .usage = "MM... [--fixed] [--json]",
          .summary = translatable(
              "CommandHelp",
              "The menstrual age at each crown-rump length by each of the four formulas, in weeks."),
          .details = Sentence(
              "CommandHelp",
              "One line a length, columns separated by tabs. Outside the range of a formula the age is a "
              "dash (0 in\n"
              "JSON). A line of standard input that is no number is answered by nan (null in JSON).\n"
              "A length that no formula dates is named on standard error, of standard input the first one.\n"
              "The formulas, by identifier: 0 Hadlock (1992), 2 to 120 mm; 1 Nelson (1981), 6.7 to 82.4 mm\n"
              "(no second source has it; 9 days more than Hadlock (1992) at 7 mm, 3 days more at 20 mm);\n"
              "2 Robinson (1975), 7 to 79.6 mm; 3 Westerway (2000), 2 to 87 mm.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runCRL};
}

}  // namespace nascor::cli
