// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/Application.h"

#include <gmock/gmock.h>

#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include "foundation/Assertion.h"
#include "foundation/RangeError.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;

/// Does something when it is sent an event.
class Actor : public QObject {
 public:
  explicit Actor(std::function<void()> action) : action_(std::move(action)) {}
  bool event(QEvent*) override {
    action_();
    return true;
  }

 private:
  std::function<void()> action_;
};

/// What is told on standard error while `action` runs in an event.
std::string toldWhile(const std::function<void()>& action) {
  Actor actor(action);
  QEvent event(QEvent::User);
  testing::internal::CaptureStderr();
  EXPECT_FALSE(QCoreApplication::sendEvent(&actor, &event));
  return testing::internal::GetCapturedStderr();
}

TEST(AnExceptionInAnEvent, isToldWithItsPlaceInTheSources) {
  const std::vector<int> three(3);
  const std::string told = toldWhile([&] { foundation::checkedAt(three, 7); });
  EXPECT_THAT(told, HasSubstr("nascor: index 7 is outside the 3 elements (tests/qt/ApplicationTest.cpp:"));
  EXPECT_THAT(told, HasSubstr("the action was abandoned\n"));
}

TEST(AnExceptionInAnEvent, isToldForWhatIsMissingToo) {
  const std::string told = toldWhile([] { foundation::required(static_cast<int*>(nullptr)); });
  EXPECT_THAT(told, HasSubstr("nascor: Value==nil (tests/qt/ApplicationTest.cpp:"));
}

TEST(AnExceptionInAnEvent, isToldWhateverItIs) {
  EXPECT_THAT(toldWhile([] { throw std::bad_alloc(); }), HasSubstr("bad_alloc"));
  EXPECT_THAT(toldWhile([] { throw 42; }), HasSubstr("unknown exception"));
}

TEST(AnExceptionInAnEvent, doesNotStopTheEventLoop) {
  testing::internal::CaptureStderr();
  QEventLoop loop;
  QTimer::singleShot(0, [] { throw std::runtime_error("first"); });
  QTimer::singleShot(1, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("first"));
}

TEST(TheApplicationItself, isKnownToTheDesktopByItsEntry) {
  EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("org.nascor.Nascor"));
}

TEST(TheApplicationItself, asksWhoeverEndsItWhenTheSessionWantsItGone) {
  auto& application = *dynamic_cast<qt::Application*>(QCoreApplication::instance());
  int requests = 0;
  auto leaves = application.onQuitRequest.subscribe([&] { ++requests; });
  QWidget window;
  window.show();
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(&application, &quit);
  EXPECT_EQ(requests, 1);
  EXPECT_TRUE(window.isVisible()) << "no window is closed behind the documents' back";
  leaves.reset();
}

}  // namespace
}  // namespace nascor::tests
