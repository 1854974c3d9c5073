// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include "Run.h"
#include "Sample.h"
#include "painting/PageFiles.h"
#include "painting/QtPrinter.h"
#include "support/FaultyFileStore.h"

namespace nascor::tests {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

class Printing : public testing::Test {
 protected:
  Printing() {
    const QByteArray bytes = documentBytes(twins());
    document.loadDataRepresentation(
        std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))), "");
    document.windowControllerDidLoadNib();
  }
  framework::DocumentEnvironment environment() {
    framework::DocumentEnvironment result = platform.environment();
    result.printer = &printer;
    result.pageWriter = &writer;
    return result;
  }
  bool print(const framework::PrintSettings& settings, bool showsPanel) {
    bool isPrinted = false;
    document.printDocumentWithSettings(settings, showsPanel, [&](bool printed) { isPrinted = printed; });
    return isPrinted;
  }

  QTemporaryDir folder;
  QString pdf = folder.filePath(QStringLiteral("out.pdf"));
  TestPlatform platform;
  qt::QtPrinter printer{platform.files};
  qt::QtPageWriter writer{platform.files};
  app::NCDocument document{environment()};
};

TEST_F(Printing, intoAFileReadsBackWithBothPages) {
  document.tabView().selectPage(1);
  ASSERT_TRUE(print({.file = pdf.toStdString()}, false));
  const std::string facts = run("pdfinfo", {pdf}).output;
  EXPECT_THAT(facts, ContainsRegex("Pages: +2\n"));
  EXPECT_THAT(facts, ContainsRegex("Page size: +842 x 595 pts"));
  const std::string first = run("pdftotext", {"-layout", "-l", "1", pdf, "-"}).output;
  EXPECT_THAT(first, HasSubstr("Biparietal Diameter (mm)"));
  EXPECT_THAT(first, HasSubstr("BPD, page 1 of 2"));
  const std::string second = run("pdftotext", {"-layout", "-f", "2", pdf, "-"}).output;
  EXPECT_THAT(second, HasSubstr("AB-123 (G2) 1 of 2"));
  EXPECT_THAT(second, HasSubstr("Weight, page 2 of 2"));
  EXPECT_THAT(second, HasSubstr("Reference ID: AB-123"));
}

TEST_F(Printing, thatTheUserSendsToAFileAsksOnce) {
  int asked = 0;
  printer.ask = [&](QPrinter& target) {
    ++asked;
    // The printer's queue shows it, and a file is suggested under it.
    EXPECT_EQ(target.docName(), QStringLiteral("AB-123 (G2) 1 of 2"));
    target.setOutputFormat(QPrinter::PdfFormat);
    target.setOutputFileName(pdf);
    return true;
  };
  EXPECT_TRUE(print({}, true));
  EXPECT_EQ(asked, 1);
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Pages: +2\n"));
  EXPECT_TRUE(platform.alerts.told.empty());
}

TEST_F(Printing, thatTheUserCancelsLeavesNothing) {
  printer.ask = [&](QPrinter& target) {
    target.setOutputFormat(QPrinter::PdfFormat);
    target.setOutputFileName(pdf);
    return false;
  };
  EXPECT_FALSE(print({}, true));
  EXPECT_FALSE(QFileInfo::exists(pdf));
  EXPECT_TRUE(platform.alerts.told.empty());
}

TEST_F(Printing, withoutAPrinterSaysWhatToDo) {
  printer.ask = [](QPrinter& target) {
    target.setOutputFormat(QPrinter::PdfFormat);
    target.setOutputFileName({});
    return true;
  };
  EXPECT_FALSE(print({}, true));
  ASSERT_EQ(platform.alerts.told.size(), 1U);
  EXPECT_THAT(platform.alerts.told[0], HasSubstr("There is no printer. Please choose a file"));
}

TEST_F(Printing, intoAFolderThatIsMissingSaysSo) {
  const std::string lost = folder.filePath(QStringLiteral("missing/out.pdf")).toStdString();
  printer.ask = [](QPrinter&) { return true; };
  EXPECT_FALSE(print({.file = lost}, true));
  ASSERT_EQ(platform.alerts.told.size(), 1U);
  EXPECT_THAT(platform.alerts.told[0], HasSubstr(lost + ": No such file or directory"));
}

TEST_F(Printing, ontoAFullDiskKeepsTheOldFile) {
  FaultyFileStore disk;
  disk.files["/out.pdf"] = {std::byte{7}};
  disk.failWriteAt = 0;
  qt::QtPrinter full(disk);
  framework::DocumentEnvironment other = environment();
  other.printer = &full;
  app::NCDocument printed(other);
  printed.windowControllerDidLoadNib();
  printed.printDocumentWithSettings({.file = "/out.pdf"}, true,
                                    [](bool isPrinted) { EXPECT_FALSE(isPrinted); });
  EXPECT_EQ(disk.files.at("/out.pdf").size(), 1U);
  ASSERT_EQ(platform.alerts.told.size(), 1U);
  EXPECT_THAT(platform.alerts.told[0], HasSubstr("No space left on device"));
}

TEST_F(Printing, keepsThePaperOfTheDocument) {
  const framework::PrintInfo letter{.paperWidth = 612.0,
                                    .paperHeight = 792.0,
                                    .isLandscape = false,
                                    .leftMargin = 72.0,
                                    .topMargin = 20.0,
                                    .rightMargin = 30.0,
                                    .bottomMargin = 40.0};
  EXPECT_EQ(qt::printInfoOf(qt::layoutOf(letter)), letter);
  document.setPrintInfo(letter);
  ASSERT_TRUE(print({.file = pdf.toStdString()}, false));
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Page size: +612 x 792 pts"));
}

TEST_F(Printing, takesThePaperThatIsChosenInThePanel) {
  printer.ask = [&](QPrinter& target) {
    target.setOutputFormat(QPrinter::PdfFormat);
    target.setOutputFileName(pdf);
    target.setPageLayout(qt::layoutOf({.paperWidth = 612.0, .paperHeight = 792.0, .isLandscape = false}));
    return true;
  };
  ASSERT_TRUE(print({}, true));
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Page size: +612 x 792 pts"));
}

TEST_F(Printing, isShownBeforehandAsItWillComeOut) {
  QPrinter preview(QPrinter::HighResolution);
  preview.setPageLayout(qt::layoutOf({}));
  preview.setOutputFormat(QPrinter::PdfFormat);
  preview.setOutputFileName(pdf);
  printer.paintInto(&preview, [&] { EXPECT_TRUE(print({}, false)); });
  const std::string text = run("pdftotext", {pdf, "-"}).output;
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Pages: +2\n"));
  EXPECT_THAT(text, HasSubstr("Weight, page 2 of 2"));
}

TEST_F(Printing, exportsWholeFilesOfEachFormat) {
  for (const auto format :
       {framework::PageFormat::pdf, framework::PageFormat::png, framework::PageFormat::svg}) {
    platform.defaults.setValue(framework::export_key::format, std::string(framework::extensionOf(format)));
    EXPECT_EQ(document.doExport(nullptr), std::nullopt);
    const QString path =
        platform.documentsFolder.filePath(QStringLiteral("AB-123 (G2) 1 of 2 - Trends.%1")
                                              .arg(QLatin1String(framework::extensionOf(format).data())));
    EXPECT_GT(QFileInfo(path).size(), 500) << path.toStdString();
  }
}

}  // namespace
}  // namespace nascor::tests
