// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "manual/Program.h"

namespace nascor::manual {

/// Each offers the commands, the options of a command, the values of those that take one of a few, and files where files
/// are wanted.

/// For bash-completion: `share/bash-completion/completions/NAME`.
std::string bashCompletion(const Program& program);
/// For zsh: a function of its path, `_NAME`.
std::string zshCompletion(const Program& program);
/// For fish: `share/fish/vendor_completions.d/NAME.fish`.
std::string fishCompletion(const Program& program);

}  // namespace nascor::manual
