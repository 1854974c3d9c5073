// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/SelfTestCommand.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Process.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::HasSubstr;

TEST(SelfTest, tellsALineAGroupAndTheTotal) {
  const Outcome outcome = run({"self-test"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const auto lines = linesOf(outcome.out);
  const std::vector<std::string> groups{
      "weights",      "crl",      "standards", "look-ups", "dating",           "archive",
      "westerway",    "hadlock",  "schluter",  "cfef",     "intergrowth-2014", "intergrowth-2020",
      "hadlock-1991", "who-2017", "total"};
  ASSERT_EQ(lines.size(), groups.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].substr(0, lines[i].find('\t')), groups[i]);
    EXPECT_TRUE(lines[i].ends_with("\t0")) << lines[i];
  }
  EXPECT_GE(std::stoi(lines.back().substr(lines.back().find('\t') + 1)), 500);
}

TEST(SelfTest, isAnObjectAGroupInJson) {
  const auto lines = linesOf(run({"self-test", "--json"}).out);
  std::size_t values = 0;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    values += json::parse(lines[i]).at("values").get<std::size_t>();
  EXPECT_EQ(json::parse(lines.back()), json({{"group", "total"}, {"values", values}, {"differences", 0}}));
}

/// What is told of the examples, and whether the status would be 0.
struct Told {
  std::string out;
  std::string err;
  bool allWell = false;
};
Told toldOf(const std::vector<selftest::Example>& examples) {
  Told told;
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const foundation::EnglishLocalizer english;
  cli::Console console(english);
  cli::printSelfTest(examples, false, console);
  console.flush();
  told.allWell = console.allWell();
  told.err = testing::internal::GetCapturedStderr();
  told.out = testing::internal::GetCapturedStdout();
  return told;
}

TEST(SelfTest, complainsOfAWrongNumberThatIsPlanted) {
  auto examples = selftest::examples();
  EXPECT_TRUE(toldOf(examples).allWell);
  examples.front().expected += 1.0;
  const Told told = toldOf(examples);
  EXPECT_FALSE(told.allWell);
  EXPECT_THAT(told.out, HasSubstr(std::string(examples.front().group) + "\t"));
  EXPECT_TRUE(told.out.ends_with("\t1\n")) << told.out;
  const std::string all = std::to_string(examples.size());
  EXPECT_EQ(told.err, "self-test: 1 of " + all + " values differs\n");
  examples.back().expected += 1.0;
  EXPECT_EQ(toldOf(examples).err, "self-test: 2 of " + all + " values differ\n");
}

}  // namespace
}  // namespace nascor::tests
