// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace nascor::framework {

/// Lets the user choose files. Nothing is returned when the user cancels.
class FilePanels {
 public:
  virtual ~FilePanels() = default;
  virtual std::vector<std::string> chooseFilesToOpen() = 0;
  /// Where to save a document for which `suggestedName` is a good file name. The user has agreed to replace a file that
  /// is there.
  virtual std::optional<std::string> chooseFileToSave(const std::string& suggestedName) = 0;
  /// A folder for files that the program names itself.
  virtual std::optional<std::string> chooseFolder() = 0;
};

}  // namespace nascor::framework
