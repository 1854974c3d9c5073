// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Process.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::HasSubstr;

// Lengths at the means of the fourth standard, so that the projection is the mean too; the second twin was not measured
// at last. EDD 2027-04-10, so 20 weeks on 2026-11-21 and 32 weeks on 2027-02-13.
const std::string kTwins =
    R"({"maternalIDString":"AB-123","edd":"2027-04-10","standard":3,"fetalWeightStandard":4,
  "numberOfFetuses":2,"extrapolatedGestation":39,"gravida":2,"examinations":[
  {"examDate":"2026-11-21","measurements":[{"bpd":48.22,"hc":172.47,"ac":151.4,"fl":32.23},{"bpd":25.25,"ac":75.75}]},
  {"examDate":"2027-02-13","measurements":[{"bpd":80.16,"hc":285.29,"ac":272,"fl":61.11},{}]}]})";

TEST(Report, isATableOfEachFetus) {
  const Outcome outcome = run({"report", "-"}, document(kTwins));
  EXPECT_EQ(outcome.status, 0);
  // Campbell: 348.8 g at 151.4 mm, 1930.0 g at 272 mm, 3166.0 g at the mean of 39 weeks, 332.4 mm.
  EXPECT_EQ(outcome.out,
            R"(File:                 standard input
Identifier:           AB-123
Gravida:              2
Date:                 2027-02-13
EDD:                  2027-04-10
Menstrual Age:        32w 0d
Days to Go:           0 (-7)
Nascor Standard:      CFEF (Biométrie 2000)
Fetal Weight Formula: Campbell (AC)

Fetus:                Twin 1
Exam Date   Menstrual Age  BPD (mm)  HC (mm)  AC (mm)  FL (mm)  EFW (g)
2026-11-21  20w 0d             48.2    172.5    151.4     32.2      349
2027-02-13  32w 0d             80.2    285.3    272.0     61.1     1930
Projected   39w 0d             92.1    321.9    332.4     72.5     3166

Fetus:                Twin 2
Exam Date   Menstrual Age  BPD (mm)  HC (mm)  AC (mm)  FL (mm)  EFW (g)
2026-11-21  20w 0d             25.2      0.0     75.8      0.0        -
2027-02-13  32w 0d              0.0      0.0      0.0      0.0        -
Projected   39w 0d             92.1    321.9    332.4     72.5     3166
)");
}

TEST(Report, asJsonHasUnroundedNumbersAndTheTextsBesideThem) {
  const Outcome outcome = run(Call{.arguments = {"report", "-", "--json"}, .input = document(kTwins)});
  EXPECT_EQ(linesOf(outcome.out).size(), 1U);
  const json report = json::parse(outcome.out);
  EXPECT_EQ(report["maternalIDString"], "AB-123");
  EXPECT_EQ(report["gravida"], 2);
  EXPECT_EQ(report["eddText"], "2027-04-10");
  EXPECT_EQ(report["standard"], 3);
  EXPECT_EQ(report["standardText"], "CFEF (Biométrie 2000)");
  EXPECT_EQ(report["fetalWeightStandardText"], "Campbell (AC)");
  EXPECT_EQ(report["numberOfFetuses"], 2);
  EXPECT_EQ(report["extrapolatedGestation"], 39);
  EXPECT_EQ(report["extrapolatedGestationText"], "39w 0d");
  EXPECT_EQ(report["lastExamDateText"], "2027-02-13");
  EXPECT_EQ(report["lastAge"], 32);
  EXPECT_EQ(report["lastAgeText"], "32w 0d");
  EXPECT_EQ(report["projectionIsShown"], true);
  EXPECT_EQ(report["deliveryAdjustment"], -7);
  EXPECT_EQ(report["daysToGoText"], "0 (-7)");

  ASSERT_EQ(report["fetuses"].size(), 2U);
  const json& first = report["fetuses"][0];
  EXPECT_EQ(first["fetus"], 1);
  EXPECT_EQ(first["fetusText"], "Twin 1");
  ASSERT_EQ(first["examinations"].size(), 2U);
  const json& row = first["examinations"][0];
  EXPECT_EQ(row["examination"], 1);
  EXPECT_EQ(row["examDateText"], "2026-11-21");
  EXPECT_EQ(row["age"], 20);
  EXPECT_EQ(row["ageText"], "20w 0d");
  EXPECT_EQ(row["ac"], 151.39999389648438) << "as a file holds 151.4";
  EXPECT_EQ(row["acText"], "151.4");
  EXPECT_NEAR(row["efw"].get<double>(), 348.8069, 0.001);
  EXPECT_EQ(row["efwText"], "349");
  EXPECT_NEAR(first["projected"]["ac"].get<double>(), 332.4, 1e-4);
  EXPECT_EQ(first["projected"]["acText"], "332.4");
  EXPECT_EQ(first["projected"]["age"], 39);
  const json& unmeasured = report["fetuses"][1]["examinations"][1];
  EXPECT_EQ(unmeasured["efw"], 0);
  EXPECT_EQ(unmeasured["efwText"], "-");
  EXPECT_NEAR(report["fetuses"][1]["projected"]["ac"].get<double>(), 332.4, 1e-9) << "the mean itself";
}

/// A singleton whose last examination is `days` days after the first day of the pregnancy.
std::string singleton(const std::string& examDate, const std::string& more = "") {
  return R"({"edd":"2027-04-10",)" + more + R"("examinations":[{"examDate":")" + examDate +
         R"(","measurements":[{"bpd":70,"hc":260,"ac":240,"fl":53}]}]})";
}

TEST(Report, projectsFrom30WeeksToThePlannedDelivery) {
  struct Case {
    const char* examDate;
    const char* more;
    bool isShown;
  };
  for (const auto& [examDate, more, isShown] :
       {Case{"2027-01-29", "", false},                                  // 29w 6d
        Case{"2027-01-30", "", true},                                   // 30w
        Case{"2027-04-09", "", true},                                   // 39w 6d
        Case{"2027-04-10", "", false},                                  // 40w
        Case{"2027-01-30", "\"extrapolatedGestation\":30,", false}}) {  // reached
    const std::string text = run({"report", "-"}, document(singleton(examDate, more))).out;
    EXPECT_EQ(text.find("\nProjected ") != std::string::npos, isShown) << examDate << more;
    EXPECT_EQ(text.find("\nDays to Go: ") != std::string::npos, isShown) << examDate << more;
  }
}

TEST(Report, showsNoAdjustmentOfADeliveryAt40Weeks) {
  EXPECT_THAT(run({"report", "-"}, document(singleton("2027-01-30"))).out,
              HasSubstr("\nDays to Go:           0\n"));
}

// A file holds the gestation in single precision: 39 weeks and 3 days come back a little short of that. The window takes a
// plan near a whole day as that day, and one later than the standard permits as the latest; so does the report.
TEST(Report, plansTheDeliveryAsTheWindowDoes) {
  struct Case {
    const char* more;
    const char* text;
    double days;
  };
  for (const auto& [more, text, days] :
       {Case{R"("extrapolatedGestation":39.42857142857143,)", "39w 3d", -4.0},
        Case{R"("extrapolatedGestation":40.14285714285714,)", "40w 1d", 1.0},
        Case{R"("extrapolatedGestation":42,)", "41w 0d", 7.0},
        Case{R"("standard":3,"extrapolatedGestation":40.5,)", "40w 0d", 0.0}}) {
    const std::string stored = document(singleton("2027-01-30", more));
    const json report = json::parse(run({"report", "-", "--json"}, stored).out);
    EXPECT_EQ(report["extrapolatedGestationText"], text) << more;
    EXPECT_NEAR(report["deliveryAdjustment"].get<double>(), days, 1e-12) << more;
    EXPECT_NEAR(report["extrapolatedGestation"].get<double>(), 40.0 + days / 7.0, 1e-12) << more;
    EXPECT_THAT(run({"report", "-"}, stored).out, HasSubstr(std::string("\nProjected   ") + text)) << more;
  }
}

TEST(Report, doesWithoutDatesAndExaminations) {
  const std::string text =
      run({"report", "-"}, document(R"({"examinations":[{"measurements":[{"bpd":45.25}]}]})")).out;
  EXPECT_THAT(text, HasSubstr("\nDate:\nEDD:                  -\nMenstrual Age:        -\nNascor"));
  EXPECT_THAT(text, HasSubstr("\n           -                  45.2      0.0      0.0      0.0        -\n"));

  const Outcome empty = run({"report", "-"}, document("{}"));
  EXPECT_EQ(empty.status, 0);
  EXPECT_THAT(empty.out, HasSubstr("\nFetus:                Singleton\nExam Date"));
  const json asJson = json::parse(run({"report", "-", "--json"}, document("{}")).out);
  EXPECT_EQ(asJson["edd"], json());
  EXPECT_EQ(asJson["lastExamDate"], json());
  EXPECT_EQ(asJson["fetuses"][0]["examinations"], json::array());
  EXPECT_EQ(asJson["fetuses"][0]["projected"], json());
}

TEST(Report, bearsUnknownStandards) {
  const std::string text =
      run({"report", "-"}, document(singleton("2027-01-30", R"("standard":9,"fetalWeightStandard":8,)"))).out;
  EXPECT_THAT(text, HasSubstr("\nNascor Standard:\nFetal Weight Formula:\n"));
  EXPECT_THAT(text, HasSubstr("\nProjected   40w 0d              "));
}

std::vector<std::string> fetusesOf(const std::string& patient) {
  std::vector<std::string> labels;
  for (const std::string& line : linesOf(run({"report", "-"}, document(patient)).out)) {
    if (line.starts_with("Fetus:")) labels.push_back(line.substr(22));
  }
  return labels;
}

TEST(Report, labelsTheFetuses) {
  using testing::ElementsAre;
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":3})"),
              ElementsAre("Triplet 1 of 3", "Triplet 2 of 3", "Triplet 3 of 3"));
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":5})"), testing::SizeIs(5));
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":0})"), testing::IsEmpty());
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":1,"examinations":[{"measurements":[{},{}]}]})"),
              ElementsAre("Singleton", "Fetus 2 of 1"));
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":7,"examinations":[{"measurements":[{},{},{},{},{},{}]}]})"),
              ElementsAre("Fetus 1 of 7", "Fetus 2 of 7", "Fetus 3 of 7", "Fetus 4 of 7", "Fetus 5 of 7",
                          "Fetus 6 of 7"));
  EXPECT_THAT(fetusesOf(R"({"numberOfFetuses":2147483647})"), testing::SizeIs(5)) << "not endless";
}

TEST(Report, listsAFetusBeyondTheCountOnlyWhereItHasARecord) {
  const json report =
      json::parse(run({"report", "-", "--json"},
                      document(R"({"examinations":[{"measurements":[{},{}]},{},{"measurements":[{}]}]})"))
                      .out);
  ASSERT_EQ(report["fetuses"].size(), 2U);
  EXPECT_EQ(report["fetuses"][0]["examinations"].size(), 3U);
  EXPECT_EQ(report["fetuses"][1]["examinations"].size(), 1U);
}

TEST(Report, separatesSeveralDocumentsByAnEmptyLine) {
  const ScratchFolder folder;
  const std::string file = folder.write("a.nascor", document("{}"));
  const std::string alone = run({"report", file}).out;
  EXPECT_EQ(run({"report", file, file}).out, alone + "\n" + alone);
  EXPECT_EQ(linesOf(run({"report", file, file, "--json"}).out).size(), 2U);
}

TEST(Report, keepsAHostileIdentifierOnItsLine) {
  EXPECT_THAT(run({"report", "-"}, document(R"({"maternalIDString":"a\nb\u001b[2J"})")).out,
              HasSubstr("\nIdentifier:           a\\nb\\x1b[2J\n"));
}

}  // namespace
}  // namespace nascor::tests
