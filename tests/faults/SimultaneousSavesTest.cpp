// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Two programs have read the same document, and save it at the same moment or shortly after one another: the one that is told
// that it has saved has saved, and the other one is told that it has not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "posix/PosixFileStore.h"

namespace nascor::tests {
namespace {

namespace fs = std::filesystem;

std::vector<std::byte> bytesOf(const std::string& text) {
  std::vector<std::byte> bytes;
  for (const char each : text) bytes.push_back(static_cast<std::byte>(each));
  return bytes;
}

class SimultaneousSaves : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-saves-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override {
    if (!folder_.empty()) fs::remove_all(folder_);
  }

  std::string document() const { return folder_ + "/AB-1.nascor"; }

  enum Ending { kSaved = 0, kTold = 1, kFailed = 2 };

  /// A program that saves its own text `delay` nanoseconds after the word is given.
  pid_t begin(const std::array<int, 2>& word, const std::string& own, const std::vector<std::byte>& read,
              long delay) const {
    const pid_t program = ::fork();
    if (program != 0) return program;
    posix::PosixFileStore store;
    char none = 0;
    ::close(word[1]);
    while (::read(word[0], &none, 1) > 0) continue;  // until the other end is closed
    const timespec pause{.tv_sec = 0, .tv_nsec = delay};
    ::nanosleep(&pause, nullptr);
    const auto error = store.replaceExpected(document(), bytesOf(own), read);
    if (!error) ::_exit(kSaved);
    ::_exit(error->kind == foundation::FileError::Kind::isChanged ? kTold : kFailed);
  }

  void saveTwice(const std::string& both, long delay) {
    const auto read = bytesOf(both);
    posix::PosixFileStore store;
    ASSERT_EQ(store.replaceContents(document(), read), std::nullopt);
    std::array<int, 2> word{};
    ASSERT_EQ(::pipe(word.data()), 0);
    const std::array programs{begin(word, "first", read, 0), begin(word, "second", read, delay)};
    ::close(word[0]);
    ::close(word[1]);
    std::array<int, 2> endings{};
    for (std::size_t i = 0; i < programs.size(); ++i) {
      int status = 0;
      ::waitpid(programs.at(i), &status, 0);
      endings.at(i) = WIFEXITED(status) ? WEXITSTATUS(status) : kFailed;
    }
    EXPECT_THAT(endings, testing::UnorderedElementsAre(kSaved, kTold)) << delay;
    std::ifstream file(document());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}),
              endings[0] == kSaved ? "first" : "second");
  }

  static constexpr int kSaves = 200;
  std::string folder_;
};

TEST_F(SimultaneousSaves, loseNothingSilently) {
  for (int i = 0; i < kSaves && !HasFailure(); ++i) saveTwice(std::to_string(i), 0);
}

TEST_F(SimultaneousSaves, loseNothingSilentlyShortlyAfterOneAnother) {
  constexpr long kMost = 20'000'000;
  for (int i = 0; i < kSaves && !HasFailure(); ++i) saveTwice(std::to_string(i), kMost / kSaves * i);
}

}  // namespace
}  // namespace nascor::tests
