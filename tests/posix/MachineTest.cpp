// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/Machine.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace nascor::posix {
namespace {

TEST(TheMachine, isCalledAsTheSystemCallsIt) {
  std::string name;
  std::getline(std::ifstream("/proc/sys/kernel/hostname"), name);
  EXPECT_EQ(thisMachine().host, name);
}

TEST(TheMachine, isKnownByItsNumberWithoutTellingIt) {
  std::string number;
  std::getline(std::ifstream("/etc/machine-id"), number);
  EXPECT_EQ(thisMachine().mark, number.empty() ? "" : digest("nascor" + number));
  EXPECT_TRUE(number.empty() || thisMachine().mark.find(number) == std::string::npos);
}

// The published check values of 64-bit FNV-1a.
TEST(ADigest, isThatOfFowlerNollAndVo) {
  EXPECT_EQ(digest(""), "cbf29ce484222325");
  EXPECT_EQ(digest("a"), "af63dc4c8601ec8c");
  EXPECT_EQ(digest("foobar"), "85944171f73967e8");
}

TEST(AProcess, hasAStartWhileItLives) {
  EXPECT_GT(startOfProcess(::getpid()), 0);
  EXPECT_EQ(startOfProcess(::getpid()), startOfProcess(::getpid()));
  EXPECT_EQ(startOfProcess(0), 0);
  EXPECT_EQ(startOfProcess(-1), 0);
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  siginfo_t ended{};
  ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT), 0);
  EXPECT_EQ(startOfProcess(child), 0) << "one that nobody has asked about";
  ::waitpid(child, nullptr, 0);
  EXPECT_EQ(startOfProcess(child), 0);
}

}  // namespace
}  // namespace nascor::posix
