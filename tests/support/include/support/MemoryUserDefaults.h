// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/UserDefaults.h"

namespace nascor::tests {

/// Preferences that live as long as this object. A registered default is never stored as a written value.
class MemoryUserDefaults final : public foundation::UserDefaults {
 public:
  using Values = std::map<std::string, std::string, std::less<>>;

  std::optional<std::string> value(std::string_view key) const override {
    if (const auto found = written_.find(key); found != written_.end()) return found->second;
    if (const auto found = registered_.find(key); found != registered_.end()) return found->second;
    return std::nullopt;
  }
  void setValue(std::string_view key, std::string value) override {
    written_.insert_or_assign(std::string(key), std::move(value));
  }
  void registerDefault(std::string_view key, std::string value) override {
    registered_.insert_or_assign(std::string(key), std::move(value));
  }

  const Values& written() const { return written_; }        ///< what `setValue` stored
  const Values& registered() const { return registered_; }  ///< what `registerDefault` stored

 private:
  Values written_;
  Values registered_;
};

}  // namespace nascor::tests
