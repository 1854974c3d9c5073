// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Localizer.h"

namespace nascor::cli {

/// Reads the command line, runs one command and answers the exit status: 0 all well, 1 some input was bad, 2 wrong
/// usage. Every exception ends here, as a sentence on standard error. Help and sentences are those of `localizer`; numbers,
/// tables and JSON are the same in every language.
int runCommandLine(int argc, char** argv, const foundation::Localizer& localizer);

/// What help says of the program itself, beside its commands. Sentences are keys of the table "CommandHelp".
struct GeneralHelp {
  std::string_view program;
  std::string_view usage;    ///< what follows the name
  std::string_view summary;  ///< one sentence
  std::string_view rules;    ///< lines on units, input and exit status
  std::string_view helpOfHelp;
  std::vector<std::pair<std::vector<std::string_view>, std::string_view>> options;  ///< names and meaning
};
GeneralHelp generalHelp();

}  // namespace nascor::cli
