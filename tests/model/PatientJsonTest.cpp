// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientJson.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/FixedOffsetCalendar.h"

namespace nascor::tests {
namespace {

using foundation::Date;
using model::JsonNumbers;
using model::MeasurementsRecord;
using model::NCRecord;
using model::PatientRecord;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string json(const PatientRecord& patient, JsonNumbers numbers = JsonNumbers::inMemory,
                 double offset = 0.0) {
  std::string out;
  foundation::JsonText text(out);
  writePatientJson(text, patient, FixedOffsetCalendar(offset), numbers);
  return out;
}

NCRecord& addExamination(PatientRecord& patient) {
  patient.ncRecordsArray().push_back(std::make_unique<NCRecord>());
  return *patient.ncRecordsArray().back();
}

PatientRecord filledPatient() {
  PatientRecord patient;
  patient.setMaternalIDString("AB-123");
  patient.setEDD(Date{829008000.0});  // 2027-04-10
  patient.setStandard(1);
  patient.setFetalWeightStandard(2);
  patient.setNumberOfFetuses(3);
  patient.setExtrapolatedGestation(38.5);
  patient.setCRLStandard(4);
  patient.setGravida(5);
  NCRecord& examination = addExamination(patient);
  examination.setNote("Größe\n");
  examination.setExamDate(Date{816998400.0});  // 2026-11-22
  examination.measurements().emplace_back(calc::Biometry{.bpd = 1.5, .hc = 2.5, .ac = 3.5, .fl = 4.5});
  examination.measurements().emplace_back();
  return patient;
}

TEST(PatientJson, holdsEveryFieldInAFixedOrder) {
  EXPECT_EQ(
      json(filledPatient()),
      R"({"maternalIDString":"AB-123","edd":829008000,"eddISO":"2027-04-10T00:00:00","standard":1,)"
      R"("fetalWeightStandard":2,"numberOfFetuses":3,"extrapolatedGestation":38.5,"crlStandard":4,"gravida":5,)"
      R"("examinations":[{"note":"Größe\n","examDate":816998400,"examDateISO":"2026-11-22T00:00:00",)"
      R"("measurements":[{"bpd":1.5,"hc":2.5,"ac":3.5,"fl":4.5},{"bpd":0,"hc":0,"ac":0,"fl":0}]}]})");
}

TEST(PatientJson, givesDatesByTheLocalWallClock) {
  EXPECT_NE(
      json(filledPatient(), JsonNumbers::inMemory, -5.0 * 3600.0).find(R"("eddISO":"2027-04-09T19:00:00")"),
      std::string::npos);
}

TEST(PatientJson, isNullWhereSomethingIsMissing) {
  PatientRecord patient;
  addExamination(patient);
  EXPECT_EQ(json(patient),
            R"({"maternalIDString":null,"edd":null,"eddISO":null,"standard":0,"fetalWeightStandard":0,)"
            R"("numberOfFetuses":0,"extrapolatedGestation":0,"crlStandard":0,"gravida":0,)"
            R"("examinations":[{"note":null,"examDate":null,"examDateISO":null,"measurements":[]}]})");
}

TEST(PatientJson, hasNoIsoTextForADateWithoutOne) {
  for (const double seconds : {kNaN, kInfinity, -kInfinity, 1e18, -1e18}) {
    PatientRecord patient;
    patient.setEDD(Date{seconds});
    EXPECT_NE(json(patient).find(R"("eddISO":null)"), std::string::npos) << seconds;
    EXPECT_EQ(json(patient).find(R"("edd":null)"), std::string::npos) << seconds;
  }
}

TEST(PatientJson, writesNumbersThatJsonLacksAsTexts) {
  PatientRecord patient;
  patient.setEDD(Date{-kInfinity});
  patient.setExtrapolatedGestation(kInfinity);
  addExamination(patient).measurements().emplace_back(calc::Biometry{.bpd = kNaN, .hc = 0, .ac = 0, .fl = 0});
  const std::string text = json(patient);
  EXPECT_NE(text.find(R"("edd":"-inf")"), std::string::npos);
  EXPECT_NE(text.find(R"("extrapolatedGestation":"inf")"), std::string::npos);
  EXPECT_NE(text.find(R"("bpd":"nan")"), std::string::npos);
}

TEST(PatientJson, keepsTheNumbersInMemoryOrThoseOfTheFile) {
  PatientRecord patient;
  patient.setExtrapolatedGestation(1e300);
  patient.setGravida(4294967301);  // 2^32 + 5
  patient.setEDD(Date{0.1});
  addExamination(patient).measurements().emplace_back(calc::Biometry{.bpd = 25.3, .hc = 0, .ac = 0, .fl = 0});

  const std::string inMemory = json(patient, JsonNumbers::inMemory);
  EXPECT_NE(inMemory.find(R"("bpd":25.3,)"), std::string::npos);
  EXPECT_NE(inMemory.find(R"("gravida":4294967301,)"), std::string::npos);
  EXPECT_NE(inMemory.find(R"("extrapolatedGestation":1e+300,)"), std::string::npos);

  const std::string inFile = json(patient, JsonNumbers::asInFile);
  EXPECT_NE(inFile.find(R"("bpd":25.299999237060547,)"), std::string::npos);
  EXPECT_NE(inFile.find(R"("gravida":5,)"), std::string::npos);
  EXPECT_NE(inFile.find(R"("extrapolatedGestation":"inf",)"), std::string::npos);
  EXPECT_NE(inFile.find(R"("edd":0.1,)"), std::string::npos) << "dates keep every bit";
}

TEST(PatientJson, keepsTheSignOfZeroInMemoryOnly) {
  PatientRecord patient;
  patient.setEDD(Date{-0.0});
  patient.setExtrapolatedGestation(-0.0);
  EXPECT_NE(json(patient).find(R"("edd":-0,)"), std::string::npos);
  EXPECT_NE(json(patient).find(R"("extrapolatedGestation":-0,)"), std::string::npos);
  const std::string inFile = json(patient, JsonNumbers::asInFile);
  EXPECT_NE(inFile.find(R"("edd":0,)"), std::string::npos);
  EXPECT_NE(inFile.find(R"("extrapolatedGestation":0,)"), std::string::npos);
}

}  // namespace
}  // namespace nascor::tests
