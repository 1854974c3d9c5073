// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ServerMenu.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QProgressDialog>
#include <QSpinBox>
#include <QTableWidget>
#include <atomic>

#include "WindowTest.h"
#include "window/ServerSettings.h"

namespace nascor::tests {
namespace {

using exchange::ReportPlace;
using exchange::ReportQuery;
using exchange::ServerAddress;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A server that knows what a test gives it.
class FakeServer final : public exchange::ReportServer {
 public:
  std::vector<ReportPlace> places;
  std::optional<foundation::Sentence> fault;
  std::vector<std::string> asked;
  std::vector<std::string> sent;
  std::atomic<bool> isSlow = false;
  /// Lets a question that waits go on.
  void hurry() {
    isSlow = false;
    isSlow.notify_all();
  }

 private:
  void note(const char* what, const ServerAddress& address, const std::string& more = "") {
    isSlow.wait(true);
    asked.push_back(std::string(what) + " " + address.host + " " + more);
  }
  std::optional<foundation::Sentence> doEcho(const ServerAddress& address) override {
    note("echo", address);
    return fault;
  }
  std::variant<exchange::FoundReports, foundation::Sentence> doFind(const ServerAddress& address,
                                                                    const ReportQuery& query) override {
    note("find", address, query.patientID);
    if (fault) return *fault;
    return exchange::FoundReports{.places = places, .warnings = {}};
  }
  std::variant<exchange::FetchedReports, foundation::Sentence> doFetch(const ServerAddress& address,
                                                                       const ReportQuery& query) override {
    note("fetch", address, query.study);
    exchange::FetchedReports fetched;
    for (const ReportPlace& place : places) {
      if (place.study != query.study) continue;
      const auto bytes = std::as_bytes(std::span(place.instance));
      fetched.reports.push_back({.place = place, .file = {bytes.begin(), bytes.end()}});
    }
    return fetched;
  }
  std::optional<exchange::SendFault> doSend(const ServerAddress& address,
                                            std::span<const std::byte> file) override {
    note("send", address);
    if (fault) return exchange::SendFault{.sentence = *fault};
    sent.emplace_back(reinterpret_cast<const char*>(file.data()), file.size());
    return std::nullopt;
  }
};

/// Writes the day of a report and nothing else.
class FakeFiles final : public exchange::ReportFiles {
 public:
  std::variant<exchange::StructuredReport, foundation::Sentence> read(std::span<const std::byte>) override {
    return foundation::Sentence::verbatim("is not read here");
  }
  std::variant<std::vector<std::byte>, foundation::Sentence> write(
      const exchange::StructuredReport& report) override {
    const std::string text = report.patientID + " " + report.studyDate;
    const auto bytes = std::as_bytes(std::span(text));
    return std::vector<std::byte>(bytes.begin(), bytes.end());
  }
};

class TheServerMenu : public WindowTest {
 protected:
  TheServerMenu() {
    open(singleton());
    new qt::ServerMenu(
        front(), menu,
        {.services = platform.services(),
         .alerts = alerts,
         .perform = [this](const qt::DocumentAction& action) { action(document()); },
         .task = task,
         .server = [this] { return findServer; },
         .reportFiles = [this]() -> std::variant<exchange::ReportFiles*, foundation::Sentence> {
           return &files;
         },
         .import =
             [this](std::vector<std::vector<std::byte>> all, app::NCDocument&) {
               for (const auto& each : all)
                 imported.emplace_back(reinterpret_cast<const char*>(each.data()), each.size());
             }});
  }
  ~TheServerMenu() override { server.hurry(); }

  QAction& item(const char* name) {
    for (QAction* each : menu.actions()) {
      if (each->objectName() == QLatin1String(name)) return *each;
    }
    throw std::runtime_error(name);
  }
  void setUp() {
    platform.defaults.setValue("Server Host", "archive.example");
    platform.defaults.setValue("Server Port", "104");
    platform.defaults.setValue("Server Title", "ARCHIVE");
    platform.defaults.setValue("Server Own Title", "NASCOR");
  }
  /// What is done to the next dialog of the kind.
  template <class Dialog>
  void then(const std::function<void(Dialog&)>& use, const char* name = "") {
    auto* eyes = new QTimer(&context);
    QObject::connect(eyes, &QTimer::timeout, eyes, [eyes, use, name] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog || (*name != '\0' && dialog->objectName() != QLatin1String(name))) return;
      eyes->stop();
      use(*dialog);
    });
    eyes->start(1);
  }
  static void click(QDialog& dialog, QDialogButtonBox::StandardButton which) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
  }
  void thenAskFor(const char* id) {
    then<QInputDialog>([this, id](QInputDialog& dialog) {
      proposed = dialog.textValue().toStdString();
      dialog.setTextValue(QString::fromUtf8(id));
      dialog.accept();
    });
  }

  FakeServer server;
  FakeFiles files;
  std::variant<exchange::ReportServer*, foundation::Sentence> findServer = &server;
  ScriptedAlerts alerts;
  std::vector<std::string> imported;
  std::string proposed;
  QMenu menu;
  QObject context;
  qt::ServerTask task;
};

TEST_F(TheServerMenu, asksNobodyUntilAServerIsNamed) {
  emit menu.aboutToShow();
  EXPECT_FALSE(item("fetchReportsAction").isEnabled());
  EXPECT_FALSE(item("sendExaminationAction").isEnabled());
  item("sendExaminationAction").setEnabled(true);
  item("sendExaminationAction").trigger();
  EXPECT_THAT(server.asked, IsEmpty());
  ASSERT_FALSE(alerts.told.empty());
  setUp();
  emit menu.aboutToShow();
  EXPECT_TRUE(item("fetchReportsAction").isEnabled());
}

TEST_F(TheServerMenu, keepsTheServerThatIsNamedAndTriesItWhenTold) {
  server.fault = foundation::Sentence::verbatim("the server refuses the title");
  then<QDialog>([this](QDialog& dialog) {
    const auto line = [&](const char* name) { return dialog.findChild<QLineEdit*>(QLatin1String(name)); };
    auto* answer = dialog.findChild<QLabel*>(QStringLiteral("serverAnswer"));
    auto* test = dialog.findChild<QPushButton*>(QStringLiteral("testServer"));
    EXPECT_THAT(answer->text().toStdString(), HasSubstr("contacts no server"));
    EXPECT_FALSE(test->isEnabled());
    line("serverHost")->setText(QStringLiteral("archive.example"));
    EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
    line("serverTitle")->setText(QStringLiteral("ARCHIVE"));
    dialog.findChild<QSpinBox*>(QStringLiteral("serverPort"))->setValue(104);
    EXPECT_THAT(answer->text().toStdString(), HasSubstr("in clear"));
    test->click();
    EXPECT_EQ(answer->text().toStdString(), "the server refuses the title");
    server.fault.reset();
    test->click();
    EXPECT_EQ(answer->text().toStdString(), "The server answers.");
    click(dialog, QDialogButtonBox::Ok);
  });
  item("serverSettingsAction").trigger();
  EXPECT_EQ(server.asked.size(), 2U);
  const auto kept = qt::preferredServer(platform.defaults);
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->host, "archive.example");
  EXPECT_EQ(kept->port, 104);
  EXPECT_EQ(kept->serverTitle, "ARCHIVE");
  EXPECT_EQ(kept->ownTitle, "NASCOR");
  EXPECT_FALSE(kept->tls);
}

TEST_F(TheServerMenu, takesTheFilesOfAnEncryptedConnection) {
  setUp();
  then<QDialog>([](QDialog& dialog) {
    auto* authority = dialog.findChild<QLineEdit*>(QStringLiteral("serverAuthority"));
    EXPECT_FALSE(authority->isEnabled());
    dialog.findChild<QCheckBox*>(QStringLiteral("serverEncrypted"))->click();
    EXPECT_TRUE(authority->isEnabled());
    authority->setText(QStringLiteral("/etc/ssl/clinic.pem"));
    click(dialog, QDialogButtonBox::Ok);
  });
  item("serverSettingsAction").trigger();
  const auto kept = qt::preferredServer(platform.defaults);
  ASSERT_TRUE(kept && kept->tls);
  EXPECT_EQ(kept->tls->authorityFile, "/etc/ssl/clinic.pem");
}

TEST_F(TheServerMenu, fetchesTheReportsThatAreChosen) {
  setUp();
  server.places = {{.patientID = "AB-123",
                    .studyDate = "20261001",
                    .study = "1.2",
                    .series = "1.2.1",
                    .instance = "1.2.1.1"},
                   {.patientID = "AB-123",
                    .studyDate = "20261113",
                    .study = "1.3",
                    .series = "1.3.1",
                    .instance = "1.3.1.1"},
                   {.patientID = "AB-123",
                    .studyDate = "20261113",
                    .study = "1.3",
                    .series = "1.3.1",
                    .instance = "1.3.1.2"}};
  thenAskFor("AB-123");
  then<QDialog>(
      [](QDialog& dialog) {
        auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("fetchTable"));
        EXPECT_EQ(table->item(0, 0)->text(), QStringLiteral("13 November 2026")) << "the newest first";
        table->selectRow(1);
        click(dialog, QDialogButtonBox::Ok);
      },
      "fetchDialog");
  item("fetchReportsAction").trigger();
  EXPECT_EQ(proposed, document().patientRecord()->maternalIDString());
  EXPECT_THAT(imported, ElementsAre("1.3.1.2"));
  EXPECT_THAT(server.asked, ElementsAre("find archive.example AB-123", "fetch archive.example 1.3"));
}

TEST_F(TheServerMenu, tellsWhatTheServerSaysAndWhereItHasNothing) {
  setUp();
  thenAskFor("ZZ-1");
  item("fetchReportsAction").trigger();
  ASSERT_EQ(alerts.told.size(), 1U);
  EXPECT_THAT(alerts.told[0], HasSubstr("no report of the patient ZZ-1"));
  server.fault = foundation::Sentence::verbatim("the server cannot be reached");
  thenAskFor("ZZ-1");
  item("fetchReportsAction").trigger();
  ASSERT_EQ(alerts.told.size(), 2U);
  EXPECT_THAT(alerts.told[1], HasSubstr("cannot be reached"));
}

TEST_F(TheServerMenu, sendsTheExaminationOnShowAfterAQuestion) {
  setUp();
  alerts.answers = {"Cancel"};
  item("sendExaminationAction").trigger();
  EXPECT_THAT(server.sent, IsEmpty());
  ASSERT_EQ(alerts.asked.size(), 1U);
  EXPECT_THAT(alerts.asked[0].information,
              AllOf(HasSubstr(*document().patientRecord()->maternalIDString()), HasSubstr("ARCHIVE"),
                    HasSubstr("archive.example:104"), HasSubstr("not encrypted")));
  alerts.answers = {"Send"};
  item("sendExaminationAction").trigger();
  ASSERT_EQ(server.sent.size(), 1U);
  EXPECT_THAT(server.sent[0], HasSubstr(*document().patientRecord()->maternalIDString()));
}

TEST_F(TheServerMenu, needNotBeWaitedFor) {
  setUp();
  server.isSlow = true;
  thenAskFor("AB-123");
  then<QProgressDialog>([](QProgressDialog& progress) { progress.findChild<QPushButton*>()->click(); });
  item("fetchReportsAction").trigger();
  EXPECT_THAT(alerts.told, IsEmpty());
  // While the old question is still open no second one is asked.
  thenAskFor("AB-123");
  then<QProgressDialog>([](QProgressDialog& progress) { progress.findChild<QPushButton*>()->click(); });
  item("fetchReportsAction").trigger();
  server.hurry();
}

TEST_F(TheServerMenu, saysWhereNothingSpeaksToServers) {
  setUp();
  findServer = foundation::Sentence::verbatim("the module is not installed");
  thenAskFor("AB-123");
  item("fetchReportsAction").trigger();
  ASSERT_EQ(alerts.told.size(), 1U);
  EXPECT_THAT(alerts.told[0], HasSubstr("the module is not installed"));
}

}  // namespace
}  // namespace nascor::tests
