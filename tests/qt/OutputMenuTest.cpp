// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/OutputMenu.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QProgressDialog>
#include <QStatusBar>

#include "WindowTest.h"
#include "framework/PageWriter.h"

namespace nascor::tests {
namespace {

namespace export_key = framework::export_key;

class TheOutputItems : public WindowTest {
 protected:
  TheOutputItems() { platform.defaults.setValue(export_key::folder, out.path().toStdString()); }
  QStringList written() const { return QDir(out.path()).entryList(QDir::Files, QDir::Name); }

  QTemporaryDir out;
};

TEST_F(TheOutputItems, exportThePageOnShowAndSayWhereItWent) {
  open(singleton());
  document().switchToGraph(1);
  action("exportAction").trigger();
  EXPECT_EQ(written(), QStringList{QStringLiteral("AB-123 (G2) - BPD.pdf")});
  EXPECT_TRUE(front().statusBar()->currentMessage().endsWith(out.filePath(written().first())));
}

TEST_F(TheOutputItems, exportAllFetuses) {
  open(twins());
  action("exportAllAction").trigger();
  EXPECT_EQ(written(), (QStringList{QStringLiteral("AB-123 (G2) 1 of 2 - Report.pdf"),
                                    QStringLiteral("AB-123 (G2) 1 of 2 - Trends.pdf"),
                                    QStringLiteral("AB-123 (G2) 2 of 2 - Report.pdf"),
                                    QStringLiteral("AB-123 (G2) 2 of 2 - Trends.pdf")}));
}

TEST_F(TheOutputItems, stopBetweenTwoPagesWhenCancelled) {
  open(twins());
  QTimer cancel;
  QString label;
  cancel.setInterval(0);
  QObject::connect(&cancel, &QTimer::timeout, [&] {
    auto* progress = front().findChild<QProgressDialog*>(QLatin1String(qt::OutputMenu::kProgressName));
    if (progress) label = progress->labelText();
    if (progress && progress->value() >= 1) progress->cancel();
  });
  cancel.start();
  action("exportAllAction").trigger();
  EXPECT_THAT(label.toStdString(), testing::HasSubstr(" of 4"));
  EXPECT_EQ(written(), QStringList{QStringLiteral("AB-123 (G2) 1 of 2 - Trends.pdf")});
}

TEST_F(TheOutputItems, sayWhatCouldNotBeExported) {
  platform.defaults.setValue(export_key::folder, out.filePath(QStringLiteral("missing")).toStdString());
  open(singleton());
  answers = {"OK"};
  action("exportAllAction").trigger();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "2 pages were not exported.");
  EXPECT_THAT(asked[0].information, testing::HasSubstr("No such file or directory"));
  EXPECT_TRUE(written().isEmpty());
}

TEST_F(TheOutputItems, waitForAFieldThatRefuses) {
  open(singleton());
  type("bpdField", "201");
  action("exportAction").trigger();
  action("exportAllAction").trigger();
  EXPECT_TRUE(written().isEmpty());
  press(Qt::Key_Escape);
}

TEST_F(TheOutputItems, haveKeysThatNoFieldTakesForItself) {
  open(singleton());
  for (const char* name : {"exportAction", "printAction"}) {
    const QKeyCombination keys = action(name).shortcut()[0];
    QKeyEvent typed(QEvent::ShortcutOverride, keys.key(), keys.keyboardModifiers());
    typed.ignore();
    QApplication::sendEvent(&widget<QLineEdit>("bpdField"), &typed);
    EXPECT_FALSE(typed.isAccepted()) << name;
  }
}

TEST_F(TheOutputItems, keepTheSettings) {
  open(singleton());
  QTimer agree;
  agree.setInterval(0);
  QObject::connect(&agree, &QTimer::timeout, [&] {
    auto* dialog = front().findChild<QDialog*>(QStringLiteral("exportSettings"));
    if (!dialog || !dialog->isVisible()) return;
    dialog->findChild<QComboBox*>(QStringLiteral("exportFormat"))->setCurrentIndex(2);
    dialog->findChild<QCheckBox*>(QStringLiteral("exportFoot"))->setChecked(false);
    dialog->accept();
  });
  agree.start();
  action("exportSettingsAction").trigger();
  EXPECT_EQ(platform.defaults.value(export_key::format), "svg");
  EXPECT_EQ(platform.defaults.value(export_key::pageFoot), "false");
  EXPECT_EQ(platform.defaults.value(export_key::folder), out.path().toStdString());
}

TEST_F(TheOutputItems, rememberThePaper) {
  EXPECT_EQ(qt::usualPaper(platform.defaults).paperWidth, 612.0);  // the tests live in the United States
  platform.defaults.setValue("Paper", "595 842 0 10 20 30 40");
  const framework::PrintInfo paper = qt::usualPaper(platform.defaults);
  EXPECT_FALSE(paper.isLandscape);
  EXPECT_EQ(paper.bottomMargin, 40.0);
  platform.defaults.setValue("Paper", "595 rubbish");
  EXPECT_TRUE(qt::usualPaper(platform.defaults).isLandscape);
}

TEST_F(TheOutputItems, sayThatTheGuideIsNotThere) {
  qt::DocumentApplication incomplete(platform.services(), folder.path().toStdString());
  incomplete.newDocument();
  const auto* window = incomplete.windowOf(*incomplete.documents().currentDocument());
  answers = {"OK"};
  window->findChild<QAction*>(QStringLiteral("guideAction"))->trigger();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].information, testing::HasSubstr("Nascor User Guide.pdf is not installed."));
}

}  // namespace
}  // namespace nascor::tests
