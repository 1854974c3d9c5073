// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace nascor::foundation {

/// The system log. Only the scripting interface writes to it, one line per access.
class Log {
 public:
  virtual ~Log() = default;
  virtual void write(std::string_view line) = 0;
};

}  // namespace nascor::foundation
