// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Clock.h"
#include "foundation/Date.h"
#include "model/MeasurementsRecord.h"

namespace nascor::model {

/// One examination: a note, a date, and the measurements of each fetus.
class NCRecord {
 public:
  /// Nothing at all: no date, no measurements. What a file is read into.
  NCRecord() = default;

  /// A new examination: an empty note, dated now, one fetus not yet measured.
  explicit NCRecord(const foundation::Clock& clock);

  /// Missing only in a file that says so.
  const std::optional<std::string>& note() const { return itsNote_; }
  void setNote(std::optional<std::string> note) { itsNote_ = std::move(note); }

  const std::optional<foundation::Date>& examDate() const { return examDate_; }
  void setExamDate(std::optional<foundation::Date> examDate) { examDate_ = examDate; }

  /// Appends a fetus that is not yet measured.
  void addMeasurementsRecord();
  /// Removes a fetus; later ones move down. Throws RangeError.
  void deleteMeasurementsRecord(std::int64_t fetus);
  /// The stored record of a fetus, counted from 0. Throws RangeError.
  MeasurementsRecord& measurementsForFetus(std::int64_t fetus);
  const MeasurementsRecord& measurementsForFetus(std::int64_t fetus) const;

  /// The stored measurements, by fetus. A file may hold more or fewer than the patient has fetuses.
  std::vector<MeasurementsRecord>& measurements() { return measurements_; }
  const std::vector<MeasurementsRecord>& measurements() const { return measurements_; }

  /// Order by date, the earlier first. Examinations without a date (or with one that is not a number) come before all
  /// others and are equal among themselves.
  std::weak_ordering compare(const NCRecord& other) const;

  void encodeWithCoder(Archiver& coder) const;
  /// Class version 0 holds the four lengths of a single fetus in place of the array.
  static NCRecord initWithCoder(Unarchiver& coder);

 private:
  std::optional<std::string> itsNote_;
  std::optional<foundation::Date> examDate_;
  std::vector<MeasurementsRecord> measurements_;
};

}  // namespace nascor::model
