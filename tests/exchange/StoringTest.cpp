// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Storing.h"

#include <gmock/gmock.h>

#include "Reports.h"
#include "foundation/IsoDate.h"
#include "support/FixedOffsetCalendar.h"
#include "support/InEnglish.h"
#include "support/MarkedLocalizer.h"

namespace nascor::tests {
namespace {

using exchange::Confirmation;
using exchange::Findings;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A document of AB-123 with two fetuses, an EDD and one examination, and what is stored in it.
class ADocument : public testing::Test {
 protected:
  ADocument() {
    patient.setMaternalIDString("AB-123");
    patient.setNumberOfFetuses(2);
    patient.setEDD(foundation::startOfDay({2027, 3, 4}, calendar));
    auto examination = std::make_unique<model::NCRecord>();
    // In the afternoon: the day counts.
    examination->setExamDate(foundation::dateFromWallClock({2026, 11, 13}, 54000, calendar));
    examination->addMeasurementsRecord();
    examination->addMeasurementsRecord();
    examination->measurementsForFetus(0).setHC(227.3F);
    patient.ncRecordsArray().push_back(std::move(examination));
  }

  static Findings findings(const char* id, double bpd, double hc) {
    Findings findings;
    findings.patientID = "AB-123";
    findings.examDate = foundation::CivilDay{2026, 11, 13};
    auto& fetus = findings.fetuses.emplace_back();
    if (id) fetus.id = id;
    if (bpd != 0) fetus.lengths[0] = exchange::FoundLength{bpd, "plain"};
    if (hc != 0) fetus.lengths[1] = exchange::FoundLength{hc, "plain"};
    return findings;
  }

  /// The warnings; a refusal fails the test.
  std::vector<std::string> store(const Findings& what, const Confirmation& confirmation = {},
                                 bool isNew = false) {
    auto stored = exchange::storeFindings(what, confirmation, isNew, calendar, patient);
    if (auto* refusal = std::get_if<foundation::Sentence>(&stored)) ADD_FAILURE() << inEnglish(*refusal);
    const auto* values = std::get_if<exchange::Stored>(&stored);
    return values ? inEnglish(exchange::warningsOf(*values, what)) : std::vector<std::string>{};
  }

  /// Why nothing is stored; nothing has changed then.
  std::string refusal(const Findings& what, const Confirmation& confirmation = {}) {
    const auto stored = exchange::storeFindings(what, confirmation, false, calendar, patient);
    EXPECT_THAT(patient.ncRecordsArray(), SizeIs(1));
    EXPECT_EQ(measured(0).bpd(), 0.0);
    EXPECT_EQ(measured(1).bpd(), 0.0);
    const auto* sentence = std::get_if<foundation::Sentence>(&stored);
    return sentence ? inEnglish(*sentence) : "";
  }

  model::MeasurementsRecord& measured(std::int64_t fetus) {
    return patient.ncRecordsArray().at(0)->measurementsForFetus(fetus);
  }

  FixedOffsetCalendar calendar{36000};
  model::PatientRecord patient;
};

TEST_F(ADocument, isFilledWhereItIsBlankAndNeverOverwritten) {
  EXPECT_THAT(store(findings("1", 60.9, 228.0)), ElementsAre(HasSubstr("HC stays 227.3 mm")));
  EXPECT_EQ(measured(0).bpd(), 60.9);
  EXPECT_EQ(measured(0).hc(), 227.3F);
  EXPECT_EQ(measured(1).bpd(), 0.0);
  EXPECT_THAT(store(findings("1", 60.9, 227.3)), IsEmpty()) << "the same single-precision number";
}

TEST_F(ADocument, getsAnExaminationOfAnotherDayInOrder) {
  Findings earlier = findings("2", 46.2, 0);
  earlier.examDate = foundation::CivilDay{2026, 10, 15};
  store(earlier);
  ASSERT_THAT(patient.ncRecordsArray(), SizeIs(2));
  const auto& added = *patient.ncRecordsArray()[0];
  EXPECT_EQ(foundation::isoDateTimeText(*added.examDate(), calendar), "2026-10-15T00:00:00");
  EXPECT_THAT(added.measurements(), SizeIs(2));
  EXPECT_EQ(added.measurementsForFetus(1).bpd(), 46.2);
  EXPECT_EQ(added.measurementsForFetus(0).bpd(), 0.0);
}

TEST_F(ADocument, ofAnotherPatientTakesNothing) {
  Findings others = findings("1", 60.9, 0);
  others.patientID = "ZZ-999";
  EXPECT_THAT(refusal(others), HasSubstr("\"ZZ-999\""));
  others.patientID = std::nullopt;
  EXPECT_THAT(refusal(others), HasSubstr("names no patient"));
  EXPECT_THAT(refusal(others, {.patientID = "ZZ-999", .fetusPlaces = {}, .takeEDD = false}),
              HasSubstr("not \"ZZ-999\""));
  store(others, {.patientID = "AB-123", .fetusPlaces = {}, .takeEDD = false});
  EXPECT_EQ(measured(0).bpd(), 60.9);
}

TEST_F(ADocument, takesNoReportWhoseIdCannotBeRead) {
  // Two IDs of which a letter was lost look alike and need not be one.
  patient.setMaternalIDString("M\xEF\xBF\xBD-1");
  Findings unreadable = findings("1", 60.9, 0);
  unreadable.patientID = "M\xEF\xBF\xBD-1";
  EXPECT_THAT(refusal(unreadable), HasSubstr("characters that cannot be read"));
  model::PatientRecord blank;
  blank.setNumberOfFetuses(1);
  EXPECT_TRUE(std::holds_alternative<foundation::Sentence>(
      exchange::storeFindings(unreadable, {}, true, calendar, blank)));
}

TEST_F(ADocument, isRefusedInTheLanguageOfTheReader) {
  const MarkedLocalizer marked;
  const auto why = [&](const Findings& what) {
    const auto stored = exchange::storeFindings(what, {}, false, calendar, patient);
    return said(std::get<foundation::Sentence>(stored), marked);
  };
  EXPECT_EQ(why(findings("A", 60.9, 0)),
            "[Findings:[Findings:fetus \"A\"] of the report may be any of the document's; nothing is stored "
            "unless its number is given]");
  EXPECT_EQ(
      why(findings(nullptr, 60.9, 0)),
      "[Findings:[Findings:a fetus without an ID] of the report may be any of the document's; nothing is "
      "stored unless its number is given]");

  const Findings tooLong = findings("1", 250, 0);
  const auto stored = exchange::storeFindings(tooLong, {}, false, calendar, patient);
  const auto warnings = exchange::warningsOf(std::get<exchange::Stored>(stored), tooLong);
  ASSERT_THAT(warnings, SizeIs(1));
  EXPECT_EQ(said(warnings[0], marked),
            "[Findings:fetus 1: [Findings:BPD] 250 mm is beyond what a document takes]");
}

TEST_F(ADocument, isToldThatAReportSpeaksOfOtherTwins) {
  Findings ofThree = findings("1", 60.9, 0);
  ofThree.numberOfFetuses = 3;
  EXPECT_THAT(store(ofThree), ElementsAre("the number of fetuses stays 2; the report says 3"));
}

TEST_F(ADocument, withoutAPatientTakesNothingUnlessTheIdIsTyped) {
  patient.setMaternalIDString(" ");
  EXPECT_THAT(refusal(findings("1", 60.9, 0)), HasSubstr("document names no patient"));
  store(findings("1", 60.9, 0), {.patientID = "AB-123", .fetusPlaces = {}, .takeEDD = false});
  EXPECT_EQ(patient.maternalIDString(), "AB-123");
}

TEST_F(ADocument, takesNoFetusThatMayBeItsTwin) {
  EXPECT_THAT(refusal(findings("A", 60.9, 0)), HasSubstr("may be any"));
  EXPECT_THAT(refusal(findings(nullptr, 60.9, 0)), HasSubstr("may be any"));
  EXPECT_THAT(refusal(findings("3", 60.9, 0)), HasSubstr("may be any"));
  EXPECT_THAT(refusal(findings("A", 60.9, 0), {.patientID = {}, .fetusPlaces = {{"A", 2}}, .takeEDD = false}),
              HasSubstr("cannot be fetus 3 of 2"));
  Findings twins = findings("A", 60.9, 0);
  twins.fetuses.push_back(twins.fetuses[0]);
  twins.fetuses[1].id = "B";
  EXPECT_THAT(refusal(twins, {.patientID = {}, .fetusPlaces = {{"A", 0}, {"B", 0}}, .takeEDD = false}),
              HasSubstr("cannot both be fetus 1"));
  twins.fetuses[1].lengths[0]->mm = 58.3;
  store(twins, {.patientID = {}, .fetusPlaces = {{"A", 1}, {"B", 0}}, .takeEDD = false});
  EXPECT_EQ(measured(1).bpd(), 60.9);
  EXPECT_EQ(measured(0).bpd(), 58.3);
}

TEST_F(ADocument, ofOneFetusTakesTheOnlyOneOfAReport) {
  patient.deleteFetus(1);
  store(findings(nullptr, 60.9, 0));
  EXPECT_EQ(measured(0).bpd(), 60.9);
}

TEST_F(ADocument, keepsAnEddThatStands) {
  Findings dated = findings("1", 60.9, 0);
  dated.edd = foundation::CivilDay{2027, 3, 11};
  EXPECT_THAT(store(dated), ElementsAre(HasSubstr("the EDD stays 2027-03-04")));
  EXPECT_EQ(foundation::isoDayText(*patient.edd(), calendar), "2027-03-04");
  EXPECT_THAT(store(dated, {.patientID = {}, .fetusPlaces = {}, .takeEDD = true}), IsEmpty());
  EXPECT_EQ(foundation::isoDateTimeText(*patient.edd(), calendar), "2027-03-11T00:00:00");

  patient.setEDD(std::nullopt);
  store(dated);
  EXPECT_EQ(foundation::isoDayText(*patient.edd(), calendar), "2027-03-11");
}

TEST_F(ADocument, storesNoCrownRumpLength) {
  Findings early = findings("1", 0, 0);
  early.fetuses[0].lengths[4] = exchange::FoundLength{45.2, "plain"};
  EXPECT_THAT(store(early),
              ElementsAre(HasSubstr("CRL is not stored"), HasSubstr("no length that is stored")));
  EXPECT_THAT(patient.ncRecordsArray(), SizeIs(1));
}

TEST_F(ADocument, storesNoLengthThatCannotBeTyped) {
  EXPECT_THAT(store(findings("1", 200.5, 0)), ElementsAre(HasSubstr("beyond what a document takes")));
  EXPECT_EQ(measured(0).bpd(), 0.0);
}

TEST_F(ADocument, keepsAGravidityThatStands) {
  Findings third = findings("1", 60.9, 0);
  third.gravida = 3;
  EXPECT_THAT(store(third), IsEmpty());
  EXPECT_EQ(patient.gravida(), 3);
  third.gravida = 2;
  EXPECT_THAT(store(third), ElementsAre(HasSubstr("gravidity stays 3")));
  EXPECT_EQ(patient.gravida(), 3);
}

TEST_F(ADocument, takesNothingWithoutADay) {
  Findings undated = findings("1", 60.9, 0);
  undated.examDate = std::nullopt;
  EXPECT_THAT(refusal(undated), HasSubstr("does not say when"));
}

TEST_F(ADocument, thatIsNewTakesPatientAndFetusesFromTheReport) {
  patient = model::PatientRecord();
  patient.setMaternalIDString("");
  Findings first = findings("2", 60.9, 0);
  first.numberOfFetuses = 2;
  store(first, {}, true);
  EXPECT_EQ(patient.maternalIDString(), "AB-123");
  EXPECT_EQ(patient.numberOfFetuses(), 2);
  EXPECT_EQ(measured(1).bpd(), 60.9);

  Findings six = findings("6", 60.9, 0);
  six.numberOfFetuses = 6;
  EXPECT_TRUE(std::holds_alternative<foundation::Sentence>(
      exchange::storeFindings(six, {}, true, calendar, patient)));
}

}  // namespace
}  // namespace nascor::tests
