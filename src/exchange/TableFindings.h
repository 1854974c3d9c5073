// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "exchange/Findings.h"
#include "foundation/Sentence.h"

namespace nascor::exchange {

/// The findings in a CSV table of examinations, one row an examination and fetus, with the columns of tidy rows (`rows`):
/// those of one patient on one day together, in the order in which the examinations first appear. Or sentences: one for each
/// row that does not fit, with its physical line, and what to do; behind the thousandth it is not looked further. Then there are no
/// findings of any row. Nothing when the text is no such table: its first record names no length (`bpd_mm`) or no day
/// (`exam_date`).
///
/// A cell that is empty or 0 is not measured. Fetuses are numbered from 0 in the column `fetus`, as tidy rows have them, or
/// from 1 in `fetus_number`; among the findings they are "1", "2", ..., as a document's are. IDs that differ only in the
/// blanks around them are one. Columns with other names are passed over.
std::optional<std::variant<std::vector<Findings>, std::vector<foundation::Sentence>>> findingsInTable(
    std::string_view text);

}  // namespace nascor::exchange
