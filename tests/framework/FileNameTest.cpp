// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/FileName.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

namespace nascor::framework {
namespace {

TEST(AFileName, isTheNameWithItsExtension) {
  EXPECT_EQ(fileName("AB-123 (G2)", "nascor"), "AB-123 (G2).nascor");
  EXPECT_EQ(fileName("\u00dc %1", "pdf"), "\u00dc %1.pdf");
}

TEST(AFileName, hasNoCharacterThatAFolderDoesNotTake) {
  using std::string_literals::operator""s;
  EXPECT_EQ(fileName("a/b\0c\nd\x7f"s, "x"), "a-b-c-d-.x");
}

TEST(AFileName, neitherHidesTheFileNorReadsAsAnOption) {
  EXPECT_EQ(fileName(".profile", "x"), "_profile.x");
  EXPECT_EQ(fileName("-rf", "x"), "_rf.x");
  EXPECT_EQ(fileName("/a", "x"), "_a.x");
  EXPECT_EQ(fileName("a.-", "x"), "a.-.x");
  EXPECT_EQ(fileNameText(""), "");
}

TEST(AFileName, isCutToWhatAFolderTakesBetweenCharacters) {
  EXPECT_EQ(fileName(std::string(300, 'a'), "nascor"), std::string(248, 'a') + ".nascor");
  EXPECT_EQ(fileName(std::string(248, 'a'), "nascor"), std::string(248, 'a') + ".nascor");
  // 247 letters and a character of two bytes would end at 249.
  EXPECT_EQ(fileName(std::string(247, 'a') + "\u00dc\u00dc", "nascor"), std::string(247, 'a') + ".nascor");
  EXPECT_EQ(fileName(std::string(246, 'a') + "\u00dc\u00dc", "nascor"),
            std::string(246, 'a') + "\u00dc.nascor");
}

TEST(AFileName, isSafeOnEveryFileSystemWhereItIsToBe) {
  EXPECT_EQ(portableFileNameText("A<b>c:d\"e\\f|g?h*i/j"), "A-b-c-d-e-f-g-h-i-j");
  EXPECT_EQ(portableFileNameText("AB-123 (G2)"), "AB-123 (G2)");
  EXPECT_EQ(portableFileNameText("name."), "name-");
  EXPECT_EQ(portableFileNameText("name "), "name-");
}

TEST(AFileName, keepsItsEndingWhole) {
  EXPECT_EQ(fileNameEndingIn("AB", " - x.pdf"), "AB - x.pdf");
  EXPECT_EQ(fileNameEndingIn(std::string(300, 'a'), " - x.pdf"), std::string(247, 'a') + " - x.pdf");
}

TEST(AFreeFileName, hasANumberOnlyWhereTheNameIsTaken) {
  std::set<std::string> taken;
  const auto free = [&](std::string_view name) {
    return freeFileName(name, " - x", ".pdf", [&](const std::string& each) { return taken.contains(each); });
  };
  EXPECT_EQ(free("AB"), "AB - x.pdf");
  taken = {"AB - x.pdf"};
  EXPECT_EQ(free("AB"), "AB - x (2).pdf");
  taken = {"AB - x.pdf", "AB - x (2).pdf", "AB - x (4).pdf"};
  EXPECT_EQ(free("AB"), "AB - x (3).pdf");
  taken = {std::string(247, 'a') + " - x.pdf"};
  EXPECT_EQ(free(std::string(300, 'a')), std::string(243, 'a') + " - x (2).pdf") << "of 255 bytes";
}

TEST(AFileName, isKnownByItsExtension) {
  EXPECT_TRUE(hasExtension("/a/b.json", "json"));
  EXPECT_TRUE(hasExtension("b.JsoN", "json"));
  EXPECT_TRUE(hasExtension(".json", "json"));
  EXPECT_FALSE(hasExtension("json", "json"));
  EXPECT_FALSE(hasExtension("bjson", "json"));
  EXPECT_FALSE(hasExtension("b.json.csv", "json"));
  EXPECT_FALSE(hasExtension("b.xjson", "json"));
  EXPECT_FALSE(hasExtension("b.js\x0Fn", "json"));
  EXPECT_FALSE(hasExtension("", "json"));
}

}  // namespace
}  // namespace nascor::framework
