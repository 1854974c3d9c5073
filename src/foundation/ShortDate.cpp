// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/ShortDate.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>

#include "foundation/Utf8.h"

namespace nascor::foundation {

namespace {

constexpr std::int64_t kFirstShortYear = 1950;
constexpr std::int64_t kLastShortYear = 2049;
constexpr std::size_t kMonths = 12;

enum class Unit { day, month, year };

/// One of the three parts of a date, as a form writes it.
struct Field {
  Unit unit;
  std::size_t letters;  ///< how often the pattern repeats the unit's letter

  bool isName() const { return unit == Unit::month && letters >= 3; }
};

/// A pattern taken apart: text, field, text, field, text, field, text.
struct Form {
  std::vector<Field> fields;
  std::vector<std::string> texts{""};       ///< one more than `fields`
  std::span<const std::string> monthNames;  ///< empty when no field is a name
};

bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool isAsciiLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}
bool isAscii(char character) { return static_cast<unsigned char>(character) < 0x80; }
char lowered(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// What `text`, which is not empty, begins with: a character, or a byte that begins none.
std::string_view firstCharacter(std::string_view text) {
  return text.substr(0, std::max<std::size_t>(characterLength(text), 1));
}

template <std::size_t Count>
bool isOneOf(std::string_view character, const std::array<std::string_view, Count>& set) {
  return std::find(set.begin(), set.end(), character) != set.end();
}

/// Without the marks that only steer the direction of writing, and with every kind of blank as a space.
std::string plain(std::string_view text) {
  constexpr std::array<std::string_view, 2> kOfNoWidth{"\u200B", "\uFEFF"};
  constexpr std::array<std::string_view, 6> kWideBlanks{"\u00A0", "\u2007", "\u2009",
                                                        "\u200A", "\u202F", "\u3000"};
  std::string result;
  while (!text.empty()) {
    const std::string_view character = firstCharacter(text);
    text.remove_prefix(character.size());
    if (isAscii(character.front())) {
      const bool isBlank =
          character.front() == '\t' || character.front() == '\n' || character.front() == '\r';
      result += isBlank ? ' ' : character.front();
    } else if (isOneOf(character, kWideBlanks)) {
      result += ' ';
    } else if (characterLength(character) == 0 ||
               !(isDirectionMark(decoded(character)) || isOneOf(character, kOfNoWidth))) {
      result += character;
    }
  }
  return result;
}

/// `text`, which is plain, without spaces at its ends.
std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view withoutSpaces(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

/// Whether the pattern has day, month and year once each, and the names that it needs.
bool isWhole(const Form& form) {
  if (form.fields.size() != 3) return false;
  for (const Unit unit : {Unit::day, Unit::month, Unit::year}) {
    const auto hasUnit = [unit](const Field& field) { return field.unit == unit; };
    if (std::none_of(form.fields.begin(), form.fields.end(), hasUnit)) return false;
  }
  const auto isName = [](const Field& field) { return field.isName(); };
  return form.monthNames.size() == kMonths || std::none_of(form.fields.begin(), form.fields.end(), isName);
}

std::optional<Unit> unitOf(char letter) {
  switch (letter) {
    case 'd': return Unit::day;
    case 'M': return Unit::month;
    case 'y': return Unit::year;
    default: return std::nullopt;
  }
}

/// Takes the pattern apart; the result points into `shortForm`. Nothing when it does not show one day, one
/// month and one year.
std::optional<Form> parsedForm(const ShortDateForm& shortForm) {
  Form form;
  const std::string_view pattern = shortForm.pattern;
  bool quoted = false;
  for (std::size_t i = 0; i < pattern.size();) {
    const char character = pattern[i];
    if (character == '\'') {
      const bool isDoubled = i + 1 < pattern.size() && pattern[i + 1] == '\'';
      if (isDoubled) {
        form.texts.back() += character;
      } else {
        quoted = !quoted;
      }
      i += isDoubled ? 2 : 1;
    } else if (const auto unit = quoted ? std::nullopt : unitOf(character)) {
      const std::size_t end = std::min(pattern.find_first_not_of(character, i), pattern.size());
      form.fields.push_back({.unit = *unit, .letters = end - i});
      if (form.fields.back().isName()) form.monthNames = shortForm.monthNames;
      form.texts.emplace_back();
      i = end;
    } else {
      form.texts.back() += character;
      ++i;
    }
  }
  return isWhole(form) ? std::optional(std::move(form)) : std::nullopt;
}

std::string padded(std::int64_t number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

std::string fieldText(const CivilDay& day, const Field& field, const Form& form) {
  switch (field.unit) {
    case Unit::day: return padded(day.day, field.letters);
    case Unit::month:
      return field.isName() ? form.monthNames[static_cast<std::size_t>(day.month - 1)]
                            : padded(day.month, field.letters);
    case Unit::year: break;
  }
  const bool isShort = field.letters == 2 && day.year >= kFirstShortYear && day.year <= kLastShortYear;
  return isShort ? padded(day.year % 100, 2) : padded(day.year, 4);
}

std::string isoText(const CivilDay& day) {
  return padded(day.year, 4) + '-' + padded(day.month, 2) + '-' + padded(day.day, 2);
}

/// Reads one text by one form. Every step takes what it needs from the left of `rest`; where there is more
/// than one way to go on (the dot after "Sept." may belong to the name or not), it tries them in turn.
class Reader {
 public:
  explicit Reader(const Form& form) : form_(form) {
    for (std::size_t i = 0; i < plainTexts_.size(); ++i) {
      for (const char character : plain(form.texts[i])) {
        if (character != ' ') plainTexts_[i] += character;
      }
    }
    for (std::size_t month = 0; month < form.monthNames.size(); ++month) {
      addName(plain(form.monthNames[month]), static_cast<int>(month) + 1);
    }
  }

  /// `text` is plain.
  std::optional<CivilDay> day(std::string_view text) {
    text = withoutSpaces(text);
    if (const auto rest = afterFormText(0, text)) {
      if (const auto found = readField(0, *rest)) return found;
    }
    return readField(0, text);
  }

 private:
  struct Name {
    std::string text;
    int month;
  };

  void addName(std::string_view name, int month) {
    name = trimmed(name);
    if (name.empty()) return;
    names_.push_back({std::string(name), month});
    if (name.back() == '.' && name.size() > 1) addName(name.substr(0, name.size() - 1), month);
  }

  /// What follows the text that the form has at place `index`, blanks disregarded.
  std::optional<std::string_view> afterFormText(std::size_t index, std::string_view rest) const {
    rest = withoutSpaces(rest);
    for (const char character : plainTexts_[index]) {
      if (rest.empty() || rest.front() != character) return std::nullopt;
      rest = withoutSpaces(rest.substr(1));
    }
    return rest;
  }

  /// What follows any one separator: blanks, one mark that is no letter and no digit, or both.
  static std::optional<std::string_view> afterSeparator(std::string_view rest) {
    const std::string_view start = rest;
    rest = withoutSpaces(rest);
    if (!rest.empty()) {
      if (const std::string_view mark = firstCharacter(rest); isMark(mark)) {
        rest = withoutSpaces(rest.substr(mark.size()));
      }
    }
    if (rest.size() == start.size()) return std::nullopt;
    return rest;
  }

  static bool isMark(std::string_view character) {
    constexpr std::array<std::string_view, 12> kMarks{"\u00B7", "\u060C", "\u066B", "\u066C",
                                                      "\u2010", "\u2011", "\u2012", "\u2013",
                                                      "\u2212", "\u3001", "\u3002", "\uFF0F"};
    if (!isAscii(character.front())) return isOneOf(character, kMarks);
    return character.front() > ' ' && character.front() < 0x7F && !isDigit(character.front()) &&
           !isAsciiLetter(character.front());
  }

  std::optional<CivilDay> readField(std::size_t index, std::string_view rest) {
    if (index == form_.fields.size()) return readEnd(rest);
    const Field& field = form_.fields[index];
    if (field.isName()) {
      for (const Name& name : names_) {
        if (!beginsWithName(rest, name.text)) continue;
        found_.month = name.month;
        if (const auto day = readSeparator(index, rest.substr(name.text.size()))) return day;
      }
    }
    const std::size_t count =
        std::min(static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), isDigit) - rest.begin()),
                 rest.size());
    if (count == 0 || count > (field.unit == Unit::year ? 4 : 2)) return std::nullopt;
    setPart(field.unit, rest.substr(0, count));
    return readSeparator(index, rest.substr(count));
  }

  std::optional<CivilDay> readSeparator(std::size_t index, std::string_view rest) {
    const std::size_t next = index + 1;
    if (next == form_.fields.size()) return readField(next, rest);
    // A form that separates by blanks alone needs one in the text too. Where it has nothing between two parts
    // one of them is a name: digits are read as far as they go, so two numbers never meet here.
    if (!plainTexts_[next].empty() || form_.texts[next].empty()) {
      const auto after = afterFormText(next, rest);
      if (after) {
        if (const auto day = readField(next, *after)) return day;
      }
    }
    const auto after = afterSeparator(rest);
    return after ? readField(next, *after) : std::nullopt;
  }

  std::optional<CivilDay> readEnd(std::string_view rest) const {
    rest = withoutSpaces(rest);
    const auto after = afterFormText(form_.fields.size(), rest);
    if (!rest.empty() && !(after && after->empty())) return std::nullopt;
    return isValid(found_) ? std::optional(found_) : std::nullopt;
  }

  static bool beginsWithName(std::string_view text, std::string_view name) {
    if (text.size() < name.size()) return false;
    return std::equal(name.begin(), name.end(), text.begin(),
                      [](char a, char b) { return lowered(a) == lowered(b); });
  }

  void setPart(Unit unit, std::string_view digits) {
    int number = 0;
    for (const char digit : digits) number = number * 10 + (digit - '0');
    switch (unit) {
      case Unit::day: found_.day = number; break;
      case Unit::month: found_.month = number; break;
      case Unit::year:
        found_.year = digits.size() > 2 ? number : number < 50 ? 2000 + number : 1900 + number;
        break;
    }
  }

  const Form& form_;
  std::array<std::string, 4> plainTexts_;
  std::vector<Name> names_;
  CivilDay found_;
};

/// Exactly `2027-04-10`.
std::optional<CivilDay> dayFromIso(std::string_view text) {
  constexpr std::string_view kShape = "dddd-dd-dd";
  if (text.size() != kShape.size()) return std::nullopt;
  for (std::size_t i = 0; i < kShape.size(); ++i) {
    if (kShape[i] == 'd' ? !isDigit(text[i]) : text[i] != kShape[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t at, std::size_t count) {
    int value = 0;
    for (const char digit : text.substr(at, count)) value = value * 10 + (digit - '0');
    return value;
  };
  const CivilDay day{.year = number(0, 4), .month = number(5, 2), .day = number(8, 2)};
  return isValid(day) ? std::optional(day) : std::nullopt;
}

/// `day` as the form writes it, whether that reads back or not.
std::string writtenText(const CivilDay& day, const Form& form) {
  std::string text = form.texts.front();
  for (std::size_t i = 0; i < form.fields.size(); ++i) {
    text += fieldText(day, form.fields[i], form) + form.texts[i + 1];
  }
  return text;
}

std::optional<CivilDay> dayFromText(std::string_view text, const Form* form) {
  const std::string plainText = plain(text);
  const auto isoDay = dayFromIso(trimmed(plainText));
  if (form == nullptr) return isoDay;
  const auto formDay = Reader(*form).day(plainText);
  // What looks like ISO is ISO, unless it is just what the form writes for another day.
  if (isoDay && formDay != isoDay && !(formDay && writtenText(*formDay, *form) == text)) return isoDay;
  return formDay;
}

}  // namespace

std::string shortDateText(const CivilDay& day, const ShortDateForm& shortForm) {
  if (!isValid(day)) return {};
  const auto form = parsedForm(shortForm);
  if (!form) return isoText(day);
  std::string text = writtenText(day, *form);
  return dayFromText(text, &*form) == day ? text : isoText(day);
}

std::optional<CivilDay> civilDayFromShortText(std::string_view text, const ShortDateForm& shortForm) {
  const auto form = parsedForm(shortForm);
  return dayFromText(text, form ? &*form : nullptr);
}

}  // namespace nascor::foundation
