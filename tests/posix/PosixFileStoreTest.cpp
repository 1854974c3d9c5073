// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/PosixFileStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "FailingCalls.h"
#include "posix/NewFile.h"

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;
constexpr const char* kAccessList = "system.posix_acl_access";

std::vector<std::byte> bytesOf(std::string_view text) {
  std::vector<std::byte> bytes(text.size());
  std::transform(text.begin(), text.end(), bytes.begin(), [](char c) { return static_cast<std::byte>(c); });
  return bytes;
}

/// Bytes in which every piece differs from every other.
std::vector<std::byte> manyBytes(std::size_t count) {
  std::vector<std::byte> bytes(count);
  std::uint32_t state = 12345;
  for (std::byte& byte : bytes) {
    state = state * 1664525U + 1013904223U;
    byte = static_cast<std::byte>(state >> 24);
  }
  return bytes;
}

/// Acts as a user who is not root until its end.
class AsUser {
 public:
  explicit AsUser(uid_t user = kNobody) { isIt_ = ::setegid(kNobody) == 0 && ::seteuid(user) == 0; }
  AsUser(const AsUser&) = delete;
  AsUser& operator=(const AsUser&) = delete;
  ~AsUser() { isBack_ = ::seteuid(0) == 0 && ::setegid(0) == 0; }
  bool isIt() const { return isIt_; }

 private:
  bool isIt_ = false;
  bool isBack_ = false;
};

/// No file may grow beyond so many bytes: what a full disk is to a program.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{.rlim_cur = bytes, .rlim_max = before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

class ScopedUmask {
 public:
  explicit ScopedUmask(mode_t mask) : before_(::umask(mask)) {}
  ScopedUmask(const ScopedUmask&) = delete;
  ScopedUmask& operator=(const ScopedUmask&) = delete;
  ~ScopedUmask() { ::umask(before_); }

 private:
  mode_t before_;
};

class PosixFileStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-posix-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    ASSERT_EQ(::chmod(folder_.c_str(), 0755), 0);
  }
  void TearDown() override {
    if (!folder_.empty()) fs::remove_all(folder_);
  }

  std::string path(const std::string& name) const { return folder_ + "/" + name; }

  void put(const std::string& name, std::string_view text, mode_t mode = 0644) const {
    std::ofstream(path(name), std::ios::binary) << text;
    ASSERT_EQ(::chmod(path(name).c_str(), mode), 0);
  }
  std::string text(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  struct stat status(const std::string& name) const {
    struct stat result {};
    EXPECT_EQ(::lstat(path(name).c_str(), &result), 0) << name;
    return result;
  }
  mode_t mode(const std::string& name) const { return status(name).st_mode & 07777; }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_)) found.push_back(entry.path().filename());
    std::sort(found.begin(), found.end());
    return found;
  }

  std::string whyNotRead(const std::string& file) const {
    const auto result = store_.contents(file);
    const auto* error = std::get_if<foundation::FileError>(&result);
    return error == nullptr ? "" : error->reason;
  }
  std::string whyNotReplaced(const std::string& file, std::string_view bytes = "new") {
    const auto error = store_.replaceContents(file, bytesOf(bytes));
    return error ? error->reason : "";
  }

  PosixFileStore store_;
  std::string folder_;
};

// Reading

TEST_F(PosixFileStoreTest, readsFilesOfEverySizeWhole) {
  for (const std::size_t size : {0UL, 1UL, 4095UL, 4096UL, 4097UL, 100'000UL, (1UL << 24) + 5}) {
    const auto bytes = manyBytes(size);
    std::ofstream(path("file"), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(size));

    const auto result = store_.contents(path("file"));
    ASSERT_TRUE(std::holds_alternative<std::vector<std::byte>>(result)) << size;
    EXPECT_TRUE(std::get<std::vector<std::byte>>(result) == bytes) << size;
  }
}

TEST_F(PosixFileStoreTest, takesMemoryInProportionToTheFile) {
  put("file", std::string(1'000'000, 'x'));
  const auto result = store_.contents(path("file"));
  EXPECT_LE(std::get<std::vector<std::byte>>(result).capacity(), 2'000'000U);
}

TEST_F(PosixFileStoreTest, readsAFileThatDoesNotStateItsSize) {
  struct stat status {};
  ASSERT_EQ(::stat("/proc/self/maps", &status), 0);
  ASSERT_EQ(status.st_size, 0);
  const auto result = store_.contents("/proc/self/maps");
  ASSERT_TRUE(std::holds_alternative<std::vector<std::byte>>(result));
  EXPECT_GT(std::get<std::vector<std::byte>>(result).size(), 1000U);
}

TEST_F(PosixFileStoreTest, readsAPipeToItsEndThoughSignalsInterruptIt) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  struct sigaction action {};
  struct sigaction before {};
  action.sa_handler = [](int) {};  // without SA_RESTART, so that read() is interrupted
  ASSERT_EQ(::sigaction(SIGUSR1, &action, &before), 0);

  const auto bytes = manyBytes(300'000);
  std::thread writer([&, reader = ::pthread_self()] {
    for (std::size_t at = 0; at < bytes.size();) {
      for (int i = 0; i < 20; ++i) {
        ::pthread_kill(reader, SIGUSR1);
        ::sched_yield();
      }
      const ssize_t count =
          ::write(ends[1], bytes.data() + at, std::min<std::size_t>(9000, bytes.size() - at));
      if (count > 0) at += static_cast<std::size_t>(count);
    }
    ::close(ends[1]);
  });
  const PosixFileStore readingPipes({}, PosixFileStore::Pipes::areRead);
  const auto result = readingPipes.contents("/proc/self/fd/" + std::to_string(ends[0]));
  // Nobody else would empty the pipe, had the reading stopped.
  ::close(ends[0]);
  writer.join();
  ::sigaction(SIGUSR1, &before, nullptr);

  ASSERT_TRUE(std::holds_alternative<std::vector<std::byte>>(result));
  EXPECT_TRUE(std::get<std::vector<std::byte>>(result) == bytes);
}

TEST_F(PosixFileStoreTest, saysWhyAFileCannotBeRead) {
  put("file", "old");
  EXPECT_EQ(whyNotRead(path("none")), "No such file or directory");
  EXPECT_EQ(whyNotRead(""), "No such file or directory");
  EXPECT_EQ(whyNotRead(folder_), "Is a directory");
  EXPECT_EQ(whyNotRead(path("file/within")), "Not a directory");
  EXPECT_EQ(whyNotRead(path(std::string(300, 'n'))), "File name too long");
  EXPECT_EQ(whyNotRead("/dev/null"), "Not a regular file");
  EXPECT_EQ(whyNotRead("/dev/zero"), "Not a regular file");
  EXPECT_EQ(whyNotRead(path("file") + std::string(1, '\0') + ".txt"), "Invalid argument");
  // A file whose reading begins and then fails.
  EXPECT_EQ(whyNotRead("/proc/self/mem"), "Input/output error");
}

TEST_F(PosixFileStoreTest, doesNotWaitForTheWriterOfAPipe) {
  ASSERT_EQ(::mkfifo(path("pipe.nascor").c_str(), 0600), 0);
  fs::create_symlink("pipe.nascor", path("link.nascor"));
  EXPECT_EQ(whyNotRead(path("pipe.nascor")), "Not a regular file");
  EXPECT_EQ(whyNotRead(path("link.nascor")), "Not a regular file");
}

TEST_F(PosixFileStoreTest, readsAListedFileAndRefusesWhatHasTakenItsPlace) {
  const auto whyNotListed = [&](const std::string& name) {
    const auto result = PosixFileStore::contentsOfListed(path(name));
    const auto* error = std::get_if<foundation::FileError>(&result);
    return error != nullptr ? error->reason : "";
  };
  put("file", std::string(5000, 'x'));
  EXPECT_EQ(std::get<0>(PosixFileStore::contentsOfListed(path("file"))),
            std::get<0>(PosixFileStore().contents(path("file"))));
  ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(whyNotListed("pipe"), "Not a regular file");
  EXPECT_EQ(whyNotListed("none"), "No such file or directory");
  EXPECT_EQ(whyNotListed("."), "Is a directory");
}

TEST_F(PosixFileStoreTest, readsAFileThatStatesNoSizeToItsEnd) {
  const auto result = PosixFileStore().contents("/proc/self/status");
  ASSERT_TRUE(std::holds_alternative<std::vector<std::byte>>(result));
  EXPECT_GT(std::get<0>(result).size(), 500U);
}

TEST_F(PosixFileStoreTest, doesNotReadAFileThatTheUserMayNotRead) {
  put("file", "old", 0600);
  if (::geteuid() == 0) {
    const AsUser nobody;
    ASSERT_TRUE(nobody.isIt());
    EXPECT_EQ(whyNotRead(path("file")), "Permission denied");
  } else {
    ASSERT_EQ(::chmod(path("file").c_str(), 0), 0);
    EXPECT_EQ(whyNotRead(path("file")), "Permission denied");
  }
}

// Writing

TEST_F(PosixFileStoreTest, writesNewFilesOfEverySize) {
  for (const std::size_t size : {0UL, 1UL, 4096UL, 5'000'000UL}) {
    const auto bytes = manyBytes(size);
    const std::string file = path("new-" + std::to_string(size));
    ASSERT_EQ(store_.replaceContents(file, bytes), std::nullopt);
    EXPECT_EQ(fs::file_size(file), size);
    const auto result = store_.contents(file);
    ASSERT_TRUE(std::holds_alternative<std::vector<std::byte>>(result));
    EXPECT_TRUE(std::get<std::vector<std::byte>>(result) == bytes) << size;
  }
  EXPECT_EQ(names().size(), 4U);
}

TEST_F(PosixFileStoreTest, makesANewFileReadableByItsOwnerAloneWhateverTheUmask) {
  for (const mode_t mask : {0U, 022U, 077U, 0777U}) {
    const ScopedUmask umask(mask);
    fs::remove(path("new"));
    ASSERT_EQ(whyNotReplaced(path("new")), "");
    EXPECT_EQ(mode("new"), 0600U) << mask;
  }
}

TEST_F(PosixFileStoreTest, keepsThePermissionsOfAReplacedFileWhateverTheUmask) {
  for (const mode_t mask : {0U, 0777U}) {
    for (const mode_t old : {0644U, 0640U, 0700U}) {
      put("file", "old", old);
      const ScopedUmask umask(mask);
      ASSERT_EQ(whyNotReplaced(path("file")), "");
      EXPECT_EQ(text("file"), "new");
      EXPECT_EQ(mode("file"), old);
    }
  }
}

TEST_F(PosixFileStoreTest, neverTruncatesTheOldFileInPlace) {
  put("file", "the old bytes");
  const ino_t old = status("file").st_ino;
  std::ifstream reader(path("file"), std::ios::binary);
  fs::create_hard_link(path("file"), path("second name"));

  ASSERT_EQ(whyNotReplaced(path("file")), "");

  EXPECT_NE(status("file").st_ino, old);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "the old bytes");
  EXPECT_EQ(text("second name"), "the old bytes");
  EXPECT_EQ(text("file"), "new");
}

TEST_F(PosixFileStoreTest, writesIntoTheWorkingFolderWhenThePathIsANameAlone) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  EXPECT_EQ(whyNotReplaced("AB-123 (G2).nascor"), "");
  fs::current_path(before);
  EXPECT_THAT(names(), testing::ElementsAre("AB-123 (G2).nascor"));
}

TEST_F(PosixFileStoreTest, writesAFileWithTheLongestName) {
  const std::string name(255, 'n');
  EXPECT_EQ(whyNotReplaced(path(name)), "");
  EXPECT_EQ(text(name), "new");
}

TEST_F(PosixFileStoreTest, followsALinkToTheFileThatItMeans) {
  fs::create_directory(path("kept"));
  put("kept/file", "old", 0640);
  fs::create_symlink("kept/second", path("first"));
  fs::create_symlink("file", path("kept/second"));

  ASSERT_EQ(whyNotReplaced(path("first")), "");

  EXPECT_TRUE(S_ISLNK(status("first").st_mode));
  EXPECT_TRUE(S_ISLNK(status("kept/second").st_mode));
  EXPECT_EQ(text("kept/file"), "new");
  EXPECT_EQ(mode("kept/file"), 0640U);
  EXPECT_THAT(names(), testing::ElementsAre("first", "kept"));
}

TEST_F(PosixFileStoreTest, makesTheFileThatALinkMeansWhenThereIsNone) {
  fs::create_symlink(path("target"), path("link"));
  ASSERT_EQ(whyNotReplaced(path("link")), "");
  EXPECT_TRUE(S_ISLNK(status("link").st_mode));
  EXPECT_EQ(text("target"), "new");
  EXPECT_EQ(mode("target"), 0600U);
}

TEST_F(PosixFileStoreTest, followsFortyLinksAsTheSystemDoes) {
  fs::create_symlink("file", path("link1"));
  for (int i = 2; i <= 40; ++i)
    fs::create_symlink("link" + std::to_string(i - 1), path("link" + std::to_string(i)));
  ASSERT_EQ(whyNotReplaced(path("link39")), "");
  EXPECT_EQ(text("link39"), "new");
  EXPECT_EQ(whyNotReplaced(path("link40")), "Too many levels of symbolic links");
}

// Failing: the old file stays byte for byte, and no temporary file is left.

TEST_F(PosixFileStoreTest, keepsTheOldFileWhenTheDiskIsFull) {
  put("file", "the old bytes", 0640);
  {
    const FileSizeLimit limit(100'000);
    const auto error = store_.replaceContents(path("file"), manyBytes(100'001));
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->reason, "File too large");
    EXPECT_TRUE(store_.replaceContents(path("new"), manyBytes(5'000'000)).has_value());
  }
  EXPECT_EQ(text("file"), "the old bytes");
  EXPECT_EQ(mode("file"), 0640U);
  EXPECT_THAT(names(), testing::ElementsAre("file"));

  EXPECT_EQ(whyNotReplaced(path("file")), "") << "and saves again as soon as there is room";
}

TEST_F(PosixFileStoreTest, replacesNothingButRegularFiles) {
  fs::create_directory(path("folder"));
  ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
  fs::create_symlink("pipe", path("link to pipe"));
  fs::create_symlink("folder", path("link to folder"));

  EXPECT_EQ(whyNotReplaced(path("folder")), "Is a directory");
  EXPECT_EQ(whyNotReplaced(path("folder/")), "Is a directory");
  EXPECT_EQ(whyNotReplaced(path("link to folder")), "Is a directory");
  EXPECT_EQ(whyNotReplaced(path("none/")), "Is a directory");
  EXPECT_EQ(whyNotReplaced(path("pipe")), "Not a regular file");
  EXPECT_EQ(whyNotReplaced(path("link to pipe")), "Not a regular file");

  EXPECT_THAT(names(), testing::ElementsAre("folder", "link to folder", "link to pipe", "pipe"));
  EXPECT_TRUE(fs::is_empty(path("folder")));
}

TEST_F(PosixFileStoreTest, saysWhyAFileCannotBeWritten) {
  put("file", "old");
  fs::create_symlink("one", path("other"));
  fs::create_symlink("other", path("one"));

  EXPECT_EQ(whyNotReplaced(""), "No such file or directory");
  EXPECT_EQ(whyNotReplaced(path("none/file")), "No such file or directory");
  EXPECT_EQ(whyNotReplaced(path("file/within")), "Not a directory");
  EXPECT_EQ(whyNotReplaced(path("file/")), "Not a directory");
  EXPECT_EQ(whyNotReplaced(path(std::string(300, 'n'))), "File name too long");
  EXPECT_EQ(whyNotReplaced(path("one")), "Too many levels of symbolic links");
  EXPECT_EQ(whyNotReplaced(path("file") + std::string(1, '\0') + ".txt"), "Invalid argument");

  EXPECT_EQ(text("file"), "old");
  EXPECT_THAT(names(), testing::ElementsAre("file", "one", "other"));
}

TEST_F(PosixFileStoreTest, leavesAFolderAloneThatTheUserMayNotWriteTo) {
  put("file", "old", 0666);
  ASSERT_EQ(::chmod(folder_.c_str(), 0555), 0);
  const auto tryIt = [&] {
    EXPECT_EQ(whyNotReplaced(path("file")), "Permission denied");
    EXPECT_EQ(whyNotReplaced(path("new")), "Permission denied");
  };
  if (::geteuid() == 0) {
    const AsUser nobody;
    ASSERT_TRUE(nobody.isIt());
    tryIt();
  } else {
    tryIt();
  }
  ASSERT_EQ(::chmod(folder_.c_str(), 0755), 0);
  EXPECT_EQ(text("file"), "old");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

TEST_F(PosixFileStoreTest, leavesAWriteProtectedFileAloneThoughTheFolderWouldAllowIt) {
  put("file", "old", 0444);
  ASSERT_EQ(::chmod(folder_.c_str(), 0777), 0);
  if (::geteuid() == 0) {
    const AsUser nobody;
    ASSERT_TRUE(nobody.isIt());
    EXPECT_EQ(whyNotReplaced(path("file")), "Permission denied");
  } else {
    EXPECT_EQ(whyNotReplaced(path("file")), "Permission denied");
  }
  EXPECT_EQ(text("file"), "old");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

// Expecting: of several programs that have read the same, one may replace it.

TEST_F(PosixFileStoreTest, replacesWhatIsExpectedAlone) {
  put("file", "old", 0640);
  const auto attempt = [&](const foundation::FileContents& expected) {
    return store_.replaceExpected(path("file"), bytesOf("new"), expected);
  };
  for (const foundation::FileContents& other :
       {foundation::FileContents(bytesOf("other")), foundation::FileContents(bytesOf("")),
        foundation::FileContents()}) {
    const auto error = attempt(other);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, foundation::FileError::Kind::isChanged);
    EXPECT_EQ(text("file"), "old");
  }
  EXPECT_EQ(attempt(bytesOf("old")), std::nullopt);
  EXPECT_EQ(text("file"), "new");
  EXPECT_EQ(mode("file"), 0640U);

  fs::remove(path("file"));
  EXPECT_EQ(attempt(bytesOf("new"))->kind, foundation::FileError::Kind::isChanged) << "it is gone";
  EXPECT_EQ(attempt(std::nullopt), std::nullopt);
  EXPECT_EQ(text("file"), "new");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

TEST_F(PosixFileStoreTest, saysWhyWhatIsExpectedCannotBeRead) {
  put("file", "old");
  tests::FailingCalls calls;
  int error = EACCES;
  calls.open = [&](const std::string& opened) -> std::optional<int> {
    if (opened != path("file")) return std::nullopt;
    if (error == ENOENT) fs::remove(path("file"));
    return error;
  };
  const auto attempt = [&] { return store_.replaceExpected(path("file"), bytesOf("new"), bytesOf("old")); };
  const auto unreadable = attempt();
  ASSERT_TRUE(unreadable);
  EXPECT_EQ(unreadable->reason, "Permission denied");
  EXPECT_NE(unreadable->kind, foundation::FileError::Kind::isChanged);
  error = ENOENT;
  const auto gone = attempt();
  ASSERT_TRUE(gone);
  EXPECT_EQ(gone->kind, foundation::FileError::Kind::isChanged);
  EXPECT_THAT(names(), testing::IsEmpty());
}

// File systems that cannot do everything.

TEST_F(PosixFileStoreTest, takesThePermissionsOfAFileSystemThatHasNone) {
  for (const int error : {EPERM, ENOTSUP, ENOSYS}) {
    tests::FailingCalls calls;
    calls.fchmod = [error] { return error; };
    fs::remove(path("file"));
    EXPECT_EQ(whyNotReplaced(path("file"), "first"), "") << error << ", a file of its owner alone";
    EXPECT_EQ(text("file"), "first");
    ASSERT_EQ(::chmod(path("file").c_str(), 0640), 0);
    EXPECT_NE(whyNotReplaced(path("file")), "") << error << ", those who could read it could no more";
    EXPECT_EQ(text("file"), "first");
  }
  tests::FailingCalls calls;
  calls.fchmod = [] { return EIO; };
  EXPECT_EQ(whyNotReplaced(path("other")), "Input/output error");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

TEST_F(PosixFileStoreTest, writesWhereAFileCannotGetItsNameLater) {
  tests::FailingCalls calls;
  calls.linkat = [] { return EPERM; };
  EXPECT_EQ(whyNotReplaced(path("file"), "first"), "");
  EXPECT_EQ(text("file"), "first");
  EXPECT_EQ(whyNotReplaced(path("file"), "second"), "");
  EXPECT_EQ(text("file"), "second");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

TEST_F(PosixFileStoreTest, replacesAFileThatComesWhileItIsMade) {
  tests::FailingCalls calls;
  calls.linkat = [&]() -> std::optional<int> {
    if (fs::exists(path("file"))) return std::nullopt;
    put("file", "another's", 0640);
    return EEXIST;
  };
  EXPECT_EQ(whyNotReplaced(path("file")), "");
  EXPECT_EQ(text("file"), "new");
  EXPECT_EQ(mode("file"), 0640U);

  fs::remove(path("file"));
  const auto error = store_.replaceExpected(path("file"), bytesOf("new"), std::nullopt);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->kind, foundation::FileError::Kind::isChanged) << "none was expected";
  EXPECT_EQ(text("file"), "another's");
}

TEST_F(PosixFileStoreTest, waitsForAnotherProgramThatReplacesAFileOfTheFolder) {
  put("file", "old");
  for (const int error : {EWOULDBLOCK, EINTR}) {
    tests::FailingCalls calls;
    int asked = 0;
    // The first is for the new file itself.
    calls.flock = [&]() -> std::optional<int> {
      return ++asked == 2 || asked == 3 ? std::optional(error) : std::nullopt;
    };
    EXPECT_EQ(store_.replaceExpected(path("file"), bytesOf("old"), bytesOf("old")), std::nullopt);
    EXPECT_GE(asked, 4) << error;
  }
  tests::FailingCalls calls;
  int asked = 0;
  calls.flock = [&] { return ++asked, ENOLCK; };
  EXPECT_EQ(store_.replaceExpected(path("file"), bytesOf("new"), bytesOf("old")), std::nullopt);
  EXPECT_EQ(asked, 2) << "one that knows no locks is asked once";
}

TEST_F(PosixFileStoreTest, flushesTheWholeFileSystemWhereAFolderCannotBe) {
  const auto attempt = [&](int folderError, std::optional<int> wholeError) {
    tests::FailingCalls calls;
    int flushed = 0;
    // The first is the file's own.
    calls.fsync = [&]() { return ++flushed == 1 ? std::nullopt : std::optional(folderError); };
    calls.syncfs = [&] { return wholeError; };
    const auto error = store_.replaceContents(path("file"), bytesOf("new"));
    if (!error) return std::string();
    EXPECT_EQ(error->kind, foundation::FileError::Kind::isWritten);
    return error->reason;
  };
  for (const int error : {EINVAL, EBADF, ENOTSUP}) {
    EXPECT_EQ(attempt(error, std::nullopt), "") << error;
    EXPECT_EQ(attempt(error, EIO), "Input/output error") << error;
  }
  EXPECT_EQ(attempt(ENOSPC, std::nullopt), "No space left on device");
}

TEST_F(PosixFileStoreTest, removesWhatKilledProgramsHaveLeftAndNothingElse) {
  fs::create_directory(path("folder"));
  const std::string folder = path("folder/");
  const pid_t child = ::fork();
  if (child == 0) {
    // Killed between getting a name and taking the other's place.
    const NewFile left(folder, true);
    ::raise(SIGKILL);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  const NewFile living(folder, true);
  put("folder/.nascor-notes", "mine");
  ASSERT_EQ(std::distance(fs::directory_iterator(folder), {}), 3);

  ASSERT_EQ(whyNotReplaced(folder + "file"), "");

  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3)
      << "the file, the notes, and what is being written";
  EXPECT_TRUE(fs::exists(folder + ".nascor-notes"));
}

// Owners: only root can make files of others.

class PosixFileStoreAsRoot : public PosixFileStoreTest {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to give files away";
    PosixFileStoreTest::SetUp();
  }
};

TEST_F(PosixFileStoreAsRoot, removesTheTemporaryFileWhenTheRenamingFails) {
  // In a folder with the sticky bit nobody can rename over a file of somebody else.
  put("file", "old", 0666);
  ASSERT_EQ(::chmod(folder_.c_str(), 01777), 0);
  {
    const AsUser nobody;
    ASSERT_TRUE(nobody.isIt());
    EXPECT_EQ(whyNotReplaced(path("file")), "Operation not permitted");
  }
  EXPECT_EQ(text("file"), "old");
  EXPECT_THAT(names(), testing::ElementsAre("file"));
}

TEST_F(PosixFileStoreAsRoot, keepsOwnerAndGroup) {
  put("file", "old", 0640);
  ASSERT_EQ(::chown(path("file").c_str(), 1234, 2345), 0);
  ASSERT_EQ(whyNotReplaced(path("file")), "");
  EXPECT_EQ(status("file").st_uid, 1234U);
  EXPECT_EQ(status("file").st_gid, 2345U);
  EXPECT_EQ(mode("file"), 0640U);
}

TEST_F(PosixFileStoreAsRoot, opensNoFileToAnotherGroupThatTheUserIsIn) {
  // The file is for the group 2345, in which its owner is not: the new file cannot be given to it.
  put("file", "old", 0660);
  ASSERT_EQ(::chown(path("file").c_str(), 1234, 2345), 0);
  ASSERT_EQ(::chmod(folder_.c_str(), 0777), 0);
  {
    const AsUser owner(1234);
    ASSERT_TRUE(owner.isIt());
    ASSERT_EQ(whyNotReplaced(path("file")), "");
  }
  EXPECT_EQ(text("file"), "new");
  EXPECT_EQ(status("file").st_uid, 1234U);
  EXPECT_EQ(status("file").st_gid, kNobody);
  EXPECT_EQ(mode("file"), 0600U);
}

// Access lists, in the form in which the system stores them: version 2, then tag, permissions, id of each entry.

std::string accessList(std::uint16_t namedUserPermissions, std::uint16_t groupPermissions,
                       std::uint16_t mask) {
  constexpr std::uint32_t kNoId = 0xFFFFFFFF;
  std::string list;
  const auto put = [&list](std::uint32_t number, int bytes) {
    for (int i = 0; i < bytes; ++i) list += static_cast<char>(number >> (8 * i) & 0xFF);
  };
  const auto entry = [&](std::uint16_t tag, std::uint16_t permissions, std::uint32_t id) {
    put(tag, 2);
    put(permissions, 2);
    put(id, 4);
  };
  put(2, 4);
  entry(0x01, 6, kNoId);
  entry(0x02, namedUserPermissions, 1234);
  entry(0x04, groupPermissions, kNoId);
  entry(0x10, mask, kNoId);
  entry(0x20, 0, kNoId);
  return list;
}

std::string readList(const std::string& path) {
  std::array<char, 512> buffer{};
  const ssize_t size = ::getxattr(path.c_str(), kAccessList, buffer.data(), buffer.size());
  return size < 0 ? "" : std::string(buffer.data(), static_cast<std::size_t>(size));
}

TEST_F(PosixFileStoreTest, keepsTheAccessListOfAReplacedFile) {
  put("file", "old", 0600);
  const std::string list = accessList(6, 0, 6);
  if (::setxattr(path("file").c_str(), kAccessList, list.data(), list.size(), 0) != 0) {
    GTEST_SKIP() << "no access lists in this file system";
  }
  ASSERT_EQ(mode("file"), 0660U);

  ASSERT_EQ(whyNotReplaced(path("file")), "");

  EXPECT_EQ(readList(path("file")), list);
  EXPECT_EQ(mode("file"), 0660U);
}

TEST_F(PosixFileStoreTest, keepsTheAccessListInAFolderThatGivesAnother) {
  put("file", "old", 0600);
  const std::string list = accessList(6, 0, 6);
  const std::string ofFolder = accessList(4, 4, 4);
  if (::setxattr(path("file").c_str(), kAccessList, list.data(), list.size(), 0) != 0 ||
      ::setxattr(folder_.c_str(), "system.posix_acl_default", ofFolder.data(), ofFolder.size(), 0) != 0) {
    GTEST_SKIP() << "no access lists in this file system";
  }
  ASSERT_EQ(whyNotReplaced(path("file")), "");
  EXPECT_EQ(readList(path("file")), list);
}

TEST_F(PosixFileStoreTest, takesNoAccessListFromTheFolderThatTheReplacedFileDidNotHave) {
  put("file", "old", 0660);
  const std::string list = accessList(6, 6, 6);
  if (::setxattr(folder_.c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0) {
    GTEST_SKIP() << "no access lists in this file system";
  }
  ASSERT_EQ(readList(path("file")), "");

  ASSERT_EQ(whyNotReplaced(path("file")), "");

  EXPECT_EQ(readList(path("file")), "");
  EXPECT_EQ(mode("file"), 0660U);
}

}  // namespace
}  // namespace nascor::posix
