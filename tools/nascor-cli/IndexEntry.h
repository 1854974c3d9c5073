// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/Standards.h"
#include "foundation/Sentence.h"
#include "model/PatientRecord.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

/// What an index keeps of one fetus at one examination.
struct IndexedRow {
  std::int64_t examination = 0;  ///< from 0
  std::int64_t fetus = 0;        ///< from 0
  std::string examDate;          ///< an ISO day; empty: unknown
  double age = 0.0;              ///< weeks; 0.0: unknown
  calc::Biometry lengths{};      ///< mm; 0.0: not measured
  double weight = 0.0;           ///< grams, by the formula of the document; 0.0: unknown
  /// Of the four lengths, by the standard of the document; NaN where there is none.
  std::array<double, 4> zScores{};
  std::string note;
};

/// What an index keeps of one document.
struct IndexEntry {
  std::optional<foundation::Sentence> fault{};  ///< why there is nothing behind it
  bool isFileAtFault = false;                   ///< the file could not be read; what it holds may be in order
  std::optional<std::string> referenceID{};
  std::string edd;  ///< an ISO day; empty: unknown
  std::int64_t standard = 0;
  std::int64_t formula = 0;
  std::int64_t fetuses = 0;
  std::string lastExam;  ///< an ISO day; empty: none is dated
  double lastAge = 0.0;  ///< weeks; 0.0: unknown
  /// The least, over the fetuses, of the z-score of the last AC that was measured.
  std::optional<double> acZ{};
  std::vector<IndexedRow> rows{};
};

/// Reads documents for an index. Unchanged once made, so many threads may read with one.
class IndexReader {
 public:
  IndexReader();
  IndexEntry entryOf(const std::string& path) const;

 private:
  void describe(IndexEntry& entry, const model::PatientRecord& patient) const;
  std::array<double, 4> zScores(const calc::Biometry& lengths, double age, std::int64_t standard) const;

  posix::PosixCalendar calendar_;
  /// By standard and measurement.
  std::array<std::array<calc::ReferenceTable, 4>, calc::kGrowthStandardCount> tables_;
};

}  // namespace nascor::cli
