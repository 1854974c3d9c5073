// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/PatientRows.h"

#include "calc/Dating.h"
#include "foundation/IsoDate.h"

namespace nascor::rows {

namespace {

std::string dayText(const std::optional<foundation::Date>& date, const foundation::Calendar& calendar) {
  return date ? foundation::isoDayText(*date, calendar) : std::string();
}

}  // namespace

void forEachRow(const model::PatientRecord& patient, const DocumentName& document,
                const foundation::Calendar& calendar, const std::function<void(const Row&)>& use) {
  const std::string edd = dayText(patient.edd(), calendar);
  Row row{.fileName = document.name,
          .filePlace = document.place,
          .edd = edd,
          .standard = patient.standard(),
          .referenceID = patient.maternalIDString() ? std::string_view(*patient.maternalIDString())
                                                    : std::string_view()};
  for (const auto& examination : patient.ncRecordsArray()) {
    const std::string day = dayText(examination->examDate(), calendar);
    row.examDate = day;
    const bool isDated = !day.empty() && !edd.empty();
    row.daysToEDD = isDated ? calc::daysToEDD(examination->examDate(), patient.edd()) : std::nullopt;
    row.age = isDated ? calc::menstrualAge(examination->examDate(), patient.edd()) : 0.0;
    row.note = examination->note() ? std::string_view(*examination->note()) : std::string_view();
    row.fetus = 0;
    for (const model::MeasurementsRecord& measured : examination->measurements()) {
      row.lengths = measured.biometry();
      use(row);
      ++row.fetus;
    }
    ++row.examination;
  }
}

void appendPatientRows(std::string& out, const model::PatientRecord& patient, const DocumentName& document,
                       const RowFormat& format, const foundation::Calendar& calendar) {
  forEachRow(patient, document, calendar, [&](const Row& row) { format.append(out, row); });
}

void appendErrorRow(std::string& out, std::string_view error, const DocumentName& document,
                    const RowFormat& format) {
  format.append(out, {.fileName = document.name, .filePlace = document.place, .error = error});
}

}  // namespace nascor::rows
