// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "foundation/Localizer.h"
#include "foundation/Sentence.h"
#include "foundation/Utf8.h"

namespace nascor::cli {

using foundation::oneLine;
using foundation::Sentence;

/// Standard output could not be written. Ends the program with status 1.
class OutputError : public foundation::SpokenError {
 public:
  /// `reason` is the system's.
  OutputError(const std::string& reason, bool readerIsGone)
      : SpokenError(Sentence::ofSystem(reason)), readerIsGone_(readerIsGone) {}

  /// The program at the other end of the pipe has ended. That is its right and needs no words.
  bool readerIsGone() const { return readerIsGone_; }

 private:
  bool readerIsGone_;
};

/// How messages name an input that has no name. It is the same in JSON, and translated on standard error.
inline constexpr std::string_view kStandardInput = foundation::translatable("CommandLine", "standard input");
/// What stands where the source of a warning would, when it is about what was typed.
inline constexpr std::string_view kWarning = foundation::translatable("CommandLine", "warning");

/// Standard output, which is the same in every language but for help and the lines of `check`, and standard error, which
/// speaks the user's.
class Console {
 public:
  /// `localizer` lives as long as this.
  explicit Console(const foundation::Localizer& localizer);

  const foundation::Localizer& localizer() const { return localizer_; }

  /// What goes to standard output next. Append whole lines, and call `lineDone` after them.
  std::string& out() { return out_; }

  /// Ends a line of `out` and sends it on: at once to a terminal, else when enough has come together.
  void lineDone();

  /// The same for lines whose ends `out` holds already.
  void linesDone();

  /// Sends on what `out` holds of a long line, when enough has come together.
  void partDone();

  /// Sends on all of `out`. Throws OutputError.
  void flush();

  /// Bytes, not text, after all of `out`. Throws OutputError.
  void writeBytes(std::span<const std::byte> bytes);

  /// A bad input, in one line on standard error: "SOURCE: SENTENCE". The exit status will be 1.
  void complain(std::string_view source, const Sentence& sentence);

  /// The same for something worth knowing that spoils nothing.
  void warn(std::string_view source, const Sentence& sentence);

  /// Text for standard error as it stands. Nothing can be done when that fails.
  static void writeError(std::string_view text);

  /// From now on Ctrl-C ends the program with status 130, and what is being written is written to its end: a reader gets
  /// whole lines, as long as `out` is sent on at the ends of lines only. A second Ctrl-C ends it at once.
  static void endOnInterrupt();

  /// Whether people see standard error, and nothing else that this program writes.
  bool errorsAloneAreSeen() const;

  bool outputIsTerminal() const { return outputIsTerminal_; }

  /// Whether there was no complaint.
  bool allWell() const { return allWell_; }

 private:
  const foundation::Localizer& localizer_;
  std::string out_;
  bool outputIsTerminal_;
  bool allWell_ = true;
};

}  // namespace nascor::cli
