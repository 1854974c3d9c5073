#include "qt/DocumentWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "Pixels.h"
#include "Sample.h"
#include "qt/PageView.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;

class TheDocumentWindow : public testing::Test {
 protected:
  void open(const model::PatientRecord& record) {
    auto document = std::make_unique<app::NCDocument>(platform.services());
    document->loadDataRepresentation(model::archivedPatient(record), {});
    window = new qt::DocumentWindow(std::move(document), QStringLiteral("/somewhere/AB-123.nascor"),
                                    platform.services());
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }
  ~TheDocumentWindow() override { delete window.data(); }

  template <class Widget>
  Widget& widget(const char* name) {
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  std::string field(const char* name) { return widget<QLineEdit>(name).text().toStdString(); }
  std::string examination() { return widget<QLabel>("examinationLabel").text().toStdString(); }
  void click(const char* name) { QTest::mouseClick(&widget<QToolButton>(name), Qt::LeftButton); }
  void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = window->focusWidget();
    QTest::keyClick(focus ? focus : window.data(), key, modifiers);
  }

  /// Whether the disc lies around the mark there.
  bool isHighlighted(double week, double mm) {
    QWidget& page = widget<QWidget>("BPDPage");
    const QRectF paper = static_cast<qt::PageView&>(page).paper();
    const double scale = paper.width() / 800.0;
    const QPointF beside = paper.topLeft() + QPointF(pageX(week) + 5.0, pageY(mm) - 5.0) * scale;
    return colorAt(page.grab().toImage(), beside) == colorOf(NamedColor::faintGray);
  }

  TestPlatform platform;
  QPointer<qt::DocumentWindow> window;
};

TEST_F(TheDocumentWindow, showsTheNewestExaminationOfItsPatient) {
  open(singleton());
  EXPECT_EQ(field("referenceIDField"), "AB-123");
  EXPECT_EQ(field("birthDateField"), "4/10/27");
  EXPECT_EQ(field("examDateField"), "2/13/27");
  EXPECT_EQ(field("ageField"), "32w 0d");
  EXPECT_EQ(examination(), "6 of 6");
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Singleton"));
  EXPECT_TRUE(isHighlighted(32.0, 82.0));
}

TEST_F(TheDocumentWindow, isTitledWithTheFilesName) {
  open(singleton());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("AB-123.nascor[*]"));
  EXPECT_EQ(window->windowFilePath(), QStringLiteral("/somewhere/AB-123.nascor"));
}

TEST_F(TheDocumentWindow, goesBackAndForthByItsButtons) {
  open(singleton());
  click("previousButton");
  click("previousButton");
  EXPECT_EQ(examination(), "4 of 6");
  EXPECT_EQ(field("examDateField"), "12/19/26");
  EXPECT_EQ(field("ageField"), "24w 0d");
  EXPECT_TRUE(isHighlighted(24.0, 61.0));
  EXPECT_FALSE(isHighlighted(32.0, 82.0));
  click("nextButton");
  EXPECT_EQ(examination(), "5 of 6");
  EXPECT_TRUE(isHighlighted(28.0, 70.0));
}

TEST_F(TheDocumentWindow, goesBackAndForthByTheKeyboard) {
  open(singleton());
  type(Qt::Key_Left, Qt::AltModifier);
  type(Qt::Key_Left, Qt::AltModifier);
  type(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(examination(), "3 of 6");
  EXPECT_TRUE(isHighlighted(20.0, 48.0));
  type(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(examination(), "4 of 6");
  EXPECT_FALSE(isHighlighted(20.0, 48.0));
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
  QCoreApplication::processEvents();
  PaintCounter counter;
  widget<QWidget>("BPDPage").installEventFilter(&counter);
  click("previousButton");
  EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }));
}

TEST_F(TheDocumentWindow, goesByAFocusedButtonAndTheSpaceBar) {
  open(singleton());
  widget<QToolButton>("previousButton").setFocus();
  type(Qt::Key_Space);
  EXPECT_EQ(examination(), "5 of 6");
}

TEST_F(TheDocumentWindow, offersNoExaminationBeyondTheEnds) {
  open(singleton());
  EXPECT_FALSE(widget<QToolButton>("nextButton").isEnabled());
  EXPECT_TRUE(widget<QToolButton>("previousButton").isEnabled());
  for (int i = 0; i < 7; ++i) type(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(examination(), "1 of 6");
  EXPECT_FALSE(widget<QToolButton>("previousButton").isEnabled());
  EXPECT_TRUE(widget<QToolButton>("nextButton").isEnabled());
}

TEST_F(TheDocumentWindow, showsTheFetusThatIsChosen) {
  open(twins());
  QComboBox& fetuses = widget<QComboBox>("multiplePopUp");
  EXPECT_EQ(fetuses.count(), 2);
  EXPECT_EQ(window->document().bpdPage().title(), "AB-123 (G2) 1 of 2");
  EXPECT_TRUE(isHighlighted(24.0, 40.0));
  fetuses.setFocus();
  type(Qt::Key_Down);
  EXPECT_EQ(fetuses.currentText(), QStringLiteral("Twin 2"));
  EXPECT_EQ(window->document().currentFetus(), 1);
  EXPECT_EQ(window->document().bpdPage().title(), "AB-123 (G2) 2 of 2");
  EXPECT_TRUE(isHighlighted(24.0, 80.0));
  EXPECT_FALSE(isHighlighted(24.0, 40.0));
}

TEST_F(TheDocumentWindow, keepsTheFetusFromOneExaminationToTheNext) {
  open(twins());
  widget<QComboBox>("multiplePopUp").setFocus();
  type(Qt::Key_Down);
  click("previousButton");
  EXPECT_EQ(widget<QComboBox>("multiplePopUp").currentText(), QStringLiteral("Twin 2"));
  EXPECT_TRUE(isHighlighted(20.0, 70.0));
}

TEST_F(TheDocumentWindow, showsAPatientWithoutExaminations) {
  open(patient({}));
  EXPECT_EQ(examination(), "0 of 0");
  EXPECT_EQ(field("examDateField"), "");
  EXPECT_EQ(field("ageField"), "-");
  EXPECT_FALSE(widget<QToolButton>("nextButton").isEnabled());
  EXPECT_FALSE(widget<QToolButton>("previousButton").isEnabled());
}

TEST_F(TheDocumentWindow, repaintsWhenEveryFetusIsToBeShown) {
  open(twins());
  const auto secondTwin = [&] {
    QWidget& page = widget<QWidget>("BPDPage");
    const QRectF paper = static_cast<qt::PageView&>(page).paper();
    const QPointF centre =
        paper.topLeft() + QPointF(pageX(24.0), pageY(80.0) - 3.2) * (paper.width() / 800.0);
    return colorAt(page.grab().toImage(), centre) != QColor(Qt::white);
  };
  EXPECT_TRUE(secondTwin());
  platform.defaults.setValue(foundation::defaults_key::showAll, "NO");
  platform.notifications.post(foundation::NotificationName::updateShowAll, nullptr);
  EXPECT_FALSE(secondTwin());
}

TEST_F(TheDocumentWindow, isReachedWholeByTheTabKey) {
  open(singleton());
  widget<QLineEdit>("referenceIDField").setFocus();
  std::vector<std::string> visited;
  for (int i = 0; i < 8; ++i) {
    visited.push_back(window->focusWidget()->objectName().toStdString());
    type(Qt::Key_Tab);
  }
  // The next button is disabled at the last examination. The pages' tabs come last, then all begins anew.
  const std::vector<std::string> order{"referenceIDField",    "birthDateField",  "previousButton",
                                       "examDateField",       "ageField",        "multiplePopUp",
                                       "qt_tabwidget_tabbar", "referenceIDField"};
  EXPECT_EQ(visited, order);
}

TEST_F(TheDocumentWindow, namesItsFieldsForScreenReaders) {
  open(singleton());
  const auto spoken = [&](const char* name, QAccessible::Text text) {
    return QAccessible::queryAccessibleInterface(&widget<QWidget>(name))->text(text).toStdString();
  };
  EXPECT_EQ(spoken("referenceIDField", QAccessible::Name), "Reference ID");
  EXPECT_EQ(spoken("birthDateField", QAccessible::Name), "EDD");
  EXPECT_EQ(spoken("examDateField", QAccessible::Name), "Date");
  EXPECT_EQ(spoken("ageField", QAccessible::Name), "Age");
  // The name of a choice is what is chosen; which choice it is says its label.
  const auto labels =
      QAccessible::queryAccessibleInterface(&widget<QWidget>("multiplePopUp"))->relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->text(QAccessible::Name), QStringLiteral("Fetus"));
  EXPECT_EQ(spoken("previousButton", QAccessible::Name), "Previous Examination");
  EXPECT_EQ(spoken("nextButton", QAccessible::Name), "Next Examination");
  EXPECT_EQ(spoken("BPDPage", QAccessible::Name), "BPD");
  EXPECT_EQ(spoken("BPDPage", QAccessible::Description),
            "Growth chart of AB-123 (G2). Examination 6 of 6, 32w 0d.");
}

TEST_F(TheDocumentWindow, letsItsValuesBeReadNotTyped) {
  open(singleton());
  widget<QLineEdit>("referenceIDField").setFocus();
  type(Qt::Key_X);
  EXPECT_EQ(field("referenceIDField"), "AB-123");
}

TEST_F(TheDocumentWindow, closesByItsMenuAndGoesAway) {
  open(singleton());
  type(Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
}

TEST_F(TheDocumentWindow, asksToOpenByItsMenu) {
  open(singleton());
  int asked = 0;
  window->onOpen = [&] { ++asked; };
  type(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(asked, 1);
}

TEST_F(TheDocumentWindow, hasEveryMenuAndItemOnTheKeyboard) {
  open(singleton());
  for (const QAction* menu : window->menuBar()->actions()) {
    EXPECT_TRUE(menu->text().contains(u'&')) << menu->text().toStdString();
    for (const QAction* item : menu->menu()->actions()) {
      EXPECT_TRUE(item->isSeparator() || item->text().contains(u'&')) << item->text().toStdString();
    }
  }
}

TEST_F(TheDocumentWindow, saysInItsAboutBoxThatItIsNoMedicalDevice) {
  open(singleton());
  QString text;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    text = box->text() + u'\n' + box->informativeText();
    box->close();
  });
  window->findChild<QAction*>(QStringLiteral("aboutAction"))->trigger();
  EXPECT_TRUE(text.contains(QStringLiteral("Not a medical device. Not validated for clinical use.")))
      << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("0.1.0"))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("LGPL"))) << text.toStdString();
}

TEST_F(TheDocumentWindow, leavesRoomForEverythingAtItsSmallest) {
  open(singleton());
  window->resize(window->minimumSize());
  QTest::qWait(0);
  for (const char* name : {"referenceIDField", "birthDateField", "examDateField", "ageField"}) {
    const QLineEdit& edit = widget<QLineEdit>(name);
    EXPECT_GE(edit.width(), edit.fontMetrics().horizontalAdvance(edit.text())) << name;
  }
  EXPECT_GE(widget<QWidget>("BPDPage").width(), 480);
  EXPECT_GE(widget<QWidget>("BPDPage").height(), 336);
}

}  // namespace
}  // namespace nascor::tests
