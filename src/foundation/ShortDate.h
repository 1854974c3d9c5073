// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Calendar.h"

namespace nascor::foundation {

/// How a locale writes a date in its short form.
struct ShortDateForm {
  /// Unicode date pattern made of `d`, `dd`, `M`, `MM`, `MMM`, `MMMM`, `yy`, `yyyy`, `y` and literal text;
  /// `'quoted'` text is literal.
  std::string pattern = "M/d/yy";
  /// Twelve names, January first, for patterns with `MMM` or `MMMM`; may be empty for others.
  std::vector<std::string> monthNames;
};

/// `day` in the short form. Outside 1950 to 2049 a two-digit year shows four digits, so that what is
/// shown always reads back to the same day. A form that would not read back (a part or the names are missing,
/// digits run together) is not used: then the text is ISO. Empty when `day` is not valid.
std::string shortDateText(const CivilDay& day, const ShortDateForm& form);

/// Reads what a user types for a date: the short form, its order of day, month and year with any
/// separator and blanks, or ISO (`2027-04-10`, which is the form's own day where the form writes that
/// for another). A year of one or two digits lies in 1950 to 2049, one of three or four is taken as typed.
/// Three groups of digits with one separator between them, month names (and their dots or not) where the
/// form has them, nothing else. Nothing for any other text and for a day that is not in the calendar.
std::optional<CivilDay> civilDayFromShortText(std::string_view text, const ShortDateForm& form);

}  // namespace nascor::foundation
