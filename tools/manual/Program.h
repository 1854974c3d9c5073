// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace nascor::manual {

struct Option {
  std::vector<std::string> names;  ///< with their dashes
  std::string value;  ///< what stands for the value in help, "FILE" or "csv|jsonl"; empty for a flag
  std::string help;
};

struct Operand {
  std::string name;  ///< "FILE..." or "echo|find"
  std::string help;
  std::vector<std::string> words{};  ///< what it may be, where the name does not say it
};

/// What is typed behind the name of a program, or of one of its commands.
struct Command {
  std::string name;
  std::string usage;    ///< what follows the name
  std::string summary;  ///< one line, a sentence or several
  std::string details;  ///< lines as they stand, for what is laid out in columns; may be empty
  std::vector<Operand> operands;
  std::vector<Option> options;
};

/// All that a manual page and the completion of a shell say of one program.
struct Program {
  Command whole;                  ///< of a program with commands, what stands before the command
  std::vector<Command> commands;  ///< none for a program that is called with options and files alone
  std::string version;
  std::string seeAlso;  ///< a program whose page belongs to this one
};

}  // namespace nascor::manual
