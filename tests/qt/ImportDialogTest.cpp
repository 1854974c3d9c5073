// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ImportDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QTableView>

#include "WindowTest.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"

namespace nascor::tests {
namespace {

using exchange::FhirForm;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Reports as bundles, which every build reads.
class TheImportDialog : public WindowTest {
 protected:
  /// A report of all examinations of a patient.
  QString reportOf(const model::PatientRecord& patient, const QString& name = QStringLiteral("report.json")) {
    const auto examinations = exchange::outgoingExaminations(patient, platform.calendar);
    return file(name, QByteArray::fromStdString(exchange::writeFhir(examinations, FhirForm::bundle)));
  }
  /// What is done in the dialog once it stands open; the test fails where it leaves the dialog open.
  void then(const std::function<void()>& use) {
    auto* eyes = new QTimer(&context);
    QObject::connect(eyes, &QTimer::timeout, eyes, [this, eyes, use] {
      auto* shown = dynamic_cast<qt::ImportDialog*>(QApplication::activeModalWidget());
      if (!shown || !shown->isVisible()) return;
      eyes->stop();
      dialog = shown;
      try {
        use();
      } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
      }
      if (!dialog || !dialog->isVisible()) return;
      ADD_FAILURE() << "the dialog is still open";
      dialog->reject();
    });
    eyes->start(1);
  }
  void chooseFile(const QString& path) {
    auto* eyes = new QTimer(&context);
    QObject::connect(eyes, &QTimer::timeout, eyes, [eyes, path] {
      auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!panel) return;
      eyes->stop();
      auto* edit = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      edit->setText(path);
      QTest::keyClick(edit, Qt::Key_Return);
    });
    eyes->start(1);
  }
  void import(const QString& path) {
    chooseFile(path);
    action("importReportAction").trigger();
    settle();
  }
  void press(QDialogButtonBox::StandardButton which) {
    QTest::mouseClick(button(which), Qt::LeftButton);
    settle();
  }
  QPushButton* button(QDialogButtonBox::StandardButton which) {
    return dialog->findChild<QDialogButtonBox*>()->button(which);
  }
  QTableView& table() { return *dialog->findChild<QTableView*>(QStringLiteral("importTable")); }
  std::vector<std::string> row(int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < table().model()->columnCount(); ++column)
      cells.push_back(table().model()->index(row, column).data().toString().toStdString());
    return cells;
  }
  std::string obstacle() {
    return dialog->findChild<QLabel*>(QStringLiteral("importObstacle"))->text().toStdString();
  }
  /// The row of that length.
  int rowOf(const char* value) {
    for (int each = 0; each < table().model()->rowCount(); ++each) {
      if (row(each)[2] == value) return each;
    }
    throw std::runtime_error(value);
  }

  QPointer<qt::ImportDialog> dialog;
  QObject context;
};

TEST_F(TheImportDialog, showsAReportBesideThePatientAndStoresItWithOK) {
  openBlank();
  const model::PatientRecord patient = singleton();
  then([this] {
    EXPECT_THAT(row(rowOf("BPD")), ElementsAre(testing::_, "Fetus 1", "BPD", testing::_, "", "is added"));
    EXPECT_TRUE(button(QDialogButtonBox::Ok)->isEnabled());
    EXPECT_EQ(field("bpdField"), "0.0");
    press(QDialogButtonBox::Ok);
  });
  import(reportOf(patient));
  EXPECT_EQ(document().patientRecord()->maternalIDString(), patient.maternalIDString());
  EXPECT_EQ(document().numberOfExaminations(), std::ssize(patient.ncRecordsArray()));
  EXPECT_NE(field("bpdField"), "0.0");
  EXPECT_TRUE(front().isWindowModified());
  action("undoAction").trigger();
  EXPECT_EQ(field("bpdField"), "0.0");
}

TEST_F(TheImportDialog, storesNothingWhenItIsCancelled) {
  openBlank();
  then([this] { press(QDialogButtonBox::Cancel); });
  import(reportOf(singleton()));
  EXPECT_EQ(field("bpdField"), "0.0");
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(TheImportDialog, leavesOutWhatIsUntickedByMouseOrByTheSpaceKey) {
  openBlank();
  then([this] {
    const QModelIndex bpd = table().model()->index(rowOf("BPD"), 2);
    ASSERT_EQ(bpd.data(Qt::CheckStateRole).toInt(), Qt::Checked);
    // From another cell of the row.
    table().setCurrentIndex(bpd.siblingAtColumn(3));
    QTest::keyClick(&table(), Qt::Key_Space);
    EXPECT_EQ(bpd.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(row(bpd.row())[5], "is left out");

    const QModelIndex hc = table().model()->index(rowOf("HC"), 2);
    table().scrollTo(hc);
    const QRect cell = table().visualRect(hc);
    for (int x = cell.left() + 1; x < cell.right() && hc.data(Qt::CheckStateRole).toInt() == Qt::Checked;
         x += 2)
      QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, QPoint(x, cell.center().y()));
    EXPECT_EQ(hc.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    press(QDialogButtonBox::Ok);
  });
  model::PatientRecord patient = singleton();
  patient.ncRecordsArray().resize(1);
  patient.ncRecordsArray()[0]->measurementsForFetus(0).setHC(70.0);
  patient.ncRecordsArray()[0]->measurementsForFetus(0).setAC(60.0);
  import(reportOf(patient));
  EXPECT_EQ(field("bpdField"), "0.0");
  EXPECT_EQ(field("hcField"), "0.0");
  EXPECT_NE(field("acField"), "0.0");
}

TEST_F(TheImportDialog, waitsUntilAPersonSaysThatTheReportIsOfThisPatient) {
  open(singleton());
  model::PatientRecord other = singleton();
  other.setMaternalIDString("ZZ-999");
  other.ncRecordsArray().front()->setExamDate(foundation::startOfDay({2026, 11, 1}, platform.calendar));
  then([this] {
    EXPECT_THAT(dialog->findChild<QLabel*>(QStringLiteral("importPatient"))->text().toStdString(),
                HasSubstr("ZZ-999"));
    EXPECT_TRUE(dialog->findChild<QLabel*>(QStringLiteral("importDoubt"))->isVisible());
    EXPECT_FALSE(button(QDialogButtonBox::Ok)->isEnabled());
    EXPECT_THAT(obstacle(), HasSubstr("Please say"));
    dialog->findChild<QCheckBox*>(QStringLiteral("importPatientCheck"))->click();
    EXPECT_TRUE(button(QDialogButtonBox::Ok)->isEnabled());
    EXPECT_THAT(obstacle(), IsEmpty());
    press(QDialogButtonBox::Cancel);
  });
  import(reportOf(other));
}

TEST_F(TheImportDialog, takesFromAPersonWhichTwinIsWhich) {
  openBlank();
  const model::PatientRecord patient = twins();
  then([this] {
    auto* first = dialog->findChild<QComboBox*>(QStringLiteral("importFetus1"));
    auto* second = dialog->findChild<QComboBox*>(QStringLiteral("importFetus2"));
    EXPECT_EQ(first->currentText(), QStringLiteral("Twin 1"));
    first->setCurrentText(QStringLiteral("Twin 2"));
    EXPECT_THAT(obstacle(), HasSubstr("cannot be the same"));
    EXPECT_FALSE(button(QDialogButtonBox::Ok)->isEnabled());
    second->setCurrentText(QStringLiteral("Leave out"));
    EXPECT_TRUE(button(QDialogButtonBox::Ok)->isEnabled());
    press(QDialogButtonBox::Ok);
  });
  import(reportOf(patient));
  const auto* imported = document().measurementsForFetus(1, 0);
  ASSERT_NE(imported, nullptr);
  EXPECT_EQ(imported->bpd(), patient.ncRecordsArray()[0]->measurements()[0].bpd());
  EXPECT_EQ(document().measurementsForFetus(0, 0)->bpd(), 0.0);
}

TEST_F(TheImportDialog, staysOpenWhereTheEDDIsKept) {
  open(singleton());
  model::PatientRecord later = singleton();
  later.setEDD(foundation::startOfDay({2027, 4, 1}, platform.calendar));
  answers = {"Cancel"};
  then([this] {
    const QModelIndex edd = table().model()->index(rowOf("EDD"), 2);
    EXPECT_EQ(edd.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    table().model()->setData(edd, Qt::Checked, Qt::CheckStateRole);
    press(QDialogButtonBox::Ok);
    EXPECT_TRUE(dialog->isVisible());
    press(QDialogButtonBox::Cancel);
  });
  import(reportOf(later));
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "EDD is already specified");
}

TEST_F(TheImportDialog, opensForAReportThatIsDroppedOnTheWindow) {
  open(singleton());
  model::PatientRecord next = singleton();
  next.ncRecordsArray().resize(1);
  next.ncRecordsArray().front()->setExamDate(foundation::startOfDay({2026, 10, 1}, platform.calendar));
  const std::int64_t before = document().numberOfExaminations();
  then([this] { press(QDialogButtonBox::Ok); });
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(reportOf(next))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&front(), &enter);
  QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&front(), &event);
  settle();
  EXPECT_EQ(document().numberOfExaminations(), before + 1);
}

TEST_F(TheImportDialog, opensForAReportThatIsOpenedInTheDocumentOfItsPatient) {
  open(singleton());
  framework::ZuDocument& hers = document();
  openBlank();
  then([this] {
    EXPECT_EQ(dialog->parentWidget(), &front());
    press(QDialogButtonBox::Cancel);
  });
  application.openFiles({reportOf(singleton())});
  EXPECT_EQ(&document(), &hers);
}

TEST_F(TheImportDialog, isNotShownForWhatIsNoReport) {
  openBlank();
  answers = {"OK"};
  import(file(QStringLiteral("other.json"), "{\"resourceType\":\"Patient\"}"));
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "The report cannot be imported.");
  EXPECT_THAT(asked[0].information, HasSubstr("other.json: "));
}

}  // namespace
}  // namespace nascor::tests
