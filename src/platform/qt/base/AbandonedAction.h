// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>

namespace nascor::qt {

/// Writes to standard error that an action was abandoned, and where in the sources.
void logAbandoned(const std::exception& error);
void logAbandoned(const std::string& what);

}  // namespace nascor::qt
