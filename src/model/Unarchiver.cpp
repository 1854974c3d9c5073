// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/Unarchiver.h"

#include <algorithm>

#include "foundation/Utf8.h"

namespace nascor::model {

using archive::FormatError;
using archive::ObjectValue;
using foundation::Date;
using foundation::Sentence;
using foundation::translatable;

Unarchiver::Unarchiver(std::span<const std::byte> bytes) : size_(bytes.size()), reader_(bytes) {
  facts_.byteOrder = reader_.byteOrder();
}

// In place wherever it is called, the parts of an object stay in registers: a fifteenth of reading a document.
[[gnu::always_inline]] inline ObjectValue Unarchiver::takeObject(Expected& expected) {
  const ObjectValue object = reader_.takeObject();
  const bool isUsual = object.isFresh() && *object.cls.label == expected.fitting;
  if (!isUsual) check(object, expected);
  return object;
}

std::unique_ptr<PatientRecord> Unarchiver::decodeRoot() {
  std::unique_ptr<PatientRecord> patient;
  const ObjectValue root = takeObject(patient_);
  if (!root.isNil()) {
    patient = std::make_unique<PatientRecord>(PatientRecord::initWithCoder(*this));
    reader_.endObject();
  }
  facts_.patientVersion = reader_.versionForClassName(class_name::patientRecord);
  facts_.ncRecordVersion = reader_.versionForClassName(class_name::ncRecord);
  facts_.measurementsVersion = reader_.versionForClassName(class_name::measurementsRecord);
  facts_.trailingBytes = reader_.bytesLeft();
  return patient;
}

std::int64_t Unarchiver::versionForClassName(std::string_view name) const {
  return reader_.versionForClassName(name).value_or(0);
}

std::int64_t Unarchiver::ncRecordVersion() {
  if (!ncRecordVersion_) ncRecordVersion_ = versionForClassName(class_name::ncRecord);
  return *ncRecordVersion_;
}

std::int64_t Unarchiver::decodeInteger() { return reader_.takeInt(); }

std::optional<std::string> Unarchiver::decodeString() {
  const ObjectValue object = takeObject(string_);
  if (object.isNil()) return std::nullopt;
  if (object.isReference()) {
    const auto text = texts_.at(object);
    chargeForCopy(object, text.size());
    return std::string(text);
  }
  const std::optional<std::string_view> text = reader_.takeString();
  if (!text || !foundation::isValidUtf8(*text)) {
    throw FormatError(
        object.offset,
        text ? Sentence("Reading", "expected a string of UTF-8 text, but its bytes are not UTF-8")
             : Sentence("Reading", "expected a string of UTF-8 text, but its bytes are missing"));
  }
  reader_.endObject();
  texts_.keep(object, *text);
  return std::string(*text);
}

std::optional<Date> Unarchiver::decodeDate() {
  const ObjectValue object = takeObject(date_);
  if (object.isNil()) return std::nullopt;
  if (object.isReference()) return dates_.at(object);
  const Date date{reader_.takeDouble()};
  reader_.endObject();
  dates_.keep(object, date);
  return date;
}

std::optional<std::string> Unarchiver::decodeGravidityText() {
  facts_.gravidityText = decodeString();
  return facts_.gravidityText;
}

PatientRecord::Examinations Unarchiver::decodeExaminations() {
  PatientRecord::Examinations examinations;
  const ObjectValue array = takeObject(examinations_);
  if (array.isNil()) {
    ++facts_.missingArrays;
    return examinations;
  }
  // The first array of a file: nothing before it could be referred to.
  std::int32_t left = takeCount();
  // A file may state any count.
  examinations.reserve(std::min(static_cast<std::size_t>(left), size_ / kBytesPerExamination));
  for (; left > 0; --left) examinations.push_back(decodeExamination());
  reader_.endObject();
  return examinations;
}

std::unique_ptr<NCRecord> Unarchiver::decodeExamination() {
  const ObjectValue object = takeObject(examination_);
  if (object.isNil()) archive::refuseFound(object.offset, examination_.wanted, Sentence::verbatim("nil"));
  if (object.isReference()) {
    const NCRecord& shared = *keptExaminations_.at(object);
    chargeForCopy(object, shared.note().value_or("").size() +
                              shared.measurements().size() * sizeof(MeasurementsRecord));
    ++facts_.sharedRecords;
    return std::make_unique<NCRecord>(shared);
  }
  auto examination = std::make_unique<NCRecord>(NCRecord::initWithCoder(*this));
  reader_.endObject();
  keptExaminations_.keep(object, examination.get());
  return examination;
}

std::vector<MeasurementsRecord> Unarchiver::decodeMeasurements() {
  std::vector<MeasurementsRecord> measurements;
  const ObjectValue array = takeObject(measurements_);
  if (array.isNil()) {
    ++facts_.missingArrays;
    return measurements;
  }
  if (array.isReference()) {
    const auto shared = arrays_.at(array);
    chargeForCopy(array, shared.size_bytes());
    ++facts_.sharedRecords;
    return {shared.begin(), shared.end()};
  }
  std::int32_t left = takeCount();
  // A file may state any count. Few have more fetuses than this.
  constexpr std::int32_t kUsual = 5;
  measurements.reserve(static_cast<std::size_t>(std::min(left, kUsual)));
  for (; left > 0; --left) measurements.push_back(decodeMeasurementsRecord());
  reader_.endObject();
  // The elements stay where they are when the vector moves into its examination.
  arrays_.keep(array, measurements);
  return measurements;
}

MeasurementsRecord Unarchiver::decodeMeasurementsRecord() {
  const ObjectValue object = takeObject(measurementsRecord_);
  if (object.isNil())
    archive::refuseFound(object.offset, measurementsRecord_.wanted, Sentence::verbatim("nil"));
  if (object.isReference()) {
    ++facts_.sharedRecords;
    return records_.at(object);
  }
  const MeasurementsRecord record = MeasurementsRecord::initWithCoder(*this);
  reader_.endObject();
  records_.keep(object, record);
  return record;
}

void Unarchiver::check(const ObjectValue& object, Expected& expected) const {
  if (object.isNil()) return;
  if (*object.cls.label != expected.fitting) {
    const auto& names = expected.classNames;
    if (std::ranges::find(names, reader_.classNameOf(object)) == names.end())
      refuse(object, expected, Sentence("Reading", "%1 stands here"));
    expected.fitting = *object.cls.label;
  }
  if (object.isReference() && !object.complete)
    refuse(object, expected, Sentence("Reading", "%1 would contain itself"));
}

void Unarchiver::refuse(const ObjectValue& object, const Expected& expected, const Sentence& reason) const {
  archive::refuse(object.offset, expected.wanted, reason.with(reader_.inWords(object)));
}

void Unarchiver::chargeForCopy(const ObjectValue& reference, std::size_t bytes) {
  constexpr std::size_t kCopiesPerByte = 64;
  copiedBytes_ += bytes;
  if (copiedBytes_ / kCopiesPerByte > size_) {
    const auto sentence =
        Sentence("Reading",
                 "expected a document of a plausible size, but its references to %1 and others "
                 "repeat %2 bytes in a file of %3");
    throw FormatError(reference.offset, sentence.with(reader_.inWords(reference), copiedBytes_, size_));
  }
}

std::int32_t Unarchiver::takeCount() {
  const std::size_t offset = reader_.offset();
  const std::int32_t count = reader_.takeInt();
  if (count < 0) {
    archive::refuseFound(offset, translatable("Reading", "the number of elements of an array"),
                         Sentence::verbatim(std::to_string(count)));
  }
  return count;
}

}  // namespace nascor::model
