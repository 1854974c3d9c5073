// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"

namespace nascor::foundation {

/// Reads an ISO 8601 date or date-time: `2027-04-10` is local midnight, `2027-04-10T09:30`,
/// `...T09:30:15` and `...T09:30:15.25` are local wall-clock times, and a trailing `Z` or an offset
/// (`+02:00`, `+0200`, `+02`) makes it an absolute time. A blank may stand for the `T`. Nothing for
/// any other text, a day that is not in the calendar, or a year outside 1 to 9999.
std::optional<Date> dateFromIsoText(std::string_view text, const Calendar& calendar);

/// `2027-04-10T00:00:00`: the local wall clock, whole seconds (fractions cut toward the past).
/// Empty for a date that has no text (not finite, or outside the years 1 to 9999).
std::string isoDateTimeText(Date date, const Calendar& calendar);

/// `2027-04-10`: the local day. Empty as above.
std::string isoDayText(Date date, const Calendar& calendar);

}  // namespace nascor::foundation
