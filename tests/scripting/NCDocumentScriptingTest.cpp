// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/NCDocumentScripting.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>

#include "ScriptedDocument.h"
#include "foundation/RangeError.h"
#include "support/Calls.h"

namespace nascor::scripting {
namespace {

using foundation::Date;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(ScriptedDocument, writesEachPropertyIntoTheRecordsWithItsLine) {
  scripted.setIdentifier("AB-123");
  scripted.setGravida(std::int64_t{3});
  scripted.setEdd(kEDD);
  scripted.setExamDate(Date{kEDD.secondsSince2001 - 1.0});
  scripted.setBpd(45.3);
  scripted.setHc(std::int64_t{170});
  scripted.setAc(150.25);
  scripted.setFl(29.96);
  const model::PatientRecord& patient = *document.patientRecord();
  EXPECT_EQ(patient.maternalIDString(), "AB-123");
  EXPECT_EQ(patient.gravida(), 3);
  EXPECT_EQ(patient.edd(), kEDD);
  EXPECT_EQ(exam(0).examDate(), (Date{kEDD.secondsSince2001 - 1.0}));
  const model::MeasurementsRecord& measured = exam(0).measurementsForFetus(0);
  EXPECT_EQ(measured.bpd(), 45.29999923706055);
  EXPECT_EQ(measured.hc(), 170.0);
  EXPECT_EQ(measured.ac(), 150.25);
  EXPECT_EQ(measured.fl(), 29.959999084472656);
  EXPECT_THAT(
      platform.log.lines,
      ElementsAre("Scripting: set identifer to AB-123", "Scripting: set gravida to 3",
                  "Scripting: set edd to 2027-04-09 14:00:00 +0000",
                  "Scripting: set exam date to 2027-04-09 13:59:59 +0000", "Scripting: set bpd to 45.3",
                  "Scripting: set hc to 170.0", "Scripting: set ac to 150.2", "Scripting: set fl to 30.0"));
}

TEST_F(ScriptedDocument, readsEachPropertyAndLogsFourOfThem) {
  setExaminations({140.0});
  document.patientRecord()->setMaternalIDString("AB-123");
  document.patientRecord()->setGravida(2);
  document.patientRecord()->setEDD(kEDD);
  exam(0).measurementsForFetus(0) =
      model::MeasurementsRecord({.bpd = 45.0, .hc = 170.0, .ac = 150.0, .fl = 30.0});
  EXPECT_EQ(scripted.identifier(), "AB-123");
  EXPECT_EQ(scripted.gravida(), 2);
  EXPECT_EQ(scripted.edd(), kEDD);
  EXPECT_EQ(scripted.examDate(), exam(0).examDate());
  EXPECT_EQ(scripted.bpd(), 45.0);
  EXPECT_EQ(scripted.hc(), 170.0);
  EXPECT_EQ(scripted.ac(), 150.0);
  EXPECT_EQ(scripted.fl(), 30.0);
  EXPECT_EQ(scripted.tabViewIndex(), 0);
  EXPECT_THAT(platform.log.lines, ElementsAre("Scripting: identifier is AB-123", "Scripting: gravida is 2",
                                              "Scripting: edd is 2027-04-09 14:00:00 +0000",
                                              "Scripting: examDate is 2026-11-20 14:00:00 +0000"));
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ScriptedDocument, logsTheFirst200CharactersOfAValue) {
  std::string longest;
  for (int i = 0; i < 200; ++i) longest += "ä";
  scripted.setIdentifier(longest);
  scripted.setIdentifier(longest + "b");
  EXPECT_EQ(scripted.identifier(), longest + "b");
  EXPECT_THAT(platform.log.lines, ElementsAre("Scripting: set identifer to " + longest,
                                              "Scripting: set identifer to " + longest + "...",
                                              "Scripting: identifier is " + longest + "..."));
}

TEST_F(ScriptedDocument, logsWhatIsMissingAsNull) {
  document.patientRecord()->setMaternalIDString(std::nullopt);
  scripted.identifier();
  scripted.edd();
  scripted.setEdd(std::nullopt);
  scripted.setExamDate(std::nullopt);
  scripted.examDate();
  EXPECT_THAT(platform.log.lines,
              ElementsAre("Scripting: identifier is (null)", "Scripting: edd is (null)",
                          "Scripting: set edd to (null)", "Scripting: set exam date to (null)",
                          "Scripting: examDate is (null)"));
}

TEST_F(ScriptedDocument, logsADateThatNoCalendarHoldsAsNothing) {
  document.patientRecord()->setEDD(Date{std::nan("")});
  scripted.edd();
  EXPECT_THAT(platform.log.lines, ElementsAre("Scripting: edd is "));
}

/// Keeps for each line what the document was when it was written.
class WatchingLog final : public foundation::Log {
 public:
  std::function<std::string()> look;
  std::vector<std::string> seen;
  void write(std::string_view) override { seen.push_back(look()); }
};

TEST_F(ScriptedDocument, logsBeforeTheRecordChangesAndRefreshesBeforeItIsEdited) {
  WatchingLog log;
  NCDocumentScripting watched(document, log);
  const auto state = [&] {
    return std::to_string(document.patientRecord()->gravida()) + " " + document.gravidaField().text() + " " +
           (document.isDocumentEdited() ? "edited" : "unedited");
  };
  log.look = state;
  std::vector<std::string> refreshed;
  const auto refreshes = document.onDisplayChanged.subscribe([&] { refreshed.push_back(state()); });
  std::vector<std::string> marked;
  const auto marks = document.onStateChanged.subscribe([&] { marked.push_back(state()); });
  watched.setGravida(std::int64_t{4});
  EXPECT_THAT(log.seen, ElementsAre("0 0 unedited"));
  ASSERT_FALSE(refreshed.empty());
  EXPECT_EQ(refreshed.back(), "4 4 unedited");
  ASSERT_FALSE(marked.empty());
  EXPECT_EQ(marked.back(), "4 4 edited");
}

TEST_F(ScriptedDocument, countsEveryWriteAsAChangeAndRefreshesForEach) {
  const tests::Calls drawn(document.tabView().onNeedsDisplay);
  scripted.setBpd(1.0);
  const int once = drawn.count();
  EXPECT_GE(once, 1);
  scripted.setHc(2.0);
  scripted.setAc(3.0);
  scripted.setFl(4.0);
  EXPECT_EQ(drawn.count(), 4 * once);
  for (int undone = 0; undone < 3; ++undone)
    document.updateChangeCount(app::NCDocument::ChangeType::changeUndone);
  EXPECT_TRUE(document.isDocumentEdited());
  document.updateChangeCount(app::NCDocument::ChangeType::changeUndone);
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ScriptedDocument, actsOnTheLastExaminationWhicheverIsOnShow) {
  setExaminations({168.0, 140.0});
  document.setCurrentExam(0);
  document.synchronizeFromData();
  scripted.setBpd(50.0);
  scripted.setExamDate(kEDD);
  EXPECT_EQ(exam(0).measurementsForFetus(0).bpd(), 0.0);
  EXPECT_EQ(exam(1).measurementsForFetus(0).bpd(), 50.0);
  EXPECT_EQ(exam(1).examDate(), kEDD);
  EXPECT_EQ(document.bpdField().text(), "0.0");
  EXPECT_EQ(scripted.examDate(), kEDD);
}

TEST_F(ScriptedDocument, actsOnTheFetusThatTheRecordsFollow) {
  setExaminations({140.0}, 2);
  document.multiplePopUp().selectItemAtIndex(1);
  document.chooseFetus(document.multiplePopUp());
  scripted.setFl(31.0);
  EXPECT_EQ(exam(0).measurementsForFetus(0).fl(), 0.0);
  EXPECT_EQ(exam(0).measurementsForFetus(1).fl(), 31.0);
  // The index in the records decides, also where the pop-up says otherwise.
  document.setCurrentFetus(0);
  EXPECT_EQ(scripted.fl(), 0.0);
}

TEST_F(ScriptedDocument, neitherSortsNorShowsAnotherExaminationForADate) {
  setExaminations({168.0, 140.0});
  scripted.setExamDate(Date{kEDD.secondsSince2001 - 200.0 * foundation::kSecondsPerDay});
  EXPECT_LT(exam(1).examDate()->secondsSince2001, exam(0).examDate()->secondsSince2001);
  EXPECT_EQ(document.currentExam(), 1);
}

TEST_F(ScriptedDocument, readsNothingAndWritesNowhereWithoutExaminations) {
  document.patientRecord()->ncRecordsArray().clear();
  EXPECT_EQ(scripted.examDate(), std::nullopt);
  for (const double length : {scripted.bpd(), scripted.hc(), scripted.ac(), scripted.fl()})
    EXPECT_EQ(length, 0.0);
  document.gravidaField().setIntegerValue(9);
  scripted.setBpd(45.0);
  EXPECT_EQ(document.gravidaField().text(), "0");  // refreshed
  EXPECT_TRUE(document.isDocumentEdited());
  scripted.setExamDate(kEDD);
  EXPECT_THAT(document.patientRecord()->ncRecordsArray(), IsEmpty());
}

TEST_F(ScriptedDocument, readsTheDateButNoLengthsOfAnExaminationWithoutTheFetus) {
  setExaminations({140.0}, 2);
  document.setCurrentFetus(1);
  exam(0).measurements().pop_back();
  EXPECT_EQ(scripted.examDate(), exam(0).examDate());
  EXPECT_EQ(scripted.bpd(), 0.0);
  scripted.setBpd(45.0);
  EXPECT_EQ(exam(0).measurements().size(), 1U);
  EXPECT_EQ(exam(0).measurementsForFetus(0).bpd(), 0.0);
  EXPECT_TRUE(document.isDocumentEdited());
}

TEST_F(ScriptedDocument, selectsAPageAndNoMore) {
  const tests::Calls drawn(document.tabView().onNeedsDisplay);
  document.gravidaField().setIntegerValue(9);
  scripted.setTabViewIndex(2.9);
  EXPECT_EQ(document.tabView().indexOfSelectedPage(), 2);
  EXPECT_EQ(scripted.tabViewIndex(), 2);
  EXPECT_EQ(document.gravidaField().text(), "9");  // not refreshed
  EXPECT_FALSE(document.isDocumentEdited());
  EXPECT_EQ(drawn.count(), 0);
  EXPECT_THAT(platform.log.lines, ElementsAre("Scripting: set tab view index to 2"));
  for (const double page : {-1.0, 7.0}) EXPECT_THROW(scripted.setTabViewIndex(page), foundation::RangeError);
  scripted.setTabViewIndex(6.0);
  scripted.setTabViewIndex(2.0);
  EXPECT_EQ(scripted.tabViewIndex(), 2);
}

TEST_F(ScriptedDocument, refreshesTheWindowForTheIdentifierAlone) {
  document.gravidaField().setIntegerValue(9);
  scripted.gravida();
  scripted.edd();
  scripted.examDate();
  static_cast<void>(scripted.bpd());
  EXPECT_EQ(document.gravidaField().text(), "9");
  scripted.identifier();
  EXPECT_EQ(document.gravidaField().text(), "0");
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ScriptedDocument, takesWhatTheWindowWouldRefuse) {
  scripted.setGravida(-1.5);
  scripted.setBpd(-3.0);
  scripted.setHc(1e300);
  scripted.setAc(std::nan(""));
  EXPECT_EQ(document.patientRecord()->gravida(), -1);
  const model::MeasurementsRecord& measured = exam(0).measurementsForFetus(0);
  EXPECT_EQ(measured.bpd(), -3.0);
  EXPECT_TRUE(std::isinf(measured.hc()));
  EXPECT_TRUE(std::isnan(measured.ac()));
  EXPECT_THAT(platform.log.lines, ElementsAre("Scripting: set gravida to -1", "Scripting: set bpd to -3.0",
                                              "Scripting: set hc to inf", "Scripting: set ac to nan"));
}

TEST(ADocumentWithoutAPatient, isReadAsNothingAndTakesNothing) {
  tests::TestApplication platform;
  app::NCDocument document(platform.environment());
  NCDocumentScripting scripted(document, platform.log);
  EXPECT_EQ(scripted.identifier(), std::nullopt);
  EXPECT_EQ(scripted.gravida(), 0);
  EXPECT_EQ(scripted.edd(), std::nullopt);
  EXPECT_EQ(scripted.examDate(), std::nullopt);
  EXPECT_EQ(scripted.fl(), 0.0);
  scripted.setIdentifier("AB");
  scripted.setGravida(std::int64_t{1});
  scripted.setEdd(kEDD);
  scripted.setExamDate(kEDD);
  scripted.setFl(1.0);
  EXPECT_EQ(document.patientRecord(), nullptr);
}

}  // namespace
}  // namespace nascor::scripting
