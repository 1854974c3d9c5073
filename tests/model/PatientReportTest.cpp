// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientReport.h"

#include <gmock/gmock.h>

#include <limits>

namespace nascor::model {
namespace {

using foundation::Date;
using testing::ElementsAre;
using testing::Pair;

constexpr double kDay = 86400.0;
constexpr Date kEDD{816912000.0};

/// A patient with examinations at these ages, in weeks, of one fetus each.
class ThePatientReport : public testing::Test {
 protected:
  void SetUp() override {
    patient.setMaternalIDString("AB-123");
    patient.setGravida(2);
    patient.setEDD(kEDD);
    patient.setNumberOfFetuses(1);
  }
  void addExamination(double weeks, const std::vector<calc::Biometry>& fetuses) {
    auto record = std::make_unique<NCRecord>();
    record->setExamDate(Date{kEDD.secondsSince2001 - (280.0 - weeks * 7.0) * kDay});
    for (const calc::Biometry& measured : fetuses) record->measurements().emplace_back(measured);
    patient.ncRecordsArray().push_back(std::move(record));
  }
  PatientReport report(double plannedGestation = 40.0) const { return {patient, plannedGestation}; }
  static std::string dayText(const std::optional<Date>& date) {
    return date
               ? "day " +
                     std::to_string(static_cast<int>((date->secondsSince2001 - kEDD.secondsSince2001) / kDay))
               : "none";
  }
  PatientReport::Head head(std::int64_t exam) const {
    return report().head(report().examination(exam), dayText, english);
  }

  PatientRecord patient;
  foundation::EnglishLocalizer english;
};

TEST_F(ThePatientReport, saysWhoAndWhenAndHowFarOn) {
  addExamination(20, {});
  addExamination(32, {});
  const auto first = head(0);
  EXPECT_EQ(first.identifier, "AB-123");
  EXPECT_EQ(first.gravida, "2");
  EXPECT_EQ(first.examDate, "day -140");
  EXPECT_EQ(first.edd, "day 0");
  EXPECT_EQ(first.age, "20w 0d");
  EXPECT_EQ(first.daysToGo, "Days to Go:\t0");
  EXPECT_EQ(head(1).age, "32w 0d");
}

TEST_F(ThePatientReport, leavesOutWhatIsNotThere) {
  for (const std::int64_t exam : {-1, 0}) {
    EXPECT_EQ(head(exam).examDate, "");
    EXPECT_EQ(head(exam).age, "-");
    EXPECT_EQ(head(exam).daysToGo, "");
  }
  patient.setMaternalIDString(std::nullopt);
  patient.setEDD(std::nullopt);
  EXPECT_EQ(head(0).identifier, "");
  EXPECT_EQ(head(0).edd, "-");
  addExamination(32, {});
  EXPECT_EQ(head(0).examDate, "day -56");
  EXPECT_EQ(head(0).age, "-");
  // An unknown age counts as 0, which is below 30 weeks.
  EXPECT_FALSE(report(std::numeric_limits<double>::quiet_NaN()).projectionIsShown());
}

TEST_F(ThePatientReport, showsNoDaysToGoWithoutAnEDD) {
  addExamination(32, {});
  EXPECT_TRUE(report().projectionIsShown());
  patient.setEDD(std::nullopt);
  EXPECT_EQ(head(0).daysToGo, "");
}

TEST_F(ThePatientReport, hasARowForAFetusAtAnExamination) {
  addExamination(20, {{.bpd = 47.25, .hc = 174.04, .ac = 154.35, .fl = 32.15}});
  const NCRecord& examination = *report().examination(0);
  const auto row = report().row(examination, &examination.measurementsForFetus(0));
  // 47.25 is a tie, which goes to the even 47.2; as doubles 154.35 and 32.15 lie just below the half. The published formula
  // gives 342.4 g.
  EXPECT_THAT(PatientReport::cells(row, "first", english),
              ElementsAre("first", "20w 0d", "47.2", "174.0", "154.3", "32.1", "342"));
  EXPECT_EQ(row.examDate, examination.examDate());
  EXPECT_THAT(PatientReport::cells(report().row(examination, nullptr), "", english),
              ElementsAre("", "20w 0d", "0.0", "0.0", "0.0", "0.0", "-"));
}

TEST_F(ThePatientReport, projectsTheLastLengthsOnTheirZScore) {
  addExamination(20, {});
  addExamination(30, {});
  calc::ReferenceTable standard;
  for (int week = 30; week <= 40; ++week) {
    standard.push_back(
        calc::DatabaseRecord::initWithData(week, 80.0 + 1.5 * (week - 30), 4.0 + 0.1 * (week - 30)));
  }
  EXPECT_DOUBLE_EQ(report().projectedLength(84.0, standard), 100.0) << "one deviation above the mean";
  EXPECT_DOUBLE_EQ(report().projectedLength(0.0, standard), 95.0) << "not measured: the mean";
  EXPECT_DOUBLE_EQ(report(39.0).projectedLength(84.0, standard), 98.4);
}

TEST_F(ThePatientReport, hasNoThresholdForTheProjectedWeight) {
  const auto row = report(39.0).projectedRow({.bpd = 92.06, .hc = 0.0, .ac = 0.0, .fl = 0.0});
  EXPECT_THAT(PatientReport::cells(row, PatientReport::projectedTitle(english), english),
              ElementsAre("Projected", "39w 0d", "92.1", "0.0", "0.0", "0.0", "0"));
  EXPECT_EQ(row.examDate, std::nullopt);
}

TEST_F(ThePatientReport, listsTheCountedFetusesAndThoseThatOnlyAFileHolds) {
  addExamination(20, {{}, {}, {}});
  addExamination(22, {{}});
  patient.setNumberOfFetuses(2);
  const auto fetuses = [this] {
    std::vector<std::pair<std::size_t, std::vector<std::size_t>>> listed;
    report().forEachFetus([&](std::size_t fetus, const auto& places) { listed.emplace_back(fetus, places); });
    return listed;
  };
  EXPECT_THAT(fetuses(),
              ElementsAre(Pair(0, ElementsAre(0, 1)), Pair(1, ElementsAre(0, 1)), Pair(2, ElementsAre(0))));
  patient.setNumberOfFetuses(1'000'000'000);
  EXPECT_EQ(fetuses().size(), 5U);
  patient.setNumberOfFetuses(-1);
  EXPECT_THAT(fetuses(),
              ElementsAre(Pair(0, ElementsAre(0, 1)), Pair(1, ElementsAre(0)), Pair(2, ElementsAre(0))));
}

}  // namespace
}  // namespace nascor::model
