// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "manual/CliProgram.h"

#include "cli_commands/Command.h"
#include "cli_commands/CommandLine.h"
#include "foundation/ProgramVersion.h"

namespace nascor::manual {

namespace {

Command described(const cli::Command& command) {
  Command out{.name = std::string(command.name),
              .usage = std::string(command.usage),
              .summary = std::string(command.summary),
              .details = english(command.details),
              .operands = {},
              .options = {}};
  for (const cli::OperandSpec& each : command.operands)
    out.operands.push_back({std::string(each.name), std::string(each.help)});
  for (const cli::OptionSpec& each : command.options)
    out.options.push_back({{"--" + std::string(each.name)}, std::string(each.value), std::string(each.help)});
  return out;
}

}  // namespace

Program cliProgram() {
  const cli::GeneralHelp general = cli::generalHelp();
  Program program{.whole = {.name = std::string(general.program),
                            .usage = std::string(general.usage),
                            .summary = std::string(general.summary),
                            .details = std::string(general.rules),
                            .operands = {},
                            .options = {}},
                  .commands = {},
                  .version = std::string(foundation::programVersion()),
                  .seeAlso = "nascor"};
  for (const auto& [names, meaning] : general.options)
    program.whole.options.push_back({{names.begin(), names.end()}, "", std::string(meaning)});
  std::vector<std::string> names;
  for (const cli::Command& each : cli::commands()) {
    program.commands.push_back(described(each));
    names.emplace_back(each.name);
  }
  program.commands.push_back({.name = "help",
                              .usage = "[COMMAND]",
                              .summary = std::string(general.helpOfHelp),
                              .details = {},
                              .operands = {{"COMMAND", "the command to explain", names}},
                              .options = {}});
  return program;
}

}  // namespace nascor::manual
