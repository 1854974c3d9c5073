// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/SummaryMenu.h"

#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QPrintDialog>
#include <QStatusBar>

#include "Run.h"
#include "WindowTest.h"
#include "typesetting/Typesetting.h"

namespace nascor::tests {
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;

class TheSummaryItems : public WindowTest {
 protected:
  /// What is done to the next dialog of the kind.
  template <class Dialog>
  void then(const std::function<void(Dialog&)>& use) {
    auto* eyes = new QTimer(&context);
    QObject::connect(eyes, &QTimer::timeout, eyes, [eyes, use] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      eyes->stop();
      use(*dialog);
    });
    eyes->start(1);
  }
  void thenName(const QString& path) {
    then<QFileDialog>([this, path](QFileDialog& dialog) {
      auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      suggested = edit->text();
      edit->setText(path);
      QTest::keyClick(edit, Qt::Key_Return);
    });
  }
  void thenPrintInto(const QString& path) {
    then<QPrintDialog>([path](QPrintDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(path);
      dialog.accept();
    });
  }
  static std::string factsOf(const QString& pdf) { return run("pdfinfo", {pdf}).output; }

  QTemporaryDir out;
  QString suggested;
  QObject context;
};

TEST_F(TheSummaryItems, exportAPdfOfAllFetusesThatIsNamedAfterThePatient) {
  open(twins());
  const QString pdf = out.filePath(QStringLiteral("summary.pdf"));
  thenName(pdf);
  action("exportSummaryAction").trigger();
  EXPECT_EQ(suggested.toStdString(), "AB-123 (G2) - Summary");
  EXPECT_TRUE(front().statusBar()->currentMessage().endsWith(pdf));
  // Letter: the tests live in the United States. Upright, though the pages lie on their long side.
  EXPECT_THAT(factsOf(pdf), AllOf(ContainsRegex("Tagged: +yes"), ContainsRegex("Page size: +612 x 792 pts")));
  EXPECT_THAT(run("pdftotext", {pdf, "-"}).output, AllOf(HasSubstr("Twin 1"), HasSubstr("Twin 2")));
}

TEST_F(TheSummaryItems, exportHtmlWhereTheNameSaysSo) {
  open(singleton());
  const QString html = out.filePath(QStringLiteral("summary.html"));
  thenName(html);
  action("exportSummaryAction").trigger();
  QFile file(html);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("<!DOCTYPE html>"));
}

TEST_F(TheSummaryItems, sayWhyNothingWasExported) {
  open(singleton());
  thenName(QStringLiteral("/proc/summary.html"));  // where no file can be made
  answers = {"OK"};
  action("exportSummaryAction").trigger();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "The summary was not exported.");
  EXPECT_THAT(asked[0].information, HasSubstr("/proc/summary.html"));
}

TEST_F(TheSummaryItems, printTheSamePagesIntoAFile) {
  open(twins());
  const QString pdf = out.filePath(QStringLiteral("printed.pdf"));
  thenPrintInto(pdf);
  action("printSummaryAction").trigger();
  EXPECT_THAT(factsOf(pdf), AllOf(ContainsRegex("Tagged: +yes"), ContainsRegex("Page size: +612 x 792 pts")));
}

TEST_F(TheSummaryItems, giveAPrinterPicturesOfTheSamePages) {
  open(twins());
  const summary::Summary summary = document().patientSummary().value();
  summary::Typesetter& typesetter = *std::get<summary::Typesetter*>(typesetting::typesetter());
  constexpr double kDots = 36.0;
  const auto pages = std::get<std::vector<summary::Picture>>(
      typesetter.pictures(summary, {.width = 612.0, .height = 792.0}, kDots));
  EXPECT_EQ(pages.size(), 2U);  // one for each twin
  for (const summary::Picture& page : pages) {
    EXPECT_EQ(page.width, 306);
    EXPECT_EQ(page.height, 396);
    const QImage image(reinterpret_cast<const uchar*>(page.bytes.data()), page.width, page.height,
                       page.bytesPerRow, QImage::Format_RGB32);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    int darkest = 255;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y)
        darkest = std::min(darkest, image.pixelColor(x, y).lightness());
    }
    EXPECT_LT(darkest, 128);
  }
}

TEST_F(TheSummaryItems, waitForAFieldThatRefuses) {
  open(singleton());
  type("bpdField", "201");
  for (const char* item : {"exportSummaryAction", "printSummaryAction", "summaryDetailsAction"})
    action(item).trigger();  // a dialog would stay open
  EXPECT_EQ(focus(), "bpdField");
  press(Qt::Key_Escape);
}

}  // namespace
}  // namespace nascor::tests
