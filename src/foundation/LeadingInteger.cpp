// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/LeadingInteger.h"

#include <limits>

namespace nascor::foundation {

std::int64_t leadingInteger(std::string_view text) {
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
  std::size_t at = text.find_first_not_of(" \t\n\v\f\r");
  if (at == std::string_view::npos) return 0;
  const bool negative = text[at] == '-';
  if (negative || text[at] == '+') ++at;

  // Counted downward: the negative range holds one number more.
  std::int64_t value = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    const int digit = text[at] - '0';
    if (value < (kMin + digit) / 10) return negative ? kMin : kMax;
    value = value * 10 - digit;
  }
  if (negative) return value;
  return value == kMin ? kMax : -value;
}

}  // namespace nascor::foundation
