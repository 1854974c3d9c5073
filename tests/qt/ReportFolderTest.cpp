// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/ReportFolder.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMenu>
#include <QToolButton>

#include "WindowTest.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheReportFolder : public WindowTest {
 protected:
  TheReportFolder() { watch(); }

  void watch() {
    watched.emplace(platform.services(), [this](const QString& path) {
      imported.push_back(QFileInfo(path).fileName().toStdString());
      return userStores;
    });
  }
  /// A report that has lain there for a minute.
  void put(const QString& name, const char* id = "AB-123", int seconds = 60) {
    model::PatientRecord patient = singleton();
    patient.setMaternalIDString(id);
    patient.ncRecordsArray().resize(1);
    const auto examinations = exchange::outgoingExaminations(patient, platform.calendar);
    const auto text = exchange::writeFhir(examinations, exchange::FhirForm::bundle);
    putFile(name, QByteArray::fromStdString(text), seconds);
  }
  void putFile(const QString& name, const QByteArray& bytes, int seconds = 60) {
    const QString path = reports.filePath(name);
    writeFile(path, bytes);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime);
  }
  std::vector<std::string> waiting() {
    std::vector<std::string> texts;
    for (const auto& report : watched->reports()) texts.push_back(report.text.toStdString());
    return texts;
  }

  QTemporaryDir reports;
  std::vector<std::string> imported;
  bool userStores = true;
  std::optional<qt::ReportFolder> watched;
};

TEST_F(TheReportFolder, offersEachReportOnce) {
  put(QStringLiteral("b.json"), "AB-1", 30);
  put(QStringLiteral("a.json"), "AB-2", 90);
  watched->begin(reports.path());
  EXPECT_THAT(waiting(), ElementsAre(testing::StartsWith("AB-2, "), testing::StartsWith("AB-1, ")));

  watched->import(watched->reports()[0].path);
  EXPECT_THAT(imported, ElementsAre("a.json"));
  EXPECT_THAT(waiting(), ElementsAre(testing::StartsWith("AB-1, ")));
  userStores = false;
  watched->import(watched->reports()[0].path);
  EXPECT_THAT(waiting(), ElementsAre(testing::StartsWith("AB-1, "))) << "it was looked at only";

  // The next start of the program knows the one, and still offers the other.
  watch();
  watched->begin(reports.path());
  EXPECT_THAT(waiting(), ElementsAre(testing::StartsWith("AB-1, ")));
  watched->setAside();
  EXPECT_THAT(waiting(), IsEmpty());
  watch();
  watched->begin(reports.path());
  EXPECT_THAT(waiting(), IsEmpty());
  EXPECT_TRUE(QFile::exists(reports.filePath(QStringLiteral("a.json"))));

  put(QStringLiteral("a.json"), "AB-2", 10);  // written anew
  watch();
  watched->begin(reports.path());
  EXPECT_THAT(waiting(), ElementsAre(testing::StartsWith("AB-2, ")));
}

TEST_F(TheReportFolder, passesOverWhatIsNoReport) {
  putFile(QStringLiteral("letter.txt"), "Dear colleague");
  putFile(QStringLiteral("other.json"), "{\"resourceType\":\"Patient\"}");
  putFile(QStringLiteral("picture.dcm"), QByteArray(128, '\0') + "DICM");
  putFile(QStringLiteral("a.nascor"), documentBytes(singleton()));
  watched->begin(reports.path());
  EXPECT_THAT(waiting(), IsEmpty());
}

TEST_F(TheReportFolder, waitsUntilAFileIsWholeAndSeesItThen) {
  watched->begin(reports.path());
  put(QStringLiteral("a.json"), "AB-1", 0);
  EXPECT_THAT(waiting(), IsEmpty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return waiting().size() == 1; }, 10'000));
}

TEST_F(TheReportFolder, isRememberedAndCanBeSwitchedOff) {
  put(QStringLiteral("a.json"));
  watched->setFolder(reports.path());
  EXPECT_EQ(waiting().size(), 1U);
  watch();
  watched->begin({});
  EXPECT_EQ(watched->folder(), reports.path());
  EXPECT_EQ(waiting().size(), 1U);
  watched->setFolder({});
  EXPECT_THAT(waiting(), IsEmpty());
  watch();
  watched->begin({});
  EXPECT_THAT(waiting(), IsEmpty());
}

TEST_F(TheReportFolder, keepsNoNamesOfFilesInThePreferences) {
  put(QStringLiteral("Miller-Jane.json"));
  watched->begin(reports.path());
  watched->setAside();
  EXPECT_THAT(platform.defaults.value("Known Reports").value(), testing::Not(testing::HasSubstr("Miller")));
}

TEST_F(TheReportFolder, isChosenInItsDialog) {
  openBlank();
  QTimer chooses;
  QObject::connect(&chooses, &QTimer::timeout, [&] {
    if (auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
      panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(reports.path());
      QTest::keyClick(panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
      return;
    }
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->objectName() != QStringLiteral("reportFolderDialog")) return;
    chooses.setInterval(20);
    auto* isWatched = dialog->findChild<QCheckBox*>(QStringLiteral("watchReportFolder"));
    QPushButton* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    if (isWatched->isChecked() && ok->isEnabled()) {
      chooses.stop();
      ok->click();
      return;
    }
    isWatched->click();
    EXPECT_FALSE(ok->isEnabled()) << "no folder was chosen";
    isWatched->click();
    dialog->findChild<QPushButton*>(QStringLiteral("chooseReportFolder"))->click();
  });
  chooses.start(1);
  action("reportFolderAction").trigger();
  EXPECT_EQ(application.reportFolder().folder(), reports.path());
}

TEST_F(TheReportFolder, showsItselfInTheBottomLineOfEachWindow) {
  openBlank();
  auto& button = widget<QToolButton>("waitingReports");
  EXPECT_FALSE(button.isVisible());
  put(QStringLiteral("a.json"), "AB&1");
  application.reportFolder().begin(reports.path());
  EXPECT_TRUE(button.isVisible());
  EXPECT_EQ(button.text().toStdString(), "1 report has come");
  emit button.menu()->aboutToShow();
  EXPECT_THAT(button.menu()->actions()[0]->text().toStdString(), testing::StartsWith("AB&&1, "));
  button.menu()->actions().constLast()->trigger();
  EXPECT_FALSE(button.isVisible());
}

}  // namespace
}  // namespace nascor::tests
