// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nascor::posix {

/// Goes through the files of a folder and of the folders in it, in the order of the bytes of their paths. Holds the names
/// of one folder for each level. Names that begin with a point, links to folders, pipes and devices are passed over; a link
/// to a file is taken, even one that leads nowhere.
class FolderWalk {
 public:
  struct Found {
    std::string path;   ///< the folder as it was given, and the path in it
    std::string error;  ///< empty for a file; else why this folder cannot be read
  };

  /// Of files only those whose names end with `suffix`.
  FolderWalk(std::string folder, std::string suffix);

  /// The next file, or a folder that cannot be read; nothing at the end.
  std::optional<Found> next();

 private:
  /// What is left of one folder.
  struct Level {
    std::string path;                   // with a slash at its end
    std::string names;                  // one behind the other; folders with a slash at their ends
    std::vector<std::uint64_t> begins;  // of the names, in the order in which they are taken
    std::size_t at = 0;
  };

  std::optional<std::string> enter(std::string path);

  std::string suffix_;
  std::vector<Level> levels_;
  std::optional<Found> firstError_;
};

}  // namespace nascor::posix
