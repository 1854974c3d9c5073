// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calc/Dating.h"
#include "drive/Driver.h"
#include "model/PatientFile.h"

namespace nascor::drive {
namespace {

using foundation::Date;
using model::NCRecord;
using model::PatientRecord;

/// From eleven hours behind Greenwich to fourteen before it, with and without daylight saving.
const std::vector<std::string> kZones{
    "Pacific/Pago_Pago", "Pacific/Honolulu", "America/New_York",  "America/Sao_Paulo", "UTC",
    "Europe/Berlin",     "Asia/Kolkata",     "Asia/Tokyo",        "Australia/Sydney",  "Pacific/Auckland",
    "Pacific/Chatham",   "Pacific/Apia",     "Pacific/Kiritimati"};

/// A day's beginning somewhere, its noon, any moment of it, or a date that no calendar holds.
rc::Gen<std::optional<Date>> anyDate() {
  return rc::gen::exec([]() -> std::optional<Date> {
    const int day = *rc::gen::inRange(6000, 11000);
    switch (*rc::gen::inRange(0, 8)) {
      case 0: return std::nullopt;
      case 1: return Date{*rc::gen::element(1e13, -1e13, std::numeric_limits<double>::infinity())};
      case 2: return Date{day * 86400.0 + 43200.0};
      case 3: return Date{day * 86400.0 + *rc::gen::inRange(0, 86400000) / 1000.0};
      default: return Date{day * 86400.0 - *rc::gen::inRange(-11, 15) * 3600.0};
    }
  });
}

rc::Gen<std::optional<std::string>> anyText() {
  return rc::gen::element<std::optional<std::string>>(std::nullopt, "", "AB/12", " a\nb ", "Gr\u00f6\u00dfe");
}

rc::Gen<double> anyLength() {
  return rc::gen::map(rc::gen::inRange(-50, 4000), [](int steps) { return steps / 16.0; });
}

rc::Gen<double> anyGestation() {
  return rc::gen::oneOf(rc::gen::map(rc::gen::inRange(-40, 20), [](int days) { return 40.0 + days / 7.0; }),
                        rc::gen::map(rc::gen::inRange(0, 60000), [](int steps) { return steps / 1000.0; }),
                        rc::gen::element(0.0, 1e-30, 1e30, std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN()));
}

PatientRecord anyPatient() {
  PatientRecord patient;
  patient.setMaternalIDString(*anyText());
  patient.setEDD(*anyDate());
  const int examinations = *rc::gen::inRange(0, 5);
  const int fetuses = *rc::gen::inRange(0, 7);
  for (int i = 0; i < examinations; ++i) {
    auto examination = std::make_unique<NCRecord>();
    examination->setNote(*anyText());
    examination->setExamDate(*anyDate());
    const int records = *rc::gen::inRange(0, 3) > 0 ? fetuses : *rc::gen::inRange(0, 7);
    for (int fetus = 0; fetus < records; ++fetus) {
      examination->measurements().emplace_back(
          calc::Biometry{.bpd = *anyLength(), .hc = *anyLength(), .ac = *anyLength(), .fl = *anyLength()});
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  patient.setStandard(*rc::gen::inRange(-1, 5));
  patient.setFetalWeightStandard(*rc::gen::inRange(-1, 9));
  patient.setNumberOfFetuses(fetuses);
  patient.setExtrapolatedGestation(*anyGestation());
  patient.setCRLStandard(*rc::gen::inRange(-1, 5));
  patient.setGravida(*rc::gen::inRange(-2, 12));
  return patient;
}

/// What a user does who looks around and edits nothing.
const std::vector<std::string> kLooks{
    R"({"visit":"birthDateField"})",
    R"({"visit":"examDateField"})",
    R"({"visit":"bpdField"})",
    R"({"visit":"notesField"})",
    R"({"do":["nextExamination"]})",
    R"({"do":["previousExamination"]})",
    R"({"do":["synchronizeToData"]})",
    R"({"do":["synchronizeFromData"]})",
    R"({"do":["updateDisplay"]})",
    R"({"do":["setCurrentRecordFromClick",20]})",
    R"({"do":["doSetEDDfromCRL"]})",
    R"({"do":["doSetEDDfromLMP"]})",
    R"({"do":["doSetEDDfromMeasurements"]})",
    R"({"cancel":"crlWindow"})",
    R"({"cancel":"lmpWindow"})",
    R"({"cancel":"measurementsWindow"})",
    R"({"check":["measurementsWindowACCheck",false]})",
    R"({"app":["doAdjustDeliveryDate"]})",
    R"({"app":["toggleShowAll"]})",
    R"({"choose":0})",
    R"({"choose":1})",
    R"({"tab":1})",
    R"({"tab":5})",
    R"({"click":[1,400,250,1]})",
    R"({"click":[0,200,150,2]})",
    R"({"draw":"report"})",
    R"({"script":["get","identifier"]})",
    R"({"script":["get","edd"]})",
    R"({"script":["get","examDate"]})",
    R"({"do":["doExport"]})",
    R"({"do":["autoExport"]})",
    R"({"do":["printDocumentWithSettings",false]})",
    R"({"locale":"de_DE"})",
    R"({"locale":"en_AU"})",
    R"({"locale":"ja_JP"})",
    R"({"advance":86400})",
    R"({"state":true})",
};

std::vector<std::byte> contentsOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
  return {first, first + bytes.size()};
}

/// The texts of the ages at all examinations.
std::vector<std::string> ages(const PatientRecord& patient) {
  std::vector<std::string> texts;
  for (const auto& examination : patient.ncRecordsArray()) {
    texts.push_back(calc::gestationText(calc::menstrualAge(examination->examDate(), patient.edd()),
                                        foundation::EnglishLocalizer()));
  }
  return texts;
}

TEST(AnUneditedDocument, isWrittenAsItWasReadWhateverIsLookedAtInAnyZone) {
  EXPECT_TRUE(rc::check([] {
    const std::vector<std::byte> bytes = model::archivedPatient(anyPatient());
    const auto patient = model::unarchivedPatient(bytes).patient;
    Driver driver;  // in its own folder from now on
    std::ofstream("a.nascor", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    const auto zone = [&] { return driver.answer(Json{{"zone", *rc::gen::elementOf(kZones)}}.dump()); };
    RC_ASSERT(zone() == "{}");
    RC_ASSERT(driver.answer(R"({"open":"a.nascor"})") == R"({"number":0})");
    for (const std::string& look :
         *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(kLooks))) {
      RC_LOG(look + "\n");
      driver.answer(look);
    }
    const Json seen = Json::parse(driver.answer(R"({"state":true})"));
    RC_ASSERT(seen["edited"] == false);
    const std::vector<std::string> expected = ages(*patient);
    for (std::size_t exam = 0; exam < expected.size(); ++exam) {
      const Json line{{"do", {"menstrualAgeStringForRecord", exam}}};
      RC_ASSERT(Json::parse(driver.answer(line.dump()))["result"] == expected[exam]);
    }
    RC_ASSERT(zone() == "{}");
    RC_ASSERT(driver.answer(R"({"save":"b.nascor"})") == R"({"saved":true})");
    RC_ASSERT(contentsOf("b.nascor") == bytes);
  }));
}

}  // namespace
}  // namespace nascor::drive
