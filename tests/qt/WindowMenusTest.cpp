// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The menus that know of other windows and of the text in edit, and where a new window stands.
#include <QActionGroup>
#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QMenu>

#include "WindowTest.h"
#include "base/FileLabels.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;

std::vector<std::string> texts(const QMenu& menu) {
  std::vector<std::string> result;
  for (const QAction* each : menu.actions()) result.push_back(each->text().toStdString());
  return result;
}

class TheWindowMenu : public WindowTest {
 protected:
  QMenu& opened(const char* name) {
    auto& menu = widget<QMenu>(name);
    emit menu.aboutToShow();
    return menu;
  }
  std::string title() { return front().windowTitle().toStdString(); }
};

TEST_F(TheWindowMenu, namesEachDocumentAndMarksItsOwn) {
  ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("May/a")));
  ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("June/a")));
  open(singleton(), QStringLiteral("May/a/x.nascor"));
  open(twins(), QStringLiteral("June/a/x.nascor"));
  open(twins(), QStringLiteral("a & b.nascor"));
  openBlank();
  enter("referenceIDField", "xy-9");
  const QMenu& menu = opened("windowMenu");
  EXPECT_THAT(texts(menu), ElementsAre("&1  x.nascor (May/a)", "&2  x.nascor (June/a)", "&3  a && b.nascor",
                                       "&4  XY-9 (G0)"));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(menu.actions()[i]->isChecked(), i == 3) << i;
  EXPECT_TRUE(menu.actions()[0]->actionGroup()->isExclusive());
}

TEST_F(TheWindowMenu, bringsTheChosenDocumentToTheFront) {
  open(singleton(), QStringLiteral("a.nascor"));
  open(twins(), QStringLiteral("b.nascor"));
  press(Qt::Key_W, Qt::AltModifier);
  ASSERT_EQ(QApplication::activePopupWidget(), &widget<QMenu>("windowMenu"));
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_1);
  settle();
  EXPECT_EQ(title(), "a.nascor[*]");
  EXPECT_EQ(QApplication::activeWindow(), &front());
}

TEST_F(TheWindowMenu, isNotConfusedByADocumentThatWasClosedMeanwhile) {
  open(singleton(), QStringLiteral("a.nascor"));
  qt::DocumentWindow& second = open(twins(), QStringLiteral("b.nascor"));
  application.windowOf(*application.documents().documents()[0])->activateWindow();
  settle();
  ASSERT_EQ(title(), "a.nascor[*]");
  QAction* other = opened("windowMenu").actions()[1];
  second.close();
  settle();
  other->trigger();
  EXPECT_EQ(title(), "a.nascor[*]");
}

TEST_F(TheWindowMenu, tellsRecentDocumentsOfOneNameApartByTheirFolders) {
  for (const char* path : {"/p/2026/May/x.nascor", "/p/2026/June/x.nascor", "/p/2026/June/y.nascor"})
    application.recentFiles().note(QLatin1String(path));
  openBlank();
  const std::vector<std::string> items = texts(opened("recentMenu"));
  EXPECT_THAT(std::vector(items.begin(), items.begin() + 3),
              ElementsAre("&1  y.nascor", "&2  x.nascor (June)", "&3  x.nascor (May)"));
}

TEST(TheNamesOfFiles, takeAsMuchOfTheirFoldersAsTellsThemApart) {
  EXPECT_EQ(qt::fileLabels({"/a/x", "/b/y"}), (QStringList{"x", "y"}));
  EXPECT_EQ(qt::fileLabels({"/a/x", "/b/x"}), (QStringList{"x (a)", "x (b)"}));
  EXPECT_EQ(qt::fileLabels({"/a/c/x", "/b/c/x", "/d/x"}), (QStringList{"x (a/c)", "x (b/c)", "x (d)"}));
  EXPECT_EQ(qt::fileLabels({"/x", "/a/x"}), (QStringList{"x (/)", "x (a)"}));
  EXPECT_EQ(qt::fileLabels({"Untitled", "Untitled"}), (QStringList{"Untitled", "Untitled"}));
}

TEST_F(TheWindowMenu, opensANewWindowBesideTheOthersAndAFileInThePlaceOfAnUntouchedOne) {
  const QPoint first = openBlank().pos();
  const QPoint second = openBlank().pos();
  const QPoint third = openBlank().pos();
  EXPECT_NE(second, first);
  EXPECT_NE(third, first);
  EXPECT_NE(third, second);
  while (application.documents().documents().size() > 1) front().close(), settle();
  const QPoint before = front().pos();
  EXPECT_EQ(open(singleton()).pos(), before);
  EXPECT_NE(open(twins(), QStringLiteral("b.nascor")).pos(), before);
}

TEST_F(TheWindowMenu, marksOneOfSeveralChoicesRound) {
  open(twins());
  for (const char* name : {"standardsMenu", "fetalWeightMenu", "crownRumpLengthMenu"}) {
    SCOPED_TRACE(name);
    const QMenu& menu = opened(name);
    QActionGroup* group = menu.actions()[0]->actionGroup();
    ASSERT_TRUE(group && group->isExclusive());
    EXPECT_EQ(group->actions(), menu.actions());
    EXPECT_TRUE(group->checkedAction());
  }
  ASSERT_TRUE(action("fetusAction1").actionGroup());
  EXPECT_TRUE(action("fetusAction1").actionGroup()->isExclusive());
  EXPECT_TRUE(action("fetusAction1").isChecked());
  action("fetusAction2").trigger();
  EXPECT_TRUE(action("fetusAction2").isChecked());
  EXPECT_FALSE(action("fetusAction1").isChecked());
}

TEST_F(TheWindowMenu, leavesTheMarkWhereAFieldHeldTheChoiceBack) {
  open(twins());
  type("bpdField", "201");
  const QMenu& menu = opened("standardsMenu");
  const qsizetype inForce = menu.actions().indexOf(menu.actions()[0]->actionGroup()->checkedAction());
  QAction* other = menu.actions()[inForce == 0 ? 1 : 0];
  other->trigger();
  EXPECT_FALSE(other->isChecked());
  EXPECT_TRUE(menu.actions()[inForce]->isChecked());
  press(Qt::Key_Escape);
}

/// Which items of the Edit menu can be chosen while it is open.
struct Choice {
  const char* name;
  bool undo, redo, cut, copy, paste, selectAll;
};

TEST_F(TheWindowMenu, offersOnlyWhatDoesSomethingToTheTextInEdit) {
  open(twins());
  QGuiApplication::clipboard()->clear();
  const auto expect = [&](const Choice& wanted) {
    SCOPED_TRACE(wanted.name);
    const QMenu& menu = opened("editMenu");
    EXPECT_EQ(action("undoAction").isEnabled(), wanted.undo);
    EXPECT_EQ(action("redoAction").isEnabled(), wanted.redo);
    EXPECT_EQ(action("cutAction").isEnabled(), wanted.cut);
    EXPECT_EQ(action("copyAction").isEnabled(), wanted.copy);
    EXPECT_EQ(action("pasteAction").isEnabled(), wanted.paste);
    EXPECT_EQ(action("selectAllAction").isEnabled(), wanted.selectAll);
    emit const_cast<QMenu&>(menu).aboutToHide();
    EXPECT_TRUE(action("undoAction").isEnabled()) << "the keys are the fields' own";
  };
  widget<QWidget>("previousButton").setFocus();
  expect({"no text", false, false, false, false, false, false});
  for (const char* name : {"bpdField", "notesField"}) {
    SCOPED_TRACE(name);
    QGuiApplication::clipboard()->clear();
    type(name, "7");
    expect({"typed", true, false, false, false, false, true});
    press(Qt::Key_A, Qt::ControlModifier);
    expect({"selected", true, false, true, true, false, true});
    QGuiApplication::clipboard()->setText(QStringLiteral("8"));
    expect({"something to paste", true, false, true, true, true, true});
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE((opened("editMenu"), action("redoAction").isEnabled()));
    emit widget<QMenu>("editMenu").aboutToHide();
  }
  QTest::mouseClick(&widget<QLineEdit>("ageField"), Qt::LeftButton);
  widget<QLineEdit>("ageField").selectAll();
  expect({"read only", false, false, false, true, false, true});
}

TEST_F(TheWindowMenu, outlinesTheNoteWhileItHasTheFocus) {
  open(twins());
  auto& note = widget<QPlainTextEdit>("notesField");
  const auto corner = [&] { return note.grab().toImage().pixelColor(0, note.height() / 2); };
  widget<QWidget>("bpdField").setFocus();
  const QColor without = corner();
  note.setFocus();
  EXPECT_NE(corner(), without);
  EXPECT_EQ(corner(), note.palette().color(QPalette::Highlight));
}

TEST_F(TheWindowMenu, saysOnTheButtonsWhatIsAddedAndRemoved) {
  open(twins());
  for (const auto& [name, text] :
       {std::pair("addExaminationButton", "Add Examination"),
        std::pair("deleteExaminationButton", "Delete Examination"), std::pair("addFetusButton", "Add Fetus"),
        std::pair("deleteFetusButton", "Remove Fetus")}) {
    EXPECT_EQ(widget<QToolButton>(name).text(), QLatin1String(text));
  }
}

}  // namespace
}  // namespace nascor::tests
