#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "foundation/FileStore.h"

namespace nascor::tests {

/// Keeps files in memory and fails the n-th write, or the n-th read, counted from 0.
class FaultyFileStore final : public foundation::FileStore {
 public:
  int failWriteAt = -1;
  int failReadAt = -1;
  std::string reason = "No space left on device";
  std::map<std::string, std::vector<std::byte>, std::less<>> files;

  std::variant<std::vector<std::byte>, foundation::FileError> contents(
      const std::string& path) const override {
    if (reads_++ == failReadAt) return foundation::FileError{"Input/output error"};
    const auto found = files.find(path);
    if (found == files.end()) return foundation::FileError{"No such file or directory"};
    return found->second;
  }

  std::optional<foundation::FileError> replaceContents(const std::string& path,
                                                       std::span<const std::byte> bytes) override {
    if (writes_++ == failWriteAt) return foundation::FileError{reason};
    files.insert_or_assign(path, std::vector<std::byte>(bytes.begin(), bytes.end()));
    return std::nullopt;
  }

  std::vector<foundation::FileEntry> entries(const std::string& folder) const override {
    std::vector<foundation::FileEntry> found;
    for (const auto& [path, bytes] : files) {
      const std::size_t slash = path.rfind('/');
      if (slash == std::string::npos || path.substr(0, slash) != folder) continue;
      const auto modified = modificationDates.find(path);
      found.push_back(
          {.path = path,
           .name = path.substr(slash + 1),
           .size = static_cast<std::int64_t>(bytes.size()),
           .modified = modified == modificationDates.end() ? foundation::Date{} : modified->second});
    }
    return found;
  }
  bool exists(const std::string& path) const override {
    return files.contains(path) ||
           std::ranges::any_of(files, [&](const auto& file) { return file.first.starts_with(path + "/"); });
  }
  std::string documentsFolder() const override { return "/documents"; }
  std::string resolvedPath(const std::string& path) const override {
    const auto found = resolved.find(path);
    return found == resolved.end() ? path : found->second;
  }
  std::map<std::string, std::string, std::less<>> resolved;  ///< the absolute paths of others
  std::map<std::string, foundation::Date, std::less<>> modificationDates;

  int writes() const { return writes_; }  ///< how often `replaceContents` was called
  int reads() const { return reads_; }    ///< how often `contents` was called

 private:
  mutable int reads_ = 0;
  int writes_ = 0;
};

}  // namespace nascor::tests
