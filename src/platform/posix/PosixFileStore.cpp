// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/PosixFileStore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "foundation/Localizer.h"
#include "posix/Descriptor.h"
#include "posix/DocumentLock.h"
#include "posix/NewFile.h"

namespace nascor::posix {

namespace {

using foundation::FileError;
using foundation::translatable;

constexpr const char* kAccessList = "system.posix_acl_access";

FileError notAFile(mode_t mode) {
  return S_ISDIR(mode) ? systemError(EISDIR)
                       : FileError{std::string(translatable("Files", "Not a regular file"))};
}

/// The operating system would take such a path for another, shorter one.
bool hasZeroByte(const std::string& path) { return path.find('\0') != std::string::npos; }

/// `path` up to its last slash; empty for a name alone, which lies in the working folder.
std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

/// The file that `path` means when it is a symbolic link, whether that file exists or not; else `path`.
std::variant<std::string, FileError> linkTarget(std::string path) {
  constexpr int kMostLinks = 40;
  for (int i = 0; i < kMostLinks; ++i) {
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length == -1) {
      if (errno == EINVAL || errno == ENOENT) return path;
      return systemError();
    }
    const std::string_view text(target.data(), static_cast<std::size_t>(length));
    path = text.starts_with('/') ? std::string(text) : folderOf(path).append(text);
  }
  return systemError(ELOOP);
}

bool writeAll(int file, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
    if (written < 0) return false;
    if (written == 0) {
      errno = ENOSPC;
      return false;
    }
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

/// Gives `file` the access list of `oldPath`, or none when that has none. False when it has one that cannot be given.
bool takeOverAccessList(int file, const std::string& oldPath) {
  std::array<char, 4096> list;
  const ssize_t size = ::getxattr(oldPath.c_str(), kAccessList, list.data(), list.size());
  if (size > 0) return ::fsetxattr(file, kAccessList, list.data(), static_cast<std::size_t>(size), 0) == 0;
  const bool hasNone = size == 0 || errno == ENODATA || errno == ENOTSUP;
  // A folder may have given the new file a list of its own.
  ::fremovexattr(file, kAccessList);
  return hasNone;
}

/// Sets the permissions of a file that was made for its owner alone. A file system that has none, such as FAT, gives all its
/// files the same: what it gives is what was wanted, or more than the file was made with.
bool setMode(int file, mode_t mode) {
  if (uninterrupted([&] { return ::fchmod(file, mode); }) == 0) return true;
  const int error = errno;
  struct stat fresh {};
  if ((error == EPERM || error == ENOTSUP || error == ENOSYS) && ::fstat(file, &fresh) == 0) {
    const mode_t given = fresh.st_mode & 0777;
    if (given == mode || (given & ~static_cast<mode_t>(S_IRUSR | S_IWUSR)) != 0) return true;
  }
  errno = error;
  return false;
}

/// Gives `file` the owner, group and permissions of the file that it shall replace.
bool takeOverPermissions(int file, const std::string& oldPath, const struct stat& old) {
  struct stat fresh {};
  if (::fstat(file, &fresh) != 0) return false;
  bool keepsGroup = fresh.st_gid == old.st_gid;
  if (fresh.st_uid != old.st_uid || !keepsGroup) {
    // Only root may give a file away; a group can be kept by its members.
    keepsGroup = ::fchown(file, old.st_uid, old.st_gid) == 0 ||
                 ::fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0 || keepsGroup;
  }
  mode_t mode = old.st_mode & 0777;
  // Without its access list, the group's bits of the mode are not what they were.
  if (!takeOverAccessList(file, oldPath) || !keepsGroup) mode = (mode & 0707) | ((mode & 0007) << 3);
  return setMode(file, mode);
}

/// The folder of a file that is to be replaced, held against other programs that do the same as far as its file system knows
/// locks, so that none comes between a look at the old file and its end.
class HeldFolder {
 public:
  HeldFolder(const std::string& folder, bool isHeld)
      : descriptor_(uninterrupted([&] {
          return ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        })) {
    // A program that stands still must not stop this one: what it holds for longer is not waited for.
    constexpr int kMostTries = 2000;
    constexpr timespec kMillisecond{.tv_sec = 0, .tv_nsec = 1'000'000};
    for (int i = 0; isHeld && descriptor_.isOpen() && i < kMostTries; ++i) {
      if (::flock(descriptor_.number(), LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR))
        break;
      ::nanosleep(&kMillisecond, nullptr);
    }
  }

  /// Makes a new name last; `file` is the one that got it. False, with `errno` set, when the system does not vouch for it.
  bool flush(int file) const {
    if (descriptor_.isOpen() && uninterrupted([&] { return ::fsync(descriptor_.number()); }) == 0)
      return true;
    // A folder that may not be read, or is no file to this file system.
    const bool cannot = !descriptor_.isOpen() || errno == EINVAL || errno == EBADF || errno == ENOTSUP;
    return cannot && uninterrupted([&] { return ::syncfs(file); }) == 0;
  }

 private:
  Descriptor descriptor_;
};

/// Whether the file was written to its end. Some file systems say only when it is closed that they could not.
bool isClosedWell(int file) {
  Descriptor second(uninterrupted([&] { return ::fcntl(file, F_DUPFD_CLOEXEC, 0); }));
  return second.isOpen() && second.close();
}

FileError isChanged() {
  return {.reason = std::string(translatable("Files", "It was changed meanwhile")),
          .kind = FileError::Kind::isChanged};
}

/// What stands in the way of writing to `target`, which has the status `old` if there is such a file.
std::optional<FileError> obstacleTo(const std::string& target, const struct stat* old,
                                    const foundation::FileContents* expected) {
  if (old != nullptr && !S_ISREG(old->st_mode)) return notAFile(old->st_mode);
  if (old != nullptr && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return systemError();
  if (expected != nullptr && expected->has_value() != (old != nullptr)) return isChanged();
  return std::nullopt;
}

/// Whether `fresh` holds `bytes` on the disk, and may be read by those who may read `target`; errno tells why not.
bool isWrittenWhole(const NewFile& fresh, std::span<const std::byte> bytes, const std::string& target,
                    const struct stat* old) {
  const bool mayBeRead = old != nullptr ? takeOverPermissions(fresh.number(), target, *old)
                                        : setMode(fresh.number(), S_IRUSR | S_IWUSR);
  return mayBeRead && writeAll(fresh.number(), bytes) &&
         uninterrupted([&] { return ::fsync(fresh.number()); }) == 0 && isClosedWell(fresh.number());
}

using Contents = std::variant<std::vector<std::byte>, FileError>;

bool isReadable(mode_t mode, PosixFileStore::Pipes pipes) {
  return S_ISREG(mode) || (pipes == PosixFileStore::Pipes::areRead && S_ISFIFO(mode));
}

/// All bytes of an open file, of which `status` tells.
Contents allOf(int file, const struct stat& status) {
  // The size that a file states is a hint alone: it may be growing, or name far more than there is memory.
  constexpr std::size_t kLeast = 4096;
  constexpr std::size_t kMostAtOnce = std::size_t{1} << 24;
  std::vector<std::byte> bytes;
  try {
    const auto stated = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    // One byte more than stated, so that the end is met without growing once more.
    bytes.resize(stated == 0 ? kLeast : std::min(stated + 1, kMostAtOnce));
    std::size_t used = 0;
    for (;;) {
      if (used == bytes.size()) bytes.resize(bytes.size() * 2);
      const ssize_t count =
          uninterrupted([&] { return ::read(file, bytes.data() + used, bytes.size() - used); });
      if (count < 0) return systemError();
      used += static_cast<std::size_t>(count);
      // A file whose stated size was read, and no more came: it is whole, and need not be asked for its end.
      if (count == 0 || (S_ISREG(status.st_mode) && used == stated)) break;
    }
    bytes.resize(used);
  } catch (const std::bad_alloc&) {
    return systemError(ENOMEM);
  } catch (const std::length_error&) {
    return systemError(ENOMEM);
  }
  return bytes;
}

/// The contents of a file, or of a pipe where those are read.
Contents openedContents(const std::string& path, PosixFileStore::Pipes pipes) {
  const bool waits = pipes == PosixFileStore::Pipes::areRead;
  const int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | (waits ? 0 : O_NONBLOCK);
  const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), flags); }));
  if (!file.isOpen()) return systemError();
  struct stat status {};
  if (::fstat(file.number(), &status) != 0) return systemError();
  if (!isReadable(status.st_mode, pipes)) return notAFile(status.st_mode);
  return allOf(file.number(), status);
}

}  // namespace

Contents PosixFileStore::contents(const std::string& path) const {
  if (hasZeroByte(path)) return systemError(EINVAL);
  // Before it is opened: that alone waits for the writer of a pipe, and does something to many a device.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return systemError();
  if (!isReadable(status.st_mode, pipes_)) return notAFile(status.st_mode);
  return openedContents(path, pipes_);
}

Contents PosixFileStore::contentsOfListed(const std::string& path) {
  return openedContents(path, Pipes::areRefused);
}

std::optional<FileError> PosixFileStore::replaceContents(const std::string& path,
                                                         std::span<const std::byte> bytes) {
  return replace(path, bytes, nullptr);
}

std::optional<FileError> PosixFileStore::replaceExpected(const std::string& path,
                                                         std::span<const std::byte> bytes,
                                                         const foundation::FileContents& expected) {
  return replace(path, bytes, &expected);
}

std::optional<FileError> PosixFileStore::replace(const std::string& path, std::span<const std::byte> bytes,
                                                 const foundation::FileContents* expected) {
  if (path.empty()) return systemError(ENOENT);
  if (hasZeroByte(path)) return systemError(EINVAL);
  const auto resolved = linkTarget(path);
  if (const auto* error = std::get_if<FileError>(&resolved)) return *error;
  const auto& target = std::get<std::string>(resolved);
  // Such a path can only mean a folder, even where there is none.
  if (target.ends_with('/')) return systemError(EISDIR);
  if (swept_.insert(folderOf(target)).second) removeLeftovers(folderOf(target));

  // Once more where a file came or went meanwhile, or the new one needs a name from the beginning.
  constexpr int kMostTries = 10;
  bool hasName = false;
  for (int i = 0; i < kMostTries; ++i) {
    const Attempt attempt = tryToReplace(target, bytes, expected, hasName);
    if (!attempt.isToBeRepeated) return attempt.error;
    hasName = hasName || attempt.needsName;
  }
  return systemError(EAGAIN);
}

std::optional<FileError> PosixFileStore::changeOf(const std::string& target,
                                                  const foundation::FileContents& expected) const {
  const auto now = contents(target);
  if (const auto* error = std::get_if<FileError>(&now)) return exists(target) ? *error : isChanged();
  return std::get<0>(now) == *expected ? std::nullopt : std::optional(isChanged());
}

PosixFileStore::Attempt PosixFileStore::tryToReplace(const std::string& target,
                                                     std::span<const std::byte> bytes,
                                                     const foundation::FileContents* expected,
                                                     bool hasName) const {
  const auto failed = [](int number = errno) { return Attempt{.error = systemError(number)}; };
  struct stat old {};
  const bool replaces = ::stat(target.c_str(), &old) == 0;
  if (!replaces && errno != ENOENT) return failed();
  const struct stat* status = replaces ? &old : nullptr;
  if (auto obstacle = obstacleTo(target, status, expected)) return {.error = std::move(obstacle)};

  const std::string folder = folderOf(target);
  NewFile fresh(folder, hasName);
  if (!fresh.isOpen()) return failed();
  if (!isWrittenWhole(fresh, bytes, target, status)) return failed();

  const HeldFolder held(folder, expected != nullptr);
  if (replaces && expected != nullptr) {
    if (auto change = changeOf(target, *expected)) return {.error = std::move(change)};
  }
  bool canHaveName = true;
  const bool isDone = replaces ? fresh.replace(target, canHaveName) : fresh.becomeNew(target);
  if (!isDone) {
    const int error = errno;
    if (!replaces && error == EEXIST)
      return expected != nullptr ? Attempt{.error = isChanged()} : Attempt{.isToBeRepeated = true};
    const bool needsName = !fresh.hasName() && !hasName && (!replaces || !canHaveName);
    if (needsName) return {.isToBeRepeated = true, .needsName = true};
    return failed(error);
  }
  if (held.flush(fresh.number())) return {};
  FileError error = systemError();
  error.kind = FileError::Kind::isWritten;
  return {.error = error};
}

foundation::FileClaim PosixFileStore::claim(const std::string& path, Claim wish) {
  if (path.empty() || hasZeroByte(path)) return {};
  return claimDocument(resolvedPath(path), wish);
}

std::vector<foundation::FileEntry> PosixFileStore::entries(const std::string& folder) const {
  std::vector<foundation::FileEntry> found;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    struct stat status {};
    const std::string path = entry->path().string();
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
    constexpr double kUnixTimeOf2001 = 978307200.0;
    found.push_back({.path = path,
                     .name = entry->path().filename().string(),
                     .size = status.st_size,
                     .modified = {static_cast<double>(status.st_mtim.tv_sec) - kUnixTimeOf2001 +
                                  static_cast<double>(status.st_mtim.tv_nsec) * 1e-9}});
  }
  return found;
}

std::string PosixFileStore::documentsFolder() const {
  const char* home = std::getenv("HOME");
  const std::string homeFolder = home ? home : ".";
  const std::string folder = documentsFolder_.empty() ? homeFolder + "/Documents" : documentsFolder_;
  std::error_code ignored;
  return std::filesystem::is_directory(folder, ignored) ? folder : homeFolder;
}

bool PosixFileStore::exists(const std::string& path) const {
  // A link that leads nowhere bears its name too.
  std::error_code ignored;
  return std::filesystem::symlink_status(path, ignored).type() != std::filesystem::file_type::not_found;
}

std::string PosixFileStore::resolvedPath(const std::string& path) const {
  std::error_code error;
  const std::filesystem::path resolved =
      std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error);
  return error ? path : resolved.string();
}

}  // namespace nascor::posix
