// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Two real programs on one document: the application's documents without a display, and the command line.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Program.h"

namespace nascor::tests {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class TwoPrograms : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-two-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder_ = fs::canonical(pattern);
    // What a program that is killed leaves behind goes with the test.
    ::setenv("TMPDIR", folder_.c_str(), 1);
    std::ofstream(folder_ + "/AB-1.json")
        << R"({"maternalIDString":"AB-1","numberOfFetuses":1,"examinations":[{"measurements":[{"bpd":40}]}]})";
    ASSERT_EQ(make(), 0);
  }
  void TearDown() override {
    ::unsetenv("TMPDIR");
    if (!folder_.empty()) fs::remove_all(folder_);
  }

  std::string document() const { return folder_ + "/AB-1.nascor"; }
  std::string open() const { return R"({"open":")" + document() + "\"}"; }
  bool isLocked() const { return fs::exists(folder_ + "/.AB-1.nascor.lock"); }

  /// The exit status of a command that writes the document; its complaint in `said_`.
  int make() {
    const std::string command = std::string(NASCOR_CLI) + " make '" + folder_ + "/AB-1.json' --out '" +
                                document() + "' 2>'" + folder_ + "/said'";
    const int status = std::system(command.c_str());
    std::ifstream file(folder_ + "/said");
    std::getline(file, said_);
    return WEXITSTATUS(status);
  }

  std::string folder_;
  std::string said_;
};

TEST_F(TwoPrograms, areToldOfEachOther) {
  Program first;
  Program second;
  EXPECT_EQ(first.answer(open()), R"({"number":0})");
  EXPECT_TRUE(isLocked());
  const std::string refused = second.answer(open());
  EXPECT_THAT(refused, HasSubstr("It is open elsewhere. User: "));
  EXPECT_THAT(refused, HasSubstr("Process: " + std::to_string(first.process())));
  EXPECT_EQ(make(), 1);
  EXPECT_THAT(said_, HasSubstr(document() + ": It is open elsewhere."));

  second.answer(R"({"answer":["Open Read-Only"]})");
  EXPECT_EQ(second.answer(open()), R"({"number":0})");
  second.answer(R"({"edit":["hcField","153"]})");
  EXPECT_THAT(second.answer(R"({"save":true})"), HasSubstr("The document was not saved."));
  first.answer(R"({"edit":["hcField","152"]})");
  EXPECT_EQ(first.answer(R"({"save":true})"), R"({"saved":true})");
  EXPECT_EQ(first.answer(R"({"close":"cancel"})"), R"({"closed":true})");
  EXPECT_FALSE(isLocked());
  EXPECT_EQ(second.answer(R"({"save":true})"), R"({"saved":false})")
      << "what the first has saved is asked about";
  second.answer(R"({"answer":["Save Anyway"]})");
  EXPECT_EQ(second.answer(R"({"save":true})"), R"({"saved":true})");
}

TEST_F(TwoPrograms, doNotMeetWhenTheFirstHasEnded) {
  for (const int signal : {0, SIGTERM, SIGKILL}) {
    Program first;
    EXPECT_EQ(first.answer(open()), R"({"number":0})");
    first.end(signal);
    EXPECT_EQ(make(), 0) << signal << said_;
    EXPECT_FALSE(isLocked());
    Program second;
    EXPECT_EQ(second.answer(open()), R"({"number":0})");
  }
}

TEST_F(TwoPrograms, whoHaveNoLockLoseNothingSilently) {
  // As on a share that keeps a file of no program: what protects is the look at the file before it is replaced.
  Program first;
  Program second;
  EXPECT_EQ(first.answer(open()), R"({"number":0})");
  fs::remove(folder_ + "/.AB-1.nascor.lock");
  EXPECT_EQ(second.answer(open()), R"({"number":0})");
  fs::remove(folder_ + "/.AB-1.nascor.lock");
  first.answer(R"({"edit":["hcField","152"]})");
  second.answer(R"({"edit":["hcField","153"]})");
  EXPECT_EQ(first.answer(R"({"save":true})"), R"({"saved":true})");
  EXPECT_THAT(second.answer(R"({"save":true})"), testing::Not(HasSubstr("true")));
}

}  // namespace
}  // namespace nascor::tests
