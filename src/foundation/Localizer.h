// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"
#include "foundation/ShortDate.h"

namespace nascor::foundation {

/// Marks a text that is looked up elsewhere, where it is no literal any more. The tables of visible texts are gathered from
/// the literals behind `text`, `localized`, `said`, `Sentence` and this.
constexpr std::string_view translatable(std::string_view /*table*/, std::string_view key) { return key; }

/// The user's language and ways of writing.
class Localizer {
 public:
  virtual ~Localizer() = default;

  /// The translation of `key` in `table`; the key itself, which is the English text, where there is none. The default table
  /// has the empty name.
  virtual std::string text(std::string_view table, std::string_view key) const = 0;
  virtual ShortDateForm shortDateForm() const = 0;
  /// `day` with its month in words and all digits of its year, "4 March 2027": it reads as one day everywhere. Empty when
  /// `day` is not valid.
  virtual std::string longDateText(const CivilDay& day) const = 0;
  virtual char decimalSign() const = 0;
  /// `text` in capital letters, as the user's language and all of Unicode have them.
  virtual std::string upperCased(std::string_view text) const = 0;
};

/// `text`, a translation, with each "%ld" replaced by the next of `numbers`, in order. Nothing else is a place holder, so a
/// percent sign in a translation is just that. Numbers left over are dropped.
std::string format(std::string_view text, std::initializer_list<std::int64_t> numbers);

/// English texts, dates as month/day/year, a decimal point: what programs read.
class EnglishLocalizer final : public Localizer {
 public:
  std::string text(std::string_view table, std::string_view key) const override;
  ShortDateForm shortDateForm() const override;
  std::string longDateText(const CivilDay& day) const override;
  char decimalSign() const override;
  /// The letters a to z; others are left.
  std::string upperCased(std::string_view text) const override;
};

}  // namespace nascor::foundation
