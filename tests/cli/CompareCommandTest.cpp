// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Process.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

const std::string kTwins = NASCOR_SAMPLES "/twins.nascor";
const std::string kNoEdd = NASCOR_SAMPLES "/no-edd.nascor";

std::vector<json> compared(const std::vector<std::string>& files, const std::string& input = "") {
  std::vector<std::string> arguments{"compare", "--json"};
  arguments.insert(arguments.end(), files.begin(), files.end());
  std::vector<json> objects;
  for (const std::string& line : linesOf(run(arguments, input).out)) objects.push_back(json::parse(line));
  return objects;
}

TEST(Compare, isOneObjectADocumentExaminationAndFetus) {
  const auto objects = compared({kTwins});
  ASSERT_FALSE(objects.empty());
  for (std::size_t i = 0; i < objects.size(); ++i) {
    EXPECT_EQ(objects[i].at("file"), kTwins);
    EXPECT_EQ(objects[i].at("examination"), i / 2);
    EXPECT_EQ(objects[i].at("fetus"), i % 2);
    EXPECT_EQ(objects[i].at("lengths").size(), 4U);
    EXPECT_EQ(objects[i].at("weights").size(), 8U);
  }
  const std::string first = linesOf(run({"compare", kTwins, "--json"}).out).at(0);
  EXPECT_THAT(first,
              HasSubstr(R"(,"examination":0,"examDate":"2026-09-17","fetus":0,"weeks":16,"lengths":[)"
                        R"({"measure":"bpd","value":32.5,"references":[{"reference":"westerway","mean":)"));
  EXPECT_THAT(first, HasSubstr(R"("ratios":{"hcAC":)"));
}

TEST(Compare, placesALengthAsTheReferenceDoes) {
  const json last = compared({kTwins}).back();
  const std::string week = last.at("weeks").dump();
  for (const json& length : last.at("lengths")) {
    for (const json& figure : length.at("references")) {
      const json placed = json::parse(run({"reference", figure.at("reference"), length.at("measure"),
                                           "--week", week, "--value", length.at("value").dump(), "--json"})
                                          .out);
      for (const char* key : {"mean", "sd", "median", "z", "centile"})
        EXPECT_EQ(figure.at(key), placed.at(key)) << figure << key;
    }
  }
}

TEST(Compare, placesAWeightAndWarnsOfAnotherFormula) {
  const json last = compared({kTwins}).back();
  const std::string week = last.at("weeks").dump();
  for (const json& weight : last.at("weights")) {
    for (const json& figure : weight.at("references")) {
      const json placed = json::parse(run({"reference", figure.at("reference"), "efw", "--week", week,
                                           "--value", weight.at("efw").dump(), "--json"})
                                          .out);
      EXPECT_EQ(figure.at("z"), placed.at("z"));
      EXPECT_EQ(figure.at("centile"), placed.at("centile"));
      const bool doesNotFit =
          figure.at("reference") == "intergrowth-2020" && weight.at("formula") != "hadlock1";
      EXPECT_EQ(figure.contains("warning"), doesNotFit) << weight.at("formula") << figure;
    }
  }
}

TEST(Compare, ofADocumentWithoutAnAgeSaysSo) {
  const auto objects = compared({kNoEdd});
  ASSERT_FALSE(objects.empty());
  const json& first = objects.front();
  EXPECT_EQ(first.at("weeks"), json());
  const json& figure = first.at("lengths").at(2).at("references").at(0);
  EXPECT_EQ(figure.at("median"), json());
  EXPECT_EQ(figure.at("warning"), "the age is not known");
  EXPECT_TRUE(figure.at("weeks").is_number());
}

TEST(Compare, ofNothingMeasuredHasNullsAndNoGrowth) {
  const auto objects = compared({"-"}, document(R"({"edd":"2027-04-10","examinations":[)"
                                                R"({"examDate":"2026-11-21","measurements":[{}]}]})"));
  ASSERT_EQ(objects.size(), 1U);
  EXPECT_EQ(objects[0].at("file"), "standard input");
  for (const json& length : objects[0].at("lengths")) EXPECT_EQ(length.at("value"), json());
  for (const json& weight : objects[0].at("weights")) {
    EXPECT_EQ(weight.at("efw"), json());
    EXPECT_EQ(weight.at("difference"), json());
  }
  EXPECT_EQ(objects[0].at("ratios"), json::parse(R"({"hcAC":null,"flAC":null,"flBPD":null})"));
  EXPECT_EQ(objects[0].at("discordance"), json());
  EXPECT_EQ(objects[0].at("growth"), json::array());
}

TEST(Compare, goesOnBehindABadFile) {
  const Outcome outcome = run({"compare", "/nowhere.nascor", kTwins, "--json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, StartsWith("/nowhere.nascor: "));
  EXPECT_EQ(linesOf(outcome.out), linesOf(run({"compare", kTwins, "--json"}).out));
}

TEST(Compare, isTablesForPeople) {
  const Outcome outcome = run({"compare", kTwins});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, StartsWith(kTwins + ", examination 0, fetus 0: 2026-09-17, 16w 0d\n"));
  EXPECT_THAT(outcome.out,
              HasSubstr("\nBPD      32.5  westerway          34.0   1.50    34.0  -1.00     15.9  "));
  EXPECT_THAT(outcome.out, HasSubstr("HC/AC 1.242  FL/AC 0.203  FL/BPD 0.637  Discordance 2.5 %\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\nGrowth    Per Week  Change of z\n"));
  EXPECT_THAT(outcome.out, testing::Not(HasSubstr(" -0 ")));
}

}  // namespace
}  // namespace nascor::tests
