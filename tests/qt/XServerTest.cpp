// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The application on a real X server, as its user meets it: in its own process, by keys and by what the screen shows.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "Caller.h"
#include "Pixels.h"
#include "Run.h"
#include "Sample.h"
#include "SessionBus.h"

namespace nascor::tests {
namespace {

using framework::NamedColor;
using testing::HasSubstr;

constexpr int kPatience = 60'000;  // milliseconds for what happens at once on a machine that has time

QImage screenshot() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }

/// Where the disc around the examination on show lies: the first place where its colour fills a square, which no line
/// of that colour does. (-1, -1) without one.
QPoint discOf(const QImage& image) {
  // The mark of the examination on show lies in the band.
  const QColor color = colorOf(NamedColor::faintGray, colorOf(NamedColor::faintOrange));
  const auto fills = [&](int left, int top) {
    constexpr int kSide = 4;
    for (int y = top; y < top + kSide; ++y) {
      for (int x = left; x < left + kSide; ++x) {
        if (!image.valid(x, y) || !isNear(image.pixelColor(x, y), color, 3)) return false;
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

  void focus(const QString& window) {
    ASSERT_EQ(run("xdotool", {"windowfocus", "--sync", window}).status, 0);
  }
  static void press(const QStringList& keys) {
    ASSERT_EQ(run("xdotool", QStringList{"key", "--clearmodifiers"} + keys).status, 0);
  }
  /// Replaces the text of the field that has the focus.
  static void type(const QString& text) {
    press({"ctrl+a"});
    ASSERT_EQ(run("xdotool", {"type", "--clearmodifiers", "--delay", "20", text}).status, 0);
  }
  /// What the application says on standard output and error, and that it has ended well.
  void endsWell() {
    ASSERT_TRUE(nascor.waitForFinished(kPatience));
    EXPECT_EQ(nascor.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(nascor.exitCode(), 0);
  }

  QTemporaryDir folder;
  QProcess nascor;
};

TEST_F(OnAnXServer, opensADocumentAndGoesBackByTheKeyboard) {
  const QString path = folder.filePath(QStringLiteral("AB-123.nascor"));
  writeFile(path, documentBytes(singleton()));
  start({path});
  const QString window = windowTitled(QStringLiteral("AB-123"));
  ASSERT_EQ(run("xdotool", {"windowfocus", "--sync", window}).status, 0);
  QPoint onTrends;
  ASSERT_TRUE(QTest::qWaitFor([&] { return (onTrends = discOf(screenshot())) != QPoint(-1, -1); }, kPatience))
      << "no examination is highlighted on the trends";
  ASSERT_EQ(run("xdotool", {"key", "alt+2"}).status, 0);  // the page of the biparietal diameter
  EXPECT_EQ(run("xdotool", {"getwindowname", window}).output, "AB-123.nascor \u2014 Nascor\n");

  // The chart has the whole width to itself there.
  QPoint newest;
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return (newest = discOf(screenshot())).x() > onTrends.x() + 50; }, kPatience))
      << "no examination is highlighted on the page of its own";
  keep("window.png");

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

// What a desktop shows for the window, and by what it knows which entry of the menu started it.
TEST_F(OnAnXServer, hasItsIconAndTheClassOfItsDesktopEntry) {
  start({});
  const QString window = windowTitled(QStringLiteral("Untitled"));
  const std::string known = run("xprop", {"-id", window, "WM_CLASS", "_NET_WM_ICON"}).output;
  EXPECT_THAT(known, HasSubstr("\"Nascor\"\n"));
  EXPECT_THAT(known, HasSubstr("Icon (64 x 64)"));
  QFile entry(QStringLiteral(NASCOR_DESKTOP "/org.nascor.Nascor.desktop"));
  ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
  EXPECT_THAT(entry.readAll().toStdString(), HasSubstr("StartupWMClass=Nascor\n"));
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

/// One record of one examination, as the saved file holds it.
model::PatientRecord readFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("there is no file");
  const QByteArray bytes = file.readAll();
  auto read = model::unarchivedPatient(
      std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
  return std::move(*read.patient);
}

TEST_F(OnAnXServer, takesANewPatientsTwinsAndGivesThemBackToTheNextProcess) {
  const QString path = folder.filePath(QStringLiteral("XY-9.nascor"));
  start({});
  focus(windowTitled(QStringLiteral("Untitled")));
  type(QStringLiteral("xy-9"));
  press({"Tab"});
  type(QStringLiteral("2"));
  press({"Tab"});
  type(QStringLiteral("2027-04-10"));
  press({"Tab"});
  keep("new-1-patient.png");

  // The second of three examinations first, then the last, then the first.
  type(QStringLiteral("2026-12-19"));
  for (const char* length : {"60", "220", "200", "44"}) {
    press({"Tab"});
    type(QString::fromLatin1(length));
  }
  press({"Tab"});
  type(QStringLiteral("second visit"));
  keep("new-2-examination.png");
  for (const auto& [day, bpd] : {std::pair{"2027-01-16", "71"}, std::pair{"2026-11-21", "48"}}) {
    press({"ctrl+shift+e", "alt+t"});
    type(QString::fromLatin1(day));
    press({"Tab"});
    type(QString::fromLatin1(bpd));
    press({"Tab"});
  }
  keep("new-3-examinations.png");
  press({"ctrl+shift+f", "alt+b"});  // the second twin, at the first examination, which is on show
  type(QStringLiteral("47.5"));
  press({"Tab"});
  keep("new-4-twins.png");

  press({"ctrl+s"});
  focus(windowTitled(QStringLiteral("Save As")));
  type(path);
  press({"Return"});
  const QString saved = windowTitled(QStringLiteral("^XY-9.nascor"));
  focus(saved);
  keep("new-5-saved.png");
  press({"ctrl+q"});
  endsWell();

  const model::PatientRecord patient = readFile(path);
  EXPECT_EQ(patient.maternalIDString(), "XY-9");
  EXPECT_EQ(patient.gravida(), 2);
  const posix::PosixCalendar calendar;
  ASSERT_TRUE(patient.edd());
  EXPECT_EQ(foundation::localDay(*patient.edd(), calendar), (foundation::CivilDay{2027, 4, 10}));
  EXPECT_EQ(patient.numberOfFetuses(), 2);
  const auto& visits = patient.ncRecordsArray();
  ASSERT_EQ(visits.size(), 3U);
  const foundation::CivilDay days[] = {{2026, 11, 21}, {2026, 12, 19}, {2027, 1, 16}};
  const double first[] = {48.0, 60.0, 71.0};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(foundation::localDay(*visits[i]->examDate(), calendar), days[i]);
    EXPECT_EQ(visits[i]->measurements().at(0).bpd(), first[i]);
  }
  EXPECT_EQ(visits[0]->measurements().at(1).bpd(), 47.5);
  EXPECT_EQ(visits[1]->measurements().at(0).hc(), 220.0);
  EXPECT_EQ(visits[1]->measurements().at(0).ac(), 200.0);
  EXPECT_EQ(visits[1]->measurements().at(0).fl(), 44.0);
  EXPECT_EQ(visits[1]->note(), "second visit");

  start({path});
  const QString again = windowTitled(QStringLiteral("^XY-9.nascor"));
  focus(again);
  press({"alt+2", "ctrl+2"});
  keep("new-6-opened-again.png");
  press({"alt+b"});
  type(QStringLiteral("900"));
  press({"Tab"});
  keep("new-7-refused.png");
  press({"Escape", "ctrl+q"});  // taken back, so nothing is asked
  endsWell();
  EXPECT_EQ(readFile(path).ncRecordsArray().at(2)->measurements().at(1).bpd(), 0.0);
}

TEST_F(OnAnXServer, asksBeforeAnEDDIsChangedAndBeforeEditsAreLost) {
  const QString path = folder.filePath(QStringLiteral("AB-123.nascor"));
  writeFile(path, documentBytes(singleton()));
  start({path});
  const QString window = windowTitled(QStringLiteral("^AB-123.nascor"));
  focus(window);
  press({"alt+d", "5"});
  const QString question = windowTitled(QStringLiteral("^Nascor$"));
  keep("question-edd.png");
  focus(question);
  press({"Return"});  // Modify
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        return run("xdotool", {"search", "--onlyvisible", "--name", "^Nascor$"}).status != 0;
      },
      kPatience));
  focus(window);
  type(QStringLiteral("2027-04-11"));
  press({"Tab", "ctrl+q"});
  const QString closing = windowTitled(QStringLiteral("^Nascor$"));
  keep("question-save.png");
  focus(closing);
  press({"Return"});  // Save
  endsWell();
  EXPECT_EQ(foundation::localDay(*readFile(path).edd(), posix::PosixCalendar()),
            (foundation::CivilDay{2027, 4, 11}));
}

TEST_F(OnAnXServer, handsTheFilesOfASecondStartToTheOneThatRuns) {
  const SessionBus bus;
  ASSERT_FALSE(qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"));
  const QString first = folder.filePath(QStringLiteral("first.nascor"));
  const QString second = folder.filePath(QStringLiteral("second & 2%.nascor"));
  writeFile(first, documentBytes(singleton()));
  writeFile(second, documentBytes(twins()));
  start({first});
  windowTitled(QStringLiteral("^first.nascor"));
  const Answer answer = run(QStringLiteral(NASCOR_PROGRAM), {second});
  EXPECT_EQ(answer.status, 0) << answer.error;
  const QString window = windowTitled(QStringLiteral("^second & 2%.nascor"));
  EXPECT_EQ(run("xdotool", {"getwindowpid", window}).output, std::to_string(nascor.processId()) + "\n");
  // Without a file it is a new document.
  EXPECT_EQ(run(QStringLiteral(NASCOR_PROGRAM), {}).status, 0);
  focus(windowTitled(QStringLiteral("^Untitled")));
  press({"ctrl+q"});
  endsWell();
}

TEST_F(OnAnXServer, refusesWhatIsNoFileOfThisMachineOnTheBus) {
  const SessionBus bus;
  start({});
  windowTitled(QStringLiteral("^Untitled"));
  const QString name = QStringLiteral("a caller");
  {
    QDBusConnection caller =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name);
    ASSERT_TRUE(caller.isConnected());
    const auto call = [&](const QString& method, const QVariantList& arguments) {
      QDBusMessage message = QDBusMessage::createMethodCall(
          QStringLiteral("org.nascor.Nascor"), QStringLiteral("/org/nascor/Nascor"),
          QStringLiteral("org.freedesktop.Application"), method);
      message.setArguments(arguments);
      return caller.call(message, QDBus::Block, kPatience).errorName().toStdString();
    };
    const std::string wrong = "org.freedesktop.DBus.Error.InvalidArgs";
    const std::string unknown = "org.freedesktop.DBus.Error.UnknownMethod";
    EXPECT_EQ(call("Open", {QStringList{"https://somewhere/a.nascor"}, QVariantMap()}), wrong);
    EXPECT_EQ(call("Open", {QStringLiteral("a text")}), wrong);
    EXPECT_EQ(call("Close", {}), unknown);
    EXPECT_EQ(call("ActivateAction", {QStringLiteral("unknown"), QVariantList(), QVariantMap()}), wrong);
    EXPECT_EQ(call("Activate", {QVariantMap()}), "");
  }
  QDBusConnection::disconnectFromBus(name);
}

TEST_F(OnAnXServer, tellsAScriptThatItsDocumentIsClosed) {
  const SessionBus bus;
  start({});
  focus(windowTitled(QStringLiteral("^Untitled")));
  Caller script;
  const QString path = folder.filePath(QStringLiteral("second.nascor"));
  writeFile(path, documentBytes(twins()));
  EXPECT_EQ(Caller::pathIn(script.application("open", {path})), documentPath(2).toStdString());
  const QString second = windowTitled(QStringLiteral("^second.nascor"));
  EXPECT_EQ(Caller::pathIn(script.application("currentDocument")), documentPath(2).toStdString());

  focus(windowTitled(QStringLiteral("^Untitled")));
  press({"ctrl+w"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return script.documents().size() == 1; }, kPatience));
  const QDBusMessage answer = script.getting(documentPath(1), "bpd");
  EXPECT_EQ(answer.errorName(), QStringLiteral("org.freedesktop.DBus.Error.UnknownObject"));
  EXPECT_EQ(answer.errorMessage(), QStringLiteral("Get: document 1 is closed"));
  EXPECT_EQ(script.set(documentPath(1), "bpd", 45.0).errorName(), answer.errorName());

  // The other one keeps its number, and a new one gets another.
  EXPECT_EQ(script.documents(), std::vector{documentPath(2).toStdString()});
  EXPECT_EQ(script.get(documentPath(2), "examDate"), QStringLiteral("2026-12-19"));
  EXPECT_EQ(script.application("perform", {QStringLiteral("make new document")}).errorName(), QString());
  EXPECT_EQ(script.documents(), (std::vector{documentPath(2).toStdString(), documentPath(3).toStdString()}));
  focus(second);
  press({"ctrl+q"});
  endsWell();
}

TEST_F(OnAnXServer, tellsAScriptThatTheUserIsAskedInsteadOfLettingItWait) {
  const SessionBus bus;
  const QDir home(folder.path());
  ASSERT_TRUE(home.mkpath(QStringLiteral("Documents")));
  writeFile(home.filePath(QStringLiteral("Documents/AB-123 (G2).nascor")), documentBytes(singleton()));
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HOME", folder.path());
  nascor.setProcessEnvironment(environment);
  start({});
  focus(windowTitled(QStringLiteral("^Untitled")));
  type(QStringLiteral("ab-123"));
  press({"Tab"});
  type(QStringLiteral("2"));
  // The export takes the gravidity in, and with it the patient is known: is her document to be opened?
  Caller script;
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        return script.application("perform", {QStringLiteral("export to file")}).errorName() ==
               QStringLiteral("org.nascor.Error.Asking");
      },
      kPatience));
  focus(windowTitled(QStringLiteral("^Nascor$")));
  EXPECT_EQ(script.documents().size(), 1U);  // answered meanwhile
  press({"Escape"});
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return script.get(documentPath(1), "gravida") == QVariant(2LL); }, kPatience));
}

TEST_F(OnAnXServer, standsAloneWithoutABus) {
  start({});
  windowTitled(QStringLiteral("^Untitled"));
  const QString path = folder.filePath(QStringLiteral("other.nascor"));
  writeFile(path, documentBytes(singleton()));
  QProcess other;
  other.start(QStringLiteral(NASCOR_PROGRAM), {path});
  const QString window = windowTitled(QStringLiteral("^other.nascor"));
  EXPECT_EQ(run("xdotool", {"getwindowpid", window}).output, std::to_string(other.processId()) + "\n");
  other.kill();
  other.waitForFinished(kPatience);
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
  // What a program that a test has killed left there would be offered to the next one.
  qputenv("XDG_STATE_HOME", home.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  // Neither the tests' application nor the user's own is to find the other.
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
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
