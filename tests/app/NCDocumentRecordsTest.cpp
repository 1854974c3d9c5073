// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "app/NCDocument.h"
#include "model/PatientFile.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;

constexpr double kDay = 86400.0;
constexpr Date kEDD{829008000.0};

/// What a document answers of its records, and what it computes of them for itself.
class TheRecordsOfADocument : public testing::Test {
 protected:
  tests::TestApplication platform;

  /// A patient of one fetus, measured at 32 weeks, with the delivery planned at `planned` weeks.
  model::PatientRecord patientPlannedAt(double planned, const calc::Biometry& measured = {}) const {
    model::PatientRecord patient(platform.clock, platform.defaults);
    patient.setEDD(kEDD);
    patient.setExtrapolatedGestation(planned);
    model::NCRecord& examination = *patient.ncRecordsArray()[0];
    examination.setExamDate(Date{kEDD.secondsSince2001 - 56 * kDay});
    examination.measurements()[0] = model::MeasurementsRecord(measured);
    return patient;
  }

  std::unique_ptr<NCDocument> opened(const model::PatientRecord& patient) {
    auto document = std::make_unique<NCDocument>(platform.environment());
    document->loadDataRepresentation(model::archivedPatient(patient), "");
    document->windowControllerDidLoadNib();
    return document;
  }
};

TEST_F(TheRecordsOfADocument, haveTheFirstPlaceAsTheirLastWhereThereIsNoExamination) {
  model::PatientRecord patient = patientPlannedAt(40.0);
  patient.ncRecordsArray().clear();
  const auto document = opened(patient);
  ASSERT_NE(document->patientRecord(), nullptr);
  EXPECT_EQ(document->lastExam(), 0);
  EXPECT_EQ(document->lastMeasurementsRecordForCurrentFetus(), nullptr);
}

TEST_F(TheRecordsOfADocument, keepTheStandardsOfTheirFileWhateverIsPreferred) {
  model::PatientRecord patient = patientPlannedAt(40.0);
  patient.setStandard(1);
  patient.setFetalWeightStandard(6);
  patient.setCRLStandard(2);
  for (const char* key : {"Standard", "Estimated Fetal Weight Standard", "CRL Standard"}) {
    platform.defaults.setValue(key, "3");
  }
  const auto document = opened(patient);
  EXPECT_EQ(document->patientRecord()->standard(), 1);
  EXPECT_EQ(document->patientRecord()->fetalWeightStandard(), 6);
  EXPECT_EQ(document->patientRecord()->crlStandard(), 2);
}

TEST_F(TheRecordsOfADocument, areProjectedToTheGestationThatTheyPlan) {
  // An unmeasured length projects to the mean; under Westerway -31.546 + 4.69 w - 0.0371 w^2 for the BPD.
  for (const auto& [planned, mean] : {std::pair{38.5, 94.01825}, {36.0, 89.2124}, {40.0, 96.694}}) {
    EXPECT_NEAR(opened(patientPlannedAt(planned))->extrapolatedBPDForCurrentFetus(), mean, 0.001) << planned;
  }
  // HC at 32 weeks: mean 289.9204, sd 11.0; at 36 weeks: mean 317.6836, sd 11.6666...
  const auto document = opened(patientPlannedAt(36.0, {.bpd = 0.0, .hc = 300.9204, .ac = 0.0, .fl = 0.0}));
  EXPECT_NEAR(document->extrapolatedHCForCurrentFetus(), 317.6836 + 11.666667, 0.001);
}

TEST_F(TheRecordsOfADocument, keepEachProjectedLengthInItsOwnPlace) {
  const auto document = opened(patientPlannedAt(40.0, {.bpd = 80.0, .hc = 290.0, .ac = 280.0, .fl = 60.0}));
  const double bpd = document->extrapolatedBPDForCurrentFetus();
  EXPECT_EQ(document->extrapolatedMeasurements().hc(), 0.0) << "each is computed when it is asked for";
  const double hc = document->extrapolatedHCForCurrentFetus();
  const double ac = document->extrapolatedACForCurrentFetus();
  const double fl = document->extrapolatedFLForCurrentFetus();
  EXPECT_GT(bpd, 80.0);
  EXPECT_GT(hc, 290.0);
  EXPECT_GT(ac, 280.0);
  EXPECT_GT(fl, 60.0);
  EXPECT_EQ(document->extrapolatedMeasurements().bpd(), bpd);
  EXPECT_EQ(document->extrapolatedMeasurements().hc(), hc);
  EXPECT_EQ(document->extrapolatedMeasurements().ac(), ac);
  EXPECT_EQ(document->extrapolatedMeasurements().fl(), fl);
}

TEST_F(TheRecordsOfADocument, areSavedWithoutWhatIsProjected) {
  const auto document = opened(patientPlannedAt(40.0, {.bpd = 80.0, .hc = 290.0, .ac = 280.0, .fl = 60.0}));
  const auto before = document->dataRepresentationOfType("");
  document->extrapolatedBPDForCurrentFetus();
  document->extrapolatedHCForCurrentFetus();
  document->extrapolatedACForCurrentFetus();
  document->extrapolatedFLForCurrentFetus();
  EXPECT_EQ(document->dataRepresentationOfType(""), before);
}

TEST_F(TheRecordsOfADocument, leaveNothingProjectedBehindWhenTheyAreGone) {
  const auto document = opened(patientPlannedAt(40.0, {.bpd = 80.0, .hc = 0.0, .ac = 0.0, .fl = 0.0}));
  ASSERT_GT(document->extrapolatedBPDForCurrentFetus(), 0.0);
  constexpr std::string_view kNilRoot = "\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x85";
  document->loadDataRepresentation(std::as_bytes(std::span(kNilRoot)), "");
  EXPECT_EQ(document->extrapolatedBPDForCurrentFetus(), 0.0);
  EXPECT_EQ(document->extrapolatedMeasurements().bpd(), 0.0);
}

}  // namespace
}  // namespace nascor::app
