#pragma once

#include <cstddef>
#include <string>

#include "calc/Plausibility.h"
#include "cli_commands/Console.h"

namespace nascor::cli {

/// What is improbable about one of `lengths`, for people: a sentence without a full stop.
std::string improbableText(calc::Improbable what, calc::Measurement measurement,
                           const calc::Biometry& lengths);

/// The same for the age of an examination, in weeks.
std::string improbableText(calc::Improbable what, double age);

/// "warning: SENTENCE" on standard error; it spoils nothing.
void warn(Console& console, const std::string& sentence);

/// Warnings about the values of a stream. The first is told as it comes; the others are counted and told at the end, or a
/// long input would fill the pipe of a program that reads the answers alone.
class StreamWarnings {
 public:
  explicit StreamWarnings(Console& console) : console_(console) {}
  void add(const std::string& sentence);
  /// The input has ended.
  void end();

 private:
  Console& console_;
  std::size_t count_ = 0;
};

}  // namespace nascor::cli
