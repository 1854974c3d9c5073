// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Outside.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#include "posix/DocumentLock.h"

namespace nascor::drive {
namespace {

/// Leaves the lock of another program beside the document `path`.
template <class Change>
bool leaveLock(const std::string& path, Change change) {
  posix::LockRecord record = posix::ownLockRecord();
  change(record);
  return bool(std::ofstream(posix::lockPathOf(path), std::ios::binary)
              << posix::textOf(record) << std::flush);
}

}  // namespace

std::optional<std::string> doOutside(const std::vector<std::string>& words) {
  const auto is = [&](const char* what, std::size_t count) {
    return words.size() == count && words.front() == what;
  };
  bool isDone = false;
  std::error_code error;
  if (is("copy", 3)) {
    isDone = std::filesystem::copy_file(words[1], words[2], std::filesystem::copy_options::overwrite_existing,
                                        error);
  } else if (is("append", 3)) {
    isDone = bool(std::ofstream(words[1], std::ios::app | std::ios::binary) << words[2] << std::flush);
  } else if (is("remove", 2)) {
    isDone = std::filesystem::remove(words[1], error);
  } else if (is("pipe", 2)) {
    isDone = ::mkfifo(words[1].c_str(), 0600) == 0;
  } else if (is("folder", 2)) {
    isDone = std::filesystem::create_directory(words[1], error);
  } else if (is("lock", 4)) {
    isDone = leaveLock(words[1], [&](posix::LockRecord& record) {
      record.user = words[2];
      record.host = words[3];
      record.machine = "another";
      record.boot = "another";
    });
  } else if (is("stale lock", 2)) {
    isDone = leaveLock(words[1], [](posix::LockRecord& record) { --record.started; });
  } else {
    return "expected copy, append, remove, pipe, folder, lock or stale lock and their files";
  }
  if (isDone) return std::nullopt;
  return "that cannot be done to \"" + words[1] + "\"";
}

}  // namespace nascor::drive
