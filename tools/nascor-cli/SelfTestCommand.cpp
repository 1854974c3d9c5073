// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/SelfTestCommand.h"

#include <array>
#include <string>

#include "cli_commands/Command.h"
#include "foundation/JsonText.h"
#include "selftest/SelfTest.h"

namespace nascor::cli {

namespace {

void runSelfTest(const Arguments& arguments, Console& console) {
  printSelfTest(selftest::examples(), arguments.has("json"), console);
}

}  // namespace

void printSelfTest(std::span<const selftest::Example> examples, bool asJson, Console& console) {
  const auto results = selftest::replay(examples);
  for (const auto& [group, values, differences] : results) {
    if (asJson) {
      foundation::JsonText json(console.out());
      json.beginObject().key("group").text(group).key("values").unsignedInteger(values);
      json.key("differences").unsignedInteger(differences).endObject();
    } else {
      console.out().append(group).append("\t").append(std::to_string(values));
      console.out().append("\t").append(std::to_string(differences));
    }
    console.lineDone();
  }
  const auto& total = results.back();
  if (total.differences > 0) {
    const auto one = Sentence("CommandLine", "%1 of %2 values differs");
    const auto many = Sentence("CommandLine", "%1 of %2 values differ");
    console.complain("self-test",
                     Sentence::counted(total.differences, one.with(total.differences, total.values),
                                       many.with(total.differences, total.values)));
  }
}

Command selfTestCommand() {
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"json", "", translatable("CommandHelp", "one object a group, on a line")}}};
  return {
      .name = "self-test",
      .usage = "[--json]",
      .summary = translatable(
          "CommandHelp",
          "Works examples with known results out again: formulas, standards, references, dating."),
      .details = Sentence(
          "CommandHelp",
          "A line a group: its name, how many values it has, how many of them differ; the last line is the "
          "total.\n"
          "The values are printed ones, held against the program at their own precision, and others that "
          "were\n"
          "worked out apart from the program. The status is 1 when one differs.\n"),
      .operands = {},
      .options = kOptions,
      .run = runSelfTest};
}

}  // namespace nascor::cli
