// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "synthetic_clinic/Clinic.h"

#include <gmock/gmock.h>

#include <set>

#include "archive/FormatError.h"
#include "calc/Dating.h"
#include "calc/Plausibility.h"
#include "model/ClassNames.h"
#include "model/PatientDifferences.h"
#include "model/PatientFile.h"
#include "synthetic_clinic/OldDocument.h"
#include "synthetic_clinic/TarText.h"
#include "synthetic_clinic/Zone.h"

namespace nascor::clinic {
namespace {

constexpr std::uint64_t kMany = 4000;

TEST(AClinic, hasTheSameBytesInAnyOrder) {
  const Clinic one(7);
  const Clinic other(7);
  for (const std::uint64_t number : {999U, 3U, 3U, 0U}) {
    EXPECT_EQ(one.document(number).bytes, other.document(number).bytes) << number;
  }
  EXPECT_NE(Clinic(8).document(3).bytes, one.document(3).bytes);
  EXPECT_NE(one.document(4).bytes, one.document(3).bytes);
  EXPECT_EQ(one.document(12345).name, "0012/NC-0012345.nascor");
}

// What writes earlier versions knows the places of the last one too, so that none is forgotten when there is a next.
TEST(AClinic, keepsAllOfAPatientInTheLastVersion) {
  const model::PatientRecord patient = Clinic().patient(3);
  const auto old = model::unarchivedPatient(oldDocument(patient, model::class_version::patientRecord));
  const auto usual = model::unarchivedPatient(model::archivedPatient(patient));
  EXPECT_TRUE(model::patientDifferences(*old.patient, *usual.patient, 1).empty());
  EXPECT_EQ(old.facts.gravidityText, usual.facts.gravidityText);
}

TEST(AClinic, hasOneDamagedDocumentInEachThousand) {
  const Clinic clinic;
  std::array<int, kMany / 1000> damaged{};
  for (std::uint64_t number = 0; number < kMany; ++number) {
    const Document document = clinic.document(number);
    if (document.isDamaged) {
      ++damaged.at(number / 1000);
      EXPECT_THROW(model::unarchivedPatient(document.bytes), archive::FormatError) << number;
    } else {
      EXPECT_NO_THROW(model::unarchivedPatient(document.bytes)) << number;
    }
  }
  EXPECT_THAT(damaged, testing::Each(1));
}

TEST(AClinic, hasWhatClinicsHave) {
  const Clinic clinic;
  std::set<std::int64_t> versions;
  std::set<std::int64_t> fetuses;
  std::set<std::int64_t> standards;
  std::set<double> secondsOfMidnight;
  std::size_t missing = 0;
  std::size_t undated = 0;
  for (std::uint64_t number = 0; number < kMany; ++number) {
    const Document document = clinic.document(number);
    if (document.isDamaged) continue;
    const auto read = model::unarchivedPatient(document.bytes);
    versions.insert(read.facts.patientVersion.value_or(-1));
    fetuses.insert(read.patient->numberOfFetuses());
    standards.insert(read.patient->standard());
    if (read.patient->edd())
      secondsOfMidnight.insert(std::fmod(read.patient->edd()->secondsSince2001, 86400.0));
    for (const auto& examination : read.patient->ncRecordsArray()) {
      undated += examination->examDate() ? 0 : 1;
      for (const auto& record : examination->measurements()) missing += record.ac() == 0.0 ? 1 : 0;
    }
  }
  EXPECT_THAT(versions, testing::ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
  EXPECT_THAT(fetuses, testing::ElementsAre(1, 2, 3));
  EXPECT_THAT(standards, testing::ElementsAre(0, 1, 2, 3, 9));
  EXPECT_GE(secondsOfMidnight.size(), 5U) << "the midnights of several zones";
  EXPECT_GT(missing, 0U);
  EXPECT_GT(undated, 0U);
}

TEST(AClinic, measuresWhatCanBe) {
  const Clinic clinic;
  std::size_t improbable = 0;
  std::size_t records = 0;
  for (std::uint64_t number = 0; number < kMany; ++number) {
    const model::PatientRecord patient = clinic.patient(number);
    for (const auto& examination : patient.ncRecordsArray()) {
      const double age = calc::menstrualAge(examination->examDate(), patient.edd());
      EXPECT_EQ(calc::improbableAge(age), std::nullopt) << number;
      EXPECT_TRUE(age == 0.0 || (age > 11.0 && age < 41.0)) << number;
      for (const auto& record : examination->measurements()) {
        ++records;
        // Far from what a growth standard holds.
        improbable +=
            record.bpd() > 115.0 || record.hc() > 390.0 || record.ac() > 450.0 || record.fl() > 90.0 ? 1 : 0;
      }
    }
  }
  EXPECT_LT(improbable, records / 1000);
}

TEST(AZone, changesItsClockOnSundays) {
  // 2026-03-29 and 2026-10-25, 01:00 UTC, in days after the first of 2001.
  const double spring = 9218 * 86400.0 + 3600.0;
  const double autumn = 9428 * 86400.0 + 3600.0;
  const Zone northern(3600.0, Zone::Summer::northern);
  const Zone southern(36000.0, Zone::Summer::southern);
  EXPECT_EQ(northern.offsetFromUtc({spring - 1.0}), 3600.0);
  EXPECT_EQ(northern.offsetFromUtc({spring}), 7200.0);
  EXPECT_EQ(northern.offsetFromUtc({autumn - 1.0}), 7200.0);
  EXPECT_EQ(northern.offsetFromUtc({autumn}), 3600.0);
  EXPECT_EQ(southern.offsetFromUtc({spring}), 36000.0);
  EXPECT_EQ(southern.offsetFromUtc({autumn}), 39600.0);
}

}  // namespace
}  // namespace nascor::clinic
