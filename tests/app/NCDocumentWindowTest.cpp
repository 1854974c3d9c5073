// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "app/NCDocument.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "support/Calls.h"
#include "support/MarkedLocalizer.h"
#include "support/RecordingCanvas.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;
using foundation::NotificationName;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace defaults_key = foundation::defaults_key;

constexpr double kDay = 86400.0;
/// 2027-04-10 00:00 in the zone of the tests, ten hours ahead of UTC.
constexpr Date kEDD{829008000.0 - 36000.0};

class TheWindow : public testing::Test {
 protected:
  TheWindow() {
    platform.defaults.registerDefault(defaults_key::showAll, "YES");
    platform.documents.setFactory([this] { return std::make_unique<NCDocument>(platform.environment()); });
  }

  static model::PatientRecord twins() {
    const tests::FixedClock clock(Date{kEDD.secondsSince2001 - 140 * kDay});
    model::PatientRecord patient;
    patient.setMaternalIDString("AB/123");
    patient.setGravida(2);
    patient.setEDD(kEDD);
    patient.setNumberOfFetuses(2);
    patient.setExtrapolatedGestation(39.0);
    patient.setCRLStandard(1);
    patient.addNCRecordWithNumberOfFetuses(2, clock);
    patient.addNCRecordWithNumberOfFetuses(2, clock);
    patient.ncRecordsArray()[1]->setNote("the last");
    patient.ncRecordsArray()[1]->measurementsForFetus(0) =
        model::MeasurementsRecord({47.4, 175.2, 152.0, 32.5});
    return patient;
  }
  std::unique_ptr<NCDocument> loaded(const model::PatientRecord& patient) {
    auto document = std::make_unique<NCDocument>(platform.environment());
    document->loadDataRepresentation(model::archivedPatient(patient), "");
    return document;
  }
  std::unique_ptr<NCDocument> opened(const model::PatientRecord& patient) {
    auto document = loaded(patient);
    document->windowControllerDidLoadNib();
    return document;
  }
  static framework::TextField& field(NCDocument& document, std::string_view name) {
    if (framework::TextField* named = document.fieldNamed(name)) return *named;
    throw std::out_of_range(std::string(name));
  }
  static bool edit(NCDocument& document, framework::TextField& field, const std::string& text) {
    if (!document.fieldEditor().begin(field)) return false;
    document.fieldEditor().replace(text);
    return document.fieldEditor().end();
  }
  /// From now on, the names of the fields in the order in which they are filled.
  static std::vector<foundation::Subscription> recordFilling(NCDocument& document,
                                                             std::vector<std::string>& filled) {
    std::vector<foundation::Subscription> records;
    for (framework::TextField* each : document.textFields())
      records.push_back(each->onChange.subscribe([each, &filled] { filled.push_back(each->name()); }));
    records.push_back(
        document.notesField().onChange.subscribe([&filled] { filled.emplace_back("notesField"); }));
    records.push_back(
        document.tabView().onNeedsDisplay.subscribe([&filled] { filled.emplace_back("tabView"); }));
    return records;
  }

  tests::TestApplication platform;
};

TEST_F(TheWindow, isFilledInOrder) {
  const auto document = opened(twins());
  std::vector<std::string> filled;
  const auto records = recordFilling(*document, filled);
  document->synchronizeFromData();
  EXPECT_THAT(filled, ElementsAre("referenceIDField", "gravidaField", "birthDateField", "adjustEDDField",
                                  "adjustDeliverOnField", "adjustDeliverAtField", "examDateField", "hcField",
                                  "bpdField", "acField", "flField", "notesField", "headerSummaryField",
                                  "headerBPDField", "headerHCField", "headerACField", "headerFLField",
                                  "headerEFWField", "ageField", "tabView"));
}

TEST_F(TheWindow, isLoadedInOrder) {
  const auto document = loaded(twins());
  std::vector<std::string> steps;
  const auto records = recordFilling(*document, steps);
  const auto fills = document->multiplePopUp().onChange.subscribe([&] {
    if (steps.empty() || steps.back() != "pop-up") steps.emplace_back("pop-up");
  });
  const auto subscription = platform.notifications.subscribe(
      NotificationName::updateStandards, [&](const foundation::Notification& notification) {
        EXPECT_EQ(notification.sender, document.get());
        EXPECT_FALSE(platform.defaults.value(defaults_key::crlStandard)) << "only afterwards";
        EXPECT_EQ(document->currentExam(), 1);
        EXPECT_EQ(document->adjustDeliveryStepper().value(), -7);
        steps.emplace_back("UpdateStandards");
      });
  document->windowControllerDidLoadNib();
  ASSERT_GE(steps.size(), 8U);
  EXPECT_EQ(steps[0], "pop-up");
  EXPECT_EQ(steps[1], "tabView");
  EXPECT_EQ(steps[2], "headerSummaryField");
  EXPECT_EQ(steps[3], "referenceIDField");
  const auto posted = std::ranges::find(steps, "UpdateStandards");
  EXPECT_EQ(*(posted - 1), "tabView");
  EXPECT_THAT(
      std::vector(posted + 1, steps.end()),
      ElementsAre("adjustEDDField", "adjustDeliverOnField", "adjustDeliverAtField", "crlStandardReference"));
  EXPECT_EQ(platform.defaults.value(defaults_key::crlStandard), "1");
  EXPECT_EQ(platform.defaults.written().size(), 1U) << "no other preference is written by opening";
  EXPECT_FALSE(document->isDocumentEdited());
  EXPECT_FALSE(document->lookUpRequired());
}

TEST_F(TheWindow, titlesItsSummaryBeforeItKnowsThePatient) {
  const auto document = loaded(twins());
  std::vector<std::string> titles;
  framework::TextField& header = field(*document, "headerSummaryField");
  const auto records = header.onChange.subscribe([&] { titles.push_back(header.text()); });
  document->windowControllerDidLoadNib();
  EXPECT_THAT(titles, ElementsAre("", "AB-123 (G2) 1 of 2"));
}

TEST_F(TheWindow, keepsThePagesTitlesWithTheirHeaders) {
  const auto document = opened(twins());
  document->setCurrentFetus(1);
  platform.alerts.answers = {"Remove"};
  document->deleteFetus(nullptr);
  EXPECT_EQ(document->tabView().page(0).title(), "AB-123 (G2)");
  EXPECT_EQ(field(*document, "headerSummaryField").text(), "AB-123 (G2)");
  EXPECT_EQ(document->tabView().page(1).title(), "AB-123 (G2) 1 of 2") << "until the next display";
  EXPECT_EQ(document->tabView().page(6).title(), "");
}

TEST_F(TheWindow, asksByTheRecordAndNotByTheTextOfItsField) {
  const auto document = opened(twins());
  document->gravidaField().setIntegerValue(0);
  document->birthDateField().setText("");
  EXPECT_FALSE(document->fieldEditor().begin(document->gravidaField()));
  EXPECT_FALSE(document->fieldEditor().begin(document->birthDateField()));
  EXPECT_EQ(platform.alerts.asked.size(), 2U);
  document->patientRecord()->setGravida(0);
  document->patientRecord()->setEDD(std::nullopt);
  document->gravidaField().setIntegerValue(5);
  document->birthDateField().setText("4/10/27");
  EXPECT_TRUE(document->fieldEditor().begin(document->gravidaField()));
  document->fieldEditor().revert();
  EXPECT_TRUE(document->fieldEditor().begin(document->birthDateField()));
  EXPECT_EQ(platform.alerts.asked.size(), 2U);
  // A negative gravidity, which a file or a script may hold, stands too.
  document->fieldEditor().revert();
  document->patientRecord()->setGravida(-1);
  EXPECT_FALSE(document->fieldEditor().begin(document->gravidaField()));
}

TEST_F(TheWindow, takesTheTextsOfItsQuestionsFromTheirTables) {
  const tests::MarkedLocalizer marked;
  foundation::Services services{.clock = platform.clock,
                                .calendar = platform.calendar,
                                .localizer = marked,
                                .defaults = platform.defaults,
                                .files = platform.files,
                                .log = platform.log,
                                .notifications = platform.notifications};
  NCDocument document({.services = services, .alerts = platform.alerts, .controller = platform.documents});
  document.loadDataRepresentation(model::archivedPatient(twins()), "");
  document.windowControllerDidLoadNib();
  document.fieldEditor().begin(document.gravidaField());
  document.fieldEditor().begin(document.birthDateField());
  document.deleteFetus(nullptr);
  document.deleteExaminationAction();
  std::vector<std::vector<std::string>> asked;
  for (const auto& alert : platform.alerts.asked) {
    asked.push_back({alert.message, alert.information, alert.defaultButton, alert.alternateButton});
  }
  const std::string modify = "[CorvelDocument:Modify]";
  const std::string remove = "[CorvelDocument:Remove]";
  const std::string cancel = "[ZuVersion:Cancel]";
  EXPECT_THAT(
      asked,
      ElementsAre(
          ElementsAre("[NCDocument:Gravidity is already specified]",
                      "[NCDocument:Are you sure you want to modify it?]", modify, cancel),
          ElementsAre("[NCDocument:EDD is already specified]",
                      "[NCDocument:Are you sure you want to modify the established EDD?]", modify, cancel),
          ElementsAre("[NCDocument:Are you sure you want to remove this fetus?]", "", remove, cancel),
          ElementsAre("[NCDocument:Are you sure you want to remove this examination?]", "", remove, cancel)));
  EXPECT_EQ(document.multiplePopUp().titleOfSelectedItem(), "[NCDocument:Twin 1]");
  EXPECT_EQ(field(document, "headerSummaryField").text(), "AB-123 (G2)[NCDocument: 1 of 2]");
  EXPECT_EQ(document.birthDateField().text(), "10.4.2027");
  EXPECT_EQ(document.bpdField().text(), "47,4");
}

struct BoundCase {
  const char* field;
  const char* text;
  bool isAccepted;
};
class AFieldOfTheWindow : public TheWindow, public testing::WithParamInterface<BoundCase> {};

TEST_P(AFieldOfTheWindow, isLeftWithAPermittedValueOnly) {
  NCDocument& document = dynamic_cast<NCDocument&>(platform.documents.newDocument());
  EXPECT_EQ(edit(document, field(document, GetParam().field), GetParam().text), GetParam().isAccepted);
  EXPECT_THAT(platform.alerts.asked, IsEmpty());
  EXPECT_THAT(platform.alerts.told, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    all, AFieldOfTheWindow,
    testing::Values(
        BoundCase{"gravidaField", "-1", false}, BoundCase{"gravidaField", "0", true},
        BoundCase{"gravidaField", "99999999999999999999", true}, BoundCase{"bpdField", "200", true},
        BoundCase{"bpdField", "200.0000001", false}, BoundCase{"bpdField", "-0.0000001", false},
        BoundCase{"bpdField", "-0", true}, BoundCase{"bpdField", "", true}, BoundCase{"hcField", "500", true},
        BoundCase{"hcField", "500.1", false}, BoundCase{"hcField", "-1", false},
        BoundCase{"acField", "600", true}, BoundCase{"acField", "600.1", false},
        BoundCase{"acField", "-1", false}, BoundCase{"flField", "200", true},
        BoundCase{"flField", "200.1", false}, BoundCase{"flField", "-1", false},
        BoundCase{"examDateField", "any text", true}, BoundCase{"birthDateField", "any text", true},
        BoundCase{"referenceIDField", "any text", true}, BoundCase{"crlWindowDate", "any text", true},
        BoundCase{"lmpWindowCycleField", "-400", true}, BoundCase{"lmpWindowCycleField", "28.5", false},
        BoundCase{"lmpWindowLutealField", "14", true}, BoundCase{"crlWindowCRL", "9999", true},
        BoundCase{"crlWindowCRL", "long", false}));

TEST_F(TheWindow, takesADialogsFieldWithoutFurtherAdo) {
  NCDocument& document = dynamic_cast<NCDocument&>(platform.documents.newDocument());
  const tests::Calls drawn(document.tabView().onNeedsDisplay);
  EXPECT_TRUE(edit(document, field(document, "crlWindowCRL"), "45.26"));
  EXPECT_EQ(field(document, "crlWindowCRL").text(), "45.3");
  EXPECT_FALSE(document.isDocumentEdited());
  EXPECT_TRUE(document.lookUpRequired()) << "as a new document has it";
  EXPECT_EQ(drawn.count(), 0);
}

TEST_F(TheWindow, writesNoByteAnewWhenEveryFieldIsVisited) {
  platform.files.files["/documents/a"] = model::archivedPatient(twins());
  foundation::FileError error;
  auto& document = dynamic_cast<NCDocument&>(*platform.documents.openDocument("/documents/a", error));
  const auto before = platform.files.files.at("/documents/a");
  for (framework::TextField* each : document.textFields()) {
    platform.alerts.answers = {"Modify"};
    if (document.fieldEditor().begin(*each)) document.fieldEditor().revert();
  }
  document.updateArrayOrder();
  document.nextExamination();
  document.previousExamination();
  EXPECT_TRUE(platform.documents.saveDocument(document));
  EXPECT_EQ(platform.files.files.at("/documents/a"), before);
}

TEST_F(TheWindow, showsTheFirstFetusWhenItsFileIsReadAgain) {
  platform.files.files["/documents/a"] = model::archivedPatient(twins());
  foundation::FileError error;
  auto& document = dynamic_cast<NCDocument&>(*platform.documents.openDocument("/documents/a", error));
  document.multiplePopUp().selectItemAtIndex(1);
  document.chooseFetus(document.multiplePopUp());
  edit(document, document.bpdField(), "50");
  EXPECT_EQ(document.revertToSaved(), std::nullopt);
  EXPECT_EQ(document.currentFetus(), 0);
  EXPECT_EQ(document.multiplePopUp().indexOfSelectedItem(), 0);
  EXPECT_EQ(document.bpdField().text(), "47.4");
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(TheWindow, isStoredInFullOrNotAtAll) {
  NCDocument& document = dynamic_cast<NCDocument&>(platform.documents.newDocument());
  edit(document, document.bpdField(), "50");
  document.setFilePath("/documents/a");
  ASSERT_TRUE(platform.documents.saveDocument(document));
  const auto saved = platform.files.files.at("/documents/a");
  edit(document, document.bpdField(), "60");
  platform.files.failWriteAt = platform.files.writes();
  EXPECT_FALSE(platform.documents.saveDocument(document));
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_EQ(platform.files.files.at("/documents/a"), saved);
  EXPECT_EQ(document.patientRecord()->ncRecordsArray()[0]->measurementsForFetus(0).bpd(), 60);
  EXPECT_TRUE(platform.documents.saveDocument(document));
  EXPECT_NE(platform.files.files.at("/documents/a"), saved);
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(TheWindow, hearsNothingMoreOnceItCloses) {
  const auto document = opened(twins());
  document->windowWillClose();
  const tests::Calls drawn(document->tabView().onNeedsDisplay);
  platform.notifications.post(NotificationName::updateShowAll, nullptr);
  EXPECT_EQ(drawn.count(), 0);
}

TEST_F(TheWindow, storesAPreferenceAfterEverybodyHasHeardOfTheChoice) {
  const auto document = opened(twins());
  std::vector<std::optional<std::string>> standards;
  const auto subscription = platform.notifications.subscribe(
      NotificationName::updateStandards, [&](const foundation::Notification&) {
        standards.push_back(platform.defaults.value(defaults_key::standard));
        standards.push_back(platform.defaults.value(defaults_key::estimatedFetalWeightStandard));
      });
  document->doSetStandard(2);
  document->doSetEFWStandard(3);
  document->doSetCRLStandard(3);
  EXPECT_THAT(standards, ElementsAre(std::nullopt, std::nullopt, "2", std::nullopt));
  EXPECT_EQ(platform.defaults.value(defaults_key::estimatedFetalWeightStandard), "3");
  EXPECT_FALSE(document->isDocumentEdited());
}

TEST_F(TheWindow, planningTellsTheStandardsLimitBeforeTheChartsHear) {
  auto patient = twins();
  patient.setExtrapolatedGestation(41.0);
  const auto document = opened(patient);
  double heard = 0.0;
  const auto subscription = platform.notifications.subscribe(
      NotificationName::updateStandards,
      [&](const foundation::Notification&) { heard = document->patientRecord()->extrapolatedGestation(); });
  document->doSetStandard(3);
  EXPECT_EQ(heard, 40.0);
}

/// Every whole day that the stepper offers comes back from a file, which keeps the gestation in single precision.
TEST_F(TheWindow, findsEveryPlannedDayAgain) {
  for (int days = -280; days <= 7; ++days) {
    auto patient = twins();
    patient.setExtrapolatedGestation(days / 7.0 + 40.0);
    const auto document = opened(patient);
    EXPECT_EQ(document->adjustDeliveryStepper().value(), days);
    EXPECT_EQ(document->patientRecord()->extrapolatedGestation(), days / 7.0 + 40.0) << days;
  }
}

TEST_F(TheWindow, keepsAPlanThatIsNoWholeNumberOfDays) {
  auto patient = twins();
  patient.setExtrapolatedGestation(38.5);  // 10.5 days before the EDD
  EXPECT_EQ(opened(patient)->adjustDeliveryStepper().value(), -10.5);
  for (const double odd :
       {std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()}) {
    patient.setExtrapolatedGestation(odd);
    const auto document = opened(patient);
    const double kept = document->patientRecord()->extrapolatedGestation();
    EXPECT_TRUE(std::isnan(odd) ? std::isnan(kept) : kept == odd);
  }
}

TEST_F(TheWindow, drawsTheRecordsAsTheyStandAtEachDrawing) {
  const auto document = opened(twins());
  framework::Page& page = document->tabView().page(1);
  page.layout(800, 560);
  const auto heightOfMark = [&] {
    tests::RecordingSurface surface;
    page.paint(surface);
    return surface.views.at(0).canvas.of(tests::RecordingCanvas::Entry::Kind::fillOval).at(0).rect.y + 10.0;
  };
  EXPECT_DOUBLE_EQ(heightOfMark(), document->BPDGraph()->pointForXY(20, float{47.4F}).y);
  // Nobody tells the chart.
  document->patientRecord()->ncRecordsArray()[1]->measurementsForFetus(0).setBPD(60);
  EXPECT_DOUBLE_EQ(heightOfMark(), document->BPDGraph()->pointForXY(20, 60).y);
}

TEST_F(TheWindow, selectsTheBPDForTypingWhenAFetusIsChosen) {
  const auto document = opened(twins());
  const tests::Calls selected(document->bpdField().onSelectText);
  document->chooseFetus(document->multiplePopUp());
  EXPECT_EQ(selected.count(), 1);
  document->addFetus(nullptr);
  EXPECT_EQ(selected.count(), 2);
}

}  // namespace
}  // namespace nascor::app
