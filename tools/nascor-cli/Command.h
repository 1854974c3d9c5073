// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli_commands/Console.h"
#include "foundation/Localizer.h"
#include "foundation/Sentence.h"

namespace nascor::cli {

using foundation::translatable;

/// The command was called wrongly. Ends the program with status 2, the sentence and a line on the right usage.
class UsageError : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

/// What stands behind the name of a command on the command line, as the texts that were typed.
struct Arguments {
  std::map<std::string_view, std::string> options;  ///< by name; a flag that was given holds "true"
  std::vector<std::string> operands;                ///< what belongs to no option, in order
  /// All values of each option that takes one, in order: `options` holds the last.
  std::map<std::string_view, std::vector<std::string>> repeated{};

  bool has(std::string_view name) const { return options.contains(name); }
  std::optional<std::string> option(std::string_view name) const;
};

// What stands here as `help` and `summary` is a key of the table "CommandHelp".

struct OptionSpec {
  std::string_view name;   ///< without the dashes
  std::string_view value;  ///< what stands for the value in help; empty for a flag
  std::string_view help;
  bool isNumber = false;  ///< -.5 is one then, and no option
  bool repeated = false;  ///< may be given several times
};

struct OperandSpec {
  std::string_view name;
  std::string_view help;
  bool repeated = false;    ///< one or more; of the last operand only
  bool isNumber = false;    ///< -.5 is one then, and no option
  bool isOptional = false;  ///< may be missing; of the last operand only
};

/// One command: all that the program knows of it.
struct Command {
  std::string_view name;
  std::string_view usage;  ///< what follows the name
  std::string_view summary;
  Sentence details;  ///< more paragraphs of help
  std::span<const OperandSpec> operands;
  std::span<const OptionSpec> options;
  /// Throws UsageError for values that are not what help asks for. Input that turns out bad is told to the console.
  void (*run)(const Arguments& arguments, Console& console);
};

/// All commands, in the order of help.
std::span<const Command> commands();

// The families, each in a source of its own.
Command reportCommand();
Command rowsCommand();
Command calcCommand();
Command checkCommand();
Command indexCommand();
Command dueCommand();
Command searchCommand();
Command jsonCommand();
Command makeCommand();
Command dumpCommand();
Command recoverCommand();
Command weightCommand();
Command crlCommand();
Command standardCommand();
Command lookupCommand();
Command referenceCommand();
Command compareCommand();
Command selfTestCommand();
Command exportCommand();
Command summaryCommand();
Command importCommand();
Command serverCommand();

}  // namespace nascor::cli
