// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli_commands/Command.h"
#include "rows/Columns.h"

namespace nascor::cli {

// What `rows` and `calc` are asked for in the same words. All throw UsageError.

/// The parts of a list with commas between.
std::vector<std::string> partsOf(const std::string& list);

/// The growth standards of --standard: all, one, or a list; none without the option.
std::vector<std::int64_t> chosenStandards(const Arguments& arguments);

/// The weight formula of --formula.
std::optional<std::int64_t> chosenFormula(const Arguments& arguments);

/// The names in --columns, none empty, none twice; whether there are such columns is not looked at.
std::optional<std::vector<std::string>> chosenColumnNames(const Arguments& arguments);

}  // namespace nascor::cli
