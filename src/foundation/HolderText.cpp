// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/HolderText.h"

#include <cstddef>

#include "foundation/IsoDate.h"
#include "foundation/Utf8.h"

namespace nascor::foundation {

std::string momentText(const Date& moment, const Calendar& calendar, const Localizer& localizer) {
  const auto day = localDay(moment, calendar);
  const std::string iso = isoDateTimeText(moment, calendar);
  constexpr std::size_t kTime = 11;  // behind 2027-04-10T
  constexpr std::size_t kHoursAndMinutes = 5;
  if (!day || iso.size() < kTime + kHoursAndMinutes) return "-";
  return localizer.longDateText(*day) + ", " + iso.substr(kTime, kHoursAndMinutes);
}

std::string holderText(const FileHolder& holder, const Calendar& calendar, const Localizer& localizer,
                       std::string_view separator) {
  std::string text;
  const auto add = [&](const std::string& label, const std::string& value) {
    if (!text.empty()) text += separator;
    text.append(label).append(" ").append(value.empty() ? "-" : value);
  };
  add(localizer.text("CorvelDocument", "User:"), shownLine(holder.user));
  add(localizer.text("CorvelDocument", "Machine:"), shownLine(holder.host));
  add(localizer.text("CorvelDocument", "Since:"), momentText(holder.since, calendar, localizer));
  add(localizer.text("CorvelDocument", "Process:"),
      holder.process > 0 ? std::to_string(holder.process) : std::string());
  return text;
}

std::string heldSentence(const FileHolder& holder, const Calendar& calendar, const Localizer& localizer) {
  return localizer.text("CorvelDocument", "It is open elsewhere.") + " " +
         holderText(holder, calendar, localizer, "; ");
}

}  // namespace nascor::foundation
