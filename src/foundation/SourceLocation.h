// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

namespace nascor::foundation {

/// A line of the program's source. As a parameter's default value `SourceLocation::current()` is the line of the
/// caller. It stands in for the standard library's type, which clang 14 cannot compile.
class SourceLocation {
 public:
  static constexpr SourceLocation current(const char* file = __builtin_FILE(),
                                          unsigned line = __builtin_LINE()) {
    return {file, line};
  }

  constexpr const char* file_name() const { return file_; }
  constexpr unsigned line() const { return line_; }

 private:
  constexpr SourceLocation(const char* file, unsigned line) : file_(file), line_(line) {}

  const char* file_;
  unsigned line_;
};

}  // namespace nascor::foundation
