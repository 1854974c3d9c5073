// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Biometry.h"
#include "calc/GrowthTable.h"
#include "calc/References.h"
#include "calc/Standards.h"
#include "rows/Columns.h"
#include "rows/RowText.h"

namespace nascor::rows {

enum class Style {
  csv,       ///< RFC 4180, but lines end with a line feed alone
  jsonLines  ///< one JSON object a row
};

/// What one row is made of. Texts live elsewhere, as long as the row is written.
struct Row {
  std::string_view fileName{};  ///< printed where files are named
  std::uint64_t filePlace = 0;  ///< printed where they are counted
  std::size_t examination = 0;  ///< from 0
  std::size_t fetus = 0;        ///< from 0
  std::string_view examDate{};  ///< an ISO day; empty: unknown
  std::string_view edd{};       ///< an ISO day; empty: unknown
  std::optional<std::int64_t> daysToEDD{};
  double age = 0.0;           ///< weeks; 0.0: unknown
  calc::Biometry lengths{};   ///< mm; 0.0: not measured
  std::int64_t standard = 0;  ///< the document's own; may be unknown
  std::string_view referenceID{};
  std::string_view note{};
  std::span<const std::string_view> kept{};  ///< cells of the input, as they came
  /// One line; empty where all is well. A row with an error has its file and the cells of the input, and nothing else.
  std::string_view error{};
};

/// Writes rows of chosen columns. A number is printed by the shortest digits that read back to the same double. A cell is
/// empty (null in JSON) for what was not measured or cannot be computed, for a weight or an age of exactly 0.0, and for
/// what is not finite; a z-score of 0.0 is a number. Unchanged once made, so many threads may write with one.
class RowFormat {
 public:
  struct Settings {
    Style style = Style::csv;
    bool isFixed = false;     ///< one decimal, three for z-scores: C's "%.1f" and "%.3f"
    bool namesFiles = false;  ///< by name, not by place
  };

  RowFormat(std::vector<Column> columns, Settings settings);

  /// Appends the line of the columns' names. JSON Lines have none, and nothing is appended.
  void appendHeader(std::string& out) const;

  /// Appends one line.
  void append(std::string& out, const Row& row) const;

 private:
  /// What a column's cells need.
  struct Cell {
    std::string prefix;  ///< what stands before it
    Column column;
    std::size_t standard =
        0;  ///< of a mean, standard deviation or z-score: the place of its standard in `standards_`
  };
  /// The document's own standard, and each that is named.
  static constexpr std::size_t kMostStandards = 1 + calc::kReferenceCount;
  using Normals = calc::GrowthTable::Normals;

  /// The place of the reference that is meant in a row; nothing for a document's own standard that is unknown.
  static std::optional<std::size_t> placeOf(std::int64_t standard, const Row& row);
  /// NaN where a standard or reference has none.
  Normals normalsBy(std::int64_t standard, const Row& row) const;
  void appendCell(RowText& text, const Cell& cell, const Row& row, std::span<const Normals> normals) const;
  void appendEmpty(RowText& text) const;
  void appendNumber(RowText& text, double value, int decimals) const;
  static void appendInteger(RowText& text, std::int64_t value);
  void appendText(RowText& text, std::string_view value) const;
  void appendWarning(RowText& text, const Row& row) const;

  Settings settings_;
  std::vector<Cell> cells_;
  std::vector<std::int64_t> standards_;  // of the columns, each once
  std::vector<calc::GrowthTable> tables_;
  std::array<calc::ReferenceTable, calc::kGrowthStandardCount> weeks_;  // of one length, by standard
};

/// Appends a cell of CSV: in quotation marks where it holds a comma, a quotation mark or the end of a line.
void appendCsvText(std::string& out, std::string_view text);

}  // namespace nascor::rows
