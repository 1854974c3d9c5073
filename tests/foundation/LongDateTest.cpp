#include "foundation/LongDate.h"

#include <gtest/gtest.h>

#include "support/MarkedLocalizer.h"

namespace nascor::foundation {
namespace {

TEST(ALongDate, namesTheMonthAndAllDigitsOfTheYear) {
  const EnglishLocalizer english;
  EXPECT_EQ(longDateText({2027, 3, 4}, english), "4 March 2027");
  EXPECT_EQ(longDateText({2026, 12, 31}, english), "31 December 2026");
  EXPECT_EQ(longDateText({1926, 1, 1}, english), "1 January 1926");
}

TEST(ALongDate, isEmptyForADayThatIsNone) {
  const EnglishLocalizer english;
  EXPECT_EQ(longDateText({2027, 2, 29}, english), "");
  EXPECT_EQ(longDateText({2027, 13, 1}, english), "");
}

TEST(ALongDate, isTranslatedAsAWhole) {
  EXPECT_EQ(longDateText({2027, 5, 9}, tests::MarkedLocalizer()), "[CorvelDocument:9 May 2027]");
}

}  // namespace
}  // namespace nascor::foundation
