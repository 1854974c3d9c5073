// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/NumberText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/LeadingInteger.h"

namespace nascor::foundation {

namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

// No double has more decimals than the smallest one, 2 to the power -1074, nor more than 309 digits before them.
constexpr int kAllDecimals = 1074;
constexpr std::size_t kMostDigits = 309;

/// Blanks, one sign, and what is left between them.
struct FieldText {
  bool negative = false;
  std::string_view number;
};

std::optional<FieldText> splitFieldText(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
  FieldText split;
  if (text.front() == '-' || text.front() == '+') {
    split.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  split.number = text;
  return split;
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// The exact digits of `value`, which is not negative.
std::string exactText(double value) {
  std::array<char, kMostDigits + 1 + kAllDecimals> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::fixed, kAllDecimals)
                       .ptr;
  return {buffer.data(), end};
}

/// Adds one to the last digit of a text of digits and a point.
void countUp(std::string& text) {
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] == '.') continue;
    if (text[i] != '9') {
      ++text[i];
      return;
    }
    text[i] = '0';
  }
  text.insert(text.begin(), '1');
}

constexpr std::array<std::uint64_t, 4> kUnits{1, 10, 100, 1000};

/// `value`, which is not negative, in units of the last of up to three decimal places: the nearest whole number to the exact
/// value, ties to even. Nothing for more places, and where 64 bits may not hold it.
std::optional<std::uint64_t> roundedToPlaces(double value, int decimals) {
  constexpr int kDigits = std::numeric_limits<double>::digits - 1;
  constexpr std::uint64_t kLeading = std::uint64_t{1} << kDigits;
  if (decimals < 0 || static_cast<std::size_t>(decimals) >= kUnits.size()) return std::nullopt;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  // The value is (significand) / 2^shift, but for those next to zero, which have no leading bit and round to it.
  const int shift = 1075 - static_cast<int>(bits >> kDigits);
  if (shift <= 0) return std::nullopt;
  // Below 2^63, so that from 64 on it is less than half of a unit.
  const std::uint64_t units = (bits % kLeading + kLeading) * kUnits[static_cast<std::size_t>(decimals)];
  if (shift >= 64) return 0;
  const std::uint64_t whole = units >> shift;
  const std::uint64_t rest = units - (whole << shift);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  // A tie goes up to an even number. Without branches: every second number is rounded up.
  return whole + static_cast<std::uint64_t>(rest + whole % 2 > half);
}

/// The length of `units`, which are below 2^62, of the last of up to three decimal places, written with them all.
std::ptrdiff_t lengthOf(std::uint64_t units, int decimals) {
  std::ptrdiff_t digits = 1 + decimals;
  for (std::uint64_t limit = 10 * kUnits[static_cast<std::size_t>(decimals)]; units >= limit; limit *= 10)
    ++digits;
  return digits + (decimals > 0 ? 1 : 0);
}

}  // namespace

namespace {

template <class Number>
std::string shortestTextOf(Number value) {
  if (std::isnan(value)) return "nan";
  std::array<char, 32> buffer;
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

}  // namespace

std::string shortestText(double value) { return shortestTextOf(value); }
std::string shortestSingleText(float value) { return shortestTextOf(value); }

std::string fixedText(double value, int decimals) {
  std::array<char, kLongestFixedText> buffer;
  return {buffer.data(), writeFixedText(buffer.data(), value, decimals)};
}

char* writeFixedText(char* at, double value, int decimals) {
  if (std::isnan(value)) return std::ranges::copy(std::string_view("nan"), at).out;
  const auto rounded = roundedToPlaces(std::fabs(value), decimals);
  if (!rounded)
    return std::to_chars(at, at + kLongestFixedText, value, std::chars_format::fixed, decimals).ptr;
  *at = '-';
  at += static_cast<int>(std::signbit(value));
  // From the last digit on, each in its place: to copy what was just written byte by byte takes longer than to count.
  std::uint64_t digits = *rounded;
  char* const end = at + lengthOf(digits, decimals);
  char* last = end;
  const auto writeDigit = [&] {
    *--last = static_cast<char>('0' + digits % 10);
    digits /= 10;
  };
  for (int place = 0; place < decimals; ++place) writeDigit();
  if (decimals > 0) *--last = '.';
  while (last != at) writeDigit();
  return end;
}

std::string fieldText(double value, int decimals, char decimalSign) {
  if (!std::isfinite(value)) return {};
  std::string text = exactText(std::fabs(value));
  const std::size_t point = text.find('.');
  const std::size_t firstDropped = point + 1 + static_cast<std::size_t>(decimals);
  const bool up = text[firstDropped] >= '5';
  text.resize(decimals == 0 ? point : firstDropped);
  if (up) countUp(text);

  const bool isZero = text.find_first_of("123456789") == std::string::npos;
  if (const std::size_t sign = text.find('.'); sign != std::string::npos) text[sign] = decimalSign;
  if (std::signbit(value) && !isZero) text.insert(text.begin(), '-');
  return text;
}

std::optional<double> numberFromFieldText(std::string_view text) {
  const auto split = splitFieldText(text);
  if (!split) return 0.0;

  std::string number;
  bool hasDigit = false;
  bool hasPoint = false;
  for (const char character : split->number) {
    if (isDigit(character)) {
      hasDigit = true;
      number += character;
    } else if ((character == '.' || character == ',') && !hasPoint) {
      hasPoint = true;
      number += '.';
    } else {
      return std::nullopt;
    }
  }
  if (!hasDigit) return std::nullopt;

  double value = 0.0;
  const auto result =
      std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
  // Out of range: either too large to be a number, or so close to zero that it is zero.
  if (result.ec == std::errc::result_out_of_range) {
    const bool isSmall = number.find_first_of("123456789") > number.find('.');
    if (!isSmall) return std::nullopt;
    value = 0.0;
  }
  return split->negative && value != 0.0 ? -value : value;
}

std::optional<std::int64_t> integerFromFieldText(std::string_view text) {
  const auto split = splitFieldText(text);
  if (!split) return 0;
  if (split->number.empty() || !std::all_of(split->number.begin(), split->number.end(), isDigit))
    return std::nullopt;
  return leadingInteger(text);
}

}  // namespace nascor::foundation
