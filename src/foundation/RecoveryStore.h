// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "foundation/Date.h"
#include "foundation/FileStore.h"

namespace nascor::foundation {

/// What changes were made to.
struct RecoveryOrigin {
  std::string
      document{};       ///< the absolute path of the document's own file; empty for one that was never saved
  std::string basis{};  ///< a digest of what that file held; empty where it is not known

  friend bool operator==(const RecoveryOrigin&, const RecoveryOrigin&) = default;
};

/// A document with changes that were not saved, as it was kept against the end of the program.
struct RecoveryFile {
  std::string path;
  RecoveryOrigin origin{};
  Date saved{};  ///< when it was kept last
};

/// Where documents with unsaved changes are kept against the end of the program. Each is a file by itself, which holds the
/// bytes of a document. Implemented once for the operating system.
class RecoveryStore {
 public:
  virtual ~RecoveryStore() = default;

  /// Keeps `bytes` of the document that this program calls `number` in place of what was kept of it before. On failure that
  /// stays, and the error says why.
  virtual std::optional<FileError> keep(std::uint64_t number, const RecoveryOrigin& origin,
                                        std::span<const std::byte> bytes) = 0;
  /// Removes what was kept of that document, if anything.
  virtual void forget(std::uint64_t number) = 0;

  /// What programs left that run no more, the oldest first. From now on it belongs to this program, and is given to no other
  /// one while it runs.
  virtual std::vector<RecoveryFile> takeAbandoned() = 0;
  /// Removes a file that `takeAbandoned` gave.
  virtual void remove(const RecoveryFile& file) = 0;
};

}  // namespace nascor::foundation
