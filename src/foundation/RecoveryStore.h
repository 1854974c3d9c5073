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

/// A document with changes that were not saved, as it was kept against the end of the program.
struct RecoveryFile {
  std::string path;
  std::string document{};  ///< the path of the document's own file; empty for one that was never saved
  Date saved{};            ///< when it was kept last
};

/// Where documents with unsaved changes are kept against the end of the program. Each is a file by itself, which holds the
/// bytes of a document. Implemented once for the operating system.
class RecoveryStore {
 public:
  virtual ~RecoveryStore() = default;

  /// Keeps `bytes` of the document that this program calls `number`, whose own file is at `document` (empty for none), in
  /// place of what was kept of it before. On failure that stays, and the error says why.
  virtual std::optional<FileError> keep(std::uint64_t number, const std::string& document,
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
