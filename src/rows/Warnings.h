// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>

#include "calc/Biometry.h"
#include "calc/References.h"
#include "calc/Standards.h"

namespace nascor::rows {

/// A growth standard whose numbers a row holds.
struct StandardInUse {
  const calc::GrowthStandard* standard;
  const calc::ReferenceTable* table;  ///< of one of its lengths
};

/// Appends what is improbable about the lengths (mm) and the age (weeks; 0.0 is unknown) of one fetus, in English, with
/// "; " between the sentences; nothing where all is well. Lengths are named that cannot be typed into a document, ages
/// below 0 or above 45 weeks, and the age again for each of `standards` that does not reach it: there its first or last week
/// counts.
void appendWarnings(std::string& out, const calc::Biometry& lengths, double age,
                    std::span<const StandardInUse> standards);

/// "45 weeks lie outside who-2017, which has 14 to 40 weeks".
std::string outsideText(const calc::Reference& reference, double week);

}  // namespace nascor::rows
