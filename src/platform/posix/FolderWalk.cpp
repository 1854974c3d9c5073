// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/FolderWalk.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <system_error>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace nascor::posix {

namespace {

std::string reason(int number) { return std::generic_category().message(number); }

enum class Kind { file, folder, other };

Kind kindOf(int folder, const dirent& entry) {
  if (entry.d_type == DT_REG) return Kind::file;
  if (entry.d_type == DT_DIR) return Kind::folder;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return Kind::other;
  struct stat status {};
  if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return Kind::file;
  if (S_ISDIR(status.st_mode)) return Kind::folder;
  // A link that leads nowhere is a file that cannot be read: not to be passed over in silence.
  if (S_ISLNK(status.st_mode) && ::fstatat(folder, entry.d_name, &status, 0) != 0) return Kind::file;
  return S_ISREG(status.st_mode) ? Kind::file : Kind::other;
}

}  // namespace

FolderWalk::FolderWalk(std::string folder, std::string suffix) : suffix_(std::move(suffix)) {
  if (auto error = enter(folder)) firstError_ = Found{.path = std::move(folder), .error = std::move(*error)};
}

std::optional<std::string> FolderWalk::enter(std::string path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path.c_str()), ::closedir);
  if (!folder) return reason(errno);
  Level level{.path = std::move(path), .names = {}, .begins = {}};
  if (!level.path.ends_with('/')) level.path += '/';
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(folder.get());
    if (entry == nullptr) {
      if (errno != 0) return reason(errno);
      break;
    }
    const std::string_view name = entry->d_name;
    if (name.starts_with('.')) continue;
    const Kind kind = kindOf(::dirfd(folder.get()), *entry);
    if (kind == Kind::other || (kind == Kind::file && !name.ends_with(suffix_))) continue;
    level.begins.push_back(level.names.size());
    level.names += name;
    // So that a folder stands where the paths of its files do: "a-b" is before "a/b", and that before "a0".
    if (kind == Kind::folder) level.names += '/';
    level.names += '\0';
  }
  // By their bytes, which is what `strcmp` compares.
  std::ranges::sort(level.begins, [names = level.names.c_str()](std::uint64_t one, std::uint64_t other) {
    return std::strcmp(names + one, names + other) < 0;
  });
  levels_.push_back(std::move(level));
  return std::nullopt;
}

std::optional<FolderWalk::Found> FolderWalk::next() {
  if (firstError_) return std::exchange(firstError_, std::nullopt);
  while (!levels_.empty()) {
    Level& level = levels_.back();
    if (level.at == level.begins.size()) {
      levels_.pop_back();
      continue;
    }
    Found found{.path = level.path + (level.names.c_str() + level.begins[level.at++]), .error = {}};
    if (!found.path.ends_with('/')) return found;
    found.path.pop_back();
    if (auto error = enter(found.path)) {
      found.error = std::move(*error);
      return found;
    }
  }
  return std::nullopt;
}

}  // namespace nascor::posix
