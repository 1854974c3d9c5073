#include "qt/LongDate.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>

#include "qt/Text.h"

namespace nascor::qt {
namespace {

QString inWords(const QDate& day) {
  return QLocale().toString(day, QCoreApplication::translate("MyDocument", "d MMMM yyyy"));
}

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

}  // namespace nascor::qt
