// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace nascor::tests {

/// How the command line ended and what it said.
struct Outcome {
  int status = -1;  ///< the exit status; 128 and the number of the signal that ended it
  std::string out;
  std::string err;
};

/// One run of the command line.
struct Call {
  std::vector<std::string> arguments;
  std::string input{};
  std::string zone{};      ///< TZ of the process; empty for that of the test
  std::string program{};   ///< empty for the one that is tested
  std::string language{};  ///< LANGUAGE of the process; empty for that of the test
  int outputFile = -1;  ///< an open descriptor for standard output, in place of keeping it in `Outcome::out`
  /// After so many it is ended by a signal that it does not know of; 0: never.
  std::chrono::microseconds killedAfter{};
};

Outcome run(const Call& call);
Outcome run(std::vector<std::string> arguments, std::string input = "");

/// The lines of a text, without their ends.
std::vector<std::string> linesOf(const std::string& text);

/// A folder of its own, gone at the end.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  std::string path(const std::string& name) const { return path_ + "/" + name; }
  /// Writes a file and answers its path.
  std::string write(const std::string& name, const std::string& contents) const;

 private:
  std::string path_;
};

std::string contentsOfFile(const std::string& path);

/// The bytes of the document that `make` makes of `json`.
std::string document(const std::string& json);

}  // namespace nascor::tests
