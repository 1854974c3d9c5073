// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/ProposalText.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

#include "calc/Dating.h"
#include "calc/Plausibility.h"
#include "calc/Report.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

namespace {

std::string differenceText(std::int64_t days, const foundation::Localizer& localizer) {
  if (days == 0) return localizer.text("NCDocument", "The same day as the current EDD.");
  if (days == 1) return localizer.text("NCDocument", "One day later than the current EDD.");
  if (days == -1) return localizer.text("NCDocument", "One day earlier than the current EDD.");
  return foundation::format(days > 0 ? localizer.text("NCDocument", "%ld days later than the current EDD.")
                                     : localizer.text("NCDocument", "%ld days earlier than the current EDD."),
                            {std::abs(days)});
}

/// The first examination whose age by `edd` would be improbable; empty where there is none.
std::string examinationText(const model::PatientRecord& patient, foundation::Date edd,
                            const foundation::Localizer& localizer) {
  for (const auto& record : patient.ncRecordsArray()) {
    const auto what = calc::improbableAge(calc::menstrualAge(record->examDate(), edd));
    if (!what) continue;
    return *what == calc::Improbable::beforeLastPeriod
               ? localizer.text("NCDocument", "An examination would be before the last period.")
               : localizer.text("NCDocument", "An examination would be above 45 weeks.");
  }
  return {};
}

}  // namespace

std::string proposalText(const ProposedEDD& proposal, const model::PatientRecord* patient,
                         const foundation::Services& services) {
  const foundation::Localizer& localizer = services.localizer;
  const foundation::Calendar& calendar = services.calendar;
  std::string text;
  const auto addLine = [&text](const std::string& line) {
    if (!line.empty()) text.append(text.empty() ? "" : "\n").append(line);
  };
  const auto day = foundation::civilDayFromShortText(proposal.text, foundation::dateForm(localizer));
  if (!day) {
    for (const std::string& reason : proposal.reasons) addLine(reason);
    return text;
  }
  addLine(localizer.text("NCDocument", "EDD:") + " " + localizer.longDateText(*day));
  const foundation::Date edd = foundation::startOfDay(*day, calendar);
  if (const auto today = foundation::localDay(services.clock.now(), calendar)) {
    const double age = calc::menstrualAge(foundation::startOfDay(*today, calendar), edd);
    addLine(localizer.text("NCDocument", "Age today:") + " " + calc::gestationText(age, localizer));
  }
  const auto held = patient != nullptr && patient->edd() ? foundation::localDay(*patient->edd(), calendar)
                                                         : std::optional<foundation::CivilDay>();
  if (held)
    addLine(differenceText(foundation::daysSince2001(*day) - foundation::daysSince2001(*held), localizer));
  if (patient != nullptr) addLine(examinationText(*patient, edd, localizer));
  addLine(proposal.remark);
  return text;
}

}  // namespace nascor::app
