// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "drive/Driver.h"
#include "model/PatientPage.h"
#include "support/Spent.h"

namespace nascor::drive {
namespace {

using model::PatientPage;
using model::placeOf;

constexpr int kActions = tests::kIsSlowed ? 1000 : 5000;
constexpr std::size_t kMostExaminations = 6;
constexpr std::size_t kMostWindows = 3;
const std::vector<std::string> kLengths{"bpd", "hc", "ac", "fl"};

struct Player {
  unsigned seed;
  const char* zone;
  const char* locale;
  char decimalSign;
};

/// A number of tenths as a field shows it. Only such numbers are typed.
std::string shownNumber(double value, char decimalSign) {
  const auto tenths = static_cast<std::int64_t>(std::llround(value * 10.0));
  return std::to_string(tenths / 10) + decimalSign + std::to_string(tenths % 10);
}

/// Does one thing after the other, at random, and knows what each may change. It keeps no patient of its own: what must hold
/// after an action is said from what was there before.
class RandomUser {
 public:
  explicit RandomUser(const Player& player) : player_(player), random_(player.seed) {
    say({{"zone", player.zone}});
    say({{"locale", player.locale}});
    newWindow();
  }

  void act() {
    before_ = last_;
    if (refusing_.empty()) {
      chooseAction();
    } else {
      actWhileAFieldRefuses();
    }
    ++actions_;
    if (actions_ % 4 == 0 && refusing_.empty()) checkThatFieldsAndRecordsAgree();
  }

  const std::map<std::string, int>& counts() const { return counts_; }

 private:
  Json say(const Json& line) {
    line_ = line.dump();
    Json answer = Json::parse(driver_.answer(line_));
    EXPECT_FALSE(answer.contains("error")) << line_ << " " << answer.dump();
    return answer;
  }

  /// What stands now; the lists of what has happened are taken out of it.
  Json state() {
    last_ = Json::parse(driver_.answer(R"({"state":true})"));
    asked_ = last_["alerts"];
    for (std::size_t i = 0; i < asked_.size() && !answers_.empty(); ++i) answers_.pop_front();
    for (const char* list : {"alerts", "posted", "log", "exports", "prints", "opened", "effects"})
      last_.erase(list);
    return last_;
  }

  std::size_t pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  bool chance(double of) { return std::bernoulli_distribution(of)(random_); }
  void count(const std::string& kind, bool tookEffect = true) { counts_[kind] += tookEffect ? 1 : 0; }
  std::size_t examinations() const { return before_["document"]["examinations"].size(); }
  std::size_t fetuses() const { return before_["document"]["numberOfFetuses"].get<std::size_t>(); }
  std::size_t currentExam() const { return before_["currentExam"].get<std::size_t>(); }
  std::size_t currentFetus() const { return before_["currentFetus"].get<std::size_t>(); }

  void queue(const std::string& button) {
    answers_.push_back(button);
    say({{"answer", {button}}});
  }
  /// How the next question will be answered: with `button`, unless an answer to an earlier one was not needed.
  const std::string& nextAnswer(const std::string& button) {
    if (answers_.empty()) queue(button);
    return answers_.front();
  }

  // What an action must leave: each examination as its note and the lengths of each fetus.

  Json expectedExaminations() const { return examinationsNow(before_); }
  Json examinationsNow(const Json& now) const {
    Json found = now["document"]["examinations"];
    for (Json& examination : found) examination.erase("examDate"), examination.erase("examDateISO");
    return found;
  }
  static Json sorted(Json list) {
    std::vector<std::string> texts;
    for (const Json& each : list) texts.push_back(each.dump());
    std::ranges::sort(texts);
    return texts;
  }
  static Json zeroes() { return {{"bpd", 0}, {"hc", 0}, {"ac", 0}, {"fl", 0}}; }

  enum class Order { same, any };
  /// A note that was typed waits in its field until an action stores the fields: then it belongs to the examination that was
  /// on show.
  enum class Note { isStored, mayBeStored, isSettled };

  void expectExaminations(const Json& now, Json expected, Order order = Order::same,
                          Note note = Note::mayBeStored) {
    Json found = examinationsNow(now);
    Json withNote = expected;
    if (note != Note::isSettled) withNote[currentExam()]["note"] = before_["fields"]["notesField"];
    if (order == Order::any) {
      found = sorted(found);
      expected = sorted(expected);
      withNote = sorted(withNote);
    }
    EXPECT_TRUE((note != Note::isStored && found == expected) || found == withNote)
        << where() << "\nbefore   " << before_.dump() << "\nexpected " << expected.dump() << "\nfound    "
        << found.dump();
  }

  std::string where() const {
    return "seed " + std::to_string(player_.seed) + ", action " + std::to_string(actions_) + ": " + line_;
  }

  void checkInvariants(const Json& now) {
    const Json& patient = now["document"];
    const auto fetuses = patient["numberOfFetuses"].get<std::size_t>();
    EXPECT_GE(fetuses, 1U) << where();
    EXPECT_LE(fetuses, 5U) << where();
    EXPECT_EQ(now["popup"]["titles"].size(), fetuses) << where();
    EXPECT_EQ(now["popup"]["selected"], now["currentFetus"]) << where();
    EXPECT_LT(now["currentFetus"].get<std::int64_t>(), static_cast<std::int64_t>(fetuses)) << where();
    EXPECT_GE(now["currentFetus"].get<std::int64_t>(), 0) << where();
    const Json& examinations = patient["examinations"];
    EXPECT_GE(examinations.size(), 1U) << where();
    EXPECT_GE(now["currentExam"].get<std::int64_t>(), 0) << where();
    EXPECT_LT(now["currentExam"].get<std::size_t>(), examinations.size()) << where();
    double last = -HUGE_VAL;
    for (const Json& examination : examinations) {
      EXPECT_EQ(examination["measurements"].size(), fetuses) << where();
      const double date =
          examination["examDate"].is_null() ? -HUGE_VAL : examination["examDate"].get<double>();
      EXPECT_LE(last, date) << where() << " " << examinations.dump();
      last = date;
    }
  }

  /// After the fields were stored and read back they show what the records hold.
  void checkThatFieldsAndRecordsAgree() {
    before_ = last_;
    say({{"do", {"synchronizeToData"}}});
    say({{"do", {"synchronizeFromData"}}});
    const Json now = state();
    checkInvariants(now);
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    const Json& fields = now["fields"];
    const Json& patient = now["document"];
    const Json& examination = patient["examinations"][now["currentExam"].get<std::size_t>()];
    const Json& measured = examination["measurements"][now["currentFetus"].get<std::size_t>()];
    for (const std::string& length : kLengths) {
      EXPECT_EQ(fields[length + "Field"], shownNumber(measured[length].get<double>(), player_.decimalSign))
          << where() << " " << length;
    }
    EXPECT_EQ(fields["referenceIDField"], patient["maternalIDString"]) << where();
    EXPECT_EQ(fields["gravidaField"], std::to_string(patient["gravida"].get<std::int64_t>())) << where();
    EXPECT_EQ(fields["notesField"], examination["note"]) << where();
    EXPECT_EQ(fields["birthDateField"] == "", patient["edd"].is_null()) << where();
    EXPECT_EQ(fields["examDateField"] == "", examination["examDate"].is_null()) << where();
    count("synchronised");
  }

  void chooseAction() {
    using Action = void (RandomUser::*)();
    static const std::vector<std::pair<int, Action>> actions{{24, &RandomUser::typeALength},
                                                             {8, &RandomUser::typeAWrongLength},
                                                             {10, &RandomUser::typeAnExamDate},
                                                             {8, &RandomUser::typeAnEDD},
                                                             {4, &RandomUser::typeAnIdentity},
                                                             {5, &RandomUser::typeAGravidity},
                                                             {6, &RandomUser::typeANote},
                                                             {5, &RandomUser::visit},
                                                             {9, &RandomUser::chooseAFetus},
                                                             {8, &RandomUser::addAFetus},
                                                             {8, &RandomUser::deleteAFetus},
                                                             {8, &RandomUser::addAnExamination},
                                                             {8, &RandomUser::deleteAnExamination},
                                                             {12, &RandomUser::goToAnotherExamination},
                                                             {6, &RandomUser::click},
                                                             {8, &RandomUser::clickOnAPage},
                                                             {5, &RandomUser::useADialog},
                                                             {6, &RandomUser::step},
                                                             {5, &RandomUser::turnThePage},
                                                             {7, &RandomUser::useTheMenu},
                                                             {6, &RandomUser::save},
                                                             {4, &RandomUser::closeAndReopen},
                                                             {10, &RandomUser::meetAPatient},
                                                             {4, &RandomUser::useAnotherWindow},
                                                             {2, &RandomUser::waitForDays},
                                                             {3, &RandomUser::sayNonsense}};
    int sum = 0;
    for (const auto& [weight, action] : actions) sum += weight;
    int at = std::uniform_int_distribution<int>(0, sum - 1)(random_);
    for (const auto& [weight, action] : actions) {
      at -= weight;
      if (at < 0) return (this->*action)();
    }
  }

  // Typing

  void typeALength() {
    const std::string length = kLengths[pick(kLengths.size())];
    const double value = static_cast<double>(pick(2001)) / 10.0;
    const Json answer = say({{"edit", {length + "Field", shownNumber(value, player_.decimalSign)}}});
    EXPECT_EQ(answer, Json({{"began", true}, {"ended", true}})) << where();
    const Json now = state();
    checkInvariants(now);
    Json expected = expectedExaminations();
    expected[currentExam()]["measurements"][currentFetus()][length] = value;
    expectExaminations(now, expected, Order::same, Note::isStored);
    count("length typed");
  }

  void typeAWrongLength() {
    const std::string field = kLengths[pick(kLengths.size())] + "Field";
    const std::vector<std::string> wrong{"-0.1", "600.1", "9999", "ten", "1e1", "4..5"};
    const Json answer = say({{"edit", {field, wrong[pick(wrong.size())]}}});
    EXPECT_EQ(answer, Json({{"began", true}, {"ended", false}})) << where();
    const Json now = state();
    EXPECT_EQ(now["fields"], before_["fields"]) << where();
    expectExaminations(now, expectedExaminations());
    refusing_ = field;
    count("length refused");
  }

  void typeAnExamDate() {
    const std::string text = chance(0.1) ? "some day" : randomDay();
    say({{"edit", {"examDateField", text}}});
    const Json now = state();
    checkInvariants(now);
    expectExaminations(now, expectedExaminations(), Order::any, Note::isStored);
    if (now["currentExam"] != before_["currentExam"]) count("sorted");
    count("exam date typed");
  }

  void typeAnEDD() {
    const bool isAsked = !before_["document"]["edd"].is_null();
    const bool mayModify = !isAsked || nextAnswer(chance(0.5) ? "Modify" : "Cancel") == "Modify";
    const Json answer = say({{"edit", {"birthDateField", chance(0.1) ? "" : randomDay()}}});
    EXPECT_EQ(answer["began"], mayModify) << where();
    const Json now = state();
    EXPECT_EQ(asked_.size(), isAsked ? 1U : 0U) << where();
    checkInvariants(now);
    expectExaminations(now, expectedExaminations());
    count(mayModify ? "EDD typed" : "EDD kept");
  }

  void typeAnIdentity() {
    const std::vector<std::string> identities{"", "A", "B/1", "C 2", "ü%1"};
    say({{"edit", {"referenceIDField", identities[pick(identities.size())]}}});
    const Json now = state();
    checkInvariants(now);
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("identity typed");
  }

  void typeAGravidity() {
    const bool isAsked = before_["document"]["gravida"] != 0;
    nextAnswer(isAsked ? "Modify" : chance(0.5) ? "Open" : "Cancel");
    say({{"edit", {"gravidaField", std::to_string(pick(5))}}});
    const Json now = state();
    checkInvariants(now);
    if (now["number"] != before_["number"]) {
      // The patient's own document took the window's place.
      windows_.erase(std::ranges::find(windows_, before_["number"].get<std::int64_t>()));
      if (std::ranges::find(windows_, now["number"].get<std::int64_t>()) == windows_.end()) {
        windows_.push_back(now["number"].get<std::int64_t>());
      }
      const auto told = asked_.back()[1].get<std::string>();
      files_[now["number"].get<std::int64_t>()] = told.substr(0, told.find('\n'));
      count("patient found");
      return;
    }
    expectExaminations(now, expectedExaminations());
    count("gravidity typed");
  }

  void typeANote() {
    const std::string text = "note " + std::to_string(pick(1000));
    say({{"edit", {"notesField", text}}});
    const Json now = state();
    EXPECT_EQ(now["fields"]["notesField"], text) << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isSettled);
    count("note typed");
  }

  void visit() {
    const std::vector<std::string> fields{"bpdField", "gravidaField", "birthDateField", "notesField",
                                          "lmpWindowLMP"};
    say({{"visit", fields[pick(fields.size())]}});
    Json now = state();
    EXPECT_EQ(asked_.size(), 0U) << where();
    // Entering another field leaves the note, which is stored then.
    const Json& examinations = before_["document"]["examinations"];
    if (examinations[currentExam()]["note"] != before_["fields"]["notesField"]) {
      EXPECT_EQ(now["fields"], before_["fields"]) << where();
      expectExaminations(now, expectedExaminations());
    } else {
      EXPECT_EQ(now, before_) << where();
    }
    count("field visited");
  }

  std::string randomDay() {
    const auto two = [](std::size_t number) { return std::to_string(100 + number).substr(1); };
    std::string day = "202" + std::to_string(6 + pick(2));
    day.append("-").append(two(1 + pick(12))).append("-").append(two(1 + pick(28)));
    return day;
  }

  /// A field refuses: nothing else is done until its text is good or given back.
  void actWhileAFieldRefuses() {
    const Json refused{{"refused", refusing_}};
    switch (pick(8)) {
      case 0: EXPECT_EQ(say({{"choose", 0}}), refused) << where(); break;
      case 1: EXPECT_EQ(say({{"step", 1}}), refused) << where(); break;
      case 2: EXPECT_EQ(say({{"tab", 1}}), refused) << where(); break;
      case 3: EXPECT_EQ(say({{"save", "never.nascor"}}), refused) << where(); break;
      case 4: EXPECT_EQ(say({{"menu", {"Standards", 2}}}), refused) << where(); break;
      case 5:
        EXPECT_EQ(say({{"edit", {"examDateField", "1"}}}), Json({{"began", false}, {"ended", false}}))
            << where();
        break;
      case 6:
        say({{"revert", refusing_}});
        refusing_.clear();
        count("text given back");
        break;
      default:
        EXPECT_EQ(say({{"edit", {refusing_, "12"}}}), Json({{"began", true}, {"ended", true}})) << where();
        Json expected = expectedExaminations();
        expected[currentExam()]["measurements"][currentFetus()][refusing_.substr(0, refusing_.find('F'))] =
            12.0;
        refusing_.clear();
        expectExaminations(state(), expected);
        count("text corrected");
        return;
    }
    const Json now = state();
    EXPECT_EQ(now["document"]["standard"], before_["document"]["standard"]) << where();
    EXPECT_EQ(now["fields"], before_["fields"]) << where();
    expectExaminations(now, expectedExaminations());
    count("held back");
  }

  // Fetuses and examinations

  void chooseAFetus() {
    const std::size_t fetus = pick(fetuses());
    say({{"choose", fetus}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(now["currentFetus"], fetus) << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("fetus chosen", fetus != currentFetus());
  }

  void addAFetus() {
    say({{"do", {"addFetus"}}});
    const Json now = state();
    checkInvariants(now);
    Json expected = expectedExaminations();
    if (fetuses() < 5) {
      for (Json& examination : expected) examination["measurements"].push_back(zeroes());
      EXPECT_EQ(now["currentFetus"], fetuses()) << where();
      count("fetus added");
    }
    expectExaminations(now, expected);
  }

  void deleteAFetus() {
    const bool isAsked = fetuses() > 1;
    const bool removes = isAsked && nextAnswer(chance(0.9) ? "Remove" : "Cancel") == "Remove";
    say({{"do", {"deleteFetus"}}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(asked_.size(), isAsked ? 1U : 0U) << where();
    for (const std::string& length : kLengths) {
      EXPECT_EQ(now["fields"][length + "Field"], before_["fields"][length + "Field"]) << where();
    }
    Json expected = expectedExaminations();
    if (removes) {
      for (Json& examination : expected) examination["measurements"].erase(currentFetus());
      count("fetus removed");
    }
    expectExaminations(now, expected);
  }

  void addAnExamination() {
    if (examinations() >= kMostExaminations) return;
    say({{"do", {"addExaminationAction"}}});
    const Json now = state();
    checkInvariants(now);
    Json expected = expectedExaminations();
    Json added{{"note", ""}, {"measurements", Json::array()}};
    for (std::size_t i = 0; i < fetuses(); ++i) added["measurements"].push_back(zeroes());
    expected.push_back(added);
    expectExaminations(now, expected, Order::any, Note::isStored);
    EXPECT_EQ(examinationsNow(now)[now["currentExam"].get<std::size_t>()], added) << where();
    count("examination added");
  }

  void deleteAnExamination() {
    Json expected = expectedExaminations();
    expected[currentExam()]["note"] = before_["fields"]["notesField"];
    bool holdsData = expected[currentExam()]["note"] != "";
    for (const Json& fetus : expected[currentExam()]["measurements"])
      holdsData = holdsData || fetus != zeroes();
    const bool isAsked = examinations() > 1 && holdsData;
    const bool removes =
        examinations() > 1 && (!isAsked || nextAnswer(chance(0.8) ? "Remove" : "Cancel") == "Remove");
    say({{"do", {"deleteExaminationAction"}}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(asked_.size(), isAsked ? 1U : 0U) << where();
    if (removes) {
      expected.erase(currentExam());
      count("examination deleted");
    }
    expectExaminations(now, expected, Order::same, Note::isSettled);
  }

  void goToAnotherExamination() {
    say({{"do", {chance(0.5) ? "nextExamination" : "previousExamination"}}});
    const Json now = state();
    checkInvariants(now);
    const bool moved = now["currentExam"] != before_["currentExam"];
    expectExaminations(now, expectedExaminations(), Order::same, moved ? Note::isStored : Note::mayBeStored);
    count("examination chosen", moved);
  }

  void click() {
    say({{"do", {"setCurrentRecordFromClick", static_cast<double>(pick(400)) / 10.0}}});
    const Json now = state();
    checkInvariants(now);
    const bool isDated = !before_["document"]["edd"].is_null();
    EXPECT_EQ(now["displays"] != before_["displays"], isDated) << where();
    expectExaminations(now, expectedExaminations(), Order::same,
                       isDated ? Note::isStored : Note::mayBeStored);
    count("clicked", isDated);
  }

  /// Most clicks are near the mean of the BPD, where the band is; the others anywhere.
  void clickOnAPage() {
    std::size_t page = pick(model::kPatientPages.size());
    auto x = static_cast<double>(pick(800));
    auto y = static_cast<double>(pick(560));
    if (chance(0.8)) {
      page = placeOf(PatientPage::bpd);
      const double week = 14.0 + static_cast<double>(pick(26));
      x = 60.0 + (week - 8.0) / 34.0 * 720.0;
      y = 495.0 - (-31.546 + 4.69 * week - 0.0371 * week * week) / 120.0 * 460.0;
    }
    const std::size_t presses = chance(0.2) ? 3 : 1 + pick(2);
    say({{"click", {page, x, y, presses}}});
    const Json now = state();
    checkInvariants(now);
    const bool isDated = !before_["document"]["edd"].is_null();
    if (!isDated || presses != 1) {
      EXPECT_EQ(now["currentExam"], before_["currentExam"]) << where();
    }
    constexpr std::size_t kTrends = placeOf(PatientPage::trends);
    if (presses == 2 && page == kTrends) {
      EXPECT_LE(now["tab"], placeOf(PatientPage::fl)) << where();
    } else if (presses != 2 || page == placeOf(PatientPage::report)) {
      EXPECT_EQ(now["tab"], page) << where();
    } else {
      EXPECT_TRUE(now["tab"] == page || now["tab"] == kTrends) << where();
    }
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("page clicked");
    count("clicked to another page", now["tab"] != page);
  }

  void useADialog() {
    const std::size_t which = pick(3);
    const std::string from =
        std::vector<std::string>{"EDDfromCRL", "EDDfromLMP", "EDDfromMeasurements"}[which];
    const std::string window =
        std::vector<std::string>{"crlWindow", "lmpWindow", "measurementsWindow"}[which];
    const bool isAsked = !before_["document"]["edd"].is_null();
    const bool goesOn = !isAsked || nextAnswer(chance(0.8) ? "Modify" : "Cancel") == "Modify";
    say({{"do", {"doSet" + from}}});
    if (goesOn && which == 0) {
      say({{"edit", {"crlWindowDate", randomDay()}}});
      const double crl = 10.0 + static_cast<double>(pick(690)) / 10.0;
      say({{"edit", {"crlWindowCRL", shownNumber(crl, player_.decimalSign)}}});
    } else if (goesOn && which == 1) {
      say({{"edit", {"lmpWindowLMP", randomDay()}}});
      say({{"edit", {"lmpWindowCycleField", std::to_string(21 + pick(20))}}});
    } else if (goesOn) {
      say({{"check", {"measurementsWindowACCheck", chance(0.5)}}});
    }
    if (goesOn) say({{"do", {"okSet" + from}}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(asked_.size(), isAsked ? 1U : 0U) << where();
    const bool isDated =
        which != 2 || !before_["document"]["examinations"][currentExam()]["examDate"].is_null();
    if (goesOn && isDated) {
      EXPECT_EQ(now["windows"][window], false) << where();
      EXPECT_FALSE(now["document"]["edd"].is_null()) << where();
      EXPECT_NE(now["fields"]["birthDateField"], "") << where();
    } else {
      EXPECT_EQ(now["document"]["edd"], before_["document"]["edd"]) << where();
      if (goesOn) say({{"cancel", window}});
    }
    expectExaminations(now, expectedExaminations(), Order::same,
                       goesOn && isDated ? Note::isStored : Note::mayBeStored);
    count("dialog confirmed", goesOn && isDated);
  }

  // The rest of the window

  void step() {
    const double days = static_cast<double>(pick(60)) - 45.0;
    const Json answer = say({{"step", days}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(answer["value"], std::min(days, now["stepper"]["maximum"].get<double>())) << where();
    EXPECT_EQ(now["document"]["extrapolatedGestation"], answer["value"].get<double>() / 7.0 + 40.0)
        << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("stepped");
  }

  void turnThePage() {
    const std::size_t page = pick(model::kPatientPages.size());
    say({{"tab", page}});
    const Json now = state();
    EXPECT_EQ(now["tab"], page) << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("page turned");
  }

  void useTheMenu() {
    const std::vector<std::pair<std::string, std::string>> menus{
        {"Standards", "standard"},
        {"Estimated Fetal Weight", "fetalWeightStandard"},
        {"Crown Rump Length", "crlStandard"}};
    if (chance(0.4)) {
      say({{"menu", {"View", "Show All"}}});
      expectExaminations(state(), expectedExaminations());
      count("show all");
      return;
    }
    const auto& [menu, key] = menus[pick(menus.size())];
    const std::size_t tag = pick(4);
    const Json answer = say({{"menu", {menu, tag}}});
    EXPECT_EQ(answer["enabled"], true) << where();
    EXPECT_EQ(answer["state"], before_["document"][key] == tag ? 1 : 0) << where();
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(now["document"][key], tag) << where();
    EXPECT_GE(now["stepper"]["maximum"].get<double>(), now["stepper"]["value"].get<double>()) << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("standard chosen");
  }

  // Windows and files

  void newWindow() {
    windows_.push_back(say({{"new", true}})["number"].get<std::int64_t>());
    checkInvariants(state());
    count("window opened");
  }

  void closeAWindow() {
    const auto number = before_["number"].get<std::int64_t>();
    EXPECT_EQ(say({{"close", "discard"}}), Json({{"closed", true}})) << where();
    windows_.erase(std::ranges::find(windows_, number));
    files_.erase(number);
    EXPECT_NE(state()["number"], number) << where();
    count("window closed");
  }

  void meetAPatient() {
    if (windows_.size() == kMostWindows) closeAWindow();
    newWindow();
    before_ = last_;
    typeAnIdentity();
    before_ = last_;
    typeAGravidity();
  }

  void useAnotherWindow() {
    const std::int64_t number = windows_[pick(windows_.size())];
    say({{"use", number}});
    const Json now = state();
    checkInvariants(now);
    EXPECT_EQ(now["number"], number) << where();
    count("window changed", before_["number"] != number);
  }

  void save() {
    const auto number = before_["number"].get<std::int64_t>();
    std::string title = before_["fields"]["referenceIDField"].get<std::string>();
    std::ranges::replace(title, '/', '-');
    const auto gravida = before_["document"]["gravida"].get<std::int64_t>();
    // Each window has a file of its own, so that none is written by two.
    const std::string path = title + " (G" + std::to_string(gravida) + ").nascor";
    const auto holder = std::ranges::find(files_, path, &std::pair<const std::int64_t, std::string>::second);
    if (holder != files_.end() && holder->first != number) return;
    say({{"save", path}});
    files_[number] = path;
    const Json now = state();
    EXPECT_EQ(now["edited"], false) << where();
    EXPECT_EQ(now["blank"], false) << where();
    expectExaminations(now, expectedExaminations(), Order::same, Note::isStored);
    count("saved");
  }

  void closeAndReopen() {
    const auto number = before_["number"].get<std::int64_t>();
    const auto file = files_.find(number);
    if (file == files_.end()) return;
    say({{"save", file->second}});
    before_ = state();
    say({{"close", "cancel"}});
    const Json answer = say({{"open", file->second}});
    const Json now = state();
    checkInvariants(now);
    windows_.erase(std::ranges::find(windows_, number));
    windows_.push_back(answer["number"].get<std::int64_t>());
    files_[answer["number"].get<std::int64_t>()] = file->second;
    files_.erase(number);
    EXPECT_EQ(now["edited"], false) << where();
    // A file holds lengths in single precision, so the texts are compared.
    const auto shown = [&](const Json& examinations) {
      Json texts = Json::array();
      for (const Json& examination : examinations) {
        for (const Json& fetus : examination["measurements"]) {
          for (const std::string& length : kLengths) {
            texts.push_back(shownNumber(fetus[length].get<double>(), player_.decimalSign));
          }
        }
        texts.push_back(examination["note"]);
      }
      return texts;
    };
    EXPECT_EQ(shown(now["document"]["examinations"]), shown(before_["document"]["examinations"])) << where();
    EXPECT_EQ(now["fields"]["birthDateField"], before_["fields"]["birthDateField"]) << where();
    EXPECT_EQ(now["fields"]["adjustDeliverOnField"] == "", before_["document"]["edd"].is_null()) << where();
    count("reopened");
  }

  void waitForDays() {
    say({{"advance", 86400.0 * static_cast<double>(pick(20))}});
    EXPECT_EQ(state(), before_) << where();
    count("waited");
  }

  void sayNonsense() {
    const std::vector<std::string> lines{R"({"tab":7})",
                                         R"({"choose":9})",
                                         R"({"edit":["nowhereField","x"]})",
                                         R"({"do":["nothing"]})",
                                         R"({"open":"nowhere.nascor"})",
                                         "{",
                                         R"({"use":-1})"};
    line_ = lines[pick(lines.size())];
    EXPECT_TRUE(Json::parse(driver_.answer(line_)).contains("error")) << where();
    const Json now = state();
    checkInvariants(now);
    expectExaminations(now, expectedExaminations());
    count("nonsense refused");
  }

  Driver driver_;
  Player player_;
  std::mt19937 random_;
  int actions_ = 0;
  std::string line_;
  Json before_;
  std::string refusing_;
  Json asked_;
  Json last_;
  std::deque<std::string> answers_;
  std::vector<std::int64_t> windows_;
  std::map<std::int64_t, std::string> files_;
  std::map<std::string, int> counts_;
};

TEST(ARandomUser, neverMovesANumberToAnotherFetusOrExamination) {
  const std::vector<Player> players{{1, "UTC", "en_US", '.'},
                                    {2, "America/New_York", "de_DE", ','},
                                    {3, "Australia/Sydney", "en_GB", '.'},
                                    {4, "Europe/Paris", "sv_SE", ','}};
  std::map<std::string, int> counts;
  for (const Player& player : players) {
    RandomUser user(player);
    for (int i = 0; i < kActions && !HasFailure(); ++i) user.act();
    for (const auto& [kind, count] : user.counts()) counts[kind] += count;
    if (HasFailure()) return;
  }
  // An action that never took effect tests nothing.
  for (const auto& [kind, count] : counts) EXPECT_GE(count, tests::kIsSlowed ? 20 : 200) << kind;
  EXPECT_EQ(counts.size(), 36U);
}

// Another walk each time, in another place. NASCOR_WALK_SECONDS says how long; NASCOR_WALK_SEED walks one again.
TEST(ARandomUser, movesNothingInAnyZoneAndAnyLocale) {
  const std::array zones{"Pacific/Pago_Pago", "America/St_Johns", "America/Sao_Paulo", "Africa/Casablanca",
                         "Europe/Berlin",     "Asia/Kathmandu",   "Asia/Tokyo",        "Australia/Lord_Howe",
                         "Pacific/Apia",      "Pacific/Chatham",  "Pacific/Kiritimati"};
  constexpr std::array<std::pair<const char*, char>, 7> kLocales{{{"en_US", '.'},
                                                                  {"en_GB", '.'},
                                                                  {"en_AU", '.'},
                                                                  {"de_DE", ','},
                                                                  {"fr_FR", ','},
                                                                  {"sv_SE", ','},
                                                                  {"ja_JP", '.'}}};
  const char* wanted = std::getenv("NASCOR_WALK_SECONDS");
  const char* given = std::getenv("NASCOR_WALK_SEED");
  const std::chrono::duration<double> length(wanted ? std::atof(wanted) : 2.0);
  unsigned seed = given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device()();

  const auto begin = std::chrono::steady_clock::now();
  const auto isOver = [&] { return std::chrono::steady_clock::now() - begin >= length; };
  for (; !isOver() && !HasFailure(); ++seed) {
    const char* zone = zones.at(seed % zones.size());
    const auto& [locale, decimalSign] = kLocales.at(seed / zones.size() % kLocales.size());
    std::cout << "walking with the seed " << seed << ": " << zone << ", " << locale << '\n';
    RandomUser user({.seed = seed, .zone = zone, .locale = locale, .decimalSign = decimalSign});
    for (int i = 0; i < kActions && !isOver() && !HasFailure(); ++i) user.act();
  }
}

}  // namespace
}  // namespace nascor::drive
