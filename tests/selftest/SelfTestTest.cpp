// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "selftest/SelfTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

#include "calc/References.h"

namespace nascor::selftest {
namespace {

std::string nameOf(const Example& example) {
  return std::string(example.group) + " " + std::to_string(static_cast<int>(example.question)) + " of " +
         std::to_string(example.which) + "/" + std::to_string(example.quantity) + " at " +
         std::to_string(example.given[0]) + ", " + std::to_string(example.given[1]) + ": " +
         std::to_string(answerTo(example)) + " for " + std::to_string(example.expected);
}

TEST(WorkedExamples, areWhatTheProgramAnswers) {
  for (const Example& example : examples()) EXPECT_TRUE(agrees(example)) << nameOf(example);
}

TEST(WorkedExamples, areNumerousInEachGroupAndNameTheirSources) {
  EXPECT_GE(examples().size(), 500U);
  std::map<std::string_view, std::size_t> counts;
  for (const Example& example : examples()) {
    ++counts[example.group];
    EXPECT_NE(example.source, "") << nameOf(example);
  }
  EXPECT_EQ(counts.size(), groups().size());
  for (const std::string_view group : groups()) EXPECT_GE(counts[group], 20U) << group;
}

TEST(WorkedExamples, holdThePrintedTablesWhole) {
  const auto count = [](std::string_view group, std::size_t quantity) {
    return std::ranges::count_if(printedExamples(), [&](const Example& example) {
      return example.group == group && example.quantity == quantity;
    });
  };
  for (std::size_t quantity = 0; quantity < 4; ++quantity) {
    EXPECT_EQ(count("intergrowth-2014", quantity), 378);
    EXPECT_EQ(count("standards", quantity), 50);
  }
  EXPECT_EQ(count("intergrowth-2020", 4), 24 * 5);
  EXPECT_EQ(count("hadlock-1991", 4), 31 * 5);
  EXPECT_EQ(count("who-2017", 0) + count("who-2017", 2) + count("who-2017", 4), 9);
}

// How near the tables of print are, so that a tolerance hides no slip.
TEST(WorkedExamples, areAsNearToPrintAsItsRoundingLets) {
  std::map<std::string_view, double> farthest;
  for (const Example& example : printedExamples()) {
    double& distance = farthest[example.group];
    distance = std::max(distance, std::abs(answerTo(example) - example.expected));
  }
  EXPECT_NEAR(farthest["intergrowth-2014"], 0.073, 0.0005);
  EXPECT_NEAR(farthest["intergrowth-2020"], 0.490, 0.0005);
  EXPECT_NEAR(farthest["hadlock-1991"], 2.170, 0.0005);
  EXPECT_LT(farthest["who-2017"], 0.05);
  EXPECT_EQ(farthest["standards"], 0.0);
}

TEST(AReplay, tellsEachGroupAndTheirTotal) {
  const auto results = replay(examples());
  ASSERT_EQ(results.size(), groups().size() + 1);
  std::size_t values = 0;
  for (std::size_t i = 0; i < groups().size(); ++i) {
    EXPECT_EQ(results[i].group, groups()[i]);
    EXPECT_EQ(results[i].differences, 0U) << results[i].group;
    values += results[i].values;
  }
  EXPECT_EQ(results.back().group, "total");
  EXPECT_EQ(results.back().values, values);
  EXPECT_EQ(values, examples().size());
}

TEST(AReplay, ofEachReferenceHasItsGroup) {
  for (const calc::Reference& reference : calc::references())
    EXPECT_NE(std::ranges::find(groups(), reference.name), groups().end()) << reference.name;
}

// A wrong number in the place of any one of them is found, in its own group and in no other.
TEST(AReplay, findsEachNumberThatIsWrong) {
  const auto right = examples();
  for (std::size_t i = 0; i < right.size(); ++i) {
    Example wrong = right[i];
    wrong.expected = answerTo(wrong) + (wrong.tolerance > 0.0 ? 2.0 * wrong.tolerance : 0.001);
    EXPECT_FALSE(agrees(wrong)) << nameOf(wrong);
  }
}

TEST(AReplay, countsADifferenceInItsGroupAlone) {
  auto planted = examples();
  const auto found = std::ranges::find(planted, "hadlock-1991", &Example::group);
  ASSERT_NE(found, planted.end());
  found->expected += 10.0;
  for (const GroupResult& result : replay(planted)) {
    const bool isTouched = result.group == "hadlock-1991" || result.group == "total";
    EXPECT_EQ(result.differences, isTouched ? 1U : 0U) << result.group;
  }
}

TEST(AnAnswer, thatIsMissingAgreesWithNothing) {
  const Example beforeItsWeeks{.group = "who-2017",
                               .question = Question::median,
                               .which = 7,
                               .quantity = 0,
                               .given = {13.0},
                               .expected = 0.0,
                               .tolerance = 1e300,
                               .source = "none"};
  EXPECT_FALSE(agrees(beforeItsWeeks));
}

}  // namespace
}  // namespace nascor::selftest
