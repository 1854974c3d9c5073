// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "synthetic_clinic/Clinic.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "calc/LookUp.h"
#include "model/ClassNames.h"
#include "model/PatientFile.h"
#include "synthetic_clinic/OldDocument.h"
#include "synthetic_clinic/Zone.h"

namespace nascor::clinic {

namespace {

using foundation::kSecondsPerDay;

constexpr std::uint64_t kDamagedOneIn = 1000;
constexpr std::int64_t kLatestVersion = model::class_version::patientRecord;

/// Numbers by Steele, Lea and Flood's SplitMix64: the same on every machine, which those of the standard library are not.
class Chance {
 public:
  Chance(std::uint64_t seed, std::uint64_t number) : state_(mixed(seed + kStep) ^ (number * kStep)) {
    next();
  }

  std::uint64_t next() { return mixed(state_ += kStep); }
  std::int64_t below(std::int64_t limit) {
    return static_cast<std::int64_t>(next() % static_cast<std::uint64_t>(limit));
  }
  bool oneIn(std::int64_t count) { return below(count) == 0; }
  /// From 0 to 1.
  double fraction() { return static_cast<double>(next() >> 11U) * 0x1p-53; }
  /// As good as normal: mean 0, standard deviation 1, within 6.
  double deviation() {
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) sum += fraction();
    return sum;
  }

 private:
  static constexpr std::uint64_t kStep = 0x9E3779B97F4A7C15U;

  static std::uint64_t mixed(std::uint64_t z) {
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }

  std::uint64_t state_;
};

constexpr std::array<const char*, 8> kNotes{"20 week scan, no abnormality seen",
                                            "Growth scan",
                                            "Head engaged; BPD difficult, \"best of three\"",
                                            "Doppler normal, liquor normal",
                                            "Contrôle à 32 SA, présentation céphalique",
                                            "Повторить через 2 недели",
                                            "First line\nsecond line, with a comma",
                                            "=1+1"};

std::string identifier(std::uint64_t number) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "NC-%07llu", static_cast<unsigned long long>(number));
  return text.data();
}

std::int64_t numberOfFetuses(Chance& chance) {
  const std::int64_t among = chance.below(1000);
  return among < 3 ? 3 : among < 33 ? 2 : 1;
}

/// How one fetus grows.
struct Growth {
  double zScore;
  double lossAWeek;  // of z, late in pregnancy
};

double length(const calc::ReferenceTable& table, double age, const Growth& growth, Chance& chance) {
  const double z = growth.zScore + 0.35 * chance.deviation() - growth.lossAWeek * std::max(0.0, age - 28.0);
  const double mm = calc::meanForGestation(table, age) + z * calc::sdForGestation(table, age);
  // As a machine prints it.
  return std::max(1.0, std::round(mm * 10.0) / 10.0);
}

/// Whole days after the last period, in order.
std::vector<std::int64_t> examinationDays(Chance& chance) {
  constexpr std::int64_t kFirst = 11 * 7 + 1;
  constexpr std::int64_t kLast = std::int64_t{40} * 7;
  const std::int64_t count = chance.oneIn(100) ? 12 + chance.below(19) : 2 + chance.below(5);
  std::vector<std::int64_t> days;
  for (std::int64_t i = 0; i < count; ++i) days.push_back(kFirst + chance.below(kLast - kFirst));
  std::ranges::sort(days);
  return days;
}

/// No document before 4 has room for twins.
std::int64_t versionFor(const model::PatientRecord& patient, Chance& chance) {
  if (!chance.oneIn(8)) return kLatestVersion;
  const std::int64_t version = chance.below(kLatestVersion);
  return patient.numberOfFetuses() > 1 && version < 4 ? kLatestVersion : version;
}

void damage(std::vector<std::byte>& bytes, Chance& chance) {
  const auto half = static_cast<std::ptrdiff_t>(bytes.size() / 2);
  switch (chance.below(3)) {
    case 0:
      bytes.resize(static_cast<std::size_t>(chance.below(static_cast<std::int64_t>(bytes.size()))));
      return;
    case 1: bytes.clear(); return;
    default: std::fill(bytes.begin() + half, bytes.end(), std::byte{0});
  }
}

}  // namespace

Clinic::Clinic(std::uint64_t seed) : seed_(seed) {
  for (const calc::Measurement measurement : calc::kMeasurements) {
    calc::appendStandard(tables_.at(static_cast<std::size_t>(measurement)), 0, measurement);
  }
}

model::PatientRecord Clinic::patient(std::uint64_t number) const {
  Chance chance(seed_, number);
  const auto all = zones();
  const Zone& zone = all[static_cast<std::size_t>(chance.below(static_cast<std::int64_t>(all.size())))];

  model::PatientRecord patient;
  patient.setMaternalIDString(identifier(number));
  patient.setGravida(1 + chance.below(6));
  patient.setNumberOfFetuses(numberOfFetuses(chance));
  patient.setStandard(chance.oneIn(1000) ? 9 : chance.below(4));
  patient.setFetalWeightStandard(chance.below(8));
  patient.setCRLStandard(chance.below(4));
  patient.setExtrapolatedGestation(chance.oneIn(4) ? 39.0 : 40.0);

  const auto eddDay = foundation::civilDayFromDaysSince2001(
      foundation::daysSince2001({.year = 2026, .month = 1, .day = 1}) + chance.below(730));
  const foundation::Date edd = foundation::startOfDay(*eddDay, zone);
  if (!chance.oneIn(50)) patient.setEDD(edd);

  std::vector<Growth> fetuses;
  for (std::int64_t i = 0; i < patient.numberOfFetuses(); ++i) {
    fetuses.push_back({.zScore = 0.9 * chance.deviation(), .lossAWeek = chance.oneIn(30) ? 0.2 : 0.0});
  }
  for (const std::int64_t day : examinationDays(chance)) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setNote(chance.oneIn(3) ? kNotes.at(static_cast<std::size_t>(chance.below(kNotes.size())))
                                         : "");
    const auto daytime = static_cast<double>(std::int64_t{8} * 3600 + std::int64_t{60} * chance.below(600));
    const double beforeEDD = static_cast<double>(280 - day) * kSecondsPerDay;
    if (!chance.oneIn(200)) {
      examination->setExamDate(foundation::dateByAddingWallClockSeconds(edd, daytime - beforeEDD, zone));
    }
    const double age = static_cast<double>(day) / 7.0;
    for (const Growth& growth : fetuses) {
      calc::Biometry lengths;
      for (const calc::Measurement measurement : calc::kMeasurements) {
        const auto& table = tables_.at(static_cast<std::size_t>(measurement));
        const double measured = length(table, age, growth, chance);
        if (!chance.oneIn(12)) lengths.*calc::memberFor(measurement) = measured;
      }
      examination->measurements().emplace_back(lengths);
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

Document Clinic::document(std::uint64_t number) const {
  std::array<char, 32> folder;
  std::snprintf(folder.data(), folder.size(), "%04llu/", static_cast<unsigned long long>(number / 1000));
  const model::PatientRecord patient = this->patient(number);
  Document document{.name = folder.data() + identifier(number) + ".nascor", .bytes = {}, .isDamaged = false};

  Chance chance(~seed_, number);
  const std::int64_t version = versionFor(patient, chance);
  document.bytes =
      version == kLatestVersion ? model::archivedPatient(patient) : oldDocument(patient, version);
  Chance thousand(seed_ ^ kDamagedOneIn, number / kDamagedOneIn);
  document.isDamaged = thousand.next() % kDamagedOneIn == number % kDamagedOneIn;
  if (document.isDamaged) damage(document.bytes, chance);
  return document;
}

}  // namespace nascor::clinic
