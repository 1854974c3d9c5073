// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

#include "Process.h"

namespace nascor::tests {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string kTwins = NASCOR_SAMPLES "/twins.nascor";
const std::string kSingleton = NASCOR_SAMPLES "/singleton.nascor";

class Summary : public testing::Test {
 protected:
  Summary() {
    ::setenv("SOURCE_DATE_EPOCH", "1795255200", 1);  // 2026-11-21 10:00 UTC
  }
  ~Summary() override { ::unsetenv("SOURCE_DATE_EPOCH"); }
  Summary(const Summary&) = delete;
  Summary& operator=(const Summary&) = delete;

  Outcome summarise(std::vector<std::string> arguments, const std::string& input = "") const {
    arguments.insert(arguments.begin(), "summary");
    return run(std::move(arguments), input);
  }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    if (!std::filesystem::exists(out)) return names;
    for (const auto& entry : std::filesystem::directory_iterator(out))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }

  ScratchFolder folder;
  std::string out = folder.path("out");
};

TEST_F(Summary, isAFileADocument) {
  const Outcome outcome = summarise({kTwins, kSingleton, "--out", out, "--format", "html"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(files(), ElementsAre("singleton - Summary.html", "twins - Summary.html"));
  const std::string html = contentsOfFile(out + "/twins - Summary.html");
  EXPECT_THAT(html, AllOf(StartsWith("<!DOCTYPE html>"), HasSubstr("Twin 1</h2>"), HasSubstr("Twin 2</h2>")));
}

TEST_F(Summary, bearsExaminerLetterheadAndOneFetus) {
  const Outcome outcome = summarise({kTwins, "--out", "-", "--format", "HTML", "--fetus", "2", "--examiner",
                                     "Dr. Eve", "--letterhead", "Ward 3", "--letterhead", "Hill Street"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("<dd>Dr. Eve</dd>"), HasSubstr("<p>Ward 3</p>\n<p>Hill Street</p>"),
                    HasSubstr("Twin 2</h2>"), Not(HasSubstr("Twin 1</h2>"))));
}

TEST_F(Summary, hasTheSameBytesAtTheSameMoment) {
  const Outcome one = summarise({kSingleton, "--out", "-", "--format", "html"});
  EXPECT_THAT(one.out, HasSubstr("November 2026, "));
  EXPECT_EQ(one.out, summarise({kSingleton, "--out", "-", "--format", "html"}).out);
}

TEST_F(Summary, leavesWhatIsThereWhenToldTo) {
  const std::vector<std::string> arguments{kSingleton, "--out", out, "--format", "html"};
  EXPECT_EQ(summarise(arguments).status, 0);
  std::filesystem::resize_file(out + "/singleton - Summary.html", 3);
  auto kept = arguments;
  kept.emplace_back("--no-clobber");
  const Outcome outcome = summarise(kept);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, HasSubstr("singleton - Summary.html: it is there already, and stays as it is"));
  EXPECT_EQ(std::filesystem::file_size(out + "/singleton - Summary.html"), 3U);
  EXPECT_EQ(summarise(arguments).status, 0);
  EXPECT_GT(std::filesystem::file_size(out + "/singleton - Summary.html"), 3U);
}

TEST_F(Summary, saysWhichInputIsBadAndGoesOn) {
  const std::string bad = folder.write("bad.nascor", "no document");
  const Outcome outcome = summarise({bad, kSingleton, "--out", out, "--format", "html"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("bad.nascor: "));
  EXPECT_THAT(files(), ElementsAre("singleton - Summary.html"));
  EXPECT_THAT(summarise({kSingleton, "--out", out, "--format", "html", "--fetus", "2"}).err,
              HasSubstr("singleton.nascor: it has no such fetus"));
}

TEST_F(Summary, doesNotReplaceTheFileOfADocumentOfTheSameName) {
  const std::string copy = folder.write("singleton.nascor", contentsOfFile(kTwins));
  EXPECT_EQ(summarise({kSingleton, copy, "--out", out, "--format", "html"}).status, 0);
  EXPECT_THAT(files(), ElementsAre("singleton (2) - Summary.html", "singleton - Summary.html"));
}

TEST_F(Summary, refusesWrongUsageBeforeItWrites) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{kTwins},
                                             {kTwins, "--out", out, "--format", "png"},
                                             {kTwins, "--out", out, "--paper", "a5"},
                                             {kTwins, "--out", out, "--fetus", "6"},
                                             {kTwins, kSingleton, "--out", "-"}}) {
    EXPECT_EQ(summarise(arguments).status, 2);
  }
  for (const char* format : {"html", "fhir"}) {
    const std::string named = folder.path("one.HTML");
    const Outcome outcome = run(
        {format == std::string("html") ? "summary" : "export", kTwins, "--out", named, "--format", format});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err,
                HasSubstr("--out: expected a folder, but \"" + named + "\" is named like a file"));
    EXPECT_FALSE(std::filesystem::exists(named));
  }
  std::filesystem::create_directories(folder.path("there.pdf"));
  EXPECT_EQ(summarise({kTwins, "--out", folder.path("there.pdf"), "--format", "html"}).status, 0);
  ::setenv("SOURCE_DATE_EPOCH", "today", 1);
  EXPECT_THAT(summarise({kTwins, "--out", out}).err, HasSubstr("SOURCE_DATE_EPOCH: expected whole seconds"));
  EXPECT_THAT(files(), IsEmpty());
}

#ifdef NASCOR_TYPESETS
using testing::ContainsRegex;

/// What a program says of a file.
std::string told(const std::string& command) {
  std::string text;
  FILE* pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return text;
  for (int sign = std::fgetc(pipe); sign != EOF; sign = std::fgetc(pipe)) text += static_cast<char>(sign);
  ::pclose(pipe);
  return text;
}

TEST_F(Summary, isATaggedPdfThatSaysWhatItIs) {
  ASSERT_EQ(summarise({kTwins, "--out", out, "--examiner", "Dr. Eve"}).status, 0);
  const std::string pdf = "'" + out + "/twins - Summary.pdf'";
  const std::string facts = told("TZ=UTC pdfinfo " + pdf);
  EXPECT_THAT(facts, AllOf(ContainsRegex("Title: +Fetal biometry summary, SAMPLE-"),
                           ContainsRegex("Author: +Dr. Eve\n"),
                           ContainsRegex("Subject: +Obstetric ultrasound biometry\n"),
                           ContainsRegex("Tagged: +yes\n"), ContainsRegex("Page size: +595 x 842 pts")));
  const std::string structure = told("pdfinfo -struct " + pdf);
  for (const char* element : {"Document", "Sect", "H1", "H2", "P", "Table", "TR", "TH", "TD", "Figure"})
    EXPECT_THAT(structure, ContainsRegex("(^|\n) *" + std::string(element))) << element;
}

TEST_F(Summary, onPaperHasEachFetusOnPagesOfItsOwn) {
  ASSERT_EQ(summarise({kTwins, "--out", out, "--paper", "letter"}).status, 0);
  const std::string pdf = "'" + out + "/twins - Summary.pdf'";
  EXPECT_THAT(told("pdfinfo " + pdf), ContainsRegex("Page size: +612 x 792 pts"));
  const std::string text = told("pdftotext -layout " + pdf + " -");
  EXPECT_THAT(text, AllOf(HasSubstr("Twin 1"), HasSubstr("Twin 2"), HasSubstr("Page 1 of "),
                          HasSubstr("Not a medical device. Not validated for clinical use.")));
  const std::string first = told("pdftotext -f 1 -l 1 " + pdf + " -");
  EXPECT_THAT(first, AllOf(HasSubstr("Twin 1"), Not(HasSubstr("Twin 2"))));
}

TEST_F(Summary, onPaperHasTheSameBytesAtTheSameMoment) {
  const std::string one = summarise({kTwins, "--out", "-"}).out;
  EXPECT_THAT(one, StartsWith("%PDF-"));
  EXPECT_EQ(one, summarise({kTwins, "--out", "-"}).out);
}

TEST_F(Summary, onPaperAddsNoHyphenToAReferenceId) {
  const std::string identifier(120, 'X');
  const std::string file = folder.write(
      "long.nascor",
      document(R"({"numberOfFetuses":1,"maternalIDString":")" + identifier + R"(","examinations":[]})"));
  ASSERT_EQ(summarise({file, "--out", out}).status, 0);
  const std::string text = told("pdftotext -raw '" + out + "/long - Summary.pdf' -");
  EXPECT_THAT(text, HasSubstr("XXXXXX"));
  EXPECT_THAT(text, Not(HasSubstr("X-")));
}

/// Every figure of the HTML stands on the paper too.
TEST_F(Summary, onPaperHasTheFiguresOfTheHtml) {
  ASSERT_EQ(summarise({kTwins, "--out", out}).status, 0);
  const std::string text = told("pdftotext -raw '" + out + "/twins - Summary.pdf' -");
  const std::string html = summarise({kTwins, "--out", "-", "--format", "html"}).out;
  std::size_t figures = 0;
  const std::string cell = "<td class=\"n\">";
  for (std::size_t at = html.find(cell); at != std::string::npos; at = html.find(cell, at + 1)) {
    const std::size_t from = at + cell.size();
    std::string figure = html.substr(from, html.find_first_not_of("0123456789.+-", from) - from);
    if (figure.empty()) continue;
    EXPECT_THAT(text, HasSubstr(figure));
    ++figures;
  }
  EXPECT_GT(figures, 50U);
}
#else
TEST_F(Summary, onPaperSaysThatItCannotBe) {
  const Outcome outcome = summarise({kTwins, "--out", out});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("cannot be put on paper: the module nascor-typeset is not installed"));
}
#endif

}  // namespace
}  // namespace nascor::tests
