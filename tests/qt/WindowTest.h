// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <functional>
#include <string>
#include <vector>

#include "Sample.h"
#include "base/Translation.h"
#include "program/DocumentApplication.h"
#include "window/FieldEdit.h"

namespace nascor::tests {

/// What a message box asked.
struct Asked {
  std::string message;
  std::string information;
  std::vector<std::string> buttons;
  std::string details;
};

/// How one writes in that language, in English as in the United States.
inline QLocale localeOf(const std::string& language) {
  return language == "en" ? QLocale(QLocale::English, QLocale::UnitedStates)
                          : QLocale(QString::fromStdString(language));
}

/// While it lives, the application speaks one of the languages that it comes with, "en" among them, and writes as one does there.
class Speaking {
 public:
  explicit Speaking(const std::string& language) : before_(QLocale()) {
    if (language == "en") return;
    EXPECT_TRUE(
        qt::installTranslation({QString::fromStdString(language)}, QStringLiteral(NASCOR_SHIPPED_TEXTS)));
    QLocale::setDefault(localeOf(language));
  }
  Speaking(const Speaking&) = delete;
  Speaking& operator=(const Speaking&) = delete;
  ~Speaking() {
    for (QTranslator* each : qApp->findChildren<QTranslator*>()) delete each;
    QLocale::setDefault(before_);
  }

 private:
  QLocale before_;
};

/// All languages that the application comes with.
inline std::vector<std::string> languages() {
  std::vector<std::string> found{"en"};
  for (const QString& name :
       QDir(QStringLiteral(NASCOR_TEXTS)).entryList({QStringLiteral("nascor_*.ts")}, QDir::Files, QDir::Name))
    found.push_back(name.mid(7).chopped(3).toStdString());
  return found;
}

/// The application with its windows, the preferences in memory, and documents in a folder of its own.
class WindowTest : public testing::Test {
 protected:
  explicit WindowTest(const QLocale& locale = localeOf("en")) : platform(locale) {
    // Presses the next button that a test wants in whatever box is open. Off-screen nobody else would.
    boxes.setInterval(1);
    QObject::connect(&boxes, &QTimer::timeout, [this] { answerBox(); });
    boxes.start();
  }
  ~WindowTest() override {
    QCoreApplication::processEvents();
    EXPECT_TRUE(answers.empty()) << "nobody asked for: " << answers.front();
  }

  QString file(const QString& name, const QByteArray& bytes) {
    const QString path = folder.filePath(name);
    writeFile(path, bytes);
    return path;
  }
  qt::DocumentWindow& open(const model::PatientRecord& record,
                           const QString& name = QStringLiteral("AB-123.nascor")) {
    application.openFiles({file(name, documentBytes(record))});
    return front();
  }
  qt::DocumentWindow& openBlank() {
    application.newDocument();
    return front();
  }
  /// The window in front, active.
  qt::DocumentWindow& front() {
    framework::ZuDocument* current = application.documents().currentDocument();
    if (!current || !application.windowOf(*current)) throw std::runtime_error("there is no window");
    qt::DocumentWindow& window = *application.windowOf(*current);
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) throw std::runtime_error("the window is not active");
    return window;
  }
  app::NCDocument& document() { return *front().document(); }
  static void settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }

  template <class Widget>
  Widget& widget(const char* name) {
    auto* found = front().findChild<Widget*>(QLatin1String(name));
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  std::string field(const char* name) { return widget<QLineEdit>(name).text().toStdString(); }
  std::string label(const char* name) { return widget<QLabel>(name).text().toStdString(); }
  QAction& action(const char* name) { return widget<QAction>(name); }
  void click(const char* name) {
    QTest::mouseClick(&widget<QToolButton>(name), Qt::LeftButton);
    settle();
  }
  std::string focus() {
    const QWidget* focused = front().focusWidget();
    return focused ? focused->objectName().toStdString() : "";
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focused = front().focusWidget();
    QTest::keyClick(focused ? focused : &front(), key, modifiers);
    settle();
  }
  /// Goes into the field by a click, replaces its text by typing, and stays there.
  void type(const char* name, const char* text) {
    QWidget& edit = widget<QWidget>(name);
    QTest::mouseClick(&edit, Qt::LeftButton);
    settle();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&edit, QLatin1String(text));
    settle();
  }
  /// The same, and leaves it by the tab key.
  void enter(const char* name, const char* text) {
    type(name, text);
    press(Qt::Key_Tab);
  }

  /// Whether boxes are answered, which they are at first.
  void answersQuestions(bool yes) { yes ? boxes.start() : boxes.stop(); }

  /// The buttons to press in the boxes to come.
  std::vector<std::string> answers;
  std::vector<Asked> asked;

  QTemporaryDir folder;
  TestPlatform platform;
  qt::DocumentApplication application{platform.services()};

 private:
  void answerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    Asked question{box->text().toStdString(),
                   box->informativeText().toStdString(),
                   {},
                   box->detailedText().toStdString()};
    for (const QAbstractButton* button : box->buttons())
      question.buttons.push_back(button->text().remove(u'&').toStdString());
    asked.push_back(question);
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected question: " << question.message;
      box->reject();
      return;
    }
    const std::string wanted = answers.front();
    answers.erase(answers.begin());
    for (QAbstractButton* button : box->buttons()) {
      if (button->text().remove(u'&').toStdString() != wanted) continue;
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
    ADD_FAILURE() << "\"" << question.message << "\" has no button " << wanted;
    box->reject();
  }
  QTimer boxes;
};

}  // namespace nascor::tests
