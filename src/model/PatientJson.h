// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Calendar.h"
#include "foundation/JsonText.h"
#include "model/PatientRecord.h"

namespace nascor::model {

/// Which numbers are printed: those in memory, or those that a document's file would hold (lengths and the planned
/// gestation as the nearest single-precision number, whole numbers as their low 32 bits, no negative zero).
enum class JsonNumbers { inMemory, asInFile };

/// Writes one object with every field that a document archives, in a fixed order of keys. Lengths are in millimetres,
/// the planned gestation in weeks. A date is seconds since 2001-01-01 UTC, and beside it its local time as ISO text (key
/// with "ISO" behind it; null for a date without one). Missing dates and texts are null.
void writePatientJson(foundation::JsonText& json, const PatientRecord& patient,
                      const foundation::Calendar& calendar, JsonNumbers numbers);

}  // namespace nascor::model
