// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "app/DatingPanels.h"
#include "foundation/Services.h"
#include "model/PatientRecord.h"

namespace nascor::app {

/// What a dating dialog says of the EDD that its OK would set, a line each: the day, the age today, the difference from the
/// EDD that stands, an examination that would get an improbable age, the proposal's own remark; or why there is none.
/// `patient` may be null.
std::string proposalText(const ProposedEDD& proposal, const model::PatientRecord* patient,
                         const foundation::Services& services);

}  // namespace nascor::app
