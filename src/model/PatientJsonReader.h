// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "foundation/Calendar.h"
#include "foundation/Sentence.h"
#include "model/PatientRecord.h"

namespace nascor::model {

/// A text that is no document in JSON. `what()` is one sentence: the place (line and column where the JSON itself is
/// broken, else a JSON pointer such as /examinations/2/measurements/0/bpd), what was expected and what stands there.
/// It names no file.
class JsonDocumentError : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

struct PatientFromJson {
  std::unique_ptr<PatientRecord> patient;  ///< never null
  /// What a document's file cannot hold as it stands, a sentence each: whole numbers beyond 32 bits, numbers that are
  /// infinite in single precision.
  std::vector<foundation::Sentence> warnings;
};

/// Reads what `writePatientJson` writes (docs/json.md). A key may be missing; an unknown one, or one that stands twice, is an error.
/// The text must be UTF-8 and hold nothing but the document. Dates without a zone are local times of `calendar`.
/// Throws JsonDocumentError.
PatientFromJson patientFromJson(std::string_view text, const foundation::Calendar& calendar);

}  // namespace nascor::model
