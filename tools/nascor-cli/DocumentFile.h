// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "cli_commands/Console.h"
#include "foundation/FileStore.h"
#include "posix/PosixFileStore.h"

namespace nascor::cli {

/// A document that is to be written. From the beginning to the end of the object no other program writes it, as far as its
/// folder takes locks.
class DocumentFile {
 public:
  /// Waits while other commands have it one after the other; a program that keeps it is complained of.
  DocumentFile(std::string path, Console& console);

  /// Whether it may be written.
  bool isOurs() const { return isOurs_; }
  /// Replaces it as a whole, or complains and changes nothing.
  void write(std::span<const std::byte> bytes);
  /// The same where it still is `expected`.
  void writeExpected(std::span<const std::byte> bytes, const foundation::FileContents& expected);

 private:
  void tell(const std::optional<foundation::FileError>& error);

  std::string path_;
  Console& console_;
  posix::PosixFileStore store_;
  std::unique_ptr<foundation::FileLock> lock_;
  bool isOurs_ = true;
};

}  // namespace nascor::cli
