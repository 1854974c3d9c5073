// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/LongDate.h"

#include "base/Text.h"

namespace nascor::qt {

QString longDateText(const QString& text, const foundation::Localizer& localizer) {
  const auto day = foundation::civilDayFromShortText(toUtf8(text), localizer.shortDateForm());
  return day ? fromUtf8(localizer.longDateText(*day)) : QString();
}

QString longestDateText(const foundation::Localizer& localizer) {
  constexpr int kMonths = 12;
  QString longest;
  for (int month = 1; month <= kMonths; ++month) {
    const QString text = fromUtf8(localizer.longDateText({2028, month, 28}));
    if (text.size() > longest.size()) longest = text;
  }
  return longest;
}

QString exampleDateText(const foundation::Localizer& localizer) {
  return fromUtf8(foundation::shortDateText({2026, 3, 24}, localizer.shortDateForm()));
}

}  // namespace nascor::qt
