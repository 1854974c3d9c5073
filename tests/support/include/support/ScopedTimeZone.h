// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace nascor::tests {

/// Puts the process into a time zone, and back into its own at the end.
class ScopedTimeZone {
 public:
  explicit ScopedTimeZone(const std::string& name) {
    if (const char* before = std::getenv("TZ")) before_ = before;
    set(name);
  }
  ScopedTimeZone(const ScopedTimeZone&) = delete;
  ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;
  ~ScopedTimeZone() { set(before_); }

 private:
  static void set(const std::optional<std::string>& name) {
    if (name) {
      ::setenv("TZ", name->c_str(), 1);
    } else {
      ::unsetenv("TZ");
    }
    ::tzset();
  }

  std::optional<std::string> before_;
};

}  // namespace nascor::tests
