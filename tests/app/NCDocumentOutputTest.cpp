// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/NCDocument.h"
#include "foundation/ProgramVersion.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "model/PatientPage.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr double kDay = 86400.0;
constexpr std::int64_t kReport = model::indexOf(model::PatientPage::report);
/// 2027-04-10 00:00 in the zone of the tests, ten hours ahead of UTC.
constexpr Date kEDD{829008000.0 - 36000.0};

class APatientsPages : public testing::Test {
 protected:
  void open(std::int64_t fetuses, const std::vector<double>& daysBefore = {140.0}) {
    model::PatientRecord patient;
    patient.setMaternalIDString("AB/123");
    patient.setGravida(2);
    patient.setEDD(kEDD);
    patient.setNumberOfFetuses(fetuses);
    patient.setExtrapolatedGestation(40.0);
    patient.setFetalWeightStandard(3);
    for (const double days : daysBefore) {
      patient.addNCRecordWithNumberOfFetuses(fetuses, platform.clock);
      patient.ncRecordsArray().back()->setExamDate(Date{kEDD.secondsSince2001 - days * kDay});
    }
    document.loadDataRepresentation(model::archivedPatient(patient), "");
    document.windowControllerDidLoadNib();
  }
  std::vector<std::string> pages() const {
    std::vector<std::string> all;
    for (const auto& page : platform.pageWriter.written) all.push_back(page.page);
    return all;
  }

  tests::TestApplication platform;
  NCDocument document{platform.environment()};
};

TEST_F(APatientsPages, areIdentifiedUnderneath) {
  open(2, {140.0, 112.0});
  document.multiplePopUp().selectItemAtIndex(1);
  document.chooseFetus(document.multiplePopUp());
  const framework::PageFoot foot = document.footOfPage(5, 2, 2);
  EXPECT_THAT(
      foot.lines,
      ElementsAre(ElementsAre("Reference ID: AB/123", "Gravidity: 2", "Fetus: Twin 2", "EDD: 10 April 2027",
                              "Examinations: 21 November 2026 \xE2\x80\x93 19 December 2026"),
                  ElementsAre("Nascor Standard: Westerway (ASUM 2001)",
                              "Fetal Weight Formula: Hadlock 4 (BPD/HC/AC/FL)", ""),
                  ElementsAre(std::string("Nascor ").append(foundation::programVersion()),
                              "Not a medical device. Not validated for clinical use.",
                              "Printed: 22 November 2026", "Weight, page 2 of 2")));
}

TEST_F(APatientsPages, sayNothingThatIsNotKnown) {
  document.windowControllerDidLoadNib();
  document.patientRecord()->setMaternalIDString("");
  document.patientRecord()->ncRecordsArray().clear();
  const framework::PageFoot foot = document.footOfPage(0, 1, 1);
  EXPECT_THAT(foot.lines[0], ElementsAre("", "Gravidity: 0", "Fetus: Singleton", "", ""));
  EXPECT_EQ(foot.lines[2].back(), "Trends");
}

TEST_F(APatientsPages, sayHowManyExaminationsTheReportLeavesOut) {
  // (560 - 148) / 41 leaves room for ten, and there is no projected row before 30 weeks.
  std::vector<double> daysBefore;
  for (int i = 0; i < 20; ++i) daysBefore.push_back(200.0 - i);
  open(1, daysBefore);
  EXPECT_THAT(document.footOfPage(kReport, 1, 1).lines[1], Contains("10 of 20 examinations shown"));
  EXPECT_THAT(document.footOfPage(0, 1, 1).lines[1], Not(Contains("10 of 20 examinations shown")));
  daysBefore.resize(10);
  open(1, daysBefore);
  EXPECT_EQ(document.footOfPage(kReport, 1, 1).lines[1].back(), "");
}

TEST_F(APatientsPages, ofOneExaminationNameItsDay) {
  open(1);
  EXPECT_THAT(document.footOfPage(0, 1, 1).lines[0], Contains("Examination: 21 November 2026"));
}

TEST_F(APatientsPages, haveAFootUnlessThePreferencesSayNo) {
  open(1);
  document.doExport(nullptr);
  platform.defaults.setValue(framework::export_key::pageFoot, "NO");
  document.doExport(nullptr);
  platform.defaults.setValue(framework::export_key::pageFoot, "YES");
  document.printDocumentWithSettings({}, false, {});
  ASSERT_EQ(platform.pageWriter.written.size(), 2U);
  EXPECT_THAT(platform.pageWriter.written[0].foot.lines, Not(IsEmpty()));
  EXPECT_THAT(platform.pageWriter.written[1].foot.lines, IsEmpty());
  EXPECT_EQ(platform.printer.printed.at(1).foot.lines.at(2).back(), "Weight, page 2 of 2");
}

TEST_F(APatientsPages, exportedTogetherCanBeCancelledBetweenTwo) {
  open(2);
  std::vector<std::pair<std::int64_t, std::int64_t>> told;
  const auto sentences = document.autoExport([&](std::int64_t done, std::int64_t total) {
    told.emplace_back(done, total);
    return done < 3;
  });
  using testing::Pair;
  EXPECT_THAT(told, ElementsAre(Pair(0, 4), Pair(1, 4), Pair(2, 4), Pair(3, 4)));
  EXPECT_THAT(pages(), ElementsAre("Trends", "Report", "Trends"));
  EXPECT_THAT(sentences, IsEmpty());
}

TEST_F(APatientsPages, exportedTogetherGoOnAfterAFailure) {
  open(1);
  platform.files.failWriteAt = 0;
  const auto sentences = document.autoExport();
  EXPECT_THAT(sentences, ElementsAre("/documents/AB-123 (G2) - Trends.pdf: No space left on device"));
  EXPECT_THAT(pages(), ElementsAre("Report"));
  EXPECT_THAT(platform.alerts.told, IsEmpty());
}

TEST_F(APatientsPages, areExportedInTheOrderOfTheFetusesFromTheirOwnNumbers) {
  open(3);
  std::vector<std::string> fetuses;
  platform.pageWriter.onWrite = [&] { fetuses.push_back(document.multiplePopUp().titleOfSelectedItem()); };
  document.multiplePopUp().selectItemAtIndex(2);
  document.autoExport();
  EXPECT_THAT(fetuses, ElementsAre("Triplet 1 of 3", "Triplet 1 of 3", "Triplet 2 of 3", "Triplet 2 of 3",
                                   "Triplet 3 of 3", "Triplet 3 of 3"));
  EXPECT_EQ(document.currentFetus(), 2);
}

TEST_F(APatientsPages, areNoneWithoutAPatient) {
  NCDocument blank(platform.environment());
  EXPECT_THAT(blank.autoExport(), IsEmpty());
  EXPECT_THAT(pages(), IsEmpty());
  EXPECT_THAT(blank.footOfPage(0, 1, 1).lines, IsEmpty());
}

TEST_F(APatientsPages, areNotPrintedTwiceWhenTheFirstIsCancelled) {
  open(1);
  platform.printer.answers = {framework::PrintOutcome::cancelled};
  document.printDocumentWithSettings({}, true, {});
  EXPECT_EQ(platform.printer.printed.size(), 1U);
}

}  // namespace
}  // namespace nascor::app
