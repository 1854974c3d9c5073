// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Script.h"

#include <gtest/gtest.h>

#include <string>

namespace nascor::drive {
namespace {

class AScriptLine : public testing::Test {
 protected:
  Driver driver;
  Json say(const std::string& line) { return Json::parse(driver.answer(line)); }
};

TEST_F(AScriptLine, thatIsNoneIsRefusedAndNothingHappens) {
  say(R"({"new":true})");
  say(R"({"state":true})");
  for (const char* line :
       {R"({"script":"get"})", R"({"script":[]})", R"({"script":["get"]})", R"({"script":["get",1]})",
        R"({"script":["get","bpd","hc"]})", R"({"script":["get","efw"]})", R"({"script":["get","BPD"]})",
        R"({"script":["set","bpd"]})", R"({"script":["set","efw",1]})", R"({"script":["set","bpd",[45]]})",
        R"({"script":["command"]})", R"({"script":["command",1]})", R"({"script":["delete","bpd"]})",
        R"({"script":null})"}) {
    EXPECT_TRUE(say(line).contains("error")) << line;
  }
  const Json state = say(R"({"state":true})");
  EXPECT_EQ(state["edited"], false);
  EXPECT_EQ(state["log"], Json::array());
}

TEST_F(AScriptLine, aboutAPropertyNeedsADocument) {
  EXPECT_EQ(say(R"({"script":["get","gravida"]})"), Json({{"error", "there is no document"}}));
  EXPECT_EQ(say(R"({"script":["set","gravida",1]})"), Json({{"error", "there is no document"}}));
  EXPECT_EQ(say(R"({"state":true})")["log"], Json::array());
}

}  // namespace
}  // namespace nascor::drive
