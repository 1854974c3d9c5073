// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "foundation/Localizer.h"

namespace nascor::qt {

/// What the text of a date field is read as, with its month in words: "4 March 2027". Empty for a text that is no date.
QString longDateText(const QString& text, const foundation::Localizer& localizer);
/// The longest such text, to leave room for.
QString longestDateText(const foundation::Localizer& localizer);
/// A date in the form in which dates are typed, as an example: a day above 12, so that it tells the order, long past.
QString exampleDateText(const foundation::Localizer& localizer);

}  // namespace nascor::qt
