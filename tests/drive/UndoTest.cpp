// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "drive/Driver.h"

namespace nascor::drive {
namespace {

/// Works at random in one document, goes back and forth, and knows which patients there were.
class Walk {
 public:
  explicit Walk(unsigned seed) : random_(seed) {
    say({{"zone", "Europe/Berlin"}});
    say({{"new", true}});
    timeline_.push_back(patient());
  }

  void act() {
    ++actions_;
    const std::size_t kind = pick(10);
    if (kind < 3) {
      goBack();
    } else if (kind < 5) {
      goForth();
    } else {
      say(chosenLine());
      const std::string now = patient();
      if (now == timeline_[at_]) return;
      timeline_.resize(++at_);
      timeline_.push_back(now);
    }
  }

  void goBack() {
    const bool isPossible = !say({{"do", {"undoName"}}})["result"].is_null();
    EXPECT_EQ(isPossible, at_ > 0) << where();
    say({{"do", {"undo"}}});
    if (at_ > 0) --at_;
    EXPECT_EQ(patient(), timeline_[at_]) << where();
    ++back_;
  }

  void goForth() {
    const bool isPossible = !say({{"do", {"redoName"}}})["result"].is_null();
    EXPECT_EQ(isPossible, at_ + 1 < timeline_.size()) << where();
    say({{"do", {"redo"}}});
    if (isPossible) ++at_;
    EXPECT_EQ(patient(), timeline_[at_]) << where();
    forth_ += isPossible ? 1 : 0;
  }

  bool isAtStart() const { return at_ == 0; }
  int timesBack() const { return back_; }
  int timesForth() const { return forth_; }
  bool isEdited() { return say({{"state", true}})["edited"].get<bool>(); }
  std::string saved(const std::string& name) {
    say({{"save", name}});
    std::ifstream file(name, std::ios::binary);  // the driver works in its own folder
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  Json say(const Json& line) {
    line_ = line.dump();
    Json answer = Json::parse(driver_.answer(line_));
    EXPECT_FALSE(answer.contains("error")) << line_ << " " << answer.dump();
    return answer;
  }
  std::string patient() { return say({{"state", true}})["document"].dump(); }
  std::size_t pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  std::string where() const { return "action " + std::to_string(actions_) + ": " + line_; }

  Json chosenLine() {
    const auto operation = [](const std::string& name) { return Json{{"do", {name}}}; };
    const std::string number = std::to_string(pick(150));
    const std::vector<std::string> lengths{"bpdField", "hcField", "acField", "flField"};
    switch (pick(17)) {
      case 0:
        say({{"edit", {"notesField", "note " + number}}});
        return {{"visit", "bpdField"}};  // which leaves the note
      case 1:
        say({{"answer", {"Modify"}}});
        return {{"edit", {"birthDateField", "3/" + std::to_string(1 + pick(28)) + "/27"}}};
      case 2: return {{"edit", {"examDateField", "1/" + std::to_string(1 + pick(28)) + "/27"}}};
      case 3: return {{"edit", {"referenceIDField", "ID " + number}}};
      case 4: say({{"answer", {"Remove"}}}); return operation("deleteFetus");
      case 5: return operation("addFetus");
      case 6: say({{"answer", {"Remove"}}}); return operation("deleteExaminationAction");
      case 7: return operation("addExaminationAction");
      case 8: return operation("nextExamination");
      case 9: return operation("previousExamination");
      case 10: return {{"do", {"doSetStandard", pick(4)}}};
      case 11: return {{"do", {"doSetEFWStandard", pick(8)}}};
      case 12: return {{"step", -static_cast<int>(pick(30))}};
      case 13: return {{"script", {"set", "hc", static_cast<int>(pick(300))}}};
      default: return {{"edit", {lengths[pick(lengths.size())], number + ".5"}}};
    }
  }

  Driver driver_;
  std::mt19937 random_;
  std::string line_;
  std::vector<std::string> timeline_;
  std::size_t at_ = 0;
  int actions_ = 0;
  int back_ = 0;
  int forth_ = 0;
};

TEST(AWalkBackAndForth, returnsByteForByte) {
  // In ./test as many as take a second or two; by hand as many as one likes.
  const char* wanted = std::getenv("NASCOR_ACTIONS");
  const int actions = wanted != nullptr ? std::atoi(wanted) : 500;
  Walk walk(20270304);
  const std::string bytes = walk.saved("start.nascor");
  ASSERT_FALSE(bytes.empty());
  for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) walk.act();
  while (!walk.isAtStart() && !testing::Test::HasFailure()) walk.goBack();
  EXPECT_FALSE(walk.isEdited()) << "nothing differs from the file any more";
  EXPECT_EQ(walk.saved("end.nascor"), bytes);
  EXPECT_GT(walk.timesBack(), actions / 10);
  EXPECT_GT(walk.timesForth(), actions / 20);
}

}  // namespace
}  // namespace nascor::drive
