// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <set>
#include <span>
#include <string>

#include "cli_commands/Command.h"
#include "cli_commands/Console.h"
#include "posix/PosixFileStore.h"

namespace nascor::cli {

/// What --out names: a folder that need not be there, or "-". Throws UsageError where it is missing, and where it is named like
/// a file of these programs: such a folder is not what was meant.
std::string outFolderIn(const Arguments& arguments);

/// A folder that files are written to; it is made when it is missing.
class Target {
 public:
  /// With `keepsOld` files that are there stay as they are, which is told.
  Target(std::string folder, bool keepsOld, Console& console)
      : folder_(std::move(folder)), keepsOld_(keepsOld), console_(&console) {}

  /// The name of a document's files: two documents of one name do not replace each other's.
  std::string nameFor(const std::string& path);

  void write(const std::string& name, std::span<const std::byte> bytes);

 private:
  std::string folder_;
  bool keepsOld_;
  Console* console_;
  std::set<std::string> names_;
  posix::PosixFileStore store_;
};

}  // namespace nascor::cli
