// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>

#include "calc/Centile.h"
#include "calc/Publications.h"
#include "calc/References.h"
#include "cli_commands/Command.h"
#include "cli_commands/Input.h"
#include "cli_commands/Names.h"
#include "cli_commands/Numbers.h"
#include "cli_commands/ReferenceText.h"
#include "cli_commands/Table.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"
#include "rows/Warnings.h"

namespace nascor::cli {

namespace {

using calc::Quantity;
using calc::Reference;
using foundation::JsonText;
using foundation::shortestText;

// The list

std::string quantityNames(const Reference& reference) {
  std::string names;
  for (const Quantity quantity : reference.quantities)
    names.append(names.empty() ? "" : ", ").append(calc::nameOf(quantity));
  return names;
}

void writeReference(JsonText& json, const Reference& reference, const calc::Publication& publication) {
  json.beginObject().key("name").text(reference.name).key("label").text(reference.label);
  json.key("measures").beginArray();
  for (const Quantity quantity : reference.quantities) json.text(calc::nameOf(quantity));
  json.endArray();
  json.key("firstWeek").integer(reference.firstWeek).key("lastWeek").integer(reference.lastWeek);
  json.key("form").text(calc::nameOf(reference.form)).key("assumes").text(reference.assumes);
  json.key("citation").text(publication.citation).key("doi");
  const std::string_view doi = calc::doiOf(publication);
  if (doi.empty()) {
    json.null();
  } else {
    json.text(doi);
  }
  json.endObject();
}

void listReferences(bool asJson, Console& console) {
  const auto publications = calc::referencePublications();
  const auto all = calc::references();
  if (asJson) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      JsonText json(console.out());
      writeReference(json, all[i], publications[i]);
      console.lineDone();
    }
    return;
  }
  Table table({{"Name"}, {"Label"}, {"Measures"}, {"Weeks"}, {"Form"}});
  for (const Reference& reference : all) {
    table.addRow({std::string(reference.name), std::string(reference.label), quantityNames(reference),
                  std::to_string(reference.firstWeek) + " to " + std::to_string(reference.lastWeek),
                  std::string(calc::nameOf(reference.form))});
  }
  table.print(console);
  for (std::size_t i = 0; i < all.size(); ++i) {
    console.lineDone();
    console.out().append(all[i].name).append(": ").append(all[i].assumes).append(".\n  ");
    console.out() += publications[i].citation;
    console.lineDone();
  }
}

// One answer

/// What one line of an answer holds; a number that is missing is null.
struct Answer {
  std::optional<double> week{};
  std::optional<double> value{};
  std::optional<double> mean{};
  std::optional<double> sd{};
  std::optional<double> median{};
  std::optional<double> z{};
  std::optional<calc::Centile> centile{};
  std::string warning{};
};

/// What stands beside the week.
enum class Given { nothing, value, centile, z };

/// A number that is asked about, as it was typed; nothing for "-", which stands for each line of standard input.
struct Number {
  std::string_view option;
  std::optional<double> number;
};

/// What is wrong with a number, as it goes on behind "expected ".
std::optional<Sentence> refusal(Given given, double number) {
  if (given == Given::value && !(number > 0.0)) return Sentence("CommandLine", "a number above 0");
  if (given == Given::centile && !(number > 0.0 && number < 100.0))
    return Sentence("CommandLine", "a number between 0 and 100, both excluded");
  return std::nullopt;
}

struct Question {
  const Reference* reference;
  Quantity quantity;
  Given given;
};

std::string referenceName(const Question& question) { return std::string(question.reference->name); }

void answerValue(Answer& answer, const Question& question, const calc::Population& population, double value) {
  answer.value = value;
  answer.z = population.z(value);
  answer.centile = population.centile(value);
  if (!answer.centile) answer.warning = referenceName(question) + " has no place for " + shortestText(value);
}

void answerCentile(Answer& answer, const Question& question, const calc::Population& population,
                   double percent) {
  answer.centile = calc::Centile{.percent = percent};
  answer.value = population.valueAtCentile(percent);
  if (question.reference->form != calc::ReferenceForm::quantiles) {
    answer.z = calc::zOfCentile(percent);
  } else if (!answer.value) {
    answer.warning =
        referenceName(question) + " has curves from the 1st to the 99th centile, and nothing beyond";
  }
}

void answerZ(Answer& answer, const Question& question, const calc::Population& population, double z) {
  if (question.reference->form == calc::ReferenceForm::quantiles) {
    answer.warning = referenceName(question) + " has curves of centiles and no z";
    return;
  }
  answer.z = z;
  answer.centile = calc::Centile{.percent = calc::centileOfZ(z)};
  answer.value = population.valueAtZ(z);
  if (!answer.value) answer.warning = referenceName(question) + " has no value at a z of " + shortestText(z);
}

Answer answerTo(const Question& question, double week, double number) {
  const auto population = calc::populationAt(*question.reference, question.quantity, week);
  if (!population) return {.warning = rows::outsideText(*question.reference, week)};
  Answer answer{
      .week = week, .mean = population->mean(), .sd = population->sd(), .median = population->median()};
  switch (question.given) {
    case Given::value: answerValue(answer, question, *population, number); break;
    case Given::centile: answerCentile(answer, question, *population, number); break;
    case Given::z: answerZ(answer, question, *population, number); break;
    case Given::nothing: break;
  }
  return answer;
}

void writeAnswer(JsonText& json, const Question& question, const Answer& answer) {
  json.beginObject().key("reference").text(question.reference->name);
  json.key("measure").text(calc::nameOf(question.quantity));
  writeOrNull(json.key("week"), answer.week);
  writeOrNull(json.key("value"), answer.value);
  writeOrNull(json.key("mean"), answer.mean);
  writeOrNull(json.key("sd"), answer.sd);
  writeOrNull(json.key("median"), answer.median);
  writeOrNull(json.key("z"), answer.z);
  writeOrNull(json.key("centile"), answer.centile);
  if (!answer.warning.empty()) json.key("warning").text(answer.warning);
  json.endObject();
}

void printAnswer(Console& console, const Question& question, const Answer& answer) {
  const auto print = [&console](std::string_view key, std::string_view text) {
    console.out().append(key).append(": ").append(text);
    console.lineDone();
  };
  const auto printNumber = [&print](std::string_view key, std::optional<double> number) {
    print(key, number ? shortestText(*number) : "-");
  };
  print("reference", question.reference->name);
  print("measure", calc::nameOf(question.quantity));
  printNumber("week", answer.week);
  printNumber("value", answer.value);
  printNumber("mean", answer.mean);
  printNumber("sd", answer.sd);
  printNumber("median", answer.median);
  printNumber("z", answer.z);
  print("centile", answer.centile ? centileText(*answer.centile) : "-");
  if (!answer.warning.empty()) print("warning", answer.warning);
}

// The command line

constexpr std::array<std::pair<std::string_view, Given>, 3> kGiven{
    {{"value", Given::value}, {"centile", Given::centile}, {"z", Given::z}}};

Number numberIn(const Arguments& arguments, std::string_view option, Given given) {
  const std::string text = *arguments.option(option);
  if (text == "-") return {option, std::nullopt};
  const std::string what = "--" + std::string(option);
  const double number = requiredNumber(what, text);
  if (const auto expected = refusal(given, number)) refuseValue(what, *expected, text);
  return {option, number};
}

Quantity quantityIn(const Reference& reference, const std::string& text) {
  const Measure measure = requiredMeasure(text);
  const Quantity quantity = measure.length ? calc::quantityOf(*measure.length) : Quantity::efw;
  if (!calc::covers(reference, quantity)) {
    //: %1 is a reference, %2 a measurement, %3 a list of measurements.
    throw UsageError(Sentence("CommandLine", "%1 tells nothing of %2; it has %3")
                         .with(reference.name, calc::nameOf(quantity), quantityNames(reference)));
  }
  return quantity;
}

/// The week, and what stands beside it.
struct Asked {
  Number week;
  Number other{};
  Given given = Given::nothing;
};

Asked askedIn(const Arguments& arguments) {
  if (!arguments.has("week")) throw UsageError(Sentence("CommandLine", "--week is missing"));
  Asked asked{.week = numberIn(arguments, "week", Given::nothing)};
  for (const auto& [option, given] : kGiven) {
    if (!arguments.has(option)) continue;
    if (asked.given != Given::nothing)
      throw UsageError(Sentence("CommandLine", "--value, --centile and --z exclude each other"));
    asked.given = given;
    asked.other = numberIn(arguments, option, given);
  }
  if (asked.given != Given::nothing && !asked.week.number && !asked.other.number)
    throw UsageError(Sentence("CommandLine", "--week and --%1 cannot both be -").with(asked.other.option));
  return asked;
}

void answerInput(const Question& question, const Asked& asked, bool asJson, Console& console) {
  bool isFirst = true;
  forEachNumberOfInput(console, [&](std::optional<double> number) {
    Answer answer{.warning = "the line of input is no number"};
    const Given given = asked.week.number ? asked.given : Given::nothing;
    if (const auto expected = number ? refusal(given, *number) : std::nullopt) {
      const auto sentence =
          Sentence("CommandLine", "expected %1, but %2 was given").with(*expected, shortestText(*number));
      answer.warning = english(sentence);
      console.complain(nameOf("-"), sentence);
    } else if (number) {
      answer = asked.week.number ? answerTo(question, *asked.week.number, *number)
                                 : answerTo(question, *number, asked.other.number.value_or(0.0));
    }
    if (asJson) {
      JsonText json(console.out());
      writeAnswer(json, question, answer);
      console.lineDone();
    } else {
      if (!isFirst) console.lineDone();
      printAnswer(console, question, answer);
    }
    isFirst = false;
  });
}

void runReference(const Arguments& arguments, Console& console) {
  const bool asJson = arguments.has("json");
  if (arguments.operands.empty()) {
    const auto isNumber = [&](const char* option) { return arguments.has(option); };
    if (std::ranges::any_of(std::array{"week", "value", "centile", "z"}, isNumber))
      throw UsageError(Sentence("CommandLine", "NAME is missing"));
    listReferences(asJson, console);
    return;
  }
  const Reference& reference = requiredReference("NAME", arguments.operands[0]);
  if (arguments.operands.size() == 1) throw UsageError(Sentence("CommandLine", "MEASURE is missing"));
  Question question{.reference = &reference,
                    .quantity = quantityIn(reference, arguments.operands[1]),
                    .given = Given::nothing};
  const Asked asked = askedIn(arguments);
  question.given = asked.given;
  const bool otherIsRead = asked.given != Given::nothing && !asked.other.number;
  if (!asked.week.number || otherIsRead) {
    answerInput(question, asked, asJson, console);
    return;
  }
  const Answer answer = answerTo(question, *asked.week.number, asked.other.number.value_or(0.0));
  if (asJson) {
    JsonText json(console.out());
    writeAnswer(json, question, answer);
    console.lineDone();
  } else {
    printAnswer(console, question, answer);
  }
}

}  // namespace

Command referenceCommand() {
  static constexpr std::array<OperandSpec, 2> kOperands{
      {{.name = "NAME",
        .help = translatable("CommandHelp", "a reference, by its name; without it all are listed"),
        .isOptional = true},
       {.name = "MEASURE",
        .help = translatable("CommandHelp", "one of bpd, hc, ac, fl, efw that the reference has"),
        .isOptional = true}}};
  static constexpr std::array<OptionSpec, 5> kOptions{{
      {"week", "W", translatable("CommandHelp", "the age in weeks")},
      {"value", "V", translatable("CommandHelp", "a length in mm, or a weight in g: its z and centile"),
       true},
      {"centile", "P", translatable("CommandHelp", "a centile between 0 and 100: its value and z"), true},
      {"z", "Z", translatable("CommandHelp", "a z-score: its value and centile"), true},
      {"json", "", translatable("CommandHelp", "one object a line; what a reference cannot say is null")},
  }};
  return {
      .name = "reference",
      .usage = "[NAME MEASURE --week W [--value V | --centile P | --z Z]] [--json]",
      .summary = translatable("CommandHelp",
                              "Where a value lies in a published population; which populations there are."),
      .details = Sentence(
          "CommandHelp",
          "One of W, V, P and Z may be -: then numbers are read from standard input, one a line, and each "
          "is\n"
          "answered. Nothing is extrapolated: outside the weeks of a reference all numbers are missing, "
          "and\n"
          "the answer says which weeks there are. who-2017 is made of curves: it has no z, and knows no "
          "more\n"
          "than <1 and >99 beyond the outermost. A weight's centile is that of the reference, never of "
          "the\n"
          "error of a formula.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runReference};
}

}  // namespace nascor::cli
