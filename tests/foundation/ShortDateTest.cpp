// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/ShortDate.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace nascor::foundation {
namespace {

using Names = std::vector<std::string>;

const Names kEnglish{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const Names kFrench{"janv.", "f\u00E9vr.", "mars",  "avr.", "mai",  "juin",
                    "juil.", "ao\u00FBt",  "sept.", "oct.", "nov.", "d\u00E9c."};
const Names kVietnamese{"thg 1", "thg 2", "thg 3", "thg 4",  "thg 5",  "thg 6",
                        "thg 7", "thg 8", "thg 9", "thg 10", "thg 11", "thg 12"};
const Names kJapanese{"1\u6708", "2\u6708", "3\u6708", "4\u6708",  "5\u6708",  "6\u6708",
                      "7\u6708", "8\u6708", "9\u6708", "10\u6708", "11\u6708", "12\u6708"};
// "ma", "mai" and "maia": each name is the beginning of the next.
const Names kNested{"a", "ab", "ma", "mai", "maia", "j", "ju", "jul", "o", "oc", "oct", "octo"};

ShortDateForm form(std::string pattern, Names names = {}) { return {std::move(pattern), std::move(names)}; }

/// How the locales of the world write a short date, month names included.
std::vector<ShortDateForm> everyForm() {
  std::vector<ShortDateForm> forms;
  for (const char* pattern : {"M/d/yy",
                              "MM/dd/yy",
                              "d-M-yy",
                              "d-M-yyyy",
                              "d. M. yy.",
                              "d. M. yyyy",
                              "d. M. yyyy.",
                              "d. MM. yy",
                              "d.M.yy",
                              "d.M.yy.",
                              "d.M.yyyy",
                              "d.MM.yy",
                              "d.MM.yy '\u0433'.",
                              "d.MM.yyyy",
                              "d/M/yy",
                              "d/M/yyyy",
                              "d/MM/yy",
                              "d/MM/yyyy",
                              "dd-MM-yy",
                              "dd-MM-yyyy",
                              "dd. MM. yyyy.",
                              "dd.MM.yy",
                              "dd.MM.yyyy",
                              "dd/MM yyyy",
                              "dd/MM/yy",
                              "dd/MM/yyyy",
                              "d\u200F/M\u200F/yyyy",
                              "yy-MM-dd",
                              "yy. M. d.",
                              "yy/M/d",
                              "yy/MM/dd",
                              "yyyy-MM-dd",
                              "yyyy. MM. dd.",
                              "yyyy.MM.dd",
                              "yyyy/M/d",
                              "yyyy/MM/dd",
                              "d/M/y",
                              "y\u5E74M\u6708d\u65E5",
                              "d 'de' M 'de' yyyy",
                              "yyyy-dd-MM",
                              "d''M''yy",
                              "'d' d 'M' M 'y' y",
                              "d\u00A0M\u202Fyyyy"}) {
    forms.push_back(form(pattern));
  }
  forms.push_back(form("d MMM yyyy", kEnglish));
  forms.push_back(form("MMM d, yy", kEnglish));
  forms.push_back(form("dMMMyyyy", kEnglish));
  forms.push_back(form("d MMM yyyy", kFrench));
  forms.push_back(form("d. MMMM yy", kFrench));
  forms.push_back(form("d MMM, yyyy", kVietnamese));
  forms.push_back(form("yyyy\u5E74MMMd\u65E5", kJapanese));
  forms.push_back(form("d MMM yy", kNested));
  forms.push_back(form("MMM.d.yyyy", kNested));
  return forms;
}

std::string describe(const CivilDay& day) {
  return std::to_string(day.year) + ' ' + std::to_string(day.month) + ' ' + std::to_string(day.day);
}

std::string iso(const CivilDay& day) {
  std::string year = std::to_string(day.year);
  year.insert(0, 4 - year.size(), '0');
  const auto two = [](int number) { return (number < 10 ? "-0" : "-") + std::to_string(number); };
  return year + two(day.month) + two(day.day);
}

// Showing

struct ShownCase {
  ShortDateForm form;
  CivilDay day;
  const char* text;
};

TEST(ShortDateText, followsThePattern) {
  const CivilDay day{2026, 3, 4};
  const CivilDay december{2031, 12, 25};
  for (const ShownCase& row :
       std::vector<ShownCase>{{form("M/d/yy"), day, "3/4/26"},
                              {form("M/d/yy"), december, "12/25/31"},
                              {form("dd.MM.yy"), day, "04.03.26"},
                              {form("dd/MM/yyyy"), day, "04/03/2026"},
                              {form("yyyy-MM-dd"), day, "2026-03-04"},
                              {form("yyyy. M. d."), day, "2026. 3. 4."},
                              {form("d.MM.yy '\u0433'."), day, "4.03.26 \u0433."},
                              {form("d\u200F/M\u200F/yyyy"), day, "4\u200F/3\u200F/2026"},
                              {form("d/M/y"), day, "4/3/2026"},
                              {form("d MMM yyyy", kEnglish), day, "4 Mar 2026"},
                              {form("d MMM yyyy", kFrench), december, "25 d\u00E9c. 2031"},
                              {form("d MMM, yyyy", kVietnamese), december, "25 thg 12, 2031"},
                              {form("d 'de' MMMM 'de' yy", kFrench), day, "4 de mars de 26"},
                              {form("d''M''yy"), day, "4'3'26"}}) {
    EXPECT_EQ(shortDateText(row.day, row.form), row.text);
  }
}

TEST(ShortDateText, showsFourDigitsOfAYearThatTwoWouldNotTell) {
  EXPECT_EQ(shortDateText({1949, 12, 31}, form("M/d/yy")), "12/31/1949");
  EXPECT_EQ(shortDateText({1950, 1, 1}, form("M/d/yy")), "1/1/50");
  EXPECT_EQ(shortDateText({1999, 12, 31}, form("M/d/yy")), "12/31/99");
  EXPECT_EQ(shortDateText({2000, 1, 1}, form("M/d/yy")), "1/1/00");
  EXPECT_EQ(shortDateText({2049, 12, 31}, form("M/d/yy")), "12/31/49");
  EXPECT_EQ(shortDateText({2050, 1, 1}, form("M/d/yy")), "1/1/2050");
  EXPECT_EQ(shortDateText({26, 3, 4}, form("M/d/yy")), "3/4/0026");
  EXPECT_EQ(shortDateText({26, 3, 4}, form("d/M/y")), "4/3/0026");
  EXPECT_EQ(shortDateText({9999, 12, 31}, form("yy-MM-dd")), "9999-12-31");
}

TEST(ShortDateText, isEmptyForADayThatIsNotInTheCalendar) {
  for (const CivilDay& day :
       {CivilDay{0, 1, 1}, CivilDay{10000, 1, 1}, CivilDay{2026, 2, 29}, CivilDay{2026, 13, 1},
        CivilDay{2026, 0, 1}, CivilDay{std::numeric_limits<std::int64_t>::min(), 1, 1}}) {
    EXPECT_EQ(shortDateText(day, form("d MMM yyyy", kEnglish)), "");
  }
}

TEST(ShortDateText, isIsoWhereTheFormWouldNotReadBack) {
  const CivilDay day{2026, 3, 4};
  for (const ShortDateForm& unreadable :
       {form(""), form("d/M"), form("MMM yyyy", kEnglish), form("d MMM yyyy"),
        form("d MMM yyyy", {"only one"}), form("ddMMyyyy"), form("yyMMdd"), form("dddd d/M/yy"),
        form("d/M/yy d"), form("'d/M/yy'"), form("d MMM yyyy", Names(12, "same")),
        form("d MMM yyyy", Names(12, ""))}) {
    EXPECT_EQ(shortDateText(day, unreadable), "2026-03-04") << unreadable.pattern;
    EXPECT_EQ(civilDayFromShortText("2026-03-04", unreadable), day) << unreadable.pattern;
  }
}

// Reading

struct ReadCase {
  const char* text;
  CivilDay day;
};

void expectReads(const ShortDateForm& shortForm, const std::vector<ReadCase>& rows) {
  for (const ReadCase& row : rows) {
    const auto day = civilDayFromShortText(row.text, shortForm);
    ASSERT_TRUE(day.has_value()) << shortForm.pattern << ": \"" << row.text << '"';
    EXPECT_EQ(*day, row.day) << shortForm.pattern << ": \"" << row.text << "\" is " << describe(*day);
  }
}

void expectRefuses(const ShortDateForm& shortForm, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    const auto day = civilDayFromShortText(text, shortForm);
    EXPECT_FALSE(day.has_value()) << shortForm.pattern << ": \"" << text << "\" is " << describe(*day);
  }
}

TEST(CivilDayFromShortText, readsTheOrderOfTheFormWithAnySeparator) {
  expectReads(form("M/d/yy"), {{"3/4/26", {2026, 3, 4}},
                               {"03/04/26", {2026, 3, 4}},
                               {"3/4/2026", {2026, 3, 4}},
                               {" 3/4/26 ", {2026, 3, 4}},
                               {"3 / 4 / 26", {2026, 3, 4}},
                               {"3.4.26", {2026, 3, 4}},
                               {"3-4-26", {2026, 3, 4}},
                               {"3 4 26", {2026, 3, 4}},
                               {"3,4,26", {2026, 3, 4}},
                               {"3\t4\u00A026", {2026, 3, 4}},
                               {"3\u200F/4\u200F/26", {2026, 3, 4}},
                               {"3\u22124\u201326", {2026, 3, 4}},
                               {"12/31/1949", {1949, 12, 31}}});
  expectReads(form("d/M/yy"),
              {{"3/4/26", {2026, 4, 3}}, {"3.4.2026", {2026, 4, 3}}, {"31/12/49", {2049, 12, 31}}});
  expectReads(form("dd.MM.yyyy"),
              {{"3.4.26", {2026, 4, 3}}, {"3/4/26", {2026, 4, 3}}, {"03 04 2026", {2026, 4, 3}}});
  expectReads(form("yyyy-MM-dd"),
              {{"26-4-3", {2026, 4, 3}}, {"2026/4/3", {2026, 4, 3}}, {"2026 04 03", {2026, 4, 3}}});
  expectReads(form("yyyy. M. d."), {{"2026.4.3", {2026, 4, 3}},
                                    {"2026. 4. 3.", {2026, 4, 3}},
                                    {"26-4-3", {2026, 4, 3}},
                                    {"2026. 4. 3. ", {2026, 4, 3}}});
  expectReads(
      form("d.MM.yy '\u0433'."),
      {{"3.04.26 \u0433.", {2026, 4, 3}}, {"3.04.26\u0433.", {2026, 4, 3}}, {"3.4.2026", {2026, 4, 3}}});
  expectReads(form("y\u5E74M\u6708d\u65E5"),
              {{"2026\u5E744\u67083\u65E5", {2026, 4, 3}}, {"2026/4/3", {2026, 4, 3}}});
  expectReads(form("d 'de' M 'de' yyyy"), {{"3 de 4 de 2026", {2026, 4, 3}}, {"3/4/2026", {2026, 4, 3}}});
}

TEST(CivilDayFromShortText, putsShortYearsInto1950To2049AndTakesOthersAsTyped) {
  expectReads(form("M/d/yy"), {{"2/29/00", {2000, 2, 29}},
                               {"1/1/49", {2049, 1, 1}},
                               {"1/1/50", {1950, 1, 1}},
                               {"1/1/99", {1999, 1, 1}},
                               {"1/1/5", {2005, 1, 1}},
                               {"1/1/0", {2000, 1, 1}},
                               {"1/1/0026", {26, 1, 1}},
                               {"1/1/026", {26, 1, 1}},
                               {"1/1/926", {926, 1, 1}},
                               {"1/1/1949", {1949, 1, 1}},
                               {"1/1/2050", {2050, 1, 1}},
                               {"1/1/9999", {9999, 1, 1}}});
  expectReads(form("dd/MM/yyyy"), {{"4/3/26", {2026, 3, 4}}, {"4/3/0026", {26, 3, 4}}});
  expectRefuses(form("M/d/yy"), {"2/29/1900", "1/1/0000", "1/1/000", "1/1/10000", "1/1/02026"});
}

TEST(CivilDayFromShortText, readsIsoWhateverTheForm) {
  for (const ShortDateForm& shortForm : everyForm()) {
    if (shortForm.pattern == "yyyy-dd-MM") continue;
    EXPECT_EQ(civilDayFromShortText("2027-04-10", shortForm), (CivilDay{2027, 4, 10})) << shortForm.pattern;
    EXPECT_EQ(civilDayFromShortText(" 2027-04-10 ", shortForm), (CivilDay{2027, 4, 10})) << shortForm.pattern;
    EXPECT_EQ(civilDayFromShortText("0026-02-03", shortForm), (CivilDay{26, 2, 3})) << shortForm.pattern;
  }
}

TEST(CivilDayFromShortText, readsWhatItShowsWhereTheFormLooksLikeIsoAndIsNot) {
  EXPECT_EQ(shortDateText({2027, 4, 10}, form("yyyy-dd-MM")), "2027-10-04");
  EXPECT_EQ(civilDayFromShortText("2027-10-04", form("yyyy-dd-MM")), (CivilDay{2027, 4, 10}));
  // It writes other separators, so hyphens mean ISO; and what it cannot mean is ISO as well.
  EXPECT_EQ(civilDayFromShortText("2027-04-10", form("yyyy/dd/MM")), (CivilDay{2027, 4, 10}));
  EXPECT_EQ(civilDayFromShortText("2027/10/04", form("yyyy/dd/MM")), (CivilDay{2027, 4, 10}));
  EXPECT_EQ(civilDayFromShortText("2027-04-25", form("yyyy-dd-MM")), (CivilDay{2027, 4, 25}));
}

TEST(CivilDayFromShortText, readsMonthNamesWhereTheFormHasThem) {
  expectReads(form("d MMM yyyy", kEnglish), {{"4 Mar 2026", {2026, 3, 4}},
                                             {"4 mar 26", {2026, 3, 4}},
                                             {"04-MAR-2026", {2026, 3, 4}},
                                             {"4. Mar. 2026", {2026, 3, 4}},
                                             {"4/Mar/26", {2026, 3, 4}},
                                             {"4 3 2026", {2026, 3, 4}},
                                             {"4/3/26", {2026, 3, 4}},
                                             {"  4   Mar   2026  ", {2026, 3, 4}}});
  expectReads(form("d MMM yyyy", kFrench), {{"4 sept. 2026", {2026, 9, 4}},
                                            {"4 sept 2026", {2026, 9, 4}},
                                            {"4.sept.2026", {2026, 9, 4}},
                                            {"4 d\u00E9c. 26", {2026, 12, 4}},
                                            {"4 ao\u00FBt 2026", {2026, 8, 4}}});
  expectReads(
      form("d MMM, yyyy", kVietnamese),
      {{"4 thg 1, 2026", {2026, 1, 4}}, {"4 thg 12, 2026", {2026, 12, 4}}, {"4/thg 10/26", {2026, 10, 4}}});
  expectRefuses(form("d MMM yyyy", kEnglish),
                {"4 March 2026", "4 Mrz 2026", "4Mar2026", "Mar 4 2026", "4 Mar", "Mar", "4 Mar Mar 2026",
                 "4 Mar 2026 BC", "4 mars 2026"});
  expectRefuses(form("d/M/yy"), {"4 Mar 2026", "4/Mar/26"});
}

TEST(CivilDayFromShortText, refusesEverythingElse) {
  const std::vector<std::string> texts{"",           " ",          "/",
                                       "//",         "3",          "3/4",
                                       "3/4/",       "/3/4/26",    "3/4/26/",
                                       "3/4/26/1",   "3/4/26 1",   "3//4/26",
                                       "3/ /4/26",   "-3/4/26",    "3/-4/26",
                                       "3/4/-26",    "+3/4/26",    "3/4/26.",
                                       "3.4.26.5",   "3/4/26 AD",  "3/4/'26",
                                       "003/4/26",   "3/004/26",   "0/4/26",
                                       "3/0/26",     "13/32/26",   "32/13/26",
                                       "3/4/x",      "a/b/c",      "today",
                                       "2027-4-10",  "2027/04/10", "2027-02-29",
                                       "2027-13-01", "0000-01-01", "20270410",
                                       "030426",     "3/4/26\n5",  "\u0663/\u0664/\u0662\u0666",
                                       "3e1/4/26",   "3/4/26T00",  "2027-04-10T00:00",
                                       "inf",        "nan",        "\xFF/4/26",
                                       "3\xC3"};
  for (const char* pattern : {"M/d/yy", "d/M/yyyy"}) expectRefuses(form(pattern), texts);
  expectRefuses(form("M/d/yy"),
                {std::string("3/4/26\0", 7), std::string("3\0004\00026", 6), "2/30/26", "4/31/26"});
  expectRefuses(form("yyyy-MM-dd"), {"4/3/2026", "04.03.2026", "2026-02-30"});
  expectRefuses(form("d.M.yyyy"), {"4.3.2026 \u0433.", "4..3.2026"});
}

// What is shown reads back

TEST(ShortDates, readBackOnEveryDayOf1950To2049) {
  const auto forms = everyForm();
  for (std::size_t i = 0; i < forms.size(); ++i) {
    // Every day for two forms of five, one of each month for the rest: their shapes repeat.
    const std::int64_t step = i % 5 < 2 ? 1 : 29;
    const bool isIso = forms[i].pattern == "yyyy-MM-dd" || forms[i].pattern == "yy-MM-dd";
    for (std::int64_t days = -18628; days <= 17896; days += step) {
      const CivilDay day = *civilDayFromDaysSince2001(days);
      const std::string text = shortDateText(day, forms[i]);
      ASSERT_EQ(civilDayFromShortText(text, forms[i]), day) << forms[i].pattern << ": " << text;
      ASSERT_TRUE(isIso || text != iso(day) || forms[i].pattern == "yyyy-dd-MM")
          << forms[i].pattern << ": " << text;
    }
  }
}

TEST(ShortDates, readBackThroughTheYears1To9999) {
  for (const ShortDateForm& shortForm : everyForm()) {
    const bool isIso = shortForm.pattern.ends_with("-MM-dd");
    for (std::int64_t days = -730485; days <= 2921573; days += 4001) {
      const CivilDay day = *civilDayFromDaysSince2001(days);
      const std::string text = shortDateText(day, shortForm);
      ASSERT_EQ(civilDayFromShortText(text, shortForm), day) << shortForm.pattern << ": " << text;
      ASSERT_TRUE(isIso || text != iso(day) || shortForm.pattern == "yyyy-dd-MM") << shortForm.pattern;
    }
    for (const CivilDay& day :
         {CivilDay{1, 1, 1}, CivilDay{9, 9, 9}, CivilDay{10, 10, 10}, CivilDay{99, 12, 31},
          CivilDay{100, 1, 1}, CivilDay{999, 12, 31}, CivilDay{1000, 1, 1}, CivilDay{1949, 12, 31},
          CivilDay{2050, 1, 1}, CivilDay{9999, 12, 31}}) {
      ASSERT_EQ(civilDayFromShortText(shortDateText(day, shortForm), shortForm), day) << shortForm.pattern;
    }
  }
}

RC_GTEST_PROP(ShortDates, readBackWhateverThePattern, (const std::string& pattern)) {
  const CivilDay day = *civilDayFromDaysSince2001(*rc::gen::inRange<std::int64_t>(-730485, 2921574));
  const ShortDateForm shortForm = form(pattern, kEnglish);
  RC_ASSERT(civilDayFromShortText(shortDateText(day, shortForm), shortForm) == day);
}

RC_GTEST_PROP(ShortDates, readBackWhateverStandsBetweenTheParts, ()) {
  const auto pattern =
      *rc::gen::container<std::string>(rc::gen::element('d', 'M', 'y', '/', '-', '.', ' ', '\'', 'e', '1'));
  const CivilDay day = *civilDayFromDaysSince2001(*rc::gen::inRange<std::int64_t>(-730485, 2921574));
  const ShortDateForm shortForm = form(pattern, kEnglish);
  RC_ASSERT(civilDayFromShortText(shortDateText(day, shortForm), shortForm) == day);
}

RC_GTEST_PROP(ShortDates, areInTheCalendarWhateverTheText, (const std::string& text)) {
  for (const char* pattern : {"M/d/yy", "d MMM yyyy"}) {
    const auto day = civilDayFromShortText(text, form(pattern, kEnglish));
    // Decided first: the macro takes both sides of an "or".
    const bool isInTheCalendar = !day || isValid(*day);
    RC_ASSERT(isInTheCalendar);
  }
}

}  // namespace
}  // namespace nascor::foundation
