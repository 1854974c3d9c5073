// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/FolderWalk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "FailingCalls.h"

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class AWalk : public testing::Test {
 protected:
  AWalk() {
    std::string pattern = (fs::temp_directory_path() / "nascor-walk-XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
  }
  ~AWalk() override { fs::remove_all(folder_); }

  void put(const std::string& name) const {
    fs::create_directories(fs::path(folder_ + "/" + name).parent_path());
    std::ofstream(folder_ + "/" + name) << "text";
  }
  /// The paths in the folder, errors behind a colon.
  std::vector<std::string> found() const {
    std::vector<std::string> paths;
    FolderWalk walk(folder_, ".nascor");
    while (const auto next = walk.next()) {
      paths.push_back(next->path.substr(folder_.size()) + (next->error.empty() ? "" : ": " + next->error));
    }
    return paths;
  }

  std::string folder_;
};

TEST_F(AWalk, meetsTheFilesInTheOrderOfTheirPaths) {
  for (const char* name : {"b.nascor", "a/c.nascor", "a/b/d.nascor", "a-b.nascor", "a0.nascor", "notes.txt",
                           ".hidden.nascor", ".git/x.nascor", "empty.nascor/none.txt"}) {
    put(name);
  }
  EXPECT_THAT(found(), ElementsAre("/a-b.nascor", "/a/b/d.nascor", "/a/c.nascor", "/a0.nascor", "/b.nascor"));
}

TEST_F(AWalk, looksForItselfWhereAFolderDoesNotSayWhatItsNamesAre) {
  put("a/b.nascor");
  put("c.nascor");
  fs::create_symlink("c.nascor", folder_ + "/d.nascor");
  fs::create_directory_symlink("a", folder_ + "/e.nascor");
  ASSERT_EQ(::mkfifo((folder_ + "/pipe.nascor").c_str(), 0600), 0);
  tests::FailingCalls calls;
  calls.hidesKinds = true;
  EXPECT_THAT(found(), ElementsAre("/a/b.nascor", "/c.nascor", "/d.nascor"));
}

TEST_F(AWalk, followsLinksToFilesAndNotToFolders) {
  put("a/b.nascor");
  fs::create_symlink("a/b.nascor", folder_ + "/file.nascor");
  fs::create_directory_symlink("a", folder_ + "/folder.nascor");
  fs::create_symlink("none", folder_ + "/nowhere.nascor");
  EXPECT_THAT(found(), ElementsAre("/a/b.nascor", "/file.nascor", "/nowhere.nascor"));
}

TEST_F(AWalk, passesOverWhatIsNeither) {
  put("a.nascor");
  ASSERT_EQ(::mkfifo((folder_ + "/pipe.nascor").c_str(), 0600), 0);
  fs::create_symlink("pipe.nascor", folder_ + "/link.nascor");
  fs::create_symlink("/dev/null", folder_ + "/device.nascor");
  EXPECT_THAT(found(), ElementsAre("/a.nascor"));
}

TEST_F(AWalk, saysWhichFolderCannotBeRead) {
  fs::remove(folder_);
  EXPECT_THAT(found(), ElementsAre(": No such file or directory"));
  std::ofstream(folder_) << "a file";
  EXPECT_THAT(found(), ElementsAre(": Not a directory"));
  fs::remove(folder_);

  put("a/closed/b.nascor");
  put("a/d.nascor");
  ASSERT_EQ(::chmod((folder_ + "/a/closed").c_str(), 0), 0);
  ASSERT_EQ(::chmod(folder_.c_str(), 0755), 0);
  constexpr uid_t kNobody = 65534;
  const bool isRoot = ::geteuid() == 0;
  ASSERT_TRUE(!isRoot || ::seteuid(kNobody) == 0);
  const auto seen = found();
  ASSERT_TRUE(!isRoot || ::seteuid(0) == 0);
  EXPECT_THAT(seen, ElementsAre("/a/closed: Permission denied", "/a/d.nascor"));
  ASSERT_EQ(::chmod((folder_ + "/a/closed").c_str(), 0700), 0);
}

}  // namespace
}  // namespace nascor::posix
