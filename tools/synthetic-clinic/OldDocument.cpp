// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "synthetic_clinic/OldDocument.h"

#include "archive/TypedStreamWriter.h"
#include "foundation/ConvertInteger.h"
#include "model/ClassNames.h"

namespace nascor::clinic {

namespace {

using archive::ClassDescription;
namespace class_name = model::class_name;

constexpr ClassDescription kRoot{class_name::rootObject, 0};
constexpr ClassDescription kString{class_name::string, 1, &kRoot};
constexpr ClassDescription kDate{class_name::date, 0, &kRoot};
constexpr ClassDescription kArray{class_name::array, 0, &kRoot};
constexpr ClassDescription kMutableArray{class_name::mutableArray, 0, &kArray};
constexpr ClassDescription kMeasurements{class_name::measurementsRecord, 0, &kRoot};

class OldArchiver {
 public:
  explicit OldArchiver(std::int64_t version) : version_(version) {}

  std::vector<std::byte> archived(const model::PatientRecord& patient) && {
    const ClassDescription patientClass{class_name::patientRecord, version_, &kRoot};
    writer_.putObject(patientClass);
    text(patient.maternalIDString());
    const bool hasGravida = version_ >= model::class_version::patientWithGravida;
    text(hasGravida ? std::string(model::class_version::gravidityPlaceholder)
                    : std::to_string(patient.gravida()));
    date(patient.edd());
    examinations(patient);
    if (version_ >= 2) standard(patient.standard());
    if (version_ >= 3) standard(patient.fetalWeightStandard());
    if (version_ >= 4) integer(patient.numberOfFetuses());
    if (version_ >= 5) writer_.putFloat(foundation::narrowedToFloat(patient.extrapolatedGestation()));
    if (version_ >= 6) integer(patient.crlStandard());
    if (hasGravida) integer(patient.gravida());
    writer_.endObject();
    return std::move(writer_).finish();
  }

 private:
  void integer(std::int64_t value) { writer_.putInt(foundation::low32Bits(value)); }
  void standard(std::int64_t value) {
    version_ >= 4 ? integer(value) : writer_.putFloat(static_cast<float>(value));
  }

  void text(const std::optional<std::string>& value) {
    if (!value) return writer_.putNil();
    writer_.putObject(kString);
    writer_.putString(*value);
    writer_.endObject();
  }

  void date(const std::optional<foundation::Date>& value) {
    if (!value) return writer_.putNil();
    writer_.putObject(kDate);
    writer_.putDouble(value->secondsSince2001);
    writer_.endObject();
  }

  void lengths(const model::MeasurementsRecord& record) {
    for (const double length : {record.bpd(), record.hc(), record.ac(), record.fl()}) {
      writer_.putFloat(foundation::narrowedToFloat(length));
    }
  }

  void examinations(const model::PatientRecord& patient) {
    const bool hasArray = version_ >= 4;
    const ClassDescription examinationClass{class_name::ncRecord, hasArray ? 1 : 0, &kRoot};
    writer_.putObject(kMutableArray);
    integer(static_cast<std::int64_t>(patient.ncRecordsArray().size()));
    for (const auto& examination : patient.ncRecordsArray()) {
      writer_.putObject(examinationClass);
      text(examination->note());
      date(examination->examDate());
      hasArray ? measurements(examination->measurements()) : lengths(examination->measurements().front());
      writer_.endObject();
    }
    writer_.endObject();
  }

  void measurements(const std::vector<model::MeasurementsRecord>& records) {
    writer_.putObject(kMutableArray);
    integer(static_cast<std::int64_t>(records.size()));
    for (const model::MeasurementsRecord& record : records) {
      writer_.putObject(kMeasurements);
      lengths(record);
      writer_.endObject();
    }
    writer_.endObject();
  }

  std::int64_t version_;
  archive::TypedStreamWriter writer_;
};

}  // namespace

std::vector<std::byte> oldDocument(const model::PatientRecord& patient, std::int64_t version) {
  return OldArchiver(version).archived(patient);
}

}  // namespace nascor::clinic
