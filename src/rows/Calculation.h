// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Sentence.h"
#include "rows/Columns.h"
#include "rows/CsvReader.h"
#include "rows/InputColumns.h"
#include "rows/RowFormat.h"

namespace nascor::rows {

/// A column was asked for that there is not.
class UnknownColumn : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

/// Weights, means, standard deviations and z-scores beside the columns of a CSV table: each record in, a row out.
class Calculation {
 public:
  /// `names` are the columns that are wanted, of the input or computed, in order; without them all of the input and then
  /// those of the choice. Throws HeaderError and UnknownColumn.
  Calculation(std::span<const CsvCell> header, const Choice& choice,
              const std::optional<std::vector<std::string>>& names, bool isFixed);

  /// Names of columns that the input lacks, as they could have been: "bpd_mm or bpd". What they hold was never measured.
  std::vector<foundation::Sentence> missingColumns() const;

  void appendHeader(std::string& out) const { format_.appendHeader(out); }

  /// Appends the row of a record. What is wrong with the record; nothing where all is well. Then nothing is
  /// computed, and the row says it too, in English.
  std::optional<foundation::Sentence> append(std::string& out, std::span<const CsvCell> record);

 private:
  /// Where the columns of `kMeasuredColumns` stand in the input.
  using Places = std::vector<std::optional<std::size_t>>;

  static Places measuredPlaces(std::span<const CsvCell> header);
  static std::vector<Column> chosenColumns(const std::vector<std::string>& inputNames,
                                           std::span<const CsvCell> header, const Choice& choice,
                                           const std::optional<std::vector<std::string>>& names);
  std::optional<foundation::Sentence> read(std::span<const CsvCell> record, Row& row) const;

  std::vector<std::string> inputNames_;
  Places places_;
  std::vector<Column> columns_;
  RowFormat format_;
  std::vector<std::string_view> kept_;
  std::vector<std::string> quoted_;  // cells that came without the quotation marks that they need
};

}  // namespace nascor::rows
