// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <vector>

namespace nascor::tests {

/// The records of a CSV text, read by the letter of RFC 4180; lines must end with a line feed alone.
inline std::vector<std::vector<std::string>> recordsOf(const std::string& text) {
  std::vector<std::vector<std::string>> records;
  std::vector<std::string> record;
  std::string cell;
  bool isQuoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (isQuoted) {
      if (character != '"') {
        cell += character;
      } else if (i + 1 < text.size() && text[i + 1] == '"') {
        cell += text[++i];
      } else {
        isQuoted = false;
      }
    } else if (character == '"' && cell.empty()) {
      isQuoted = true;
    } else if (character == ',' || character == '\n') {
      record.push_back(std::move(cell));
      cell.clear();
      if (character == '\n') {
        records.push_back(std::move(record));
        record.clear();
      }
    } else {
      cell += character;
    }
  }
  return records;
}

using CsvRow = std::map<std::string, std::string>;

/// The rows behind the header, by the names of the columns.
inline std::vector<CsvRow> rowsOf(const std::string& text) {
  const auto records = recordsOf(text);
  std::vector<CsvRow> rows;
  for (std::size_t i = 1; i < records.size(); ++i) {
    CsvRow row;
    for (std::size_t column = 0; column < records[0].size(); ++column) {
      row[records[0][column]] = records[i].at(column);
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace nascor::tests
