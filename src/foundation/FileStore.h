#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace nascor::foundation {

/// Why a file could not be read or written: the system's own words, without the file's name.
struct FileError {
  std::string reason;
};

/// Where document files live. Implemented once for the operating system; tests inject faults.
class FileStore {
 public:
  virtual ~FileStore() = default;

  /// The whole file. Folders and files that cannot be read to their end are errors.
  virtual std::variant<std::vector<std::byte>, FileError> contents(const std::string& path) const = 0;

  /// Replaces the whole file `path` by `bytes`, or leaves the old file untouched and says why not. Never
  /// truncates in place: a temporary file in the same folder is written, flushed and renamed. A replaced file
  /// keeps its permissions; a new one is readable by its owner alone. A link is followed, not replaced.
  virtual std::optional<FileError> replaceContents(const std::string& path, std::span<const std::byte> bytes) = 0;
};

}  // namespace nascor::foundation
