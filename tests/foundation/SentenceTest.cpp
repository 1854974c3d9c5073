// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Sentence.h"

#include <gtest/gtest.h>

#include <map>

#include "foundation/Localizer.h"
#include "support/MarkedLocalizer.h"

namespace nascor::foundation {
namespace {

/// A language of a few texts.
class Language : public Localizer {
 public:
  using Texts = std::map<std::string, std::string, std::less<>>;
  explicit Language(Texts texts) : texts_(std::move(texts)) {}

  std::string text(std::string_view table, std::string_view key) const override {
    const auto found = texts_.find(std::string(table).append("/").append(key));
    return found == texts_.end() ? std::string(key) : found->second;
  }
  ShortDateForm shortDateForm() const override { return {}; }
  std::string longDateText(const CivilDay&) const override { return {}; }
  char decimalSign() const override { return '.'; }
  std::string upperCased(std::string_view text) const override { return std::string(text); }

 private:
  Texts texts_;
};

Sentence expected(const Sentence& wanted, const Sentence& found) {
  return Sentence("Reading", "expected %1, but %2 stands here").with(wanted, found);
}

TEST(ASentence, isItsEnglishKeyWithTheArgumentsInPlace) {
  EXPECT_EQ(english(Sentence("T", "a command is missing")), "a command is missing");
  EXPECT_EQ(english(Sentence("T", "%1 of %2").with(3, "four")), "3 of four");
  EXPECT_EQ(english(Sentence("T", "%1%2%1").with(std::string("a"), std::string_view("b"))), "aba");
  EXPECT_EQ(english(Sentence::verbatim("%1 as it is")), "%1 as it is");
  EXPECT_EQ(english(Sentence()), "");
}

TEST(ASentence, holdsOthersWhichAreTranslatedToo) {
  const Sentence whole = expected(Sentence("Types", "an object"), Sentence::verbatim("\"x\""));
  EXPECT_EQ(english(whole), "expected an object, but \"x\" stands here");
  EXPECT_EQ(said(whole, tests::MarkedLocalizer()),
            "[Reading:expected [Types:an object], but \"x\" stands here]");
  EXPECT_EQ(
      said(expected(whole, whole), EnglishLocalizer()),
      "expected expected an object, but \"x\" stands here, but expected an object, but \"x\" stands here "
      "stands here");
}

TEST(ASentence, mayChangeTheOrderOfItsArguments) {
  const Language language(
      Language::Texts{{"Reading/expected %1, but %2 stands here", "hier steht %2 statt %1"}});
  EXPECT_EQ(said(expected(Sentence("Types", "an object"), Sentence::verbatim("7")), language),
            "hier steht 7 statt an object")
      << "what has no translation is English";
}

TEST(ASentence, comesToNoHarmByATranslationWithOtherPlaceHolders) {
  for (const char* translation : {"%3 %9 %0 % %% %ld %n %s", "", "%", "%1%1%1%1%1%1%1%1%1", "100 %2"}) {
    const Language language(Language::Texts{{"T/%1 of %2", translation}});
    EXPECT_NO_THROW(said(Sentence("T", "%1 of %2").with("a", "b"), language)) << translation;
  }
  const Language language(Language::Texts{{"T/%1 of %2", "%3 %1 %0 %s%"}});
  EXPECT_EQ(said(Sentence("T", "%1 of %2").with("%2", "b"), language), "%3 %2 %0 %s%")
      << "no place holder is one without an argument, and what an argument holds is none";
}

TEST(ASentence, countsAsItsLanguageDoes) {
  const auto bytes = [](std::uint64_t count) {
    return Sentence::counted(count, Sentence("T", "%1 byte").with(count),
                             Sentence("T", "%1 bytes").with(count));
  };
  const Language french(
      Language::Texts{{"Counting/1", "0 1"}, {"T/%1 byte", "%1 octet"}, {"T/%1 bytes", "%1 octets"}});
  const struct {
    std::uint64_t count;
    const char* english;
    const char* french;
  } kRows[]{{0, "0 bytes", "0 octet"},
            {1, "1 byte", "1 octet"},
            {2, "2 bytes", "2 octets"},
            {10, "10 bytes", "10 octets"},
            {11, "11 bytes", "11 octets"}};
  for (const auto& row : kRows) {
    EXPECT_EQ(english(bytes(row.count)), row.english);
    EXPECT_EQ(said(bytes(row.count), french), row.french);
  }
}

TEST(ASentence, joinsOthers) {
  EXPECT_EQ(english(Sentence::joined({}, "; ")), "");
  EXPECT_EQ(
      said(Sentence::joined({Sentence("T", "a"), Sentence::verbatim("b")}, "; "), tests::MarkedLocalizer()),
      "[T:a]; b");
}

TEST(ASentence, ofTheSystemIsLookedUpAmongTheSystems) {
  const Language language(Language::Texts{{"system/No such file or directory", "Keine Datei"},
                                          {"Files/Not a regular file", "Keine gew\u00f6hnliche Datei"}});
  const Sentence sentence = Sentence::ofSystem("No such file or directory");
  EXPECT_EQ(english(sentence), "No such file or directory");
  EXPECT_EQ(said(sentence, language), "Keine Datei");
  EXPECT_EQ(said(Sentence::ofSystem("Not a regular file"), language), "Keine gew\u00f6hnliche Datei");
  EXPECT_EQ(said(Sentence::ofSystem("other"), language), "other");
}

TEST(AnErrorWithASentence, saysItInEnglishAndKeepsIt) {
  const SpokenError error(Sentence("T", "no %1").with("file"));
  EXPECT_STREQ(error.what(), "no file");
  const std::exception& any = error;
  EXPECT_EQ(said(sentenceOf(any), tests::MarkedLocalizer()), "[T:no file]");
  EXPECT_EQ(said(sentenceOf(std::runtime_error("a library's")), tests::MarkedLocalizer()), "a library's");
}

TEST(ASentenceThatStandsAlone, hasACapitalLetterAndAFullStop) {
  class French final : public Language {
   public:
    French() : Language({}) {}
    std::string upperCased(std::string_view text) const override {
      return text == "\u00e9" ? "\u00c9" : EnglishLocalizer().upperCased(text);
    }
  };
  const auto alone = [](const char* text) { return saidAlone(Sentence::verbatim(text), French()); };
  EXPECT_EQ(alone("the last day is before the first"), "The last day is before the first.");
  EXPECT_EQ(alone("\u00e9chographe inconnu"), "\u00c9chographe inconnu.");
  EXPECT_EQ(alone("\"x\" is no day"), "\"x\" is no day.");
  EXPECT_EQ(alone("what a library says."), "What a library says.") << "with one full stop";
  EXPECT_EQ(alone("why?"), "Why?");
  EXPECT_EQ(alone(""), "");
}

}  // namespace
}  // namespace nascor::foundation
