// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

#include "foundation/Localizer.h"

namespace nascor::qt {

/// Texts from the translations that the application has installed, ways of writing from a locale.
class QtLocalizer final : public foundation::Localizer {
 public:
  explicit QtLocalizer(const QLocale& locale);

  std::string text(std::string_view table, std::string_view key) const override;
  foundation::ShortDateForm shortDateForm() const override { return shortDateForm_; }
  std::string longDateText(const foundation::CivilDay& day) const override;
  /// A point where the locale's own sign is no single byte.
  char decimalSign() const override;
  std::string upperCased(std::string_view text) const override;

 private:
  QLocale locale_;
  foundation::ShortDateForm shortDateForm_;
};

}  // namespace nascor::qt
