// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

namespace nascor::posix {

/// What tells this machine and this run of its system from others.
struct Machine {
  std::string host{};  ///< its name
  std::string mark{};  ///< a digest of its own number; empty for unknown
  std::string boot{};  ///< another one after each start of the system; empty for unknown
  std::string
      space{};  ///< of the numbers of processes, which containers have of their own; empty for unknown
};
const Machine& thisMachine();

/// 64 bits of a text, in 16 hexadecimal digits.
std::string digest(const std::string& text);

/// When a process began, in ticks of the system since its start; 0 where there is no such process, or it has ended.
/// Nothing can be said of it where that is hidden: -1.
std::int64_t startOfProcess(pid_t process);

}  // namespace nascor::posix
