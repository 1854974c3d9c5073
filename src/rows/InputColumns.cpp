// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/InputColumns.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "foundation/Utf8.h"

namespace nascor::rows {

using foundation::Sentence;

namespace {

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isNan(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return std::ranges::equal(text, std::string_view("nan"),
                            [](char each, char small) { return (each | 0x20) == small; });
}

/// Whether a number that no double can hold lies next to zero.
bool isTiny(std::string_view number) {
  const std::size_t exponent = number.find_first_of("eE");
  return exponent == std::string_view::npos ? number.find_first_of("123456789") > number.find('.')
                                            : number.substr(exponent + 1).starts_with('-');
}

/// The beginning of a text of any length, for a message.
std::string shown(const std::string& text) {
  constexpr std::size_t kMost = 40;
  if (text.size() <= kMost) return foundation::oneLine(text);
  return foundation::oneLine(std::string_view(text).substr(0, foundation::lengthWithin(text, kMost))) + "...";
}

}  // namespace

std::vector<std::optional<std::size_t>> placesOf(std::span<const InputColumn> columns,
                                                 std::span<const CsvCell> header) {
  std::vector<std::optional<std::size_t>> places(columns.size());
  std::string quoted;
  for (std::size_t place = 0; place < header.size(); ++place) {
    const CsvCell& cell = header[place];
    if (cell.text.empty()) continue;
    const std::string_view name = cell.isQuoted ? quoted = textOf(cell) : cell.text;
    const auto column = std::ranges::find_if(
        columns, [&](const InputColumn& each) { return name == each.name || name == each.shortName; });
    if (column == columns.end()) continue;
    auto& found = places[static_cast<std::size_t>(column - columns.begin())];
    if (found) {
      const std::string first = textOf(header[*found]);
      throw HeaderError(first == name
                            ? Sentence("Reading", "the column %1 stands twice in the header").with(first)
                            : Sentence("Reading", "the columns %1 and %2 are one").with(first, name));
    }
    found = place;
  }
  return places;
}

std::optional<double> plainNumber(std::string_view text) {
  // Both whole numbers of the quotient are doubles, so that its one rounding is to the nearest.
  constexpr std::size_t kMostDigits = 15;
  static constexpr std::array<double, kMostDigits + 1> kPowersOfTen{
      1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (text.size() > kMostDigits) return std::nullopt;
  std::uint64_t digits = 0;
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto takeDigits = [&] {
    for (; at != end && *at >= '0' && *at <= '9'; ++at)
      digits = 10 * digits + static_cast<unsigned>(*at - '0');
  };
  takeDigits();
  const char* const point = at;
  if (at != end && *at == '.') ++at;
  const char* const fraction = at;
  takeDigits();
  if (at != end || (point == text.data() && fraction == end)) return std::nullopt;
  return static_cast<double>(digits) / kPowersOfTen[static_cast<std::size_t>(end - fraction)];
}

std::optional<double> measuredFromOtherText(std::string_view text) {
  text = withoutBlanks(text);
  if (text.empty() || text == "NA" || isNan(text)) return 0.0;
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0.0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (end != last) return std::nullopt;
  if (error == std::errc::result_out_of_range && isTiny(text)) return 0.0;
  // "inf" is one of the texts that are read here.
  if (error != std::errc() || !std::isfinite(value)) return std::nullopt;
  return value;
}

Sentence cellCountSentence(std::size_t header, std::size_t row) {
  return Sentence("Reading", "the header has %1 cells, this row %2").with(header, row);
}

Sentence numberSentence(const std::string& column, const std::string& text) {
  //: %1 is a column, %2 what stands in it, in quotation marks.
  return Sentence("Reading", "%1: %2 is no number").with(column, inQuotes(text));
}

std::string inQuotes(const std::string& text) { return '"' + shown(text) + '"'; }

}  // namespace nascor::rows
