// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Documents.h"
#include "Patients.h"
#include "StreamBuilder.h"
#include "model/PatientFile.h"
#include "support/FixedClock.h"
#include "support/MemoryUserDefaults.h"

namespace nascor::model {
namespace {

using foundation::Date;
using tests::anExamination;
using tests::aPatient;
using tests::bytesOf;
using tests::ExaminationParts;
using tests::group;
using tests::hexOf;
using tests::nil;
using tests::onlyExamination;
using tests::PatientParts;
using tests::StreamBuilder;
using tests::text;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string hexOfFile(const PatientRecord& patient) { return hexOf(archivedPatient(patient)); }
std::string hexOfFile(const PatientParts& parts) { return hexOf(parts.bytes()); }

// ---- Whole documents

TEST(SavingANewPatient, givesTheBytesOfTheFormat) {
  const PatientRecord patient(tests::FixedClock({221234567.890625}), tests::MemoryUserDefaults());
  EXPECT_EQ(hexOfFile(patient), hexOf(bytesOf(tests::kFreshPatientDump)));
}

TEST(SavingTwins, givesTheBytesOfTheFormat) {
  PatientRecord patient = aPatient();
  patient.setMaternalIDString("AB-123");
  NCRecord& examination = *patient.ncRecordsArray()[0];
  examination.setNote("ok");
  examination.addMeasurementsRecord();
  patient.setNumberOfFetuses(2);
  patient.setCRLStandard(1);
  patient.setGravida(300);
  EXPECT_EQ(hexOfFile(patient), hexOf(bytesOf(tests::kTwinsDump)));
}

TEST(SavingAPatient, putsEachValueInItsPlace) { EXPECT_EQ(hexOfFile(aPatient()), hexOfFile(PatientParts{})); }

TEST(SavingAPatient, givesTheSameBytesEveryTime) {
  const PatientRecord patient = aPatient();
  EXPECT_EQ(hexOfFile(patient), hexOfFile(patient));
}

TEST(SavingAPatientWithoutExaminations, writesAnEmptyArray) {
  PatientRecord patient = aPatient();
  patient.ncRecordsArray().clear();
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(0);
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

TEST(SavingAnExaminationWithoutFetuses, writesAnEmptyArray) {
  PatientRecord patient = aPatient();
  patient.ncRecordsArray()[0]->measurements().clear();
  PatientParts parts;
  parts.ncRecordsArray = onlyExamination({.measurements = [](StreamBuilder& file) {
    file.beginArray(0);
    file.end();
  }});
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

TEST(SavingAPatient, keepsTheExaminationsInTheOrderOfTheArray) {
  PatientRecord patient = aPatient();
  patient.ncRecordsArray().push_back(anExamination());
  patient.ncRecordsArray()[1]->setExamDate(Date{5.0});
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    ExaminationParts{}.putInto(file);
    ExaminationParts{.examDate = tests::date(5.0)}.putInto(file);
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

TEST(SavingMissingValues, writesNilForEach) {
  PatientRecord patient = aPatient();
  patient.setMaternalIDString(std::nullopt);
  patient.setEDD(std::nullopt);
  patient.ncRecordsArray()[0]->setNote(std::nullopt);
  patient.ncRecordsArray()[0]->setExamDate(std::nullopt);
  PatientParts parts;
  parts.maternalIDString = nil();
  parts.edd = nil();
  parts.ncRecordsArray = onlyExamination({.note = nil(), .examDate = nil()});
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

// ---- Texts

TEST(SavingEmptyTexts, writesTheFirstInFullAndRefersToItAfterwards) {
  PatientRecord patient = aPatient();
  for (int i = 0; i < 2; ++i) patient.ncRecordsArray().push_back(anExamination());
  for (const auto& examination : patient.ncRecordsArray()) examination->setNote("");
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    StreamBuilder::Label note = 0;
    file.beginArray(3);
    ExaminationParts{.note = [&](StreamBuilder& at) { note = at.string(""); }}.putInto(file);
    for (int i = 0; i < 2; ++i) {
      ExaminationParts{.note = [&](StreamBuilder& at) { at.reference(note); }}.putInto(file);
    }
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

TEST(SavingEqualTexts, writesEachInFull) {
  PatientRecord patient = aPatient();
  patient.setMaternalIDString("no change");
  patient.ncRecordsArray().push_back(anExamination());
  for (const auto& examination : patient.ncRecordsArray()) examination->setNote("no change");
  PatientParts parts;
  parts.maternalIDString = text("no change");
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    for (int i = 0; i < 2; ++i) ExaminationParts{.note = text("no change")}.putInto(file);
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

TEST(SavingEqualDates, writesEachInFull) {
  PatientRecord patient = aPatient();
  patient.setEDD(Date{220000000.25});
  patient.ncRecordsArray().push_back(anExamination());
  PatientParts parts;
  parts.edd = tests::date(220000000.25);
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    for (int i = 0; i < 2; ++i) ExaminationParts{}.putInto(file);
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

struct TextCase {
  const char* name;
  std::string text;
  std::string_view lengthDump;
};

class SavingAText : public testing::TestWithParam<TextCase> {};

TEST_P(SavingAText, writesItsBytesAfterTheirNumber) {
  PatientRecord patient = aPatient();
  patient.ncRecordsArray()[0]->setNote(GetParam().text);
  PatientParts parts;
  parts.ncRecordsArray = onlyExamination({.note = [](StreamBuilder& file) {
    file.begin("NSString");
    file.group("+", GetParam().lengthDump);
    for (const char c : GetParam().text) {
      file.raw(hexOf(std::as_bytes(std::span(&c, 1))));
    }
    file.end();
  }});
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

INSTANTIATE_TEST_SUITE_P(ofAnyLength, SavingAText,
                         testing::Values(TextCase{"one", "x", "01"},
                                         TextCase{"nonAscii", "Zwilling 2: \u00c4\u6f22\U0001f930", "15"},
                                         TextCase{"withNul", std::string("a\0b", 3), "03"},
                                         TextCase{"of127", std::string(127, 'x'), "7f"},
                                         TextCase{"of128", std::string(128, 'x'), "81 80 00"},
                                         TextCase{"of256", std::string(256, 'x'), "81 00 01"},
                                         TextCase{"of32767", std::string(32767, 'x'), "81 ff 7f"},
                                         TextCase{"of32768", std::string(32768, 'x'), "82 00 80 00 00"},
                                         TextCase{"of70000", std::string(70000, 'x'), "82 70 11 01 00"}),
                         [](const auto& row) { return std::string(row.param.name); });

// ---- Numbers

struct RealCase {
  double value;
  std::string_view dump;
};

// Lengths and the planned gestation are singles.
const RealCase kSingles[] = {
    {0.0, "00"},
    {-0.0, "00"},
    {40.0, "28"},
    {39.9999999999, "28"},  // whole as a single
    {25.3, "83 66 66 ca 41"},
    {45.3, "83 33 33 35 42"},
    {-3.0, "fd"},
    {127.0, "7f"},
    {128.0, "81 80 00"},
    {-110.0, "92"},
    {-111.0, "81 91 ff"},
    {-128.0, "81 80 ff"},
    {32768.0, "82 00 80 00 00"},
    {16777217.0, "82 00 00 00 01"},  // to the nearest single
    {2147483520.0, "82 80 ff ff 7f"},
    {2147483647.0, "83 00 00 00 4f"},  // rounds to 2^31, which no 32-bit number is
    {-2147483648.0, "82 00 00 00 80"},
    {-2147483904.0, "83 01 00 00 cf"},
    {1e-45, "83 01 00 00 00"},
    {1e-300, "00"},
    {3.4028234663852886e38, "83 ff ff 7f 7f"},
    {3.4028235e38, "83 ff ff 7f 7f"},
    {3.4028236e38, "83 00 00 80 7f"},  // beyond the largest single
    {-3.4028236e38, "83 00 00 80 ff"},
    {1e300, "83 00 00 80 7f"},
    {kInfinity, "83 00 00 80 7f"},
    {-kInfinity, "83 00 00 80 ff"},
    {kNaN, "83 00 00 c0 7f"},
};

TEST(SavingAReal, writesTheNearestSingleAndWholeOnesAsIntegers) {
  for (const RealCase& row : kSingles) {
    PatientRecord patient = aPatient();
    patient.setExtrapolatedGestation(row.value);
    PatientParts parts;
    parts.extrapolatedGestation = group("f", row.dump);
    EXPECT_EQ(hexOfFile(patient), hexOfFile(parts)) << row.value;
  }
}

TEST(SavingLengths, writesEachOfThemAsASingle) {
  for (const RealCase& row : kSingles) {
    for (int place = 0; place < 4; ++place) {
      PatientRecord patient = aPatient();
      MeasurementsRecord& lengths = patient.ncRecordsArray()[0]->measurementsForFetus(0);
      lengths = MeasurementsRecord();
      if (place == 0) lengths.setBPD(row.value);
      if (place == 1) lengths.setHC(row.value);
      if (place == 2) lengths.setAC(row.value);
      if (place == 3) lengths.setFL(row.value);
      PatientParts parts;
      parts.ncRecordsArray = onlyExamination({.measurements = [&](StreamBuilder& file) {
        file.beginArray(1);
        file.begin("MeasurementsRecord");
        for (int i = 0; i < 4; ++i) file.group("f", i == place ? row.dump : "00");
        file.end();
        file.end();
      }});
      EXPECT_EQ(hexOfFile(patient), hexOfFile(parts)) << row.value << " in place " << place;
    }
  }
}

const RealCase kDates[] = {
    {0.0, "00"},
    {-0.0, "00"},
    {-5.0, "fb"},
    {21692800.0, "82 80 01 4b 01"},
    {700000000.523, "83 aa f1 42 80 93 dc c4 41"},
    {2147483647.0, "82 ff ff ff 7f"},
    {2147483647.5, "83 00 00 e0 ff ff ff df 41"},
    {2147483648.0, "83 00 00 00 00 00 00 e0 41"},
    {-2147483648.0, "82 00 00 00 80"},
    {-2147483649.0, "83 00 00 20 00 00 00 e0 c1"},
    {-63114076800.0, "83 00 00 00 c5 c8 63 2d c2"},
    {2.5e-300, "83 2f 30 b7 b3 a7 c9 ba 01"},
    {kInfinity, "83 00 00 00 00 00 00 f0 7f"},
    {-kInfinity, "83 00 00 00 00 00 00 f0 ff"},
    {kNaN, "83 00 00 00 00 00 00 f8 7f"},
};

TEST(SavingADate, keepsEveryBitOfItButTheSignOfZero) {
  for (const RealCase& row : kDates) {
    PatientRecord patient = aPatient();
    patient.setEDD(Date{row.value});
    patient.ncRecordsArray()[0]->setExamDate(Date{row.value});
    const auto date = [&](StreamBuilder& file) {
      file.begin("NSDate");
      file.group("d", row.dump);
      file.end();
    };
    PatientParts parts;
    parts.edd = date;
    parts.ncRecordsArray = onlyExamination({.examDate = date});
    EXPECT_EQ(hexOfFile(patient), hexOfFile(parts)) << row.value;
  }
}

struct IntegerCase {
  std::int64_t value;
  std::string_view dump;
};

const IntegerCase kIntegers[] = {
    {0, "00"},
    {-1, "ff"},
    {127, "7f"},
    {128, "81 80 00"},
    {-110, "92"},
    {-111, "81 91 ff"},
    {-128, "81 80 ff"},
    {-129, "81 7f ff"},
    {32767, "81 ff 7f"},
    {32768, "82 00 80 00 00"},
    {-32768, "81 00 80"},
    {-32769, "82 ff 7f ff ff"},
    {65535, "82 ff ff 00 00"},
    {2147483647, "82 ff ff ff 7f"},
    {-2147483648, "82 00 00 00 80"},
    // Beyond 32 bits the low ones remain.
    {2147483648, "82 00 00 00 80"},
    {-2147483649, "82 ff ff ff 7f"},
    {4294967296, "00"},
    {4294967297, "01"},
    {4294967295, "ff"},
    {std::numeric_limits<std::int64_t>::max(), "ff"},
    {std::numeric_limits<std::int64_t>::min(), "00"},
};

TEST(SavingAWholeNumber, writesItsLow32Bits) {
  for (const IntegerCase& row : kIntegers) {
    PatientRecord patient = aPatient();
    for (const model::PatientValue& value : model::kPatientValues) {
      if (const auto* integer = std::get_if<model::PatientValue::Integer>(&value.member))
        patient.values().*(*integer) = row.value;
    }
    PatientParts parts;
    parts.setIntegers(group("i", row.dump));
    EXPECT_EQ(hexOfFile(patient), hexOfFile(parts)) << row.value;
  }
}

// ---- Long documents

TEST(SavingManyExaminations, numbersMoreObjectsThanOneByteCanCount) {
  constexpr int kCount = 100;
  PatientRecord patient = aPatient();
  patient.setMaternalIDString("");
  patient.ncRecordsArray().clear();
  for (int i = 0; i < kCount; ++i) {
    patient.ncRecordsArray().push_back(anExamination());
    patient.ncRecordsArray().back()->setNote(i % 2 == 0 ? "" : "odd");
  }
  PatientParts parts;
  StreamBuilder::Label empty = 0;
  parts.maternalIDString = [&](StreamBuilder& file) { empty = file.string(""); };
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(kCount);
    for (int i = 0; i < kCount; ++i) {
      ExaminationParts examination{.note = text("odd")};
      if (i % 2 == 0) examination.note = [&](StreamBuilder& at) { at.reference(empty); };
      examination.putInto(file);
    }
    file.end();
  };
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

// The one object that is referred to has a label of two bytes when it comes late.
TEST(SavingManyExaminations, refersToALateEmptyText) {
  constexpr int kCount = 100;
  PatientRecord patient = aPatient();
  patient.ncRecordsArray().clear();
  for (int i = 0; i < kCount; ++i) {
    patient.ncRecordsArray().push_back(anExamination());
    patient.ncRecordsArray().back()->setNote(i < kCount - 2 ? "early" : "");
  }
  PatientParts parts;
  StreamBuilder::Label empty = 0;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(kCount);
    for (int i = 0; i < kCount - 2; ++i) ExaminationParts{.note = text("early")}.putInto(file);
    ExaminationParts{.note = [&](StreamBuilder& at) { empty = at.string(""); }}.putInto(file);
    ExaminationParts{.note = [&](StreamBuilder& at) { at.reference(empty); }}.putInto(file);
    file.end();
  };
  EXPECT_GT(parts.bytes().size(), 0U);
  EXPECT_GE(empty, 238) << "too early to need two bytes";
  EXPECT_EQ(hexOfFile(patient), hexOfFile(parts));
}

}  // namespace
}  // namespace nascor::model
