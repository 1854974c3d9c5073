// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/PatientFile.h"

namespace nascor::model {
namespace {

using foundation::Date;

/// Lengths and weeks: ordinary ones, and every pattern of bits.
rc::Gen<double> anyReal() {
  return rc::gen::oneOf(
      rc::gen::map(rc::gen::inRange(-10, 4000), [](int tenths) { return tenths / 10.0; }),
      rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                   [](std::uint64_t bits) { return std::bit_cast<double>(bits); }),
      rc::gen::map(rc::gen::arbitrary<std::uint32_t>(),
                   [](std::uint32_t bits) { return static_cast<double>(std::bit_cast<float>(bits)); }),
      rc::gen::element(0.0, -0.0, 40.0, std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                       3.4028235e38, 3.4028236e38, 2147483647.0, 2147483648.0, -2147483648.0, -2147483649.0));
}

rc::Gen<std::int64_t> anyInteger() {
  return rc::gen::oneOf(rc::gen::inRange<std::int64_t>(-5, 300), rc::gen::arbitrary<std::int64_t>(),
                        rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                                     [](std::uint64_t bits) { return static_cast<std::int64_t>(bits); }));
}

std::string utf8Of(char32_t point) {
  const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
  if (point < 0x80) return {byte(point)};
  if (point < 0x800) return {byte(0xC0 | point >> 6), byte(0x80 | (point & 0x3F))};
  if (point < 0x10000) {
    return {byte(0xE0 | point >> 12), byte(0x80 | (point >> 6 & 0x3F)), byte(0x80 | (point & 0x3F))};
  }
  return {byte(0xF0 | point >> 18), byte(0x80 | (point >> 12 & 0x3F)), byte(0x80 | (point >> 6 & 0x3F)),
          byte(0x80 | (point & 0x3F))};
}

/// Missing, empty, or of any characters; now and then longer than one byte can count.
rc::Gen<std::optional<std::string>> anyText() {
  return rc::gen::exec([]() -> std::optional<std::string> {
    const int kind = *rc::gen::inRange(0, 10);
    if (kind == 0) return std::nullopt;
    if (kind == 1) return "";
    if (kind == 2) return std::string(*rc::gen::inRange<std::size_t>(100, 300), 'n');
    std::string text;
    for (const std::uint32_t point : *rc::gen::container<std::vector<std::uint32_t>>(rc::gen::oneOf(
             rc::gen::inRange<std::uint32_t>(0, 0x80), rc::gen::inRange<std::uint32_t>(0, 0xD800),
             rc::gen::inRange<std::uint32_t>(0xE000, 0x110000)))) {
      text += utf8Of(point);
    }
    return text;
  });
}

rc::Gen<std::optional<Date>> anyDate() {
  return rc::gen::exec([]() -> std::optional<Date> {
    if (*rc::gen::inRange(0, 6) == 0) return std::nullopt;
    return Date{*anyReal()};
  });
}

PatientRecord anyPatient() {
  PatientRecord patient;
  patient.setMaternalIDString(*anyText());
  patient.setEDD(*anyDate());
  const int examinations = *rc::gen::inRange(0, 6);
  for (int i = 0; i < examinations; ++i) {
    auto examination = std::make_unique<NCRecord>();
    examination->setNote(*anyText());
    examination->setExamDate(*anyDate());
    const int fetuses = *rc::gen::inRange(0, 6);
    for (int fetus = 0; fetus < fetuses; ++fetus) {
      examination->measurements().emplace_back(
          calc::Biometry{.bpd = *anyReal(), .hc = *anyReal(), .ac = *anyReal(), .fl = *anyReal()});
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  patient.setStandard(*anyInteger());
  patient.setFetalWeightStandard(*anyInteger());
  patient.setNumberOfFetuses(*anyInteger());
  patient.setExtrapolatedGestation(*anyReal());
  patient.setCRLStandard(*anyInteger());
  patient.setGravida(*anyInteger());
  return patient;
}

/// Equal to the last bit, but for the sign of zero, which a file loses, and what kind of NaN it is.
bool isSame(double actual, double expected) {
  return actual == expected || (std::isnan(actual) && std::isnan(expected));
}

/// Whether `actual` is `expected` as a single-precision number.
bool isSingleOf(double actual, double expected) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  if (std::isnan(expected)) return std::isnan(actual);
  // Half a unit above the largest is the first that rounds to infinity.
  constexpr double kHalfUnit = 0x1p103;
  if (std::abs(expected) >= kLargest + kHalfUnit) {
    return actual == std::copysign(std::numeric_limits<double>::infinity(), expected);
  }
  if (std::abs(expected) > kLargest) return actual == std::copysign(kLargest, expected);
  return actual == static_cast<double>(static_cast<float>(expected));
}

bool isSame(const std::optional<Date>& actual, const std::optional<Date>& expected) {
  if (!actual || !expected) return actual.has_value() == expected.has_value();
  return isSame(actual->secondsSince2001, expected->secondsSince2001);
}

/// The low 32 bits with their sign.
std::int64_t low32(std::int64_t value) {
  const std::int64_t low = value & 0xFFFFFFFF;
  return low >= 0x80000000 ? low - 0x100000000 : low;
}

TEST(SavingAndReading, givesAnyPatientBackInTheFormatsPrecision) {
  EXPECT_TRUE(rc::check([] {
    const PatientRecord patient = anyPatient();
    const auto [back, facts] = unarchivedPatient(archivedPatient(patient));
    RC_ASSERT(back != nullptr);
    RC_ASSERT(facts.trailingBytes == 0U);
    RC_ASSERT(facts.missingArrays == 0U);
    RC_ASSERT(facts.sharedRecords == 0U);
    RC_ASSERT(back->maternalIDString() == patient.maternalIDString());
    RC_ASSERT(isSame(back->edd(), patient.edd()));
    RC_ASSERT(back->standard() == low32(patient.standard()));
    RC_ASSERT(back->fetalWeightStandard() == low32(patient.fetalWeightStandard()));
    RC_ASSERT(back->numberOfFetuses() == low32(patient.numberOfFetuses()));
    RC_ASSERT(isSingleOf(back->extrapolatedGestation(), patient.extrapolatedGestation()));
    RC_ASSERT(back->crlStandard() == low32(patient.crlStandard()));
    RC_ASSERT(back->gravida() == low32(patient.gravida()));
    RC_ASSERT(back->ncRecordsArray().size() == patient.ncRecordsArray().size());
    for (std::size_t i = 0; i < patient.ncRecordsArray().size(); ++i) {
      const NCRecord& read = *back->ncRecordsArray()[i];
      const NCRecord& saved = *patient.ncRecordsArray()[i];
      RC_ASSERT(read.note() == saved.note());
      RC_ASSERT(isSame(read.examDate(), saved.examDate()));
      RC_ASSERT(read.measurements().size() == saved.measurements().size());
      for (std::size_t fetus = 0; fetus < saved.measurements().size(); ++fetus) {
        RC_ASSERT(isSingleOf(read.measurements()[fetus].bpd(), saved.measurements()[fetus].bpd()));
        RC_ASSERT(isSingleOf(read.measurements()[fetus].hc(), saved.measurements()[fetus].hc()));
        RC_ASSERT(isSingleOf(read.measurements()[fetus].ac(), saved.measurements()[fetus].ac()));
        RC_ASSERT(isSingleOf(read.measurements()[fetus].fl(), saved.measurements()[fetus].fl()));
      }
    }
  }));
}

TEST(SavingWhatWasRead, givesTheSameBytes) {
  EXPECT_TRUE(rc::check([] {
    const auto bytes = archivedPatient(anyPatient());
    RC_ASSERT(archivedPatient(*unarchivedPatient(bytes).patient) == bytes);
  }));
}

}  // namespace
}  // namespace nascor::model
