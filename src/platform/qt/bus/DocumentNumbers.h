// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "framework/ZuDocument.h"

namespace nascor::qt {

/// The numbers by which open documents are known outside: from 1, in the order of opening, and never given again.
class DocumentNumbers {
 public:
  void add(framework::ZuDocument& document) { open_.emplace(++last_, &document); }
  void remove(const framework::ZuDocument& document) {
    std::erase_if(open_, [&](const auto& entry) { return entry.second == &document; });
  }

  /// In the order of opening.
  const std::map<std::int64_t, framework::ZuDocument*>& open() const { return open_; }
  /// Null when no open document has that number.
  framework::ZuDocument* document(std::int64_t number) const {
    const auto found = open_.find(number);
    return found == open_.end() ? nullptr : found->second;
  }
  std::optional<std::int64_t> numberOf(const framework::ZuDocument& document) const {
    for (const auto& [number, open] : open_) {
      if (open == &document) return number;
    }
    return std::nullopt;
  }
  /// Whether a document that is closed had that number.
  bool wasGiven(std::int64_t number) const { return number >= 1 && number <= last_; }

 private:
  std::map<std::int64_t, framework::ZuDocument*> open_;
  std::int64_t last_ = 0;
};

}  // namespace nascor::qt
