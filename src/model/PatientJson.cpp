// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientJson.h"

#include <string>
#include <variant>

#include "foundation/ConvertInteger.h"
#include "foundation/IsoDate.h"

namespace nascor::model {

namespace {

class Writer {
 public:
  Writer(foundation::JsonText& json, const foundation::Calendar& calendar, JsonNumbers numbers)
      : json_(json), calendar_(calendar), narrowed_(numbers == JsonNumbers::asInFile) {}

  void patient(const PatientRecord& patient) {
    json_.beginObject();
    for (const PatientValue& each : kPatientValues) {
      std::visit([&](auto member) { put(each.name, patient.values().*member); }, each.member);
    }
    json_.key("examinations").beginArray();
    for (const auto& each : patient.ncRecordsArray()) examination(*each);
    json_.endArray().endObject();
  }

 private:
  void examination(const NCRecord& examination) {
    json_.beginObject();
    put("note", examination.note());
    put("examDate", examination.examDate());
    json_.key("measurements").beginArray();
    for (const MeasurementsRecord& fetus : examination.measurements()) {
      json_.beginObject();
      for (const calc::Measurement measurement : calc::kMeasurements) {
        put(calc::nameOf(measurement), fetus.biometry().*calc::memberFor(measurement));
      }
      json_.endObject();
    }
    json_.endArray().endObject();
  }

  void put(std::string_view key, const std::optional<std::string>& value) {
    json_.key(key);
    value ? json_.text(*value) : json_.null();
  }

  void put(std::string_view key, const std::optional<foundation::Date>& value) {
    json_.key(key);
    value ? json_.number(inFile(value->secondsSince2001)) : json_.null();
    const std::string iso = value ? isoDateTimeText(*value, calendar_) : std::string();
    json_.key(std::string(key) + "ISO");
    iso.empty() ? json_.null() : json_.text(iso);
  }

  void put(std::string_view key, std::int64_t value) {
    json_.key(key).integer(narrowed_ ? foundation::low32Bits(value) : value);
  }

  void put(std::string_view key, double value) {
    json_.key(key).number(narrowed_ ? inFile(foundation::narrowedToFloat(value)) : value);
  }

  /// A file has no negative zero.
  double inFile(double value) const { return narrowed_ && value == 0.0 ? 0.0 : value; }

  foundation::JsonText& json_;
  const foundation::Calendar& calendar_;
  bool narrowed_;
};

}  // namespace

void writePatientJson(foundation::JsonText& json, const PatientRecord& patient,
                      const foundation::Calendar& calendar, JsonNumbers numbers) {
  Writer(json, calendar, numbers).patient(patient);
}

}  // namespace nascor::model
