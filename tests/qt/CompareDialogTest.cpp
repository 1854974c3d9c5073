// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The Compare window: what it shows is told by stories; here its binding, and what is done with its tables.
#include "window/CompareDialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QPrintDialog>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>

#include "Run.h"
#include "WindowTest.h"
#include "support/FaultyFileStore.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct CompareDialog : WindowTest {
  /// Twins at two examinations; the second is on show.
  CompareDialog() {
    open(patient({{{2026, 10, 24}, {30.0, 70.0}}, {{2026, 12, 19}, {50.0, 90.0}}}));
    action("compareAction").trigger();
    settle();
  }
  QDialog& dialog() { return widget<QDialog>("compareDialog"); }
  QTableView& table(const char* name) { return widget<QTableView>(name); }
  std::string cell(const char* name, int row, int column) {
    return table(name).model()->index(row, column).data().toString().toStdString();
  }
  void show(int page) {
    widget<QTabWidget>("compareTabs").setCurrentIndex(page);
    settle();
  }
  void clickHeader(const char* name, int column) {
    QHeaderView& header = *table(name).horizontalHeader();
    QTest::mouseClick(
        header.viewport(), Qt::LeftButton, {},
        {header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2});
    settle();
  }
  void clickButton(const char* name) {
    QTest::mouseClick(&widget<QPushButton>(name), Qt::LeftButton);
    settle();
  }
  /// Does that with the next dialog of its kind as soon as it is open.
  template <class Dialog>
  void whenOpen(const std::function<void(Dialog&)>& what) {
    auto* timer = new QTimer(&context);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, what] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      timer->stop();
      what(*dialog);
    });
    timer->start(1);
  }
  void exportTo(const QString& path) {
    whenOpen<QFileDialog>([this, path](QFileDialog& save) {
      proposed = save.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text().toStdString();
      save.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
      QTest::keyClick(&save, Qt::Key_Return);
    });
    clickButton("compareExportButton");
  }
  static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }

  QObject context;
  QTemporaryDir out;
  std::string proposed;
};

TEST_F(CompareDialog, followsTheExaminationTheFetusAndTheStandardOnShow) {
  EXPECT_EQ(cell("compare-lengths", 0, 1), "50.0");
  EXPECT_THAT(label("compareHeading"), HasSubstr("Twin 1"));
  EXPECT_THAT(label("compareHeading"), HasSubstr("Examination 2 of 2"));
  click("previousButton");
  EXPECT_EQ(cell("compare-lengths", 0, 1), "30.0");
  EXPECT_THAT(label("compareHeading"), HasSubstr("Examination 1 of 2"));
  widget<QAction>("fetusAction2").trigger();
  settle();
  EXPECT_EQ(cell("compare-lengths", 0, 1), "70.0");
  EXPECT_THAT(label("compareHeading"), HasSubstr("Twin 2"));
  const QModelIndex hadlock = table("compare-lengths").model()->index(1, 2);
  EXPECT_FALSE(hadlock.data(Qt::FontRole).value<QFont>().bold());
  widget<QMenu>("standardsMenu").actions().at(1)->trigger();
  settle();
  EXPECT_TRUE(hadlock.data(Qt::FontRole).value<QFont>().bold());
  // What is typed counts once it is stored.
  enter("bpdField", "48");
  EXPECT_EQ(cell("compare-lengths", 0, 1), "48.0");
}

TEST_F(CompareDialog, staysOpenBesideWorkAndHoldsNothingBack) {
  EXPECT_FALSE(front().hasDialog());
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_FALSE(dialog().isModal());
  action("addExaminationAction").trigger();
  settle();
  EXPECT_EQ(label("examinationLabel"), "2 of 3");
  EXPECT_EQ(cell("compare-lengths", 0, 1), "-");
  QTest::mouseClick(dialog().findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close), Qt::LeftButton);
  EXPECT_FALSE(dialog().isVisible());
  action("compareAction").trigger();
  settle();
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(CompareDialog, sortsByNumbersAndBackAgain) {
  show(3);
  ASSERT_EQ(cell("compare-fetuses", 0, 1), "50.0");
  clickHeader("compare-fetuses", 1);
  EXPECT_EQ(cell("compare-fetuses", 0, 1), "50.0");
  clickHeader("compare-fetuses", 1);
  EXPECT_EQ(cell("compare-fetuses", 0, 1), "90.0");
  // 100 is more than 90, though not as a text; the order is kept while the numbers change.
  enter("bpdField", "100");
  EXPECT_EQ(cell("compare-fetuses", 0, 1), "100.0");
  clickHeader("compare-fetuses", 1);
  EXPECT_EQ(cell("compare-fetuses", 0, 0), "Twin 1");
}

TEST_F(CompareDialog, saysOfEachFigureWhyItIsMissing) {
  const QModelIndex index = table("compare-lengths").model()->index(0, 6);
  EXPECT_EQ(index.data(Qt::ToolTipRole), QVariant());
  answers = {"Modify"};
  enter("birthDateField", "9/1/27");
  EXPECT_EQ(index.data().toString(), QStringLiteral("-"));
  EXPECT_EQ(index.data(Qt::ToolTipRole).toString(),
            QStringLiteral("Westerway (ASUM 2001) has 11 to 41 weeks."));
  EXPECT_EQ(index.data(Qt::AccessibleDescriptionRole), index.data(Qt::ToolTipRole));
  for (const QTableView* view : dialog().findChildren<QTableView*>())
    EXPECT_FALSE(view->accessibleName().isEmpty());
}

TEST_F(CompareDialog, leadsToWhatStandsBehindAFigure) {
  const auto shown = [this] { return widget<QTextBrowser>("referencesText").toPlainText().toStdString(); };
  QTableView& lengths = table("compare-lengths");
  QDialog& compare = dialog();
  const auto goTo = [&](QTableView& view, int row, int column) {
    compare.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&compare));
    view.setFocus();
    view.setCurrentIndex(view.model()->index(row, column));
  };
  // The centile of the BPD by INTERGROWTH-21st (2014).
  goTo(lengths, 4, 7);
  QTest::keyClick(&lengths, Qt::Key_Return);
  settle();
  EXPECT_TRUE(dialog().isVisible()) << "Return closes nothing here";
  EXPECT_TRUE(widget<QDialog>("referencesDialog").isVisible());
  EXPECT_THAT(shown(), StartsWith("INTERGROWTH-21st (2014)\n"));
  EXPECT_THAT(shown(), HasSubstr("mean BPD = 5.60878 + 0.158369 w^2 - 0.00256379 w^3"));
  EXPECT_THAT(shown(), HasSubstr("14 to 40 weeks"));
  EXPECT_THAT(shown(), HasSubstr("outer to outer edge"));
  EXPECT_THAT(shown(), HasSubstr("doi:10.1016/S0140-6736(14)61490-2"));
  EXPECT_THAT(shown(), HasSubstr("BPD, week 14, centile 3: value\n26.3\n"));
  EXPECT_THAT(shown(), testing::Not(HasSubstr("HC, week")));
  // A printed table has rows in place of a formula.
  goTo(lengths, 3, 3);
  QTest::keyClick(&lengths, Qt::Key_Return);
  settle();
  EXPECT_THAT(shown(), HasSubstr("Printed table"));
  EXPECT_THAT(shown(), HasSubstr("16\n34.53\n2.275\n"));
  show(1);
  QTableView& weights = table("compare-weights");
  const QModelIndex campbell = weights.model()->index(4, 1);
  QTest::mouseClick(weights.viewport(), Qt::LeftButton, {}, weights.visualRect(campbell).center());
  QTest::mouseDClick(weights.viewport(), Qt::LeftButton, {}, weights.visualRect(campbell).center());
  EXPECT_THAT(shown(), StartsWith("Campbell (AC)\n"));
  show(2);
  QTableView& ratios = table("compare-ratios");
  goTo(ratios, 0, 1);
  ASSERT_EQ(ratios.actions().size(), 1);
  ratios.actions().first()->trigger();  // as the menu does
  EXPECT_THAT(shown(), HasSubstr("HC/AC = HC / AC"));
  // What was measured has nothing behind it.
  show(3);
  QTableView& fetuses = table("compare-fetuses");
  goTo(fetuses, 0, 1);
  QTest::keyClick(&fetuses, Qt::Key_Return);
  EXPECT_THAT(shown(), HasSubstr("HC/AC = HC / AC"));
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(CompareDialog, copiesTheRowsAsTheyAreSortedOrThoseThatAreSelected) {
  show(3);
  clickHeader("compare-fetuses", 1);
  clickHeader("compare-fetuses", 1);
  clickButton("compareCopyButton");
  EXPECT_EQ(clipboard(),
            "Fetus\tBPD\tHC\tAC\tFL\tEFW\tDiscordance (%)\nTwin 2\t90.0\t-\t-\t-\t-\t-\nTwin "
            "1\t50.0\t-\t-\t-\t-\t-\n");
  QTableView& fetuses = table("compare-fetuses");
  QDialog& compare = dialog();
  compare.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&compare));
  fetuses.setFocus();
  fetuses.selectRow(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return fetuses.hasFocus(); }));
  ASSERT_EQ(fetuses.selectionModel()->selectedRows().size(), 1);
  QTest::keyClick(&fetuses, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "Fetus\tBPD\tHC\tAC\tFL\tEFW\tDiscordance (%)\nTwin 1\t50.0\t-\t-\t-\t-\t-\n");
}

TEST_F(CompareDialog, exportsATableAsCSV) {
  show(3);
  exportTo(out.filePath(QStringLiteral("twins")));
  EXPECT_EQ(proposed, "AB-123 (G2) - Fetuses.csv");
  QFile csv(out.filePath(QStringLiteral("twins.csv")));
  ASSERT_TRUE(csv.open(QFile::ReadOnly));
  EXPECT_EQ(csv.readAll().toStdString(),
            "Fetus,BPD,HC,AC,FL,EFW,Discordance (%)\r\nTwin 1,50,,,,,\r\nTwin 2,90,,,,,\r\n");
}

TEST_F(CompareDialog, saysWhyATableCannotBeExported) {
  answers = {"OK"};
  exportTo(QStringLiteral("/proc/none.csv"));
  settle();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "The table cannot be exported.");
  EXPECT_THAT(asked[0].information, StartsWith("/proc/none.csv: "));
}

TEST_F(CompareDialog, printsAllTables) {
  const QString pdf = out.filePath(QStringLiteral("compared.pdf"));
  whenOpen<QPrintDialog>([pdf](QPrintDialog& print) {
    print.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(pdf);
    QTest::mouseClick(print.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
  });
  clickButton("comparePrintButton");
  const std::string text = run("pdftotext", {QStringLiteral("-layout"), pdf, QStringLiteral("-")}).output;
  for (const char* part : {"AB-123 (G2)", "Lengths", "WHO (2017)", "Weights", "Shepard (BPD/AC)", "FL/BPD",
                           "Twin 2", "Growth", "Not a medical device"})
    EXPECT_THAT(text, HasSubstr(part));
}

TEST_F(CompareDialog, isReadableWhereThePaletteHasNoColourForEveryOtherRow) {
  QTableView& view = table("compare-lengths");
  QPalette dark = view.palette();
  dark.setColor(QPalette::Base, QColor(27, 30, 32));
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::AlternateBase, Qt::white);
  view.setPalette(dark);
  action("previousAction").trigger();
  settle();
  const QColor row = view.palette().color(QPalette::AlternateBase);
  EXPECT_NE(row, view.palette().color(QPalette::Base));
  EXPECT_LT(row.lightness(), 64) << row.name().toStdString();
}

TEST_F(CompareDialog, hasRoomForEveryFigure) {
  for (const QTableView* view : dialog().findChildren<QTableView*>()) {
    for (int column = 0; column + 1 < view->model()->columnCount(); ++column)
      EXPECT_GE(view->columnWidth(column), view->horizontalHeader()->sectionSizeHint(column)) << column;
  }
}

}  // namespace
}  // namespace nascor::tests
