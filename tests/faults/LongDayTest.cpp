// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Two people work on one document for as long as it takes, each in a program of their own, and now and then the system fails a
// call or a program is killed. What was said to be saved is there ever after; and a program that nothing happens to needs no
// more memory in the evening than in the morning.
//
// NASCOR_DAY_SECONDS says how long; NASCOR_DAY_SEED begins as another day did.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <mutex>
#include <random>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <nlohmann/json.hpp>

#include "Program.h"

namespace nascor::tests {
namespace {

namespace fs = std::filesystem;
using Chance = std::mt19937;
using Tokens = std::set<std::string>;

std::size_t drawn(Chance& chance, std::size_t count) { return chance() % count; }

/// What was written down, each with its own number.
Tokens tokensIn(const std::string& text) {
  static const std::regex kToken("[AB][0-9]+;");
  return {std::sregex_token_iterator(text.begin(), text.end(), kToken), std::sregex_token_iterator()};
}

std::string noteOnShow(const std::string& state) {
  return nlohmann::json::parse(state)["fields"]["notesField"].get<std::string>();
}
/// What the document on show holds, with what is typed and waits in its field.
Tokens tokensOnShow(const std::string& state) {
  return tokensIn(nlohmann::json::parse(state)["document"].dump() + noteOnShow(state));
}

bool isAnswered(const std::string& answer, const char* with) {
  return answer.find(with) != std::string::npos;
}

struct Counts {
  int saves = 0;
  int denied = 0;
  int refused = 0;
  int kills = 0;
  int actions = 0;
};

/// What both have seen saved.
class Record {
 public:
  void add(const Tokens& tokens) {
    const std::lock_guard guard(mutex_);
    saved_.insert(tokens.begin(), tokens.end());
  }
  /// A person who saw these took them out, and saves: from now on they may be gone, however the save ends.
  void forget(const Tokens& tokens) {
    const std::lock_guard guard(mutex_);
    for (const std::string& token : tokens) saved_.erase(token);
  }
  const Tokens& saved() const { return saved_; }
  void clear() { saved_.clear(); }

 private:
  std::mutex mutex_;
  Tokens saved_;
};

/// One of the two. Opens, changes, saves and closes, at random.
class Person {
 public:
  Person(char name, unsigned seed, std::string folder)
      : name_(name), chance_(seed), folder_(std::move(folder)) {}

  void work(const std::string& document, Record& record) {
    Program program(settings());
    if (program.answer("{\"open\":\"" + document + "\"}") != R"({"number":0})") {
      ++counts_.refused;  // the other has it, or a call failed
      return;
    }
    const std::string state = program.answer(R"({"state":true})");
    if (state.empty()) {
      ++counts_.kills;
      return;
    }
    seen_ = tokensOnShow(state);
    const std::size_t actions = 1 + drawn(chance_, 12);
    for (std::size_t i = 0; i < actions; ++i) {
      if (!act(program, record)) {
        ++counts_.kills;  // by a fault
        return;
      }
    }
    if (drawn(chance_, 4) == 0) {
      program.end(SIGKILL);
      ++counts_.kills;
    } else {
      program.answer(R"({"close":"discard"})");
    }
  }
  const Counts& counts() const { return counts_; }

 private:
  /// Half of the programs live in a system that fails.
  std::vector<std::string> settings() {
    if (drawn(chance_, 2) == 0) return {};
    constexpr const char* kFaults[] = {"once", "always", "short", "kill-before", "kill-after"};
    constexpr int kErrors[] = {EIO, ENOSPC, EDQUOT, EACCES, EPERM, EROFS, ESTALE, ENOMEM, EINTR};
    const char* fault = kFaults[drawn(chance_, std::size(kFaults))];
    int error = kErrors[drawn(chance_, std::size(kErrors))];
    // Whoever is interrupted tries again, and would for ever.
    if (error == EINTR && fault == std::string("always")) error = EIO;
    return {std::string("LD_PRELOAD=") + NASCOR_FAULTY_CALLS, "NASCOR_FAULT_FOLDER=" + folder_,
            "NASCOR_FAULT_AT=" + std::to_string(1 + drawn(chance_, 150)),
            std::string("NASCOR_FAULT=") + fault, "NASCOR_FAULT_ERROR=" + std::to_string(error)};
  }

  std::string number(std::size_t count) { return std::to_string(drawn(chance_, count)); }
  std::string day() {
    return std::to_string(2026 + drawn(chance_, 2)) + "-" + std::to_string(10 + drawn(chance_, 3)) + "-" +
           std::to_string(10 + drawn(chance_, 19));
  }
  std::string length() {
    constexpr const char* kFields[] = {"bpdField", "hcField", "acField", "flField"};
    return kFields[drawn(chance_, std::size(kFields))];
  }
  static std::string does(const std::string& action) { return "{\"do\":[\"" + action + "\"]}"; }
  static std::string types(const std::string& field, const std::string& text) {
    return "{\"edit\":[\"" + field + "\",\"" + text + "\"]}";
  }
  static std::string answers(const std::string& button) { return "{\"answer\":[\"" + button + "\"]}"; }

  /// What else a user does, as lines: every kind of action that the window has.
  std::vector<std::string> drawnLines() {
    switch (drawn(chance_, 28)) {
      case 0: return {does("nextExamination")};
      case 1: return {does("previousExamination")};
      case 2: return {does("addExamination")};
      case 3: return {does("addExaminationAction")};
      case 4: return {answers("Remove"), does("deleteExaminationAction")};
      case 5: return {does("addFetus")};
      case 6: return {answers("Remove"), does("deleteFetus")};
      case 7: return {"{\"choose\":" + number(5) + "}"};
      case 8: return {types(length(), number(200))};
      case 9: {
        // A field that refuses its text keeps everything else from being done, saving too.
        const std::string field = length();
        const std::string way =
            drawn(chance_, 2) == 0 ? types(field, "12") : "{\"revert\":\"" + field + "\"}";
        return {types(field, "9999"), "{\"tab\":1}", R"({"save":true})", way};
      }
      case 10: return {types("examDateField", day())};
      case 11: return {types("examDateField", "some day")};
      case 12: return {answers("Modify"), types("birthDateField", day())};
      case 13: return {answers("Cancel"), types("birthDateField", day())};
      case 14: return {types("referenceIDField", drawn(chance_, 2) == 0 ? "AB-1" : "B/1")};
      case 15: return {answers("Cancel"), types("gravidaField", number(5))};
      case 16: return {R"({"visit":"gravidaField"})"};
      case 17: return {"{\"do\":[\"setCurrentRecordFromClick\"," + number(40) + "]}"};
      case 18:
        return {"{\"click\":[" + number(7) + "," + number(800) + "," + number(560) + "," +
                std::to_string(1 + drawn(chance_, 3)) + "]}"};
      case 19:
        return {answers("Modify"), does("doSetEDDfromCRL"), types("crlWindowDate", day()),
                types("crlWindowCRL", std::to_string(10 + drawn(chance_, 60))), does("okSetEDDfromCRL")};
      case 20:
        return {answers("Modify"), does("doSetEDDfromLMP"), types("lmpWindowLMP", day()),
                types("lmpWindowCycleField", std::to_string(21 + drawn(chance_, 20))),
                does("okSetEDDfromLMP")};
      case 21:
        return {answers("Modify"), does("doSetEDDfromMeasurements"), does("okSetEDDfromMeasurements"),
                R"({"cancel":"measurementsWindow"})"};
      case 22: return {"{\"step\":" + std::to_string(static_cast<int>(drawn(chance_, 60)) - 45) + "}"};
      case 23: return {"{\"tab\":" + number(7) + "}"};
      case 24: {
        constexpr const char* kMenus[] = {"Standards", "Estimated Fetal Weight", "Crown Rump Length"};
        return {std::string("{\"menu\":[\"") + kMenus[drawn(chance_, std::size(kMenus))] + "\"," + number(4) +
                    "]}",
                R"({"menu":["View","Show All"]})"};
      }
      case 25:
        return {R"({"new":true})", types("notesField", "elsewhere"), R"({"close":"discard"})",
                R"({"use":0})"};
      case 26: return {does("undo"), drawn(chance_, 2) == 0 ? does("redo") : does("undo")};
      default:
        return {"{\"advance\":" + number(86400) + "}", does("synchronizeToData"), does("synchronizeFromData"),
                does("nothing"), "{"};
    }
  }
  /// False when the program is gone.
  bool act(const Program& program, Record& record) {
    switch (drawn(chance_, 5)) {
      case 0: return writeDown(program);
      case 1: return writeDown(program) && save(program, record);
      default:
        for (const std::string& line : drawnLines()) {
          if (program.answer(line).empty()) return false;
          ++counts_.actions;
        }
        return true;
    }
  }

  bool writeDown(const Program& program) {
    const std::string state = program.answer(R"({"state":true})");
    if (state.empty()) return false;
    const std::string token = name_ + std::to_string(++written_) + ";";
    const std::string note = noteOnShow(state) + token;
    seen_.insert(token);
    return !program.answer(R"({"edit":["notesField",")" + note + "\"]}").empty();
  }

  bool save(const Program& program, Record& record) {
    const std::string state = program.answer(R"({"state":true})");
    if (state.empty()) return false;
    const Tokens now = tokensOnShow(state);
    Tokens removed;
    std::ranges::set_difference(seen_, now, std::inserter(removed, removed.end()));
    record.forget(removed);
    const std::string answer = program.answer(R"({"save":true})");
    if (answer.empty()) return false;
    if (answer == R"({"saved":true})") {
      record.add(now);
      ++counts_.saves;
    } else {
      EXPECT_TRUE(answer == R"({"saved":false})" || isAnswered(answer, "{\"error\":")) << answer;
      ++counts_.denied;
    }
    return true;
  }

  char name_;
  Chance chance_;
  std::string folder_;
  int written_ = 0;
  Tokens seen_;  ///< in the document that is open, ever since
  Counts counts_;
};

/// Works on a document of its own all day, and nothing happens to it.
class Witness {
 public:
  explicit Witness(std::string document) : document_(std::move(document)) {}

  void work() {
    EXPECT_TRUE(isAnswered(program_.answer("{\"open\":\"" + document_ + "\"}"), "{\"number\":"));
    program_.answer(R"({"edit":["hcField",")" + std::to_string(100 + ++count_ % 200) + "\"]}");
    program_.answer(R"({"state":true})");
    EXPECT_EQ(program_.answer(R"({"save":true})"), R"({"saved":true})");
    EXPECT_EQ(program_.answer(R"({"close":"cancel"})"), R"({"closed":true})");
  }
  long kibibytes() const {
    std::ifstream file("/proc/" + std::to_string(program_.process()) + "/smaps_rollup");
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("Private_Dirty:")) return std::stol(line.substr(line.find(':') + 1));
    }
    return 0;
  }

 private:
  Program program_;
  std::string document_;
  int count_ = 0;
};

class ALongDay : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-day-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    place_ = fs::canonical(pattern);
    // What a program that is killed leaves behind goes with the test.
    ::setenv("TMPDIR", place_.c_str(), 1);
    fs::create_directory(folder());
    make(place_ + "/witness.nascor");
  }
  void TearDown() override {
    ::unsetenv("TMPDIR");
    if (!place_.empty()) fs::remove_all(place_);
  }

  std::string folder() const { return place_ + "/documents"; }
  void make(const std::string& document) const {
    std::ofstream(place_ + "/new.json")
        << R"({"maternalIDString":"AB-1","numberOfFetuses":1,"examinations":[{"measurements":[{"bpd":40}]}]})";
    const std::string command =
        std::string(NASCOR_CLI) + " make '" + place_ + "/new.json' --out '" + document + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
  }
  /// What another program finds in the file.
  std::string contents(const std::string& document) const {
    const std::string command =
        std::string(NASCOR_CLI) + " json '" + document + "' >'" + place_ + "/found' 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::ifstream file(place_ + "/found");
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::string place_;
};

TEST_F(ALongDay, losesNothingThatWasSavedAndLeaksNothing) {
  using Clock = std::chrono::steady_clock;
  const char* wanted = std::getenv("NASCOR_DAY_SECONDS");
  const char* given = std::getenv("NASCOR_DAY_SEED");
  const std::chrono::duration<double> length(wanted ? std::atof(wanted) : 5.0);
  const unsigned seed =
      given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device()();
  std::cout << "a day with the seed " << seed << '\n';

  Person anna('A', seed, folder());
  Person berta('B', seed + 1, folder());
  Witness witness(place_ + "/witness.nascor");
  Record record;
  std::size_t checked = 0;
  long morning = 0;
  int rounds = 0;
  constexpr int kWarm = 30;  // rounds until a program has all the memory that it will need
  const auto begin = Clock::now();
  for (int day = 0; Clock::now() - begin < length && !HasFailure(); ++day) {
    const std::string document = folder() + "/day-" + std::to_string(day) + ".nascor";
    make(document);
    record.clear();
    // Until the notes are long.
    constexpr std::size_t kMost = 500;
    while (record.saved().size() < kMost && Clock::now() - begin < length && !HasFailure()) {
      std::thread other([&] { berta.work(document, record); });
      anna.work(document, record);
      other.join();
      witness.work();
      if (++rounds == kWarm) morning = witness.kibibytes();
      const Tokens found = tokensIn(contents(document));
      Tokens lost;
      std::ranges::set_difference(record.saved(), found, std::inserter(lost, lost.end()));
      EXPECT_THAT(lost, testing::IsEmpty());
    }
    checked += record.saved().size();
    fs::remove(document);
  }
  const long evening = witness.kibibytes();
  const auto tell = [](const char* name, const Counts& counts) {
    std::cout << name << ": " << counts.saves << " saves, " << counts.denied << " failed, " << counts.refused
              << " times not opened, " << counts.kills << " times killed, " << counts.actions
              << " other lines\n";
  };
  tell("Anna", anna.counts());
  tell("Berta", berta.counts());
  std::cout << checked << " notes saved and found again in " << rounds
            << " rounds; memory of a program all day: " << morning << " KiB, then " << evening << " KiB\n";
  EXPECT_GT(anna.counts().saves, 0);
  EXPECT_GT(berta.counts().saves, 0);
  EXPECT_GT(anna.counts().kills + berta.counts().kills, 0);
  if (rounds > kWarm) {
    EXPECT_LE(static_cast<double>(evening), 1.05 * static_cast<double>(morning));
  }
}

}  // namespace
}  // namespace nascor::tests
