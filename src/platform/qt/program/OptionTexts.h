// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace nascor::qt {

/// What help says of an option, or of the files behind them all.
struct OptionText {
  std::vector<std::string> names;  ///< with their dashes
  std::string value;               ///< what stands for the value; empty for a flag
  std::string help;
};

/// What help says of the whole program, for its manual page.
struct ProgramTexts {
  std::string usage;  ///< what follows the name
  std::vector<std::string> introduction;
  std::vector<OptionText> options;
  OptionText files;
};
ProgramTexts programTexts();

}  // namespace nascor::qt
