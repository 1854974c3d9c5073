// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli_commands/Command.h"

namespace nascor::cli {

/// Writes documents for other programs, `export --format sr` and `--format fhir`: `format` is one of these two. Throws
/// UsageError for options that belong to pages.
void exportRecords(const std::string& format, const Arguments& arguments, Console& console);

}  // namespace nascor::cli
