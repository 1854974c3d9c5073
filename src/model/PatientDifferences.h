// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/PatientRecord.h"

namespace nascor::model {

/// One value that two records of a patient hold differently.
struct PatientDifference {
  /// As JSON names it (docs/json.md): "gravida", "examinations[2].note", "examinations[2].measurements[0].bpd";
  /// "examinations[2]" for an examination and "examinations[2].measurements[1]" for a fetus that one of both lacks.
  std::string key;
  std::optional<std::size_t> examination{};  ///< its place; nothing for a value of the patient
  bool isMissingAfter =
      false;  ///< an examination of `before` that `after` lacks; its place is that in `before`
};

/// What `after` holds otherwise than `before`, at most `most`. Examinations that are alike at the beginning and at the end
/// of both are left out; those between are compared in their order. A number that is none equals another that is none.
std::vector<PatientDifference> patientDifferences(const PatientRecord& before, const PatientRecord& after,
                                                  std::size_t most);

}  // namespace nascor::model
