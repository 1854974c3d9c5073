// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/DocumentLock.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ios>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "FailingCalls.h"
#include "posix/Machine.h"
#include "posix/PosixFileStore.h"

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;
using foundation::FileClaim;
using Claim = foundation::FileStore::Claim;
using testing::ElementsAre;

class TheLockOfADocument : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-lock-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder_ = fs::canonical(pattern);
    std::ofstream(document()) << "text";
    ASSERT_EQ(::chmod(document().c_str(), 0600), 0);
  }
  void TearDown() override {
    if (!folder_.empty()) fs::remove_all(folder_);
  }

  std::string document() const { return folder_ + "/AB-1.nascor"; }
  std::string lock() const { return folder_ + "/.AB-1.nascor.lock"; }
  FileClaim claim(Claim wish = Claim::ifFree) { return store_.claim(document(), wish); }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_)) found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }

  void leave(const std::function<void(LockRecord&)>& change) const {
    LockRecord record = ownLockRecord();
    change(record);
    std::ofstream(lock()) << textOf(record);
  }
  /// The lock that another process of this machine leaves, which ends by `signal`.
  void leaveByAnother(int signal) const {
    const pid_t child = ::fork();
    if (child == 0) {
      PosixFileStore store;
      const FileClaim held = store.claim(document(), Claim::ifFree);
      ::raise(held.lock ? signal : SIGABRT);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(WTERMSIG(status), signal);
    ASSERT_TRUE(fs::exists(lock()));
  }

  PosixFileStore store_;
  std::string folder_;
};

TEST_F(TheLockOfADocument, liesBesideItForItsOwnerAloneAndGoesWithItsObject) {
  for (const mode_t mask : {0U, 022U, 0777U}) {
    const mode_t before = ::umask(mask);
    {
      const FileClaim claimed = claim();
      ::umask(before);
      ASSERT_TRUE(claimed.lock);
      EXPECT_TRUE(claimed.lock->isHeld());
      EXPECT_THAT(names(), ElementsAre(".AB-1.nascor.lock", "AB-1.nascor"));
      struct stat status {};
      ASSERT_EQ(::stat(lock().c_str(), &status), 0);
      EXPECT_EQ(status.st_mode & 0777, 0600U) << mask;
    }
    EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
  }
}

TEST_F(TheLockOfADocument, isReadByThoseWhoMayWriteTheDocument) {
  const std::vector<std::pair<mode_t, mode_t>> modes{{0600, 0600}, {0640, 0600}, {0620, 0600}, {0660, 0640},
                                                     {0664, 0640}, {0606, 0604}, {0666, 0644}, {0777, 0644}};
  for (const auto& [ofDocument, ofLock] : modes) {
    ASSERT_EQ(::chmod(document().c_str(), ofDocument), 0);
    const FileClaim claimed = claim();
    struct stat status {};
    ASSERT_EQ(::stat(lock().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, ofLock) << std::oct << ofDocument;
  }
}

TEST_F(TheLockOfADocument, isGivenToOneAlone) {
  const FileClaim first = claim();
  ASSERT_TRUE(first.lock);
  const FileClaim second = claim();
  EXPECT_FALSE(second.lock);
  ASSERT_TRUE(second.holder);
  EXPECT_EQ(second.holder->process, ::getpid());
  EXPECT_EQ(second.holder->host, thisMachine().host);
  EXPECT_EQ(second.holder->user, ::getpwuid(::geteuid())->pw_name);
  EXPECT_FALSE(second.holder->mayBeGone);
  EXPECT_GT(second.holder->since.secondsSince2001, 0.0);
  EXPECT_TRUE(first.lock->isHeld());
}

TEST_F(TheLockOfADocument, isTheSameThroughALink) {
  fs::create_symlink(document(), folder_ + "/link.nascor");
  const FileClaim first = store_.claim(folder_ + "/link.nascor", Claim::ifFree);
  EXPECT_TRUE(first.lock);
  EXPECT_TRUE(claim().holder);
}

TEST_F(TheLockOfADocument, isFreeOnceItsProcessWasKilled) {
  leaveByAnother(SIGKILL);
  const FileClaim claimed = claim();
  EXPECT_TRUE(claimed.lock);
}

TEST_F(TheLockOfADocument, isFreeWhereItsProcessIsAnotherByNow) {
  leave([](LockRecord& record) { record.started -= 1; });
  EXPECT_TRUE(claim().lock) << "the number of the process was given anew";
}

TEST_F(TheLockOfADocument, isFreeOnceItsMachineWasStartedAgain) {
  leave([](LockRecord& record) { record.boot = "the start before"; });
  if (thisMachine().mark.empty()) GTEST_SKIP() << "this machine has no number";
  EXPECT_TRUE(claim().lock);
}

TEST_F(TheLockOfADocument, ofAnotherMachineIsTakenOnDemandAlone) {
  leave([](LockRecord& record) {
    record.user = "anna";
    record.host = "ward-3";
    record.machine = record.boot = "another";
    record.process = 999999;
  });
  const FileClaim refused = claim();
  ASSERT_TRUE(refused.holder);
  EXPECT_EQ(refused.holder->user, "anna");
  EXPECT_EQ(refused.holder->host, "ward-3");
  EXPECT_TRUE(refused.holder->mayBeGone);
  const FileClaim taken = claim(Claim::inAnyCase);
  EXPECT_TRUE(taken.lock);
  EXPECT_TRUE(claim().holder);
}

TEST_F(TheLockOfADocument, ofAContainerIsNotJudgedByTheNumbersOfAnother) {
  leave([](LockRecord& record) {
    record.space = "pid:[1]";
    record.process = 999999;
  });
  const FileClaim refused = claim();
  ASSERT_TRUE(refused.holder);
  EXPECT_TRUE(refused.holder->mayBeGone);
}

TEST_F(TheLockOfADocument, thatAnotherTookIsNotHeldAndNotRemoved) {
  FileClaim first = claim();
  const FileClaim second = claim(Claim::inAnyCase);
  ASSERT_TRUE(second.lock);
  EXPECT_FALSE(first.lock->isHeld());
  first.lock.reset();
  EXPECT_TRUE(second.lock->isHeld());
  EXPECT_TRUE(fs::exists(lock()));
}

TEST_F(TheLockOfADocument, thatSaysNothingIsHeldForAMinute) {
  std::ofstream(lock()) << "";
  const FileClaim refused = claim();
  ASSERT_TRUE(refused.holder);
  EXPECT_EQ(refused.holder->host, "");
  const std::array<timespec, 2> longAgo{timespec{.tv_sec = 1, .tv_nsec = 0},
                                        timespec{.tv_sec = 1, .tv_nsec = 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, lock().c_str(), longAgo.data(), 0), 0);
  EXPECT_TRUE(claim().lock);
  for (const auto& [age, isFree] : {std::pair{50, false}, {61, true}}) {
    std::ofstream(lock()) << "";
    const timespec then{.tv_sec = ::time(nullptr) - age, .tv_nsec = 0};
    ASSERT_EQ(::utimensat(AT_FDCWD, lock().c_str(), std::array{then, then}.data(), 0), 0);
    EXPECT_EQ(claim().lock != nullptr, isFree) << age << " s";
  }
}

TEST_F(TheLockOfADocument, waitsForNoPipeAndFollowsNoLink) {
  ASSERT_EQ(::mkfifo(lock().c_str(), 0600), 0);
  EXPECT_TRUE(claim().holder);
  fs::remove(lock());
  fs::create_symlink("AB-1.nascor", lock());
  EXPECT_TRUE(claim().holder);
  std::ifstream file(document());
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "text");
}

TEST_F(TheLockOfADocument, isMadeForTheLongestNames) {
  const std::string name = folder_ + "/" + std::string(251, 'n') + "\u00e4nd";
  const FileClaim first = store_.claim(name, Claim::ifFree);
  EXPECT_TRUE(first.lock);
  EXPECT_TRUE(store_.claim(name, Claim::ifFree).holder);
  EXPECT_TRUE(store_.claim(folder_ + "/" + std::string(255, 'n'), Claim::ifFree).lock) << "of another name";
  EXPECT_TRUE(store_.claim(folder_ + "/" + std::string(255, '\x80'), Claim::ifFree).lock) << "no characters";
}

TEST_F(TheLockOfADocument, isMadeForNothingThatIsNoFile) {
  fs::create_directory(folder_ + "/folder");
  for (const std::string& path :
       {folder_ + "/folder", std::string("/dev/null"), folder_ + "/none/file", document() + "/within",
        folder_ + "/" + std::string(300, 'n') + "/file", std::string()}) {
    const FileClaim none = store_.claim(path, Claim::ifFree);
    EXPECT_FALSE(none.lock) << path;
    EXPECT_FALSE(none.holder) << path;
  }
}

TEST_F(TheLockOfADocument, isNotMadeTwiceWhereFilesCannotBeMade) {
  tests::FailingCalls calls;
  int asked = 0;
  calls.linkat = [&] { return ++asked, EROFS; };
  calls.open = [&](const std::string& path) {
    return path == lock() ? std::optional(ENOENT) : std::optional(EROFS);
  };
  calls.renameat2 = [&] { return EROFS; };
  const FileClaim none = claim();
  EXPECT_FALSE(none.lock);
  EXPECT_FALSE(none.holder);
  EXPECT_LE(asked, 1);
  EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
}

TEST_F(TheLockOfADocument, isNotRemovedWhileAnotherProgramLooksAtIt) {
  const FileClaim first = claim();
  tests::FailingCalls calls;
  int asked = 0;
  calls.flock = [&]() -> std::optional<int> {
    return ++asked == 1 ? std::optional(EWOULDBLOCK) : std::nullopt;
  };
  const FileClaim second = claim(Claim::inAnyCase);
  EXPECT_TRUE(second.lock) << "once the other is ready";
  EXPECT_GE(asked, 2);
  EXPECT_FALSE(first.lock->isHeld());
}

TEST_F(TheLockOfADocument, isFreeWhereItGoesWhileItIsLookedAt) {
  leave([](LockRecord& record) { record.machine = record.boot = record.host = "another"; });
  tests::FailingCalls calls;
  calls.open = [&](const std::string& path) -> std::optional<int> {
    if (path != lock()) return std::nullopt;
    fs::remove(lock());
    return ENOENT;
  };
  EXPECT_TRUE(claim().lock);
}

TEST_F(TheLockOfADocument, isMadeWhereFilesHaveNamesFromTheBeginning) {
  for (const bool knowsUnnamed : {false, true}) {
    tests::FailingCalls calls;
    calls.open = [&](const std::string& path) {
      return !knowsUnnamed && fs::is_directory(path) ? std::optional(EOPNOTSUPP) : std::nullopt;
    };
    calls.linkat = [] { return EPERM; };
    FileClaim first = claim();
    EXPECT_TRUE(first.lock) << knowsUnnamed;
    EXPECT_TRUE(claim().holder) << knowsUnnamed;
    first.lock.reset();
    EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
  }
}

TEST_F(TheLockOfADocument, keepsNobodyFromHerDocumentWhereItCannotBeRemoved) {
  leaveByAnother(SIGKILL);
  tests::FailingCalls calls;
  calls.unlink = [] { return EACCES; };
  const FileClaim none = claim();
  EXPECT_FALSE(none.lock);
  EXPECT_FALSE(none.holder);
}

TEST_F(TheLockOfADocument, bearsTheSameNameInEveryVersion) {
  EXPECT_EQ(lockPathOf("/a/AB-1.nascor"), "/a/.AB-1.nascor.lock");
  // 249 bytes are the most that find room with the point and ".lock"; what is longer is cut at a character's beginning.
  const std::string longest(249, 'n');
  EXPECT_EQ(lockPathOf("/a/" + longest), "/a/." + longest + ".lock");
  const std::string longer(250, 'n');
  EXPECT_EQ(lockPathOf("/a/" + longer), "/a/." + std::string(200, 'n') + "-" + digest(longer) + ".lock");
  const std::string accented = std::string(199, 'n') + "\u00e4" + std::string(60, 'n');
  EXPECT_EQ(lockPathOf("/a/" + accented), "/a/." + std::string(199, 'n') + "-" + digest(accented) + ".lock");
}

TEST_F(TheLockOfADocument, isRemovedWhereThereAreNoLocksOfTheSystem) {
  leaveByAnother(SIGKILL);
  tests::FailingCalls calls;
  calls.flock = [] { return ENOLCK; };
  EXPECT_TRUE(claim().lock);
}

TEST_F(TheLockOfADocument, isNeverGivenToTwoOfManyProcesses) {
  leaveByAnother(SIGKILL);
  constexpr int kProcesses = 16;
  constexpr int kTurns = 25;
  std::vector<pid_t> children;
  for (int i = 0; i < kProcesses; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      bool isAlone = true;
      for (int turn = 0; turn < kTurns; ++turn) {
        PosixFileStore store;
        const FileClaim held = store.claim(document(), Claim::ifFree);
        if (!held.lock) {
          isAlone = isAlone && held.holder;  // else nobody would be told
          continue;
        }
        const std::string mark = folder_ + "/mine";
        isAlone = isAlone && ::mkdir(mark.c_str(), 0700) == 0;
        ::rmdir(mark.c_str());
      }
      ::_exit(isAlone ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
}

}  // namespace
}  // namespace nascor::posix
