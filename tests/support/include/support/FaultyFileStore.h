// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
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
  int failFlushAt = -1;  ///< the write that the system does not vouch for
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
    const int write = writes_++;
    if (write == failWriteAt) return foundation::FileError{reason};
    files.insert_or_assign(path, std::vector<std::byte>(bytes.begin(), bytes.end()));
    if (write != failFlushAt) return std::nullopt;
    return foundation::FileError{.reason = "Input/output error",
                                 .kind = foundation::FileError::Kind::isWritten};
  }

  std::optional<foundation::FileError> replaceExpected(const std::string& path,
                                                       std::span<const std::byte> bytes,
                                                       const foundation::FileContents& expected) override {
    if (beforeReplacing) std::exchange(beforeReplacing, {})();
    const auto found = files.find(path);
    if (found == files.end() ? expected.has_value() : expected != found->second)
      return foundation::FileError{.reason = "it was changed",
                                   .kind = foundation::FileError::Kind::isChanged};
    return replaceContents(path, bytes);
  }

  foundation::FileClaim claim(const std::string& path, Claim wish) override {
    class Lock final : public foundation::FileLock {
     public:
      Lock(FaultyFileStore& store, std::string locked) : store_(store), path_(std::move(locked)) {
        store_.locks.insert_or_assign(path_, this);
      }
      ~Lock() override {
        if (isHeld()) store_.locks.erase(path_);
      }
      bool isHeld() const override {
        const auto found = store_.locks.find(path_);
        return found != store_.locks.end() && found->second == this;
      }

     private:
      FaultyFileStore& store_;
      std::string path_;
    };
    if (!takesLocks) return {};
    const std::string name = resolvedPath(path);
    const auto holder = holders.find(name);
    if (wish == Claim::ifFree && holder != holders.end()) return {.holder = holder->second};
    if (wish == Claim::ifFree && locks.contains(name))
      return {.holder = foundation::FileHolder{.user = "me", .host = "here", .process = 1}};
    if (holder != holders.end()) holders.erase(holder);
    return {.lock = std::make_unique<Lock>(*this, name)};
  }

  bool takesLocks = true;
  std::map<std::string, foundation::FileHolder, std::less<>> holders;  ///< other programs, by what they hold
  std::map<std::string, const foundation::FileLock*, std::less<>> locks;  ///< given and not yet ended
  std::function<void()> beforeReplacing;  ///< once, before the next expected file is looked at

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
