// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Story.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace nascor::drive {
namespace {

using testing::HasSubstr;

class AStory : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (std::filesystem::temp_directory_path() / "nascor-story-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    folder_ = name;
    std::filesystem::create_directories(folder_ / "stories");
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  bool isWell(const std::string& text) {
    const std::filesystem::path path = folder_ / "stories" / "a.story";
    std::ofstream(path) << text;
    told_.str("");
    return playStory(path.string(), told_);
  }
  std::string told() const { return told_.str(); }

  std::filesystem::path folder_;

 private:
  std::ostringstream told_;
};

TEST_F(AStory, isWellWhenAllAnswersAreAsExpected) {
  EXPECT_TRUE(
      isWell("A new window\n\n{\"new\":true}\n=> {\"number\":0}\n  {\"state\":true}\n  =~ {\"tab\":0}\n"))
      << told();
  EXPECT_EQ(told(), "");
}

TEST_F(AStory, tellsTheLineWhoseAnswerIsAnother) {
  EXPECT_FALSE(isWell("Prose\n{\"new\":true}\n=> {\"number\":1}\n"));
  EXPECT_THAT(told(), HasSubstr("a.story:3: expected {\"number\":1}\n  answered {\"number\":0}"));
}

TEST_F(AStory, wantsTheWholeAnswerOrAPartOfIt) {
  EXPECT_FALSE(isWell("{\"new\":true}\n{\"state\":true}\n=> {\"tab\":0}\n"));
  EXPECT_TRUE(isWell("{\"new\":true}\n{\"state\":true}\n=~ {\"tab\":0,\"fields\":{\"bpdField\":\"0.0\"}}\n"))
      << told();
  EXPECT_FALSE(
      isWell("{\"new\":true}\n{\"state\":true}\n=~ {\"tab\":0,\"fields\":{\"bpdField\":\"0.1\"}}\n"));
  EXPECT_FALSE(isWell("{\"new\":true}\n{\"state\":true}\n=~ {\"nothing\":0}\n"));
  EXPECT_TRUE(isWell("{\"new\":true}\n{\"state\":true}\n=~ {\"nothing\":\"<none>\"}\n")) << told();
  EXPECT_FALSE(isWell("{\"new\":true}\n{\"state\":true}\n=~ {\"tab\":\"<none>\"}\n"));
}

TEST_F(AStory, mayLeaveOutAnyTextAndTheRestOfAList) {
  const auto part = [&](const std::string& expected) {
    return isWell("{\"new\":true}\n{\"do\":[\"addFetus\"]}\n{\"state\":true}\n=~ " + expected + "\n");
  };
  EXPECT_TRUE(part(R"({"popup":{"titles":["Twin 1","..."]}})")) << told();
  EXPECT_TRUE(part(R"({"popup":{"titles":["T...1","...in...","..."]}})")) << told();
  EXPECT_TRUE(part(R"({"popup":{"titles":["...","Twin 2"]}})")) << told();
  EXPECT_FALSE(part(R"({"popup":{"titles":["Twin 1"]}})"));
  EXPECT_FALSE(part(R"({"popup":{"titles":["Twin 1","Twin 2","Twin 3","..."]}})"));
  EXPECT_FALSE(part(R"({"popup":{"titles":["Quad...","..."]}})"));
  EXPECT_FALSE(part(R"({"popup":{"titles":["...2","..."]}})"));
  EXPECT_FALSE(part(R"({"popup":{"titles":["Twin 1...1","..."]}})"));
}

TEST_F(AStory, failsOnAnErrorThatIsNotExpected) {
  EXPECT_FALSE(isWell("{\"tab\":0}\n{\"new\":true}\n=> {\"number\":0}\n"));
  EXPECT_THAT(told(), HasSubstr("a.story:1: an error was not expected"));
  EXPECT_FALSE(isWell("{\"new\":true}\n=> {\"number\":0}\n{\"tab\":9}\n"));
  EXPECT_TRUE(isWell("{\"tab\":0}\n=~ {\"error\":\"...\"}\n")) << told();
}

TEST_F(AStory, failsWhenAnExpectationIsNoneOrThereIsNone) {
  EXPECT_FALSE(isWell("{\"new\":true}\n=>{\"number\":0}\n"));
  EXPECT_FALSE(isWell("{\"new\":true}\n== {\"number\":0}\n"));
  EXPECT_FALSE(isWell("=> {\"number\":0}\n"));
  EXPECT_FALSE(isWell("{\"new\":true}\n=> {number:0}\n"));
  EXPECT_FALSE(isWell("{\"new\":true}\n"));
  EXPECT_THAT(told(), HasSubstr("nothing was expected"));
  EXPECT_FALSE(isWell(""));
}

TEST_F(AStory, findsItsDataBesideItsFolder) {
  std::filesystem::create_directories(folder_ / "data");
  std::ofstream(folder_ / "data" / "x.nascor") << "no document";
  EXPECT_TRUE(isWell("{\"open\":\"$DATA/x.nascor\"}\n=~ {\"error\":\"$DATA/x.nascor: at byte 0...\"}\n"))
      << told();
}

TEST_F(AStory, thatIsNotThereIsNotWell) {
  std::ostringstream told;
  EXPECT_FALSE(playStory((folder_ / "none.story").string(), told));
  EXPECT_THAT(told.str(), HasSubstr("cannot be read"));
}

}  // namespace
}  // namespace nascor::drive
