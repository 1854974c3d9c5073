// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "exchange/Codes.h"
#include "exchange/StructuredReport.h"
#include "foundation/Calendar.h"
#include "foundation/Sentence.h"

namespace nascor::exchange {

/// A length of a fetus that a report holds, in millimetres, and which of several it is: "flagged", "mean", "plain",
/// "mean of several", "calculated" or "estimated".
struct FoundLength {
  double mm = 0.0;
  std::string_view chosen;
};

struct FetusFindings {
  std::optional<std::string> id;  ///< as the report says; nothing when it names none
  std::array<std::optional<FoundLength>, kLengthTerms.size()> lengths;  ///< in the order of kLengthTerms
  std::optional<double> efw;                                            ///< in grams, for comparison only
};

/// A value of the report that is not among the findings.
struct NotTaken {
  std::optional<std::string> fetus;
  std::string what;             ///< our key where there is one, else what the report calls it
  std::optional<double> value;  ///< in `unit`; nothing when it is no number
  std::string unit;
  foundation::Sentence why;
};

/// What a report says of one examination. A person confirms patient and fetuses before anything of it is stored.
struct Findings {
  std::optional<std::string> patientID;
  std::optional<foundation::CivilDay> examDate;
  std::optional<foundation::CivilDay> edd;
  std::string_view eddFrom;  ///< "edd" or "lmp"; empty without an EDD
  std::optional<int> gravida;
  std::optional<int> numberOfFetuses;  ///< as the report says
  std::vector<FetusFindings> fetuses;  ///< in the order in which they first appear
  std::vector<NotTaken> notTaken;
  std::vector<foundation::Sentence> warnings;
};

/// The findings of a report, or a sentence: for another kind of report and for one without content.
///
/// Of several values for a length counts the flagged one, else the mean, else the plain one, else a calculated and last
/// an estimated one; of several of the best kind that differ, their mean. Everything that is passed over is named.
std::variant<Findings, foundation::Sentence> findingsIn(const StructuredReport& report);

/// Adds a warning where another number of fetuses is stated than there are.
void warnOfNumberOfFetuses(Findings& findings);

}  // namespace nascor::exchange
