// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/NCDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <type_traits>

#include "archive/FormatError.h"
#include "calc/FetalWeight.h"
#include "foundation/Assertion.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "support/Calls.h"
#include "support/RecordingCanvas.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;

constexpr double kDay = 86400.0;
/// 2027-04-10 00:00 in the zone of the tests, ten hours ahead of UTC.
constexpr Date kEDD{829008000.0 - 36000.0};

Date daysBeforeEDD(double days) { return {kEDD.secondsSince2001 - days * kDay}; }

class ADocument : public testing::Test {
 protected:
  tests::TestApplication platform;

  void SetUp() override {
    platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
    platform.defaults.registerDefault(foundation::defaults_key::standard, "0");
  }

  /// A document on a patient with that EDD and examinations that many days before it.
  std::unique_ptr<NCDocument> document(std::optional<Date> edd, std::vector<double> daysBefore,
                                       std::int64_t fetuses = 1) {
    model::PatientRecord patient;
    patient.setMaternalIDString("AB/123");
    patient.setGravida(2);
    patient.setEDD(edd);
    patient.setNumberOfFetuses(fetuses);
    patient.setExtrapolatedGestation(40.0);
    for (const double days : daysBefore) {
      patient.addNCRecordWithNumberOfFetuses(fetuses, platform.clock);
      patient.ncRecordsArray().back()->setExamDate(daysBeforeEDD(days));
    }
    auto result = std::make_unique<NCDocument>(platform.environment());
    result->loadDataRepresentation(model::archivedPatient(patient), "");
    result->windowControllerDidLoadNib();
    return result;
  }
};

TEST_F(ADocument, startsWithoutAPatientAndWithNothingProjected) {
  NCDocument document(platform.environment());
  EXPECT_EQ(std::as_const(document).patientRecord(), nullptr);
  EXPECT_EQ(document.extrapolatedMeasurements().bpd(), 0.0);
  EXPECT_EQ(document.extrapolatedMeasurements().fl(), 0.0);
}

TEST_F(ADocument, withoutAPatientAnswersZeroAndNothing) {
  NCDocument document(platform.environment());
  EXPECT_EQ(document.standard(), 0);
  EXPECT_EQ(document.fetalWeightStandard(), 0);
  EXPECT_EQ(document.lastExam(), 0);
  EXPECT_EQ(document.measurementsForFetus(0, 0), nullptr);
  EXPECT_EQ(document.lastMeasurementsRecordForCurrentFetus(), nullptr);
  EXPECT_EQ(document.menstrualAgeForRecord(0), 0.0);
  EXPECT_EQ(document.menstrualAgeStringForRecord(0), "-");
  EXPECT_EQ(document.extrapolatedBPDForCurrentFetus(), 0.0);
  EXPECT_TRUE(document.dataRepresentationOfType("").empty());
  document.setCurrentRecordFromClick(20);
  document.updateMultiplePopUp();
  EXPECT_EQ(document.multiplePopUp().numberOfItems(), 0);
  document.synchronizeFromData();
  EXPECT_EQ(document.referenceIDField().text(), "");
}

TEST_F(ADocument, getsABlankPatientWithItsWindow) {
  NCDocument document(platform.environment());
  document.windowControllerDidLoadNib();
  const auto& exams = document.patientRecord()->ncRecordsArray();
  ASSERT_EQ(exams.size(), 1U);
  EXPECT_EQ(exams[0]->examDate(), platform.clock.now());
  EXPECT_EQ(document.multiplePopUp().titleOfSelectedItem(), "Singleton");
}

TEST_F(ADocument, keepsThePatientOfItsFileAndTheFilesStandards) {
  platform.defaults.setValue(foundation::defaults_key::standard, "3");
  model::PatientRecord patient;
  patient.setStandard(1);
  patient.setFetalWeightStandard(99);
  NCDocument document(platform.environment());
  EXPECT_TRUE(document.loadDataRepresentation(model::archivedPatient(patient), "whatever"));
  document.windowControllerDidLoadNib();
  EXPECT_EQ(document.standard(), 1);
  EXPECT_EQ(document.fetalWeightStandard(), 99);
  EXPECT_EQ(document.BPDGraph()->standardData().size(), 29U);
  EXPECT_TRUE(document.patientRecord()->ncRecordsArray().empty()) << "no examination is invented";
  EXPECT_EQ(document.examDateField().text(), "");
}

TEST_F(ADocument, archivesThePatientAsItStandsWhateverTheType) {
  const auto opened = document(kEDD, {100});
  opened->referenceIDField().setText("typed but not yet left");
  EXPECT_EQ(opened->dataRepresentationOfType("a"), model::archivedPatient(*opened->patientRecord()));
  EXPECT_EQ(opened->dataRepresentationOfType("a"), opened->dataRepresentationOfType("b"));
}

TEST_F(ADocument, replacesItsPatientByTheOneLoaded) {
  const auto opened = document(kEDD, {100});
  model::PatientRecord other;
  other.setMaternalIDString("OTHER");
  opened->loadDataRepresentation(model::archivedPatient(other), "");
  EXPECT_EQ(opened->patientRecord()->maternalIDString(), "OTHER");
}

TEST_F(ADocument, keepsItsPatientWhenAFileIsMalformed) {
  const auto opened = document(kEDD, {100});
  const std::vector<std::byte> nonsense(20, std::byte{4});
  EXPECT_THROW(opened->loadDataRepresentation(nonsense, ""), archive::FormatError);
  EXPECT_EQ(opened->patientRecord()->maternalIDString(), "AB/123");
}

TEST_F(ADocument, acceptsAFileWithoutAPatientAndHasNone) {
  const auto opened = document(kEDD, {100});
  const char nilRoot[] = "\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x85";
  EXPECT_TRUE(opened->loadDataRepresentation(std::as_bytes(std::span(nilRoot, sizeof nilRoot - 1)), ""));
  EXPECT_EQ(std::as_const(*opened).patientRecord(), nullptr);
}

TEST_F(ADocument, opensOnItsNewestExaminationAndItsFirstFetus) {
  const auto opened = document(kEDD, {140, 100, 60}, 2);
  EXPECT_EQ(opened->currentExam(), 2);
  EXPECT_EQ(opened->currentFetus(), 0);
  EXPECT_EQ(opened->referenceIDField().text(), "AB/123");
  EXPECT_EQ(opened->birthDateField().text(), "4/10/27");
  EXPECT_EQ(opened->examDateField().text(), "2/9/27");  // 60 days before
  EXPECT_EQ(opened->ageField().text(), "31w 3d");       // 220 days
  EXPECT_EQ(opened->tabView().page(1).title(), "AB-123 (G2) 1 of 2");
}

TEST_F(ADocument, movesThroughItsExaminationsAndStopsAtTheEnds) {
  const auto opened = document(kEDD, {140, 100, 60});
  const tests::Calls refreshed(opened->onDisplayChanged);
  opened->nextExamination();
  EXPECT_EQ(opened->currentExam(), 2);
  EXPECT_EQ(refreshed.count(), 0);
  opened->previousExamination();
  EXPECT_EQ(opened->currentExam(), 1);
  EXPECT_EQ(opened->ageField().text(), "25w 5d");  // 180 days
  EXPECT_EQ(refreshed.count(), 1);
  opened->previousExamination();
  opened->previousExamination();
  EXPECT_EQ(opened->currentExam(), 0);
}

TEST_F(ADocument, movesTheHighlightWithTheExamination) {
  const auto opened = document(kEDD, {140, 100});
  for (const auto& exam : opened->patientRecord()->ncRecordsArray()) exam->measurementsForFetus(0).setBPD(50);
  tests::RecordingSurface before;
  opened->tabView().page(1).layout(800, 560);
  opened->tabView().page(1).paint(before);
  opened->previousExamination();
  tests::RecordingSurface after;
  opened->tabView().page(1).paint(after);
  const auto disc = [&](const tests::RecordingSurface& surface) {
    return surface.views.at(0).canvas.of(tests::RecordingCanvas::Entry::Kind::fillOval).at(0).rect.x + 10;
  };
  EXPECT_EQ(disc(before), opened->BPDGraph()->pointForXY(180 / 7.0, 50).x);
  EXPECT_EQ(disc(after), opened->BPDGraph()->pointForXY(140 / 7.0, 50).x);
}

TEST_F(ADocument, putsTheAxisStripUnderItsChart) {
  const auto opened = document(kEDD, {100});
  opened->tabView().page(1).layout(800, 560);
  tests::RecordingSurface surface;
  opened->tabView().page(1).paint(surface);
  ASSERT_EQ(surface.views.size(), 2U);
  const auto& [chart, chartFrame, chartCanvas] = surface.views[0];
  const auto& [strip, stripFrame, stripCanvas] = surface.views[1];
  EXPECT_EQ(stripFrame.x, chartFrame.x + 50);
  EXPECT_EQ(stripFrame.width, chartFrame.width - 60);
  EXPECT_EQ(stripFrame.y, chartFrame.y + chartFrame.height);
  EXPECT_DOUBLE_EQ(stripFrame.x + strip->pointForXY(33, 0).x, chartFrame.x + chart->pointForXY(33, 0).x);
}

TEST_F(ADocument, findsMeasurementsByFetusAndExamination) {
  const auto opened = document(kEDD, {140, 100}, 2);
  opened->patientRecord()->ncRecordsArray()[1]->measurementsForFetus(0).setHC(300);
  opened->patientRecord()->ncRecordsArray()[0]->measurementsForFetus(1).setHC(200);
  EXPECT_EQ(opened->measurementsForFetus(1, 0)->hc(), 200);
  EXPECT_EQ(opened->measurementsForFetus(0, 1)->hc(), 300);
  EXPECT_EQ(opened->measurementsForCurrentFetus(1)->hc(), 300);
  EXPECT_EQ(opened->lastMeasurementsRecordForCurrentFetus()->hc(), 300);
  opened->setCurrentFetus(1);
  EXPECT_EQ(opened->measurementsForCurrentFetus(0)->hc(), 200);
  EXPECT_EQ(opened->lastMeasurementsRecordForCurrentFetus()->hc(), 0);
  for (const auto& [fetus, exam] : {std::pair{2, 0}, {-1, 0}, {0, 2}, {0, -1}}) {
    EXPECT_EQ(opened->measurementsForFetus(fetus, exam), nullptr) << fetus << " " << exam;
  }
}

TEST_F(ADocument, knowsTheAgeAtEachExamination) {
  // Counted from 0 without a sign, so that no index is before the first.
  static_assert(std::is_same_v<decltype(&NCDocument::menstrualAgeForRecord),
                               double (NCDocument::*)(std::uint64_t) const>);
  const auto opened = document(kEDD, {280, 140, 0, -7});
  EXPECT_EQ(opened->menstrualAgeForRecord(0), 0.0);
  EXPECT_EQ(opened->menstrualAgeStringForRecord(0), "-");
  EXPECT_EQ(opened->menstrualAgeForRecord(1), 20.0);
  EXPECT_EQ(opened->menstrualAgeStringForRecord(2), "40w 0d");
  EXPECT_EQ(opened->menstrualAgeForRecord(3), 41.0);
  EXPECT_EQ(opened->menstrualAgeForRecord(4), 0.0) << "no such examination";
  EXPECT_EQ(opened->menstrualAgeForRecord(std::numeric_limits<std::uint64_t>::max()), 0.0);
  EXPECT_EQ(opened->menstrualAgeStringForGestation(20.5), "20w 3d");
}

TEST_F(ADocument, knowsNoAgeWithoutBothDates) {
  const auto undated = document(std::nullopt, {100});
  EXPECT_EQ(undated->menstrualAgeForRecord(0), 0.0);
  EXPECT_EQ(undated->birthDateField().text(), "");
  const auto opened = document(kEDD, {100});
  opened->patientRecord()->ncRecordsArray()[0]->setExamDate(std::nullopt);
  EXPECT_EQ(opened->menstrualAgeStringForRecord(0), "-");
}

TEST_F(ADocument, datesByCrownRumpLength) {
  NCDocument document(platform.environment());
  EXPECT_NEAR(document.menstrualAgeFromCRLHadlock(45), 11.33, 0.005);
  EXPECT_NEAR(document.menstrualAgeFromCRLNelson(45), 11.14, 0.005);
  EXPECT_NEAR(document.menstrualAgeFromCRLRobinson(45), 11.10, 0.005);
  EXPECT_NEAR(document.menstrualAgeFromCRLWesterway(45), 11.00, 0.005);
}

TEST_F(ADocument, projectsTheLastExaminationOfTheCurrentFetusOnTheSameZScore) {
  const auto opened = document(kEDD, {70, 56}, 2);  // 30 and 32 weeks
  auto& exams = opened->patientRecord()->ncRecordsArray();
  exams[0]->measurementsForFetus(1).setBPD(10);
  auto& bpd = *opened->BPDGraph();
  const double mean = bpd.standardData()[32 - 11].mean();
  const double sd = bpd.standardData()[32 - 11].sd();
  exams[1]->measurementsForFetus(1).setBPD(mean + 1.5 * sd);
  opened->setCurrentFetus(1);
  opened->synchronizeFromData();
  opened->previousExamination();  // what is on show does not matter
  const auto& at40 = bpd.standardData()[40 - 11];
  EXPECT_NEAR(opened->extrapolatedBPDForCurrentFetus(), at40.mean() + 1.5 * at40.sd(), 1e-9);
  EXPECT_EQ(opened->extrapolatedMeasurements().bpd(), opened->extrapolatedBPDForCurrentFetus());
}

TEST_F(ADocument, projectsEachLengthOnItsOwnChart) {
  const auto opened = document(kEDD, {56});
  auto& measured = opened->patientRecord()->ncRecordsArray()[0]->measurementsForFetus(0);
  const auto at = [](const charts::NascorGraphView* chart, int week) {
    return chart->standardData()[static_cast<std::size_t>(week - 11)];
  };
  measured.setHC(at(opened->HCGraph(), 32).mean() - at(opened->HCGraph(), 32).sd());
  measured.setAC(at(opened->ACGraph(), 32).mean());
  measured.setFL(at(opened->FLGraph(), 32).mean() + 2 * at(opened->FLGraph(), 32).sd());
  EXPECT_NEAR(opened->extrapolatedHCForCurrentFetus(),
              at(opened->HCGraph(), 40).mean() - at(opened->HCGraph(), 40).sd(), 1e-9);
  EXPECT_NEAR(opened->extrapolatedACForCurrentFetus(), at(opened->ACGraph(), 40).mean(), 1e-9);
  EXPECT_NEAR(opened->extrapolatedFLForCurrentFetus(),
              at(opened->FLGraph(), 40).mean() + 2 * at(opened->FLGraph(), 40).sd(), 1e-9);
  // Not measured: the mean, not zero.
  EXPECT_NEAR(opened->extrapolatedBPDForCurrentFetus(), at(opened->BPDGraph(), 40).mean(), 1e-9);
  const auto& projected = opened->extrapolatedMeasurements();
  EXPECT_EQ(projected.estimatedFetalWeight(0), calc::estimatedFetalWeightHadlock1(projected.biometry()));
  EXPECT_GT(projected.estimatedFetalWeight(0), 3000.0);
}

TEST_F(ADocument, projectsNothingFiniteWithoutAnAge) {
  const auto opened = document(std::nullopt, {100});
  auto& measured = opened->patientRecord()->ncRecordsArray()[0]->measurementsForFetus(0);
  measured.setBPD(50);
  measured.setHC(-50);
  EXPECT_EQ(opened->extrapolatedBPDForCurrentFetus(), std::numeric_limits<double>::infinity());
  EXPECT_EQ(opened->extrapolatedHCForCurrentFetus(), -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isfinite(opened->extrapolatedACForCurrentFetus()));
}

TEST_F(ADocument, projectsBeyondTheLastWeekToTheLastRow) {
  const auto opened = document(kEDD, {56});
  opened->patientRecord()->setStandard(1);
  opened->BPDGraph()->resetStandards();
  opened->patientRecord()->setExtrapolatedGestation(41.0);
  EXPECT_EQ(opened->extrapolatedBPDForCurrentFetus(), opened->BPDGraph()->standardData().back().mean());
}

struct LabelCase {
  std::int64_t fetuses;
  std::vector<std::string> titles;
};
class TheChoiceOfFetus : public ADocument, public testing::WithParamInterface<LabelCase> {};

TEST_P(TheChoiceOfFetus, isNamedByTheKindOfPregnancy) {
  const auto opened = document(kEDD, {100}, GetParam().fetuses);
  std::vector<std::string> titles;
  for (const auto& item : opened->multiplePopUp().items()) {
    titles.push_back(item.title);
    EXPECT_EQ(item.keyEquivalent, GetParam().fetuses == 1 ? "" : std::to_string(titles.size()));
  }
  EXPECT_EQ(titles, GetParam().titles);
}

INSTANTIATE_TEST_SUITE_P(
    byNumber, TheChoiceOfFetus,
    testing::Values(LabelCase{1, {"Singleton"}}, LabelCase{2, {"Twin 1", "Twin 2"}},
                    LabelCase{3, {"Triplet 1 of 3", "Triplet 2 of 3", "Triplet 3 of 3"}},
                    LabelCase{4, {"Quad 1 of 4", "Quad 2 of 4", "Quad 3 of 4", "Quad 4 of 4"}},
                    LabelCase{5, {"Quin 1 of 5", "Quin 2 of 5", "Quin 3 of 5", "Quin 4 of 5", "Quin 5 of 5"}},
                    LabelCase{6, {}}, LabelCase{0, {}}));

TEST_F(ADocument, holdsTheCurrentFetusWithinThoseThatThereAre) {
  const auto opened = document(kEDD, {100}, 3);
  opened->setCurrentFetus(2);
  opened->patientRecord()->deleteFetus(2);
  opened->updateMultiplePopUp();
  EXPECT_EQ(opened->currentFetus(), 1);
  opened->patientRecord()->setNumberOfFetuses(0);
  opened->updateMultiplePopUp();
  EXPECT_EQ(opened->currentFetus(), 0);
}

TEST_F(ADocument, isTitledByWhatIsTypedAsReferenceID) {
  const auto opened = document(kEDD, {100}, 2);
  opened->setCurrentFetus(1);
  EXPECT_EQ(opened->preferredFileName(true), "AB-123 (G2) 2 of 2");
  EXPECT_EQ(opened->preferredFileName(false), "AB-123 (G2)");
  opened->referenceIDField().setText("A/B/C");
  EXPECT_EQ(opened->preferredFileName(false), "A-B-C (G2)");
  opened->referenceIDField().setText("");
  EXPECT_EQ(opened->preferredFileName(true), "");
}

TEST_F(ADocument, showsTheExaminationNearestToAClick) {
  const auto opened = document(kEDD, {140, 126, 112});  // 20, 22, 24 weeks
  opened->setCurrentRecordFromClick(22.4);
  EXPECT_EQ(opened->currentExam(), 1);
  opened->setCurrentRecordFromClick(23.0);  // exactly between 22 and 24
  EXPECT_EQ(opened->currentExam(), 1);
  opened->setCurrentRecordFromClick(23.1);
  EXPECT_EQ(opened->currentExam(), 2);
  opened->setCurrentRecordFromClick(35);  // none within eleven days
  EXPECT_EQ(opened->currentExam(), 0);
}

TEST_F(ADocument, ignoresAClickWithoutAnEDD) {
  const auto opened = document(std::nullopt, {140, 126, 112});
  opened->setCurrentRecordFromClick(20);
  EXPECT_EQ(opened->currentExam(), 2);
}

TEST_F(ADocument, passesOverExaminationsWithoutADateWhenItIsClicked) {
  const auto opened = document(kEDD, {140, 126});
  opened->patientRecord()->ncRecordsArray()[0]->setExamDate(std::nullopt);
  opened->setCurrentRecordFromClick(20);
  EXPECT_EQ(opened->currentExam(), 0) << "none lies within reach";
  opened->setCurrentRecordFromClick(22);
  EXPECT_EQ(opened->currentExam(), 1);
}

TEST_F(ADocument, showsADateThatHasNoTextAsNothing) {
  const auto opened = document(Date{std::numeric_limits<double>::quiet_NaN()}, {100});
  EXPECT_EQ(opened->birthDateField().text(), "");
}

TEST_F(ADocument, storesAndShowsNothingWithoutAFormForDates) {
  struct SometimesNoDates final : foundation::Localizer {
    std::string pattern = "M/d/yy";
    std::string text(std::string_view, std::string_view key) const override { return std::string(key); }
    foundation::ShortDateForm shortDateForm() const override {
      return {.pattern = pattern, .monthNames = {}};
    }
    std::string longDateText(const foundation::CivilDay&) const override { return {}; }
    char decimalSign() const override { return '.'; }
    std::string upperCased(std::string_view text) const override { return std::string(text); }
  } localizer;
  const foundation::Services services{.clock = platform.clock,
                                      .calendar = platform.calendar,
                                      .localizer = localizer,
                                      .defaults = platform.defaults,
                                      .files = platform.files,
                                      .log = platform.log,
                                      .notifications = platform.notifications};
  NCDocument opened(framework::DocumentEnvironment{
      .services = services, .alerts = platform.alerts, .controller = platform.documents});
  opened.windowControllerDidLoadNib();
  opened.patientRecord()->setMaternalIDString("A");
  opened.patientRecord()->setEDD(kEDD);
  opened.synchronizeFromData();
  opened.referenceIDField().takeEditedText("B");
  opened.patientRecord()->setMaternalIDString("C");
  localizer.pattern = "";
  EXPECT_THROW(opened.synchronizeToData(), foundation::AssertionFailure);
  EXPECT_EQ(opened.patientRecord()->maternalIDString(), "C");
  EXPECT_EQ(opened.patientRecord()->edd(), kEDD);
  EXPECT_THROW(opened.synchronizeFromData(), foundation::AssertionFailure);
  EXPECT_EQ(opened.referenceIDField().text(), "B");
  EXPECT_THROW(opened.adjustDeliveryDate(&opened), foundation::AssertionFailure);
  EXPECT_THROW(opened.doSetEDDfromCRL(nullptr), foundation::AssertionFailure);
  EXPECT_THROW(opened.okSetEDDfromCRL(nullptr), foundation::AssertionFailure);
  EXPECT_THROW(opened.okSetEDDfromLMP(nullptr), foundation::AssertionFailure);
}

TEST_F(ADocument, doesNotDisturbAnotherOne) {
  const auto one = document(kEDD, {100});
  const auto two = document(kEDD, {100});
  two->patientRecord()->setStandard(3);
  platform.notifications.post(foundation::NotificationName::updateStandards, two.get());
  EXPECT_EQ(one->BPDGraph()->standardData().size(), 31U);
  EXPECT_EQ(two->BPDGraph()->standardData().size(), 25U);
}

}  // namespace
}  // namespace nascor::app
