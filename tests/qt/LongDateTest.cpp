// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Dates in words, beside the short dates that are typed.
#include <gtest/gtest.h>

#include <QLocale>

#include "base/LongDate.h"
#include "base/QtLocalizer.h"

namespace nascor::tests {
namespace {

struct Form {
  const char* locale;
  const char* typed;
  const char* inWords;
  friend std::ostream& operator<<(std::ostream& to, const Form& each) { return to << each.locale; }
};

class ADateInWords : public testing::TestWithParam<Form> {
 protected:
  ADateInWords() { QLocale::setDefault(QLocale(QLatin1String(GetParam().locale))); }
  ~ADateInWords() override { QLocale::setDefault(before_); }

 private:
  QLocale before_;
};

TEST_P(ADateInWords, isWrittenAsItsCountryDoes) {
  const qt::QtLocalizer localizer{QLocale()};
  EXPECT_EQ(qt::longDateText(QString::fromUtf8(GetParam().typed), localizer).toStdString(),
            GetParam().inWords);
  EXPECT_EQ(qt::longDateText(QStringLiteral("nothing"), localizer), QString());
  EXPECT_EQ(localizer.longDateText({2027, 1, 14}), GetParam().inWords);
  EXPECT_EQ(localizer.longDateText({2027, 2, 29}), "") << "no day";
}

INSTANTIATE_TEST_SUITE_P(locales, ADateInWords,
                         testing::Values(Form{"de_DE", "14.01.27", "14. Januar 2027"},
                                         Form{"de_AT", "14.01.27", "14. J\u00e4nner 2027"},
                                         Form{"en_US", "1/14/27", "14 January 2027"},
                                         Form{"en_GB", "14/01/2027", "14 January 2027"},
                                         Form{"fr_FR", "14/01/2027", "14 janvier 2027"},
                                         Form{"sv_SE", "2027-01-14", "14 januari 2027"},
                                         Form{"ja_JP", "2027/01/14", "2027\u5e741\u670814\u65e5"},
                                         Form{"pt_BR", "14/01/2027", "14 de janeiro de 2027"}),
                         [](const auto& each) { return std::string(each.param.locale); });

}  // namespace
}  // namespace nascor::tests
