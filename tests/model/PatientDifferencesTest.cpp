// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientDifferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "model/PatientFile.h"

namespace nascor::model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<NCRecord> examinationOn(double day, double bpd) {
  auto examination = std::make_unique<NCRecord>();
  examination->setNote("");
  examination->setExamDate(foundation::Date{day * foundation::kSecondsPerDay});
  examination->measurements().emplace_back(calc::Biometry{.bpd = bpd, .hc = 0, .ac = 0, .fl = 0});
  return examination;
}

/// Two examinations.
PatientRecord patient() {
  PatientRecord record;
  record.setMaternalIDString("AB-123");
  record.setNumberOfFetuses(1);
  record.ncRecordsArray().push_back(examinationOn(10, 30));
  record.ncRecordsArray().push_back(examinationOn(20, 50));
  return record;
}

std::vector<std::string> keys(const PatientRecord& before, const PatientRecord& after,
                              std::size_t most = 100) {
  std::vector<std::string> keys;
  for (const auto& difference : patientDifferences(before, after, most)) keys.push_back(difference.key);
  return keys;
}

TEST(TwoPatients, thatAreAlikeDifferInNothing) {
  EXPECT_THAT(keys(patient(), patient()), IsEmpty());
  PatientRecord one = patient();
  PatientRecord other = patient();
  for (PatientRecord* each : {&one, &other}) {
    each->setEDD(foundation::Date{std::numeric_limits<double>::quiet_NaN()});
    each->ncRecordsArray().front()->measurements().front().setFL(std::numeric_limits<double>::quiet_NaN());
  }
  EXPECT_THAT(keys(one, other), IsEmpty()) << "numbers that are none";
  other.setEDD(foundation::Date{1});
  EXPECT_EQ(keys(one, other).size(), 1U) << "a number in place of none";
}

TEST(TwoPatients, differInTheValuesThatJsonNames) {
  PatientRecord after = patient();
  after.setMaternalIDString("AB-124");
  after.setEDD(foundation::Date{1});
  after.setStandard(1);
  after.setFetalWeightStandard(2);
  after.setNumberOfFetuses(2);
  after.setExtrapolatedGestation(38);
  after.setCRLStandard(1);
  after.setGravida(3);
  EXPECT_THAT(keys(patient(), after),
              ElementsAre("maternalIDString", "edd", "standard", "fetalWeightStandard", "numberOfFetuses",
                          "extrapolatedGestation", "crlStandard", "gravida"));
}

TEST(TwoPatients, differInTheirExaminations) {
  PatientRecord after = patient();
  NCRecord& second = *after.ncRecordsArray()[1];
  second.setNote(std::nullopt);
  second.setExamDate(std::nullopt);
  second.measurements().front() = MeasurementsRecord({.bpd = 51, .hc = 1, .ac = 2, .fl = 3});
  second.addMeasurementsRecord();
  EXPECT_THAT(
      keys(patient(), after),
      ElementsAre("examinations[1].note", "examinations[1].examDate", "examinations[1].measurements[0].bpd",
                  "examinations[1].measurements[0].hc", "examinations[1].measurements[0].ac",
                  "examinations[1].measurements[0].fl", "examinations[1].measurements[1]"));
}

TEST(TwoPatients, differInASingleValueOfTheFirstExamination) {
  PatientRecord after = patient();
  after.ncRecordsArray().front()->measurements().front().setAC(7);
  EXPECT_THAT(keys(patient(), after), ElementsAre("examinations[0].measurements[0].ac"));
  after.ncRecordsArray()[1]->setNote("later");
  EXPECT_THAT(keys(patient(), after),
              ElementsAre("examinations[0].measurements[0].ac", "examinations[1].note"));
}

TEST(TwoPatients, areComparedWithoutWhatIsAlikeAtBothEnds) {
  PatientRecord after = patient();
  after.ncRecordsArray().insert(after.ncRecordsArray().begin() + 1, examinationOn(15, 40));
  EXPECT_THAT(keys(patient(), after), ElementsAre("examinations[1]")) << "added between";
  const auto removed = patientDifferences(after, patient(), 100);
  ASSERT_EQ(removed.size(), 1U);
  EXPECT_EQ(removed.front().key, "examinations[1]");
  EXPECT_TRUE(removed.front().isMissingAfter);
  EXPECT_EQ(removed.front().examination, 1U);
}

TEST(TwoPatients, areComparedUpToAsManyDifferencesAsAreWanted) {
  PatientRecord after = patient();
  after.setGravida(3);
  for (int i = 0; i < 1000; ++i) after.ncRecordsArray().push_back(examinationOn(30, 60));
  EXPECT_EQ(keys(patient(), after, 10).size(), 10U);
  EXPECT_THAT(keys(patient(), after, 1), ElementsAre("gravida"));
}

}  // namespace
}  // namespace nascor::model
