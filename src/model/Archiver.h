// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "archive/TypedStreamWriter.h"
#include "model/ClassNames.h"
#include "model/PatientRecord.h"

namespace nascor::model {

/// Encodes the records of a document, value by value in the order of the file.
///
/// All empty strings of a document are one object, written once and referred to; every other string, date, array and
/// record is written in full. The same patient therefore always gives the same bytes.
class Archiver {
 public:
  Archiver();

  void encodeRoot(const PatientRecord& patient);
  /// The whole file. Call it last.
  std::vector<std::byte> finish() &&;

  void encodeInteger(std::int64_t value);             ///< its low 32 bits
  void encodeFloat(double value);                     ///< the nearest single-precision number
  void encodeLengths(const calc::Biometry& lengths);  ///< the same of each of the four
  void encodeString(const std::optional<std::string_view>& text);
  void encodeDate(const std::optional<foundation::Date>& date);
  void encodeExaminations(const PatientRecord::Examinations& examinations);
  void encodeMeasurements(const std::vector<MeasurementsRecord>& measurements);

 private:
  archive::TypedStreamWriter writer_;
  // The classes of which a document has many objects.
  archive::WrittenClass string_;
  archive::WrittenClass date_;
  archive::WrittenClass array_;
  archive::WrittenClass examination_;
  archive::WrittenClass measurements_;
  std::optional<archive::Label> emptyString_;
};

}  // namespace nascor::model
