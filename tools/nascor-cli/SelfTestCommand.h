// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "cli_commands/Console.h"
#include "selftest/Examples.h"

namespace nascor::cli {

/// Works `examples` out again and prints a line for each group; complains when any of them differs.
void printSelfTest(std::span<const selftest::Example> examples, bool asJson, Console& console);

}  // namespace nascor::cli
