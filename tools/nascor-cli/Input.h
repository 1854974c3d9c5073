// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "cli_commands/Console.h"
#include "foundation/FileStore.h"

namespace nascor::cli {

/// How messages name an input: the path, or "standard input" for "-".
std::string nameOf(const std::string& path);

/// The bytes of a file, or of standard input for "-", piece by piece.
class InputStream {
 public:
  /// The output of `console` is sent on before this waits for input: an answer never lies behind the question.
  InputStream(Console& console, const std::string& path);
  ~InputStream();
  InputStream(const InputStream&) = delete;
  InputStream& operator=(const InputStream&) = delete;

  /// The next piece, valid until the next call; none at the end. Or why it cannot be read.
  std::variant<std::span<const char>, Sentence> next();

 private:
  Console& console_;
  int descriptor_;
  Sentence error_;
  std::vector<char> piece_;
};

/// Why a file could not be read or written, as `Console` tells it.
Sentence reasonOf(const foundation::FileError& error);

/// All of standard input, or why it cannot be read.
std::variant<std::vector<std::byte>, Sentence> standardInput(Console& console);

/// The whole file, or all of standard input for "-". When it cannot be read: a complaint, and nothing.
std::optional<std::vector<std::byte>> contentsOf(const std::string& path, Console& console);

/// Reads standard input to its end, one number a line, and hands each on as it comes. A line that is no number is a
/// complaint and is handed on as nothing. Blanks around a number do not matter.
void forEachNumberOfInput(Console& console, const std::function<void(std::optional<double>)>& use);

}  // namespace nascor::cli
