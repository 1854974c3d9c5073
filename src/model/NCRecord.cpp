// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/NCRecord.h"

#include <cmath>

#include "foundation/RangeError.h"
#include "model/Archiver.h"
#include "model/Unarchiver.h"

namespace nascor::model {

NCRecord::NCRecord(const foundation::Clock& clock) {
  setNote("");
  setExamDate(clock.now());
  addMeasurementsRecord();
}

void NCRecord::addMeasurementsRecord() { measurements_.emplace_back(); }

void NCRecord::deleteMeasurementsRecord(std::int64_t fetus) {
  foundation::checkedAt(measurements_, fetus);
  measurements_.erase(measurements_.begin() + fetus);
}

MeasurementsRecord& NCRecord::measurementsForFetus(std::int64_t fetus) {
  return foundation::checkedAt(measurements_, fetus);
}

const MeasurementsRecord& NCRecord::measurementsForFetus(std::int64_t fetus) const {
  return foundation::checkedAt(measurements_, fetus);
}

std::weak_ordering NCRecord::compare(const NCRecord& other) const {
  const auto isDated = [](const NCRecord& record) {
    return record.examDate_ && !std::isnan(record.examDate_->secondsSince2001);
  };
  if (isDated(*this) != isDated(other)) {
    return isDated(other) ? std::weak_ordering::less : std::weak_ordering::greater;
  }
  if (!isDated(*this)) return std::weak_ordering::equivalent;
  const double mine = examDate_->secondsSince2001;
  const double others = other.examDate_->secondsSince2001;
  if (mine < others) return std::weak_ordering::less;
  return mine > others ? std::weak_ordering::greater : std::weak_ordering::equivalent;
}

void NCRecord::encodeWithCoder(Archiver& coder) const {
  coder.encodeString(itsNote_);
  coder.encodeDate(examDate_);
  coder.encodeMeasurements(measurements_);
}

NCRecord NCRecord::initWithCoder(Unarchiver& coder) {
  NCRecord record;
  record.itsNote_ = coder.decodeString();
  record.examDate_ = coder.decodeDate();
  if (coder.ncRecordVersion() != 0) {
    record.measurements_ = coder.decodeMeasurements();
  } else {
    record.measurements_.push_back(MeasurementsRecord::initWithCoder(coder));
  }
  return record;
}

}  // namespace nascor::model
