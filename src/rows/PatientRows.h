// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"
#include "model/PatientRecord.h"
#include "rows/RowFormat.h"

namespace nascor::rows {

/// Which document rows are of.
struct DocumentName {
  std::string_view name;    ///< bytes, as the file system has it
  std::uint64_t place = 0;  ///< among the documents of a run, from 0
};

/// Hands on a row for each record that an examination holds, as `appendPatientRows` appends it. Its texts last until `use`
/// returns.
void forEachRow(const model::PatientRecord& patient, const DocumentName& document,
                const foundation::Calendar& calendar, const std::function<void(const Row&)>& use);

/// Appends a row for each record that an examination holds, whatever number of fetuses the patient states, in the order of
/// the file. Days are those of the calendar. A date that has no day (not finite, or outside the years 1 to 9999) counts as
/// unknown, and with it the age. Any number of threads may call it.
void appendPatientRows(std::string& out, const model::PatientRecord& patient, const DocumentName& document,
                       const RowFormat& format, const foundation::Calendar& calendar);

/// Appends the row of a document that could not be read.
void appendErrorRow(std::string& out, std::string_view error, const DocumentName& document,
                    const RowFormat& format);

}  // namespace nascor::rows
