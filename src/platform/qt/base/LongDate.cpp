#include "base/LongDate.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QRegularExpression>

#include "base/Text.h"

namespace nascor::qt {
namespace {

/// How the user's country writes a day in words, without the day of the week; in English as everywhere in this program.
QString formInWords(const QLocale& locale) {
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

QString inWords(const QDate& day) { return QLocale().toString(day, formInWords(QLocale())); }

}  // namespace

QString longDateText(const QString& text, const foundation::ShortDateForm& form) {
  const auto day = foundation::civilDayFromShortText(toUtf8(text), form);
  return day ? inWords(QDate(static_cast<int>(day->year), day->month, day->day)) : QString();
}

QString longestDateText() {
  constexpr int kMonths = 12;
  QString longest;
  for (int month = 1; month <= kMonths; ++month) {
    const QString text = inWords(QDate(2028, month, 28));
    if (text.size() > longest.size()) longest = text;
  }
  return longest;
}

QString exampleDateText(const foundation::ShortDateForm& form) {
  return fromUtf8(foundation::shortDateText({2026, 3, 24}, form));
}

}  // namespace nascor::qt
