// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/IsoDate.h"

#include <charconv>
#include <cmath>

namespace nascor::foundation {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Takes a text apart from the left.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }
  bool nextIs(char character) const { return !rest_.empty() && rest_.front() == character; }

  bool take(char character) {
    if (!nextIs(character)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  /// Exactly `count` digits whose number is at most `limit`.
  std::optional<int> digits(std::size_t count, int limit) {
    if (rest_.size() < count) return std::nullopt;
    int number = 0;
    for (std::size_t i = 0; i < count; ++i) {
      if (!isDigit(rest_[i])) return std::nullopt;
      number = number * 10 + (rest_[i] - '0');
    }
    if (number > limit) return std::nullopt;
    rest_.remove_prefix(count);
    return number;
  }

  /// Two digits below 60 and any number of decimals.
  std::optional<double> seconds() {
    const std::string_view from = rest_;
    if (!digits(2, 59)) return std::nullopt;
    if (take('.')) {
      if (atEnd() || !isDigit(rest_.front())) return std::nullopt;
      while (!atEnd() && isDigit(rest_.front())) rest_.remove_prefix(1);
    }
    const std::string_view number = from.substr(0, from.size() - rest_.size());
    double value = 0.0;
    std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
    return value;
  }

 private:
  std::string_view rest_;
};

std::optional<CivilDay> readDay(Reader& text) {
  const auto year = text.digits(4, 9999);
  if (!year || !text.take('-')) return std::nullopt;
  const auto month = text.digits(2, 12);
  if (!month || !text.take('-')) return std::nullopt;
  const auto day = text.digits(2, 31);
  if (!day) return std::nullopt;
  const CivilDay result{.year = *year, .month = *month, .day = *day};
  return isValid(result) ? std::optional(result) : std::nullopt;
}

/// `09:30` or `09:30:15.25`, in seconds after midnight.
std::optional<double> readTime(Reader& text) {
  const auto hours = text.digits(2, 23);
  if (!hours || !text.take(':')) return std::nullopt;
  const auto minutes = text.digits(2, 59);
  if (!minutes) return std::nullopt;
  const double wholeMinutes = *hours * 3600 + *minutes * 60;
  if (!text.take(':')) return wholeMinutes;
  const auto seconds = text.seconds();
  if (!seconds) return std::nullopt;
  return wholeMinutes + *seconds;
}

/// `Z`, `+02:00`, `+0200` or `+02`, in seconds ahead of UTC.
std::optional<double> readOffset(Reader& text) {
  if (text.take('Z')) return 0.0;
  const bool negative = text.take('-');
  if (!negative && !text.take('+')) return std::nullopt;
  const auto hours = text.digits(2, 23);
  if (!hours) return std::nullopt;
  int seconds = *hours * 3600;
  if (!text.atEnd()) {
    text.take(':');
    const auto minutes = text.digits(2, 59);
    if (!minutes) return std::nullopt;
    seconds += *minutes * 60;
  }
  return negative ? -seconds : seconds;
}

/// Puts the last `count` digits of `number`, which is not negative, at that place. Rows hold two days each, and a format is
/// taken apart for longer than digits are written.
void putDigits(std::string& text, std::size_t place, std::size_t count, int number) {
  for (std::size_t digit = count; digit-- > 0; number /= 10)
    text[place + digit] = static_cast<char>('0' + number % 10);
}

/// Of the years 1 to 9999.
std::string dayText(const CivilDay& day) {
  std::string text = "0000-00-00";
  putDigits(text, 0, 4, static_cast<int>(day.year));
  putDigits(text, 5, 2, day.month);
  putDigits(text, 8, 2, day.day);
  return text;
}

}  // namespace

std::optional<Date> dateFromIsoText(std::string_view text, const Calendar& calendar) {
  Reader reader(text);
  const auto day = readDay(reader);
  if (!day) return std::nullopt;
  if (reader.atEnd()) return startOfDay(*day, calendar);

  if (!reader.take('T') && !reader.take(' ')) return std::nullopt;
  const auto time = readTime(reader);
  if (!time) return std::nullopt;
  if (reader.atEnd()) return dateFromWallClock(*day, *time, calendar);

  const auto offset = readOffset(reader);
  if (!offset || !reader.atEnd()) return std::nullopt;
  return Date{static_cast<double>(daysSince2001(*day)) * kSecondsPerDay - *offset + *time};
}

std::string isoDateTimeText(Date date, const Calendar& calendar) {
  const auto day = localDay(date, calendar);
  if (!day) return {};
  const double wall = std::floor(date.secondsSince2001) + calendar.offsetFromUtc(date);
  const int seconds = static_cast<int>(wall - static_cast<double>(daysSince2001(*day)) * kSecondsPerDay);
  std::string text = dayText(*day) + "T00:00:00";
  putDigits(text, 11, 2, seconds / 3600);
  putDigits(text, 14, 2, seconds / 60 % 60);
  putDigits(text, 17, 2, seconds % 60);
  return text;
}

std::string isoDayText(Date date, const Calendar& calendar) {
  const auto day = localDay(date, calendar);
  return day ? dayText(*day) : std::string();
}

}  // namespace nascor::foundation
