// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "foundation/Calendar.h"
#include "foundation/Date.h"
#include "foundation/Localizer.h"

namespace nascor::foundation {

/// The local day of `date` in the user's short form; empty where there is no date, or none that has a text.
std::string shortDateText(const std::optional<Date>& date, const Calendar& calendar,
                          const Localizer& localizer);

/// The form of `localizer`; an AssertionFailure where it has none.
ShortDateForm dateForm(const Localizer& localizer);

}  // namespace nascor::foundation
