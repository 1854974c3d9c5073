// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/QtLocalizer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "foundation/Calendar.h"
#include "foundation/ShortDate.h"

namespace nascor::tests {
namespace {

using qt::QtLocalizer;

struct LocaleCase {
  const char* name;
  const char* shown;  ///< 4 March 2027
  char decimalSign;
};
class EachLocale : public testing::TestWithParam<LocaleCase> {};

TEST_P(EachLocale, writesInItsOwnWay) {
  const QtLocalizer localizer{QLocale(QLatin1String(GetParam().name))};
  EXPECT_EQ(foundation::shortDateText({2027, 3, 4}, localizer.shortDateForm()), GetParam().shown);
  EXPECT_EQ(localizer.decimalSign(), GetParam().decimalSign);
}

INSTANTIATE_TEST_SUITE_P(
    locales, EachLocale,
    testing::Values(LocaleCase{"C", "4 Mar 2027", '.'}, LocaleCase{"en_US", "3/4/27", '.'},
                    LocaleCase{"en_GB", "04/03/2027", '.'}, LocaleCase{"en_AU", "4/3/27", '.'},
                    LocaleCase{"de_DE", "04.03.27", ','}, LocaleCase{"fr_FR", "04/03/2027", ','},
                    LocaleCase{"sv_SE", "2027-03-04", ','}, LocaleCase{"ja_JP", "2027/03/04", '.'}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(QtLocalizer, showsInEveryLocaleADateThatReadsBackToTheSameDay) {
  using foundation::CivilDay;
  std::vector<CivilDay> days{{1, 1, 1},      {1949, 12, 31}, {1950, 1, 1},  {2000, 2, 29},
                             {2049, 12, 31}, {2050, 1, 1},   {9999, 12, 31}};
  const std::int64_t first = foundation::daysSince2001({2026, 1, 1});
  for (std::int64_t day = first; day < first + 366; ++day)
    days.push_back(*foundation::civilDayFromDaysSince2001(day));

  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  ASSERT_GT(locales.size(), 500);
  for (const QLocale& locale : locales) {
    const foundation::ShortDateForm form = QtLocalizer(locale).shortDateForm();
    for (const CivilDay& day : days) {
      const std::string shown = foundation::shortDateText(day, form);
      const auto read = foundation::civilDayFromShortText(shown, form);
      ASSERT_TRUE(read && *read == day)
          << locale.name().toStdString() << " (" << form.pattern << "): " << shown;
    }
  }
}

TEST(QtLocalizer, writesCapitalLettersOfAllAlphabets) {
  EXPECT_EQ(QtLocalizer(QLocale::c()).upperCased("ab-1/ zoë straße ψ"), "AB-1/ ZOË STRASSE Ψ");
}

class Shouting final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char*, int) const override {
    if (QLatin1String(context) != QLatin1String("NCDocument")) return {};
    return QLatin1String(source) == QLatin1String("Twin 1") ? QString::fromUtf8("Zwilling 1 ü") : QString();
  }
};

TEST(QtLocalizer, looksATextUpInItsTableAndKeepsTheKeyWhereThereIsNone) {
  const QtLocalizer localizer(QLocale::c());
  Shouting translator;
  QCoreApplication::installTranslator(&translator);
  const std::string inTable = localizer.text("NCDocument", "Twin 1");
  const std::string inOther = localizer.text("NCAppController", "Twin 1");
  const std::string unknown = localizer.text("NCDocument", "Größe");
  QCoreApplication::removeTranslator(&translator);
  EXPECT_EQ(inTable, "Zwilling 1 ü");
  EXPECT_EQ(inOther, "Twin 1");
  EXPECT_EQ(unknown, "Größe");
}

}  // namespace
}  // namespace nascor::tests
