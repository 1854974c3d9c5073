// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "foundation/Localizer.h"

namespace nascor::tests {

/// A language in which every text is its table and key in brackets: "[NCDocument:Cancel]". It shows which
/// texts go through the translation, and from which table.
class MarkedLocalizer final : public foundation::Localizer {
 public:
  std::string text(std::string_view table, std::string_view key) const override {
    return std::string("[").append(table).append(":").append(key).append("]");
  }
  foundation::ShortDateForm shortDateForm() const override {
    return {.pattern = "d.M.yyyy", .monthNames = {}};
  }
  std::string longDateText(const foundation::CivilDay& day) const override {
    return "[" + foundation::EnglishLocalizer().longDateText(day) + "]";
  }
  char decimalSign() const override { return ','; }
  std::string upperCased(std::string_view text) const override { return std::string(text); }
};

}  // namespace nascor::tests
