#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/Date.h"

namespace nascor::foundation {

/// Why a file could not be read or written.
struct FileError {
  std::string
      reason;  ///< the system's own words, without the file's name; a sentence that names it where there are details
  std::string
      details{};  ///< path and place for the one who looks into a file that is no document; else empty
};

/// The error of the file at `path` in one sentence, without its details.
inline std::string sentenceAbout(const std::string& path, const FileError& error) {
  return error.details.empty() ? path + ": " + error.reason : error.reason;
}

/// One file of a folder.
struct FileEntry {
  std::string path;
  std::string name;
  std::int64_t size = 0;  ///< bytes
  Date modified;
};

/// Where document files live. Implemented once for the operating system; tests inject faults.
class FileStore {
 public:
  virtual ~FileStore() = default;

  /// The whole file. Folders, devices and files that cannot be read to their end are errors.
  virtual std::variant<std::vector<std::byte>, FileError> contents(const std::string& path) const = 0;

  /// Replaces the whole file `path` by `bytes`, or leaves the old file untouched and says why not. Never
  /// truncates in place: a temporary file in the same folder is written, flushed and renamed. A replaced file
  /// keeps its permissions; a new one is readable by its owner alone. A link is followed, not replaced.
  virtual std::optional<FileError> replaceContents(const std::string& path,
                                                   std::span<const std::byte> bytes) = 0;

  /// The regular files of a folder, in no order; none where there is no such folder.
  virtual std::vector<FileEntry> entries(const std::string& folder) const = 0;
  /// Whether a file, a folder or anything else bears this name.
  virtual bool exists(const std::string& path) const = 0;
  /// The folder in which the user keeps documents.
  virtual std::string documentsFolder() const = 0;
  /// A name by which two paths of one file are the same: absolute, without links. A file need not be there.
  virtual std::string resolvedPath(const std::string& path) const = 0;
};

}  // namespace nascor::foundation
