// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Localizer.h"

#include <array>
#include <cstddef>

namespace nascor::foundation {

std::string format(std::string_view text, std::initializer_list<std::int64_t> numbers) {
  constexpr std::string_view kPlaceHolder = "%ld";
  std::string result;
  std::size_t from = 0;
  for (const std::int64_t number : numbers) {
    const std::size_t at = text.find(kPlaceHolder, from);
    if (at == std::string_view::npos) break;
    result += text.substr(from, at - from);
    result += std::to_string(number);
    from = at + kPlaceHolder.size();
  }
  result += text.substr(from);
  return result;
}

std::string EnglishLocalizer::text(std::string_view, std::string_view key) const { return std::string(key); }
ShortDateForm EnglishLocalizer::shortDateForm() const { return {.pattern = "M/d/yy", .monthNames = {}}; }

std::string EnglishLocalizer::longDateText(const CivilDay& day) const {
  constexpr std::array<std::string_view, 12> kMonths{"January",   "February", "March",    "April",
                                                     "May",       "June",     "July",     "August",
                                                     "September", "October",  "November", "December"};
  if (!isValid(day)) return {};
  return std::to_string(day.day)
      .append(" ")
      .append(kMonths.at(static_cast<std::size_t>(day.month) - 1))
      .append(" ")
      .append(std::to_string(day.year));
}

char EnglishLocalizer::decimalSign() const { return '.'; }

std::string EnglishLocalizer::upperCased(std::string_view text) const {
  std::string result(text);
  for (char& letter : result) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return result;
}

}  // namespace nascor::foundation
