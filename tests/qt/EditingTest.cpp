// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Typing, leaving and refusing: real keys and clicks on real widgets.
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolTip>
#include <QWheelEvent>

#include "WindowTest.h"
#include "window/TypedAhead.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Editing : public WindowTest {
 protected:
  double bpd() { return document().measurementsForCurrentFetus(document().currentExam())->bpd(); }
  bool isOutlined(const char* name) { return widget<qt::FieldEdit>(name).isRefusing(); }
};

TEST_F(Editing, bringsWhatIsTypedIntoTheRecordWhenTheFieldIsLeft) {
  open(singleton());
  type("bpdField", "83.25");
  EXPECT_EQ(bpd(), 82.0);
  EXPECT_TRUE(front().isWindowModified());
  press(Qt::Key_Tab);
  EXPECT_EQ(bpd(), 83.25);
  EXPECT_EQ(field("bpdField"), "83.3");
}

void paste(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
}

TEST_F(Editing, ofAFieldThatIsFullSaysSo) {
  open(singleton());
  type("referenceIDField", "A");
  QToolTip::hideText();
  // One sign of two units does not find room for both.
  paste(QString(998, u'B') + QStringLiteral("\U0001F476\U0001F476"));
  EXPECT_EQ(field("referenceIDField"), "A" + std::string(998, 'B'));
  EXPECT_EQ(QToolTip::text().toStdString(), "No more text fits here.");
  press(Qt::Key_Tab);
  EXPECT_EQ(document().patientRecord()->maternalIDString(), "A" + std::string(998, 'B'));
}

TEST_F(Editing, ofANoteThatIsFullSaysSo) {
  open(singleton());
  auto& note = widget<QPlainTextEdit>("notesField");
  note.setFocus();
  paste(QString(9'998, u'x') + QStringLiteral("yz"));
  QToolTip::hideText();
  EXPECT_EQ(note.toPlainText().size(), 10'000);
  QTest::keyClicks(&note, QStringLiteral("a"));
  EXPECT_EQ(note.toPlainText().size(), 10'000);
  EXPECT_EQ(QToolTip::text().toStdString(), "No more text fits here.");
  QTest::keyClick(&note, Qt::Key_Return);
  EXPECT_EQ(note.toPlainText().size(), 10'000);
  QTest::keyClick(&note, Qt::Key_Backspace);
  QTest::keyClicks(&note, QStringLiteral("b"));
  EXPECT_TRUE(note.toPlainText().endsWith(u'b')) << "there is room again";
  note.selectAll();
  paste(QString(30'000, u'w'));
  EXPECT_EQ(document().notesField().text(), std::string(10'000, 'w'));
}

TEST_F(Editing, isNotPossibleWhereATextIsShownInPart) {
  const std::string identifier(5000, 'A');
  const std::string longNote(50'000, 'n');
  const auto shown = [](char sign, std::size_t count) { return std::string(count, sign) + "\u2026"; };
  model::PatientRecord record = singleton();
  record.setMaternalIDString(identifier);
  record.ncRecordsArray().back()->setNote(longNote);
  open(record);
  EXPECT_EQ(field("referenceIDField"), shown('A', 999));
  auto& edit = widget<QLineEdit>("referenceIDField");
  auto& note = widget<QPlainTextEdit>("notesField");
  EXPECT_EQ(note.toPlainText().toStdString(), shown('n', 9'999));

  for (QWidget* each : {static_cast<QWidget*>(&edit), static_cast<QWidget*>(&note)}) {
    QToolTip::hideText();
    each->setFocus();
    QTest::keyClick(each, Qt::Key_Home);
    QTest::keyClicks(each, QStringLiteral("BC"));
    EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("This text is too long")));
    EXPECT_TRUE(each->accessibleDescription().contains(QStringLiteral("This text is too long")));
    paste(QStringLiteral("BC"));
    QTest::keyClick(each, Qt::Key_Delete);
    press(Qt::Key_Tab);
  }
  EXPECT_EQ(document().patientRecord()->maternalIDString(), identifier);
  EXPECT_EQ(document().notesField().text(), longNote);
  action("previousAction").trigger();
  action("nextAction").trigger();
  settle();
  EXPECT_EQ(document().patientRecord()->ncRecordsArray().back()->note(), longNote);
  EXPECT_FALSE(document().isDocumentEdited());

  // A script makes the text shorter, and it can be edited again.
  document().patientRecord()->setMaternalIDString("CD-4");
  document().synchronizeFromData();
  type("referenceIDField", "CD-5");
  press(Qt::Key_Tab);
  EXPECT_EQ(document().patientRecord()->maternalIDString(), "CD-5");
  EXPECT_FALSE(edit.accessibleDescription().contains(QStringLiteral("This text is too long")));
}

TEST_F(Editing, goesOnToTheNextFieldWithTheReturnKey) {
  open(singleton());
  type("bpdField", "84");
  press(Qt::Key_Return);
  EXPECT_EQ(bpd(), 84.0);
  EXPECT_EQ(focus(), "hcField");
  EXPECT_EQ(widget<QLineEdit>("hcField").selectedText(), QStringLiteral("0.0"));
  QTest::keyClicks(front().focusWidget(), QStringLiteral("501"));
  press(Qt::Key_Return);
  EXPECT_EQ(focus(), "hcField") << "it refuses";
  press(Qt::Key_Escape);
  for (const char* next : {"acField", "flField", "notesField"}) {
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), next);
  }
  press(Qt::Key_Return);
  EXPECT_EQ(focus(), "notesField") << "a new line of the note";

  widget<QLineEdit>("birthDateField").setFocus();
  press(Qt::Key_Return);
  EXPECT_EQ(focus(), "examDateField") << "what lies between takes no text";
}

TEST_F(Editing, replacesANumberOrDateThatIsClickedInto) {
  open(singleton());
  widget<QWidget>("referenceIDField").setFocus();
  for (const auto& [name, digits] : {std::pair("bpdField", "35"), std::pair("gravidaField", "4"),
                                     std::pair("birthDateField", "5"), std::pair("examDateField", "2")}) {
    auto& edit = widget<QLineEdit>(name);
    const QPoint behindTheText(edit.width() - 5, edit.height() / 2);
    QTest::mouseClick(&edit, Qt::LeftButton, {}, behindTheText);
    settle();
    EXPECT_EQ(edit.selectedText(), edit.text()) << name;
    QTest::mouseClick(&edit, Qt::LeftButton, {}, behindTheText);
    settle();
    EXPECT_FALSE(edit.hasSelectedText()) << name;
    EXPECT_EQ(edit.cursorPosition(), edit.text().size()) << name;
  }
  auto& bpdEdit = widget<QLineEdit>("bpdField");
  QTest::mouseClick(&bpdEdit, Qt::LeftButton, {}, QPoint(5, 5));
  settle();
  QTest::keyClicks(&bpdEdit, QStringLiteral("35"));
  press(Qt::Key_Tab);
  EXPECT_EQ(bpd(), 35.0);
}

TEST_F(Editing, replacesANumberThatIsClickedIntoWhereTheProgramHasPutTheFocus) {
  open(twins());
  auto& edit = widget<QLineEdit>("bpdField");
  const QPoint behindTheText(edit.width() - 5, edit.height() / 2);
  const auto clickInto = [&] {
    QTest::mouseClick(&edit, Qt::LeftButton, {}, behindTheText);
    settle();
  };
  for (const auto& bringsTheFocus : std::vector<std::function<void()>>{
           [this] { click("addExaminationButton"); }, [this] { action("addExaminationAction").trigger(); }}) {
    bringsTheFocus();
    settle();
    ASSERT_EQ(focus(), "bpdField");
    clickInto();
    EXPECT_EQ(edit.selectedText(), edit.text());
    clickInto();
    EXPECT_FALSE(edit.hasSelectedText()) << "the second click places the caret";
  }
  QTest::keyClicks(&edit, QStringLiteral("1"));
  clickInto();
  EXPECT_FALSE(edit.hasSelectedText()) << "as does one into what is being typed";
}

TEST_F(Editing, replacesANumberThatIsClickedIntoAfterALookAtAnotherWindow) {
  open(twins());
  auto& edit = widget<QLineEdit>("hcField");
  const auto clickInto = [&] {
    QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() - 5, edit.height() / 2));
    settle();
  };
  const auto lookElsewhere = [this] {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.close();
    front();
  };
  clickInto();
  lookElsewhere();
  clickInto();
  EXPECT_EQ(edit.selectedText(), edit.text());
  QTest::keyClicks(&edit, QStringLiteral("17"));
  lookElsewhere();
  clickInto();
  EXPECT_FALSE(edit.hasSelectedText()) << "what was begun to type goes on";
}

TEST_F(Editing, selectsTheWholeNumberByADoubleClick) {
  open(singleton());
  auto& edit = widget<QLineEdit>("bpdField");
  QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(8, edit.height() / 2));
  QTest::mouseDClick(&edit, Qt::LeftButton, {}, QPoint(8, edit.height() / 2));
  settle();
  EXPECT_THAT(edit.text().toStdString(), testing::HasSubstr("."));
  EXPECT_EQ(edit.selectedText(), edit.text());
}

TEST_F(Editing, selectsNothingInAFieldThatDoesNotGetTheFocus) {
  open(singleton());
  type("hcField", "999");
  auto& edit = widget<QLineEdit>("bpdField");
  QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() - 5, edit.height() / 2));
  settle();
  EXPECT_EQ(focus(), "hcField");
  EXPECT_FALSE(edit.hasSelectedText());
  press(Qt::Key_Escape);
}

TEST_F(Editing, placesTheCaretInAReferenceIDThatIsClickedInto) {
  open(singleton());
  auto& edit = widget<QLineEdit>("referenceIDField");
  QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() - 5, edit.height() / 2));
  settle();
  EXPECT_FALSE(edit.hasSelectedText());
}

TEST_F(Editing, storesTheNoteThatIsLeft) {
  open(singleton());
  auto& note = widget<QPlainTextEdit>("notesField");
  note.setFocus();
  QTest::keyClicks(&note, QStringLiteral("breech "));
  EXPECT_EQ(document().patientRecord()->ncRecordsArray().back()->note().value_or(""), "");
  widget<QWidget>("bpdField").setFocus();
  settle();
  document().synchronizeFromData();  // as a script does that reads the identifier
  EXPECT_EQ(note.toPlainText().toStdString(), "breech ");
  EXPECT_EQ(document().patientRecord()->ncRecordsArray().back()->note(), "breech ");
}

TEST_F(Editing, greysWhatIsLeftOfARemovedFetus) {
  open(twins());
  const auto& edit = widget<QLineEdit>("bpdField");
  const QColor usual = edit.palette().color(QPalette::Text);
  answers = {"Remove"};
  click("deleteFetusButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return document().patientRecord()->numberOfFetuses() == 1; }));
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].information, testing::StartsWith("Twin 1. Lengths that will be removed with it: "));
  EXPECT_EQ(edit.palette().color(QPalette::Text), edit.palette().color(QPalette::Disabled, QPalette::Text));
  EXPECT_NE(edit.palette().color(QPalette::Text), usual);
  EXPECT_THAT(edit.accessibleDescription().toStdString(), HasSubstr("Belongs to no fetus"));
  type("bpdField", "7");
  EXPECT_EQ(edit.palette().color(QPalette::Text), usual) << "typed for the fetus that is left";
  press(Qt::Key_Escape);
  EXPECT_NE(edit.palette().color(QPalette::Text), usual);
  enter("hcField", "200");
  EXPECT_EQ(edit.palette().color(QPalette::Text), usual);
  EXPECT_THAT(edit.accessibleDescription().toStdString(), testing::Not(HasSubstr("Belongs to no fetus")));
}

TEST_F(Editing, isInSightHoweverTheFieldIsReached) {
  qt::DocumentWindow& window = open(singleton());
  window.resize(window.minimumSizeHint());
  settle();
  const auto& panel = widget<QScrollArea>("panelScroll");
  const auto isInSight = [&panel](const QWidget& edit) {
    const QRect place(edit.mapTo(panel.viewport(), QPoint()), edit.size());
    return panel.viewport()->rect().contains(place);
  };
  widget<QLineEdit>("referenceIDField").setFocus(Qt::ShortcutFocusReason);
  ASSERT_TRUE(isInSight(widget<QLineEdit>("referenceIDField")));
  ASSERT_FALSE(isInSight(widget<QLineEdit>("flField"))) << "the window is not small";
  widget<QLineEdit>("flField").setFocus(Qt::ShortcutFocusReason);
  EXPECT_TRUE(isInSight(widget<QLineEdit>("flField")));
}

TEST_F(Editing, staysWhereItIsWhenTheWheelTurnsOverTheChoiceOfFetus) {
  open(twins());
  widget<QLineEdit>("flField").setFocus();
  auto& box = widget<QComboBox>("multiplePopUp");
  const QPointF at = box.rect().center();
  QWheelEvent wheel(at, box.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QCoreApplication::sendEvent(&box, &wheel);
  EXPECT_FALSE(box.focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus);
  EXPECT_EQ(focus(), "flField");
  EXPECT_EQ(document().currentFetus(), 0);
}

// A digit typed before or behind what was just put into the field would make a number that nobody meant.
TEST_F(Editing, beginsANewTextWhereTheFieldWasFilledMeanwhile) {
  open(singleton());
  type("bpdField", "50");
  widget<QTabWidget>("tabView").setCurrentIndex(2);  // which takes what was typed, and not the focus
  settle();
  QTest::keyClicks(front().focusWidget(), QStringLiteral("61"));
  EXPECT_EQ(field("bpdField"), "61");
  action("previousAction").trigger();
  settle();
  EXPECT_EQ(focus(), "bpdField");
  EXPECT_TRUE(widget<QLineEdit>("bpdField").hasSelectedText());
  QTest::keyClicks(front().focusWidget(), QStringLiteral("7"));
  EXPECT_EQ(field("bpdField"), "7");
}

TEST_F(Editing, goesOnInATextThatWasOnlyWrittenInCapitals) {
  openBlank();
  type("referenceIDField", "ab-1");
  widget<QTabWidget>("tabView").setCurrentIndex(2);
  settle();
  QTest::keyClicks(front().focusWidget(), QStringLiteral("2"));
  EXPECT_EQ(field("referenceIDField"), "AB-12");
}

TEST_F(Editing, saysThatWhatAFieldRefusesIsNotSavedWhenItsWindowIsClosed) {
  open(singleton());
  type("bpdField", "900");
  answers = {"Cancel"};
  press(Qt::Key_W, Qt::ControlModifier);
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].information, HasSubstr("A field holds a text that is not permitted."));
  EXPECT_EQ(field("bpdField"), "900");
  EXPECT_TRUE(isOutlined("bpdField"));
  press(Qt::Key_Escape);
  enter("bpdField", "90");
  answers = {"Discard"};
  press(Qt::Key_W, Qt::ControlModifier);
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[1].information, "AB-123.nascor");
}

TEST_F(Editing, makesOneLineOfLinesThatArePasted) {
  openBlank();
  QApplication::clipboard()->setText(QStringLiteral("\n40\r\n50\tab\u2028c\n"));
  widget<QLineEdit>("referenceIDField").setFocus();
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field("referenceIDField"), "40 50 ab c");
  press(Qt::Key_Return);
  EXPECT_EQ(document().patientRecord()->maternalIDString(), "40 50 AB C");
}

TEST_F(Editing, leavesTheFetusAloneWhenTheWheelTurnsOverIt) {
  open(twins());
  auto& fetuses = widget<QComboBox>("multiplePopUp");
  const QPointF place(5.0, 5.0);
  QWheelEvent down(place, fetuses.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&fetuses, &down);
  EXPECT_EQ(fetuses.currentIndex(), 0);
  EXPECT_EQ(document().currentFetus(), 0);
}

TEST_F(Editing, deletesOneExaminationByADoubleClick) {
  open(singleton());
  const std::int64_t before = document().numberOfExaminations();
  click("addExaminationButton");
  ASSERT_EQ(document().numberOfExaminations(), before + 1);
  auto& button = widget<QToolButton>("deleteExaminationButton");
  QTest::mouseClick(&button, Qt::LeftButton);
  const QPointF place(5.0, 5.0);
  for (const QEvent::Type type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    const bool isDown = type == QEvent::MouseButtonDblClick;
    QMouseEvent second(type, place, button.mapToGlobal(place), Qt::LeftButton,
                       isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &second);
  }
  settle();
  EXPECT_EQ(document().numberOfExaminations(), before);
}

TEST_F(Editing, givesTheOldTextBackWithTheEscapeKey) {
  open(singleton());
  type("bpdField", "900");
  press(Qt::Key_Escape);
  EXPECT_EQ(field("bpdField"), "82.0");
  press(Qt::Key_Tab);
  EXPECT_EQ(bpd(), 82.0);
  EXPECT_EQ(focus(), "hcField");
}

TEST_F(Editing, changesNothingByVisitingEveryField) {
  open(singleton());
  widget<QLineEdit>("referenceIDField").setFocus();
  for (int i = 0; i < 30; ++i) press(Qt::Key_Tab);
  EXPECT_FALSE(front().isWindowModified());
  EXPECT_TRUE(asked.empty());
}

TEST_F(Editing, keepsTheFocusInAFieldThatRefusesAndSaysWhatIsPermitted) {
  open(singleton());
  type("bpdField", "200.1");
  EXPECT_FALSE(isOutlined("bpdField"));
  press(Qt::Key_Tab);
  EXPECT_EQ(focus(), "bpdField");
  EXPECT_EQ(field("bpdField"), "200.1");
  EXPECT_TRUE(isOutlined("bpdField"));
  EXPECT_EQ(label("statusLabel"), "Permitted: Biparietal diameter, 0 to 200 mm");
  EXPECT_THAT(widget<QWidget>("bpdField").accessibleDescription().toStdString(), HasSubstr("Not permitted"));
  EXPECT_EQ(bpd(), 82.0);
  EXPECT_TRUE(asked.empty());
  QTest::keyClick(&widget<QWidget>("bpdField"), Qt::Key_Backspace);  // "200."
  EXPECT_FALSE(isOutlined("bpdField"));
  EXPECT_EQ(label("statusLabel"), "");
  press(Qt::Key_Tab);
  EXPECT_EQ(bpd(), 200.0);
  EXPECT_EQ(focus(), "hcField");
}

TEST_F(Editing, holdsBackEveryActionWhileAFieldRefuses) {
  open(twins());
  type("hcField", "five");
  click("previousButton");
  EXPECT_EQ(label("examinationLabel"), "2 of 2");
  EXPECT_EQ(focus(), "hcField");
  press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(document().currentFetus(), 0);
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentIndex(), 0);
  click("addFetusButton");
  EXPECT_EQ(document().patientRecord()->numberOfFetuses(), 2);
  press(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(widget<QTabWidget>("tabView").currentIndex(), 0);
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(front().isWindowModified());
  EXPECT_EQ(field("hcField"), "five");
  EXPECT_TRUE(isOutlined("hcField"));
}

TEST_F(Editing, letsTheWindowOfARefusingFieldClose) {
  open(singleton());
  const QPointer<qt::DocumentWindow> window = &front();
  type("bpdField", "201");
  press(Qt::Key_Tab);
  answers = {"Discard"};
  QTimer::singleShot(0, [window] { window->close(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
  EXPECT_TRUE(application.documents().documents().empty());
}

TEST_F(Editing, keepsARefusedTextWhenTheUserDoesNotCloseAfterAll) {
  open(singleton());
  type("bpdField", "201");
  answers = {"Cancel"};
  front().close();
  settle();
  EXPECT_EQ(field("bpdField"), "201");
  EXPECT_EQ(application.documents().documents().size(), 1U);
}

TEST_F(Editing, doesNotEndWhenAnotherWindowComesToTheFront) {
  open(singleton());
  type("bpdField", "201");
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  settle();
  EXPECT_EQ(document().fieldEditor().text(), "201");
  EXPECT_FALSE(document().fieldEditor().isRefusing());
}

TEST_F(Editing, asksOnceBeforeAGravidityIsChanged) {
  open(singleton());
  answers = {"Modify"};
  enter("gravidaField", "3");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "Gravidity is already specified");
  EXPECT_EQ(asked[0].information, "Are you sure you want to modify it?");
  EXPECT_THAT(asked[0].buttons, ElementsAre("Modify", "Cancel"));
  EXPECT_EQ(document().patientRecord()->gravida(), 3);
}

TEST_F(Editing, leavesTheEDDWhenTheUserCancels) {
  open(singleton());
  answers = {"Cancel"};
  type("birthDateField", "x");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "EDD is already specified");
  EXPECT_EQ(asked[0].information, "Are you sure you want to modify the established EDD?");
  EXPECT_EQ(field("birthDateField"), "4/10/27");
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(Editing, ofAnEDDThatStandsGoesOnBehindTheQuestion) {
  open(singleton());
  QLineEdit& edit = widget<QLineEdit>("birthDateField");
  edit.setFocus();
  edit.selectAll();
  answersQuestions(false);
  bool wasAnswered = false;
  QTimer::singleShot(0, [&] {
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    // The user has not looked up yet: the whole date and its Return come in one go.
    QTest::keyClicks(box->defaultButton(), QStringLiteral("/1/27"));
    QTest::keyClick(box->defaultButton(), Qt::Key_Return);
    ASSERT_TRUE(box && box->isVisible()) << "the Return of the date answers the question";
    wasAnswered = true;
    QTest::mouseClick(box->defaultButton(), Qt::LeftButton);
  });
  QTest::keyClick(&edit, Qt::Key_5);
  settle();
  EXPECT_TRUE(wasAnswered);
  EXPECT_EQ(edit.text(), QStringLiteral("5/1/27"));
  press(Qt::Key_Tab);
  EXPECT_EQ(foundation::localDay(document().patientRecord()->edd().value(), platform.calendar),
            (foundation::CivilDay{2027, 5, 1}));
  answersQuestions(true);
}

TEST_F(Editing, goesOnAfterAPauseByAnAnswer) {
  QMessageBox box;
  QPushButton* agree = box.addButton(QStringLiteral("&Modify"), QMessageBox::AcceptRole);
  qt::TypedAhead ahead(box, std::chrono::milliseconds(0));
  box.show();
  QTest::keyClick(agree, Qt::Key_Return);
  EXPECT_FALSE(box.isVisible());
}

struct Way {
  const char* name;
  void (*change)(QLineEdit& edit);
};
class EveryWayToType : public Editing, public testing::WithParamInterface<Way> {};

TEST_P(EveryWayToType, asksOnceAndRestoresTheTextOnCancel) {
  open(singleton());
  QLineEdit& edit = widget<QLineEdit>("birthDateField");
  edit.setFocus();
  edit.selectAll();
  answers = {"Cancel"};
  GetParam().change(edit);
  settle();
  EXPECT_EQ(asked.size(), 1U);
  EXPECT_EQ(edit.text(), QStringLiteral("4/10/27"));

  front().activateWindow();
  edit.setFocus();
  edit.selectAll();
  answers = {"Modify"};
  GetParam().change(edit);
  settle();
  EXPECT_EQ(asked.size(), 2U);
  EXPECT_EQ(edit.text(), QStringLiteral("5"));
  QTest::keyClicks(&edit, QStringLiteral("/1/27"));
  EXPECT_EQ(asked.size(), 2U);
  EXPECT_EQ(edit.text(), QStringLiteral("5/1/27"));
}

INSTANTIATE_TEST_SUITE_P(
    ways, EveryWayToType,
    testing::Values(
        Way{"aKey", [](QLineEdit& edit) { QTest::keyClick(&edit, Qt::Key_5); }},
        Way{"pasting",
            [](QLineEdit& edit) {
              QGuiApplication::clipboard()->setText(QStringLiteral("5"));
              QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
            }},
        Way{"anInputMethod",
            [](QLineEdit& edit) {
              QInputMethodEvent event;
              event.setCommitString(QStringLiteral("5"));
              QCoreApplication::sendEvent(&edit, &event);
            }},
        Way{"dropping",
            [](QLineEdit& edit) {
              edit.clear();
              QMimeData data;
              data.setText(QStringLiteral("5"));
              QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
              QCoreApplication::sendEvent(&edit, &enter);
              QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
              QCoreApplication::sendEvent(&edit, &event);
            }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(Editing, putsTheExaminationIntoItsPlaceWhenItsDateIsTyped) {
  open(singleton());
  enter("examDateField", "9/1/26");
  EXPECT_EQ(label("examinationLabel"), "1 of 6");
  EXPECT_EQ(field("bpdField"), "82.0");
}

TEST_F(Editing, saysHowADateIsRead) {
  open(singleton());
  EXPECT_EQ(label("birthDateLongForm"), "10 April 2027");
  type("examDateField", "3/4/27");
  EXPECT_EQ(label("examDateLongForm"), "4 March 2027");
  type("examDateField", "soon");
  EXPECT_EQ(label("examDateLongForm"), "no date");
  QTest::keyClick(&widget<QWidget>("examDateField"), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&widget<QWidget>("examDateField"), Qt::Key_Delete);
  EXPECT_EQ(label("examDateLongForm"), "such as 3/24/26");
}

TEST_F(Editing, saysWhatWasNoDateUntilTheNextEdit) {
  open(singleton());
  enter("examDateField", "soon");
  EXPECT_EQ(field("examDateField"), "");
  EXPECT_EQ(label("examDateLongForm"), "no date");
  EXPECT_EQ(label("statusLabel"), "The examination has no date now. This is no date: soon");
  EXPECT_THAT(widget<QWidget>("examDateField").accessibleDescription().toStdString(),
              HasSubstr("This is no date: soon"));
  type("bpdField", "5");
  EXPECT_EQ(label("statusLabel"), "");
  EXPECT_EQ(label("examDateLongForm"), "such as 3/24/26");
}

TEST_F(Editing, doesNotGrowTheWindowForALongMessage) {
  qt::DocumentWindow& window = open(singleton());
  const int least = window.minimumSizeHint().width();
  document().statusLine().say(std::string(1000, 'x'));
  EXPECT_EQ(label("statusLabel").size(), 1000u);
  EXPECT_EQ(window.minimumSizeHint().width(), least);
}

TEST_F(Editing, writesTheReferenceIDOfANewPatientInCapitals) {
  openBlank();
  enter("referenceIDField", "ab-7");
  EXPECT_EQ(field("referenceIDField"), "AB-7");
}

TEST_F(Editing, keepsTheNoteWithItsExamination) {
  open(singleton());
  type("notesField", "breech");
  EXPECT_TRUE(front().isWindowModified());
  click("previousButton");
  EXPECT_EQ(widget<QPlainTextEdit>("notesField").toPlainText(), QString());
  click("nextButton");
  EXPECT_EQ(widget<QPlainTextEdit>("notesField").toPlainText(), QStringLiteral("breech"));
}

TEST_F(Editing, goesFromFieldToFieldInTheOrderOfTheWork) {
  open(singleton());
  widget<QLineEdit>("examDateField").setFocus();
  std::vector<std::string> visited;
  for (int i = 0; i < 6; ++i) {
    visited.push_back(focus());
    press(Qt::Key_Tab);
  }
  EXPECT_THAT(visited,
              ElementsAre("examDateField", "bpdField", "hcField", "acField", "flField", "notesField"));
}

TEST_F(Editing, opensAPatientsOwnDocumentInPlaceOfTheBlankOne) {
  model::PatientRecord known = singleton();
  writeFile(QString::fromStdString(platform.files.documentsFolder() + "/AB-123 (G2).nascor"),
            documentBytes(known));
  openBlank();
  enter("referenceIDField", "ab-123");
  answers = {"Open"};
  enter("gravidaField", "2");
  settle();
  ASSERT_EQ(application.documents().documents().size(), 1U);
  EXPECT_EQ(front().windowTitle(), QStringLiteral("AB-123 (G2).nascor[*]"));
  EXPECT_EQ(field("bpdField"), "82.0");
}

TEST_F(Editing, refusesANegativeGravidity) {
  openBlank();
  enter("gravidaField", "-1");
  EXPECT_EQ(focus(), "gravidaField");
  EXPECT_THAT(label("statusLabel"), HasSubstr("a whole number, 0 or more"));
}

TEST_F(Editing, takesNoTypingWhereThereIsNothingToHoldIt) {
  // A copy: other tests open that document at the same time.
  const QString path = folder.filePath(QStringLiteral("without-examinations.nascor"));
  ASSERT_TRUE(QFile::copy(QStringLiteral(NASCOR_TEST_DATA "/without-examinations.nascor"), path));
  application.openFiles({path});
  for (const char* name : {"bpdField", "hcField", "acField", "flField", "examDateField"}) {
    type(name, "12");
    EXPECT_EQ(field(name), "") << name;
    EXPECT_TRUE(widget<QLineEdit>(name).isReadOnly()) << name;
    EXPECT_EQ(widget<QLineEdit>(name).placeholderText(), "no record") << name;
    EXPECT_EQ(widget<QLineEdit>(name).accessibleDescription(),
              "Nothing can be entered here: the document holds no record for it.")
        << name;
  }
  EXPECT_EQ(label("examDateLongForm"), "");
  type("notesField", "lost");
  EXPECT_EQ(widget<QPlainTextEdit>("notesField").toPlainText(), "");
  EXPECT_FALSE(document().isDocumentEdited());
  action("addExaminationAction").trigger();
  settle();
  enter("bpdField", "12");
  EXPECT_EQ(field("bpdField"), "12.0");
  EXPECT_NE(widget<QLineEdit>("bpdField").accessibleDescription(),
            "Nothing can be entered here: the document holds no record for it.");
  type("notesField", "kept");
  EXPECT_EQ(document().notesField().text(), "kept");
}

}  // namespace
}  // namespace nascor::tests
