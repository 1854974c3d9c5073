// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/PageExport.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <map>

#include "Pixels.h"
#include "Run.h"
#include "Sample.h"
#include "support/FaultyFileStore.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;
using framework::PageFormat;
using model::PatientPage;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class WritingPages : public testing::Test {
 protected:
  QString file(const QString& name, const QByteArray& bytes) {
    const QString path = folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    writeFile(path, bytes);
    return path;
  }
  QString out(const char* name = "") { return folder.filePath(QStringLiteral("out/") + QLatin1String(name)); }
  /// The BPD page of each fetus without a foot, unless a test says otherwise.
  qt::WrittenPages write(const QStringList& files) {
    wanted.folder = folder.filePath(QStringLiteral("out"));
    wanted.files = files;
    return qt::exportPages(wanted, platform.services());
  }
  std::string textOf(const QString& pdf) {
    const Answer text = run("pdftotext", {"-layout", pdf, "-"});
    EXPECT_EQ(text.status, 0) << text.error;
    return text.output;
  }

  qt::PageExport wanted{.folder = {},
                        .files = {},
                        .formats = {PageFormat::png, PageFormat::pdf},
                        .pages = {PatientPage::bpd},
                        .fetus = std::nullopt,
                        .hasFoot = false};

  TestPlatform platform;
  QTemporaryDir folder;
};

TEST_F(WritingPages, makesTheFolderAndNamesEachFileByDocumentAndPage) {
  const auto written = write({file("AB-123.nascor", documentBytes(singleton()))});
  EXPECT_EQ(written.paths, (QStringList{out("AB-123 - BPD.png"), out("AB-123.pdf")}));
  EXPECT_TRUE(written.sentences.isEmpty());
}

TEST_F(WritingPages, paintsAPictureOfTwoPixelsToTheUnit) {
  write({file("a.nascor", documentBytes(singleton()))});
  const QImage image(out("a - BPD.png"));
  EXPECT_EQ(image.size(), QSize(1600, 1120));
  EXPECT_EQ(image.dotsPerMeterX(), 5669);  // 144 to the inch
  EXPECT_TRUE(
      isNear(colorAt(image, QPointF(pageX(20.0), pageY(48.0)) * 2.0), colorOf(NamedColor::orange), 60));
}

TEST_F(WritingPages, leavesTheDiscOffPaper) {
  write({file("a.nascor", documentBytes(singleton()))});
  const QImage image(out("a - BPD.png"));
  // At the newest examination, beside its mark.
  EXPECT_EQ(colorAt(image, QPointF(pageX(32.0) + 5.0, pageY(82.0) + 5.0) * 2.0),
            colorOf(NamedColor::faintOrange));
}

TEST_F(WritingPages, writesTextThatReadsBackFromThePdf) {
  write({file("a.nascor", documentBytes(twins()))});
  const Answer text = run("pdftotext", {"-layout", out("a.pdf"), "-"});
  ASSERT_EQ(text.status, 0) << text.error;
  for (const char* expected :
       {"AB-123 (G2) 1 of 2", "Twin 1", "Twin 2", "Menstrual Age (Weeks)", "Biparietal Diameter (mm)",
        "Nascor Standard: Westerway (ASUM 2001)", "40", "120"}) {
    EXPECT_THAT(text.output, HasSubstr(expected));
  }
}

TEST_F(WritingPages, writesLettersNotLigatures) {
  model::PatientRecord record = singleton();
  record.setMaternalIDString("fi-ffl");
  write({file("a.nascor", documentBytes(record))});
  EXPECT_THAT(run("pdftotext", {out("a.pdf"), "-"}).output, HasSubstr("fi-ffl (G2)"));
}

TEST_F(WritingPages, embedsTheFontInThePdf) {
  write({file("a.nascor", documentBytes(singleton()))});
  const Answer fonts = run("pdffonts", {out("a.pdf")});
  ASSERT_EQ(fonts.status, 0) << fonts.error;
  // Columns emb, sub and uni: inside the file, and its text can be read back.
  EXPECT_THAT(fonts.output, ContainsRegex("DejaVuSans +CID TrueType +Identity-H +yes +[a-z]+ +yes"));
}

TEST_F(WritingPages, makesThePdfOneSheetOfAPointToTheUnit) {
  write({file("a.nascor", documentBytes(singleton()))});
  const Answer facts = run("pdfinfo", {out("a.pdf")});
  EXPECT_THAT(facts.output, ContainsRegex("Pages: +1\n"));
  EXPECT_THAT(facts.output, ContainsRegex("Page size: +800 x 560 pts"));
}

TEST_F(WritingPages, saysInEveryFileWhoseItIsWhoMadeItAndWhatItIsAbout) {
  model::PatientRecord record = singleton();
  record.setMaternalIDString("\u00c5 <B> & (C)");
  wanted.pages = {PatientPage::report};
  wanted.formats = {PageFormat::pdf, PageFormat::png, PageFormat::svg};
  write({file("a.nascor", documentBytes(record))});
  const std::string title = "\u00c5 <B> & (C) (G2)";
  const std::string author = "Nascor " NASCOR_VERSION;
  const std::string subject = "Obstetric ultrasound biometry";

  const QString pdf = out("a.pdf");
  const Answer facts = run("pdfinfo", {pdf});
  EXPECT_THAT(facts.output, ContainsRegex("Title: +\u00c5 <B> & \\(C\\) \\(G2\\)\n"));
  EXPECT_THAT(facts.output, ContainsRegex("Subject: +" + subject + "\n"));
  EXPECT_THAT(facts.output, ContainsRegex("Author: +" + author + "\n"));
  EXPECT_THAT(facts.output, ContainsRegex("Creator: +Nascor\n"));
  EXPECT_EQ(facts.error, "");
  EXPECT_THAT(run("pdftotext", {pdf, "-"}).output, HasSubstr("Identifier:"));

  const QImage png(out("a - Report.png"));
  EXPECT_EQ(png.text("Title").toStdString(), title);
  EXPECT_EQ(png.text("Author").toStdString(), author);
  EXPECT_EQ(png.text("Description").toStdString(), subject);

  QFile svg(out("a - Report.svg"));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  std::map<QString, std::string> elements;
  QXmlStreamReader xml(&svg);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const QString name = xml.qualifiedName().toString();
    if (name == "title" || name.startsWith("dc:")) elements[name] = xml.readElementText().toStdString();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_EQ(elements["title"], title);
  EXPECT_EQ(elements["dc:creator"], author);
  EXPECT_EQ(elements["dc:subject"], subject);
}

TEST_F(WritingPages, namesAPageOfNobodyByThePage) {
  model::PatientRecord record = singleton();
  record.setMaternalIDString(std::nullopt);
  write({file("a.nascor", documentBytes(record))});
  EXPECT_THAT(run("pdfinfo", {out("a.pdf")}).output, ContainsRegex("Title: +BPD\n"));
}

TEST_F(WritingPages, doesNotReplaceOneDocumentsPagesByAnothers) {
  const auto written = write(
      {file("x/same.nascor", documentBytes(singleton())), file("y/same.nascor", documentBytes(twins()))});
  EXPECT_EQ(written.paths, (QStringList{out("same - BPD.png"), out("same.pdf"), out("same 1 of 2 - BPD.png"),
                                        out("same 2 of 2 - BPD.png"), out("same (2).pdf")}));
  EXPECT_THAT(textOf(out("same (2).pdf")), HasSubstr("1 of 2"));
}

TEST_F(WritingPages, writesTheOthersWhenADocumentCannotBeRead) {
  const auto written =
      write({file("cut.nascor", cutDocument()), file("good.nascor", documentBytes(singleton()))});
  EXPECT_EQ(written.paths.size(), 2);
  ASSERT_EQ(written.sentences.size(), 1);
  EXPECT_THAT(written.sentences[0].toStdString(),
              ContainsRegex("cut.nascor: not a Nascor document \\(at byte [0-9]+: "));
}

TEST_F(WritingPages, saysWhichFileCouldNotBeWrittenAndGoesOn) {
  FaultyFileStore disk;
  const QByteArray bytes = documentBytes(singleton());
  const auto all = std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size())));
  disk.files["a.nascor"].assign(all.begin(), all.end());
  disk.failWriteAt = 0;
  wanted.folder = folder.path();
  wanted.files = QStringList{QStringLiteral("a.nascor")};
  const auto written = qt::exportPages(wanted, platform.servicesWith(disk));
  EXPECT_EQ(written.paths, QStringList{folder.filePath(QStringLiteral("a.pdf"))});
  EXPECT_EQ(written.sentences, QStringList{folder.filePath(QStringLiteral("a - BPD.png")) +
                                           QStringLiteral(": No space left on device")});
}

TEST_F(WritingPages, saysThatTheFolderCouldNotBeMade) {
  const QString inTheWay = file("out", "a file");
  wanted.folder = inTheWay + QStringLiteral("/pages");
  const auto written = qt::exportPages(wanted, platform.services());
  EXPECT_EQ(written.sentences,
            QStringList{inTheWay + QStringLiteral("/pages: the folder could not be made (Not a directory)")});
}

TEST_F(WritingPages, writesAllPagesOfADocumentIntoOnePdf) {
  wanted.pages.clear();
  wanted.formats = {PageFormat::pdf};
  int calls = 0;
  wanted.onProgress = [&](int done, int total) {
    EXPECT_EQ(done, calls++);
    EXPECT_EQ(total, 1);
  };
  const auto written = write({file("a.nascor", documentBytes(twins()))});
  EXPECT_EQ(written.paths, QStringList{out("a.pdf")});
  EXPECT_THAT(run("pdfinfo", {out("a.pdf")}).output, ContainsRegex("Pages: +14\n"));
  EXPECT_EQ(calls, 2);
}

TEST_F(WritingPages, choosesPagesAndFetus) {
  wanted.pages = {PatientPage::trends, PatientPage::report};
  wanted.fetus = 1;
  wanted.formats = {PageFormat::svg};
  const auto written = write({file("a.nascor", documentBytes(twins()))});
  EXPECT_EQ(written.paths, (QStringList{out("a 2 of 2 - Trends.svg"), out("a 2 of 2 - Report.svg")}));
  wanted.fetus = 2;
  const auto none = write({file("b.nascor", documentBytes(twins()))});
  EXPECT_EQ(none.paths, QStringList());
  EXPECT_THAT(none.sentences.value(0).toStdString(),
              testing::EndsWith("b.nascor: it has no such fetus or page"));
}

TEST_F(WritingPages, identifiesEachPageUnderneath) {
  wanted.hasFoot = true;
  wanted.pages = {PatientPage::bpd, PatientPage::hc};
  write({file("a.nascor", documentBytes(twins()))});
  const std::string text = textOf(out("a.pdf"));
  for (const char* expected :
       {"Reference ID: AB-123", "Gravidity: 2", "Fetus: Twin 1", "Fetus: Twin 2", "EDD: 10 April 2027",
        "Examinations: 21 November 2026", "Nascor Standard: Westerway (ASUM 2001)", "Fetal Weight Formula: ",
        "Not a medical device.", "Printed: 21 November 2026", "BPD, page 1 of 4", "HC, page 4 of 4"}) {
    EXPECT_THAT(text, HasSubstr(expected));
  }
  // Nothing that is clipped away above is found between its words.
  EXPECT_THAT(text, ContainsRegex("Reference ID: AB-123 +Gravidity: 2 +Fetus: Twin 1"));
  // The page keeps its 560 units above it.
  EXPECT_THAT(run("pdfinfo", {out("a.pdf")}).output, ContainsRegex("Page size: +800 x 6[01][0-9] pts"));
}

TEST_F(WritingPages, paintsTheFootUnderThePictureToo) {
  write({file("a.nascor", documentBytes(singleton()))});
  const QImage bare(out("a - BPD.png"));
  wanted.hasFoot = true;
  write({file("a.nascor", documentBytes(singleton()))});
  const QImage whole(out("a - BPD.png"));
  EXPECT_EQ(whole.copy(bare.rect()), bare);
  ASSERT_GT(whole.height(), bare.height() + 60);
  bool hasInk = false;
  for (int y = bare.height(); y < whole.height(); ++y) {
    for (int x = 0; x < whole.width(); ++x) hasInk = hasInk || whole.pixelColor(x, y).lightness() < 64;
  }
  EXPECT_TRUE(hasInk);
}

TEST_F(WritingPages, makesDrawingsThatLookLikeThePicturesOfTheSamePages) {
  wanted.formats = {PageFormat::svg, PageFormat::png};
  wanted.hasFoot = true;
  wanted.pngScale = 1.0;
  wanted.pages = {};
  write({file("a.nascor", documentBytes(singleton()))});
  for (const char* page : {"Trends", "BPD", "HC", "AC", "FL", "Weight", "Report"}) {
    const QImage picture(out(QByteArray("a - ").append(page).append(".png")));
    QSvgRenderer drawing(out(QByteArray("a - ").append(page).append(".svg")));
    ASSERT_TRUE(drawing.isValid()) << page;
    ASSERT_EQ(drawing.defaultSize(), picture.size()) << page;
    QImage drawn(picture.size(), QImage::Format_RGB32);
    drawn.fill(Qt::red);
    {
      QPainter painter(&drawn);
      drawing.render(&painter);
    }
    constexpr int kOtherShade = 96;
    int different = 0;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (std::abs(drawn.pixelColor(x, y).lightness() - picture.pixelColor(x, y).lightness()) > kOtherShade)
          ++different;
      }
    }
    // The edges of letters and lines differ, and nothing else.
    EXPECT_LT(different, drawn.width() * drawn.height() / 50) << page;
  }
}

TEST_F(WritingPages, writesDrawingsOfValidXmlWithNamedFonts) {
  wanted.formats = {PageFormat::svg};
  wanted.hasFoot = true;
  model::PatientRecord record = singleton();
  record.setMaternalIDString("<A&B>\x01\"'");
  write({file("a.nascor", documentBytes(record))});
  QFile drawing(out("a - BPD.svg"));
  ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&drawing);
  QStringList texts;
  QSet<QString> fonts;
  int clips = 0;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.attributes().hasAttribute(QStringLiteral("font-family")))
      fonts.insert(xml.attributes().value(QStringLiteral("font-family")).toString());
    if (xml.name() == QLatin1String("clipPath")) ++clips;
    if (xml.name() == QLatin1String("svg")) {
      EXPECT_TRUE(xml.attributes().value(QStringLiteral("viewBox")).startsWith(QLatin1String("0 0 800 6")));
    }
    if (xml.name() == QLatin1String("text")) texts << xml.readElementText().trimmed();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_GE(clips, 3);  // chart, strip, foot
  fonts.remove(QString());
  EXPECT_TRUE(fonts.contains(QStringLiteral("DejaVu Sans")));
  EXPECT_TRUE(texts.contains(QStringLiteral("<A&B>\\x01\"' (G2)"))) << texts.join(u'|').toStdString();
  EXPECT_TRUE(texts.contains(QStringLiteral("Menstrual Age (Weeks)")));
}

struct NameCase {
  const char* name;
  QString stem;
  QString expected;
};
class FileNames : public testing::TestWithParam<NameCase> {};

TEST_P(FileNames, areSafe) { EXPECT_EQ(qt::fileNameFrom(GetParam().stem), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    stems, FileNames,
    testing::Values(NameCase{"plain", "AB-123 (G2)", "AB-123 (G2)"}, NameCase{"slash", "AB/123", "AB-123"},
                    NameCase{"control", "A\nB\tC", "A-B-C"}, NameCase{"hidden", "..secret", "secret"},
                    NameCase{"empty", "", "Untitled"}, NameCase{"dots", "...", "Untitled"},
                    NameCase{"placeHolders", "a%2b%1", "a%2b%1"}, NameCase{"letters", "Zoë", "Zoë"},
                    NameCase{"long", QString(300, u'x'), QString(200, u'x')},
                    NameCase{"longInBytes", QString(300, u'ë'), QString(100, u'ë')},
                    NameCase{"longInPairs", QString::fromUtf8("😀").repeated(60),
                             QString::fromUtf8("😀").repeated(50)}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace nascor::tests
