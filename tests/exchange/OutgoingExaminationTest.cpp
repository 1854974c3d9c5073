// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/OutgoingExamination.h"

#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "Reports.h"
#include "exchange/FhirBundle.h"
#include "exchange/FhirReader.h"
#include "support/FixedOffsetCalendar.h"
#include "support/InEnglish.h"

namespace nascor::tests {
namespace {

using exchange::Findings;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Json = nlohmann::json;

const FixedOffsetCalendar kSydney(36000);

/// Twins of AB-123, examined once, in single precision as a document's file holds them.
model::PatientRecord twins() {
  model::PatientRecord patient;
  patient.setMaternalIDString("AB-123");
  patient.setGravida(2);
  patient.setNumberOfFetuses(2);
  patient.setFetalWeightStandard(3);
  patient.setEDD(foundation::startOfDay({2027, 3, 4}, kSydney));
  auto examination = std::make_unique<model::NCRecord>();
  // In the morning, which is the evening before in UTC.
  examination->setExamDate(foundation::dateFromWallClock({2026, 11, 13}, 28800, kSydney));
  examination->measurements().emplace_back(calc::Biometry{60.9F, 227.3F, 202.8F, 44.9F});
  examination->measurements().emplace_back(calc::Biometry{58.3F, 0, 0.1F, 0});
  patient.ncRecordsArray().push_back(std::move(examination));
  return patient;
}

Findings readBack(const exchange::StructuredReport& report) {
  return std::get<Findings>(exchange::findingsIn(report));
}

void expectTwins(const Findings& findings) {
  EXPECT_EQ(findings.patientID, "AB-123");
  EXPECT_EQ(findings.examDate, (foundation::CivilDay{2026, 11, 13}));
  EXPECT_EQ(findings.edd, (foundation::CivilDay{2027, 3, 4}));
  EXPECT_EQ(findings.eddFrom, "edd");
  EXPECT_EQ(findings.gravida, 2);
  EXPECT_EQ(findings.numberOfFetuses, 2);
  ASSERT_THAT(findings.fetuses, SizeIs(2));
  EXPECT_EQ(findings.fetuses[0].id, "1");
  EXPECT_EQ(findings.fetuses[1].id, "2");
  EXPECT_EQ(findings.fetuses[0].lengths[0]->mm, 60.9);
  EXPECT_EQ(findings.fetuses[0].lengths[1]->mm, 227.3);
  EXPECT_EQ(findings.fetuses[0].lengths[2]->mm, 202.8);
  EXPECT_EQ(findings.fetuses[0].lengths[3]->mm, 44.9);
  EXPECT_FALSE(findings.fetuses[1].lengths[1].has_value());
  EXPECT_EQ(findings.fetuses[1].lengths[2]->mm, 0.1);
  EXPECT_TRUE(findings.fetuses[0].efw.has_value());
  EXPECT_THAT(findings.notTaken, IsEmpty());
  EXPECT_THAT(findings.warnings, IsEmpty());
}

TEST(AReportOfAnExamination, readsBackAsWhatWasMeasured) {
  const auto examinations = exchange::outgoingExaminations(twins(), kSydney);
  ASSERT_THAT(examinations, SizeIs(1));
  expectTwins(readBack(exchange::reportOf(examinations[0])));
}

TEST(ABundleOfADocument, readsBackAsWhatWasMeasured) {
  const auto examinations = exchange::outgoingExaminations(twins(), kSydney);
  const auto reports =
      exchange::reportsInBundle(exchange::writeFhir(examinations, exchange::FhirForm::bundle));
  ASSERT_EQ(reports.index(), 0U) << inEnglish(std::get<1>(reports));
  ASSERT_THAT(std::get<0>(reports), SizeIs(1));
  expectTwins(readBack(std::get<0>(reports)[0]));
}

TEST(WhatLeaves, isNoLengthThatIsNone) {
  model::PatientRecord patient = twins();
  auto& lengths = patient.ncRecordsArray()[0]->measurementsForFetus(0);
  lengths.setBPD(std::nan(""));
  lengths.setHC(-1);
  lengths.setAC(0);
  const auto examinations = exchange::outgoingExaminations(patient, kSydney);
  EXPECT_THAT(examinations[0].fetuses[0].lengths, SizeIs(1));
  EXPECT_THAT(inEnglish(examinations[0].warnings),
              ElementsAre(HasSubstr("fetus 1: BPD nan"), HasSubstr("fetus 1: HC -1")));
  EXPECT_FALSE(examinations[0].fetuses[0].efw.has_value());
}

TEST(WhatLeaves, isNoDateThatIsNone) {
  model::PatientRecord patient = twins();
  patient.setEDD(std::nullopt);
  patient.setGravida(0);
  patient.ncRecordsArray()[0]->setExamDate(foundation::Date{std::nan("")});
  const auto examinations = exchange::outgoingExaminations(patient, kSydney);
  const Findings sr = readBack(exchange::reportOf(examinations[0]));
  EXPECT_EQ(sr.examDate, std::nullopt);
  EXPECT_EQ(sr.edd, std::nullopt);
  EXPECT_EQ(sr.gravida, std::nullopt);
  EXPECT_THAT(sr.warnings, IsEmpty());
}

TEST(TheUidsOfAReport, followFromAllThatItHolds) {
  model::PatientRecord patient = twins();
  const auto uidOf = [&] {
    return exchange::reportOf(exchange::outgoingExaminations(patient, kSydney)[0]).instanceUID;
  };
  const std::string uid = uidOf();
  EXPECT_THAT(uid, testing::StartsWith("2.25."));
  EXPECT_LE(uid.size(), 64U);
  EXPECT_EQ(uidOf(), uid);
  patient.ncRecordsArray()[0]->measurementsForFetus(1).setBPD(58.4F);
  EXPECT_NE(uidOf(), uid);
}

TEST(TheResources, referToEachOther) {
  const Json bundle = Json::parse(
      exchange::writeFhir(exchange::outgoingExaminations(twins(), kSydney), exchange::FhirForm::bundle));
  EXPECT_EQ(bundle["type"], "collection");
  std::set<std::string> urls;
  for (const Json& entry : bundle["entry"]) {
    EXPECT_TRUE(urls.insert(entry["fullUrl"]).second);
    EXPECT_EQ(entry["fullUrl"], "urn:uuid:" + entry["resource"]["id"].get<std::string>());
  }
  std::size_t references = 0;
  const std::function<void(const Json&)> look = [&](const Json& value) {
    if (value.is_object() && value.contains("reference")) {
      ++references;
      EXPECT_TRUE(urls.contains(value["reference"])) << value;
    }
    if (value.is_structured()) {
      for (const Json& element : value) look(element);
    }
  };
  look(bundle);
  EXPECT_GT(references, 20U);
}

TEST(TheResources, areLinesForManyDocuments) {
  const std::string lines =
      exchange::writeFhir(exchange::outgoingExaminations(twins(), kSydney), exchange::FhirForm::lines);
  std::istringstream stream(lines);
  std::map<std::string, int> types;
  for (std::string line; std::getline(stream, line);) {
    const Json resource = Json::parse(line);
    ++types[resource["resourceType"]];
    if (resource["resourceType"] == "RelatedPerson") {
      EXPECT_THAT(resource["patient"]["reference"].get<std::string>(), testing::StartsWith("Patient/"));
    }
  }
  EXPECT_EQ(types["Patient"], 3);
  EXPECT_EQ(types["RelatedPerson"], 2);
  EXPECT_EQ(types["DiagnosticReport"], 1);
  // EDD, gravida, fetuses, age; two panels; six lengths; the weight of the first fetus.
  EXPECT_EQ(types["Observation"], 4 + 2 + 6 + 1);
}

TEST(TheWeightInABundle, isDerivedFromTheLengthsOfItsFormula) {
  model::PatientRecord patient = twins();
  patient.setFetalWeightStandard(1);
  const Json bundle = Json::parse(
      exchange::writeFhir(exchange::outgoingExaminations(patient, kSydney), exchange::FhirForm::bundle));
  const Json* weight = nullptr;
  std::map<std::string, std::string> codes;
  for (const Json& entry : bundle["entry"]) {
    const Json& resource = entry["resource"];
    if (resource["resourceType"] != "Observation") continue;
    codes[entry["fullUrl"]] = resource["code"]["coding"][0]["code"];
    if (resource["code"]["coding"][0]["code"] == "11727-5") weight = &resource;
  }
  ASSERT_NE(weight, nullptr);
  ASSERT_EQ((*weight)["derivedFrom"].size(), 2U);
  EXPECT_EQ(codes[(*weight)["derivedFrom"][0]["reference"]], "11979-2");
  EXPECT_EQ(codes[(*weight)["derivedFrom"][1]["reference"]], "11963-6");
  EXPECT_EQ((*weight)["valueQuantity"]["code"], "g");
}

TEST(TheAgeInABundle, isInDays) {
  const Json bundle = Json::parse(
      exchange::writeFhir(exchange::outgoingExaminations(twins(), kSydney), exchange::FhirForm::bundle));
  for (const Json& entry : bundle["entry"]) {
    const Json& resource = entry["resource"];
    if (resource["resourceType"] != "Observation" || resource["code"]["coding"][0]["code"] != "18185-9")
      continue;
    EXPECT_EQ(resource["valueQuantity"]["value"], 169);  // 2026-11-13 lies 111 days before 2027-03-04
    EXPECT_EQ(resource["valueQuantity"]["code"], "d");
    return;
  }
  ADD_FAILURE() << "There is no age.";
}

TEST(OtherJson, isNoBundle) {
  for (const char* text :
       {"", "{", "{}", "[]", R"({"resourceType":"Patient"})", R"({"resourceType":"Bundle"})",
        R"({"resourceType":"Bundle","entry":[{"resource":{"resourceType":"Patient"}}]})",
        R"({"resourceType":"Bundle","entry":[null,1,{"resource":[]}]})"}) {
    EXPECT_EQ(exchange::reportsInBundle(text).index(), 1U) << text;
  }
}

TEST(ABundle, isRefusedWhereItIsNestedTooDeep) {
  const auto nested = [](std::size_t depth) {
    return R"({"resourceType":"Bundle","entry":)" + std::string(depth, '[') + std::string(depth, ']') + "}";
  };
  const auto said = [&](std::size_t depth) {
    return inEnglish(std::get<1>(exchange::reportsInBundle(nested(depth))));
  };
  EXPECT_EQ(said(127), "is a FHIR bundle without an examination");
  EXPECT_EQ(said(128), "is nested deeper than any FHIR bundle");
  // What stands in texts is none.
  const std::string inText =
      R"({"resourceType":"Bundle","id":")" + std::string(200, '[') + R"(\"[","entry":[]})";
  EXPECT_EQ(inEnglish(std::get<1>(exchange::reportsInBundle(inText))),
            "is a FHIR bundle without an examination");
}

TEST(ABundleWithWrongThings, losesThemWithAWord) {
  Json bundle = Json::parse(
      exchange::writeFhir(exchange::outgoingExaminations(twins(), kSydney), exchange::FhirForm::bundle));
  const auto findings = [&] { return readBack(std::get<0>(exchange::reportsInBundle(bundle.dump())).at(0)); };
  const auto measure = [&](const char* code) -> Json& {
    for (Json& entry : bundle["entry"]) {
      Json& resource = entry["resource"];
      if (resource["resourceType"] == "Observation" && resource["code"]["coding"][0]["code"] == code)
        return resource;
    }
    throw std::runtime_error("no such observation");
  };
  measure("11820-8")["valueQuantity"]["code"] = "[in_i]";
  measure("11984-2")["status"] = "entered-in-error";
  measure("11963-6")["subject"] = measure("11778-8")["subject"];
  const Findings wrong = findings();
  EXPECT_FALSE(wrong.fetuses.at(0).lengths[0].has_value());
  EXPECT_FALSE(wrong.fetuses.at(0).lengths[1].has_value());
  EXPECT_FALSE(wrong.fetuses.at(0).lengths[3].has_value());
  EXPECT_EQ(wrong.fetuses.at(0).lengths[2]->mm, 202.8);
  EXPECT_THAT(wrong.notTaken, SizeIs(1));
  EXPECT_THAT(inEnglish(wrong.warnings), testing::Contains(HasSubstr("entered-in-error")));
  EXPECT_THAT(inEnglish(wrong.warnings), testing::Contains(HasSubstr("another fetus")));
}

TEST(TheLetterOfAFetus, goesBeyondTwentySix) {
  EXPECT_EQ(exchange::letterOfFetus(0), "A");
  EXPECT_EQ(exchange::letterOfFetus(25), "Z");
  EXPECT_EQ(exchange::letterOfFetus(26), "AA");
  for (std::size_t fetus = 0; fetus < 702; ++fetus)
    EXPECT_EQ(exchange::fetusOfLetter(exchange::letterOfFetus(fetus)), fetus);
  for (const char* text : {"", "a", "1", "AAA", "A "})
    EXPECT_EQ(exchange::fetusOfLetter(text), std::nullopt) << text;
}

}  // namespace
}  // namespace nascor::tests
