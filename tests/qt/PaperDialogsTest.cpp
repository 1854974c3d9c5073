// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The toolkit's dialogs for paper and what comes out of them, and exports that do not come to their end.
#include <sys/resource.h>

#include <QDir>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProgressDialog>
#include <QRadioButton>
#include <csignal>

#include "Run.h"
#include "WindowTest.h"
#include "framework/PageWriter.h"
#include "window/OutputMenu.h"

namespace nascor::tests {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;

/// No file of this process grows beyond that, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

class ThePaperDialogs : public WindowTest {
 protected:
  ThePaperDialogs() {
    out.mkdir(QStringLiteral("out"));
    platform.defaults.setValue(framework::export_key::folder, outPath().toStdString());
    eyes.setInterval(1);
    QObject::connect(&eyes, &QTimer::timeout, [this] {
      auto* shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!shown || uses.empty() || !uses.front()(*shown)) return;
      uses.erase(uses.begin());
    });
    eyes.start();
  }
  ~ThePaperDialogs() override { EXPECT_TRUE(uses.empty()) << uses.size() << " dialogs did not open"; }

  /// What is done to the next dialog of the kind.
  template <class Dialog>
  void then(const std::function<void(Dialog&)>& use) {
    uses.push_back([use](QDialog& shown) {
      auto* dialog = qobject_cast<Dialog*>(&shown);
      if (dialog) use(*dialog);
      return dialog != nullptr;
    });
  }
  static QPushButton& button(QWidget& dialog, const QString& text) {
    for (QPushButton* each : dialog.findChildren<QPushButton*>()) {
      if (each->text().remove(u'&') == text) return *each;
    }
    throw std::runtime_error(text.toStdString());
  }
  void thenPrintInto(const QString& path) {
    then<QPrintDialog>([path](QPrintDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(path);
      button(dialog, QStringLiteral("Print")).click();
    });
  }
  void thenPrintFromThePreview() {
    then<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
      QTimer::singleShot(0, &dialog, [&dialog] {
        for (QAction* item : dialog.findChildren<QAction*>()) {
          if (item->text() == QLatin1String("Print")) item->trigger();
        }
        if (dialog.isVisible()) dialog.reject();
      });
    });
  }
  QString outPath() const { return out.filePath(QStringLiteral("out")); }
  /// Whatever lies in the folder, hidden or not, finished or not.
  QStringList found() const {
    return QDir(outPath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }
  void expectWholeFilesOnly() const {
    for (const QString& name : found()) {
      EXPECT_EQ(run("pdfinfo", {QDir(outPath()).filePath(name)}).status, 0) << name.toStdString();
      EXPECT_THAT(run("pdftotext", {QDir(outPath()).filePath(name), "-"}).output,
                  HasSubstr("Not validated for clinical use."));
    }
  }

  std::vector<std::function<bool(QDialog&)>> uses;

 private:
  QTemporaryDir home;
  QDir out{home.path()};
  QTimer eyes;
};

TEST_F(ThePaperDialogs, setUpThePaperOfTheDocumentAndOfThoseToCome) {
  open(singleton());
  ASSERT_TRUE(document().printInfo().isLandscape);
  then<QPageSetupDialog>([](QPageSetupDialog& dialog) {
    dialog.findChild<QRadioButton*>(QStringLiteral("portrait"))->click();
    button(dialog, QStringLiteral("OK")).click();
  });
  action("pageSetupAction").trigger();
  EXPECT_FALSE(document().printInfo().isLandscape);
  EXPECT_FALSE(qt::usualPaper(platform.defaults).isLandscape);
  openBlank();
  EXPECT_FALSE(document().printInfo().isLandscape);
}

QStringList& warnings() {
  static QStringList all;
  return all;
}

TEST_F(ThePaperDialogs, warnOfNothingWhereNoPrinterIsSetUp) {
  open(singleton());
  warnings().clear();
  const QtMessageHandler handler = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { warnings() << message; });
  then<QPageSetupDialog>([](QPageSetupDialog& dialog) { button(dialog, QStringLiteral("Cancel")).click(); });
  action("pageSetupAction").trigger();
  qInstallMessageHandler(handler);
  EXPECT_EQ(warnings().filter(QStringLiteral("QPageSetupDialog")), QStringList());
}

TEST_F(ThePaperDialogs, leaveThePaperAsItIsWhenTheyAreCancelled) {
  open(singleton());
  const framework::PrintInfo before = document().printInfo();
  then<QPageSetupDialog>([](QPageSetupDialog& dialog) {
    dialog.findChild<QRadioButton*>(QStringLiteral("portrait"))->click();
    button(dialog, QStringLiteral("Cancel")).click();
  });
  action("pageSetupAction").trigger();
  EXPECT_EQ(document().printInfo(), before);
}

TEST_F(ThePaperDialogs, showBothPagesBeforeTheyArePrinted) {
  open(singleton());
  int pages = 0;
  then<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
    pages = dialog.findChild<QPrintPreviewWidget*>()->pageCount();
    dialog.reject();
  });
  action("printPreviewAction").trigger();
  EXPECT_EQ(pages, 2);
  EXPECT_TRUE(document().shouldShowGraphHilite()) << "on the screen the disc is there again";
}

TEST_F(ThePaperDialogs, printWhatThePreviewShows) {
  open(singleton());
  const QString pdf = outPath() + QStringLiteral("/print.pdf");
  thenPrintFromThePreview();
  thenPrintInto(pdf);
  action("printPreviewAction").trigger();
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Pages: +2\n"));
  const std::string text = run("pdftotext", {pdf, "-"}).output;
  EXPECT_THAT(text, HasSubstr("Trends, page 1 of 2"));
  EXPECT_THAT(text, HasSubstr("Weight, page 2 of 2"));
}

TEST_F(ThePaperDialogs, keepThePaperThatWasSetUpInThePreview) {
  open(singleton());
  then<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
    dialog.printer()->setPageOrientation(QPageLayout::Portrait);
    dialog.reject();
  });
  action("printPreviewAction").trigger();
  EXPECT_FALSE(document().printInfo().isLandscape);
}

TEST_F(ThePaperDialogs, printFromTheMenuIntoOneFile) {
  open(singleton());
  const QString pdf = outPath() + QStringLiteral("/print.pdf");
  thenPrintInto(pdf);
  action("printAction").trigger();
  EXPECT_THAT(run("pdfinfo", {pdf}).output, ContainsRegex("Pages: +2\n"));
}

TEST_F(ThePaperDialogs, leaveNothingHalfPrinted) {
  open(singleton());
  const QString pdf = outPath() + QStringLiteral("/print.pdf");
  answers = {"OK", "OK"};
  {
    const FullDisk disk(2000);
    thenPrintInto(pdf);
    action("printAction").trigger();
    thenPrintFromThePreview();
    thenPrintInto(pdf);
    action("printPreviewAction").trigger();
  }
  EXPECT_TRUE(found().isEmpty()) << found().join(u' ').toStdString();
  ASSERT_EQ(asked.size(), 2U);
  for (const Asked& each : asked)
    EXPECT_THAT(each.information, HasSubstr("Please make room there or choose another file."));
}

TEST_F(ThePaperDialogs, leaveWholeFilesOnlyWhenAnExportIsCancelled) {
  open(twins());
  then<QProgressDialog>([](QProgressDialog& dialog) {
    EXPECT_EQ(dialog.maximum(), 4);
    button(dialog, QStringLiteral("Cancel")).click();
  });
  action("exportAllAction").trigger();
  EXPECT_GE(found().size(), 1);
  EXPECT_LT(found().size(), 4);
  expectWholeFilesOnly();
}

TEST_F(ThePaperDialogs, leaveWholeFilesOnlyWhenTheDiskIsFull) {
  open(twins());
  action("exportAllAction").trigger();
  const QStringList whole = found();
  ASSERT_EQ(whole.size(), 4);
  qint64 smallest = QFileInfo(outPath(), whole[0]).size();
  qint64 largest = smallest;
  for (const QString& name : whole) {
    smallest = std::min(smallest, QFileInfo(outPath(), name).size());
    largest = std::max(largest, QFileInfo(outPath(), name).size());
  }
  ASSERT_GT(largest, smallest + 200);
  answers = {"OK"};
  {
    const FullDisk disk(static_cast<rlim_t>((smallest + largest) / 2));
    action("exportAllAction").trigger();
  }
  EXPECT_EQ(found().size(), 6) << found().join(u' ').toStdString();
  expectWholeFilesOnly();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "2 pages were not exported.");
  EXPECT_THAT(asked[0].information, HasSubstr("or choose another in Export Settings."));
}

}  // namespace
}  // namespace nascor::tests
