// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/NewFile.h"

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <string_view>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>

#include "posix/Machine.h"

namespace nascor::posix {
namespace {

constexpr mode_t kOwnersAlone = S_IRUSR | S_IWUSR;
constexpr int kMostTries = 100;

/// What the names of this machine's unfinished files begin with.
std::string beginning() {
  const Machine& machine = thisMachine();
  constexpr std::size_t kEnough = 8;
  return ".nascor-" + digest(machine.mark + machine.host).substr(0, kEnough) + "-";
}

std::string freshName() {
  std::uint64_t drawn = 0;
  if (::getrandom(&drawn, sizeof drawn, 0) != sizeof drawn) drawn = static_cast<std::uint64_t>(::clock());
  return beginning() + digest(std::to_string(drawn) + "/" + std::to_string(::getpid()));
}

/// The lock by which `removeLeftovers` sees that the program lives. Where there are no locks, age decides.
bool holdWhileAlive(int file) {
  return uninterrupted([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

std::string placeOf(const std::string& folder) { return folder.empty() ? "." : folder; }

}  // namespace

NewFile::NewFile(std::string folder, bool hasName) : folder_(std::move(folder)) {
  // A file system that cannot do without a name says so in several ways.
  if (!hasName && open(false)) return;
  open(true);
}

NewFile::~NewFile() {
  if (hasName()) ::unlink(path_.c_str());
}

bool NewFile::open(bool hasName) {
  if (!hasName) {
    descriptor_ = Descriptor(uninterrupted(
        [&] { return ::open(placeOf(folder_).c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnersAlone); }));
    if (isOpen()) holdWhileAlive(number());
    return isOpen();
  }
  for (int i = 0; i < kMostTries; ++i) {
    const std::string path = folder_ + freshName();
    descriptor_ = Descriptor(uninterrupted([&] {
      return ::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC | O_NOFOLLOW, kOwnersAlone);
    }));
    if (!isOpen()) {
      if (errno == EEXIST) continue;
      return false;
    }
    // Another program may have taken it for a leftover before it was held.
    struct stat status {};
    if (holdWhileAlive(number()) && ::fstat(number(), &status) == 0 && status.st_nlink > 0) {
      path_ = path;
      return true;
    }
    ::unlink(path.c_str());
  }
  descriptor_ = Descriptor();
  errno = EEXIST;
  return false;
}

bool NewFile::giveName() {
  if (hasName()) return true;
  const std::string self = "/proc/self/fd/" + std::to_string(number());
  for (int i = 0; i < kMostTries; ++i) {
    const std::string path = folder_ + freshName();
    if (uninterrupted([&] {
          return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
        }) == 0) {
      path_ = path;
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

bool NewFile::becomeNew(const std::string& target) {
  // Of several programs one succeeds, on shares of several machines too.
  const std::string self = hasName() ? path_ : "/proc/self/fd/" + std::to_string(number());
  const int flags = hasName() ? 0 : AT_SYMLINK_FOLLOW;
  bool isDone =
      uninterrupted([&] { return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, target.c_str(), flags); }) == 0;
  if (!hasName() || (!isDone && errno == EEXIST)) return isDone;
  if (isDone) {
    ::unlink(path_.c_str());
    path_.clear();
    return true;
  }
  // A file system without links.
  isDone = uninterrupted([&] {
             return ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE);
           }) == 0;
  if (!isDone && errno == EINVAL) {
    struct stat status {};
    if (::lstat(target.c_str(), &status) == 0) {
      errno = EEXIST;
      return false;
    }
    isDone = uninterrupted([&] { return ::rename(path_.c_str(), target.c_str()); }) == 0;
  }
  if (isDone) path_.clear();
  return isDone;
}

bool NewFile::replace(const std::string& target, bool& canHaveName) {
  canHaveName = giveName();
  if (!canHaveName) return false;
  if (uninterrupted([&] { return ::rename(path_.c_str(), target.c_str()); }) != 0) return false;
  path_.clear();
  return true;
}

void removeLeftovers(const std::string& folder) {
  DIR* directory = ::opendir(placeOf(folder).c_str());
  if (directory == nullptr) return;
  const std::string ours = beginning();
  std::vector<std::string> found;
  while (const dirent* entry = ::readdir(directory)) {
    if (std::string_view(entry->d_name).starts_with(ours)) found.push_back(folder + entry->d_name);
  }
  ::closedir(directory);
  constexpr time_t kLongestWrite = time_t{24} * 3600;
  for (const std::string& path : found) {
    const Descriptor file(::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
    const int error = ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    const bool isOld = ::time(nullptr) - status.st_mtime > kLongestWrite;
    if (error == 0 || (error != EWOULDBLOCK && isOld)) ::unlink(path.c_str());
  }
}

}  // namespace nascor::posix
