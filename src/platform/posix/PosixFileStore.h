// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "foundation/FileStore.h"

namespace nascor::posix {

/// The files of the operating system.
class PosixFileStore final : public foundation::FileStore {
 public:
  /// Whether a pipe is read to its end like a file, however long its writer takes.
  enum class Pipes { areRefused, areRead };

  /// The contents of a file that a look at its folder has just shown to be one: a look at the path before it is opened is
  /// left out. What is none after all is refused, as `contents` does it, once it is open.
  static std::variant<std::vector<std::byte>, foundation::FileError> contentsOfListed(
      const std::string& path);

  /// `documentsFolder` is where the user keeps documents; empty for the folder "Documents" of the user's home. Where
  /// there is no such folder it is the home itself.
  explicit PosixFileStore(std::string documentsFolder = {}, Pipes pipes = Pipes::areRefused)
      : documentsFolder_(std::move(documentsFolder)), pipes_(pipes) {}

  std::variant<std::vector<std::byte>, foundation::FileError> contents(
      const std::string& path) const override;

  /// A file that is write-protected for this user is not replaced, though its folder would allow it. The new file
  /// takes over owner and group as far as the user may give them away, and permissions with access lists. A group
  /// that could not be kept gets no more than everybody, so that a document never opens to strangers.
  /// Other hard links of the old file keep the old contents.
  std::optional<foundation::FileError> replaceContents(const std::string& path,
                                                       std::span<const std::byte> bytes) override;

  /// Between the look at the file and its end stands a lock of its folder, where the file system knows locks between
  /// programs, so that no other program of this machine that does the same comes between.
  std::optional<foundation::FileError> replaceExpected(const std::string& path,
                                                       std::span<const std::byte> bytes,
                                                       const foundation::FileContents& expected) override;

  /// A file beside the document, made by a call that succeeds for one program alone, on shares of several machines too.
  foundation::FileClaim claim(const std::string& path, Claim wish) override;

  std::vector<foundation::FileEntry> entries(const std::string& folder) const override;
  bool exists(const std::string& path) const override;
  std::string documentsFolder() const override;
  std::string resolvedPath(const std::string& path) const override;

 private:
  struct Attempt {
    std::optional<foundation::FileError> error{};
    bool isToBeRepeated = false;
    bool needsName = false;  ///< the new file needs a name from the beginning
  };

  std::optional<foundation::FileError> replace(const std::string& path, std::span<const std::byte> bytes,
                                               const foundation::FileContents* expected);
  /// How `target` differs from what is expected of it; nothing when it does not.
  std::optional<foundation::FileError> changeOf(const std::string& target,
                                                const foundation::FileContents& expected) const;
  /// `target` is no link.
  Attempt tryToReplace(const std::string& target, std::span<const std::byte> bytes,
                       const foundation::FileContents* expected, bool hasName) const;

  std::string documentsFolder_;
  Pipes pipes_;
  std::set<std::string> swept_;  ///< the folders in which leftovers were looked for
};

}  // namespace nascor::posix
