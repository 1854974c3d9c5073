// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "foundation/RecoveryStore.h"
#include "posix/PosixFileStore.h"

namespace nascor::posix {

/// Recovery files in one folder, which its owner alone may enter, as the owner alone may read the files. Several programs
/// share it. Each names its files after itself,
///
///     NAME.lock       locked by the system for as long as the program runs
///     NAME-N.nascor   the Nth document
///     NAME-N.origin   the path of that document's own file; missing where there is none
///
/// so a program whose lock is free runs no more, however it ended. Where the system holds no locks nothing is kept.
class RecoveryFolder final : public foundation::RecoveryStore {
 public:
  /// The folder is made when something is kept first.
  explicit RecoveryFolder(std::string folder) : folder_(std::move(folder)) {}
  RecoveryFolder(const RecoveryFolder&) = delete;
  RecoveryFolder& operator=(const RecoveryFolder&) = delete;
  /// What is kept stays, and belongs to none from now on.
  ~RecoveryFolder() override;

  /// The folder in the user's state folder: `$XDG_STATE_HOME/nascor/recovery`, else `~/.local/state/nascor/recovery`.
  static std::string usualPath();

  std::optional<foundation::FileError> keep(std::uint64_t number, const foundation::RecoveryOrigin& origin,
                                            std::span<const std::byte> bytes) override;
  void forget(std::uint64_t number) override;
  std::vector<foundation::RecoveryFile> takeAbandoned() override;
  void remove(const foundation::RecoveryFile& file) override;

  /// All that lies there, of running programs too, the oldest first.
  std::vector<foundation::RecoveryFile> files() const;

 private:
  std::optional<foundation::FileError> prepare();
  std::string pathOf(const std::string& stem, const char* extension) const;
  /// Takes the lock of program `name`; false while that runs.
  bool claim(const std::string& name);
  void releaseIfEmpty(const std::string& name);
  /// What a program that was killed while it wrote has left.
  void removeUnfinishedFiles() const;

  std::string folder_;
  PosixFileStore store_;
  std::string name_;                  ///< this program's; empty before it keeps anything
  std::map<std::string, int> locks_;  ///< descriptors of the locks that this program holds, by name
  std::map<std::uint64_t, foundation::RecoveryOrigin> origins_;  ///< as written, by number
};

}  // namespace nascor::posix
