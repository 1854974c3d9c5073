// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

#include "foundation/RecoveryStore.h"
#include "support/FaultyFileStore.h"

namespace nascor::tests {

/// Keeps recovery files among the files of a test, in "/recovery". What another program left is put into `abandoned` and
/// `files` by the test.
class MemoryRecoveryStore final : public foundation::RecoveryStore {
 public:
  explicit MemoryRecoveryStore(FaultyFileStore& files) : files_(files) {}

  static std::string pathOf(std::uint64_t number) {
    return "/recovery/" + std::to_string(number) + ".nascor";
  }

  std::optional<foundation::FileError> keep(std::uint64_t number, const foundation::RecoveryOrigin& origin,
                                            std::span<const std::byte> bytes) override {
    ++timesKept;
    documents[number] = origin.document;
    bases[number] = origin.basis;
    return files_.replaceContents(pathOf(number), bytes);
  }
  void forget(std::uint64_t number) override { files_.files.erase(pathOf(number)); }
  std::vector<foundation::RecoveryFile> takeAbandoned() override { return abandoned; }
  void remove(const foundation::RecoveryFile& file) override { files_.files.erase(file.path); }

  std::vector<foundation::RecoveryFile> abandoned;
  std::map<std::uint64_t, std::string> documents;  ///< the paths of the documents that were kept
  std::map<std::uint64_t, std::string> bases;
  int timesKept = 0;

 private:
  FaultyFileStore& files_;
};

}  // namespace nascor::tests
