// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "compare/Tables.h"

namespace nascor::app {

class NCDocument;

// What the window says of what the document shows. Paper, files and drawings show none of it.

/// Which of how many examinations is on show, and its day. Empty for none.
std::string examinationText(const NCDocument& document);

/// What the marks of the examination on show say on that chart page, for those who do not see it: measure, value, z-score,
/// and the standard. The standard alone where there is none.
std::string spokenPage(const NCDocument& document, std::int64_t index);

/// What a page cannot show for want of something, and where it is entered: a sentence each, none where nothing is missing.
std::vector<std::string> adviceOnPage(const NCDocument& document, std::int64_t index);

/// The examination and the fetus on show beside their peers, from the records; none while there is no examination.
std::vector<compare::Table> comparison(const NCDocument& document);
/// One of them; nothing where there is none.
std::optional<compare::Table> comparison(const NCDocument& document, compare::TableKind kind);
/// Patient, fetus, examination and age, in one line.
std::string comparisonHeading(const NCDocument& document);

}  // namespace nascor::app
