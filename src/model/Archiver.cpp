// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/Archiver.h"

#include "foundation/ConvertInteger.h"

namespace nascor::model {
namespace {

using archive::ClassDescription;

constexpr ClassDescription kRootObject{class_name::rootObject, 0};
constexpr ClassDescription kString{class_name::string, 1, &kRootObject};
constexpr ClassDescription kDate{class_name::date, 0, &kRootObject};
constexpr ClassDescription kArray{class_name::array, 0, &kRootObject};
constexpr ClassDescription kMutableArray{class_name::mutableArray, 0, &kArray};
constexpr ClassDescription kPatient{class_name::patientRecord, class_version::patientRecord, &kRootObject};
constexpr ClassDescription kExamination{class_name::ncRecord, class_version::ncRecord, &kRootObject};
constexpr ClassDescription kMeasurements{class_name::measurementsRecord, class_version::measurementsRecord,
                                         &kRootObject};

}  // namespace

Archiver::Archiver()
    : string_{&kString},
      date_{&kDate},
      array_{&kMutableArray},
      examination_{&kExamination},
      measurements_{&kMeasurements} {}

void Archiver::encodeRoot(const PatientRecord& patient) {
  writer_.putObject(kPatient);
  patient.encodeWithCoder(*this);
  writer_.endObject();
}

std::vector<std::byte> Archiver::finish() && { return std::move(writer_).finish(); }

void Archiver::encodeInteger(std::int64_t value) { writer_.putInt(foundation::low32Bits(value)); }

void Archiver::encodeFloat(double value) { writer_.putFloat(foundation::narrowedToFloat(value)); }

void Archiver::encodeLengths(const calc::Biometry& lengths) {
  using foundation::narrowedToFloat;
  writer_.putFloats(narrowedToFloat(lengths.bpd), narrowedToFloat(lengths.hc), narrowedToFloat(lengths.ac),
                    narrowedToFloat(lengths.fl));
}

void Archiver::encodeString(const std::optional<std::string_view>& text) {
  if (!text) {
    writer_.putNil();
  } else if (text->empty() && emptyString_) {
    writer_.putReference(*emptyString_);
  } else {
    const archive::Label label = writer_.putObject(string_);
    writer_.putString(*text);
    writer_.endObject();
    if (text->empty()) emptyString_ = label;
  }
}

void Archiver::encodeDate(const std::optional<foundation::Date>& date) {
  if (!date) {
    writer_.putNil();
    return;
  }
  writer_.putObject(date_);
  writer_.putDouble(date->secondsSince2001);
  writer_.endObject();
}

void Archiver::encodeExaminations(const PatientRecord::Examinations& examinations) {
  writer_.putObject(array_);
  encodeInteger(static_cast<std::int64_t>(examinations.size()));
  for (const auto& examination : examinations) {
    writer_.putObject(examination_);
    examination->encodeWithCoder(*this);
    writer_.endObject();
  }
  writer_.endObject();
}

void Archiver::encodeMeasurements(const std::vector<MeasurementsRecord>& measurements) {
  writer_.putObject(array_);
  encodeInteger(static_cast<std::int64_t>(measurements.size()));
  for (const MeasurementsRecord& record : measurements) {
    writer_.putObject(measurements_);
    record.encodeWithCoder(*this);
    writer_.endObject();
  }
  writer_.endObject();
}

}  // namespace nascor::model
