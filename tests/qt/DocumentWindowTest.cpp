// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/DocumentWindow.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QTabWidget>

#include "Pixels.h"
#include "WindowTest.h"
#include "window/PageView.h"
#include "window/WindowPlace.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;
using testing::ElementsAre;

class TheDocumentWindow : public WindowTest {
 protected:
  std::string examination() { return label("examinationLabel"); }
  void showBPD() { widget<QTabWidget>("tabView").setCurrentIndex(1); }
  /// Whether the disc lies around the mark there.
  bool isHighlighted(double week, double mm) {
    QWidget& page = widget<QWidget>("BPDPage");
    const QImage image = page.grab().toImage();
    const QRectF paper = static_cast<qt::PageView&>(page).paper();
    const double scale = paper.width() / 800.0;
    // Around the mark, in the band or beside it; the curve may cross one of the places.
    int found = 0;
    for (const QPointF beside : {QPointF(5, 5), QPointF(-5, 5), QPointF(5, -5), QPointF(-5, -5)}) {
      const QColor color =
          colorAt(image, paper.topLeft() + (QPointF(pageX(week), pageY(mm)) + beside) * scale);
      if (isNear(color, colorOf(NamedColor::faintGray), 3) ||
          isNear(color, colorOf(NamedColor::faintGray, colorOf(NamedColor::faintOrange)), 3))
        ++found;
    }
    return found >= 3;
  }
  std::string spoken(const char* name, QAccessible::Text text) {
    return QAccessible::queryAccessibleInterface(&widget<QWidget>(name))->text(text).toStdString();
  }
};

TEST_F(TheDocumentWindow, showsTheNewestExaminationOfItsPatient) {
  open(singleton());
  showBPD();
  EXPECT_EQ(field("referenceIDField"), "AB-123");
  EXPECT_EQ(field("gravidaField"), "2");
  EXPECT_EQ(field("birthDateField"), "4/10/27");
  EXPECT_EQ(field("examDateField"), "2/13/27");
  EXPECT_EQ(field("ageField"), "32w 0d");
  EXPECT_EQ(field("bpdField"), "82.0");
  EXPECT_EQ(field("hcField"), "0.0");
  EXPECT_EQ(examination(), "6 of 6");
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Singleton"));
  EXPECT_TRUE(isHighlighted(32.0, 82.0));
}

TEST_F(TheDocumentWindow, beginsWithThePagesOfAKnownPatientAndWithTheNameOfANewOne) {
  open(singleton());
  EXPECT_EQ(front().focusWidget(), widget<QTabWidget>("tabView").tabBar());
  QTest::keyClicks(front().focusWidget(), QStringLiteral("5"));
  EXPECT_FALSE(front().isWindowModified()) << "a key that was meant for another window";
  openBlank();
  EXPECT_EQ(focus(), "referenceIDField");
}

TEST_F(TheDocumentWindow, isTitledWithTheFilesNameAndMarkedWhenItWasEdited) {
  open(singleton());
  EXPECT_EQ(front().windowTitle(), QStringLiteral("AB-123.nascor[*]"));
  EXPECT_FALSE(front().isWindowModified());
  enter("bpdField", "81");
  EXPECT_TRUE(front().isWindowModified());
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(TheDocumentWindow, goesBackAndForthByItsButtonsAndByTheKeyboard) {
  open(singleton());
  showBPD();
  click("previousButton");
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(examination(), "4 of 6");
  EXPECT_EQ(field("examDateField"), "12/19/26");
  EXPECT_EQ(field("ageField"), "24w 0d");
  EXPECT_TRUE(isHighlighted(24.0, 61.0));
  EXPECT_FALSE(isHighlighted(32.0, 82.0));
  click("nextButton");
  EXPECT_TRUE(isHighlighted(28.0, 70.0));
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(examination(), "6 of 6");
}

/// Counts how often a widget is painted.
class PaintCounter final : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
  int paints = 0;
};

TEST_F(TheDocumentWindow, repaintsItsPageForAnotherExamination) {
  open(singleton());
  showBPD();
  settle();
  PaintCounter counter;
  widget<QWidget>("BPDPage").installEventFilter(&counter);
  click("previousButton");
  EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }));
}

TEST_F(TheDocumentWindow, repaintsItsPageForAnotherStandardOrFormula) {
  open(singleton());
  showBPD();
  for (const char* menu : {"standardsMenu", "fetalWeightMenu"}) {
    SCOPED_TRACE(menu);
    settle();
    PaintCounter counter;
    widget<QWidget>("BPDPage").installEventFilter(&counter);
    widget<QMenu>(menu).actions().at(1)->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }));
  }
}

TEST_F(TheDocumentWindow, offersNoExaminationBeyondTheEnds) {
  open(singleton());
  EXPECT_FALSE(widget<QToolButton>("nextButton").isEnabled());
  for (int i = 0; i < 7; ++i) press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(examination(), "1 of 6");
  EXPECT_FALSE(widget<QToolButton>("previousButton").isEnabled());
  EXPECT_TRUE(widget<QToolButton>("nextButton").isEnabled());
}

TEST_F(TheDocumentWindow, addsAndDeletesAnExamination) {
  open(singleton());
  click("addExaminationButton");
  EXPECT_EQ(examination(), "4 of 7");  // dated now: the day of the third, behind which it stands
  EXPECT_EQ(field("examDateField"), "11/21/26");
  EXPECT_EQ(field("bpdField"), "0.0");
  EXPECT_TRUE(front().isWindowModified());
  click("deleteExaminationButton");  // empty, so nobody is asked
  EXPECT_EQ(examination(), "4 of 6");
  EXPECT_EQ(field("bpdField"), "61.0");
  answers = {"Cancel", "Remove"};
  click("deleteExaminationButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }));
  EXPECT_EQ(examination(), "4 of 6");
  front();
  click("deleteExaminationButton");
  EXPECT_TRUE(QTest::qWaitFor([&] { return examination() == "4 of 5"; }));
  EXPECT_EQ(asked.at(1).message, "Are you sure you want to remove this examination?");
}

TEST_F(TheDocumentWindow, keepsTheLastExamination) {
  open(patient({{{2026, 11, 21}, {30.0}}}));
  EXPECT_FALSE(widget<QToolButton>("deleteExaminationButton").isEnabled());
}

TEST_F(TheDocumentWindow, showsTheFetusThatIsChosen) {
  open(twins());
  showBPD();
  EXPECT_TRUE(isHighlighted(24.0, 40.0));
  widget<QComboBox>("multiplePopUp").setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Twin 2"));
  EXPECT_EQ(document().currentFetus(), 1);
  EXPECT_TRUE(isHighlighted(24.0, 80.0));
  EXPECT_EQ(focus(), "bpdField");
  EXPECT_EQ(widget<QLineEdit>("bpdField").selectedText(), QStringLiteral("80.0"));
  click("previousButton");
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Twin 2"));
}

TEST_F(TheDocumentWindow, choosesEachFetusByItsKey) {
  open(patient({{{2026, 11, 21}, {31.0, 32.0, 33.0, 34.0, 35.0}}}));
  const Qt::Key keys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5};
  for (const int i : {4, 1, 3, 0, 2}) {
    press(keys[i], Qt::ControlModifier);
    EXPECT_EQ(field("bpdField"), std::to_string(30 + i + 1).append(".0"));
    EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Quin %1 of 5").arg(i + 1));
    EXPECT_TRUE(action(std::string("fetusAction").append(std::to_string(i + 1)).c_str()).isChecked());
  }
  EXPECT_FALSE(widget<QToolButton>("addFetusButton").isEnabled());
}

TEST_F(TheDocumentWindow, addsAFetusAndRemovesOneAfterAQuestion) {
  open(singleton());
  EXPECT_FALSE(widget<QToolButton>("deleteFetusButton").isEnabled());
  click("addFetusButton");
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Twin 2"));
  EXPECT_EQ(field("bpdField"), "0.0");
  answers = {"Remove"};
  click("deleteFetusButton");
  EXPECT_TRUE(QTest::qWaitFor([&] { return document().patientRecord()->numberOfFetuses() == 1; }));
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "Are you sure you want to remove this fetus?");
  EXPECT_EQ(asked[0].information, "Twin 2. Lengths that will be removed with it: 0.");
  EXPECT_THAT(asked[0].buttons, ElementsAre("Remove", "Cancel"));
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Singleton"));
  // The smoke stands 20 to the left of the pop-up's upper left corner, half way down.
  const QComboBox& popUp = widget<QComboBox>("multiplePopUp");
  const QPoint expected = popUp.mapTo(&front(), QPoint(-20, popUp.height() / 2));
  EXPECT_NEAR(widget<QWidget>("puff").geometry().center().x(), expected.x(), 1);
  EXPECT_NEAR(widget<QWidget>("puff").geometry().center().y(), expected.y(), 1);
}

TEST_F(TheDocumentWindow, showsAPatientWithoutExaminations) {
  open(patient({}));
  EXPECT_EQ(examination(), "0 of 0");
  EXPECT_EQ(field("examDateField"), "");
  EXPECT_EQ(field("ageField"), "-");
}

TEST_F(TheDocumentWindow, turnsItsPagesByTheTabsAndByTheKeyboard) {
  open(singleton());
  QTabWidget& tabs = widget<QTabWidget>("tabView");
  std::vector<std::string> names;
  for (int i = 0; i < tabs.count(); ++i) names.push_back(tabs.tabText(i).toStdString());
  EXPECT_THAT(names, ElementsAre("Trends", "BPD", "HC", "AC", "FL", "Weight", "Report"));
  const Qt::Key keys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_7};
  for (const int i : {6, 0, 3, 5, 2, 4, 1}) {
    press(keys[i], Qt::AltModifier);
    EXPECT_EQ(tabs.currentIndex(), i);
    EXPECT_EQ(document().tabView().indexOfSelectedPage(), i);
  }
  document().switchToGraph(4);
  EXPECT_EQ(tabs.currentIndex(), 4);
}

TEST_F(TheDocumentWindow, hasAMenuForEachFamilyOfStandards) {
  open(singleton());
  std::vector<std::string> titles;
  for (const QAction* menu : front().menuBar()->actions())
    titles.push_back(menu->text().remove(u'&').toStdString());
  EXPECT_THAT(titles, ElementsAre("File", "Edit", "Patient", "Standards", "Estimated Fetal Weight",
                                  "Crown Rump Length", "View", "Window", "Help"));
  EXPECT_EQ(widget<QMenu>("standardsMenu").actions().size(), 4);
  EXPECT_EQ(widget<QMenu>("fetalWeightMenu").actions().size(), 8);
  EXPECT_EQ(widget<QMenu>("crownRumpLengthMenu").actions().size(), 4);
}

struct MenuCase {
  const char* name;
  const char* menu;
  int item;
  const char* key;
};
class TheStandardsMenus : public WindowTest, public testing::WithParamInterface<MenuCase> {
 protected:
  /// The places of the ticks in the menu, as it opens.
  std::vector<int> ticks() {
    QMenu& menu = widget<QMenu>(GetParam().menu);
    emit menu.aboutToShow();
    std::vector<int> places;
    for (int i = 0; i < menu.actions().size(); ++i) {
      if (menu.actions()[i]->isChecked()) places.push_back(i);
    }
    return places;
  }
};

TEST_P(TheStandardsMenus, tickWhatTheirDocumentHas) {
  open(singleton(), QStringLiteral("a.nascor"));
  EXPECT_THAT(ticks(), ElementsAre(0));
  widget<QMenu>(GetParam().menu).actions()[GetParam().item]->trigger();
  EXPECT_THAT(ticks(), ElementsAre(GetParam().item));
  EXPECT_FALSE(front().isWindowModified());
  EXPECT_EQ(platform.defaults.value(GetParam().key), std::to_string(GetParam().item));
  open(singleton(), QStringLiteral("b.nascor"));
  EXPECT_THAT(ticks(), ElementsAre(0));
}

INSTANTIATE_TEST_SUITE_P(
    menus, TheStandardsMenus,
    testing::Values(MenuCase{"growth", "standardsMenu", 2, "Standard"},
                    MenuCase{"weight", "fetalWeightMenu", 5, "Estimated Fetal Weight Standard"},
                    MenuCase{"crownRumpLength", "crownRumpLengthMenu", 3, "CRL Standard"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(TheDocumentWindow, saysWhichStandardAndFormulaAreInForce) {
  open(singleton());
  const std::string growth = label("growthStandardLabel");
  const std::string weight = label("fetalWeightLabel");
  QList<QAction*> standards = widget<QMenu>("standardsMenu").actions();
  standards[1]->trigger();
  EXPECT_NE(label("growthStandardLabel"), growth);
  EXPECT_THAT(label("growthStandardLabel"),
              testing::EndsWith(standards[1]->text().remove(u'&').toStdString()));
  EXPECT_EQ(label("fetalWeightLabel"), weight);
  QList<QAction*> weights = widget<QMenu>("fetalWeightMenu").actions();
  weights[7]->trigger();
  EXPECT_THAT(label("fetalWeightLabel"), testing::EndsWith(weights[7]->text().remove(u'&').toStdString()));
}

TEST_F(TheDocumentWindow, showsEveryFetusOrOneInAllWindowsAlike) {
  open(twins());
  showBPD();
  const auto secondTwin = [&] {
    QWidget& page = widget<QWidget>("BPDPage");
    const QRectF paper = static_cast<qt::PageView&>(page).paper();
    const QPointF centre =
        paper.topLeft() + QPointF(pageX(24.0), pageY(80.0) - 3.2) * (paper.width() / 800.0);
    const QImage image = page.grab().toImage();
    return colorAt(image, centre * image.devicePixelRatio()) != QColor(Qt::white);
  };
  qt::DocumentWindow& first = front();
  EXPECT_TRUE(secondTwin());
  EXPECT_TRUE(action("showAllAction").isChecked());
  action("showAllAction").trigger();
  EXPECT_FALSE(secondTwin());
  EXPECT_FALSE(action("showAllAction").isChecked());
  EXPECT_FALSE(foundation::boolForKey(platform.defaults, foundation::defaults_key::showAll));
  openBlank();
  EXPECT_FALSE(action("showAllAction").isChecked());
  action("showAllAction").trigger();
  EXPECT_TRUE(first.findChild<QAction*>(QStringLiteral("showAllAction"))->isChecked());
}

TEST_F(TheDocumentWindow, plansTheDeliveryInItsPanel) {
  open(singleton());
  action("adjustDeliveryAction").trigger();
  auto* panel = front().findChild<QDialog*>(QStringLiteral("adjustDeliveryPanel"));
  ASSERT_TRUE(panel->isVisible());
  QSpinBox& days = widget<QSpinBox>("adjustDeliveryStepper");
  EXPECT_EQ(days.value(), 0);
  EXPECT_EQ(field("adjustEDDField"), "4/10/27");
  days.setFocus();
  QTest::keyClick(&days, Qt::Key_Down);
  QTest::keyClick(&days, Qt::Key_Down);
  EXPECT_EQ(days.value(), -2);
  EXPECT_EQ(field("adjustDeliverOnField"), "4/8/27");
  EXPECT_EQ(field("adjustDeliverAtField"), "39w 5d");
  EXPECT_EQ(label("adjustDeliverOnLongForm"), "8 April 2027");
  EXPECT_TRUE(front().isWindowModified());
  QTest::keyClick(panel, Qt::Key_Escape);
  EXPECT_FALSE(panel->isVisible());
}

TEST_F(TheDocumentWindow, goesBackToTheSavedDocumentAfterAQuestion) {
  open(singleton());
  enter("bpdField", "60");
  answers = {"Cancel"};
  action("revertAction").trigger();
  EXPECT_EQ(field("bpdField"), "60.0");
  answers = {"Revert"};
  action("revertAction").trigger();
  EXPECT_EQ(field("bpdField"), "82.0");
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(TheDocumentWindow, undoesAndCopiesByItsMenu) {
  open(singleton());
  type("bpdField", "7");
  action("undoAction").trigger();
  EXPECT_NE(field("bpdField"), "7");
  action("selectAllAction").trigger();
  EXPECT_EQ(widget<QLineEdit>("bpdField").selectedText().toStdString(), field("bpdField"));
  press(Qt::Key_Escape);
}

TEST_F(TheDocumentWindow, undoesWhatWasDoneToThePatient) {
  open(twins());
  answers = {"Remove"};
  click("deleteFetusButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return document().patientRecord()->numberOfFetuses() == 1; }));
  EXPECT_EQ(action("undoAction").text(), QStringLiteral("&Undo Remove Fetus"));
  EXPECT_EQ(action("redoAction").text(), QStringLiteral("&Redo"));
  action("undoAction").trigger();
  EXPECT_EQ(document().patientRecord()->numberOfFetuses(), 2);
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").count(), 2);
  EXPECT_FALSE(front().isWindowModified());
  EXPECT_EQ(action("undoAction").text(), QStringLiteral("&Undo"));
  EXPECT_EQ(action("redoAction").text(), QStringLiteral("&Redo Remove Fetus"));
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(document().patientRecord()->numberOfFetuses(), 1);
}

// While a text is in edit the keys are its own; once it is left they are the patient's, wherever the focus is.
TEST_F(TheDocumentWindow, undoesTypingFirst) {
  open(singleton());
  enter("bpdField", "50");
  for (const char* name : {"bpdField", "notesField"}) {
    SCOPED_TRACE(name);
    type(name, "7");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(document().bpdField().doubleValue(), 50.0) << "the typing was undone, and no more";
    widget<QTabWidget>("tabView").setFocus();
    settle();
    widget<QWidget>(name).setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field("bpdField"), "82.0");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(field("bpdField"), "50.0");
  }
}

TEST_F(TheDocumentWindow, isReachedWholeByTheTabKey) {
  open(twins());
  click("addExaminationButton");  // between the two, so that nothing is disabled
  widget<QLineEdit>("referenceIDField").setFocus();
  std::vector<std::string> visited;
  for (int i = 0; i < 21; ++i) {
    visited.push_back(focus());
    press(Qt::Key_Tab);
  }
  const std::vector<std::string> order{"referenceIDField",
                                       "gravidaField",
                                       "birthDateField",
                                       "examDateField",
                                       "bpdField",
                                       "hcField",
                                       "acField",
                                       "flField",
                                       "notesField",
                                       "previousButton",
                                       "nextButton",
                                       "addExaminationButton",
                                       "deleteExaminationButton",
                                       "multiplePopUp",
                                       "addFetusButton",
                                       "deleteFetusButton",
                                       "qt_tabwidget_tabbar",
                                       "TrendsPage",
                                       "referenceIDField",
                                       "gravidaField",
                                       "birthDateField"};
  EXPECT_EQ(visited, order);
}

TEST_F(TheDocumentWindow, namesItsFieldsForScreenReaders) {
  open(singleton());
  showBPD();
  EXPECT_EQ(spoken("referenceIDField", QAccessible::Name), "Reference ID");
  EXPECT_EQ(spoken("gravidaField", QAccessible::Name), "Gravidity");
  EXPECT_EQ(spoken("birthDateField", QAccessible::Name), "EDD");
  EXPECT_EQ(spoken("examDateField", QAccessible::Name), "Date");
  EXPECT_EQ(spoken("ageField", QAccessible::Name), "Age");
  EXPECT_EQ(spoken("bpdField", QAccessible::Name), "BPD");
  EXPECT_EQ(spoken("notesField", QAccessible::Name), "Note");
  EXPECT_EQ(spoken("bpdField", QAccessible::Description), "Biparietal diameter, 0 to 200 mm");
  EXPECT_EQ(spoken("hcField", QAccessible::Description), "Head circumference, 0 to 500 mm");
  EXPECT_EQ(spoken("acField", QAccessible::Description), "Abdominal circumference, 0 to 600 mm");
  EXPECT_EQ(spoken("flField", QAccessible::Description), "Femur length, 0 to 200 mm");
  EXPECT_EQ(spoken("birthDateField", QAccessible::Description),
            "Estimated date of delivery, for example 3/24/26");
  // The name of a choice is what is chosen; which choice it is says its label.
  const auto labels =
      QAccessible::queryAccessibleInterface(&widget<QWidget>("multiplePopUp"))->relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->text(QAccessible::Name), QStringLiteral("Fetus"));
  EXPECT_EQ(spoken("previousButton", QAccessible::Name), "Previous Examination");
  EXPECT_EQ(spoken("addExaminationButton", QAccessible::Name), "Add Examination");
  EXPECT_EQ(spoken("deleteFetusButton", QAccessible::Name), "Remove Fetus");
  EXPECT_EQ(spoken("BPDPage", QAccessible::Name), "BPD");
  EXPECT_EQ(
      spoken("BPDPage", QAccessible::Description),
      "Growth chart of AB-123 (G2). Examination 6 of 6, 32w 0d. Biparietal Diameter (mm): 82.0 mm, z-score "
      "+0.47. Nascor Standard: Westerway (ASUM 2001)");
}

TEST_F(TheDocumentWindow, showsBesideALengthWhatItMeans) {
  open(singleton());
  EXPECT_EQ(label("bpdZ"), "+0.47");
  type("bpdField", "99");
  EXPECT_EQ(label("bpdZ"), "+5.95") << "before the field is left";
  EXPECT_EQ(label("bpdCentile"), ">99.9");
  EXPECT_EQ(label("bpdSign"), "");
  press(Qt::Key_Tab);
  EXPECT_EQ(label("bpdSign"), "!");
  EXPECT_EQ(label("remarks"), "! BPD: More than 4 SD above the growth standard.");
  EXPECT_TRUE(widget<QLabel>("remarks").isVisible());
  EXPECT_EQ(spoken("bpdField", QAccessible::Description),
            "More than 4 SD above the growth standard. Biparietal diameter, 0 to 200 mm");
  enter("acField", "280");
  EXPECT_EQ(label("weightText"), "-");
  action("previousAction").trigger();
  settle();
  EXPECT_FALSE(widget<QLabel>("remarks").isVisible());
  EXPECT_EQ(label("bpdSign"), "");
}

TEST_F(TheDocumentWindow, hasNoKeyThatATextKeepsForItself) {
  open(twins());
  const QStringList editing{"undoAction", "redoAction",  "cutAction",
                            "copyAction", "pasteAction", "selectAllAction"};
  for (const QAction* item : front().findChildren<QAction*>()) {
    if (item->shortcut().isEmpty() || editing.contains(item->objectName())) continue;
    const QKeyCombination keys = item->shortcut()[0];
    for (const char* name : {"bpdField", "notesField"}) {
      QKeyEvent event(QEvent::ShortcutOverride, keys.key(), keys.keyboardModifiers());
      event.ignore();
      QCoreApplication::sendEvent(&widget<QWidget>(name), &event);
      EXPECT_FALSE(event.isAccepted()) << name << " keeps " << item->shortcut().toString().toStdString();
    }
  }
}

TEST_F(TheDocumentWindow, saysInItsAboutBoxThatItIsNoMedicalDevice) {
  open(singleton());
  answers = {"OK"};
  action("aboutAction").trigger();
  ASSERT_EQ(asked.size(), 1U);
  const std::string text = asked[0].message + asked[0].information;
  EXPECT_THAT(text, testing::HasSubstr("Not a medical device. Not validated for clinical use."));
  EXPECT_THAT(text, testing::HasSubstr(NASCOR_VERSION));
  EXPECT_THAT(text, testing::HasSubstr("LGPL"));
  EXPECT_THAT(text, testing::HasSubstr("D-Bus"));
}

TEST_F(TheDocumentWindow, checksItsNumbersWhenAsked) {
  open(singleton());
  answers = {"Check the Numbers", "OK"};
  action("aboutAction").trigger();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_THAT(asked[1].message,
              testing::ContainsRegex("All [0-9]+ worked examples give the expected results."));
  EXPECT_THAT(asked[1].details, testing::HasSubstr("who-2017\t"));
  EXPECT_THAT(asked[1].details, testing::ContainsRegex("total\t[0-9]+\t0\n$"));
}

TEST_F(TheDocumentWindow, namesThePublicationsOfItsStandardsAndFormulas) {
  open(singleton());
  QDialog* dialog = nullptr;
  for (int i = 0; i < 2; ++i) {  // the second time it is there already
    action("referencesAction").trigger();
    const auto dialogs = front().findChildren<QDialog*>(QStringLiteral("referencesDialog"));
    ASSERT_EQ(dialogs.size(), 1);
    dialog = dialogs.first();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->isModal()) << "it may stay beside the charts";
  }
  QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("copyReferencesButton")), Qt::LeftButton);
  const std::string copied = QApplication::clipboard()->text().toStdString();
  std::size_t at = 0;
  // In the order of the menus.
  for (const char* menu : {"standardsMenu", "fetalWeightMenu", "crownRumpLengthMenu"}) {
    for (const QAction* item : widget<QMenu>(menu).actions()) {
      const std::string label = item->text().remove(u'&').toStdString();
      at = copied.find("\n" + label + "\n", at);
      ASSERT_NE(at, std::string::npos) << label;
    }
  }
  EXPECT_THAT(copied, testing::HasSubstr("doi:10.1016/0002-9378(85)90298-4"));
  EXPECT_THAT(copied, testing::HasSubstr("Citation to be confirmed."));
  EXPECT_THAT(copied, testing::HasSubstr("no centiles"));
  EXPECT_THAT(copied, testing::HasSubstr("WHO (2017)\nKiserud T"));
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(TheDocumentWindow, usesTheRoomOfALargeScreenAndFitsASmallOne) {
  const QSize designed(1280, 800);
  EXPECT_EQ(qt::usualWindowSize(designed, {1280, 800}), QSize(1264, 752));
  EXPECT_EQ(qt::usualWindowSize(designed, {1366, 768}), QSize(1280, 720));
  EXPECT_EQ(qt::usualWindowSize(designed, {1920, 1080}), QSize(1728, 972));
  EXPECT_EQ(qt::usualWindowSize(designed, {3840, 2160}), QSize(1760, 1100));
}

TEST_F(TheDocumentWindow, keepsItsPlaceOnTheScreenApartFromTheClinicalPreferences) {
  // The screen is 800 wide and high, less than the window's least width.
  qt::DocumentWindow& window = open(singleton());
  const int width = window.minimumSizeHint().width();
  window.resize(width, 700);
  settle();
  window.close();
  settle();
  EXPECT_EQ(openBlank().size(), QSize(width, 700));
  EXPECT_TRUE(platform.defaults.written().contains("Window Geometry"));
}

TEST_F(TheDocumentWindow, isNotHigherThanTheScreenThatItComesBackTo) {
  open(singleton()).resize(1440, 1080);
  settle();
  front().close();
  settle();
  EXPECT_LE(openBlank().height(), 800);
}

}  // namespace
}  // namespace nascor::tests
