// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/PatientRecord.h"

namespace nascor::clinic {

/// The bytes of a document as earlier versions of its classes, `version` 0 to 6, archived it. What a version has no place
/// for is left out: standards before 2, the weight formula before 3, the number of fetuses before 4, the planned gestation
/// before 5, the formula of the crown-rump length before 6. Before 4 an examination has one fetus.
std::vector<std::byte> oldDocument(const model::PatientRecord& patient, std::int64_t version);

}  // namespace nascor::clinic
