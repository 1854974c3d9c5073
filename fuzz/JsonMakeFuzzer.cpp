// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Any text as the JSON of a document. What is refused is refused in a sentence on one line; what is accepted makes a
// document that reads back, prints as JSON, and is made of that JSON again byte by byte.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "foundation/JsonText.h"
#include "model/PatientFile.h"
#include "model/PatientJson.h"
#include "model/PatientJsonReader.h"
#include "posix/PosixCalendar.h"

namespace {

using nascor::model::patientFromJson;

void require(bool holds) {
  if (!holds) std::abort();
}

std::string jsonOf(const nascor::model::PatientRecord& patient,
                   const nascor::foundation::Calendar& calendar) {
  std::string text;
  nascor::foundation::JsonText json(text);
  nascor::model::writePatientJson(json, patient, calendar, nascor::model::JsonNumbers::asInFile);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const nascor::posix::PosixCalendar kCalendar;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const auto made = patientFromJson(text, kCalendar);
    const auto bytes = nascor::model::archivedPatient(*made.patient);
    const auto read = nascor::model::unarchivedPatient(bytes);
    require(read.patient != nullptr);

    const std::string json = jsonOf(*read.patient, kCalendar);
    require(json == jsonOf(*made.patient, kCalendar));
    const auto again = patientFromJson(json, kCalendar);
    require(again.warnings.empty());
    require(nascor::model::archivedPatient(*again.patient) == bytes);
  } catch (const nascor::model::JsonDocumentError& error) {
    const std::string_view sentence(error.what());
    require(sentence.starts_with("at ") && sentence.find('\n') == std::string_view::npos &&
            sentence.size() < 1000);
  }
  return 0;
}
