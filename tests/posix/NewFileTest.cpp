// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/NewFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "FailingCalls.h"

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class ANewFile : public testing::Test {
 protected:
  ANewFile() {
    std::string pattern = (fs::temp_directory_path() / "nascor-new-file-XXXXXX").string();
    folder_ = std::string(::mkdtemp(pattern.data())) + "/";
  }
  ~ANewFile() override { fs::remove_all(folder_); }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_)) found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }

  std::string folder_;
};

TEST_F(ANewFile, hasNoNameWhereTheSystemCanDoThat) {
  const NewFile fresh(folder_, false);
  ASSERT_TRUE(fresh.isOpen());
  EXPECT_FALSE(fresh.hasName());
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ANewFile, hasANameOfItsOwnWhereFilesWithoutOneAreUnknown) {
  tests::FailingCalls calls;
  calls.open = [](const std::string& path) {
    return fs::is_directory(path) ? std::optional(EOPNOTSUPP) : std::nullopt;
  };
  {
    NewFile fresh(folder_, false);
    ASSERT_TRUE(fresh.isOpen());
    EXPECT_TRUE(fresh.hasName());
    EXPECT_EQ(names().size(), 1U);
    EXPECT_TRUE(fresh.becomeNew(folder_ + "a"));
    EXPECT_FALSE(fresh.hasName());
  }
  EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(ANewFile, takesNoNameThatAnotherFileHas) {
  std::ofstream(folder_ + "a") << "old";
  for (const bool hasName : {false, true}) {
    NewFile fresh(folder_, hasName);
    EXPECT_FALSE(fresh.becomeNew(folder_ + "a")) << hasName;
    EXPECT_EQ(errno, EEXIST) << hasName;
    EXPECT_EQ(fresh.hasName(), hasName);
  }
  EXPECT_THAT(names(), ElementsAre("a"));
  EXPECT_EQ(fs::file_size(folder_ + "a"), 3U);
}

TEST_F(ANewFile, isRenamedWhereThereAreNoLinks) {
  tests::FailingCalls calls;
  calls.linkat = [] { return EPERM; };
  for (const int error : {0, EINVAL}) {  // and where no name is kept free by the system itself
    if (error != 0) calls.renameat2 = [error] { return error; };
    NewFile fresh(folder_, true);
    EXPECT_TRUE(fresh.becomeNew(folder_ + "a"));
    EXPECT_FALSE(fresh.hasName());
    EXPECT_THAT(names(), ElementsAre("a"));

    NewFile second(folder_, true);
    EXPECT_FALSE(second.becomeNew(folder_ + "a"));
    EXPECT_EQ(errno, EEXIST);
    EXPECT_TRUE(second.hasName());
    fs::remove(folder_ + "a");
  }
}

TEST_F(ANewFile, isMadeAnewWhereAnotherProgramTookItForALeftover) {
  tests::FailingCalls calls;
  int asked = 0;
  calls.flock = [&]() -> std::optional<int> {
    // Once the other program holds it, once it has removed it already.
    if (++asked == 1) return EWOULDBLOCK;
    if (asked == 2) fs::remove(folder_ + names().front());
    return std::nullopt;
  };
  const NewFile fresh(folder_, true);
  EXPECT_EQ(asked, 3);
  struct stat status {};
  ASSERT_EQ(::fstat(fresh.number(), &status), 0);
  EXPECT_EQ(status.st_nlink, 1U);
  EXPECT_EQ(names().size(), 1U);
}

TEST_F(ANewFile, isMadeWhereThereAreNoLocks) {
  tests::FailingCalls calls;
  calls.flock = [] { return ENOLCK; };
  errno = EWOULDBLOCK;  // from before
  const NewFile fresh(folder_, true);
  EXPECT_TRUE(fresh.isOpen());
  EXPECT_TRUE(fresh.hasName());
  EXPECT_EQ(names().size(), 1U);
}

TEST_F(ANewFile, isMadeWhateverAnEarlierCallAnswered) {
  tests::FailingCalls calls;
  calls.flock = [&] {
    errno = EWOULDBLOCK;
    return std::nullopt;
  };
  const NewFile fresh(folder_, true);
  EXPECT_TRUE(fresh.isOpen());
}

TEST_F(ANewFile, isALeftoverByItsAgeAloneWhereThereAreNoLocks) {
  for (int i = 0; i < 3; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      const NewFile left(folder_, true);
      ::raise(SIGKILL);
    }
    ::waitpid(child, nullptr, 0);
  }
  const auto left = names();
  ASSERT_EQ(left.size(), 3U);
  const auto now = fs::file_time_type::clock::now();
  fs::last_write_time(folder_ + left[0], now - std::chrono::hours(25));
  fs::last_write_time(folder_ + left[1], now - std::chrono::hours(23));
  {
    tests::FailingCalls calls;
    calls.flock = [] { return ENOLCK; };
    removeLeftovers(folder_);
    EXPECT_THAT(names(), ElementsAre(left[1], left[2]));
    calls.flock = [] { return EWOULDBLOCK; };
    fs::last_write_time(folder_ + left[1], now - std::chrono::hours(25));
    removeLeftovers(folder_);
    EXPECT_THAT(names(), ElementsAre(left[1], left[2])) << "their programs live";
  }
  removeLeftovers(folder_);
  EXPECT_THAT(names(), IsEmpty());
}

}  // namespace
}  // namespace nascor::posix
