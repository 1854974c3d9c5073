// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/Unarchiver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Documents.h"
#include "Lengths.h"
#include "StreamBuilder.h"
#include "model/PatientFile.h"

namespace nascor::model {
namespace {

using foundation::Date;
using tests::bytesOf;
using tests::ExaminationParts;
using tests::group;
using tests::inlineLengths;
using tests::integer;
using tests::kUnmeasured;
using tests::Lengths;
using tests::lengthsOf;
using tests::nil;
using tests::onlyExamination;
using tests::PatientParts;
using tests::Put;
using tests::single;
using tests::StreamBuilder;
using tests::text;
using Order = StreamBuilder::Order;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

PatientRecord read(const PatientParts& parts) { return std::move(*unarchivedPatient(parts.bytes()).patient); }

// ---- Whole documents

TEST(ReadingTheFileOfANewPatient, givesThatPatient) {
  const auto [patient, facts] = unarchivedPatient(bytesOf(tests::kFreshPatientDump));
  ASSERT_NE(patient, nullptr);
  EXPECT_EQ(patient->maternalIDString(), "");
  EXPECT_EQ(patient->edd(), std::nullopt);
  ASSERT_EQ(patient->ncRecordsArray().size(), 1U);
  EXPECT_EQ(patient->ncRecordsArray()[0]->note(), "");
  EXPECT_EQ(patient->ncRecordsArray()[0]->examDate(), Date{221234567.890625});
  ASSERT_EQ(patient->ncRecordsArray()[0]->measurements().size(), 1U);
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[0]->measurements()[0]), kUnmeasured);
  EXPECT_EQ(patient->standard(), 0);
  EXPECT_EQ(patient->fetalWeightStandard(), 0);
  EXPECT_EQ(patient->numberOfFetuses(), 1);
  EXPECT_EQ(patient->extrapolatedGestation(), 40.0);
  EXPECT_EQ(patient->crlStandard(), 0);
  EXPECT_EQ(patient->gravida(), 0);

  EXPECT_EQ(facts.byteOrder, archive::ByteOrder::little);
  EXPECT_EQ(facts.patientVersion, 7);
  EXPECT_EQ(facts.ncRecordVersion, 1);
  EXPECT_EQ(facts.measurementsVersion, 0);
  EXPECT_EQ(facts.gravidityText, "Deprecated");
  EXPECT_EQ(facts.missingArrays, 0U);
  EXPECT_EQ(facts.sharedRecords, 0U);
  EXPECT_EQ(facts.trailingBytes, 0U);
}

TEST(ReadingTheFileOfTwins, givesEveryValueInItsPlace) {
  const auto [patient, facts] = unarchivedPatient(bytesOf(tests::kTwinsDump));
  ASSERT_NE(patient, nullptr);
  EXPECT_EQ(patient->maternalIDString(), "AB-123");
  EXPECT_EQ(patient->edd(), Date{239000000.0});
  ASSERT_EQ(patient->ncRecordsArray().size(), 1U);
  const NCRecord& examination = *patient->ncRecordsArray()[0];
  EXPECT_EQ(examination.note(), "ok");
  EXPECT_EQ(examination.examDate(), Date{220000000.25});
  ASSERT_EQ(examination.measurements().size(), 2U);
  EXPECT_EQ(lengthsOf(examination.measurements()[0]), (Lengths{48.5, 175.0, 150.25, 33.5}));
  EXPECT_EQ(lengthsOf(examination.measurements()[1]), kUnmeasured);
  EXPECT_EQ(patient->standard(), 2);
  EXPECT_EQ(patient->fetalWeightStandard(), 6);
  EXPECT_EQ(patient->numberOfFetuses(), 2);
  EXPECT_EQ(patient->extrapolatedGestation(), 38.5);
  EXPECT_EQ(patient->crlStandard(), 1);
  EXPECT_EQ(patient->gravida(), 300);
}

// ---- Class versions

struct VersionCase {
  std::int64_t patientVersion;
  std::int64_t ncRecordVersion;
  Order order;
};

class AFileOfAnyClassVersion : public testing::TestWithParam<VersionCase> {};

TEST_P(AFileOfAnyClassVersion, givesWhatItHoldsAndTheDefaultsOfItsTimeForTheRest) {
  const std::int64_t version = GetParam().patientVersion;
  PatientParts parts{
      .order = GetParam().order, .version = version, .ncRecordVersion = GetParam().ncRecordVersion};
  parts.gravidityText = text("5");
  parts.standard = version < 4 ? single(2.9) : integer(2);
  parts.fetalWeightStandard = version < 4 ? single(6.5) : integer(6);
  parts.numberOfFetuses = integer(2);
  const auto measurements = GetParam().ncRecordVersion != 0 ? ExaminationParts{}.measurements
                                                            : inlineLengths(48.5, 175.0, 150.25, 33.5);
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(2);
    ExaminationParts{.note = text("first"), .measurements = measurements}.putInto(file);
    ExaminationParts{
        .note = text("second"), .examDate = tests::date(222592000.0), .measurements = measurements}
        .putInto(file);
    file.end();
  };

  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  ASSERT_NE(patient, nullptr);
  EXPECT_EQ(patient->maternalIDString(), "A-1024");
  EXPECT_EQ(patient->edd(), Date{239000000.0});
  ASSERT_EQ(patient->ncRecordsArray().size(), 2U);
  EXPECT_EQ(patient->ncRecordsArray()[0]->note(), "first");
  EXPECT_EQ(patient->ncRecordsArray()[0]->examDate(), Date{220000000.25});
  EXPECT_EQ(patient->ncRecordsArray()[1]->note(), "second");
  EXPECT_EQ(patient->ncRecordsArray()[1]->examDate(), Date{222592000.0});
  for (const auto& examination : patient->ncRecordsArray()) {
    ASSERT_EQ(examination->measurements().size(), 1U);
    EXPECT_EQ(lengthsOf(examination->measurements()[0]), (Lengths{48.5, 175.0, 150.25, 33.5}));
  }
  EXPECT_EQ(patient->standard(), version >= 2 ? 2 : 0);
  EXPECT_EQ(patient->fetalWeightStandard(), version >= 3 ? 6 : 0);
  EXPECT_EQ(patient->numberOfFetuses(), version >= 4 ? 2 : 1);
  EXPECT_EQ(patient->extrapolatedGestation(), version >= 5 ? 38.5 : 40.0);
  EXPECT_EQ(patient->crlStandard(), version >= 6 ? 3 : 0);
  EXPECT_EQ(patient->gravida(), version >= 7 ? 4 : 5);

  EXPECT_EQ(facts.byteOrder,
            GetParam().order == Order::little ? archive::ByteOrder::little : archive::ByteOrder::big);
  EXPECT_EQ(facts.patientVersion, version);
  EXPECT_EQ(facts.ncRecordVersion, GetParam().ncRecordVersion);
  EXPECT_EQ(facts.measurementsVersion,
            GetParam().ncRecordVersion != 0 ? std::optional<std::int64_t>(0) : std::nullopt);
  EXPECT_EQ(facts.gravidityText, "5");
}

std::vector<VersionCase> allVersions() {
  std::vector<VersionCase> cases;
  // Later versions than 7 are read as 7, and every version of an examination but 0 as 1.
  for (const std::int64_t patient : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 300, 2147483647}) {
    for (const std::int64_t ncRecord : {0, 1, 2, 5, -1, 256}) {
      for (const Order order : {Order::little, Order::big}) cases.push_back({patient, ncRecord, order});
    }
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(inBothByteOrders, AFileOfAnyClassVersion, testing::ValuesIn(allVersions()),
                         [](const auto& row) {
                           std::string name = "patient" + std::to_string(row.param.patientVersion) +
                                              "Examination" + std::to_string(row.param.ncRecordVersion) +
                                              (row.param.order == Order::little ? "Little" : "Big");
                           std::ranges::replace(name, '-', 'm');
                           return name;
                         });

TEST(AFileOfMeasurementsOfALaterVersion, isReadAllTheSame) {
  StreamBuilder file;
  file.setVersion("MeasurementsRecord", 3);
  file.begin("PatientRecord");
  PatientParts().putPlacesOf(model::class_version::patientRecord, file);
  const auto [patient, facts] = unarchivedPatient(file.bytes());
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[0]->measurements()[0]), (Lengths{48.5, 175.0, 150.25, 33.5}));
  EXPECT_EQ(facts.measurementsVersion, 3);
}

TEST(AFileWithoutExaminations, saysNothingOfTheirVersions) {
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(0);
    file.end();
  };
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_TRUE(patient->ncRecordsArray().empty());
  EXPECT_EQ(facts.ncRecordVersion, std::nullopt);
  EXPECT_EQ(facts.measurementsVersion, std::nullopt);
  EXPECT_EQ(facts.missingArrays, 0U);
}

// ---- Standards that were singles

struct OldStandard {
  std::string_view dump;
  std::int64_t standard;
};

const OldStandard kOldStandards[] = {
    {"02", 2},
    {"83 9a 99 39 40", 2},   // 2.9
    {"83 ff ff 7f 3f", 0},   // just below 1
    {"83 9a 99 99 bf", -1},  // -1.2
    {"83 66 66 66 bf", 0},   // -0.9
    {"83 00 00 c0 7f", 0},   // not a number
    {"83 00 00 80 7f", kLargest},
    {"83 00 00 80 ff", kSmallest},
    {"83 00 00 00 5f", kLargest},             // 2^63
    {"83 ff ff ff 5e", 9223371487098961920},  // the single before it
    {"83 00 00 00 df", kSmallest},            // -2^63
    {"83 ff ff 7f 7f", kLargest},             // the largest single
    {"83 00 00 00 80", 0},                    // -0
};

TEST(AStandardThatIsASingle, isTruncatedTowardZeroAndHeldWithin64Bits) {
  for (const OldStandard& row : kOldStandards) {
    for (const std::int64_t version : {2, 3}) {
      PatientParts parts{.version = version};
      parts.standard = parts.fetalWeightStandard = group("f", row.dump);
      const PatientRecord patient = read(parts);
      EXPECT_EQ(patient.standard(), row.standard) << row.dump << " in version " << version;
      EXPECT_EQ(patient.fetalWeightStandard(), version == 3 ? row.standard : 0)
          << row.dump << " in version " << version;
    }
  }
}

// ---- Old gravidity texts

struct OldGravidity {
  Put place;
  std::int64_t gravida;
};

TEST(AnOldGravidityText, becomesANumberInEveryVersionBefore7) {
  const OldGravidity gravidities[] = {{text("3"), 3},       {text(""), 0},    {text("G3"), 1},
                                      {text("3."), 1},      {text("2nd"), 1}, {text("+3"), 3},
                                      {text(" 3"), 3},      {text("$3"), 0},  {text("-3"), 1},
                                      {text("\u6f223"), 1}, {nil(), 1},       {text("3\u20ac"), 3}};
  for (const OldGravidity& row : gravidities) {
    for (std::int64_t version = 0; version <= model::class_version::patientRecord; ++version) {
      PatientParts parts{.version = version, .gravidityText = row.place};
      if (version == 2 || version == 3) parts.standard = parts.fetalWeightStandard = single(1);
      EXPECT_EQ(read(parts).gravida(), version < 7 ? row.gravida : 4) << "version " << version;
    }
  }
}

TEST(AMissingGravidityText, isAFact) {
  PatientParts parts{.gravidityText = nil()};
  EXPECT_EQ(unarchivedPatient(parts.bytes()).facts.gravidityText, std::nullopt);
}

// ---- Numbers

struct RealCase {
  std::string_view dump;
  double value;
};

const RealCase kSingles[] = {
    {"28", 40.0},
    {"fb", -5.0},
    {"81 f4 00", 244.0},
    {"82 80 96 98 00", 10000000.0},
    {"83 66 66 ca 41", 25.299999237060547},
    {"83 33 33 35 42", 45.29999923706055},
    {"83 00 00 20 42", 40.0},  // not the shortest form
    {"81 28 00", 40.0},
    {"83 01 00 00 00", 1.401298464324817e-45},
    {"83 ff ff 7f 7f", 3.4028234663852886e38},
    {"83 00 00 80 7f", kInfinity},
    {"83 00 00 80 ff", -kInfinity},
};

TEST(ASingle, isWidenedToTheSameNumber) {
  for (const RealCase& row : kSingles) {
    PatientParts parts;
    parts.extrapolatedGestation = group("f", row.dump);
    parts.ncRecordsArray = onlyExamination({.measurements = [&](StreamBuilder& file) {
      file.beginArray(1);
      file.begin("MeasurementsRecord");
      for (int i = 0; i < 4; ++i) file.group("f", row.dump);
      file.end();
      file.end();
    }});
    const PatientRecord patient = read(parts);
    EXPECT_EQ(patient.extrapolatedGestation(), row.value) << row.dump;
    EXPECT_EQ(lengthsOf(patient.ncRecordsArray()[0]->measurements()[0]),
              (Lengths{row.value, row.value, row.value, row.value}))
        << row.dump;
  }
}

TEST(ASingleThatIsNotANumber, isTaken) {
  PatientParts parts;
  parts.extrapolatedGestation = group("f", "83 00 00 c0 7f");
  EXPECT_TRUE(std::isnan(read(parts).extrapolatedGestation()));
}

const RealCase kDates[] = {
    {"00", 0.0},
    {"fb", -5.0},
    {"82 80 01 4b 01", 21692800.0},
    {"83 aa f1 42 80 93 dc c4 41", 700000000.523},
    {"83 00 00 00 c5 c8 63 2d c2", -63114076800.0},
    {"83 00 00 00 00 00 00 e0 41", 2147483648.0},
    {"83 2f 30 b7 b3 a7 c9 ba 01", 2.5e-300},
    {"83 00 00 00 00 00 00 f0 7f", kInfinity},
    {"83 00 00 00 00 00 00 f0 ff", -kInfinity},
    {"87 00 00 00 00 01 00 00 00", 4294967296.0},
};

TEST(ADate, keepsEveryBit) {
  for (const RealCase& row : kDates) {
    const auto date = [&](StreamBuilder& file) {
      file.begin("NSDate");
      file.group("d", row.dump);
      file.end();
    };
    PatientParts parts{.edd = date};
    parts.ncRecordsArray = onlyExamination({.examDate = date});
    const PatientRecord patient = read(parts);
    EXPECT_EQ(patient.edd(), Date{row.value}) << row.dump;
    EXPECT_EQ(patient.ncRecordsArray()[0]->examDate(), Date{row.value}) << row.dump;
  }
}

TEST(ADateThatIsNotANumber, isTaken) {
  PatientParts parts;
  parts.edd = [](StreamBuilder& file) {
    file.begin("NSDate");
    file.group("d", "83 00 00 00 00 00 00 f8 7f");
    file.end();
  };
  EXPECT_TRUE(std::isnan(read(parts).edd()->secondsSince2001));
}

struct IntegerCase {
  std::string_view dump;
  std::int64_t value;
};

const IntegerCase kIntegers[] = {
    {"00", 0},
    {"7f", 127},
    {"92", -110},
    {"81 80 ff", -128},
    {"81 f0 02", 752},
    {"82 ff ff 00 00", 65535},
    {"82 ff ff ff 7f", 2147483647},
    {"82 00 00 00 80", -2147483648},
    {"82 fe ff ff ff", -2},  // not the shortest form
};

TEST(AWholeNumber, keepsItsSign) {
  for (const IntegerCase& row : kIntegers) {
    PatientParts parts;
    parts.setIntegers(group("i", row.dump));
    const PatientRecord patient = read(parts);
    for (const model::PatientValue& value : model::kPatientValues) {
      if (const auto* integer = std::get_if<model::PatientValue::Integer>(&value.member)) {
        EXPECT_EQ(patient.values().*(*integer), row.value) << value.name << ' ' << row.dump;
      }
    }
  }
}

// ---- Missing values

TEST(AMissingIdentifierNoteOrDate, staysMissing) {
  PatientParts parts{.maternalIDString = nil(), .edd = nil()};
  parts.ncRecordsArray = onlyExamination({.note = nil(), .examDate = nil()});
  const PatientRecord patient = read(parts);
  EXPECT_EQ(patient.maternalIDString(), std::nullopt);
  EXPECT_EQ(patient.edd(), std::nullopt);
  EXPECT_EQ(patient.ncRecordsArray()[0]->note(), std::nullopt);
  EXPECT_EQ(patient.ncRecordsArray()[0]->examDate(), std::nullopt);
}

TEST(AMissingArray, isReadAsEmptyAndCounted) {
  PatientParts parts{.ncRecordsArray = nil()};
  const auto without = unarchivedPatient(parts.bytes());
  EXPECT_TRUE(without.patient->ncRecordsArray().empty());
  EXPECT_EQ(without.facts.missingArrays, 1U);

  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    for (int i = 0; i < 2; ++i) ExaminationParts{.measurements = nil()}.putInto(file);
    file.end();
  };
  const auto unmeasured = unarchivedPatient(parts.bytes());
  ASSERT_EQ(unmeasured.patient->ncRecordsArray().size(), 2U);
  EXPECT_TRUE(unmeasured.patient->ncRecordsArray()[0]->measurements().empty());
  EXPECT_EQ(unmeasured.facts.missingArrays, 2U);
}

TEST(AFileWhoseRootIsNil, holdsNoPatient) {
  StreamBuilder file;
  file.nil();
  const auto [patient, facts] = unarchivedPatient(file.bytes());
  EXPECT_EQ(patient, nullptr);
  EXPECT_EQ(facts.patientVersion, std::nullopt);
  EXPECT_EQ(facts.trailingBytes, 0U);
}

TEST(AFileWhoseRootIsNil, mayGoOnBehindIt) {
  StreamBuilder file;
  file.nil();
  file.raw("00 01 02");
  const auto [patient, facts] = unarchivedPatient(file.bytes());
  EXPECT_EQ(patient, nullptr);
  EXPECT_EQ(facts.trailingBytes, 3U);
}

// ---- Nothing is added and nothing is checked

TEST(ReadingAnEmptyArrayOfExaminations, addsNone) {
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(0, "NSArray");
    file.end();
  };
  EXPECT_TRUE(read(parts).ncRecordsArray().empty());
}

TEST(ReadingAFetusCountThatDoesNotFit, keepsEverythingAsItStands) {
  for (const std::int64_t count : {-1, 0, 2, 6, 2147483647}) {
    PatientParts parts;
    parts.numberOfFetuses = integer(count);
    parts.ncRecordsArray = [](StreamBuilder& file) {
      file.beginArray(3);
      for (int fetuses = 0; fetuses < 3; ++fetuses) {
        ExaminationParts{.measurements = [=](StreamBuilder& at) {
          at.beginArray(fetuses);
          for (int i = 0; i < fetuses; ++i) at.measurements(i, 0, 0, 0);
          at.end();
        }}.putInto(file);
      }
      file.end();
    };
    const PatientRecord patient = read(parts);
    EXPECT_EQ(patient.numberOfFetuses(), count);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(patient.ncRecordsArray()[i]->measurements().size(), i);
  }
}

TEST(ReadingExaminationsOutOfOrder, keepsTheOrderOfTheFile) {
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(3);
    for (const double seconds : {30.0, 10.0, 20.0})
      ExaminationParts{.examDate = tests::date(seconds)}.putInto(file);
    file.end();
  };
  const PatientRecord patient = read(parts);
  EXPECT_EQ(patient.ncRecordsArray()[0]->examDate(), Date{30.0});
  EXPECT_EQ(patient.ncRecordsArray()[1]->examDate(), Date{10.0});
  EXPECT_EQ(patient.ncRecordsArray()[2]->examDate(), Date{20.0});
}

TEST(BytesBehindThePatient, areCountedAndIgnored) {
  PatientParts parts;
  parts.rest = [](StreamBuilder& file) {
    file.end();
    file.raw("84 86 ff 00 12");
  };
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_EQ(patient->gravida(), 4);
  EXPECT_EQ(facts.trailingBytes, 5U);
}

// ---- Other classes that hold the same

TEST(MutableStrings, areReadInEveryPlaceOfAText) {
  const auto mutableText = [](std::string_view characters) {
    return [=](StreamBuilder& file) { file.string(characters, "NSMutableString"); };
  };
  PatientParts parts{.version = 6, .maternalIDString = mutableText("M-1"), .gravidityText = mutableText("3")};
  parts.ncRecordsArray = onlyExamination({.note = mutableText("typed")});
  const PatientRecord patient = read(parts);
  EXPECT_EQ(patient.maternalIDString(), "M-1");
  EXPECT_EQ(patient.ncRecordsArray()[0]->note(), "typed");
  EXPECT_EQ(patient.gravida(), 3);
}

TEST(ImmutableArrays, areReadInEveryPlaceOfAnArray) {
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(1, "NSArray");
    ExaminationParts{.measurements = [](StreamBuilder& at) {
      at.beginArray(2, "NSArray");
      at.measurements(1, 2, 3, 4);
      at.measurements(5, 6, 7, 8);
      at.end();
    }}.putInto(file);
    file.end();
  };
  const PatientRecord patient = read(parts);
  ASSERT_EQ(patient.ncRecordsArray().size(), 1U);
  ASSERT_EQ(patient.ncRecordsArray()[0]->measurements().size(), 2U);
  EXPECT_EQ(lengthsOf(patient.ncRecordsArray()[0]->measurements()[1]), (Lengths{5, 6, 7, 8}));
}

TEST(ATextOfAnyCharacters, isReadByteForByte) {
  for (const std::string& characters : {std::string("a\0b", 3), std::string("\u00c4\u6f22\U0001f930"),
                                        std::string("\ufeffx"), std::string(40000, 'n')}) {
    PatientParts parts{.maternalIDString = text(characters)};
    parts.ncRecordsArray = onlyExamination({.note = text(characters)});
    const PatientRecord patient = read(parts);
    EXPECT_EQ(patient.maternalIDString(), characters);
    EXPECT_EQ(patient.ncRecordsArray()[0]->note(), characters);
  }
}

// ---- One object in several places

TEST(ATextInSeveralPlaces, isReadInEach) {
  StreamBuilder::Label shared = 0;
  const auto first = [&](StreamBuilder& file) { shared = file.string("12"); };
  const auto again = [&](StreamBuilder& file) { file.reference(shared); };
  PatientParts parts{.version = 6, .maternalIDString = first, .gravidityText = again};
  parts.ncRecordsArray = onlyExamination({.note = again});
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_EQ(patient->maternalIDString(), "12");
  EXPECT_EQ(patient->gravida(), 12);
  EXPECT_EQ(patient->ncRecordsArray()[0]->note(), "12");
  EXPECT_EQ(facts.sharedRecords, 0U) << "texts and dates are not changed in place";
}

TEST(ADateInSeveralPlaces, isReadInEach) {
  StreamBuilder::Label shared = 0;
  PatientParts parts{.edd = [&](StreamBuilder& file) { shared = file.date(0.5); }};
  parts.ncRecordsArray = onlyExamination({.examDate = [&](StreamBuilder& file) { file.reference(shared); }});
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_EQ(patient->edd(), Date{0.5});
  EXPECT_EQ(patient->ncRecordsArray()[0]->examDate(), Date{0.5});
  EXPECT_EQ(facts.sharedRecords, 0U);
}

TEST(AnExaminationInSeveralPlaces, becomesOneForEach) {
  PatientParts parts;
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(3);
    const StreamBuilder::Label examination = ExaminationParts{}.putInto(file);
    file.reference(examination);
    file.reference(examination);
    file.end();
  };
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  ASSERT_EQ(patient->ncRecordsArray().size(), 3U);
  EXPECT_EQ(facts.sharedRecords, 2U);
  for (const auto& examination : patient->ncRecordsArray()) {
    EXPECT_EQ(examination->note(), "20 week scan");
    EXPECT_EQ(examination->examDate(), Date{220000000.25});
    ASSERT_EQ(examination->measurements().size(), 1U);
    EXPECT_EQ(lengthsOf(examination->measurements()[0]), (Lengths{48.5, 175.0, 150.25, 33.5}));
  }
  patient->ncRecordsArray()[1]->measurementsForFetus(0).setBPD(1.0);
  EXPECT_EQ(patient->ncRecordsArray()[0]->measurementsForFetus(0).bpd(), 48.5);
  EXPECT_EQ(patient->ncRecordsArray()[2]->measurementsForFetus(0).bpd(), 48.5);
}

TEST(AnArrayOfMeasurementsInSeveralPlaces, becomesOneForEach) {
  StreamBuilder::Label shared = 0;
  PatientParts parts;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(2);
    ExaminationParts{.measurements = [&](StreamBuilder& at) {
      shared = at.beginArray(2);
      at.measurements(1, 2, 3, 4);
      at.measurements(5, 6, 7, 8);
      at.end();
    }}.putInto(file);
    ExaminationParts{.measurements = [&](StreamBuilder& at) { at.reference(shared); }}.putInto(file);
    file.end();
  };
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_EQ(facts.sharedRecords, 1U);
  ASSERT_EQ(patient->ncRecordsArray()[1]->measurements().size(), 2U);
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[1]->measurements()[0]), (Lengths{1, 2, 3, 4}));
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[1]->measurements()[1]), (Lengths{5, 6, 7, 8}));
  patient->ncRecordsArray()[1]->deleteMeasurementsRecord(0);
  EXPECT_EQ(patient->ncRecordsArray()[0]->measurements().size(), 2U);
}

TEST(MeasurementsInSeveralPlaces, becomeOneForEach) {
  StreamBuilder::Label shared = 0;
  PatientParts parts;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(2);
    ExaminationParts{.measurements = [&](StreamBuilder& at) {
      at.beginArray(2);
      shared = at.measurements(1, 2, 3, 4);
      at.reference(shared);
      at.end();
    }}.putInto(file);
    ExaminationParts{.measurements = [&](StreamBuilder& at) {
      at.beginArray(1);
      at.reference(shared);
      at.end();
    }}.putInto(file);
    file.end();
  };
  const auto [patient, facts] = unarchivedPatient(parts.bytes());
  EXPECT_EQ(facts.sharedRecords, 2U);
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[0]->measurements()[1]), (Lengths{1, 2, 3, 4}));
  EXPECT_EQ(lengthsOf(patient->ncRecordsArray()[1]->measurements()[0]), (Lengths{1, 2, 3, 4}));
  patient->ncRecordsArray()[0]->measurementsForFetus(0).setFL(9.0);
  EXPECT_EQ(patient->ncRecordsArray()[0]->measurementsForFetus(1).fl(), 4.0);
}

// An examination of the oldest version has no array, but may be shared like any other.
TEST(AnOldExaminationInSeveralPlaces, becomesOneForEach) {
  PatientParts parts{.version = 0, .ncRecordVersion = 0};
  parts.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    file.reference(ExaminationParts{.measurements = inlineLengths(1, 2, 3, 4)}.putInto(file));
    file.end();
  };
  const PatientRecord patient = read(parts);
  ASSERT_EQ(patient.ncRecordsArray().size(), 2U);
  EXPECT_EQ(lengthsOf(patient.ncRecordsArray()[1]->measurements()[0]), (Lengths{1, 2, 3, 4}));
}

// The copies of one text or record may be many, as long as they stay in proportion to the file.
TEST(AModestNumberOfCopies, isRead) {
  const std::string note(1000, 'n');
  PatientParts parts;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(40);
    const StreamBuilder::Label examination = ExaminationParts{.note = text(note)}.putInto(file);
    for (int i = 1; i < 40; ++i) file.reference(examination);
    file.end();
  };
  const PatientRecord patient = read(parts);
  ASSERT_EQ(patient.ncRecordsArray().size(), 40U);
  EXPECT_EQ(patient.ncRecordsArray()[39]->note(), note);
}

}  // namespace
}  // namespace nascor::model
