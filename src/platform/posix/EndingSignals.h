// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

namespace nascor::posix {

/// SIGTERM and SIGHUP, by which the system asks a program to end. The first of them becomes readable at a descriptor, so that
/// the program can keep what it holds; a second one ends it at once. There is one object of this in a program.
class EndingSignals {
 public:
  EndingSignals();
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;
  ~EndingSignals();

  /// Readable as soon as a signal has come; -1 where the system gave none, and the signals end the program as usual.
  int descriptor() const { return ends_[0]; }
  /// Ends the program as the signal that came would have. Does nothing before one came.
  void obey() const;

 private:
  std::array<int, 2> ends_{-1, -1};
};

}  // namespace nascor::posix
