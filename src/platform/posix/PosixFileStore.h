#pragma once

#include <cstddef>
#include <optional>
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

  std::vector<foundation::FileEntry> entries(const std::string& folder) const override;
  bool exists(const std::string& path) const override;
  std::string documentsFolder() const override;
  std::string resolvedPath(const std::string& path) const override;

 private:
  std::string documentsFolder_;
  Pipes pipes_;
};

}  // namespace nascor::posix
