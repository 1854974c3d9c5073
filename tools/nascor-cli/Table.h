// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli_commands/Console.h"

namespace nascor::cli {

/// ASCII letters as capitals: "bpd" is "BPD" in titles.
std::string inCapitals(std::string_view text);

/// Columns for people to read: padded with blanks, two between them, the titles first. Widths count code points.
class Table {
 public:
  enum class Align { left, right };
  struct Column {
    std::string title;
    Align align = Align::left;
  };

  explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// One text for each column.
  void addRow(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

  /// Prints titles and rows, without blanks at the ends of lines.
  void print(Console& console) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace nascor::cli
