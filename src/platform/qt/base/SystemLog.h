// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Log.h"

namespace nascor::qt {

/// Writes `text` to standard error, or as much of it as is taken at once: where the other end of a pipe is not read, the
/// program goes on and the rest is lost.
void writeToStandardError(std::string_view text);

/// The system's log, and standard error. Control characters in a line are made visible, so that a text from outside
/// cannot pass for a line of its own.
class SystemLog final : public foundation::Log {
 public:
  void write(std::string_view line) override;
};

}  // namespace nascor::qt
