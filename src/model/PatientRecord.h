// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Clock.h"
#include "foundation/UserDefaults.h"
#include "model/NCRecord.h"
#include "model/PatientValues.h"

namespace nascor::model {

/// One pregnancy: the root of a document.
///
/// Every examination holds one measurements record per fetus, fetus i (from 0) at place i; all operations that
/// change the number of fetuses keep that. A file may break it, and is accepted as it stands. The document keeps the
/// examinations in order of date; this class does not.
class PatientRecord {
 public:
  /// The examinations keep their identity while the array is sorted.
  using Examinations = std::vector<std::unique_ptr<NCRecord>>;

  /// Nothing at all: no examination, zero everywhere. What a file is read into.
  PatientRecord() = default;

  /// A new patient: one fetus, one examination dated now, delivery planned at 40 weeks; the three standards are the
  /// user's present preferences.
  PatientRecord(const foundation::Clock& clock, const foundation::UserDefaults& defaults);

  /// The mother's identifier. Missing only in a file that says so.
  const std::optional<std::string>& maternalIDString() const { return values_.maternalIDString; }
  void setMaternalIDString(std::optional<std::string> identifier) {
    values_.maternalIDString = std::move(identifier);
  }

  /// The estimated date of delivery; nothing when it is not known.
  const std::optional<foundation::Date>& edd() const { return values_.edd; }
  void setEDD(std::optional<foundation::Date> edd) { values_.edd = edd; }

  /// The live array: callers insert, remove, sort and index it.
  Examinations& ncRecordsArray() { return ncRecordsArray_; }
  const Examinations& ncRecordsArray() const { return ncRecordsArray_; }

  /// Identifiers of the growth standard (calc/Standards.h), the weight formula (calc/FetalWeight.h) and the formula for
  /// the crown-rump length (calc/Dating.h). Unknown ones are kept unchanged.
  std::int64_t standard() const { return values_.standard; }
  void setStandard(std::int64_t standard) { values_.standard = standard; }
  std::int64_t fetalWeightStandard() const { return values_.fetalWeightStandard; }
  void setFetalWeightStandard(std::int64_t standard) { values_.fetalWeightStandard = standard; }
  std::int64_t crlStandard() const { return values_.crlStandard; }
  void setCRLStandard(std::int64_t standard) { values_.crlStandard = standard; }

  std::int64_t numberOfFetuses() const { return values_.numberOfFetuses; }
  void setNumberOfFetuses(std::int64_t number) { values_.numberOfFetuses = number; }

  /// The gestation, in weeks, of the planned delivery, to which measurements are projected.
  double extrapolatedGestation() const { return values_.extrapolatedGestation; }
  void setExtrapolatedGestation(double weeks) { values_.extrapolatedGestation = weeks; }

  /// The number of pregnancies of the mother, this one included.
  std::int64_t gravida() const { return values_.gravida; }
  void setGravida(std::int64_t gravida) { values_.gravida = gravida; }

  /// All of the values above.
  const PatientValues& values() const { return values_; }
  PatientValues& values() { return values_; }

  /// A copy of the values alone.
  PatientRecord withoutExaminations() const;
  /// Appends an examination dated now with `fetuses` records (one when fewer than two). Does not sort.
  void addNCRecordWithNumberOfFetuses(std::int64_t fetuses, const foundation::Clock& clock);
  /// Removes an examination; the caller keeps the last one. Throws RangeError.
  void deleteNCRecordWithIndex(std::uint64_t index);
  /// One fetus more, not yet measured, in every examination.
  void addFetus();
  /// One fetus fewer: fetus `fetus` leaves every examination, later ones move down. The caller keeps the last one.
  /// Throws RangeError, and changes nothing, when an examination has no such fetus.
  void deleteFetus(std::int64_t fetus);

  void encodeWithCoder(Archiver& coder) const;
  /// Reads class versions 0 to 7; a later one is read as 7.
  static PatientRecord initWithCoder(Unarchiver& coder);

 private:
  PatientValues values_;
  Examinations ncRecordsArray_;
};

/// The gravidity that files of class versions before 7 keep as text. Letters, then punctuation, are trimmed from both
/// ends; a text that needed no trimming is its leading whole number (0 without digits), any other counts as a first
/// pregnancy, and so does a missing text.
std::int64_t gravidaFromOldText(const std::optional<std::string>& text);

}  // namespace nascor::model
