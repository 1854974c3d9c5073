// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DocumentsUnderTest.h"
#include "support/MarkedLocalizer.h"

namespace nascor::framework {
namespace {

using foundation::FileError;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Somebody final : foundation::NotificationSender {
  std::string_view className() const override { return "Somebody"; }
};

class ADocumentsPages : public testing::Test {
 protected:
  ADocumentsPages() {
    document.name = "AB-123 (G2)";
    document.tabView().addPage(trends);
    document.tabView().addPage(report);
  }
  std::vector<std::string> paths() const {
    std::vector<std::string> all;
    for (const auto& page : application.pageWriter.written) all.push_back(page.path);
    return all;
  }

  Page trends{"Trends"};
  Page report{"Report"};
  TextApplication application;
  TextDocument& document = application.newDocument();
  Somebody menu;
};

TEST_F(ADocumentsPages, goToTheDocumentsFolderWhileThereIsNoFile) {
  EXPECT_EQ(document.doExport(nullptr), std::nullopt);
  EXPECT_THAT(paths(), ElementsAre("/documents/AB-123 (G2) - Trends.pdf"));
}

TEST_F(ADocumentsPages, lieBesideTheDocumentsFile) {
  document.setFilePath("/patients/a.nascor");
  document.tabView().selectPage(1);
  document.doExport(nullptr);
  document.setFilePath("/b.nascor");
  document.doExport(nullptr);
  EXPECT_THAT(paths(), ElementsAre("/patients/AB-123 (G2) - Report.pdf", "/AB-123 (G2) - Report.pdf"));
}

TEST_F(ADocumentsPages, goToTheFolderThatWasChosenOnce) {
  document.setFilePath("/patients/a.nascor");
  application.defaults.setValue(export_key::folder, "/exports/");
  document.doExport(nullptr);
  EXPECT_THAT(paths(), ElementsAre("/exports/AB-123 (G2) - Trends.pdf"));
  EXPECT_EQ(application.panels.timesFolderAsked, 0);
}

TEST_F(ADocumentsPages, areAskedAFolderForByTheMenuAlone) {
  application.panels.folder = "/chosen";
  document.doExport(&menu);
  document.doExport(&menu);
  EXPECT_THAT(paths(),
              ElementsAre("/chosen/AB-123 (G2) - Trends.pdf", "/chosen/AB-123 (G2) - Trends (2).pdf"));
  EXPECT_EQ(application.panels.timesFolderAsked, 1);
  EXPECT_EQ(application.defaults.value(export_key::folder), "/chosen");
}

TEST_F(ADocumentsPages, areAskedAFolderForAgainWhenItIsGone) {
  application.defaults.setValue(export_key::folder, "/gone");
  application.panels.folder = "/chosen";
  document.doExport(&menu);
  EXPECT_THAT(paths(), ElementsAre("/chosen/AB-123 (G2) - Trends.pdf"));
}

TEST_F(ADocumentsPages, areNotWrittenWhenNoFolderIsChosen) {
  application.panels.isCancelled = true;
  EXPECT_EQ(document.doExport(&menu), std::nullopt);
  EXPECT_THAT(paths(), IsEmpty());
  EXPECT_THAT(application.alerts.told, IsEmpty());
  EXPECT_EQ(application.defaults.value(export_key::folder), std::nullopt);
}

TEST_F(ADocumentsPages, areOfTheFormatThatThePreferencesName) {
  application.defaults.setValue(export_key::format, "svg");
  document.doExport(nullptr);
  application.defaults.setValue(export_key::format, "tiff");
  document.doExport(nullptr);
  EXPECT_THAT(paths(),
              ElementsAre("/documents/AB-123 (G2) - Trends.svg", "/documents/AB-123 (G2) - Trends.pdf"));
  EXPECT_EQ(application.pageWriter.written[0].format, PageFormat::svg);
}

TEST_F(ADocumentsPages, bearTheirNameAndNumberHoweverLongThePatientsIs) {
  document.name = std::string(300, 'x');
  document.doExport(nullptr);
  document.doExport(nullptr);
  ASSERT_EQ(paths().size(), 2U);
  EXPECT_THAT(paths()[1], testing::EndsWith("x - Trends (2).pdf"));
  EXPECT_EQ(paths()[1].size(), std::string("/documents/").size() + 255U);
}

TEST_F(ADocumentsPages, tellTheMenuOfAFailureAndNobodyElse) {
  application.files.failWriteAt = 0;
  const std::string sentence = "/documents/AB-123 (G2) - Trends.pdf: No space left on device";
  EXPECT_EQ(document.doExport(nullptr), sentence);
  EXPECT_THAT(application.alerts.told, IsEmpty());
  application.files.failWriteAt = 1;
  application.panels.folder = "/documents";
  EXPECT_EQ(document.doExport(&menu), sentence);
  EXPECT_THAT(application.alerts.told, ElementsAre(HasSubstr("The page was not exported. " + sentence)));
  EXPECT_THAT(application.files.files, IsEmpty());
}

TEST_F(ADocumentsPages, waitForAFieldThatRefuses) {
  document.fieldEditor().begin(document.referenceIDField());
  document.fieldEditor().replace("refused");
  EXPECT_NE(document.doExport(&menu), std::nullopt);
  bool toldPrinted = true;
  document.printDocumentWithSettings({}, true, [&](bool printed) { toldPrinted = printed; });
  EXPECT_THAT(paths(), IsEmpty());
  EXPECT_THAT(application.printer.printed, IsEmpty());
  EXPECT_FALSE(toldPrinted);
  EXPECT_THAT(application.alerts.told, IsEmpty());
}

TEST_F(ADocumentsPages, areNotThoseOfADocumentThatWasReplaced) {
  application.put("/documents/known.nascor", "known");
  document.afterEnd = [&] { application.documents.replaceDocument(document, "/documents/known.nascor"); };
  document.fieldEditor().begin(document.referenceIDField());
  document.fieldEditor().replace("AB-123");
  document.doExport(nullptr);
  EXPECT_THAT(paths(), IsEmpty());
}

TEST_F(ADocumentsPages, arePaintedAsForPaperAndForNothingElse) {
  std::vector<bool> discs;
  application.pageWriter.onWrite = [&] { discs.push_back(document.shouldShowGraphHilite()); };
  application.printer.onPage = [&] { discs.push_back(document.shouldShowGraphHilite()); };
  document.doExport(nullptr);
  document.printDocumentWithSettings({}, false, {});
  EXPECT_THAT(discs, ElementsAre(false, false));
  EXPECT_TRUE(document.shouldShowGraphHilite());
}

TEST_F(ADocumentsPages, arePrintedOnTheDocumentsPaper) {
  const PrintInfo letter{.paperWidth = 612.0, .paperHeight = 792.0, .isLandscape = false};
  document.setPrintInfo(letter);
  document.tabView().selectPage(1);
  bool toldPrinted = false;
  document.printDocumentWithSettings({.file = "/out.pdf"}, true,
                                     [&](bool printed) { toldPrinted = printed; });
  ASSERT_EQ(application.printer.printed.size(), 1U);
  EXPECT_EQ(application.printer.printed[0].page, &report);
  EXPECT_TRUE(application.printer.printed[0].showsPanel);
  EXPECT_THAT(application.printer.infos, ElementsAre(letter));
  EXPECT_THAT(application.printer.files, ElementsAre("/out.pdf"));
  EXPECT_EQ(application.printer.jobsFinished, 1);
  EXPECT_TRUE(toldPrinted);
}

TEST_F(ADocumentsPages, areNotPrintedWhenTheUserCancels) {
  application.printer.answers = {PrintOutcome::cancelled};
  bool toldPrinted = true;
  document.printDocumentWithSettings({}, true, [&](bool printed) { toldPrinted = printed; });
  EXPECT_FALSE(toldPrinted);
  EXPECT_EQ(application.printer.jobsFinished, 0);
  EXPECT_THAT(application.alerts.told, IsEmpty());
}

TEST_F(ADocumentsPages, tellWhoSawThePanelWhyTheyWereNotPrinted) {
  application.printer.answers = {FileError{"There is no printer."}, FileError{"There is no printer."}};
  document.printDocumentWithSettings({}, false, {});
  EXPECT_THAT(application.alerts.told, IsEmpty());
  document.printDocumentWithSettings({}, true, {});
  EXPECT_THAT(application.alerts.told, ElementsAre("The document was not printed. There is no printer."));
  application.printer.finishError = FileError{"No space left on device"};
  document.printDocumentWithSettings({}, true, {});
  EXPECT_EQ(application.alerts.told.size(), 2U);
}

TEST_F(ADocumentsPages, doNothingWithoutAPrinterOrAWriter) {
  TextDocument bare({.services = application.services(),
                     .alerts = application.alerts,
                     .controller = application.documents});
  bare.tabView().addPage(trends);
  EXPECT_THAT(bare.doExport(nullptr).value_or(""), HasSubstr("/documents/Untitled - Trends.pdf: "));
  bare.printDocumentWithSettings({}, true, [](bool printed) { EXPECT_FALSE(printed); });
}

}  // namespace
}  // namespace nascor::framework
