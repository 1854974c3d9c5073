// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::rows {

/// What was read is no CSV. Reading cannot go on: where the next record begins is not known.
class CsvError : public foundation::SpokenError {
 public:
  CsvError(std::uint64_t line, foundation::Sentence sentence)
      : SpokenError(std::move(sentence)), line_(line) {}

  /// The physical line, from 1.
  std::uint64_t line() const { return line_; }

 private:
  std::uint64_t line_;
};

/// One cell of a record.
struct CsvCell {
  std::string_view text;  ///< as it came, with its quotation marks
  bool isQuoted = false;
  bool hasMarks = false;  ///< not quoted, and holds a quotation mark or a carriage return
};

/// What the cell says: without quotation marks around it, those within it single.
std::string textOf(const CsvCell& cell);

/// Appends the cell to another record: as it came, in quotation marks where it needs some and has none.
void appendCell(std::string& out, const CsvCell& cell);

/// Reads records of CSV (RFC 4180) from bytes that come piece by piece; keeps no more of them than one record and one
/// piece. Lines end with LF or CR LF. A byte order mark at the start and wholly empty lines are passed over. A cell that
/// does not begin with a quotation mark may hold one.
class CsvReader {
 public:
  enum class Next {
    record,  ///< `cells` has one
    more,    ///< `read` or `finish` comes next
    end
  };

  /// The next piece. Cells that were read before are gone.
  void read(std::span<const char> piece);
  /// There are no more pieces.
  void finish() { isFinished_ = true; }

  /// Throws CsvError for text behind a closing quotation mark, for one that never closes, and for a record longer than
  /// `kLongestRecord`.
  Next next();

  /// The record; valid until `next` or `read`.
  std::span<const CsvCell> cells() const { return cells_; }
  /// The physical line on which it begins, from 1.
  std::uint64_t line() const { return line_; }

  static constexpr std::size_t kLongestRecord = std::size_t{1} << 22;

 private:
  struct Found;

  bool readPlainRecord();
  bool readRecord();
  std::size_t endOfQuoted(std::size_t begin) const;
  std::optional<Found> quotedCell(std::size_t begin, std::uint64_t line) const;
  std::optional<Found> plainCell(std::size_t begin) const;

  std::string bytes_;
  std::size_t at_ = 0;  // where the next record begins
  std::uint64_t line_ = 1;
  std::uint64_t linesRead_ = 0;
  std::vector<CsvCell> cells_;
  bool isStarted_ = false;
  bool isFinished_ = false;
};

}  // namespace nascor::rows
