#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "foundation/ShortDate.h"

namespace nascor::foundation {

/// The tables of visible texts.
namespace string_table {
inline constexpr std::string_view standard = "";  ///< the default table
inline constexpr std::string_view ncDocument = "NCDocument";
inline constexpr std::string_view ncAppController = "NCAppController";
inline constexpr std::string_view corvelDocument = "CorvelDocument";
inline constexpr std::string_view zuVersion = "ZuVersion";
}  // namespace string_table

/// The user's language and ways of writing.
class Localizer {
 public:
  virtual ~Localizer() = default;

  /// The translation of `key` in `table`; the key itself, which is the English text, where there is none.
  virtual std::string text(std::string_view table, std::string_view key) const = 0;
  virtual ShortDateForm shortDateForm() const = 0;
  virtual char decimalSign() const = 0;
  /// `text` in capital letters, as the user's language and all of Unicode have them.
  virtual std::string upperCased(std::string_view text) const = 0;
};

/// The translation of `key` with each "%ld" replaced by the next of `numbers`, in order. Nothing else is a
/// place holder, so a percent sign in a translation is just that. Numbers left over are dropped.
std::string format(const Localizer& localizer, std::string_view table, std::string_view key,
                   std::initializer_list<std::int64_t> numbers);

/// English texts, dates as month/day/year, a decimal point: what the command line speaks.
class EnglishLocalizer final : public Localizer {
 public:
  std::string text(std::string_view table, std::string_view key) const override;
  ShortDateForm shortDateForm() const override;
  char decimalSign() const override;
  /// The letters a to z; others are left.
  std::string upperCased(std::string_view text) const override;
};

}  // namespace nascor::foundation
