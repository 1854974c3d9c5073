// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/DateText.h"

#include "foundation/Assertion.h"
#include "foundation/ShortDate.h"

namespace nascor::foundation {

std::string shortDateText(const std::optional<Date>& date, const Calendar& calendar,
                          const Localizer& localizer) {
  const auto day = date ? localDay(*date, calendar) : std::nullopt;
  return day ? shortDateText(*day, localizer.shortDateForm()) : std::string();
}

ShortDateForm dateForm(const Localizer& localizer) {
  ShortDateForm form = localizer.shortDateForm();
  required(!form.pattern.empty());
  return form;
}

}  // namespace nascor::foundation
