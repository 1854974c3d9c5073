// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "summary/Summary.h"

namespace nascor::summary {

// Figures that stand under each other by their decimal sign.

/// The bytes of `figure` before its decimal sign; all of them without one.
constexpr std::size_t lengthOfWhole(std::string_view figure) {
  const std::size_t sign = figure.find_first_of(".,");
  return sign == std::string_view::npos ? figure.size() : sign;
}

/// For each column of the table the most digits that a figure of it has behind its decimal sign; 0 for a column of texts.
std::vector<std::size_t> decimalsOfColumns(const Table& table);

/// What takes the room of the decimal sign and the digits that `figure` lacks of `decimals`: blanks of their widths.
std::string paddingBehind(std::string_view figure, std::size_t decimals);

}  // namespace nascor::summary
