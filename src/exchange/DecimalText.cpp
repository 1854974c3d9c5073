// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/DecimalText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <system_error>

#include "foundation/ConvertInteger.h"

namespace nascor::exchange {

namespace {

constexpr std::string_view kDigits = "0123456789";

/// The length of the longest start of `text` that consists of digits.
std::size_t digitsAtStart(std::string_view text) {
  const std::size_t end = text.find_first_not_of(kDigits);
  return end == std::string_view::npos ? text.size() : end;
}

std::string dayText(const foundation::CivilDay& day, const char* format) {
  std::array<char, 16> text;
  const int length =
      std::snprintf(text.data(), text.size(), format, static_cast<int>(day.year), day.month, day.day);
  return {text.data(), static_cast<std::size_t>(length)};
}

int numberIn(std::string_view digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

}  // namespace

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks(" \t\r\n\f\0", 6);
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<double> decimalMoved(std::string_view text, int places) {
  std::string_view rest = withoutBlanks(text);
  std::string moved;
  if (rest.starts_with('-')) moved = "-";
  if (rest.starts_with('-') || rest.starts_with('+')) rest.remove_prefix(1);

  const std::size_t whole = digitsAtStart(rest);
  std::size_t length = whole;
  std::size_t decimals = 0;
  if (rest.substr(whole).starts_with('.')) {
    decimals = digitsAtStart(rest.substr(whole + 1));
    length = whole + 1 + decimals;
  }
  if (whole + decimals == 0) return std::nullopt;
  moved += rest.substr(0, length);
  rest.remove_prefix(length);

  int exponent = 0;
  if (!rest.empty()) {
    if (rest.front() != 'e' && rest.front() != 'E') return std::nullopt;
    rest.remove_prefix(1);
    if (rest.starts_with('+')) rest.remove_prefix(1);
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), exponent);
    constexpr int kFarthest = 100000;
    if (error != std::errc() || end != rest.data() + rest.size() || std::abs(exponent) > kFarthest)
      return std::nullopt;
  }
  moved.append("e").append(std::to_string(exponent + places));
  double value = 0.0;
  const auto [end, error] = std::from_chars(moved.data(), moved.data() + moved.size(), value);
  if (error != std::errc() || end != moved.data() + moved.size()) return std::nullopt;
  return value;
}

std::optional<int> wholeNumber(std::string_view text) {
  constexpr double kMost = 999999999.0;
  const auto value = decimalMoved(text, 0);
  if (!value || *value != std::trunc(*value) || std::fabs(*value) > kMost) return std::nullopt;
  return static_cast<int>(*value);
}

std::string shortestSingleText(double value) {
  constexpr std::size_t kLongest = 16;
  std::array<char, 64> text;
  const float single = foundation::narrowedToFloat(value);
  auto end = std::to_chars(text.data(), text.data() + text.size(), single).ptr;
  if (static_cast<std::size_t>(end - text.data()) > kLongest)
    end = std::to_chars(text.data(), text.data() + text.size(), single, std::chars_format::scientific).ptr;
  return {text.data(), end};
}

std::optional<foundation::CivilDay> dayFromDigits(std::string_view text) {
  std::string digits(withoutBlanks(text));
  if (digits.size() == 10 && digits[4] == '.' && digits[7] == '.') {
    digits.erase(7, 1);
    digits.erase(4, 1);
  }
  if (digits.size() != 8 || digitsAtStart(digits) != 8) return std::nullopt;
  const std::string_view view = digits;
  const foundation::CivilDay day{.year = numberIn(view.substr(0, 4)),
                                 .month = numberIn(view.substr(4, 2)),
                                 .day = numberIn(view.substr(6, 2))};
  return isValid(day) ? std::optional(day) : std::nullopt;
}

std::optional<foundation::CivilDay> dayFromIsoText(std::string_view text) {
  constexpr std::size_t kLength = 10;
  if (text.size() != kLength || text[4] != '-' || text[7] != '-') return std::nullopt;
  return dayFromDigits(std::string(text.substr(0, 4)).append(text.substr(5, 2)).append(text.substr(8)));
}

std::string digitsOfDay(const foundation::CivilDay& day) { return dayText(day, "%04d%02d%02d"); }

std::string isoText(const foundation::CivilDay& day) { return dayText(day, "%04d-%02d-%02d"); }

}  // namespace nascor::exchange
