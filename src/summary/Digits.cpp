// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Digits.h"

#include <algorithm>

namespace nascor::summary {

namespace {

std::size_t digitsBehind(std::string_view figure) {
  const std::size_t whole = lengthOfWhole(figure);
  return whole == figure.size() ? 0 : figure.size() - whole - 1;
}

}  // namespace

std::vector<std::size_t> decimalsOfColumns(const Table& table) {
  std::vector<std::size_t> decimals(table.columns.size());
  for (const Row& row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      if (table.columns[i].isNumber) decimals[i] = std::max(decimals[i], digitsBehind(row.cells[i].text));
    }
  }
  return decimals;
}

std::string paddingBehind(std::string_view figure, std::size_t decimals) {
  constexpr std::string_view kPunctuationSpace = "\u2008";
  constexpr std::string_view kFigureSpace = "\u2007";
  const std::size_t digits = digitsBehind(figure);
  std::string padding;
  if (digits == 0 && decimals > 0) padding += kPunctuationSpace;
  for (std::size_t i = digits; i < decimals; ++i) padding += kFigureSpace;
  return padding;
}

}  // namespace nascor::summary
