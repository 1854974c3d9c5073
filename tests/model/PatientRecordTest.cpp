// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "Lengths.h"
#include "foundation/RangeError.h"
#include "support/FixedClock.h"
#include "support/MemoryUserDefaults.h"

namespace nascor::model {
namespace {

using foundation::Date;
using foundation::RangeError;
using tests::FixedClock;
using tests::kUnmeasured;
using tests::lengthsOf;
using tests::MemoryUserDefaults;

MemoryUserDefaults preferences(const std::string& standard, const std::string& weight,
                               const std::string& crl) {
  MemoryUserDefaults defaults;
  defaults.setValue("Standard", standard);
  defaults.setValue("Estimated Fetal Weight Standard", weight);
  defaults.setValue("CRL Standard", crl);
  return defaults;
}

/// A new patient with the given numbers of fetuses in its examinations, fetus f of examination e with an AC of
/// 100 e + f + 1.
PatientRecord patientWithExaminations(const std::vector<std::int64_t>& fetusesOfExaminations) {
  PatientRecord patient{FixedClock(), MemoryUserDefaults()};
  patient.ncRecordsArray().clear();
  for (const std::int64_t fetuses : fetusesOfExaminations) {
    patient.addNCRecordWithNumberOfFetuses(fetuses, FixedClock());
    for (std::int64_t fetus = 0; fetus < fetuses; ++fetus) {
      const auto examination = static_cast<double>(patient.ncRecordsArray().size() - 1);
      patient.ncRecordsArray().back()->measurementsForFetus(fetus).setAC(100.0 * examination +
                                                                         static_cast<double>(fetus) + 1.0);
    }
    patient.setNumberOfFetuses(fetuses);
  }
  return patient;
}

std::vector<std::vector<double>> acOf(const PatientRecord& patient) {
  std::vector<std::vector<double>> examinations;
  for (const auto& examination : patient.ncRecordsArray()) {
    auto& fetuses = examinations.emplace_back();
    for (const MeasurementsRecord& fetus : examination->measurements()) fetuses.push_back(fetus.ac());
  }
  return examinations;
}

// ---- A new patient

TEST(ANewPatient, hasOneExaminationOfOneFetusDatedNow) {
  const PatientRecord patient(FixedClock({221234567.890625}), MemoryUserDefaults());
  ASSERT_EQ(patient.ncRecordsArray().size(), 1U);
  const NCRecord& examination = *patient.ncRecordsArray()[0];
  EXPECT_EQ(examination.examDate(), Date{221234567.890625});
  EXPECT_EQ(examination.note(), "");
  ASSERT_EQ(examination.measurements().size(), 1U);
  EXPECT_EQ(lengthsOf(examination.measurements()[0]), kUnmeasured);
}

TEST(ANewPatient, hasNoIdentifierNoDateOfDeliveryAndFortyWeeksPlanned) {
  const PatientRecord patient{FixedClock(), MemoryUserDefaults()};
  EXPECT_EQ(patient.maternalIDString(), "");
  EXPECT_EQ(patient.edd(), std::nullopt);
  EXPECT_EQ(patient.numberOfFetuses(), 1);
  EXPECT_EQ(patient.extrapolatedGestation(), 40.0);
  EXPECT_EQ(patient.gravida(), 0);
}

TEST(ANewPatient, takesEachStandardFromItsOwnPreference) {
  const PatientRecord patient(FixedClock(), preferences("3", "7", "1"));
  EXPECT_EQ(patient.standard(), 3);
  EXPECT_EQ(patient.fetalWeightStandard(), 7);
  EXPECT_EQ(patient.crlStandard(), 1);
}

TEST(ANewPatient, takesThePreferencesOfTheMomentItBegins) {
  MemoryUserDefaults defaults = preferences("3", "7", "1");
  const PatientRecord before(FixedClock(), defaults);
  defaults.setValue("Standard", "2");
  const PatientRecord after(FixedClock(), defaults);
  EXPECT_EQ(before.standard(), 3);
  EXPECT_EQ(after.standard(), 2);
}

TEST(ANewPatient, keepsPreferencesOfUnknownStandards) {
  const PatientRecord patient(FixedClock(), preferences("17", "-3", "4294967296"));
  EXPECT_EQ(patient.standard(), 17);
  EXPECT_EQ(patient.fetalWeightStandard(), -3);
  EXPECT_EQ(patient.crlStandard(), 4294967296);
}

TEST(ANewPatient, hasTheFirstStandardsWhereNothingIsPreferred) {
  const PatientRecord patient{FixedClock(), MemoryUserDefaults()};
  EXPECT_EQ(patient.standard(), 0);
  EXPECT_EQ(patient.fetalWeightStandard(), 0);
  EXPECT_EQ(patient.crlStandard(), 0);
}

/// Notes in one list when the time and which preferences are asked for.
class RecordingClock final : public foundation::Clock {
 public:
  explicit RecordingClock(std::vector<std::string>& asked) : asked_(asked) {}
  Date now() const override {
    asked_.emplace_back("the time");
    return {};
  }

 private:
  std::vector<std::string>& asked_;
};

class RecordingDefaults final : public foundation::UserDefaults {
 public:
  explicit RecordingDefaults(std::vector<std::string>& asked) : asked_(asked) {}
  std::optional<std::string> value(std::string_view key) const override {
    asked_.emplace_back(key);
    return "1";
  }
  void setValue(std::string_view, std::string) override { asked_.emplace_back("stored"); }
  void registerDefault(std::string_view, std::string) override { asked_.emplace_back("registered"); }

 private:
  std::vector<std::string>& asked_;
};

TEST(ANewPatient, getsItsExaminationFirstAndItsStandardsAfterIt) {
  std::vector<std::string> asked;
  const PatientRecord patient{RecordingClock(asked), RecordingDefaults(asked)};
  const std::vector<std::string> expected{"the time", "Standard", "Estimated Fetal Weight Standard",
                                          "CRL Standard"};
  EXPECT_EQ(asked, expected);
}

TEST(APatientToBeReadInto, isEmpty) {
  const PatientRecord patient;
  EXPECT_EQ(patient.maternalIDString(), std::nullopt);
  EXPECT_EQ(patient.edd(), std::nullopt);
  EXPECT_TRUE(patient.ncRecordsArray().empty());
  EXPECT_EQ(patient.standard(), 0);
  EXPECT_EQ(patient.fetalWeightStandard(), 0);
  EXPECT_EQ(patient.numberOfFetuses(), 0);
  EXPECT_EQ(patient.extrapolatedGestation(), 0.0);
  EXPECT_EQ(patient.crlStandard(), 0);
  EXPECT_EQ(patient.gravida(), 0);
}

// ---- Its values

TEST(APatient, keepsEachOfItsValuesApart) {
  PatientRecord patient;
  patient.setMaternalIDString("AB-123");
  patient.setEDD(Date{239000000.0});
  patient.setStandard(2);
  patient.setFetalWeightStandard(6);
  patient.setNumberOfFetuses(5);
  patient.setExtrapolatedGestation(38.5);
  patient.setCRLStandard(3);
  patient.setGravida(4);
  EXPECT_EQ(patient.maternalIDString(), "AB-123");
  EXPECT_EQ(patient.edd(), Date{239000000.0});
  EXPECT_EQ(patient.standard(), 2);
  EXPECT_EQ(patient.fetalWeightStandard(), 6);
  EXPECT_EQ(patient.numberOfFetuses(), 5);
  EXPECT_EQ(patient.extrapolatedGestation(), 38.5);
  EXPECT_EQ(patient.crlStandard(), 3);
  EXPECT_EQ(patient.gravida(), 4);
  patient.setEDD(std::nullopt);
  EXPECT_EQ(patient.edd(), std::nullopt);
}

TEST(APatient, keepsWholeNumbersOfSixtyFourBits) {
  constexpr std::int64_t kLarge = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kSmall = std::numeric_limits<std::int64_t>::min();
  PatientRecord patient;
  patient.setStandard(kLarge);
  patient.setFetalWeightStandard(kSmall);
  patient.setNumberOfFetuses(kLarge);
  patient.setCRLStandard(kSmall);
  patient.setGravida(kLarge);
  EXPECT_EQ(patient.standard(), kLarge);
  EXPECT_EQ(patient.fetalWeightStandard(), kSmall);
  EXPECT_EQ(patient.numberOfFetuses(), kLarge);
  EXPECT_EQ(patient.crlStandard(), kSmall);
  EXPECT_EQ(patient.gravida(), kLarge);
}

TEST(APatient, handsOutItsStoredIdentifierAndArray) {
  PatientRecord patient{FixedClock(), MemoryUserDefaults()};
  EXPECT_EQ(&patient.maternalIDString(), &std::as_const(patient).maternalIDString());
  PatientRecord::Examinations& live = patient.ncRecordsArray();
  live.push_back(std::make_unique<NCRecord>());
  EXPECT_EQ(&patient.ncRecordsArray(), &live);
  EXPECT_EQ(&std::as_const(patient).ncRecordsArray(), &live);
  EXPECT_EQ(patient.ncRecordsArray().size(), 2U);
}

// ---- Adding and deleting examinations

class AddingAnExamination : public testing::TestWithParam<std::pair<std::int64_t, std::size_t>> {};

TEST_P(AddingAnExamination, givesItOneRecordPerFetusAndNeverNone) {
  PatientRecord patient{FixedClock(), MemoryUserDefaults()};
  patient.addNCRecordWithNumberOfFetuses(GetParam().first, FixedClock({99.0}));
  ASSERT_EQ(patient.ncRecordsArray().size(), 2U);
  EXPECT_EQ(patient.ncRecordsArray()[1]->measurements().size(), GetParam().second);
  EXPECT_EQ(patient.ncRecordsArray()[1]->examDate(), Date{99.0});
  EXPECT_EQ(patient.numberOfFetuses(), 1);
}

INSTANTIATE_TEST_SUITE_P(forAnyNumber, AddingAnExamination,
                         testing::Values(std::pair(std::numeric_limits<std::int64_t>::min(), 1U),
                                         std::pair(-1, 1U), std::pair(0, 1U), std::pair(1, 1U),
                                         std::pair(2, 2U), std::pair(3, 3U), std::pair(5, 5U)));

TEST(AddingAnEarlierExamination, putsItLastAllTheSame) {
  PatientRecord patient(FixedClock({1000.0}), MemoryUserDefaults());
  patient.addNCRecordWithNumberOfFetuses(1, FixedClock({2.0}));
  EXPECT_EQ(patient.ncRecordsArray()[0]->examDate(), Date{1000.0});
  EXPECT_EQ(patient.ncRecordsArray()[1]->examDate(), Date{2.0});
}

TEST(DeletingAnExamination, keepsTheOthersAndTheirIdentity) {
  PatientRecord patient = patientWithExaminations({1, 1, 1});
  const NCRecord* first = patient.ncRecordsArray()[0].get();
  const NCRecord* last = patient.ncRecordsArray()[2].get();
  patient.deleteNCRecordWithIndex(1);
  ASSERT_EQ(patient.ncRecordsArray().size(), 2U);
  EXPECT_EQ(patient.ncRecordsArray()[0].get(), first);
  EXPECT_EQ(patient.ncRecordsArray()[1].get(), last);
}

TEST(DeletingAnExamination, takesTheLastOneToo) {
  PatientRecord patient = patientWithExaminations({1, 1});
  patient.deleteNCRecordWithIndex(1);
  patient.deleteNCRecordWithIndex(0);
  EXPECT_TRUE(patient.ncRecordsArray().empty());
  EXPECT_THROW(patient.deleteNCRecordWithIndex(0), RangeError);
}

TEST(DeletingAnExamination, isARangeErrorWhereThereIsNone) {
  PatientRecord patient = patientWithExaminations({1, 1});
  EXPECT_THROW(patient.deleteNCRecordWithIndex(2), RangeError);
  EXPECT_THROW(patient.deleteNCRecordWithIndex(std::uint64_t{1} << 32), RangeError);
  EXPECT_THROW(patient.deleteNCRecordWithIndex(std::numeric_limits<std::uint64_t>::max()), RangeError);
  EXPECT_EQ(patient.ncRecordsArray().size(), 2U);
}

// ---- Adding and deleting fetuses

TEST(AddingAFetus, appendsAnUnmeasuredOneToEveryExamination) {
  PatientRecord patient = patientWithExaminations({1, 1, 1, 1});
  patient.addFetus();
  EXPECT_EQ(patient.numberOfFetuses(), 2);
  EXPECT_EQ(acOf(patient), (std::vector<std::vector<double>>{{1, 0}, {101, 0}, {201, 0}, {301, 0}}));
  for (const auto& examination : patient.ncRecordsArray()) {
    EXPECT_EQ(lengthsOf(examination->measurementsForFetus(1)), kUnmeasured);
  }
}

TEST(AddingAFetus, countsEvenWithoutExaminations) {
  PatientRecord patient = patientWithExaminations({});
  patient.addFetus();
  EXPECT_EQ(patient.numberOfFetuses(), 2);
}

TEST(DeletingTheFirstTwin, makesTheSecondTheFirstEverywhere) {
  PatientRecord patient = patientWithExaminations({2, 2, 2});
  patient.deleteFetus(0);
  EXPECT_EQ(patient.numberOfFetuses(), 1);
  EXPECT_EQ(acOf(patient), (std::vector<std::vector<double>>{{2}, {102}, {202}}));
}

TEST(DeletingAFetus, movesTheLaterOnesDown) {
  PatientRecord patient = patientWithExaminations({4, 4});
  patient.deleteFetus(1);
  EXPECT_EQ(patient.numberOfFetuses(), 3);
  EXPECT_EQ(acOf(patient), (std::vector<std::vector<double>>{{1, 3, 4}, {101, 103, 104}}));
  patient.deleteFetus(2);
  EXPECT_EQ(patient.numberOfFetuses(), 2);
  EXPECT_EQ(acOf(patient), (std::vector<std::vector<double>>{{1, 3}, {101, 103}}));
}

TEST(DeletingAFetus, doesNotLookAtTheCount) {
  PatientRecord patient = patientWithExaminations({1});
  patient.deleteFetus(0);
  EXPECT_EQ(patient.numberOfFetuses(), 0);
  EXPECT_EQ(acOf(patient), (std::vector<std::vector<double>>{{}}));

  PatientRecord without = patientWithExaminations({});
  without.deleteFetus(7);
  EXPECT_EQ(without.numberOfFetuses(), 0);
}

class DeletingAFetusThatIsMissingSomewhere : public testing::TestWithParam<std::int64_t> {};

TEST_P(DeletingAFetusThatIsMissingSomewhere, isARangeErrorAndChangesNothing) {
  PatientRecord patient = patientWithExaminations({3, 3, 2, 3});
  EXPECT_THROW(patient.deleteFetus(GetParam()), RangeError);
  EXPECT_EQ(patient.numberOfFetuses(), 3);
  EXPECT_EQ(acOf(patient),
            (std::vector<std::vector<double>>{{1, 2, 3}, {101, 102, 103}, {201, 202}, {301, 302, 303}}));
}

INSTANTIATE_TEST_SUITE_P(atAnyPlace, DeletingAFetusThatIsMissingSomewhere,
                         testing::Values(-1, 2, 3, std::numeric_limits<std::int64_t>::max()));

// ---- Order

TEST(TheExaminationsOfAPatient, keepTheirIdentityWhileTheyAreSorted) {
  PatientRecord patient(FixedClock({30.0}), MemoryUserDefaults());
  patient.addNCRecordWithNumberOfFetuses(1, FixedClock({10.0}));
  patient.addNCRecordWithNumberOfFetuses(1, FixedClock({20.0}));
  const NCRecord* at30 = patient.ncRecordsArray()[0].get();
  const NCRecord* at10 = patient.ncRecordsArray()[1].get();
  const NCRecord* at20 = patient.ncRecordsArray()[2].get();
  std::ranges::stable_sort(patient.ncRecordsArray(),
                           [](const auto& a, const auto& b) { return a->compare(*b) < 0; });
  EXPECT_EQ(patient.ncRecordsArray()[0].get(), at10);
  EXPECT_EQ(patient.ncRecordsArray()[1].get(), at20);
  EXPECT_EQ(patient.ncRecordsArray()[2].get(), at30);
}

}  // namespace
}  // namespace nascor::model
