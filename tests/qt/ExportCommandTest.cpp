// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "Run.h"
#include "Sample.h"

namespace nascor::tests {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

class TheExportCommand : public testing::Test {
 protected:
  TheExportCommand() { writeFile(document, documentBytes(twins())); }
  Answer exportPages(const QStringList& arguments) {
    return run(QStringLiteral(NASCOR_CLI), QStringList{"export", document, "--out", out} + arguments);
  }
  QStringList written() const { return QDir(out).entryList(QDir::Files, QDir::Name); }

  QTemporaryDir folder;
  QString document = folder.filePath(QStringLiteral("twins.nascor"));
  QString out = folder.filePath(QStringLiteral("new/pages"));
};

TEST_F(TheExportCommand, writesAllPagesOfAllFetusesAsOnePdf) {
  const Answer answer = exportPages({});
  EXPECT_EQ(answer.status, 0) << answer.error;
  EXPECT_EQ(answer.output, "");
  EXPECT_EQ(answer.error, "");
  EXPECT_EQ(written(), QStringList{QStringLiteral("twins.pdf")});
  const QString pdf = QDir(out).filePath(QStringLiteral("twins.pdf"));
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Pages: +14\n"));
  EXPECT_THAT(run("pdffonts", {pdf}).output, ContainsRegex("DejaVuSans +CID TrueType +Identity-H +yes"));
  const std::string text = run("pdftotext", {"-layout", pdf, "-"}).output;
  // Both fetuses' lengths stand in the reports.
  for (const char* expected :
       {"30.0", "40.0", "70.0", "80.0", "Fetus: Twin 1", "Fetus: Twin 2", "Report, page 14 of 14"})
    EXPECT_THAT(text, HasSubstr(expected));
}

TEST_F(TheExportCommand, writesChosenPagesOfOneFetus) {
  EXPECT_EQ(exportPages({"--format", "png", "--pages", "first,last", "--fetus", "2", "--no-foot"}).status, 0);
  EXPECT_EQ(written(), (QStringList{QStringLiteral("twins 2 of 2 - Report.png"),
                                    QStringLiteral("twins 2 of 2 - Trends.png")}));
  EXPECT_EQ(QImage(QDir(out).filePath(written().value(0))).size(), QSize(1600, 1120));
}

TEST_F(TheExportCommand, writesDrawings) {
  EXPECT_EQ(exportPages({"--format", "svg", "--pages", "5,report", "--fetus", "1"}).status, 0);
  EXPECT_EQ(written(), (QStringList{QStringLiteral("twins 1 of 2 - Report.svg"),
                                    QStringLiteral("twins 1 of 2 - Weight.svg")}));
}

TEST_F(TheExportCommand, drawsAnOverlayWhenAskedFor) {
  const auto textOf = [this](const QStringList& arguments) {
    EXPECT_EQ(exportPages(QStringList{"--pages", "bpd,weight", "--fetus", "1"} + arguments).status, 0);
    return run("pdftotext", {"-layout", QDir(out).filePath(QStringLiteral("twins.pdf")), "-"}).output;
  };
  EXPECT_THAT(textOf({}), testing::Not(HasSubstr("entiles")));
  EXPECT_THAT(textOf({"--join-marks"}), testing::Not(HasSubstr("entiles")));
  EXPECT_THAT(textOf({"--overlay", "WHO-2017", "--join-marks"}), HasSubstr("Centiles: WHO (2017)"));
  EXPECT_THAT(textOf({"--overlay", "cfef"}), HasSubstr("has no centiles of this measure"));
  EXPECT_EQ(exportPages({"--overlay", "who"}).status, 2);
  EXPECT_EQ(exportPages({"--format", "fhir", "--overlay", "who-2017"}).status, 2);
}

TEST_F(TheExportCommand, saysWhichInputIsBadAndGoesOn) {
  const QString cut = folder.filePath(QStringLiteral("cut.nascor"));
  writeFile(cut, cutDocument());
  const Answer answer = exportPages({cut, "--pages", "bpd"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_THAT(answer.error, HasSubstr(cut.toStdString() + ": not a Nascor document (at byte "));
  EXPECT_EQ(written(), QStringList{QStringLiteral("twins.pdf")});
}

TEST_F(TheExportCommand, saysThatFetusesAreLeftOut) {
  const QString six = folder.filePath(QStringLiteral("six.nascor"));
  ASSERT_TRUE(QFile::copy(QStringLiteral(NASCOR_TEST_DATA "/six-fetuses.nascor"), six));
  const Answer answer = run(QStringLiteral(NASCOR_CLI),
                            {"export", six, "--out", out, "--format", "svg", "--pages", "BPD,Report"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.error,
            six.toStdString() +
                ": it says 6 fetuses, which cannot be chosen from; the pages are those of the first\n");
  EXPECT_EQ(written(), (QStringList{QStringLiteral("six - BPD.svg"), QStringLiteral("six - Report.svg")}));
}

TEST_F(TheExportCommand, saysNothingWhereTheSystemGivesNoFolderForSockets) {
  const Answer answer = run("env", {"-u", "XDG_RUNTIME_DIR", NASCOR_CLI, "export", document, "--out", out});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.error, "");
}

TEST_F(TheExportCommand, leavesFilesThatAreThereWhenItIsTold) {
  const QString pdf = QDir(out).filePath(QStringLiteral("twins.pdf"));
  ASSERT_TRUE(QDir().mkpath(out));
  writeFile(pdf, "mine");
  const Answer answer = exportPages({"--no-clobber", "--pages", "first"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.error, pdf.toStdString() + ": it is there already, and stays as it is\n");
  EXPECT_EQ(run("cat", {pdf}).output, "mine");
  EXPECT_EQ(exportPages({"--pages", "first"}).error, "");
  EXPECT_EQ(run("head", {"-c5", pdf}).output, "%PDF-");
}

TEST_F(TheExportCommand, writesOneFileToStandardOutput) {
  const auto toOutput = [&](QStringList options) {
    return run(QStringLiteral(NASCOR_CLI), QStringList{"export", document, "--out", "-"} + options);
  };
  const Answer pdf = toOutput({});
  EXPECT_EQ(pdf.status, 0) << pdf.error;
  EXPECT_THAT(pdf.output, StartsWith("%PDF-"));
  const Answer svg = toOutput({"--format", "SVG", "--pages", "weight", "--fetus", "1"});
  EXPECT_THAT(svg.output, ContainsRegex("^<\\?xml"));
  const Answer several = toOutput({"--format", "png"});
  EXPECT_EQ(several.status, 1);
  EXPECT_EQ(several.output, "");
  EXPECT_EQ(several.error,
            document.toStdString() + ": its pages are several files, which standard output cannot take\n");
  EXPECT_EQ(toOutput({document}).status, 2);
  EXPECT_FALSE(QDir(QStringLiteral("-")).exists());
}

TEST_F(TheExportCommand, showsOnATerminalHowFarItIs) {
  const QString words = QStringLiteral("'%1' export '%2' '%2' --out '%3' --pages first")
                            .arg(QStringLiteral(NASCOR_CLI), document, out);
  const Answer answer = run("script", {"-qec", words, "/dev/null"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_THAT(answer.output, HasSubstr("\r[                              ] 0 of 2\033[K"));
  EXPECT_THAT(answer.output, testing::EndsWith("\r\033[K")) << "it is wiped at the end";
}

TEST_F(TheExportCommand, refusesWrongUsageBeforeItWrites) {
  for (const QStringList& wrong :
       {QStringList{"--format", "tiff"}, QStringList{"--pages", "7"}, QStringList{"--pages", "1,"},
        QStringList{"--fetus", "0"}, QStringList{"--fetus", "x"}}) {
    const Answer answer = exportPages(wrong);
    EXPECT_EQ(answer.status, 2) << wrong.join(u' ').toStdString();
    EXPECT_THAT(answer.error, HasSubstr("usage: nascor-cli export"));
  }
  EXPECT_EQ(run(QStringLiteral(NASCOR_CLI), {"export", document}).status, 2);
  EXPECT_FALSE(QDir(out).exists());
}

}  // namespace
}  // namespace nascor::tests
