// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <nlohmann/json.hpp>

#include "Process.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<json> answers(std::vector<std::string> arguments, const std::string& input = "") {
  arguments.insert(arguments.begin(), "reference");
  arguments.emplace_back("--json");
  std::vector<json> values;
  for (const std::string& line : linesOf(run(std::move(arguments), input).out))
    values.push_back(json::parse(line));
  return values;
}

json answer(std::vector<std::string> arguments) {
  const auto all = answers(std::move(arguments));
  EXPECT_EQ(all.size(), 1U);
  return all.at(0);
}

TEST(ListOfReferences, isOneObjectALineInOrder) {
  const auto all = answers({});
  std::vector<std::string> names;
  for (const json& reference : all) names.push_back(reference.at("name"));
  EXPECT_THAT(names, ElementsAre("westerway", "hadlock", "schluter", "cfef", "intergrowth-2014",
                                 "intergrowth-2020", "hadlock-1991", "who-2017"));
  const std::string first = linesOf(run({"reference", "--json"}).out).at(4);
  EXPECT_THAT(first, StartsWith(R"x({"name":"intergrowth-2014","label":"INTERGROWTH-21st (2014)",)x"
                                R"x("measures":["bpd","hc","ac","fl"],"firstWeek":14,"lastWeek":40,)x"
                                R"x("form":"mean-sd","assumes":"BPD measured from outer to outer edge)x"));
  EXPECT_THAT(first, HasSubstr(R"x(,"doi":"10.1016/S0140-6736(14)61490-2"})x"));
  EXPECT_EQ(all[2].at("doi"), json());
  EXPECT_EQ(all[7].at("measures"), json::parse(R"(["bpd","hc","ac","fl","efw"])"));
  for (const json& reference : all) EXPECT_NE(reference.at("citation"), "");
}

TEST(ListOfReferences, isATableForPeople) {
  const Outcome outcome = run({"reference"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, StartsWith("Name              Label "));
  EXPECT_THAT(outcome.out,
              HasSubstr("\nwho-2017          WHO (2017)               bpd, hc, ac, fl, efw  14 to 40"));
  EXPECT_THAT(outcome.out, HasSubstr("doi:10.1371/journal.pmed.1002220\n"));
}

TEST(AReference, tellsMeanAndMedianOfAWeekAlone) {
  EXPECT_EQ(run({"reference", "cfef", "bpd", "--week", "16", "--json"}).out,
            R"({"reference":"cfef","measure":"bpd","week":16,"value":null,"mean":34.53,"sd":2.275,)"
            R"("median":34.53,"z":null,"centile":null})"
            "\n");
}

TEST(AReference, hasTheBitsOfTheLookUpForAGrowthStandard) {
  for (const char* standard : {"westerway", "hadlock", "schluter", "cfef"}) {
    for (const char* measure : {"bpd", "hc", "ac", "fl"}) {
      const std::string week = "23.142857142857142";
      const auto lookUp = [&](const char* what) {
        return json::parse(run({"lookup", standard, measure, what, week, "--json"}).out);
      };
      const double mean = lookUp("--mean");
      const double sd = lookUp("--sd");
      const json placed = answer({standard, measure, "--week", week, "--value", "81.3"});
      EXPECT_EQ(placed.at("mean"), mean);
      EXPECT_EQ(placed.at("sd"), sd);
      EXPECT_EQ(placed.at("z"), (81.3 - mean) / sd);
      EXPECT_EQ(answer({standard, measure, "--week", week, "--z", "-1.7"}).at("value"), mean + -1.7 * sd);
    }
  }
}

TEST(AReference, repeatsTheCentileOrTheZThatIsAsked) {
  const json byCentile = answer({"hadlock-1991", "efw", "--week", "30", "--centile", "10"});
  EXPECT_EQ(byCentile.at("centile"), 10);
  EXPECT_NEAR(byCentile.at("z"), -1.2815515655446005, 1e-12);
  EXPECT_NEAR(byCentile.at("value"), 1294, 2.3) << "as printed";
  const json byZ = answer({"hadlock-1991", "efw", "--week", "30", "--z", "-.5"});
  EXPECT_EQ(byZ.at("z"), -0.5);
  EXPECT_NEAR(byZ.at("centile"), 30.853753872598688, 1e-9);
}

TEST(AReference, keepsTheDigitsOfTheTails) {
  const json far = answer({"westerway", "bpd", "--week", "20", "--value", "36.014"});
  // z is -6 to a hair; the share below it, in arithmetic of 40 digits.
  EXPECT_NEAR(far.at("z"), -6.0, 1e-9);
  EXPECT_NEAR(far.at("centile").get<double>() / 9.8658764503769814e-8, 1.0, 1e-6);
}

TEST(AReference, ofCurvesHasNeitherMeanNorZ) {
  const json placed = answer({"who-2017", "ac", "--week", "14", "--value", "90"});
  EXPECT_EQ(placed.at("mean"), json());
  EXPECT_EQ(placed.at("sd"), json());
  EXPECT_EQ(placed.at("z"), json());
  EXPECT_NEAR(placed.at("centile"), 91.5, 0.05);
  EXPECT_FALSE(placed.contains("warning"));

  const json byZ = answer({"who-2017", "ac", "--week", "14", "--z", "1"});
  EXPECT_EQ(byZ.at("value"), json());
  EXPECT_EQ(byZ.at("z"), json());
  EXPECT_THAT(byZ.at("warning").get<std::string>(), HasSubstr("no z"));
}

TEST(AReference, ofCurvesEndsAtTheOutermost) {
  const auto placed = [](const std::string& value) {
    return answer({"who-2017", "hc", "--week", "30", "--value", value}).at("centile");
  };
  const auto valueOf = [](const char* centile) {
    return answer({"who-2017", "hc", "--week", "30", "--centile", centile});
  };
  EXPECT_EQ(placed("100"), "<1");
  EXPECT_EQ(placed("500"), ">99");
  EXPECT_EQ(placed(valueOf("1").at("value").dump()), 1);
  EXPECT_EQ(placed(valueOf("99").at("value").dump()), 99);
  EXPECT_EQ(valueOf("1").at("z"), json());
  for (const char* beyond : {"0.99", "99.01"}) {
    EXPECT_EQ(valueOf(beyond).at("value"), json());
    EXPECT_TRUE(valueOf(beyond).contains("warning"));
  }
}

struct End {
  const char* reference;
  const char* measure;
  int first;
  int last;
};
class EndOfAReference : public testing::TestWithParam<End> {};

TEST_P(EndOfAReference, belongsToItAndNothingLiesBeyond) {
  const auto& [reference, measure, first, last] = GetParam();
  for (const int week : {first, last}) {
    const json inside = answer({reference, measure, "--week", std::to_string(week), "--value", "90"});
    EXPECT_TRUE(inside.at("median").is_number());
    EXPECT_FALSE(inside.contains("warning"));
  }
  for (const std::string& week : {std::to_string(first - 1) + ".999", std::to_string(last) + ".001"}) {
    const Outcome outcome = run({"reference", reference, measure, "--week", week, "--value", "90", "--json"});
    EXPECT_EQ(outcome.status, 0);
    json outside = json::parse(outcome.out);
    EXPECT_THAT(outside.at("warning").get<std::string>(),
                HasSubstr(std::to_string(first) + " to " + std::to_string(last) + " weeks"));
    for (const char* key : {"week", "value", "mean", "sd", "median", "z", "centile"})
      EXPECT_EQ(outside.at(key), json()) << key;
  }
}

INSTANTIATE_TEST_SUITE_P(table, EndOfAReference,
                         testing::Values(End{"westerway", "bpd", 11, 41}, End{"hadlock", "hc", 12, 40},
                                         End{"schluter", "ac", 11, 41}, End{"cfef", "fl", 16, 40},
                                         End{"intergrowth-2014", "ac", 14, 40},
                                         End{"intergrowth-2020", "efw", 18, 41},
                                         End{"hadlock-1991", "efw", 10, 40}, End{"who-2017", "efw", 14, 40}));

struct WrongQuestion {
  const char* name;
  std::vector<std::string> arguments;
  const char* sentence;
};
class WrongQuestionToAReference : public testing::TestWithParam<WrongQuestion> {};

TEST_P(WrongQuestionToAReference, isWrongUsageInOneSentence) {
  std::vector<std::string> arguments{"reference"};
  arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
  const Outcome outcome = run(arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  const auto lines = linesOf(outcome.err);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_THAT(lines[0], HasSubstr(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    table, WrongQuestionToAReference,
    testing::Values(
        WrongQuestion{"unknown", {"who-2018", "efw", "--week", "30"}, "did you mean \"who-2017\"?"},
        WrongQuestion{"notOffered", {"fmf-2018", "efw", "--week", "30"}, "fmf-2018 is not offered"},
        WrongQuestion{"number", {"0", "bpd", "--week", "30"}, "expected one of westerway, hadlock"},
        WrongQuestion{
            "lacking", {"westerway", "efw", "--week", "30"}, "tells nothing of efw; it has bpd, hc"},
        WrongQuestion{"lackingLength", {"hadlock-1991", "bpd", "--week", "30"}, "tells nothing of bpd"},
        WrongQuestion{"noMeasure", {"who-2017", "crl", "--week", "30"}, "expected bpd, hc, ac, fl or efw"},
        WrongQuestion{"missingMeasure", {"who-2017"}, "MEASURE is missing"},
        WrongQuestion{"missingName", {"--week", "30"}, "NAME is missing"},
        WrongQuestion{"missingWeek", {"cfef", "bpd", "--value", "50"}, "--week is missing"},
        WrongQuestion{
            "two", {"cfef", "bpd", "--week", "20", "--value", "50", "--z", "1"}, "exclude each other"},
        WrongQuestion{"twoOthers",
                      {"cfef", "bpd", "--week", "20", "--centile", "50", "--z", "1"},
                      "exclude each other"},
        WrongQuestion{"zero", {"cfef", "bpd", "--week", "20", "--value", "0"}, "a number above 0"},
        WrongQuestion{"negative", {"cfef", "bpd", "--week", "20", "--value", "-5"}, "a number above 0"},
        WrongQuestion{"infinite", {"cfef", "bpd", "--week", "20", "--value", "inf"}, "a decimal number"},
        WrongQuestion{"notANumber", {"cfef", "bpd", "--week", "nan"}, "a decimal number"},
        WrongQuestion{"noCentile", {"cfef", "bpd", "--week", "20", "--centile", "0"}, "between 0 and 100"},
        WrongQuestion{
            "allCentiles", {"cfef", "bpd", "--week", "20", "--centile", "100"}, "between 0 and 100"},
        WrongQuestion{"bothRead", {"cfef", "bpd", "--week", "-", "--value", "-"}, "cannot both be -"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AReference, takesItsNameAndMeasureInLettersOfAnySize) {
  EXPECT_EQ(run({"reference", "WHO-2017", "Efw", "--week", "20", "--json"}).out,
            run({"reference", "who-2017", "efw", "--week", "20", "--json"}).out);
}

TEST(AReference, answersEachLineOfStandardInput) {
  const auto weeks = answers({"westerway", "bpd", "--week", "-", "--value", "47"}, "20\n 21 \n10\n");
  ASSERT_EQ(weeks.size(), 3U);
  EXPECT_EQ(weeks[0], answer({"westerway", "bpd", "--week", "20", "--value", "47"}));
  EXPECT_EQ(weeks[1], answer({"westerway", "bpd", "--week", "21", "--value", "47"}));
  EXPECT_EQ(weeks[2], answer({"westerway", "bpd", "--week", "10", "--value", "47"}));
  EXPECT_EQ(answers({"westerway", "bpd", "--week", "20", "--value", "-"}, "47").at(0), weeks[0]);
  EXPECT_EQ(answers({"westerway", "bpd", "--week", "20", "--z", "-"}, "-.5\n").at(0),
            answer({"westerway", "bpd", "--week", "20", "--z", "-0.5"}));
  EXPECT_EQ(answers({"westerway", "bpd", "--week", "20", "--centile", "-"}, "25\n").at(0),
            answer({"westerway", "bpd", "--week", "20", "--centile", "25"}));
}

TEST(AReference, answersALineThatIsNoNumberByNullsAndGoesOn) {
  const Outcome outcome =
      run({"reference", "westerway", "bpd", "--week", "20", "--value", "-", "--json"}, "4x\n-3\n47\n");
  EXPECT_EQ(outcome.status, 1);
  const auto lines = linesOf(outcome.out);
  ASSERT_EQ(lines.size(), 3U);
  for (const std::size_t line : {0U, 1U}) {
    const json bad = json::parse(lines[line]);
    for (const char* key : {"week", "value", "mean", "sd", "median", "z", "centile"})
      EXPECT_EQ(bad.at(key), json()) << key;
    EXPECT_TRUE(bad.contains("warning"));
  }
  EXPECT_TRUE(json::parse(lines[2]).at("z").is_number());
  EXPECT_THAT(outcome.err, HasSubstr("line 1: expected a decimal number, but \"4x\""));
  EXPECT_THAT(outcome.err, HasSubstr("expected a number above 0, but -3 was given"));
}

TEST(AReference, isAKeyALineForPeople) {
  EXPECT_EQ(run({"reference", "cfef", "bpd", "--week", "16", "--centile", "50"}).out,
            "reference: cfef\nmeasure: bpd\nweek: 16\nvalue: 34.53\nmean: 34.53\nsd: 2.275\nmedian: 34.53\n"
            "z: 0\ncentile: 50\n");
  EXPECT_THAT(run({"reference", "cfef", "bpd", "--week", "15"}).out,
              HasSubstr("\ncentile: -\nwarning: 15 weeks lie outside cfef, which has 16 to 40 weeks\n"));
}

}  // namespace
}  // namespace nascor::tests
