// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/PatientCheck.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>

#include "support/FixedOffsetCalendar.h"

namespace nascor::tests {
namespace {

using foundation::Date;
using model::NCRecord;
using model::PatientRecord;
using model::UnarchivedPatient;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

NCRecord& addExamination(PatientRecord& patient, double date, std::size_t fetuses = 1) {
  patient.ncRecordsArray().push_back(std::make_unique<NCRecord>());
  NCRecord& examination = *patient.ncRecordsArray().back();
  examination.setNote("");
  examination.setExamDate(Date{date});
  examination.measurements().resize(fetuses);
  return examination;
}

/// A document as the program writes it, with two examinations.
UnarchivedPatient goodDocument() {
  UnarchivedPatient document{.patient = std::make_unique<PatientRecord>(),
                             .facts = {.byteOrder = archive::ByteOrder::little,
                                       .patientVersion = 7,
                                       .ncRecordVersion = 1,
                                       .measurementsVersion = 0,
                                       .gravidityText = "Deprecated"}};
  PatientRecord& patient = *document.patient;
  patient.setMaternalIDString("AB-123");
  patient.setEDD(Date{829008000.0});
  patient.setNumberOfFetuses(1);
  patient.setExtrapolatedGestation(40.0);
  addExamination(patient, 816998400.0).measurementsForFetus(0).setBPD(48.0);
  addExamination(patient, 816998401.0);
  return document;
}

std::vector<std::string> textsOf(const UnarchivedPatient& document) {
  std::vector<std::string> texts;
  for (const cli::Oddity& oddity : cli::odditiesOf(document, FixedOffsetCalendar())) {
    texts.push_back(std::string(oddity.kind) + ": " + english(oddity.text));
  }
  return texts;
}

TEST(Check, findsNothingInAGoodDocument) { EXPECT_THAT(textsOf(goodDocument()), IsEmpty()); }

TEST(Check, findsNothingInADocumentWithoutTheClassOfMeasurements) {
  UnarchivedPatient document = goodDocument();
  document.facts.measurementsVersion.reset();
  EXPECT_THAT(textsOf(document), IsEmpty());
}

struct OddCase {
  const char* name;
  std::function<void(UnarchivedPatient&)> spoil;
  const char* text;
};
class Oddities : public testing::TestWithParam<OddCase> {};

TEST_P(Oddities, areNamed) {
  UnarchivedPatient document = goodDocument();
  GetParam().spoil(document);
  EXPECT_THAT(textsOf(document), ElementsAre(GetParam().text));
}

std::function<void(UnarchivedPatient&)> facts(const std::function<void(model::ArchiveFacts&)>& spoil) {
  return [=](UnarchivedPatient& document) { spoil(document.facts); };
}
std::function<void(UnarchivedPatient&)> patient(const std::function<void(PatientRecord&)>& spoil) {
  return [=](UnarchivedPatient& document) { spoil(*document.patient); };
}
std::function<void(UnarchivedPatient&)> exam(const std::function<void(NCRecord&)>& spoil) {
  return [=](UnarchivedPatient& document) { spoil(*document.patient->ncRecordsArray()[1]); };
}

INSTANTIATE_TEST_SUITE_P(
    file, Oddities,
    testing::Values(OddCase{"bigEndian", facts([](auto& f) { f.byteOrder = archive::ByteOrder::big; }),
                            "byteOrder: its byte order is big"},
                    OddCase{"oldPatient", facts([](auto& f) {
                              f.patientVersion = 6;
                              f.gravidityText = "2";
                            }),
                            "classVersion: PatientRecord has version 6, older than 7"},
                    OddCase{"newPatient", facts([](auto& f) { f.patientVersion = 8; }),
                            "classVersion: PatientRecord has version 8, newer than 7"},
                    OddCase{"oldExamination", facts([](auto& f) { f.ncRecordVersion = 0; }),
                            "classVersion: NCRecord has version 0, older than 1"},
                    OddCase{"newMeasurements", facts([](auto& f) { f.measurementsVersion = 1; }),
                            "classVersion: MeasurementsRecord has version 1, newer than 0"},
                    OddCase{"gravidityText", facts([](auto& f) { f.gravidityText = "G3"; }),
                            "gravidityText: the old place of the gravidity holds \"G3\""},
                    OddCase{"noGravidityText", facts([](auto& f) { f.gravidityText.reset(); }),
                            "gravidityText: the old place of the gravidity holds nothing"},
                    OddCase{"missingList", facts([](auto& f) { f.missingArrays = 1; }),
                            "missingList: 1 list is missing"},
                    OddCase{"missingLists", facts([](auto& f) { f.missingArrays = 2; }),
                            "missingList: 2 lists are missing"},
                    OddCase{"sharedRecord", facts([](auto& f) { f.sharedRecords = 1; }),
                            "sharedRecord: 1 record stands in several places"},
                    OddCase{"trailingByte", facts([](auto& f) { f.trailingBytes = 1; }),
                            "trailingBytes: 1 byte follows the patient"},
                    OddCase{"trailingBytes", facts([](auto& f) { f.trailingBytes = 3; }),
                            "trailingBytes: 3 bytes follow the patient"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    patient, Oddities,
    testing::Values(
        OddCase{"noIdentifier", patient([](auto& p) { p.setMaternalIDString({}); }),
                "missingText: the identifier is missing"},
        OddCase{"noEDD", patient([](auto& p) { p.setEDD({}); }), "missingDate: the EDD is missing"},
        OddCase{"eddIsNoNumber", patient([](auto& p) { p.setEDD(Date{kNaN}); }), "date: the EDD is nan"},
        OddCase{"eddIsFarAway", patient([](auto& p) { p.setEDD(Date{1e15}); }),
                "date: the EDD, 1e+15 s from 2001-01-01, is outside the years 1 to 9999"},
        OddCase{"negativeGravida", patient([](auto& p) { p.setGravida(-1); }),
                "bounds: the gravidity -1 is negative"},
        OddCase{"standard", patient([](auto& p) { p.setStandard(4); }),
                "unknownStandard: the growth standard 4 is unknown"},
        OddCase{"formula", patient([](auto& p) { p.setFetalWeightStandard(-1); }),
                "unknownStandard: the weight formula -1 is unknown"},
        OddCase{"crlFormula", patient([](auto& p) { p.setCRLStandard(4); }),
                "unknownStandard: the CRL formula 4 is unknown"},
        OddCase{"lateDelivery", patient([](auto& p) { p.setExtrapolatedGestation(42.0); }),
                "plannedDelivery: the planned delivery, 14 days from 40 weeks, is outside -280 to 7 days"},
        OddCase{"noDelivery", patient([](auto& p) { p.setExtrapolatedGestation(kNaN); }),
                "plannedDelivery: the planned delivery, nan days from 40 weeks, is outside -280 to 7 days"},
        OddCase{"lateUnderCfef", patient([](auto& p) {
                  p.setStandard(3);
                  p.setExtrapolatedGestation(41.0);
                }),
                "plannedDelivery: the planned delivery, 7 days from 40 weeks, is outside -280 to 0 days"},
        OddCase{"noExamination", patient([](auto& p) { p.ncRecordsArray().clear(); }),
                "noExamination: there is no examination"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    examination, Oddities,
    testing::Values(OddCase{"noNote", exam([](auto& e) { e.setNote({}); }),
                            "missingText: examination 2: the note is missing"},
                    OddCase{"infiniteDate", exam([](auto& e) {
                              e.setExamDate(Date{std::numeric_limits<double>::infinity()});
                            }),
                            "date: examination 2: the date is inf"},
                    OddCase{"order", exam([](auto& e) { e.setExamDate(Date{816998399.0}); }),
                            "order: examination 2: it is earlier than the one before it"},
                    OddCase{"tooFew", exam([](auto& e) { e.measurements().clear(); }),
                            "fetusCount: examination 2: it has 0 fetuses, the patient 1"},
                    OddCase{"tooMany", exam([](auto& e) { e.addMeasurementsRecord(); }),
                            "fetusCount: examination 2: it has 2 fetuses, the patient 1"},
                    OddCase{"bpd", exam([](auto& e) { e.measurementsForFetus(0).setBPD(200.1); }),
                            "bounds: examination 2, fetus 1: BPD 200.1 mm is outside 0 to 200 mm"},
                    OddCase{"hc", exam([](auto& e) { e.measurementsForFetus(0).setHC(-0.5); }),
                            "bounds: examination 2, fetus 1: HC -0.5 mm is outside 0 to 500 mm"},
                    OddCase{"ac", exam([](auto& e) { e.measurementsForFetus(0).setAC(601); }),
                            "bounds: examination 2, fetus 1: AC 601 mm is outside 0 to 600 mm"},
                    OddCase{"fl", exam([](auto& e) { e.measurementsForFetus(0).setFL(kNaN); }),
                            "bounds: examination 2, fetus 1: FL nan mm is outside 0 to 200 mm"}),
    [](const auto& row) { return std::string(row.param.name); });

// The examinations are 139 days before the EDD: 20w 1d. By Westerway the BPD has the mean 47.875 mm and the deviation 1.914 mm
// there.
INSTANTIATE_TEST_SUITE_P(
    improbable, Oddities,
    testing::Values(
        OddCase{"late", exam([](auto& e) { e.setExamDate(Date{829008000.0 + 36 * 86400.0}); }),
                "age: examination 2: its age, 45w 1d, is above 45 weeks"},
        OddCase{"short", exam([](auto& e) { e.measurementsForFetus(0).setBPD(40.0); }),
                "improbable: examination 2, fetus 1: BPD 40 mm is more than 4 SD below the mean of "
                "the growth standard at this age"},
        OddCase{"long", exam([](auto& e) { e.measurementsForFetus(0).setBPD(56.0); }),
                "improbable: examination 2, fetus 1: BPD 56 mm is more than 4 SD above the mean of "
                "the growth standard at this age"},
        OddCase{"smallHead", exam([](auto& e) {
                  e.measurementsForFetus(0).setBPD(55.0);
                  e.measurementsForFetus(0).setHC(155.0);
                }),
                "improbable: examination 2, fetus 1: HC 155 mm is below nine tenths of pi times the "
                "BPD, 55 mm"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Check, namesAnExaminationBeforeTheLastPeriod) {
  UnarchivedPatient document = goodDocument();
  document.patient->ncRecordsArray()[0]->setExamDate(Date{829008000.0 - 283 * 86400.0});
  document.patient->ncRecordsArray()[0]->measurementsForFetus(0).setBPD(0.0);
  EXPECT_THAT(textsOf(document), ElementsAre("age: examination 1: it is 3 days before the last period"));
}

TEST(Check, withoutAnAgeNamesLengthsThatLookLikeCentimetres) {
  UnarchivedPatient document = goodDocument();
  document.patient->setEDD({});
  document.patient->ncRecordsArray()[1]->measurementsForFetus(0).setBPD(9.0);
  EXPECT_THAT(textsOf(document),
              ElementsAre("missingDate: the EDD is missing",
                          "improbable: examination 2, fetus 1: BPD 9 mm is shorter than where any growth "
                          "standard begins; lengths are in mm"));
}

TEST(Check, namesAMissingDateAndThatItStandsBehindADatedOne) {
  UnarchivedPatient document = goodDocument();
  document.patient->ncRecordsArray()[1]->setExamDate({});
  EXPECT_THAT(textsOf(document), ElementsAre("missingDate: examination 2: the date is missing",
                                             "order: examination 2: it is earlier than the one before it"));
}

TEST(Check, namesAFetusCountOutsideOneToFive) {
  for (const std::int64_t count : {0, 6, -3}) {
    UnarchivedPatient document = goodDocument();
    document.patient->setNumberOfFetuses(count);
    const auto texts = textsOf(document);
    ASSERT_EQ(texts.size(), 3U) << "and that it disagrees with both examinations";
    EXPECT_EQ(texts[0],
              "fetusCount: the number of fetuses, " + std::to_string(count) + ", is outside 1 to 5");
  }
}

TEST(Check, tellsProgramsWhichExaminationAndFetusItMeans) {
  UnarchivedPatient document = goodDocument();
  document.patient->ncRecordsArray()[1]->measurementsForFetus(0).setFL(300);
  document.patient->setGravida(-1);
  const auto oddities = cli::odditiesOf(document, FixedOffsetCalendar());
  ASSERT_EQ(oddities.size(), 2U);
  EXPECT_EQ(oddities[0].examination, std::nullopt);
  EXPECT_EQ(oddities[0].fetus, std::nullopt);
  EXPECT_EQ(oddities[1].examination, 2U);
  EXPECT_EQ(oddities[1].fetus, 1U);
}

}  // namespace
}  // namespace nascor::tests
