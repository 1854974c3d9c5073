// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"

namespace nascor::exchange {

/// The number in a decimal text with its point moved `places` to the right: 29.08 moved by 1 is the double nearest
/// 290.8. Blanks around it, a sign and an exponent are fine; nothing for any other text and for a number beyond the
/// greatest double.
std::optional<double> decimalMoved(std::string_view text, int places);

/// The same for a whole number of at most nine digits; nothing for a fraction, but 2.0 is whole.
std::optional<int> wholeNumber(std::string_view text);

/// The shortest decimal that reads back to the same single-precision number, in at most 16 characters: 60.9, not
/// 60.90000153.
std::string shortestSingleText(double value);

/// The day in YYYYMMDD, also with points between; nothing for a text that is no day.
std::optional<foundation::CivilDay> dayFromDigits(std::string_view text);

/// The day in YYYY-MM-DD; nothing for a text that is no day.
std::optional<foundation::CivilDay> dayFromIsoText(std::string_view text);

/// YYYYMMDD.
std::string digitsOfDay(const foundation::CivilDay& day);

/// YYYY-MM-DD.
std::string isoText(const foundation::CivilDay& day);

/// The text without blanks at its ends.
std::string_view withoutBlanks(std::string_view text);

}  // namespace nascor::exchange
