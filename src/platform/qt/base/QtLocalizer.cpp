// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/QtLocalizer.h"

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>

#include "base/Text.h"

namespace nascor::qt {

std::string QtLocalizer::text(std::string_view table, std::string_view key) const {
  return toUtf8(QCoreApplication::translate(std::string(table).c_str(), std::string(key).c_str()));
}

namespace {

foundation::ShortDateForm shortDateFormOf(const QLocale& locale) {
  constexpr int kMonths = 12;
  const QString pattern = locale.dateFormat(QLocale::ShortFormat);
  const auto length = pattern.contains(QStringLiteral("MMMM")) ? QLocale::LongFormat : QLocale::ShortFormat;
  foundation::ShortDateForm form{.pattern = toUtf8(pattern), .monthNames = {}};
  for (int month = 1; month <= kMonths; ++month) {
    form.monthNames.push_back(toUtf8(locale.monthName(month, length)));
  }
  return form;
}

/// How the user's country writes a day in words, without the day of the week; in English as everywhere in this program.
QString longDateFormOf(const QLocale& locale) {
  QString usual = QCoreApplication::translate("MyDocument", "d MMMM yyyy");
  if (locale.language() == QLocale::English || locale.language() == QLocale::C) return usual;
  static const QRegularExpression kWeekday(
      QStringLiteral("[\\s,\\x{060C}\\x{3001}]*\\bdddd\\b[\\s,\\x{060C}\\x{3001}]*"));
  QString form = locale.dateFormat(QLocale::LongFormat);
  form.remove(kWeekday);
  const bool isWhole =
      form.contains(u'd') && form.contains(QStringLiteral("M")) && form.contains(QStringLiteral("yyyy"));
  return isWhole ? form : usual;
}

}  // namespace

QtLocalizer::QtLocalizer(const QLocale& locale) : locale_(locale), shortDateForm_(shortDateFormOf(locale)) {}

std::string QtLocalizer::longDateText(const foundation::CivilDay& day) const {
  QString text =
      locale_.toString(QDate(static_cast<int>(day.year), day.month, day.day), longDateFormOf(locale_));
  // The first of a month alone is an ordinal there, for which forms of dates have no sign.
  if (locale_.language() == QLocale::French && text.startsWith(QLatin1String("1 ")))
    text.insert(1, QLatin1String("er"));
  return toUtf8(text);
}

char QtLocalizer::decimalSign() const {
  const QString sign = locale_.decimalPoint();
  return sign.size() == 1 && sign[0].unicode() < 0x80 ? sign[0].toLatin1() : '.';
}

std::string QtLocalizer::upperCased(std::string_view text) const {
  return toUtf8(locale_.toUpper(fromUtf8(text)));
}

}  // namespace nascor::qt
