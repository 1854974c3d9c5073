// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "foundation/FileStore.h"

namespace nascor::posix {

/// What stands in the file beside a document that says who has it open, one `name=value` on a line.
struct LockRecord {
  std::string user{};
  std::string host{};
  std::string machine{};  ///< a digest of its number; empty for unknown
  std::string boot{};     ///< which start of its system; empty for unknown
  std::string space{};    ///< of its numbers of processes; empty for unknown
  std::int64_t process = 0;
  std::int64_t started = 0;  ///< ticks of its system
  std::int64_t since = 0;    ///< seconds since 1970
  std::int64_t number = 0;   ///< tells the locks of one process apart

  friend bool operator==(const LockRecord&, const LockRecord&) = default;
};
std::string textOf(const LockRecord& record);
LockRecord lockRecordIn(const std::string& text);
/// What a lock of this process holds.
LockRecord ownLockRecord();

/// `.NAME.lock` in the folder of the document `path`, which is no link. A name that would be too long is cut, with a digest of
/// the whole.
std::string lockPathOf(const std::string& path);

/// FileStore::claim for a path that is no link. No lock is made beside what this user may not write, or what is no file.
foundation::FileClaim claimDocument(const std::string& path, foundation::FileStore::Claim wish);

}  // namespace nascor::posix
