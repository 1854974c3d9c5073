// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "model/PatientRecord.h"
#include "summary/Summary.h"
#include "support/FixedClock.h"
#include "support/FixedOffsetCalendar.h"

namespace nascor::tests {

/// The summary of a patient in English, made on 21 November 2026 at 10:00 UTC.
inline summary::Summary summarised(const model::PatientRecord& patient,
                                   const summary::Details& details = {}) {
  const FixedClock clock(foundation::Date{816948000.0});
  const FixedOffsetCalendar calendar;
  const foundation::EnglishLocalizer localizer;
  return summary::summaryOf(patient, details, {.clock = clock, .calendar = calendar, .localizer = localizer});
}

inline std::vector<std::string> textsOf(const summary::Row& row) {
  std::vector<std::string> texts;
  for (const summary::Cell& cell : row.cells) texts.push_back(cell.text);
  return texts;
}

inline std::string factOf(const summary::FetusSummary& fetus, std::string_view label) {
  for (const summary::Fact& fact : fetus.facts) {
    if (fact.label == label) return fact.value;
  }
  return "none";
}

}  // namespace nascor::tests
