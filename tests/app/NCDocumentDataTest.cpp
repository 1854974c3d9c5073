// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/NCDocument.h"
#include "exchange/FhirReader.h"
#include "foundation/JsonText.h"
#include "model/PatientFile.h"
#include "model/PatientJson.h"
#include "rows/PatientRows.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Date;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// 2027-04-10 00:00 in the zone of the tests, ten hours ahead of UTC.
constexpr Date kEDD{829008000.0 - 36000.0};

class ThePatientsData : public testing::Test {
 protected:
  /// Twins at 20 weeks, in the file as on show.
  void open() {
    model::PatientRecord patient;
    patient.setMaternalIDString("AB/123");
    patient.setGravida(2);
    patient.setEDD(kEDD);
    patient.setNumberOfFetuses(2);
    patient.setExtrapolatedGestation(40.0);
    patient.addNCRecordWithNumberOfFetuses(2, platform.clock);
    model::NCRecord& examination = *patient.ncRecordsArray().back();
    examination.setExamDate(Date{kEDD.secondsSince2001 - 140.0 * foundation::kSecondsPerDay});
    examination.setNote("quiet");
    examination.measurementsForFetus(0).setBPD(48.1F);
    examination.measurementsForFetus(1).setAC(151.0);
    document.loadDataRepresentation(model::archivedPatient(patient), "");
    document.windowControllerDidLoadNib();
  }
  std::string written(const std::string& path) const {
    const auto found = platform.files.files.find(path);
    if (found == platform.files.files.end()) return "no file";
    return {reinterpret_cast<const char*>(found->second.data()), found->second.size()};
  }

  tests::TestApplication platform;
  NCDocument document{platform.environment()};
};

TEST_F(ThePatientsData, goIntoATableForSpreadsheets) {
  open();
  EXPECT_EQ(document.exportData("/data.csv"), std::nullopt);
  const std::string table = written("/data.csv");
  EXPECT_THAT(table, StartsWith("file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,"));
  EXPECT_THAT(table, HasSubstr("\n0,0,0,2026-11-21,2027-04-10,20,48.099998474121094,,,,,"));
  EXPECT_THAT(table, HasSubstr("\n0,0,1,2026-11-21,2027-04-10,20,,,151,,"));
  EXPECT_THAT(table, Not(HasSubstr("AB/123"))) << "as without --identify";
  EXPECT_THAT(table, Not(HasSubstr("quiet")));
}

TEST_F(ThePatientsData, goIntoReportsForOtherProgramsWhereTheNameSaysSo) {
  open();
  EXPECT_EQ(document.exportData("/data.fhir.json"), std::nullopt);
  const auto read = exchange::reportsInBundle(written("/data.fhir.json"));
  ASSERT_TRUE(std::holds_alternative<std::vector<exchange::StructuredReport>>(read));
  EXPECT_EQ(std::get<0>(read).front().patientID, "AB/123");

  using foundation::Sentence;
  struct Files final : exchange::ReportFiles {
    std::variant<exchange::StructuredReport, Sentence> read(std::span<const std::byte>) override {
      return Sentence::verbatim("not here");
    }
    std::variant<std::vector<std::byte>, Sentence> write(const exchange::StructuredReport& report) override {
      if (fault) return *fault;
      const auto bytes = std::as_bytes(std::span(report.patientID));
      return std::vector<std::byte>(bytes.begin(), bytes.end());
    }
    std::optional<Sentence> fault;
  } files;
  const auto find = [&]() -> std::variant<exchange::ReportFiles*, Sentence> { return &files; };
  EXPECT_EQ(document.exportData("/data.dcm", find), std::nullopt);
  EXPECT_EQ(written("/data.dcm"), "AB/123");
  files.fault = Sentence::verbatim("the ID is too long");
  EXPECT_EQ(document.exportData("/other.dcm", find), "the ID is too long");
  EXPECT_EQ(written("/other.dcm"), "no file");
}

TEST_F(ThePatientsData, goIntoJsonWhereTheNameSaysSo) {
  open();
  EXPECT_EQ(document.exportData("/data.JSON"), std::nullopt);
  std::string expected;
  foundation::JsonText json(expected);
  model::writePatientJson(json, *document.patientRecord(), platform.calendar, model::JsonNumbers::inMemory);
  EXPECT_EQ(written("/data.JSON"), expected + "\n");
  EXPECT_THAT(expected, HasSubstr(R"("maternalIDString":"AB/123")"));
}

TEST_F(ThePatientsData, holdTheTextInEdit) {
  open();
  ASSERT_TRUE(document.fieldEditor().begin(document.hcField()));
  document.fieldEditor().replace("170.5");
  EXPECT_EQ(document.exportData("/data.csv"), std::nullopt);
  EXPECT_THAT(written("/data.csv"), HasSubstr(",48.099998474121094,170.5,,,"));
  ASSERT_TRUE(document.fieldEditor().begin(document.hcField()));
  document.fieldEditor().replace("501");
  EXPECT_EQ(document.exportData("/refused.csv"), "A field holds a text that is not permitted.");
  EXPECT_EQ(written("/refused.csv"), "no file");
}

TEST_F(ThePatientsData, areNamedAfterThePatient) {
  EXPECT_EQ(document.dataFileName(".csv"), "Untitled - Data.csv");
  open();
  EXPECT_EQ(document.dataFileName(""), "AB-123 (G2) - Data");
}

TEST_F(ThePatientsData, areNotExportedWhereNoFileCanBeWritten) {
  open();
  platform.files.failWriteAt = 0;
  EXPECT_THAT(document.exportData("/data.csv").value_or(""), HasSubstr("No space left on device"));
  EXPECT_EQ(written("/data.csv"), "no file");
}

}  // namespace
}  // namespace nascor::app
