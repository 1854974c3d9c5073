// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/GettextLocalizer.h"

#include <gtest/gtest.h>
#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <system_error>

#include "foundation/Sentence.h"
#include "support/Catalogue.h"

/// Gettext keeps what it has found for as long as this number stays, whatever becomes of the environment.
extern "C" int _nl_msg_cat_cntr;

namespace nascor::posix {
namespace {

using foundation::Sentence;
using tests::gettextKey;

/// Texts in a folder of the test's own, and the language of its environment.
class Gettext : public testing::Test {
 protected:
  Gettext() {
    std::string pattern = std::filesystem::temp_directory_path() / "nascor-catalogues-XXXXXX";
    folder = ::mkdtemp(pattern.data());
    setLanguage("qq");
  }
  ~Gettext() override {
    ::unsetenv("LANGUAGE");
    std::filesystem::remove_all(folder);
  }

  static void setLanguage(const char* language) {
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::setenv("LANGUAGE", language, 1);
    ++_nl_msg_cat_cntr;
  }

  std::string folder;
};

TEST_F(Gettext, findsTheTextsOfEachTable) {
  tests::writeCatalogue(folder, "qq",
                        {{gettextKey("Reading", "expected %1, but %2 stands here"), "%2 statt %1 \xC3\xBC"},
                         {gettextKey("Other", "mm"), "Millimeter"},
                         {"mm", "MM"}});
  const GettextLocalizer localizer(folder);
  EXPECT_EQ(said(Sentence("Reading", "expected %1, but %2 stands here").with("a", "b"), localizer),
            "b statt a \xC3\xBC");
  EXPECT_EQ(localizer.text("Other", "mm"), "Millimeter");
  EXPECT_EQ(localizer.text("", "mm"), "MM");
}

TEST_F(Gettext, hasTheSystemsSentencesFromTheSystemsCatalogue) {
  tests::writeCatalogue(folder, "qq", {{"Permission denied", "verboten"}}, "libc");
  const std::string before = ::bindtextdomain("libc", nullptr);
  ::bindtextdomain("libc", folder.c_str());
  EXPECT_EQ(GettextLocalizer(folder).text(foundation::kSystemTable, "Permission denied"), "verboten");
  EXPECT_EQ(GettextLocalizer(folder).text("Other", "Permission denied"), "Permission denied");
  ::bindtextdomain("libc", before.c_str());
}

TEST_F(Gettext, isEnglishWhereThereIsNoTranslation) {
  tests::writeCatalogue(folder, "qq", {{gettextKey("T", "a"), "b"}});
  EXPECT_EQ(GettextLocalizer(folder).text("T", "other"), "other");
  EXPECT_EQ(GettextLocalizer(folder).text("U", "a"), "a");
  EXPECT_EQ(GettextLocalizer(folder).text("", ""), "") << "the empty key is the catalogue's own";
  EXPECT_EQ(GettextLocalizer(folder + "/none").text("T", "a"), "a");
}

TEST_F(Gettext, speaksTheLanguageOfTheEnvironment) {
  tests::writeCatalogue(folder, "qq", {{gettextKey("T", "a"), "b"}});
  setLanguage("en:qq");
  EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "b") << "there is no catalogue of English";
  setLanguage("xx");
  EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "a");
  setLanguage("qq");
  ::setenv("LC_ALL", "C", 1);
  EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "a") << "C is no language";
  ::setenv("LC_ALL", "nowhere", 1);
  EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "a");
  EXPECT_EQ(GettextLocalizer(folder).text(foundation::kSystemTable, "a"), "a");
}

TEST_F(Gettext, writesDaysAndTheDecimalSignAsTheTextsSay) {
  tests::writeCatalogue(folder, "qq",
                        {{gettextKey("Writing", "March"), "M\xC3\xA4rz"},
                         {gettextKey("Writing", "%1 %2 %3"), "%1. %2 %3"},
                         {gettextKey("Writing", "."), ","}});
  const GettextLocalizer localizer(folder);
  EXPECT_EQ(localizer.longDateText({.year = 2027, .month = 3, .day = 4}), "4. M\xC3\xA4rz 2027");
  EXPECT_EQ(localizer.longDateText({.year = 2027, .month = 4, .day = 4}), "4. April 2027");
  EXPECT_EQ(localizer.longDateText({.year = 2027, .month = 13, .day = 4}), "");
  EXPECT_EQ(localizer.decimalSign(), ',');
  tests::writeCatalogue(folder, "qr", {{gettextKey("Writing", "."), "too long"}});
  setLanguage("qr");
  EXPECT_EQ(GettextLocalizer(folder).decimalSign(), '.');
}

TEST_F(Gettext, leavesTheLocaleOfTheProgramAlone) {
  tests::writeCatalogue(folder, "qq", {{gettextKey("T", "a"), "b"}});
  EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "b");
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
  EXPECT_EQ(std::generic_category().message(ENOENT), "No such file or directory");
}

TEST_F(Gettext, asksTheSystemForItsOwnSentences) {
  tests::writeCatalogue(folder, "qq", {{"Permission denied", "verboten"}}, "libc");
  ::bindtextdomain("libc", folder.c_str());
  EXPECT_EQ(GettextLocalizer(folder).text(foundation::kSystemTable, "Permission denied"), "verboten");
  EXPECT_EQ(GettextLocalizer(folder).text("Other", "Permission denied"), "Permission denied");
}

TEST_F(Gettext, isEnglishWhereTheCatalogueIsCut) {
  const std::string whole = tests::compiledCatalogue({{gettextKey("T", "a"), "b"}});
  for (const std::size_t length : {std::size_t{0}, std::size_t{4}, std::size_t{27}}) {
    const std::string language = "q" + std::to_string(length);
    tests::writeCatalogue(folder, language, {});
    std::ofstream(folder + "/" + language + "/LC_MESSAGES/nascor.mo", std::ios::binary | std::ios::trunc)
        << whole.substr(0, length);
    setLanguage(language.c_str());
    EXPECT_EQ(GettextLocalizer(folder).text("T", "a"), "a") << length;
  }
}

TEST(TheCatalogues, lieBesideTheProgram) {
  EXPECT_TRUE(catalogueFolder().ends_with("/share/locale")) << catalogueFolder();
  EXPECT_TRUE(catalogueFolder().starts_with('/'));
}

}  // namespace
}  // namespace nascor::posix
