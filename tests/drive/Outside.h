// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace nascor::drive {

/// What another program does behind the application's back. `words` are what is done and to which files:
///
///     copy FROM TO     TO holds what FROM holds
///     append PATH TEXT the text stands at the end of the file
///     remove PATH      the file is gone
///     pipe PATH        a pipe that nobody writes into
///     folder PATH      a folder
///     lock PATH USER HOST  another machine has it open
///     stale lock PATH  a program of this machine had it open and was killed
///
/// Why it could not be done, or nothing.
std::optional<std::string> doOutside(const std::vector<std::string>& words);

}  // namespace nascor::drive
