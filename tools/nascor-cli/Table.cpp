// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Table.h"

#include <algorithm>

#include "foundation/Utf8.h"

namespace nascor::cli {

using foundation::codePoints;

std::string inCapitals(std::string_view text) {
  std::string capitals(text);
  for (char& letter : capitals) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return capitals;
}

void Table::print(Console& console) const {
  constexpr std::size_t kGap = 2;
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    widths.push_back(codePoints(columns_[i].title));
    for (const auto& row : rows_) widths[i] = std::max(widths[i], codePoints(row[i]));
  }

  const auto printRow = [&](const auto& textOf) {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const std::string& text = textOf(i);
      const std::string blanks(widths[i] - codePoints(text), ' ');
      if (i > 0) line.append(kGap, ' ');
      line += columns_[i].align == Align::right ? blanks + text : text + blanks;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    console.out() += line;
    console.lineDone();
  };

  printRow([&](std::size_t i) -> const std::string& { return columns_[i].title; });
  for (const auto& row : rows_) {
    printRow([&](std::size_t i) -> const std::string& { return row[i]; });
  }
}

}  // namespace nascor::cli
