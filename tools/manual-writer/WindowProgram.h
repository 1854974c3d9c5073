// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "manual/Program.h"

namespace nascor::manual {

/// nascor, from the options that it reads.
Program windowProgram();

}  // namespace nascor::manual
