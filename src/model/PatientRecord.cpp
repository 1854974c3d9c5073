// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientRecord.h"

#include "foundation/CharacterSets.h"
#include "foundation/ConvertInteger.h"
#include "foundation/LeadingInteger.h"
#include "foundation/RangeError.h"
#include "model/Archiver.h"
#include "model/Unarchiver.h"

namespace nascor::model {

using foundation::Clock;
using foundation::integerForKey;
using foundation::UserDefaults;
namespace defaults_key = foundation::defaults_key;

PatientRecord::PatientRecord(const Clock& clock, const UserDefaults& defaults) {
  setMaternalIDString("");
  setGravida(0);
  setEDD(std::nullopt);
  setNumberOfFetuses(1);
  setExtrapolatedGestation(40.0);
  addNCRecordWithNumberOfFetuses(1, clock);
  setStandard(integerForKey(defaults, defaults_key::standard));
  setFetalWeightStandard(integerForKey(defaults, defaults_key::estimatedFetalWeightStandard));
  setCRLStandard(integerForKey(defaults, defaults_key::crlStandard));
}

void PatientRecord::addNCRecordWithNumberOfFetuses(std::int64_t fetuses, const Clock& clock) {
  auto examination = std::make_unique<NCRecord>(clock);
  for (std::int64_t fetus = 1; fetus < fetuses; ++fetus) examination->addMeasurementsRecord();
  ncRecordsArray_.push_back(std::move(examination));
}

void PatientRecord::deleteNCRecordWithIndex(std::uint64_t index) {
  foundation::checkedAt(ncRecordsArray_, index);
  ncRecordsArray_.erase(ncRecordsArray_.begin() + static_cast<std::ptrdiff_t>(index));
}

void PatientRecord::addFetus() {
  setNumberOfFetuses(numberOfFetuses() + 1);
  for (const auto& examination : ncRecordsArray_) examination->addMeasurementsRecord();
}

void PatientRecord::deleteFetus(std::int64_t fetus) {
  // All or nothing: a file may hold an examination without this fetus.
  for (const auto& examination : ncRecordsArray_) static_cast<void>(examination->measurementsForFetus(fetus));
  setNumberOfFetuses(numberOfFetuses() - 1);
  for (const auto& examination : ncRecordsArray_) examination->deleteMeasurementsRecord(fetus);
}

PatientRecord PatientRecord::withoutExaminations() const {
  PatientRecord record;
  record.values_ = values_;
  return record;
}

void PatientRecord::encodeWithCoder(Archiver& coder) const {
  coder.encodeString(values_.maternalIDString);
  coder.encodeString(std::string(class_version::gravidityPlaceholder));
  coder.encodeDate(values_.edd);
  coder.encodeExaminations(ncRecordsArray_);
  coder.encodeInteger(values_.standard);
  coder.encodeInteger(values_.fetalWeightStandard);
  coder.encodeInteger(values_.numberOfFetuses);
  coder.encodeFloat(values_.extrapolatedGestation);
  coder.encodeInteger(values_.crlStandard);
  coder.encodeInteger(values_.gravida);
}

PatientRecord PatientRecord::initWithCoder(Unarchiver& coder) {
  const std::int64_t version = coder.versionForClassName(class_name::patientRecord);
  const auto decodeStandard = [&] {
    return version >= 4 ? coder.decodeInteger() : foundation::truncatedToInteger(coder.decodeFloat());
  };

  PatientRecord patient;
  patient.setMaternalIDString(coder.decodeString());
  const std::optional<std::string> gravidityText = coder.decodeGravidityText();
  patient.setEDD(coder.decodeDate());
  patient.ncRecordsArray_ = coder.decodeExaminations();
  if (version >= 2) patient.setStandard(decodeStandard());
  if (version >= 3) patient.setFetalWeightStandard(decodeStandard());
  patient.setNumberOfFetuses(version >= 4 ? coder.decodeInteger() : 1);
  patient.setExtrapolatedGestation(version >= 5 ? coder.decodeFloat() : 40.0);
  if (version >= 6) patient.setCRLStandard(coder.decodeInteger());
  patient.setGravida(version >= class_version::patientWithGravida ? coder.decodeInteger()
                                                                  : gravidaFromOldText(gravidityText));
  return patient;
}

std::int64_t gravidaFromOldText(const std::optional<std::string>& text) {
  if (!text) return 1;
  const std::string_view withoutLetters = foundation::trimmed(*text, foundation::isLetter);
  const std::string_view cleaned = foundation::trimmed(withoutLetters, foundation::isPunctuation);
  return cleaned == *text ? foundation::leadingInteger(cleaned) : 1;
}

}  // namespace nascor::model
