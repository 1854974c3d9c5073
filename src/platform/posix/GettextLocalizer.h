// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "foundation/Localizer.h"

namespace nascor::posix {

/// The user's language as gettext finds it: LANGUAGE, LC_ALL, LC_MESSAGES, LANG. Texts come from compiled catalogues, those
/// of the system's errors from the system's own; what is in none is English.
///
/// The program's own locale stays "C": numbers, letters and what libraries say are the same in every language.
class GettextLocalizer final : public foundation::Localizer {
 public:
  /// `folder` holds LANGUAGE/LC_MESSAGES/nascor.mo.
  explicit GettextLocalizer(const std::string& folder);
  GettextLocalizer(const GettextLocalizer&) = delete;
  GettextLocalizer& operator=(const GettextLocalizer&) = delete;
  ~GettextLocalizer() override;

  std::string text(std::string_view table, std::string_view key) const override;
  foundation::ShortDateForm shortDateForm() const override;
  std::string longDateText(const foundation::CivilDay& day) const override;
  char decimalSign() const override;
  std::string upperCased(std::string_view text) const override;

 private:
  /// A locale_t; null where the system does not have the user's, and all is English.
  void* locale_;
};

/// The folder of the catalogues that belong to this program; it need not be there.
std::string catalogueFolder();

}  // namespace nascor::posix
