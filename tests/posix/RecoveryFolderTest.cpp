// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/RecoveryFolder.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::byte> bytesOf(std::string_view text) {
  std::vector<std::byte> bytes(text.size());
  std::ranges::transform(text, bytes.begin(), [](char c) { return static_cast<std::byte>(c); });
  return bytes;
}

mode_t modeOf(const fs::path& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

class ARecoveryFolder : public testing::Test {
 protected:
  ARecoveryFolder() {
    std::string name = (fs::temp_directory_path() / "nascor-recovery-XXXXXX").string();
    scratch_ = ::mkdtemp(name.data());
  }
  ~ARecoveryFolder() override { fs::remove_all(scratch_); }

  std::string path() const { return (scratch_ / "state" / "nascor" / "recovery").string(); }
  RecoveryFolder folder() const { return RecoveryFolder(path()); }
  std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path()))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }
  static std::string textOf(const foundation::RecoveryFile& file) {
    std::ifstream in(file.path);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static std::vector<std::string> textsOf(const std::vector<foundation::RecoveryFile>& files) {
    std::vector<std::string> texts;
    for (const auto& file : files) texts.push_back(textOf(file));
    return texts;
  }

  fs::path scratch_;
};

TEST_F(ARecoveryFolder, isItsOwnersAloneWhateverTheUmask) {
  for (const mode_t mask : {mode_t{000}, mode_t{022}, mode_t{077}, mode_t{0777}}) {
    fs::remove_all(scratch_ / "state");
    const mode_t before = ::umask(mask);
    RecoveryFolder kept(path());
    const auto error = kept.keep(1, {"/documents/a.nascor"}, bytesOf("one"));
    ::umask(before);
    ASSERT_FALSE(error) << error->reason;
    EXPECT_EQ(modeOf(path()), mode_t{0700});
    EXPECT_EQ(modeOf(scratch_ / "state"), mode_t{0700});
    for (const std::string& name : names()) EXPECT_EQ(modeOf(path() + "/" + name), mode_t{0600}) << name;
    EXPECT_EQ(names().size(), 3U) << "document, its origin, and the lock";
    EXPECT_TRUE(names().front().starts_with(std::to_string(::getpid()) + "-1.")) << names().front();
  }
}

TEST_F(ARecoveryFolder, thatIsOpenToOthersIsClosedToThem) {
  fs::create_directories(path());
  ::chmod(path().c_str(), 0777);
  RecoveryFolder kept(path());
  ASSERT_FALSE(kept.keep(1, {""}, bytesOf("one")));
  EXPECT_EQ(modeOf(path()), mode_t{0700});
}

TEST_F(ARecoveryFolder, saysWhyNothingCanBeKept) {
  fs::create_directories(scratch_ / "state");
  std::ofstream(scratch_ / "state" / "nascor") << "a file";
  RecoveryFolder kept(path());
  const auto error = kept.keep(1, {""}, bytesOf("one"));
  ASSERT_TRUE(error);
  EXPECT_EQ(error->reason, "Not a directory");
}

TEST_F(ARecoveryFolder, keepsTheLastOfEachDocument) {
  RecoveryFolder kept(path());
  ASSERT_FALSE(kept.keep(1, {"/documents/a.nascor"}, bytesOf("one")));
  ASSERT_FALSE(kept.keep(1, {"/documents/a.nascor"}, bytesOf("two")));
  ASSERT_FALSE(kept.keep(2, {""}, bytesOf("other")));
  const auto files = kept.files();
  ASSERT_EQ(files.size(), 2U);
  EXPECT_THAT(textsOf(files), testing::UnorderedElementsAre("two", "other"));
  for (const auto& file : files)
    EXPECT_EQ(file.origin.document, textOf(file) == "two" ? "/documents/a.nascor" : "");
}

TEST_F(ARecoveryFolder, tellsOfTheOldestFirst) {
  RecoveryFolder kept(path());
  for (const std::uint64_t number : {1U, 2U, 3U})
    ASSERT_FALSE(kept.keep(number, {""}, bytesOf(std::to_string(number))));
  const auto now = fs::file_time_type::clock::now();
  for (const auto& file : kept.files()) {
    if (textOf(file) == "1") fs::last_write_time(file.path, now);
    if (textOf(file) == "2") fs::last_write_time(file.path, now - std::chrono::minutes(2));
    if (textOf(file) == "3") fs::last_write_time(file.path, now - std::chrono::minutes(1));
  }
  EXPECT_THAT(textsOf(kept.files()), ElementsAre("2", "3", "1"));
  for (const auto& file : kept.files()) fs::last_write_time(file.path, now);
  EXPECT_THAT(textsOf(kept.files()), ElementsAre("1", "2", "3")) << "of the same moment by their names";
}

TEST_F(ARecoveryFolder, isMadeByAProgramWithoutInputToo) {
  EXPECT_EXIT(
      {
        ::close(0);  // the next file gets this number
        RecoveryFolder kept(path());
        const bool isKept = !kept.keep(1, {""}, bytesOf("one"));
        const std::string file = path() + "/" + std::to_string(::getpid()) + "-1.nascor";
        ::_exit(isKept && fs::exists(file) ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(ARecoveryFolder, isEmptyAfterACleanEnd) {
  {
    RecoveryFolder kept(path());
    ASSERT_FALSE(kept.keep(1, {"/documents/a.nascor"}, bytesOf("one")));
    kept.forget(1);
    kept.forget(2);  // was never kept
    EXPECT_THAT(kept.files(), IsEmpty());
  }
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ARecoveryFolder, neverHandsOutWhatARunningProgramKeeps) {
  RecoveryFolder running(path());
  ASSERT_FALSE(running.keep(1, {""}, bytesOf("one")));
  EXPECT_THAT(folder().takeAbandoned(), IsEmpty());
  EXPECT_THAT(running.takeAbandoned(), IsEmpty()) << "nor its own";
  EXPECT_THAT(textsOf(folder().files()), ElementsAre("one")) << "what lies there can be seen";
}

TEST_F(ARecoveryFolder, handsOutWhatAKilledProgramKept) {
  const pid_t child = ::fork();
  if (child == 0) {
    RecoveryFolder kept(path());
    const bool isKept = !kept.keep(7, {"/documents/a.nascor", "3 45"}, bytesOf("one"));
    ::raise(isKept ? SIGKILL : SIGABRT);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

  RecoveryFolder next(path());
  const auto taken = next.takeAbandoned();
  ASSERT_THAT(textsOf(taken), ElementsAre("one"));
  EXPECT_EQ(taken.front().origin.document, "/documents/a.nascor");
  EXPECT_EQ(taken.front().origin.basis, "3 45");
  EXPECT_THAT(folder().takeAbandoned(), IsEmpty()) << "another program that starts meanwhile gets nothing";
  next.remove(taken.front());
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ARecoveryFolder, handsOutAgainWhatWasLeftAlone) {
  {
    RecoveryFolder kept(path());
    ASSERT_FALSE(kept.keep(1, {""}, bytesOf("one")));
  }
  EXPECT_THAT(textsOf(folder().takeAbandoned()), ElementsAre("one"));
  EXPECT_THAT(textsOf(folder().takeAbandoned()), ElementsAre("one"));
}

TEST_F(ARecoveryFolder, handsOutFilesWithoutALockToo) {
  fs::create_directories(path());
  std::ofstream(path() + "/17-1.nascor") << "one";
  std::ofstream(path() + "/notes.txt") << "no recovery file";
  std::ofstream(path() + "/17.nascor") << "nor this";
  EXPECT_THAT(textsOf(folder().takeAbandoned()), ElementsAre("one"));
}

TEST_F(ARecoveryFolder, goesOnWhereAnEarlierProgramHadTheSameNumber) {
  {
    RecoveryFolder earlier(path());
    ASSERT_FALSE(earlier.keep(1, {""}, bytesOf("earlier")));
  }
  RecoveryFolder kept(path());
  ASSERT_FALSE(kept.keep(1, {""}, bytesOf("later")));
  EXPECT_THAT(textsOf(kept.files()), testing::UnorderedElementsAre("earlier", "later"));
}

TEST_F(ARecoveryFolder, losesWhatAKillLeftUnfinished) {
  fs::create_directories(path());
  std::ofstream(path() + "/.nascor-abcdef") << "half";
  std::ofstream(path() + "/.nascor-ghijkl") << "being written";
  fs::last_write_time(path() + "/.nascor-abcdef", fs::file_time_type::clock::now() - std::chrono::hours(2));
  folder().takeAbandoned();
  EXPECT_THAT(names(), ElementsAre(".nascor-ghijkl"));
  const auto age = [&](int seconds) {
    const timespec then{.tv_sec = ::time(nullptr) - seconds, .tv_nsec = 0};
    const std::string file = path() + "/.nascor-ghijkl";
    EXPECT_EQ(::utimensat(AT_FDCWD, file.c_str(), std::array{then, then}.data(), 0), 0);
    folder().takeAbandoned();
    return names().size();
  };
  EXPECT_EQ(age(3590), 1U);
  EXPECT_EQ(age(3601), 0U);
}

TEST(TheUsualRecoveryFolder, liesInTheStateFolder) {
  const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
  ::setenv("HOME", "/home/a", 1);
  ::setenv("XDG_STATE_HOME", "/state", 1);
  EXPECT_EQ(RecoveryFolder::usualPath(), "/state/nascor/recovery");
  ::setenv("XDG_STATE_HOME", "state", 1);
  EXPECT_EQ(RecoveryFolder::usualPath(), "/home/a/.local/state/nascor/recovery")
      << "not from the working folder";
  ::unsetenv("XDG_STATE_HOME");
  EXPECT_EQ(RecoveryFolder::usualPath(), "/home/a/.local/state/nascor/recovery");
  ::setenv("HOME", home.c_str(), 1);
}

}  // namespace
}  // namespace nascor::posix
