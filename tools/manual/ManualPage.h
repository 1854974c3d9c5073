// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "manual/Program.h"

namespace nascor::manual {

/// The manual page of a program in section 1, in the macros of man(7).
std::string manualPage(const Program& program);

}  // namespace nascor::manual
