// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "app/NCDocument.h"
#include "foundation/RangeError.h"
#include "model/PatientFile.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;
using testing::ElementsAre;

constexpr double kDay = 86400.0;
constexpr Date kEDD{829008000.0 - 36000.0};

class TheExaminations : public testing::Test {
 protected:
  /// A document with examinations that many days before the EDD; each bears its day as BPD.
  std::unique_ptr<NCDocument> document(const std::vector<std::optional<double>>& daysBefore,
                                       std::int64_t fetuses = 1) {
    model::PatientRecord patient;
    patient.setEDD(kEDD);
    patient.setNumberOfFetuses(fetuses);
    patient.setExtrapolatedGestation(40.0);
    for (const auto& days : daysBefore) {
      patient.addNCRecordWithNumberOfFetuses(fetuses, platform.clock);
      model::NCRecord& exam = *patient.ncRecordsArray().back();
      exam.setExamDate(days ? std::optional(Date{kEDD.secondsSince2001 - *days * kDay}) : std::nullopt);
      for (auto& record : exam.measurements()) record.setBPD(days.value_or(1));
    }
    auto result = std::make_unique<NCDocument>(platform.environment());
    result->loadDataRepresentation(model::archivedPatient(patient), "");
    result->windowControllerDidLoadNib();
    return result;
  }
  static std::vector<double> order(const NCDocument& document) {
    std::vector<double> days;
    for (const auto& exam : document.patientRecord()->ncRecordsArray()) {
      days.push_back(exam->measurementsForFetus(0).bpd());
    }
    return days;
  }

  tests::TestApplication platform;
};

TEST_F(TheExaminations, areAddedAtTheEndWithoutSortingOrStoring) {
  const auto opened = document({100, 50}, 3);
  opened->notesField().takeEditedText("not stored");
  opened->bpdField().takeEditedText("33");
  opened->addExamination();
  EXPECT_EQ(opened->currentExam(), 2);
  const auto& exams = opened->patientRecord()->ncRecordsArray();
  ASSERT_EQ(exams.size(), 3U);
  EXPECT_EQ(exams[2]->examDate(), platform.clock.now());
  EXPECT_EQ(exams[2]->measurements().size(), 3U);
  EXPECT_EQ(exams[1]->note(), "");
  EXPECT_EQ(exams[1]->measurementsForFetus(0).bpd(), 50);
  EXPECT_EQ(opened->bpdField().text(), "33.0");
  EXPECT_THAT(order(*opened), ElementsAre(100, 50, 0)) << "dated before both";
}

TEST_F(TheExaminations, areRemovedWithoutMovingTheIndexOrGuardingTheLast) {
  const auto opened = document({100, 50});
  opened->deleteCurrentExamination();
  EXPECT_EQ(opened->currentExam(), 1);
  EXPECT_THAT(order(*opened), ElementsAre(100));
  EXPECT_THROW(opened->deleteCurrentExamination(), foundation::RangeError);
  opened->setCurrentExam(0);
  opened->deleteCurrentExamination();
  EXPECT_EQ(opened->numberOfExaminations(), 0);
  opened->synchronizeFromData();
  EXPECT_EQ(opened->bpdField().text(), "");
  EXPECT_EQ(opened->bpdField().doubleValue(), 0.0);
  opened->synchronizeToData();
}

TEST_F(TheExaminations, areFoundByIdentityAndNotByDate) {
  const auto opened = document({100, 100, 100});
  const auto& exams = opened->patientRecord()->ncRecordsArray();
  opened->setCurrentRecordFromRecord(exams[1].get());
  EXPECT_EQ(opened->currentExam(), 1);
  const model::NCRecord stranger(platform.clock);
  opened->setCurrentRecordFromRecord(&stranger);
  EXPECT_EQ(opened->currentExam(), 1);
  opened->setCurrentExam(17);
  opened->setCurrentRecordFromRecord(nullptr);
  EXPECT_EQ(opened->currentExam(), 2) << "held within the array";
}

TEST_F(TheExaminations, keepTheOneOnShowThroughEverySorting) {
  const auto opened = document({40, 100, 70});  // March, January, February
  opened->setCurrentExam(0);
  opened->synchronizeFromData();
  const model::NCRecord* onShow = opened->patientRecord()->ncRecordsArray()[0].get();
  opened->updateArrayOrder();
  EXPECT_THAT(order(*opened), ElementsAre(100, 70, 40));
  EXPECT_EQ(opened->currentExam(), 2);
  EXPECT_EQ(opened->patientRecord()->ncRecordsArray()[2].get(), onShow);
}

TEST_F(TheExaminations, standBeforeAllOthersWithoutADateAndKeepTheirOrderOnOneDay) {
  const auto opened = document({50, std::nullopt, 100, 50});
  opened->patientRecord()->ncRecordsArray()[3]->measurementsForFetus(0).setBPD(51);
  opened->setCurrentExam(0);
  opened->synchronizeFromData();
  opened->updateArrayOrder();
  EXPECT_THAT(order(*opened), ElementsAre(1, 100, 50, 51));
  EXPECT_EQ(opened->currentExam(), 2);
}

TEST_F(TheExaminations, areSortedWhateverTheirOrderWas) {
  std::mt19937 random(1);
  for (int round = 0; round < 50; ++round) {
    std::vector<std::optional<double>> days;
    for (int i = 0; i < 8; ++i) days.emplace_back(static_cast<double>(random() % 20 + 2));
    const auto opened = document(days);
    opened->setCurrentExam(static_cast<std::int64_t>(random() % 8));
    opened->synchronizeFromData();
    const auto* onShow =
        opened->patientRecord()->ncRecordsArray()[static_cast<std::size_t>(opened->currentExam())].get();
    opened->updateArrayOrder();
    EXPECT_TRUE(std::ranges::is_sorted(order(*opened), std::greater<>()));
    EXPECT_EQ(
        opened->patientRecord()->ncRecordsArray()[static_cast<std::size_t>(opened->currentExam())].get(),
        onShow);
  }
}

TEST_F(TheExaminations, areReachedByAClickWithinSecondsShortOfElevenDaysAndAHalf) {
  const auto opened = document({140, 70});
  opened->setCurrentExam(1);
  const auto clickSecondsPast = [&](double seconds) {
    opened->setCurrentExam(0);
    opened->synchronizeFromData();
    opened->setCurrentRecordFromClick(30.0 + seconds / 604800.0);
    return opened->currentExam();
  };
  EXPECT_EQ(clickSecondsPast(0), 1);
  EXPECT_EQ(clickSecondsPast(999998.5), 1);
  EXPECT_EQ(clickSecondsPast(-999998.5), 1);
  EXPECT_EQ(clickSecondsPast(999999.5), 0) << "too far: the first, deliberately";
  EXPECT_EQ(clickSecondsPast(-999999.5), 0);
}

TEST_F(TheExaminations, surviveAClickAtNoAge) {
  const auto opened = document({140, 70});
  for (const double odd :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e300}) {
    opened->setCurrentExam(1);
    opened->synchronizeFromData();
    opened->setCurrentRecordFromClick(odd);
    EXPECT_GE(opened->currentExam(), 0);
    EXPECT_LT(opened->currentExam(), 2);
  }
}

class TheFetuses : public TheExaminations {};

TEST_F(TheFetuses, areAddedInOrderOfSteps) {
  const auto opened = document({100, 50}, 2);
  std::vector<std::string> steps;
  const auto edits = opened->onStateChanged.subscribe([&] {
    steps.push_back("edited with " + std::to_string(opened->patientRecord()->numberOfFetuses()) +
                    " fetuses and " + std::to_string(opened->multiplePopUp().numberOfItems()) + " items");
  });
  const auto selections = opened->bpdField().onSelectText.subscribe(
      [&] { steps.push_back("fetus " + std::to_string(opened->currentFetus())); });
  opened->addFetus(nullptr);
  EXPECT_THAT(steps, ElementsAre("edited with 3 fetuses and 2 items", "fetus 2"));
}

TEST_F(TheFetuses, areRemovedInOrderOfSteps) {
  const auto opened = document({100}, 2);
  opened->multiplePopUp().setFrame({.x = 120, .y = 40, .width = 90, .height = 24});
  std::vector<std::string> steps;
  const auto fetuses = [&] { return std::to_string(opened->patientRecord()->numberOfFetuses()); };
  const auto edits = opened->onStateChanged.subscribe([&] { steps.push_back("edited with " + fetuses()); });
  const auto effects =
      opened->multiplePopUp().onAnimationEffect.subscribe([&](int effect, framework::Point at) {
        EXPECT_EQ(opened->multiplePopUp().numberOfItems(), 1);
        steps.push_back("effect " + std::to_string(effect) + " at " + std::to_string(static_cast<int>(at.x)) +
                        " " + std::to_string(static_cast<int>(at.y)));
      });
  opened->deleteFetusAlertDidEnd(framework::AlertReturn::alternate);
  EXPECT_THAT(steps, testing::IsEmpty());
  opened->deleteFetusAlertDidEnd(framework::AlertReturn::defaultButton);
  EXPECT_THAT(steps, ElementsAre("edited with 2", "effect 10 at 100 52"));
}

TEST_F(TheFetuses, areNotTornApartWhenAnExaminationLacksOne) {
  const auto opened = document({100, 50}, 2);
  opened->patientRecord()->ncRecordsArray()[1]->deleteMeasurementsRecord(1);
  opened->setCurrentFetus(1);
  EXPECT_THROW(opened->deleteFetusAlertDidEnd(framework::AlertReturn::defaultButton), foundation::RangeError);
  EXPECT_EQ(opened->patientRecord()->numberOfFetuses(), 2);
  EXPECT_EQ(opened->patientRecord()->ncRecordsArray()[0]->measurements().size(), 2U);
}

TEST_F(TheFetuses, ofADamagedFileDoNotFillTheMemory) {
  const auto opened = document({100});
  opened->patientRecord()->setNumberOfFetuses(std::numeric_limits<std::int64_t>::max());
  opened->addExamination();
  EXPECT_EQ(opened->patientRecord()->ncRecordsArray()[1]->measurements().size(), 1000U);
  opened->addFetus(nullptr);
  EXPECT_EQ(opened->patientRecord()->numberOfFetuses(), std::numeric_limits<std::int64_t>::max());
}

TEST_F(TheFetuses, areNoneInADocumentWithoutAny) {
  for (const std::int64_t none : {0, -3}) {
    const auto opened = document({100});
    opened->patientRecord()->setNumberOfFetuses(none);
    opened->updateMultiplePopUp();
    EXPECT_EQ(opened->multiplePopUp().indexOfSelectedItem(), -1);
    EXPECT_EQ(opened->currentFetus(), 0);
    opened->deleteFetus(nullptr);
    opened->chooseFetus(opened->multiplePopUp());
    EXPECT_EQ(opened->currentFetus(), 0);
    EXPECT_TRUE(platform.alerts.asked.empty());
  }
}

}  // namespace
}  // namespace nascor::app
