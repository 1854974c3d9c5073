// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "posix/PosixFileStore.h"

namespace nascor::posix {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class AFolder : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "nascor-folder-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    folder_ = fs::canonical(name);
  }
  void TearDown() override { fs::remove_all(folder_); }

  void put(const fs::path& name, const std::string& text = "x") const {
    std::ofstream(folder_ / name) << text;
  }
  std::string at(const std::string& name) const { return (folder_ / name).string(); }
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : store_.entries(folder_.string())) found.push_back(entry.name);
    return found;
  }

  PosixFileStore store_;
  fs::path folder_;
};

TEST_F(AFolder, listsItsFilesWithSizeAndDate) {
  put("a (G1).nascor", "12345");
  const std::string path = at("a (G1).nascor");
  // Half a second past 2026-11-21 10:00 UTC: 816948000 s after the beginning of 2001.
  const timespec stamps[] = {{.tv_sec = 0, .tv_nsec = 0},
                             {.tv_sec = 978307200 + 816948000, .tv_nsec = 500000000}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), stamps, 0), 0);
  const auto entries = store_.entries(folder_.string());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].name, "a (G1).nascor");
  EXPECT_EQ(entries[0].path, path);
  EXPECT_EQ(entries[0].size, 5);
  EXPECT_EQ(entries[0].modified.secondsSince2001, 816948000.5);
}

TEST_F(AFolder, listsWhatIsNoRegularFileNot) {
  put("file");
  put(".hidden");
  put("with\nnewline");
  fs::create_directory(folder_ / "folder");
  put("folder/inside");
  ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
  fs::create_symlink("nowhere", folder_ / "broken");
  fs::create_symlink("folder", folder_ / "to folder");
  EXPECT_THAT(names(), UnorderedElementsAre("file", ".hidden", "with\nnewline"));
}

TEST_F(AFolder, knowsWhichNamesAreTaken) {
  put("file");
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("nowhere", folder_ / "broken");
  for (const char* name : {"file", "folder", "broken"}) EXPECT_TRUE(store_.exists(at(name))) << name;
  EXPECT_FALSE(store_.exists(at("nowhere")));
  EXPECT_FALSE(store_.exists(at("file/below")));
}

TEST_F(AFolder, listsALinkToAFileAsTheFile) {
  put("file", "1234567");
  fs::create_symlink("file", folder_ / "link");
  ASSERT_THAT(names(), UnorderedElementsAre("file", "link"));
  for (const auto& entry : store_.entries(folder_.string())) EXPECT_EQ(entry.size, 7) << entry.name;
}

TEST_F(AFolder, thatIsNoneListsNothing) {
  put("file");
  EXPECT_THAT(store_.entries(at("none")), IsEmpty());
  EXPECT_THAT(store_.entries(at("file")), IsEmpty());
  EXPECT_THAT(store_.entries(""), IsEmpty());
}

TEST_F(AFolder, listsManyFiles) {
  for (int i = 0; i < 500; ++i) put("file " + std::to_string(i));
  EXPECT_EQ(names().size(), 500U);
}

TEST_F(AFolder, knowsAFileByOneNameOnAnyRoad) {
  put("file");
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("../file", folder_ / "folder" / "link");
  fs::create_symlink("folder", folder_ / "also");
  const std::string name = store_.resolvedPath(at("file"));
  EXPECT_EQ(name, at("file"));
  for (const char* road :
       {"./file", "folder/../file", "folder/link", "also/link", "also/../file", ".//file"}) {
    EXPECT_EQ(store_.resolvedPath(at(road)), name) << road;
  }
  EXPECT_NE(store_.resolvedPath(at("folder")), name);
}

TEST_F(AFolder, namesAFileThatIsNotThereYet) {
  EXPECT_EQ(store_.resolvedPath(at("new.nascor")), at("new.nascor"));
  EXPECT_EQ(store_.resolvedPath(at("no/such/folder/../new.nascor")), at("no/such/new.nascor"));
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("folder", folder_ / "also");
  EXPECT_EQ(store_.resolvedPath(at("also/new.nascor")), at("folder/new.nascor"));
}

TEST_F(AFolder, completesARelativeName) {
  put("file");
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  const std::string name = store_.resolvedPath("file");
  fs::current_path(before);
  EXPECT_EQ(name, at("file"));
}

TEST_F(AFolder, answersALoopOfLinksWithTheNameThatItWasGiven) {
  fs::create_symlink("two", folder_ / "one");
  fs::create_symlink("one", folder_ / "two");
  EXPECT_EQ(store_.resolvedPath(at("one")), at("one"));
}

/// Sets HOME, and gives it back at the end.
class Home {
 public:
  explicit Home(const char* home)
      : before_(std::getenv("HOME") ? std::optional<std::string>(std::getenv("HOME")) : std::nullopt) {
    home ? ::setenv("HOME", home, 1) : ::unsetenv("HOME");
  }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;
  ~Home() { before_ ? ::setenv("HOME", before_->c_str(), 1) : ::unsetenv("HOME"); }

 private:
  std::optional<std::string> before_;
};

TEST_F(AFolder, isTheDocumentsFolderWhereItIsGiven) {
  fs::create_directory(folder_ / "patients");
  const Home home(folder_.c_str());
  EXPECT_EQ(PosixFileStore(at("patients")).documentsFolder(), at("patients"));
}

TEST_F(AFolder, isTheDocumentsFolderInTheUsersHomeOtherwise) {
  fs::create_directory(folder_ / "Documents");
  const Home home(folder_.c_str());
  EXPECT_EQ(PosixFileStore().documentsFolder(), at("Documents"));
}

// A new document is proposed to be saved there, and so it is there that the patient is looked for.
TEST_F(AFolder, isTheDocumentsFolderAsAHomeWithoutOne) {
  put("Documents");
  const Home home(folder_.c_str());
  EXPECT_EQ(PosixFileStore().documentsFolder(), folder_.string());
  EXPECT_EQ(PosixFileStore(at("patients")).documentsFolder(), folder_.string());
}

TEST(TheDocumentsFolder, isHereWithoutAHome) {
  const Home home(nullptr);
  EXPECT_EQ(PosixFileStore("/no/such/folder").documentsFolder(), ".");
}

}  // namespace
}  // namespace nascor::posix
