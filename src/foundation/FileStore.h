// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
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
  enum class Kind {
    failed,     ///< nothing was changed
    isChanged,  ///< nothing was changed, because the file is no longer what was expected
    isWritten,  ///< the file holds the new contents, but the system does not vouch that they outlast a power cut
    isDeclined,  ///< nothing was changed, because the user did not want it
  };

  std::string
      reason;  ///< the system's own words, without the file's name; a sentence that names it where there are details
  std::string
      details{};  ///< path and place for the one who looks into a file that is no document; else empty
  Kind kind = Kind::failed;
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

/// What a path holds: the contents of a file, or no file.
using FileContents = std::optional<std::vector<std::byte>>;

/// Who has a document open, as far as it is known.
struct FileHolder {
  std::string user{};        ///< a name of the system; empty for unknown
  std::string host{};        ///< the name of the machine; empty for unknown
  std::int64_t process = 0;  ///< on that machine; 0 for unknown
  Date since{};
  bool mayBeGone =
      false;  ///< whether it is beyond the reach of this machine, so that it may have ended without a trace
};

/// The right to write a document, which no other program is given meanwhile. Ends with the object.
class FileLock {
 public:
  virtual ~FileLock() = default;
  /// Whether no other program was given the right by its user.
  virtual bool isHeld() const = 0;
};

/// What became of the wish for a lock. Neither member is there where none can be made, such as in a folder that this user may
/// not write to.
struct FileClaim {
  std::unique_ptr<FileLock> lock{};
  std::optional<FileHolder> holder{};  ///< another program, which has it
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

  /// The same where the file still is `expected`, looked at immediately before it is replaced: otherwise it stays, and the
  /// error is of the kind isChanged. Of several programs that expect the same at once, one succeeds.
  virtual std::optional<FileError> replaceExpected(const std::string& path, std::span<const std::byte> bytes,
                                                   const FileContents& expected) = 0;

  enum class Claim { ifFree, inAnyCase };
  /// Takes the lock of the document at `path`, which need not be there. A lock that a program left when it ended is free. In
  /// any case: the user knows that its holder is gone.
  virtual FileClaim claim(const std::string& path, Claim wish) = 0;

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
