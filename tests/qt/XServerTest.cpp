// The application on a real X server, as its user meets it: in its own process, by keys and by what the screen shows.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "Pixels.h"
#include "Run.h"
#include "Sample.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;
using testing::HasSubstr;

constexpr int kPatience = 60'000;  // milliseconds for what happens at once on a machine that has time

QImage screenshot() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }

/// Where the disc around the examination on show lies: the first place where its colour fills a square, which no line
/// of that colour does. (-1, -1) without one.
QPoint discOf(const QImage& image) {
  const QColor color = colorOf(NamedColor::faintGray);
  const auto fills = [&](int left, int top) {
    constexpr int kSide = 4;
    for (int y = top; y < top + kSide; ++y) {
      for (int x = left; x < left + kSide; ++x) {
        if (!image.valid(x, y) || image.pixelColor(x, y) != color) return false;
      }
    }
    return true;
  };
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (fills(x, y)) return {x, y};
    }
  }
  return {-1, -1};
}

class OnAnXServer : public testing::Test {
 protected:
  ~OnAnXServer() override {
    if (nascor.state() == QProcess::NotRunning) return;
    nascor.kill();
    nascor.waitForFinished(kPatience);
  }

  void start(const QStringList& files) {
    nascor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    nascor.start(QStringLiteral(NASCOR_PROGRAM), files);
    ASSERT_TRUE(nascor.waitForStarted(kPatience));
  }
  /// The number of the window with that title, as soon as it is shown.
  QString windowTitled(const QString& pattern) {
    QString number;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          const Answer found = run("xdotool", {"search", "--onlyvisible", "--name", pattern});
          number = QString::fromStdString(found.output).trimmed();
          return found.status == 0 && !number.isEmpty();
        },
        kPatience));
    return number;
  }
  void keep(const char* name) {
    QDir().mkpath(QStringLiteral(NASCOR_ARTEFACTS));
    EXPECT_TRUE(screenshot().save(QStringLiteral(NASCOR_ARTEFACTS "/") + QLatin1String(name)));
  }

  QTemporaryDir folder;
  QProcess nascor;
};

TEST_F(OnAnXServer, opensADocumentAndGoesBackByTheKeyboard) {
  const QString path = folder.filePath(QStringLiteral("AB-123.nascor"));
  writeFile(path, documentBytes(singleton()));
  start({path});
  const QString window = windowTitled(QStringLiteral("AB-123"));
  EXPECT_EQ(run("xdotool", {"getwindowname", window}).output, "AB-123.nascor \u2014 Nascor\n");

  QPoint newest;
  ASSERT_TRUE(QTest::qWaitFor([&] { return (newest = discOf(screenshot())) != QPoint(-1, -1); }, kPatience))
      << "no examination is highlighted on the screen";
  keep("window.png");

  ASSERT_EQ(run("xdotool", {"windowfocus", "--sync", window}).status, 0);
  ASSERT_EQ(run("xdotool", {"key", "alt+Left"}).status, 0);
  // Four weeks earlier and 12 mm smaller: to the left and down.
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const QPoint disc = discOf(screenshot());
        return disc.x() >= 0 && disc.x() < newest.x() - 50 && disc.y() > newest.y() + 30;
      },
      kPatience))
      << "Alt+Left did not move the highlight";
  keep("window-previous.png");

  ASSERT_EQ(run("xdotool", {"key", "ctrl+q"}).status, 0);
  ASSERT_TRUE(nascor.waitForFinished(kPatience));
  EXPECT_EQ(nascor.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(nascor.exitCode(), 0);
}

TEST_F(OnAnXServer, tellsOfAFileThatItCannotReadAndEndsWithAFailure) {
  const QString path = folder.filePath(QStringLiteral("cut.nascor"));
  writeFile(path, cutDocument());
  start({path});
  const QString box = windowTitled(QStringLiteral("^Nascor$"));
  keep("message.png");
  ASSERT_EQ(run("xdotool", {"windowfocus", "--sync", box}).status, 0);
  ASSERT_EQ(run("xdotool", {"key", "Return"}).status, 0);
  ASSERT_TRUE(nascor.waitForFinished(kPatience));
  EXPECT_EQ(nascor.exitCode(), 1);
}

/// An X server of its own, which chooses its number itself and says so when it is ready.
class XServer {
 public:
  bool start() {
    server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server_.start(QStringLiteral("Xvfb"),
                  {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    if (!server_.waitForStarted(kPatience)) return false;
    while (!server_.canReadLine()) {
      if (!server_.waitForReadyRead(kPatience)) return false;
    }
    qputenv("DISPLAY", ":" + server_.readLine().trimmed());
    return true;
  }
  ~XServer() {
    server_.terminate();
    server_.waitForFinished(kPatience);
  }

 private:
  QProcess server_;
};

}  // namespace
}  // namespace nascor::tests

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  nascor::tests::XServer server;
  if (!server.start()) {
    std::fputs("Xvfb did not start\n", stderr);
    return 1;
  }
  qunsetenv("WAYLAND_DISPLAY");
  qputenv("QT_QPA_PLATFORM", "xcb");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
