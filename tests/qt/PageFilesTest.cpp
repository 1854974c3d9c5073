#include "qt/PageFiles.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include "Pixels.h"
#include "Run.h"
#include "Sample.h"
#include "support/FaultyFileStore.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;
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
  qt::WrittenPages write(const QStringList& files) {
    return qt::writePages(folder.filePath(QStringLiteral("out")), files, platform.services());
  }

  TestPlatform platform;
  QTemporaryDir folder;
};

TEST_F(WritingPages, makesTheFolderAndNamesEachFileByDocumentAndPage) {
  const auto written = write({file("AB-123.nascor", documentBytes(singleton()))});
  EXPECT_EQ(written.paths, (QStringList{out("AB-123 - BPD.png"), out("AB-123 - BPD.pdf")}));
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
  const Answer text = run("pdftotext", {"-layout", out("a - BPD.pdf"), "-"});
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
  EXPECT_THAT(run("pdftotext", {out("a - BPD.pdf"), "-"}).output, HasSubstr("fi-ffl (G2)"));
}

TEST_F(WritingPages, embedsTheFontInThePdf) {
  write({file("a.nascor", documentBytes(singleton()))});
  const Answer fonts = run("pdffonts", {out("a - BPD.pdf")});
  ASSERT_EQ(fonts.status, 0) << fonts.error;
  // Columns emb, sub and uni: inside the file, and its text can be read back.
  EXPECT_THAT(fonts.output, ContainsRegex("DejaVuSans +CID TrueType +Identity-H +yes +[a-z]+ +yes"));
}

TEST_F(WritingPages, makesThePdfOneSheetOfAPointToTheUnit) {
  write({file("a.nascor", documentBytes(singleton()))});
  const Answer facts = run("pdfinfo", {out("a - BPD.pdf")});
  EXPECT_THAT(facts.output, ContainsRegex("Pages: +1\n"));
  EXPECT_THAT(facts.output, ContainsRegex("Page size: +800 x 560 pts"));
}

TEST_F(WritingPages, doesNotReplaceOneDocumentsPagesByAnothers) {
  const auto written = write(
      {file("x/same.nascor", documentBytes(singleton())), file("y/same.nascor", documentBytes(twins()))});
  EXPECT_EQ(written.paths, (QStringList{out("same - BPD.png"), out("same - BPD.pdf"),
                                        out("same - BPD (2).png"), out("same - BPD (2).pdf")}));
  EXPECT_THAT(run("pdftotext", {out("same - BPD (2).pdf"), "-"}).output, HasSubstr("1 of 2"));
}

TEST_F(WritingPages, writesTheOthersWhenADocumentCannotBeRead) {
  const auto written =
      write({file("cut.nascor", cutDocument()), file("good.nascor", documentBytes(singleton()))});
  EXPECT_EQ(written.paths.size(), 2);
  ASSERT_EQ(written.sentences.size(), 1);
  EXPECT_THAT(written.sentences[0].toStdString(),
              ContainsRegex("cut.nascor could not be opened: at byte [0-9]+: "));
}

TEST_F(WritingPages, saysWhichFileCouldNotBeWrittenAndGoesOn) {
  FaultyFileStore disk;
  const QByteArray bytes = documentBytes(singleton());
  const auto all = std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size())));
  disk.files["a.nascor"].assign(all.begin(), all.end());
  disk.failWriteAt = 0;
  const auto written =
      qt::writePages(folder.path(), {QStringLiteral("a.nascor")}, platform.servicesWith(disk));
  EXPECT_EQ(written.paths, QStringList{folder.filePath(QStringLiteral("a - BPD.pdf"))});
  EXPECT_EQ(written.sentences,
            QStringList{folder.filePath(QStringLiteral("a - BPD.png")) +
                        QStringLiteral(" could not be written: No space left on device.")});
}

TEST_F(WritingPages, saysThatTheFolderCouldNotBeMade) {
  const QString inTheWay = file("out", "a file");
  const auto written = qt::writePages(inTheWay + QStringLiteral("/pages"), {}, platform.services());
  EXPECT_EQ(written.sentences,
            QStringList{QStringLiteral("The folder %1/pages could not be made.").arg(inTheWay)});
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
