// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientPage.h"

#include <gmock/gmock.h>

namespace nascor::model {
namespace {

using testing::ElementsAre;

TEST(ThePagesOfAPatient, haveTheirNumbersNamesAndWords) {
  std::vector<std::string> pages;
  for (const PatientPageFacts& each : kPatientPages) {
    pages.push_back(std::to_string(indexOf(each.page)) + " " + std::string(each.name) + " " +
                    std::string(each.word));
  }
  EXPECT_THAT(pages, ElementsAre("0 Trends trends", "1 BPD bpd", "2 HC hc", "3 AC ac", "4 FL fl",
                                 "5 Weight weight", "6 Report report"));
}

TEST(ThePagesOfAPatient, areFoundByTheirNumbers) {
  EXPECT_EQ(patientPageAt(0), PatientPage::trends);
  EXPECT_EQ(patientPageAt(6), PatientPage::report);
  EXPECT_EQ(patientPageAt(-1), std::nullopt);
  EXPECT_EQ(patientPageAt(7), std::nullopt);
}

TEST(ThePagesOfAPatient, knowTheOneLengthThatTheyShow) {
  for (const calc::Measurement length : calc::kMeasurements) {
    std::vector<std::string_view> words;
    for (const PatientPageFacts& each : kPatientPages) {
      if (each.length == length) words.push_back(each.word);
    }
    EXPECT_THAT(words, ElementsAre(calc::nameOf(length)));
  }
}

struct ChoiceCase {
  const char* name;
  const char* text;
  std::vector<PatientPage> pages;
};
class PagesOfAText : public testing::TestWithParam<ChoiceCase> {};

TEST_P(PagesOfAText, areRead) {
  const ChosenPages chosen = chosenPages(GetParam().text);
  EXPECT_EQ(chosen.refused, std::nullopt);
  EXPECT_EQ(chosen.pages, GetParam().pages);
}

INSTANTIATE_TEST_SUITE_P(
    texts, PagesOfAText,
    testing::Values(ChoiceCase{"all",
                               "All",
                               {PatientPage::trends, PatientPage::bpd, PatientPage::hc, PatientPage::ac,
                                PatientPage::fl, PatientPage::weight, PatientPage::report}},
                    ChoiceCase{"ends", "first,last", {PatientPage::trends, PatientPage::report}},
                    ChoiceCase{"numbers", "6,0", {PatientPage::report, PatientPage::trends}},
                    ChoiceCase{"names",
                               "weight,bpd,report",
                               {PatientPage::weight, PatientPage::bpd, PatientPage::report}},
                    ChoiceCase{"capitals",
                               "BPD,Weight,LAST",
                               {PatientPage::bpd, PatientPage::weight, PatientPage::report}},
                    ChoiceCase{"twice", "hc,2", {PatientPage::hc, PatientPage::hc}}),
    [](const auto& row) { return std::string(row.param.name); });

struct RefusalCase {
  const char* name;
  const char* text;
  const char* refused;
};
class ATextOfNoPages : public testing::TestWithParam<RefusalCase> {};

TEST_P(ATextOfNoPages, isRefusedAtItsFirstSuchWord) {
  EXPECT_EQ(chosenPages(GetParam().text).refused, GetParam().refused);
}

INSTANTIATE_TEST_SUITE_P(
    texts, ATextOfNoPages,
    testing::Values(RefusalCase{"tooGreat", "7", "7"}, RefusalCase{"negative", "-1", "-1"},
                    RefusalCase{"sign", "+", "+"}, RefusalCase{"twoDigits", "0,05", "05"},
                    RefusalCase{"empty", "", ""}, RefusalCase{"gap", "1,,2", ""},
                    RefusalCase{"commaAtTheEnd", "1,", ""}, RefusalCase{"blank", "bpd, hc", " hc"},
                    RefusalCase{"allAmongOthers", "bpd,all", "all"},
                    RefusalCase{"asItWasTyped", "bpd,Chart,x", "Chart"}, RefusalCase{"braces", "{", "{"},
                    RefusalCase{"letters", "[bpd", "[bpd"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace nascor::model
