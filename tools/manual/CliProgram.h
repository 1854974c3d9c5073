// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "manual/Program.h"

namespace nascor::manual {

/// nascor-cli, from the table of its commands.
Program cliProgram();

}  // namespace nascor::manual
