// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The dating dialogs by real keys, and nothing else.
#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>

#include "WindowTest.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class TheDialogs : public WindowTest {
 protected:
  TheDialogs() { answersQuestions(false); }

  /// A key for whatever has the focus in whatever window is active.
  static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = QApplication::activeWindow();
    if (!window) throw std::runtime_error("no window is active");
    QWidget* focused = window->focusWidget();
    QTest::keyClick(focused ? focused : window, key, modifiers);
    settle();
  }
  static void keys(const char* text) {
    QWidget* focused = QApplication::activeWindow()->focusWidget();
    QTest::keyClicks(focused, QLatin1String(text));
    settle();
  }
  static bool isActive(const QDialog& dialog) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; });
  }
  QDialog& dialog(const char* name) {
    auto* found = window->findChild<QDialog*>(QLatin1String(name));
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  template <class Widget>
  Widget& in(const char* name) {
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  std::string text(const char* name) { return in<QLineEdit>(name).text().toStdString(); }
  std::string labelled(const char* name) { return in<QLabel>(name).text().toStdString(); }
  static std::string focusName() {
    const QWidget* focused = QApplication::focusWidget();
    return focused ? focused->objectName().toStdString() : "";
  }
  bool isOutlined(const char* name) {
    const auto& edit = in<qt::FieldEdit>(name);
    return edit.isObstacle() || edit.isRefusing();
  }
  /// The window comes to the front again; off-screen nobody else brings it there.
  void toWindow() {
    window->activateWindow();
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }))
      throw std::runtime_error("the window is not active");
    settle();
  }
  QMessageBox* sheetOn(const QDialog& dialog) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->parentWidget() == &dialog ? box : nullptr;
  }

  void openWindow(const model::PatientRecord& record) {
    open(record);
    window = &front();
  }
  static model::PatientRecord undated() {
    model::PatientRecord record = singleton();
    record.setEDD(std::nullopt);
    return record;
  }

  QPointer<qt::DocumentWindow> window;
};

TEST_F(TheDialogs, beginAnewWhenTheyAreOpenedAgain) {
  open(patient({{{2026, 10, 24}, {30.0}}}));
  window = &front();
  const auto openLMP = [this] {
    action("eddFromLMPAction").trigger();
    settle();
    if (QApplication::activeModalWidget()) key(Qt::Key_Return);  // Modify
    ASSERT_TRUE(isActive(dialog("lmpWindow")));
  };
  openLMP();
  auto& cycle = in<QLineEdit>("lmpWindowCycleField");
  const auto clickInto = [&cycle] {
    QTest::mouseClick(&cycle, Qt::LeftButton, {}, QPoint(cycle.width() - 5, cycle.height() / 2));
    settle();
  };
  clickInto();
  keys("30");
  auto* buttons = dialog("lmpWindow").findChild<QDialogButtonBox*>();
  QPushButton& cancel = *buttons->button(QDialogButtonBox::Cancel);
  cancel.setFocus();
  EXPECT_TRUE(buttons->button(QDialogButtonBox::Ok)->isDefault());
  QTest::mouseClick(&cancel, Qt::LeftButton);
  settle();
  openLMP();
  EXPECT_TRUE(buttons->button(QDialogButtonBox::Ok)->isDefault()) << "Return presses OK";
  clickInto();
  EXPECT_EQ(cycle.selectedText(), cycle.text());
}

TEST_F(TheDialogs, areInTheMenuOfThePatient) {
  openWindow(undated());
  for (const auto& [item, panel] :
       {std::pair{Qt::Key_L, "lmpWindow"}, std::pair{Qt::Key_C, "crlWindow"},
        std::pair{Qt::Key_M, "measurementsWindow"}, std::pair{Qt::Key_A, "adjustDeliveryPanel"}}) {
    // A delivery is planned by its distance from the EDD.
    if (item == Qt::Key_A) enter("birthDateField", "4/14/27");
    auto& menu = in<QMenu>("patientMenu");
    menu.popup(QPoint());
    QTest::keyClick(&menu, item);
    settle();
    EXPECT_TRUE(dialog(panel).isVisible()) << panel;
    EXPECT_EQ(dialog(panel).windowModality(), Qt::NonModal);
    ASSERT_TRUE(isActive(dialog(panel)));
    key(Qt::Key_Escape);
    EXPECT_FALSE(dialog(panel).isVisible()) << panel;
  }
}

TEST_F(TheDialogs, datesFromTheLastPeriodByKeysAlone) {
  openWindow(undated());
  key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("lmpWindow")));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(focusName(), "lmpWindowLMP");
  EXPECT_EQ(dialog("lmpWindow").windowTitle().toStdString(), "EDD from LMP \u2013 AB-123 (G2)");
  EXPECT_EQ(labelled("lmpWindowLMPForm"), "such as 3/24/26");
  EXPECT_EQ(text("lmpWindowCycleField"), "28");
  EXPECT_EQ(text("lmpWindowLutealField"), "14");
  keys("7/1/26");
  EXPECT_EQ(labelled("lmpWindowLMPLongForm"), "1 July 2026");
  key(Qt::Key_Tab);
  EXPECT_EQ(focusName(), "lmpWindowCycleField");
  keys("35");
  key(Qt::Key_Return);
  EXPECT_FALSE(dialog("lmpWindow").isVisible());
  EXPECT_EQ(text("birthDateField"), "4/14/27");
  toWindow();
  key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(text("adjustDeliverOnField"), "4/14/27");
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(TheDialogs, datesFromACrownRumpLengthByKeysAlone) {
  openWindow(undated());
  key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("crlWindow")));
  EXPECT_EQ(text("crlWindowDate"), "11/21/26");
  EXPECT_EQ(labelled("crlWindowDateForm"), "such as 3/24/26");
  EXPECT_EQ(labelled("crlWindowDateLongForm"), "21 November 2026");
  EXPECT_EQ(text("crlStandardReference"), "CRL Standard: Hadlock (1992)");
  EXPECT_EQ(labelled("crlWindowCRLHint"), "mm (2\u2013120)");
  EXPECT_EQ(focusName(), "crlWindowCRL");
  keys("45");
  key(Qt::Key_Backtab);
  EXPECT_EQ(text("crlWindowCRL"), "45.0");
  EXPECT_EQ(focusName(), "crlWindowDate");
  keys("8/20/26");
  key(Qt::Key_Return);
  EXPECT_FALSE(dialog("crlWindow").isVisible());
  EXPECT_EQ(text("birthDateField"), "3/8/27");
}

TEST_F(TheDialogs, showWhatALengthInEditChangesBeforeTheyTakeIt) {
  openWindow(undated());
  action("eddFromMeasurementsAction").trigger();
  settle();
  const std::string shown = labelled("measurementsWindowProposal");
  toWindow();
  type("bpdField", "60");
  QPushButton& ok =
      *dialog("measurementsWindow").findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
  QTest::mouseClick(&ok, Qt::LeftButton);
  settle();
  EXPECT_TRUE(dialog("measurementsWindow").isVisible());
  EXPECT_FALSE(document().patientRecord()->edd());
  const std::string shownNow = labelled("measurementsWindowProposal");
  EXPECT_NE(shownNow, shown);
  QTest::mouseClick(&ok, Qt::LeftButton);
  settle();
  EXPECT_FALSE(dialog("measurementsWindow").isVisible());
  EXPECT_TRUE(document().patientRecord()->edd());
}

TEST_F(TheDialogs, leaveTheDateThatTheyChangedSelected) {
  openWindow(undated());
  widget<QLineEdit>("birthDateField").setFocus();
  action("eddFromLMPAction").trigger();
  settle();
  keys("5/1/26");
  key(Qt::Key_Return);
  ASSERT_TRUE(document().patientRecord()->edd());
  toWindow();
  EXPECT_EQ(focus(), "birthDateField");
  EXPECT_EQ(widget<QLineEdit>("birthDateField").selectedText(), QStringLiteral("2/5/27"));
}

TEST_F(TheDialogs, datesFromTheMeasurementsByKeysAlone) {
  openWindow(undated());
  key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("measurementsWindow")));
  EXPECT_EQ(text("measurementsWindowExamination"), "6 of 6, 13 February 2027, Singleton");
  EXPECT_EQ(focusName(), "measurementsWindowBPDCheck");
  EXPECT_TRUE(in<QCheckBox>("measurementsWindowHCCheck").isChecked());
  EXPECT_EQ(labelled("measurementsWindowBPDValue"), "82.0 mm");
  key(Qt::Key_Space);
  EXPECT_FALSE(in<QCheckBox>("measurementsWindowBPDCheck").isChecked());
  EXPECT_EQ(text("measurementsWindowAvGestation"), "-");
  for (const char* box :
       {"measurementsWindowHCCheck", "measurementsWindowACCheck", "measurementsWindowFLCheck"}) {
    key(Qt::Key_Tab);
    EXPECT_EQ(focusName(), box);
    key(Qt::Key_Space);
  }
  key(Qt::Key_Return);
  EXPECT_FALSE(dialog("measurementsWindow").isVisible());
  EXPECT_EQ(text("birthDateField"), "11/21/27");  // 281 days after the examination
}

TEST_F(TheDialogs, movesTheDeliveryByKeysAlone) {
  openWindow(singleton());
  key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("adjustDeliveryPanel")));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "planning asks nothing";
  EXPECT_EQ(focusName(), "adjustDeliveryStepper");
  key(Qt::Key_Down);
  EXPECT_EQ(text("adjustDeliverOnField"), "4/9/27");
  EXPECT_EQ(text("adjustDeliverAtField"), "39w 6d");
  EXPECT_TRUE(window->isWindowModified());
  key(Qt::Key_Escape);
  EXPECT_FALSE(dialog("adjustDeliveryPanel").isVisible());
}

TEST_F(TheDialogs, replaceTheDaysToTheDeliveryByWhatIsTyped) {
  openWindow(singleton());
  key(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_EQ(focusName(), "adjustDeliveryStepper");
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-7"));
  EXPECT_EQ(text("adjustDeliverOnField"), "4/3/27") << "while it is typed";
  key(Qt::Key_Escape);
  EXPECT_EQ(window->document()->adjustDeliveryStepper().value(), -7.0);
}

TEST_F(TheDialogs, askOnThemselvesWhetherAnEstablishedEDDIsModified) {
  openWindow(singleton());
  struct Way {
    Qt::Key key;
    const char* dialog;
    const char* focus;
  };
  for (const Way& way :
       {Way{Qt::Key_L, "lmpWindow", "lmpWindowLMP"}, Way{Qt::Key_R, "crlWindow", "crlWindowCRL"},
        Way{Qt::Key_M, "measurementsWindow", "measurementsWindowBPDCheck"}}) {
    SCOPED_TRACE(way.dialog);
    toWindow();
    key(way.key, Qt::ControlModifier | Qt::ShiftModifier);
    QDialog& shown = dialog(way.dialog);
    EXPECT_TRUE(shown.isVisible());
    QMessageBox* box = sheetOn(shown);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowModality(), Qt::WindowModal);
    EXPECT_EQ(box->text(), QStringLiteral("EDD is already specified"));
    EXPECT_EQ(box->informativeText(), QStringLiteral("Are you sure you want to modify the established EDD?"));
    // While it is open nothing else is done to the document.
    in<QAction>("addFetusAction").trigger();
    EXPECT_EQ(window->document()->patientRecord()->numberOfFetuses(), 1);
    key(Qt::Key_Escape);
    EXPECT_FALSE(shown.isVisible());
    EXPECT_EQ(text("birthDateField"), "4/10/27");
    EXPECT_FALSE(window->isWindowModified());

    toWindow();
    key(way.key, Qt::ControlModifier | Qt::ShiftModifier);
    box = sheetOn(shown);
    ASSERT_NE(box, nullptr);
    key(Qt::Key_Return);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    ASSERT_TRUE(isActive(shown));
    EXPECT_EQ(focusName(), way.focus);
    EXPECT_FALSE(window->isWindowModified());
    key(Qt::Key_Escape);
    EXPECT_FALSE(shown.isVisible());
  }
}

TEST_F(TheDialogs, modifyTheEDDByKeysAloneOnceThatWasAgreed) {
  openWindow(singleton());
  key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_NE(sheetOn(dialog("lmpWindow")), nullptr);
  key(Qt::Key_Return);
  ASSERT_TRUE(isActive(dialog("lmpWindow")));
  keys("7/1/26");
  key(Qt::Key_Return);
  EXPECT_EQ(text("birthDateField"), "4/7/27");
  EXPECT_FALSE(dialog("lmpWindow").isVisible());
}

TEST_F(TheDialogs, closeWithTheirDocumentThoughAQuestionIsOpen) {
  openWindow(singleton());
  key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  const QPointer<QMessageBox> box = sheetOn(dialog("lmpWindow"));
  ASSERT_NE(box, nullptr);
  window->close();
  settle();
  ASSERT_NE(window, nullptr) << "the question wants its answer first";
  EXPECT_FALSE(application.quit());
  application.documents().closeDocument(*window->document());
  EXPECT_TRUE(QTest::qWaitFor([&] { return box.isNull(); }));
}

TEST_F(TheDialogs, changeNothingByEscapeAndForgetWhatWasBeingTyped) {
  openWindow(undated());
  key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("crlWindow")));
  keys("4x5");
  key(Qt::Key_Return);
  EXPECT_TRUE(dialog("crlWindow").isVisible());
  EXPECT_TRUE(isOutlined("crlWindowCRL"));
  EXPECT_FALSE(isOutlined("crlWindowDate"));
  key(Qt::Key_Escape);
  EXPECT_FALSE(dialog("crlWindow").isVisible());
  EXPECT_EQ(text("crlWindowCRL"), "");
  EXPECT_FALSE(isOutlined("crlWindowCRL"));
  EXPECT_EQ(text("birthDateField"), "");
  EXPECT_FALSE(window->isWindowModified());
  toWindow();
  enter("bpdField", "83");
  EXPECT_EQ(text("bpdField"), "83.0");
}

TEST_F(TheDialogs, stayAndOutlineWhatKeepsOkFromWorking) {
  openWindow(undated());
  key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("crlWindow")));
  EXPECT_FALSE(isOutlined("crlWindowCRL")) << "before anything was tried";
  keys("121");
  key(Qt::Key_Return);
  EXPECT_TRUE(dialog("crlWindow").isVisible());
  EXPECT_TRUE(isOutlined("crlWindowCRL"));
  EXPECT_FALSE(isOutlined("crlWindowDate"));
  EXPECT_EQ(in<QWidget>("crlWindowCRL").accessibleDescription().toStdString(),
            "Keeps the EDD from being set. Crown-rump length, 2 to 120 mm");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(window->isWindowModified());
  keys("12");
  EXPECT_FALSE(isOutlined("crlWindowCRL"));
  EXPECT_THAT(in<QWidget>("crlWindowCRL").accessibleDescription().toStdString(), Not(HasSubstr("Keeps")));
  key(Qt::Key_Backtab);
  keys("soon");
  EXPECT_EQ(labelled("crlWindowDateLongForm"), "no date");
  key(Qt::Key_Return);
  EXPECT_TRUE(isOutlined("crlWindowDate"));
  EXPECT_FALSE(isOutlined("crlWindowCRL"));
  EXPECT_EQ(focusName(), "crlWindowDate");

  // Another formula has another range; where there is none its name is outlined.
  window->document()->doSetCRLStandard(1);
  EXPECT_EQ(labelled("crlWindowCRLHint"), "mm (6.7\u201382.4)");
  EXPECT_FALSE(isOutlined("crlWindowDate"));
  window->document()->doSetCRLStandard(7);
  EXPECT_EQ(labelled("crlWindowCRLHint"), "mm");
  keys("8/20/26");
  key(Qt::Key_Return);
  EXPECT_TRUE(dialog("crlWindow").isVisible());
  EXPECT_TRUE(isOutlined("crlStandardReference"));
  key(Qt::Key_Escape);

  toWindow();
  key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("lmpWindow")));
  key(Qt::Key_Return);
  EXPECT_TRUE(isOutlined("lmpWindowLMP"));
  keys("7/1/26");
  key(Qt::Key_Tab);
  key(Qt::Key_Tab);
  keys("300");
  key(Qt::Key_Return);
  EXPECT_TRUE(dialog("lmpWindow").isVisible());
  EXPECT_TRUE(isOutlined("lmpWindowCycleField"));
  EXPECT_TRUE(isOutlined("lmpWindowLutealField"));
  EXPECT_FALSE(isOutlined("lmpWindowLMP"));
  key(Qt::Key_Escape);
}

TEST_F(TheDialogs, outlineTheExaminationThatHasNoDate) {
  openWindow(undated());
  type("examDateField", "x");
  key(Qt::Key_Backspace);
  key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("measurementsWindow")));
  EXPECT_EQ(text("measurementsWindowExamination"), "1 of 6, no date, Singleton");
  key(Qt::Key_Return);
  EXPECT_TRUE(dialog("measurementsWindow").isVisible());
  EXPECT_TRUE(isOutlined("measurementsWindowExamination"));
}

TEST_F(TheDialogs, saySoInWordsWhereAnAgeIsRed) {
  openWindow(undated());
  key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("measurementsWindow")));
  const auto isRed = [this](const char* name) {
    const QPalette palette = in<QLineEdit>(name).palette();
    return palette.color(QPalette::Text) == qt::refusalColor(palette);
  };
  // A quarter of the age that the BPD gives, since the others are missing.
  EXPECT_TRUE(isRed("measurementsWindowBPDGestation"));
  EXPECT_EQ(labelled("measurementsWindowBPDSign"), "! beyond 2 SD");
  EXPECT_THAT(in<QLineEdit>("measurementsWindowBPDGestation").accessibleDescription().toStdString(),
              HasSubstr("More than 2 standard deviations"));
  EXPECT_TRUE(isRed("measurementsWindowHCGestation"));
  EXPECT_EQ(labelled("measurementsWindowHCSign"), "! not measured");
  EXPECT_THAT(in<QLineEdit>("measurementsWindowHCGestation").accessibleDescription().toStdString(),
              HasSubstr("Not measured"));
  for (const char* box :
       {"measurementsWindowHCCheck", "measurementsWindowACCheck", "measurementsWindowFLCheck"}) {
    key(Qt::Key_Tab);
    EXPECT_EQ(focusName(), box);
    key(Qt::Key_Space);
  }
  EXPECT_FALSE(isRed("measurementsWindowBPDGestation"));
  EXPECT_EQ(labelled("measurementsWindowBPDSign"), "");
  EXPECT_THAT(in<QLineEdit>("measurementsWindowBPDGestation").accessibleDescription().toStdString(),
              Not(HasSubstr("standard deviations")));
  EXPECT_TRUE(isRed("measurementsWindowHCGestation"));
  EXPECT_THAT(labelled("measurementsWindowWarning"), HasSubstr("reads growth as age"));
}

TEST_F(TheDialogs, followTheWindowWhileTheyAreOpen) {
  openWindow(twins());
  window->document()->birthDateField().takeEditedText("");
  window->document()->synchronizeToData();
  key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(isActive(dialog("measurementsWindow")));
  EXPECT_EQ(labelled("measurementsWindowBPDValue"), "40.0 mm");
  toWindow();
  press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(labelled("measurementsWindowBPDValue"), "80.0 mm");
  EXPECT_EQ(text("measurementsWindowExamination"), "2 of 2, 19 December 2026, Twin 2");
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(labelled("measurementsWindowBPDValue"), "70.0 mm");
  EXPECT_EQ(text("measurementsWindowExamination"), "1 of 2, 21 November 2026, Twin 2");
  enter("bpdField", "47.5");
  EXPECT_EQ(labelled("measurementsWindowBPDValue"), "47.5 mm");
  EXPECT_EQ(text("measurementsWindowBPDGestation"), "20w 0d");
  EXPECT_TRUE(dialog("measurementsWindow").isVisible());
}

TEST_F(TheDialogs, doNotBringTheirWindowIntoTheirPlace) {
  openWindow(undated());
  key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
  QDialog& shown = dialog("lmpWindow");
  ASSERT_TRUE(isActive(shown));
  application.newDocument();
  settle();
  shown.activateWindow();
  ASSERT_TRUE(isActive(shown));
  key(Qt::Key_Return);  // nothing was typed: it stays, and the focus with it
  settle();
  EXPECT_EQ(QApplication::activeWindow(), &shown);
  EXPECT_TRUE(isOutlined("lmpWindowLMP"));
  EXPECT_EQ(application.documents().currentDocument(), window->document());
}

}  // namespace
}  // namespace nascor::tests
