// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Scripts as their authors write them: in processes of their own, on a session bus of the test's own.
#include <gmock/gmock.h>
#include <signal.h>

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtGlobal>
#include <algorithm>
#include <iostream>
#include <memory>
#include <random>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "Caller.h"
#include "Run.h"
#include "Sample.h"
#include "SessionBus.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr int kPatience = 60'000;

const std::string kLimitsExceeded = "org.freedesktop.DBus.Error.LimitsExceeded";
const QString kInvalidArguments = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");

QByteArray bytesOfFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("there is no file " + path.toStdString());
  return file.readAll();
}
QString textOfFile(const QString& path) { return QString::fromUtf8(bytesOfFile(path)); }

class AScript : public testing::Test {
 protected:
  AScript() {
    QDir(home.path()).mkpath(QStringLiteral("Documents"));
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path());
    environment.insert("XDG_STATE_HOME", home.path());
    environment.insert("XDG_RUNTIME_DIR", home.path());
    nascor.setProcessEnvironment(environment);
    QObject::connect(&nascor, &QProcess::readyReadStandardError,
                     [this] { said += nascor.readAllStandardError().toStdString(); });
  }
  ~AScript() override {
    script.reset();
    if (nascor.state() == QProcess::NotRunning) return;
    nascor.kill();
    nascor.waitForFinished(kPatience);
  }

  void start(const QStringList& arguments = {}) {
    nascor.start(QStringLiteral(NASCOR_PROGRAM), arguments);
    script = std::make_unique<Caller>();
    ASSERT_TRUE(script->bus().isConnected());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
          return script->bus().interface()->isServiceRegistered(QStringLiteral("org.nascor.Nascor")).value();
        },
        kPatience));
  }
  QString file(const char* name, const model::PatientRecord& record) {
    const QString path = QDir(home.path()).filePath(QLatin1String(name));
    writeFile(path, documentBytes(record));
    return path;
  }
  /// The lines that the application has written to the console about scripts; waits for `count` of them.
  std::vector<std::string> log(std::size_t count) {
    std::vector<std::string> lines;
    static_cast<void>(QTest::qWaitFor(
        [&] {
          lines.clear();
          for (const QByteArray& line : QByteArray::fromStdString(said).split('\n')) {
            if (line.startsWith("Scripting: ") || line == "make new document" || line == "export to file")
              lines.push_back(line.toStdString());
          }
          return lines.size() >= count;
        },
        kPatience));
    return lines;
  }
  std::string nameOfError(const QDBusMessage& answer) { return answer.errorName().toStdString(); }

  const SessionBus bus;
  QTemporaryDir home;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  QProcess nascor;
  std::string said;
  std::unique_ptr<Caller> script;
  const QString first = documentPath(1);
};

TEST_F(AScript, readsTheDictionaryFromTheRunningProgramByteForByte) {
  start();
  const auto introspection = [&](const QString& path) {
    return script
        ->call(path, QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"))
        .arguments()
        .value(0)
        .toString();
  };
  const QString folder = QStringLiteral(NASCOR_RESOURCES "/dbus/");
  EXPECT_EQ(introspection(kApplicationPath), textOfFile(folder + "org.nascor.Application.xml"));
  EXPECT_EQ(introspection(first), textOfFile(folder + "org.nascor.Document.xml"));
  EXPECT_EQ(introspection(kApplicationPath + "/documents"),
            QStringLiteral("<node>\n  <node name=\"1\"/>\n</node>\n"));
}

TEST_F(AScript, writesAndReadsTheNineProperties) {
  start();
  const std::vector<std::pair<const char*, QVariant>> values{{"identifier", QStringLiteral("AB-123")},
                                                             {"gravida", 3LL},
                                                             {"edd", QStringLiteral("2027-04-10")},
                                                             {"examDate", QStringLiteral("2026-11-20")},
                                                             {"bpd", 45.3},
                                                             {"hc", 170.0},
                                                             {"ac", 150.25},
                                                             {"fl", 30.5},
                                                             {"tabViewIndex", 2LL}};
  for (const auto& [key, value] : values)
    EXPECT_EQ(script->set(first, key, value).errorName(), QString()) << key;
  for (const auto& [key, value] : values) {
    const QVariant read = script->get(first, key);
    EXPECT_EQ(read.typeId(), value.typeId()) << key;
    if (QLatin1String(key) != QLatin1String("bpd")) {
      EXPECT_EQ(read, value) << key;
    }
  }
  EXPECT_EQ(script->get(first, "bpd").toDouble(), 45.29999923706055);
  EXPECT_THAT(log(12), ElementsAre("Scripting: set identifer to AB-123", "Scripting: set gravida to 3",
                                   "Scripting: set edd to 2027-04-10 04:00:00 +0000",
                                   "Scripting: set exam date to 2026-11-20 05:00:00 +0000",
                                   "Scripting: set bpd to 45.3", "Scripting: set hc to 170.0",
                                   "Scripting: set ac to 150.2", "Scripting: set fl to 30.5",
                                   "Scripting: set tab view index to 2", "Scripting: identifier is AB-123",
                                   "Scripting: gravida is 3", "Scripting: edd is 2027-04-10 04:00:00 +0000",
                                   "Scripting: examDate is 2026-11-20 05:00:00 +0000"));
}

TEST_F(AScript, readsAllPropertiesAtOnce) {
  start({file("twins.nascor", twins())});
  for (const QString& interface : {kDocumentInterface, QString()}) {
    const QDBusMessage answer =
        script->call(first, kPropertiesInterface, QStringLiteral("GetAll"), {interface});
    const auto values = qdbus_cast<QVariantMap>(answer.arguments().value(0));
    EXPECT_EQ(values.keys(), (QStringList{"ac", "bpd", "edd", "examDate", "fl", "gravida", "hc", "identifier",
                                          "tabViewIndex"}));
    EXPECT_EQ(values["identifier"], QStringLiteral("AB-123"));
    EXPECT_EQ(values["bpd"], 40.0);
    EXPECT_EQ(values["examDate"], QStringLiteral("2026-12-19"));
  }
}

TEST_F(AScript, mayHandOverEveryTypeOfNumber) {
  start();
  const std::vector<QVariant> twos{QVariant::fromValue<uchar>(2),      QVariant::fromValue<short>(2),
                                   QVariant::fromValue<ushort>(2),     QVariant::fromValue<int>(2),
                                   QVariant::fromValue<uint>(2),       QVariant::fromValue<qlonglong>(2),
                                   QVariant::fromValue<qulonglong>(2), QVariant::fromValue<double>(2.9)};
  for (const QVariant& two : twos) {
    for (const char* key : {"gravida", "tabViewIndex"}) {
      script->set(first, key, 0);
      EXPECT_EQ(script->set(first, key, two).errorMessage(), QString()) << two.typeName();
      EXPECT_EQ(script->get(first, key), QVariant(2LL)) << key << " " << two.typeName();
    }
    EXPECT_EQ(script->set(first, "fl", two).errorMessage(), QString()) << two.typeName();
  }
  EXPECT_EQ(script->get(first, "fl").toDouble(), 2.9000000953674316);
  script->set(first, "gravida", QVariant::fromValue<qulonglong>(18446744073709551615ULL));
  EXPECT_EQ(script->get(first, "gravida"), QVariant(9223372036854775807LL));
}

TEST_F(AScript, isToldPropertyTypeAndUnitWhenItHandsOverTheWrongKind) {
  start();
  const std::vector<std::pair<const char*, QVariant>> wrong{
      {"identifier", 1},
      {"identifier", QVariant::fromValue(QDBusObjectPath("/a"))},
      {"gravida", QStringLiteral("2")},
      {"gravida", true},
      {"edd", 20270410},
      {"edd", QStringLiteral("4/10/2027")},
      {"examDate", QStringLiteral("2027-02-29")},
      {"bpd", QStringLiteral("45")},
      {"hc", true},
      {"ac", QStringList{"1"}},
      {"fl", QVariant::fromValue(QDBusVariant(1.0))},
      {"tabViewIndex", false}};
  for (const auto& [key, value] : wrong) {
    const QDBusMessage answer = script->set(first, key, value);
    EXPECT_EQ(answer.errorName(), kInvalidArguments) << key << " " << value.typeName();
    EXPECT_TRUE(
        answer.errorMessage().startsWith(QStringLiteral("Set: ") + QLatin1String(key) + ": expected "));
  }
  EXPECT_EQ(script->set(first, "bpd", QStringLiteral("45")).errorMessage(),
            QStringLiteral("Set: bpd: expected a number (mm)"));
  // What comes next is the first line.
  script->set(first, "fl", 1.0);
  EXPECT_THAT(log(1), ElementsAre("Scripting: set fl to 1.0"));
}

TEST_F(AScript, takesADateAwayByAnEmptyText) {
  start({file("a.nascor", singleton())});
  EXPECT_EQ(script->get(first, "edd"), QStringLiteral("2027-04-10"));
  script->set(first, "edd", QString(""));
  EXPECT_EQ(script->get(first, "edd"), QVariant(QString("")));
}

TEST_F(AScript, isToldThatAPageIsNotThere) {
  start();
  const QDBusMessage answer = script->set(first, "tabViewIndex", 7);
  EXPECT_EQ(nameOfError(answer), "org.nascor.Error.Range");
  EXPECT_THAT(answer.errorMessage().toStdString(),
              testing::EndsWith("tabViewIndex: expected one of the pages 0 to 6, but got 7"));
  EXPECT_EQ(script->get(first, "tabViewIndex"), QVariant(0LL));
}

TEST_F(AScript, makesExactlyOneDocument) {
  start();
  EXPECT_THAT(script->documents(), ElementsAre(first.toStdString()));
  EXPECT_EQ(script->application("perform", {QStringLiteral("make new document")}).type(),
            QDBusMessage::ReplyMessage);
  EXPECT_THAT(script->documents(), ElementsAre(first.toStdString(), documentPath(2).toStdString()));
  EXPECT_EQ(Caller::pathIn(script->application("currentDocument")), documentPath(2).toStdString());
  const QDBusMessage other = script->application("perform", {QStringLiteral("Make new document")});
  EXPECT_EQ(other.type(), QDBusMessage::ReplyMessage);
  EXPECT_THAT(other.arguments(), IsEmpty());
  EXPECT_EQ(script->documents().size(), 2U);
  EXPECT_THAT(log(1), ElementsAre("make new document"));
}

TEST_F(AScript, opensAFileOnce) {
  start();
  const QString path = file("second & 2%.nascor", twins());
  EXPECT_EQ(Caller::pathIn(script->application("open", {path})), documentPath(2).toStdString());
  EXPECT_EQ(script->get(documentPath(2), "identifier"), QStringLiteral("AB-123"));
  script->application("perform", {QStringLiteral("make new document")});
  EXPECT_EQ(Caller::pathIn(script->application("open", {path})), documentPath(2).toStdString());
  EXPECT_EQ(Caller::pathIn(script->application("currentDocument")), documentPath(2).toStdString());
  // In the order of opening, whichever is in front.
  EXPECT_THAT(script->documents(),
              ElementsAre(first.toStdString(), documentPath(2).toStdString(), documentPath(3).toStdString()));
}

TEST_F(AScript, opensTheGoodFilesAmongBadOnesAndIsToldOfTheBad) {
  start();
  const QString good = QUrl::fromLocalFile(file("good.nascor", twins())).toString();
  const QDBusMessage answer =
      script->call(kApplicationPath, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"),
                   {QStringList{QStringLiteral("https://example.org/x.nascor"), good}, QVariantMap()});
  EXPECT_EQ(answer.errorName(), kInvalidArguments);
  EXPECT_THAT(answer.errorMessage().toStdString(), HasSubstr("\"https://example.org/x.nascor\""));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return script->get(documentPath(2), "identifier") == QVariant(QStringLiteral("AB-123")); },
      kPatience));
}

TEST_F(AScript, cannotHaveAnotherMachinesFileOpened) {
  start();
  const QString mine = QDir(home.path()).filePath(QStringLiteral("mine.nascor"));
  writeFile(mine, documentBytes(singleton()));
  const QString elsewhere = QStringLiteral("file://other.example/y.nascor");
  const auto open = [&](const QStringList& uris) {
    return script->call(kApplicationPath, QStringLiteral("org.freedesktop.Application"),
                        QStringLiteral("Open"), {uris, QVariantMap()});
  };
  const QDBusMessage refused = open({elsewhere});
  EXPECT_EQ(refused.errorName(), kInvalidArguments);
  EXPECT_THAT(refused.errorMessage().toStdString(), HasSubstr("\"file://other.example/y.nascor\""));
  // A question that the first call had left open would hold this one back.
  EXPECT_EQ(open({"file://localhost" + mine}).type(), QDBusMessage::ReplyMessage);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return script->get(documentPath(2), "identifier") == QVariant(QStringLiteral("AB-123")); },
      kPatience));
}

TEST_F(AScript, isToldWhyAFileDoesNotOpen) {
  start();
  EXPECT_EQ(script->application("open", {QStringLiteral("a.nascor")}).errorName(), kInvalidArguments);
  const QDBusMessage missing = script->application("open", {QStringLiteral("/nowhere/a.nascor")});
  EXPECT_EQ(nameOfError(missing), "org.nascor.Error.CannotOpen");
  EXPECT_THAT(missing.errorMessage().toStdString(),
              HasSubstr("/nowhere/a.nascor: No such file or directory"));
  const QString cut = QDir(home.path()).filePath(QStringLiteral("cut.nascor"));
  writeFile(cut, cutDocument());
  const QDBusMessage noDocument = script->application("open", {cut});
  EXPECT_EQ(nameOfError(noDocument), "org.nascor.Error.CannotOpen");
  EXPECT_THAT(noDocument.errorMessage().toStdString(),
              StartsWith("open: cut.nascor is not a Nascor document. (" + cut.toStdString() + ": at byte "));
  EXPECT_EQ(script->documents().size(), 1U);
}

TEST_F(AScript, isRefusedAtOnceWhatAnotherProgramHasOpen) {
  start();
  const QString held = file("held.nascor", twins());
  QProcess other;
  other.start(QStringLiteral(NASCOR_DRIVE), {});
  other.write(("{\"open\":\"" + held + "\"}\n").toUtf8());
  ASSERT_TRUE(other.waitForReadyRead(kPatience));
  const QDBusMessage refused = script->application("open", {held});
  EXPECT_EQ(nameOfError(refused), "org.nascor.Error.CannotOpen");
  EXPECT_THAT(refused.errorMessage().toStdString(),
              HasSubstr(held.toStdString() + ": It is open elsewhere."));
  EXPECT_THAT(refused.errorMessage().toStdString(),
              HasSubstr("Process: " + std::to_string(other.processId())));
  EXPECT_EQ(script->documents().size(), 1U) << "no question waits, and no window has come";
  other.closeWriteChannel();
  ASSERT_TRUE(other.waitForFinished(kPatience));
  EXPECT_EQ(Caller::pathIn(script->application("open", {held})), documentPath(2).toStdString());
}

TEST_F(AScript, isToldWhatIsNotThere) {
  start();
  const auto call = [&](const QString& path, const char* interface, const char* member,
                        const QVariantList& arguments = {}) {
    return nameOfError(script->call(path, QLatin1String(interface), QLatin1String(member), arguments));
  };
  const std::string unknown = "org.freedesktop.DBus.Error.Unknown";
  for (const QString& path : {documentPath(2), documentPath(0), kApplicationPath + "/documents/01",
                              kApplicationPath + "/documents/1/1", kApplicationPath + "/patients"}) {
    EXPECT_EQ(nameOfError(script->getting(path, "bpd")), unknown + "Object") << path.toStdString();
  }
  EXPECT_EQ(call(kApplicationPath, "org.nascor.Application", "quit"), unknown + "Method");
  EXPECT_EQ(call(kApplicationPath, "org.nascor.Document", "documents"), unknown + "Interface");
  EXPECT_EQ(call(first, "org.nascor.Application", "documents"), unknown + "Interface");
  EXPECT_EQ(call(kApplicationPath, "org.nascor.Application", "open"), kInvalidArguments.toStdString());
  EXPECT_EQ(call(kApplicationPath, "org.nascor.Application", "documents", {1}),
            kInvalidArguments.toStdString());
  EXPECT_EQ(call(kApplicationPath, "org.nascor.Application", "perform", {1}),
            kInvalidArguments.toStdString());
  EXPECT_EQ(nameOfError(script->getting(first, "efw")), unknown + "Property");
  EXPECT_EQ(nameOfError(script->set(first, "efw", 1)), unknown + "Property");
  const char* properties = "org.freedesktop.DBus.Properties";
  EXPECT_EQ(call(first, properties, "Get", {"org.nascor.Patient", "bpd"}), unknown + "Interface");
  EXPECT_EQ(call(first, properties, "GetAll", {"org.nascor.Patient"}), unknown + "Interface");
  EXPECT_EQ(call(first, properties, "Set", {"org.nascor.Document", "bpd", 1.0}),
            kInvalidArguments.toStdString());
  // An interface may be left out.
  EXPECT_EQ(call(kApplicationPath, "", "documents"), "");
}

TEST_F(AScript, isAnsweredWhileTheUserIsAsked) {
  start();
  const QString cut = QDir(home.path()).filePath(QStringLiteral("cut.nascor"));
  writeFile(cut, cutDocument());
  EXPECT_EQ(
      script
          ->call(kApplicationPath, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"),
                 {QStringList{QUrl::fromLocalFile(cut).toString()}, QVariantMap()})
          .type(),
      QDBusMessage::ReplyMessage);
  // The application now tells the user, who is not there, that the file cannot be read.
  EXPECT_EQ(script->set(first, "bpd", 45.0).type(), QDBusMessage::ReplyMessage);
  EXPECT_EQ(script->get(first, "bpd"), QVariant(45.0));
}

TEST_F(AScript, hasNothingToExportWithoutADocument) {
  start({QStringLiteral("--service")});
  EXPECT_THAT(script->documents(), IsEmpty());
  EXPECT_EQ(Caller::pathIn(script->application("currentDocument")), "/");
  const QDBusMessage answer = script->application("perform", {QStringLiteral("export to file")});
  EXPECT_EQ(nameOfError(answer), "org.nascor.Error.Assertion");
  EXPECT_EQ(answer.errorMessage(), QStringLiteral("perform: Value==nil (NascorScriptCommand:22)"));
  EXPECT_THAT(log(1), ElementsAre("export to file"));
  // Told as every failed assertion is.
  EXPECT_THAT(said, HasSubstr("nascor: Value==nil (NascorScriptCommand:22); the action was abandoned\n"));
}

TEST_F(AScript, cannotForgeALineOfTheLog) {
  start();
  script->set(first, "identifier", QStringLiteral("A\nScripting: set gravida to 9"));
  EXPECT_THAT(log(1), ElementsAre("Scripting: set identifer to A\\nScripting: set gravida to 9"));
}

TEST_F(AScript, findsAnApplicationThatEndsWhenNobodyWantsAnythingOfIt) {
  start({QStringLiteral("--service")});
  EXPECT_TRUE(nascor.waitForFinished(kPatience));
  EXPECT_EQ(nascor.exitCode(), 0);
}

/// The resident memory of a process, in KiB.
qint64 residentKibibytes(qint64 process) {
  for (const QString& line : textOfFile(QStringLiteral("/proc/%1/status").arg(process)).split(u'\n')) {
    if (line.startsWith(QStringLiteral("VmRSS:"))) return line.simplified().section(u' ', 1, 1).toLongLong();
  }
  return 0;
}

TEST_F(AScript, mayWriteTenThousandTimesWhileOthersAreAnswered) {
  start();
  Caller other(QStringLiteral("another caller"));
  constexpr int kBurst = 100;
  qint64 residentBefore = 0;
  std::vector<qint64> pings;
  for (int burst = 0; burst < 10'000 / kBurst; ++burst) {
    if (burst == 10) residentBefore = residentKibibytes(nascor.processId());
    std::vector<QDBusPendingCall> pending;
    for (int i = 0; i < kBurst; ++i) {
      // Each is another value, so that no write is like the one before.
      pending.push_back(
          script->bus().asyncCall(Caller::settingOf(first, "bpd", 0.01 * (burst * kBurst + i))));
    }
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(other.call(first, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")).type(),
              QDBusMessage::ReplyMessage);
    pings.push_back(timer.elapsed());
    for (QDBusPendingCall& call : pending) {
      call.waitForFinished();
      ASSERT_FALSE(call.isError()) << call.error().message().toStdString();
    }
    QCoreApplication::processEvents();  // its log is read, or it would wait for that
  }
  const qint64 grown = residentKibibytes(nascor.processId()) - residentBefore;
  EXPECT_EQ(script->get(first, "bpd").toDouble(), static_cast<double>(99.99F));
  // Whoever waits for the others' writes waits each time. Now and then it is the machine that is busy elsewhere.
  constexpr std::ptrdiff_t kOften = 3;
  EXPECT_LT(std::ranges::count_if(pings, [](qint64 each) { return each > 100; }), kOften);
  std::printf("10,000 writes: %lld KiB more than after 1,000, slowest Ping %lld ms\n", grown,
              *std::ranges::max_element(pings));
  // The sanitizers keep what was freed.
#if !defined(__SANITIZE_ADDRESS__) && !(defined(__clang__) && __has_feature(address_sanitizer))
  EXPECT_LT(grown, 1024);
#endif
}

TEST_F(AScript, opensNoMoreThanAHundredWindows) {
  start({QStringLiteral("--service")});
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(script->application("perform", {QStringLiteral("make new document")}).type(),
              QDBusMessage::ReplyMessage);
  }
  const QDBusMessage answer = script->application("perform", {QStringLiteral("make new document")});
  EXPECT_EQ(nameOfError(answer), kLimitsExceeded);
  EXPECT_EQ(answer.errorMessage(),
            QStringLiteral("perform: callers may open no more than 100 documents; close some"));
  const QString path = file("one.nascor", singleton());
  EXPECT_EQ(nameOfError(script->application("open", {path})), kLimitsExceeded);
  const auto desktop = [&](const char* member, const QVariantList& arguments) {
    return nameOfError(script->call(kApplicationPath, QStringLiteral("org.freedesktop.Application"),
                                    QLatin1String(member), arguments));
  };
  EXPECT_EQ(desktop("ActivateAction", {QStringLiteral("new"), QVariantList(), QVariantMap()}),
            kLimitsExceeded);
  EXPECT_EQ(desktop("Open", {QStringList{QUrl::fromLocalFile(path).toString()}, QVariantMap()}),
            kLimitsExceeded);
  EXPECT_EQ(script->documents().size(), 100U);
}

TEST_F(AScript, storesNoTextOfMoreThanAMebibyte) {
  start();
  const QString longest(1024 * 1024, u'x');
  EXPECT_EQ(script->set(first, "identifier", longest).type(), QDBusMessage::ReplyMessage);
  const QDBusMessage answer = script->set(first, "identifier", longest + u'x');
  EXPECT_EQ(nameOfError(answer), kLimitsExceeded);
  EXPECT_EQ(answer.errorMessage(), QStringLiteral("Set: a text has no more than 1048576 bytes"));
  EXPECT_EQ(script->get(first, "identifier").toString().size(), longest.size());
}

class AnExample : public AScript, public testing::WithParamInterface<const char*> {};

TEST_P(AnExample, makesAPatientAndExportsAPage) {
  start();
  const Answer answer =
      run(QStringLiteral(NASCOR_RESOURCES "/examples/") + QLatin1String(GetParam()),
          {"AB \"12\" \\ 3", "2027-04-10", "2026-11-21", "48.5", "170", "150.2", "31"}, environment);
  EXPECT_EQ(answer.status, 0) << answer.error;
  EXPECT_EQ(answer.output, documentPath(2).toStdString() + "\n");
  const QString made = documentPath(2);
  EXPECT_EQ(script->get(made, "identifier"), QStringLiteral("AB \"12\" \\ 3"));
  EXPECT_EQ(script->get(made, "gravida"), QVariant(1LL));
  EXPECT_EQ(script->get(made, "edd"), QStringLiteral("2027-04-10"));
  EXPECT_EQ(script->get(made, "examDate"), QStringLiteral("2026-11-21"));
  EXPECT_EQ(script->get(made, "bpd"), QVariant(48.5));
  EXPECT_EQ(script->get(made, "hc"), QVariant(170.0));
  EXPECT_EQ(script->get(made, "ac").toDouble(), static_cast<double>(150.2F));
  EXPECT_EQ(script->get(made, "fl"), QVariant(31.0));
  EXPECT_EQ(script->get(made, "tabViewIndex"), QVariant(1LL));
  const QStringList exported = QDir(home.filePath(QStringLiteral("Documents"))).entryList(QDir::Files);
  ASSERT_EQ(exported.size(), 1) << exported.join(u' ').toStdString();
  EXPECT_TRUE(exported[0].startsWith("AB ") && exported[0].endsWith("(G1) - BPD.pdf"))
      << exported[0].toStdString();
  QFile page(home.filePath("Documents/" + exported[0]));
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  EXPECT_EQ(page.read(5), "%PDF-");
}

TEST_P(AnExample, saysWhatIsWrong) {
  start();
  const QString program = QStringLiteral(NASCOR_RESOURCES "/examples/") + QLatin1String(GetParam());
  EXPECT_EQ(run(program, {}, environment).status, 2);
  const Answer answer =
      run(program, {"AB-123", "10 April", "2026-11-21", "48.5", "170", "150.2", "31"}, environment);
  EXPECT_EQ(answer.status, 1);
  EXPECT_THAT(answer.error, HasSubstr("edd: expected an ISO 8601 date"));
  const Answer comma =
      run(program, {"AB-123", "2027-04-10", "2026-11-21", "48.5", "170", "45,3", "31"}, environment);
  EXPECT_EQ(comma.status, 1);
  EXPECT_EQ(comma.error, "ac: expected a length in mm such as 45.3, but \"45,3\" was given\n");
  EXPECT_EQ(script->documents().size(), 1U) << "nothing is half done";
}

INSTANTIATE_TEST_SUITE_P(inTwoLanguages, AnExample,
                         testing::Values("make-and-export.sh", "make_and_export.py"), [](const auto& row) {
                           return std::string(row.param).ends_with("py") ? "python" : "shell";
                         });

/// The circumference of a head that was written down last; each is larger than the one before.
double lastIn(const std::string& json) {
  static const std::regex kCircumference("\"hc\":([0-9.]+)");
  double last = 0.0;
  for (std::sregex_iterator found(json.begin(), json.end(), kCircumference), end; found != end; ++found)
    last = std::max(last, std::stod((*found)[1]));
  return last;
}

// As many times as NASCOR_KILLS says, at moments of which NASCOR_KILL_SEED is the beginning.
TEST_F(AScript, losesNoMoreThanTheLastTwoSecondsWhereTheProgramIsKilled) {
  const int kills = qEnvironmentVariable("NASCOR_KILLS", QStringLiteral("3")).toInt();
  const auto seed = qEnvironmentVariableIsSet("NASCOR_KILL_SEED")
                        ? qEnvironmentVariable("NASCOR_KILL_SEED").toUInt()
                        : std::random_device()();
  std::cout << "NASCOR_KILL_SEED=" << seed << std::endl;
  std::mt19937 chance(seed);
  const QString path = file("a.nascor", singleton());
  const auto untouched = documentBytes(singleton());
  const QString recovery = QDir(home.path()).filePath(QStringLiteral("nascor/recovery"));
  const QString cli = QStringLiteral(NASCOR_CLI);
  constexpr qint64 kLongestLoss = 2000;  // ms
  qint64 longestLoss = 0;
  for (int i = 0; i < kills; ++i) {
    ASSERT_NO_FATAL_FAILURE(start({path}));
    const auto lifetime = static_cast<qint64>(chance() % 6000);
    std::vector<std::pair<qint64, double>> written;  // when it was answered, and what
    QElapsedTimer clock;
    clock.start();
    for (double value = 350.0; clock.elapsed() < lifetime; value += 0.25) {
      ASSERT_EQ(script->set(first, "hc", value).errorName(), QString());
      written.emplace_back(clock.elapsed(), value);
      QTest::qWait(static_cast<int>(chance() % 80));
    }
    const qint64 end = clock.elapsed();
    nascor.kill();
    ASSERT_TRUE(nascor.waitForFinished(kPatience));
    script.reset();

    EXPECT_EQ(bytesOfFile(path), untouched) << "nobody has saved";
    double last = 0.0;
    for (const QString& name : QDir(recovery).entryList({QStringLiteral("*.nascor")}, QDir::Files)) {
      const Answer read = run(cli, {QStringLiteral("json"), recovery + "/" + name});
      EXPECT_EQ(read.status, 0) << read.error;
      last = std::max(last, lastIn(read.output));
    }
    EXPECT_EQ(run(cli, {QStringLiteral("recover")}, environment).status, 0);
    for (const auto& [moment, value] : written) {
      if (value <= last) continue;
      longestLoss = std::max(longestLoss, end - moment);
      EXPECT_LE(end - moment, kLongestLoss) << value << " was written after " << moment << " ms, " << last
                                            << " was kept, and the program killed after " << end;
      break;
    }
    QDir(recovery).removeRecursively();
  }
  std::cout << kills << " kills, at most " << longestLoss << " ms lost" << std::endl;
}

/// The bus starts the application as the installed service file says, whatever prefix the installation was given.
TEST(ABusWithAnInstallation, startsTheApplicationForAScript) {
  QTemporaryDir home;
  const QString prefix = home.filePath(QStringLiteral("my programs/$nascor"));
  const Answer installed =
      run(QStringLiteral(NASCOR_CMAKE), {"-DCMAKE_INSTALL_PREFIX=" + prefix, "-P", NASCOR_QT_INSTALL});
  ASSERT_EQ(installed.status, 0) << installed.error;
  const QString configuration = home.filePath(QStringLiteral("bus.conf"));
  writeFile(configuration, QStringLiteral(R"(<busconfig><type>session</type>
<listen>unix:dir=%1</listen><servicedir>%2/share/dbus-1/services</servicedir>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>)")
                               .arg(home.path(), prefix)
                               .toUtf8());
  const SessionBus bus({QStringLiteral("--config-file=") + configuration});
  Caller script;
  ASSERT_TRUE(script.bus().isConnected());
  const QDBusMessage answer = script.application("perform", {QStringLiteral("make new document")});
  EXPECT_EQ(answer.errorMessage(), QString());
  EXPECT_THAT(script.documents(), ElementsAre(documentPath(1).toStdString()));
  const auto process = script.bus().interface()->servicePid(QStringLiteral("org.nascor.Nascor"));
  ASSERT_TRUE(process.isValid());
  // By the words of its start: a program that leaves no core dumps shows the file that it is to the administrator alone.
  QFile words(QStringLiteral("/proc/%1/cmdline").arg(process.value()));
  ASSERT_TRUE(words.open(QFile::ReadOnly));
  EXPECT_EQ(words.readAll().split('\0').constFirst(), QFile::encodeName(prefix + "/bin/nascor"));
  ::kill(static_cast<pid_t>(process.value()), SIGKILL);  // its document's window would stay
}

/// A package is put together under a folder of its own, of which the installed file knows nothing.
TEST(AStagedInstallation, namesTheProgramWhereItWillLie) {
  QTemporaryDir stage;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DESTDIR", stage.path());
  const Answer installed = run(QStringLiteral(NASCOR_CMAKE),
                               {"-DCMAKE_INSTALL_PREFIX=/usr", "-P", NASCOR_QT_INSTALL}, environment);
  ASSERT_EQ(installed.status, 0) << installed.error;
  EXPECT_THAT(
      textOfFile(stage.filePath(QStringLiteral("usr/share/dbus-1/services/org.nascor.Nascor.service")))
          .toStdString(),
      HasSubstr("Exec=\"/usr/bin/nascor\" --service\n"));
}

TEST(TheApplication, runsWithoutABusAndSaysOnceThatScriptsCannotDriveIt) {
  QTemporaryDir home;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DBUS_SESSION_BUS_ADDRESS");
  environment.insert("XDG_RUNTIME_DIR", home.path());
  environment.insert("XDG_CONFIG_HOME", home.path());
  environment.insert("XDG_STATE_HOME", home.path());
  QProcess nascor;
  nascor.setProcessEnvironment(environment);
  nascor.start(QStringLiteral(NASCOR_PROGRAM), {});
  QByteArray said;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        said += nascor.readAllStandardError();
        return said.contains("Scripting: not available, because there is no session bus\n");
      },
      kPatience));
  EXPECT_EQ(nascor.state(), QProcess::Running);
  nascor.kill();
  nascor.waitForFinished(kPatience);
  said += nascor.readAllStandardError();
  EXPECT_EQ(said.count("Scripting:"), 1);
}

}  // namespace
}  // namespace nascor::tests

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // Neither the tests' application nor the user's own is to find the other.
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  const QTemporaryDir userHome;
  qputenv("XDG_CONFIG_HOME", userHome.path().toUtf8());
  qputenv("XDG_STATE_HOME", userHome.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", userHome.path().toUtf8());
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
