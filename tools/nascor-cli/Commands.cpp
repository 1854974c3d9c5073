// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Command.h"

namespace nascor::cli {

std::optional<std::string> Arguments::option(std::string_view name) const {
  const auto found = options.find(name);
  if (found == options.end()) return std::nullopt;
  return found->second;
}

std::span<const Command> commands() {
  static const std::vector<Command> kCommands{
      reportCommand(),    rowsCommand(),    calcCommand(),     indexCommand(),    dueCommand(),
      searchCommand(),    checkCommand(),   makeCommand(),     jsonCommand(),     dumpCommand(),
      recoverCommand(),   weightCommand(),  crlCommand(),      standardCommand(), lookupCommand(),
      referenceCommand(), compareCommand(), selfTestCommand(), importCommand(),   exportCommand(),
      summaryCommand(),   serverCommand(),
  };
  return kCommands;
}

}  // namespace nascor::cli
