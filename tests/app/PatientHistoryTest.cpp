// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/PatientHistory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace nascor::app {
namespace {

using foundation::Date;
using model::MeasurementsRecord;
using model::NCRecord;
using model::PatientRecord;

/// Twins at three examinations.
PatientRecord twins() {
  PatientRecord patient;
  patient.setNumberOfFetuses(2);
  patient.setEDD(Date{800'000'000.0});
  for (int i = 0; i < 3; ++i) {
    auto examination = std::make_unique<NCRecord>();
    examination->setExamDate(Date{790'000'000.0 + i * 1'000'000.0});
    examination->setNote("note");
    for (int fetus = 0; fetus < 2; ++fetus) {
      examination->measurements().push_back(
          MeasurementsRecord({.bpd = 40.0 + i, .hc = 150.0 + i, .ac = std::nan(""), .fl = 30.0 + i}));
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

PatientState stateOf(const PatientRecord& patient, const PatientState& before = {}) {
  PatientState state;
  state.take(patient, before.examinations);
  return state;
}

struct Case {
  PatientChange change;
  std::function<void(PatientRecord&)> make;
};

MeasurementsRecord& lengths(PatientRecord& patient) {
  return patient.ncRecordsArray().at(1)->measurementsForFetus(1);
}

const std::vector<Case>& cases() {
  static const std::vector<Case> all{
      {PatientChange::examinationAdded,
       [](PatientRecord& p) { p.ncRecordsArray().push_back(std::make_unique<NCRecord>()); }},
      {PatientChange::examinationDeleted, [](PatientRecord& p) { p.deleteNCRecordWithIndex(0); }},
      {PatientChange::fetusAdded,
       [](PatientRecord& p) {
         p.addFetus();
         p.setNumberOfFetuses(3);
       }},
      {PatientChange::fetusRemoved,
       [](PatientRecord& p) {
         p.deleteFetus(0);
         p.setNumberOfFetuses(1);
       }},
      {PatientChange::edd, [](PatientRecord& p) { p.setEDD(Date{800'086'400.0}); }},
      {PatientChange::edd, [](PatientRecord& p) { p.setEDD(std::nullopt); }},
      {PatientChange::growthStandard, [](PatientRecord& p) { p.setStandard(2); }},
      {PatientChange::weightFormula, [](PatientRecord& p) { p.setFetalWeightStandard(2); }},
      {PatientChange::crlFormula, [](PatientRecord& p) { p.setCRLStandard(2); }},
      {PatientChange::identifier, [](PatientRecord& p) { p.setMaternalIDString("A"); }},
      {PatientChange::gravidity, [](PatientRecord& p) { p.setGravida(2); }},
      {PatientChange::examinationDate,
       [](PatientRecord& p) { p.ncRecordsArray().at(1)->setExamDate(Date{1.0}); }},
      {PatientChange::note, [](PatientRecord& p) { p.ncRecordsArray().at(1)->setNote("other"); }},
      {PatientChange::bpd, [](PatientRecord& p) { lengths(p).setBPD(1.0); }},
      {PatientChange::hc, [](PatientRecord& p) { lengths(p).setHC(1.0); }},
      {PatientChange::ac, [](PatientRecord& p) { lengths(p).setAC(1.0); }},
      {PatientChange::fl, [](PatientRecord& p) { lengths(p).setFL(1.0); }},
      {PatientChange::lengths,
       [](PatientRecord& p) {
         lengths(p).setFL(1.0);
         lengths(p).setBPD(1.0);
       }},
      {PatientChange::lengths, [](PatientRecord& p) { p.ncRecordsArray().at(0)->measurements().resize(1); }},
  };
  return all;
}

TEST(AChangeOfAPatient, isNamedByTheMostThatItDid) {
  const PatientState before = stateOf(twins());
  for (const Case& each : cases()) {
    PatientRecord patient = twins();
    each.make(patient);
    EXPECT_EQ(changeBetween(before, stateOf(patient, before)), each.change) << static_cast<int>(each.change);
  }
}

TEST(AChangeOfAPatient, isNoneWhereAFileWouldHoldTheSame) {
  const PatientState before = stateOf(twins());
  EXPECT_EQ(changeBetween(before, stateOf(twins())), std::nullopt) << "a length that is no number among them";
  PatientState planned = stateOf(twins(), before);
  planned.plannedDays = -7.0;
  EXPECT_EQ(changeBetween(before, planned), PatientChange::plannedDelivery);
  planned.gestationInFile = 40.0;
  EXPECT_EQ(changeBetween(before, planned), std::nullopt) << "the file's own plan is written as it was";
}

TEST(AStateOfAPatient, sharesTheExaminationsThatDidNotChange) {
  const PatientState before = stateOf(twins());
  PatientRecord patient = twins();
  lengths(patient).setBPD(1.0);
  const PatientState after = stateOf(patient, before);
  EXPECT_EQ(after.examinations.at(0), before.examinations.at(0));
  EXPECT_NE(after.examinations.at(1), before.examinations.at(1));
  EXPECT_EQ(after.examinations.at(2), before.examinations.at(2));
  patient.deleteNCRecordWithIndex(0);
  const PatientState shorter = stateOf(patient, after);
  ASSERT_EQ(shorter.examinations.size(), 2U);
  EXPECT_EQ(shorter.examinations.at(0), after.examinations.at(1));
  EXPECT_EQ(shorter.examinations.at(1), after.examinations.at(2));
}

TEST(AHistory, goesOnWithWhatAScriptWritesAgainAndAgain) {
  PatientRecord patient = twins();
  PatientHistory history;
  history.begin(stateOf(patient), {}, true);
  const auto write = [&](double bpd) {
    lengths(patient).setBPD(bpd);
    return history.noteScript(stateOf(patient, history.present()), {});
  };
  EXPECT_TRUE(write(1.0));
  EXPECT_FALSE(write(1.0)) << "nothing changed";
  EXPECT_TRUE(write(2.0));
  lengths(patient).setFL(3.0);
  EXPECT_TRUE(history.noteScript(stateOf(patient, history.present()), {}));
  EXPECT_EQ(history.undone(), PatientChange::fl);
  history.undo();
  EXPECT_EQ(history.undone(), PatientChange::bpd);
  EXPECT_EQ(history.present().examinations.at(1)->measurementsForFetus(1).bpd(), 2.0);
  history.undo();
  EXPECT_EQ(history.undone(), std::nullopt);
  EXPECT_TRUE(history.isSaved());
}

TEST(AHistory, keepsWhatWasSavedApartFromWhatAScriptWritesNext) {
  PatientRecord patient = twins();
  PatientHistory history;
  history.begin(stateOf(patient), {}, true);
  lengths(patient).setBPD(1.0);
  history.noteScript(stateOf(patient, history.present()), {});
  history.wasSaved();
  lengths(patient).setBPD(2.0);
  history.noteScript(stateOf(patient, history.present()), {});
  EXPECT_FALSE(history.isSaved());
  history.undo();
  EXPECT_TRUE(history.isSaved());
  lengths(patient).setBPD(3.0);
  history.undo();
  history.note(stateOf(patient, history.present()), {});
  EXPECT_FALSE(history.isSaved()) << "what was saved is on a way that was left";
  EXPECT_EQ(history.redone(), std::nullopt);
}

}  // namespace
}  // namespace nascor::app
