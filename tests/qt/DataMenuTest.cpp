// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/DataMenu.h"

#include <QFileDialog>
#include <QStatusBar>

#include "WindowTest.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;

class TheDataItem : public WindowTest {
 protected:
  /// What is typed into the next dialog for a file, which has that kind of file chosen.
  void thenName(const QString& path, const QString& kind = {}) {
    auto* eyes = new QTimer(&context);
    QObject::connect(eyes, &QTimer::timeout, eyes, [this, eyes, path, kind] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      eyes->stop();
      auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      suggested = edit->text();
      if (!kind.isEmpty()) {
        dialog->selectNameFilter(kind);
        emit dialog->filterSelected(kind);
      }
      edit->setText(path);
      QTest::keyClick(edit, Qt::Key_Return);
    });
    eyes->start(1);
  }
  static std::string contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no file";
  }

  QTemporaryDir out;
  QString suggested;
  QObject context;
};

TEST_F(TheDataItem, exportsATableWithWhatIsInEdit) {
  open(singleton());
  type("bpdField", "47.5");
  const QString table = out.filePath(QStringLiteral("data"));
  thenName(table);
  action("exportDataAction").trigger();
  EXPECT_EQ(suggested.toStdString(), document().dataFileName(""));
  EXPECT_TRUE(front().statusBar()->currentMessage().endsWith(table + QStringLiteral(".csv")));
  EXPECT_EQ(contentsOf(table + QStringLiteral(".csv")), document().dataAsCsv());
  EXPECT_THAT(document().dataAsCsv(), HasSubstr(",47.5,"));
}

TEST_F(TheDataItem, exportsJsonWhereItIsChosen) {
  open(twins());
  const QString json = out.filePath(QStringLiteral("data"));
  thenName(json, QStringLiteral("JSON (*.json)"));
  action("exportDataAction").trigger();
  EXPECT_EQ(contentsOf(json + QStringLiteral(".json")), document().dataAsJson());
}

TEST_F(TheDataItem, saysWhyNothingWasExported) {
  open(singleton());
  thenName(QStringLiteral("/proc/data.csv"));  // where no file can be made
  answers = {"OK"};
  action("exportDataAction").trigger();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "The data were not exported.");
  EXPECT_THAT(asked[0].information, HasSubstr("/proc/data.csv"));
}

TEST_F(TheDataItem, waitsForAFieldThatRefuses) {
  open(singleton());
  type("bpdField", "201");
  action("exportDataAction").trigger();  // a dialog would stay open
  EXPECT_EQ(focus(), "bpdField");
  press(Qt::Key_Escape);
}

}  // namespace
}  // namespace nascor::tests
