#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "foundation/Utf8.h"

namespace nascor::cli {

/// Standard output could not be written. Ends the program with status 1.
class OutputError : public std::runtime_error {
 public:
  OutputError(const std::string& reason, bool readerIsGone)
      : std::runtime_error(reason), readerIsGone_(readerIsGone) {}

  /// The program at the other end of the pipe has ended. That is its right and needs no words.
  bool readerIsGone() const { return readerIsGone_; }

 private:
  bool readerIsGone_;
};

using foundation::oneLine;

/// Standard output and standard error.
class Console {
 public:
  Console();

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
  void complain(std::string_view source, std::string_view sentence);

  /// The same for something worth knowing that spoils nothing.
  void warn(std::string_view source, std::string_view sentence);

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
  std::string out_;
  bool outputIsTerminal_;
  bool allWell_ = true;
};

}  // namespace nascor::cli
