// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Driver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "model/PatientPage.h"

namespace nascor::drive {
namespace {

class ADriver : public testing::Test {
 protected:
  Driver driver;

  Json say(const std::string& line) { return Json::parse(driver.answer(line)); }
  bool isRefused(const std::string& line) {
    const Json answer = say(line);
    return answer.size() == 1 && answer.contains("error") && answer["error"].is_string() &&
           !answer["error"].get<std::string>().empty();
  }
};

TEST_F(ADriver, drawsTheTitlesOfAStripWithinItsViewAtAnySize) {
  constexpr double kTextHeight = 10.0;
  constexpr double kAdvance = 6.0;
  say(R"({"new":true})");
  for (const int width : {1600, 800, 799, 640, 440, 300}) {
    for (const int height : {1100, 560, 300, 200}) {
      for (const model::PatientPageFacts& each : model::kPatientPages) {
        if (each.page == model::PatientPage::report) continue;
        const Json line{{"draw", {model::indexOf(each.page), width, height}}};
        Json view;
        int titles = 0;
        const Json drawn = say(line.dump())["draw"];
        for (const Json& entry : drawn) {
          if (entry[0] == "view") view = entry;
          if (entry[0] != "text" || view.is_null() || !view[1].get<std::string>().starts_with("NoYaxis"))
            continue;
          const auto text = entry[2].get<std::string>();
          if (!text.starts_with("Nas")) continue;
          ++titles;
          const std::string where = line.dump() + entry.dump() + view.dump();
          const auto bytesOfOneSign = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
          const auto signs = static_cast<double>(std::ranges::count_if(text, bytesOfOneSign));
          EXPECT_GE(entry[3], 0) << where;
          EXPECT_LE(entry[3].get<double>() + kAdvance * signs, view[2][2].get<double>()) << where;
          EXPECT_GE(entry[4], 0) << where;
          EXPECT_LE(entry[4].get<double>() + kTextHeight, view[2][3].get<double>()) << where;
        }
        EXPECT_EQ(titles, each.page == model::PatientPage::trends ? 2 : 1) << line;
      }
    }
  }
}

TEST_F(ADriver, placesTheTitleOfAStripAtTheWindowsSize) {
  say(R"({"new":true})");
  const Json drawn = say(R"({"draw":5})")["draw"];
  // The right end of 720 units, less 72 signs of 6; one line below the weeks.
  EXPECT_THAT(drawn, testing::Contains(Json{"text", "Black",
                                            "Nascor Standard: Westerway (ASUM 2001) / Fetal Weight Formula: "
                                            "Hadlock 1",
                                            720 - 72 * 6, 6}));
  EXPECT_THAT(drawn, testing::Contains(Json{"view", "NoYaxisEFWGraphView", {60, 500, 720, 50}}));
}

TEST_F(ADriver, refusesLinesThatAreNoRequestsAndGoesOn) {
  for (const char* line : {"",
                           " ",
                           "{",
                           "}",
                           "nonsense",
                           "null",
                           "1",
                           "\"new\"",
                           "[]",
                           "[\"new\"]",
                           "{}",
                           R"({"new":true,"state":true})",
                           R"({"new":true} x)",
                           R"({"news":true})",
                           R"({"":true})",
                           R"({"new":1})",
                           R"({"new":null})",
                           R"({"state":false})",
                           "\xff\xfe",
                           "{\"new\xff\":true}"}) {
    EXPECT_TRUE(isRefused(line)) << line;
  }
  EXPECT_EQ(say(R"({"new":true})"), Json({{"number", 0}}));
}

TEST_F(ADriver, refusesArgumentsOfTheWrongKind) {
  say(R"({"new":true})");
  for (const char* line : {R"({"open":1})",
                           R"({"open":null})",
                           R"({"use":"0"})",
                           R"({"use":0.5})",
                           R"({"use":1})",
                           R"({"save":false})",
                           R"({"save":1})",
                           R"({"close":true})",
                           R"({"close":"never"})",
                           R"({"edit":"bpdField"})",
                           R"({"edit":["bpdField"]})",
                           R"({"edit":["bpdField",1]})",
                           R"({"edit":["bpdField","1","2"]})",
                           R"({"edit":["bpd","1"]})",
                           R"({"visit":1})",
                           R"({"visit":"nowhere"})",
                           R"({"revert":"nowhere"})",
                           R"({"answer":"Modify"})",
                           R"({"answer":[1]})",
                           R"({"do":"lastExam"})",
                           R"({"do":[]})",
                           R"({"do":[1]})",
                           R"({"do":["dealloc"]})",
                           R"({"do":["menstrualAgeForRecord"]})",
                           R"({"do":["menstrualAgeForRecord","0"]})",
                           R"({"do":["preferredFileName",1]})",
                           R"({"app":["quit"]})",
                           R"({"app":["doSetStandard"]})",
                           R"({"app":"toggleShowAll"})",
                           R"({"menu":["Standards"]})",
                           R"({"menu":["Standards",99]})",
                           R"({"menu":["Standards","None"]})",
                           R"({"menu":["Nothing",0]})",
                           R"({"choose":"0"})",
                           R"({"choose":1})",
                           R"({"choose":-1})",
                           R"({"check":"measurementsWindowBPDCheck"})",
                           R"({"check":["measurementsWindowBPDCheck",1]})",
                           R"({"check":["crlWindow",true]})",
                           R"({"cancel":true})",
                           R"({"cancel":"nowhere"})",
                           R"({"do":["checkOverwriteEDD"]})",
                           R"({"do":["checkOverwriteEDD","nowhere"]})",
                           R"({"step":"one"})",
                           R"({"tab":"0"})",
                           R"({"tab":7})",
                           R"({"tab":-1})",
                           R"({"advance":"a while"})",
                           R"({"zone":"Nowhere/Land"})",
                           R"({"zone":"../etc/passwd"})",
                           R"({"zone":1})",
                           R"({"locale":"xx_XX"})",
                           R"({"locale":""})",
                           R"({"locale":null})"}) {
    EXPECT_TRUE(isRefused(line)) << line;
  }
  EXPECT_EQ(say(R"({"state":true})")["edited"], false);
}

TEST_F(ADriver, refusesWhatNeedsADocumentWhenThereIsNone) {
  for (const char* line :
       {R"({"save":true})", R"({"save":"a.nascor"})", R"({"close":"save"})", R"({"edit":["bpdField","1"]})",
        R"({"visit":"bpdField"})", R"({"revert":"bpdField"})", R"({"do":["lastExam"]})", R"({"choose":0})",
        R"({"check":["measurementsWindowBPDCheck",true]})", R"({"cancel":"crlWindow"})", R"({"step":0})",
        R"({"tab":0})", R"({"use":0})"}) {
    EXPECT_TRUE(isRefused(line)) << line;
  }
}

TEST_F(ADriver, answersARangeErrorOfTheCoreAndGoesOn) {
  say(R"({"new":true})");
  say(R"({"do":["deleteCurrentExamination"]})");
  EXPECT_TRUE(isRefused(R"({"do":["deleteCurrentExamination"]})"));
  EXPECT_EQ(say(R"({"do":["numberOfExaminations"]})"), Json({{"result", 0}}));
}

TEST_F(ADriver, tellsAFailedSaveAndKeepsTheDocumentEdited) {
  say(R"({"new":true})");
  say(R"({"edit":["bpdField","1"]})");
  EXPECT_TRUE(isRefused(R"({"save":"no/such/folder/a.nascor"})"));
  const Json state = say(R"({"state":true})");
  EXPECT_EQ(state["edited"], true);
  EXPECT_EQ(state["blank"], true);
}

TEST_F(ADriver, emptiesItsListsWithEachState) {
  say(R"({"new":true})");
  EXPECT_FALSE(say(R"({"state":true})")["posted"].empty());
  EXPECT_TRUE(say(R"({"state":true})")["posted"].empty());
}

TEST_F(ADriver, writesWhatIsPostedBeforeAnybodyActsOnIt) {
  say(R"({"new":true})");
  say(R"({"state":true})");
  say(R"({"do":["doSetStandard",1]})");
  const Json posted = say(R"({"state":true})")["posted"];
  ASSERT_FALSE(posted.empty());
  EXPECT_EQ(posted.front(), Json({"UpdateStandards", "NCDocument"}));
  for (std::size_t i = 1; i < posted.size(); ++i) EXPECT_EQ(posted[i][0], "UpdateStandardsForEFW");
}

TEST_F(ADriver, readsNumbersThatJsonLacks) {
  say(R"({"new":true})");
  EXPECT_EQ(say(R"({"step":"inf"})"), Json({{"value", 7.0}}));
  EXPECT_EQ(say(R"({"step":"-inf"})"), Json({{"value", -280.0}}));
  EXPECT_EQ(say(R"({"step":"nan"})"), Json({{"value", "nan"}}));
  EXPECT_EQ(say(R"({"state":true})")["document"]["extrapolatedGestation"], "nan");
}

TEST_F(ADriver, revertsOnlyTheFieldThatIsNamed) {
  say(R"({"new":true})");
  say(R"({"edit":["bpdField","999"]})");
  EXPECT_EQ(say(R"({"revert":"hcField"})"), Json::object());
  EXPECT_EQ(say(R"({"revert":"notesField"})"), Json::object());
  EXPECT_EQ(say(R"({"tab":1})"), Json({{"refused", "bpdField"}}));
  EXPECT_EQ(say(R"({"revert":"bpdField"})"), Json::object());
  EXPECT_EQ(say(R"({"tab":1})"), Json::object());
}

TEST(ADriversFolder, isEmptyAtTheStartAndGoneAtTheEnd) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::path folder;
  {
    Driver driver;
    folder = std::filesystem::current_path();
    EXPECT_NE(folder, before);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    driver.answer(R"({"new":true})");
    driver.answer(R"({"save":"a.nascor"})");
    EXPECT_TRUE(std::filesystem::exists(folder / "a.nascor"));
  }
  EXPECT_EQ(std::filesystem::current_path(), before);
  EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(ADriversZone, isGivenBackAtTheEnd) {
  ::setenv("TZ", "Asia/Tokyo", 1);
  {
    Driver driver;
    EXPECT_STREQ(std::getenv("TZ"), "UTC");
    driver.answer(R"({"zone":"Europe/Paris"})");
    EXPECT_STREQ(std::getenv("TZ"), "Europe/Paris");
  }
  EXPECT_STREQ(std::getenv("TZ"), "Asia/Tokyo");
  ::unsetenv("TZ");
  { const Driver driver; }
  EXPECT_EQ(std::getenv("TZ"), nullptr);
}

TEST(ADriversClock, countsInstantsFromTheStatedMorning) {
  Driver driver;
  driver.answer(R"({"zone":"America/New_York"})");
  driver.answer(R"({"advance":3600.5})");
  driver.answer(R"({"new":true})");
  const Json state = Json::parse(driver.answer(R"({"state":true})"));
  // 2026-11-21 10:00 UTC is 816948000 s after the beginning of 2001.
  EXPECT_EQ(state["document"]["examinations"][0]["examDate"], 816951600.5);
}

TEST(ADriversCapitals, areThoseOfAllOfUnicode) {
  Driver driver;
  driver.answer(R"({"new":true})");
  for (const auto& [typed, shown] : {std::pair{"abc-xyz 1", "ABC-XYZ 1"},
                                     {"\u00e9\u00f1\u00ff", "\u00c9\u00d1\u0178"},
                                     {"stra\u00dfe", "STRASSE"},
                                     {"\ufb01", "FI"},
                                     {"\u03c3\u03c2", "\u03a3\u03a3"},
                                     {"\u0434\u0436", "\u0414\u0416"},
                                     {"\u0131i", "II"},
                                     {"\U00010428", "\U00010400"},
                                     {"\u4e2d\u05d0", "\u4e2d\u05d0"}}) {
    driver.answer(Json{{"edit", {"referenceIDField", typed}}}.dump());
    EXPECT_EQ(Json::parse(driver.answer(R"({"state":true})"))["fields"]["referenceIDField"], shown);
  }
}

struct LocaleCase {
  const char* name;
  const char* day;  ///< 2027-02-05
  const char* length;
};
class ALocaleOfTheDriver : public testing::TestWithParam<LocaleCase> {};

TEST_P(ALocaleOfTheDriver, showsItsShortDateAndItsDecimalSign) {
  Driver driver;
  const Json chosen = Json::parse(driver.answer(Json{{"locale", GetParam().name}}.dump()));
  ASSERT_EQ(chosen, Json::object());
  driver.answer(R"({"new":true})");
  driver.answer(R"({"edit":["examDateField","2027-02-05"]})");
  driver.answer(R"({"edit":["flField","30.5"]})");
  const Json fields = Json::parse(driver.answer(R"({"state":true})"))["fields"];
  EXPECT_EQ(fields["examDateField"], GetParam().day);
  EXPECT_EQ(fields["flField"], GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(
    all, ALocaleOfTheDriver,
    testing::Values(LocaleCase{"en_US", "2/5/27", "30.5"}, LocaleCase{"en_GB", "05/02/2027", "30.5"},
                    LocaleCase{"en_AU", "5/2/27", "30.5"}, LocaleCase{"de_DE", "05.02.27", "30,5"},
                    LocaleCase{"fr_FR", "05/02/2027", "30,5"}, LocaleCase{"sv_SE", "2027-02-05", "30,5"},
                    LocaleCase{"ja_JP", "2027/02/05", "30.5"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace nascor::drive
