// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "exchange/StructuredReport.h"
#include "foundation/Calendar.h"
#include "foundation/Sentence.h"
#include "model/PatientRecord.h"

namespace nascor::exchange {

struct OutgoingLength {
  std::size_t term = 0;  ///< in kLengthTerms
  std::string mm;        ///< decimal
};

struct OutgoingFetus {
  std::vector<OutgoingLength> lengths;
  std::optional<double> efw;  ///< in grams, by the document's formula
};

/// One examination of a document as it leaves for other programs, with what it takes of the document.
struct OutgoingExamination {
  std::size_t place = 0;  ///< in the document
  std::string patientID;
  std::optional<foundation::CivilDay> day;
  std::optional<foundation::CivilDay> edd;
  std::optional<int> gravida;  ///< nothing for 0, which is not entered
  std::optional<int> numberOfFetuses;
  std::optional<std::size_t> formula;  ///< of the weights, in kWeightEquations
  std::vector<OutgoingFetus> fetuses;
  std::vector<foundation::Sentence> warnings;  ///< lengths that are left out because they are none
};

/// The examinations of a document in their order. A length of 0 is not measured and left out in silence; any other that
/// is not above 0 and finite is left out with a warning. Days are those of the local time zone.
std::vector<OutgoingExamination> outgoingExaminations(const model::PatientRecord& patient,
                                                      const foundation::Calendar& calendar);

/// Names the examination with all that it holds, for UUIDs.
std::string nameOf(const OutgoingExamination& examination);

/// The examination as a Comprehensive SR of TID 5000. Fetuses are numbered from 1.
StructuredReport reportOf(const OutgoingExamination& examination);

}  // namespace nascor::exchange
