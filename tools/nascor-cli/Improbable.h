// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "calc/Plausibility.h"
#include "cli_commands/Console.h"
#include "foundation/Sentence.h"

namespace nascor::cli {

/// What is improbable about one of `lengths`, for people: a sentence without a full stop.
Sentence improbableText(calc::Improbable what, calc::Measurement measurement, const calc::Biometry& lengths);

/// The same for the age of an examination, in weeks.
Sentence improbableText(calc::Improbable what, double age);

/// "warning: SENTENCE" on standard error; it spoils nothing.
void warn(Console& console, const Sentence& sentence);

/// Warnings about the values of a stream. The first is told as it comes; the others are counted and told at the end, or a
/// long input would fill the pipe of a program that reads the answers alone.
class StreamWarnings {
 public:
  explicit StreamWarnings(Console& console) : console_(console) {}
  void add(const Sentence& sentence);
  /// The input has ended.
  void end();

 private:
  Console& console_;
  std::size_t count_ = 0;
};

}  // namespace nascor::cli
