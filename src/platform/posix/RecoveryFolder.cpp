// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/RecoveryFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "posix/Descriptor.h"

namespace nascor::posix {
namespace {

using foundation::FileError;
using foundation::RecoveryFile;
using foundation::RecoveryOrigin;

constexpr const char* kLock = ".lock";
constexpr const char* kData = ".nascor";
constexpr const char* kOrigin = ".origin";
constexpr mode_t kOwnersFolder = S_IRWXU;
constexpr mode_t kOwnersFile = S_IRUSR | S_IWUSR;

std::string homeFolder() {
  if (const char* home = std::getenv("HOME"); home && *home == '/') return home;
  const struct passwd* user = ::getpwuid(::geteuid());
  return user && user->pw_dir ? user->pw_dir : "/";
}

/// The part of a file's name before `extension`; empty for a name that ends otherwise.
std::string_view stemOf(std::string_view name, std::string_view extension) {
  return name.size() > extension.size() && name.ends_with(extension)
             ? name.substr(0, name.size() - extension.size())
             : std::string_view();
}

/// The program's part of the stem of a recovery file: NAME of NAME-N. Empty where there is none.
std::string_view programOf(std::string_view stem) {
  const std::size_t dash = stem.rfind('-');
  if (dash == std::string_view::npos || dash + 1 == stem.size()) return {};
  const bool isNumber =
      std::ranges::all_of(stem.substr(dash + 1), [](char c) { return c >= '0' && c <= '9'; });
  return isNumber ? stem.substr(0, dash) : std::string_view();
}

/// Makes the folder and those around it, for the owner alone, and takes from others what a folder that was there gives them.
std::optional<FileError> makePrivateFolder(const std::string& folder) {
  for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
    const std::string part = folder.substr(0, slash);
    if (::mkdir(part.c_str(), kOwnersFolder) == 0) {
      ::chmod(part.c_str(), kOwnersFolder);  // whatever the umask
    } else if (errno != EEXIST) {
      return systemError();
    }
    if (slash == std::string::npos) break;
  }
  struct stat status {};
  if (::lstat(folder.c_str(), &status) != 0) return systemError();
  if (!S_ISDIR(status.st_mode)) return systemError(ENOTDIR);
  if (status.st_uid != ::geteuid()) return systemError(EPERM);
  if ((status.st_mode & 07777U) != kOwnersFolder && ::chmod(folder.c_str(), kOwnersFolder) != 0)
    return systemError();
  return std::nullopt;
}

/// The locked file at `path`, or -1 while another program holds it.
int lockedFile(const std::string& path, int flags) {
  const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | flags, kOwnersFile);
  if (file < 0) return -1;
  struct stat opened {};
  struct stat named {};
  const bool isLocked = ::flock(file, LOCK_EX | LOCK_NB) == 0;
  // Between opening and locking another program may have removed it.
  if (isLocked && ::fchmod(file, kOwnersFile) == 0 && ::fstat(file, &opened) == 0 &&
      ::lstat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino && opened.st_dev == named.st_dev) {
    return file;
  }
  const int error = isLocked ? EWOULDBLOCK : errno;
  ::close(file);
  errno = error;
  return -1;
}

/// Path and digest, with a NUL between them, which no path has; the path alone where there is no digest.
std::string textOf(const RecoveryOrigin& origin) {
  std::string text = origin.document;
  if (!origin.basis.empty()) text.append(1, '\0').append(origin.basis);
  return text;
}

RecoveryOrigin originIn(std::span<const std::byte> bytes) {
  const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::size_t end = text.find('\0');
  return {.document = text.substr(0, end), .basis = end == std::string::npos ? "" : text.substr(end + 1)};
}

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  return names;
}

}  // namespace

RecoveryFolder::~RecoveryFolder() {
  for (const auto& [name, lock] : std::map(locks_)) {
    releaseIfEmpty(name);
    if (locks_.contains(name)) ::close(lock);
  }
}

std::string RecoveryFolder::usualPath() {
  const char* state = std::getenv("XDG_STATE_HOME");
  // A path from the working folder is to be passed over.
  const std::string folder = state && *state == '/' ? std::string(state) : homeFolder() + "/.local/state";
  return folder + "/nascor/recovery";
}

std::string RecoveryFolder::pathOf(const std::string& stem, const char* extension) const {
  return folder_ + "/" + stem + extension;
}

std::optional<FileError> RecoveryFolder::prepare() {
  if (auto error = makePrivateFolder(folder_)) return error;
  if (!name_.empty()) return std::nullopt;
  constexpr int kMostTries = 1000;
  for (int i = 0; i < kMostTries; ++i) {
    std::string name = std::to_string(::getpid());
    if (i > 0) name.append(".").append(std::to_string(i));
    const int lock = lockedFile(pathOf(name, kLock), O_EXCL);
    if (lock >= 0) {
      locks_.emplace(name, lock);
      name_ = name;
      return std::nullopt;
    }
    if (errno != EEXIST && errno != EWOULDBLOCK) return systemError();
  }
  return systemError(EEXIST);
}

std::optional<FileError> RecoveryFolder::keep(std::uint64_t number, const RecoveryOrigin& origin,
                                              std::span<const std::byte> bytes) {
  if (auto error = prepare()) return error;
  const std::string stem = name_ + "-" + std::to_string(number);
  if (const auto known = origins_.find(number); known == origins_.end() || known->second != origin) {
    const std::string path = pathOf(stem, kOrigin);
    const std::string text = textOf(origin);
    if (origin.document.empty()) {
      ::unlink(path.c_str());
    } else if (auto error = store_.replaceContents(path, std::as_bytes(std::span(text)))) {
      return error;
    }
    origins_.insert_or_assign(number, origin);
  }
  return store_.replaceContents(pathOf(stem, kData), bytes);
}

void RecoveryFolder::forget(std::uint64_t number) {
  if (name_.empty() || origins_.erase(number) == 0) return;
  const std::string stem = name_ + "-" + std::to_string(number);
  // The origin last: without it the document would be one that was never saved.
  ::unlink(pathOf(stem, kData).c_str());
  ::unlink(pathOf(stem, kOrigin).c_str());
}

bool RecoveryFolder::claim(const std::string& name) {
  if (locks_.contains(name)) return true;
  const int lock = lockedFile(pathOf(name, kLock), 0);
  if (lock < 0) return false;
  locks_.emplace(name, lock);
  return true;
}

void RecoveryFolder::releaseIfEmpty(const std::string& name) {
  const auto held = locks_.find(name);
  const auto left = namesIn(folder_);
  if (held == locks_.end() ||
      std::ranges::any_of(left, [&](const auto& file) { return programOf(stemOf(file, kData)) == name; })) {
    return;
  }
  ::unlink(pathOf(name, kLock).c_str());
  ::close(held->second);
  locks_.erase(held);
}

void RecoveryFolder::removeUnfinishedFiles() const {
  constexpr time_t kLongestWrite = 3600;
  for (const std::string& name : namesIn(folder_)) {
    struct stat status {};
    const std::string path = folder_ + "/" + name;
    if (name.starts_with(".nascor-") && ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
        ::time(nullptr) - status.st_mtime > kLongestWrite) {
      ::unlink(path.c_str());
    }
  }
}

std::vector<RecoveryFile> RecoveryFolder::takeAbandoned() {
  removeUnfinishedFiles();
  std::set<std::string> programs;
  for (const std::string& file : namesIn(folder_)) {
    programs.emplace(programOf(stemOf(file, kData)));
    programs.emplace(stemOf(file, kLock));
  }
  programs.erase("");
  programs.erase(name_);
  std::erase_if(programs, [this](const std::string& name) { return !claim(name); });
  std::vector<RecoveryFile> taken = files();
  std::erase_if(taken, [&](const RecoveryFile& file) {
    const std::string name = std::filesystem::path(file.path).stem().string();
    return !programs.contains(std::string(programOf(name)));
  });
  for (const std::string& name : programs) releaseIfEmpty(name);
  return taken;
}

void RecoveryFolder::remove(const RecoveryFile& file) {
  const std::string stem = std::filesystem::path(file.path).stem().string();
  ::unlink(pathOf(stem, kData).c_str());
  ::unlink(pathOf(stem, kOrigin).c_str());
  releaseIfEmpty(std::string(programOf(stem)));
}

std::vector<RecoveryFile> RecoveryFolder::files() const {
  std::vector<RecoveryFile> found;
  for (const foundation::FileEntry& entry : store_.entries(folder_)) {
    const std::string stem(stemOf(entry.name, kData));
    if (programOf(stem).empty()) continue;
    const auto origin = store_.contents(pathOf(stem, kOrigin));
    const auto* bytes = std::get_if<std::vector<std::byte>>(&origin);
    found.push_back(
        {.path = entry.path, .origin = bytes ? originIn(*bytes) : RecoveryOrigin(), .saved = entry.modified});
  }
  std::ranges::sort(found, [](const RecoveryFile& one, const RecoveryFile& other) {
    return one.saved.secondsSince2001 != other.saved.secondsSince2001
               ? one.saved.secondsSince2001 < other.saved.secondsSince2001
               : one.path < other.path;
  });
  return found;
}

}  // namespace nascor::posix
