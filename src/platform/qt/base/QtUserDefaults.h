// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>
#include <map>

#include "foundation/UserDefaults.h"

namespace nascor::qt {

/// Preferences in the user's configuration folder; what is registered stays in memory.
class QtUserDefaults final : public foundation::UserDefaults {
 public:
  QtUserDefaults();

  std::optional<std::string> value(std::string_view key) const override;
  /// Written to the file at once.
  void setValue(std::string_view key, std::string value) override;
  void registerDefault(std::string_view key, std::string value) override;

 private:
  QSettings settings_;
  std::map<std::string, std::string, std::less<>> registered_;
};

}  // namespace nascor::qt
