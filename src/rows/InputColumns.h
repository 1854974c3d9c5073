// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Sentence.h"
#include "rows/CsvReader.h"

namespace nascor::rows {

// What a table from elsewhere says, and the words for what it does not: for every reader of tables alike.

/// The header of a table does not say where that is which is looked for, or names a column as the output does.
class HeaderError : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

/// A column that is looked for, under either name.
struct InputColumn {
  std::string_view name;
  std::string_view shortName;
};

/// The age in weeks, then the four lengths in mm in the order of `calc::kMeasurements`.
inline constexpr std::array<InputColumn, 5> kMeasuredColumns{
    {{"ga_weeks", "ga"}, {"bpd_mm", "bpd"}, {"hc_mm", "hc"}, {"ac_mm", "ac"}, {"fl_mm", "fl"}}};

/// Where each of `columns` stands in the header; nothing for one that does not. Throws HeaderError for one that stands there
/// twice, or under both names.
std::vector<std::optional<std::size_t>> placesOf(std::span<const InputColumn> columns,
                                                 std::span<const CsvCell> header);

/// The number in a cell that holds an age or a length. 0.0, not measured, for an empty cell, blanks, zeros, `NA` and `nan`
/// in any letters, with or without a sign. Blanks around a number, a plus sign, exponents, `.5` and `5.` are fine.
/// Nothing for any other text: units, commas, hexadecimals, infinities, what a double cannot hold.
inline std::optional<double> measuredFromText(std::string_view text);

/// The same for digits with at most one point, as machines print lengths: the nearest double. Nothing for any other text, and
/// for one of more than 15 characters.
std::optional<double> plainNumber(std::string_view text);
/// The same for any text, and slower.
std::optional<double> measuredFromOtherText(std::string_view text);

inline std::optional<double> measuredFromText(std::string_view text) {
  const auto number = plainNumber(text);
  return number ? number : measuredFromOtherText(text);
}

/// A row that is shorter or longer than its header.
foundation::Sentence cellCountSentence(std::size_t header, std::size_t row);

/// What `measuredFromText` makes nothing of.
foundation::Sentence numberSentence(const std::string& column, const std::string& text);

/// The text for a message: in one line, no more than its beginning, in quotation marks.
std::string inQuotes(const std::string& text);

}  // namespace nascor::rows
