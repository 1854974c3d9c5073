// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Documents.h"
#include "StreamBuilder.h"
#include "archive/FormatError.h"
#include "model/PatientFile.h"
#include "support/Spent.h"

namespace nascor::model {
namespace {

using archive::FormatError;
using tests::Bytes;
using tests::bytesOf;
using tests::ExaminationParts;
using tests::group;
using tests::inlineLengths;
using tests::integer;
using tests::nil;
using tests::onlyExamination;
using tests::PatientParts;
using tests::Put;
using tests::single;
using tests::StreamBuilder;
using tests::text;
using Order = StreamBuilder::Order;

/// How reading these bytes is refused; nothing when it is not.
std::optional<FormatError> refusalOf(std::span<const std::byte> bytes) {
  try {
    unarchivedPatient(bytes);
  } catch (const FormatError& error) {
    return error;
  }
  return std::nullopt;
}

/// That the refusal names a byte from `earliest` on, and says all of `words`.
void expectRefusal(const Bytes& bytes, std::size_t earliest, const std::vector<std::string>& words) {
  const auto refusal = refusalOf(bytes);
  ASSERT_TRUE(refusal) << "was read";
  const std::string sentence = refusal->what();
  EXPECT_EQ(sentence.find("at byte " + std::to_string(refusal->offset()) + ": expected "), 0U) << sentence;
  EXPECT_GE(refusal->offset(), earliest) << sentence;
  EXPECT_LE(refusal->offset(), bytes.size()) << sentence;
  for (const std::string& word : words)
    EXPECT_NE(sentence.find(word), std::string::npos) << word << ": " << sentence;
}

// ---- The wrong thing in one place of the patient

struct WrongPlace {
  const char* name;
  Put PatientParts::*place;
  Put wrong;
  std::vector<std::string> words;

  friend void PrintTo(const WrongPlace& row, std::ostream* out) { *out << row.name; }
};

class AWrongValueOfThePatient : public testing::TestWithParam<WrongPlace> {};

TEST_P(AWrongValueOfThePatient, isRefusedWhereItStands) {
  for (const Order order : {Order::little, Order::big}) {
    std::size_t begin = 0;
    PatientParts parts{.order = order};
    parts.*GetParam().place = [&](StreamBuilder& file) {
      begin = file.size();
      GetParam().wrong(file);
    };
    const Bytes bytes = parts.bytes();
    expectRefusal(bytes, begin, GetParam().words);
  }
}

Put arrayOf(std::int64_t count, const Put& elements) {
  return [=](StreamBuilder& file) {
    file.beginArray(count);
    elements(file);
    file.end();
  };
}

Put object(const std::string& cls, const Put& contents) {
  return [=](StreamBuilder& file) {
    file.begin(cls);
    contents(file);
    file.end();
  };
}

Put nothing() {
  return [](StreamBuilder&) {};
}

Put twice(const Put& put) {
  return [=](StreamBuilder& file) {
    put(file);
    put(file);
  };
}

const Put kExamination = [](StreamBuilder& file) { ExaminationParts{}.putInto(file); };

INSTANTIATE_TEST_SUITE_P(
    inAnyPlace, AWrongValueOfThePatient,
    testing::Values(
        WrongPlace{
            "identifierIsADate", &PatientParts::maternalIDString, tests::date(0), {"string", "NSDate"}},
        WrongPlace{"identifierIsAnArray",
                   &PatientParts::maternalIDString,
                   arrayOf(0, nothing()),
                   {"NSMutableArray"}},
        WrongPlace{"identifierIsUnknown",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.string("x", "NSSecretString"); },
                   {"NSSecretString"}},
        WrongPlace{"identifierIsAnInteger", &PatientParts::maternalIDString, integer(1), {"\"i\""}},
        WrongPlace{
            "identifierIsABareString", &PatientParts::maternalIDString, group("+", "01 41"), {"\"+\""}},
        WrongPlace{"identifierIsThePatient",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.reference(0); },
                   {"object 0 (PatientRecord)"}},
        WrongPlace{"identifierIsAClass",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.reference(1); },
                   {"class 1 (PatientRecord)"}},
        WrongPlace{"identifierIsALaterLabel",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.reference(3); },
                   {"label 3"}},
        WrongPlace{"identifierIsANegativeLabel",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.reference(-1); },
                   {"label -1"}},
        WrongPlace{"identifierIsAHugeLabel",
                   &PatientParts::maternalIDString,
                   [](StreamBuilder& file) { file.reference(2147483757); },
                   {"label 2147483757"}},
        WrongPlace{"identifierHasNoBytes",
                   &PatientParts::maternalIDString,
                   object("NSString", group("+", "85")),
                   {"string", "missing"}},
        WrongPlace{"identifierHasNoGroup",
                   &PatientParts::maternalIDString,
                   object("NSString", nothing()),
                   {"\"+\"", "(NSString) ends here"}},
        WrongPlace{"identifierHasTwoGroups",
                   &PatientParts::maternalIDString,
                   object("NSString", twice(group("+", "01 41"))),
                   {"more values follow"}},
        WrongPlace{"identifierHasANegativeLength",
                   &PatientParts::maternalIDString,
                   object("NSString", group("+", "ff")),
                   {"length is -1"}},
        WrongPlace{"identifierIsLongerThanTheFile",
                   &PatientParts::maternalIDString,
                   object("NSString", group("+", "82 7f 7f 7f 7f")),
                   {"bytes are left"}},
        WrongPlace{
            "gravidityTextIsADate", &PatientParts::gravidityText, tests::date(0), {"string", "NSDate"}},
        WrongPlace{"gravidityTextIsANumber",
                   &PatientParts::gravidityText,
                   object("NSNumber", group("i", "03")),
                   {"string", "NSNumber"}},
        WrongPlace{"dateOfDeliveryIsAString", &PatientParts::edd, text("1/7/26"), {"date", "NSString"}},
        WrongPlace{"dateOfDeliveryIsTheIdentifier",
                   &PatientParts::edd,
                   [](StreamBuilder& file) { file.reference(3); },
                   {"date", "object 3 (NSString)"}},
        WrongPlace{
            "dateOfDeliveryIsASingle", &PatientParts::edd, object("NSDate", single(0.5)), {"\"d\"", "\"f\""}},
        WrongPlace{"dateOfDeliveryHasTwoGroups",
                   &PatientParts::edd,
                   object("NSDate", twice(group("d", "00"))),
                   {"more values follow"}},
        WrongPlace{
            "examinationsAreAString", &PatientParts::ncRecordsArray, text("none"), {"array", "NSString"}},
        WrongPlace{"examinationsAreOneExamination",
                   &PatientParts::ncRecordsArray,
                   kExamination,
                   {"array", "NCRecord"}},
        WrongPlace{
            "examinationsHoldNil", &PatientParts::ncRecordsArray, arrayOf(1, nil()), {"NCRecord", "nil"}},
        WrongPlace{"examinationsHoldNilBehindAnExamination",
                   &PatientParts::ncRecordsArray,
                   arrayOf(2,
                           [](StreamBuilder& file) {
                             ExaminationParts{}.putInto(file);
                             file.nil();
                           }),
                   {"NCRecord", "nil"}},
        WrongPlace{"examinationsHoldAString",
                   &PatientParts::ncRecordsArray,
                   arrayOf(1, text("x")),
                   {"NCRecord", "NSString"}},
        WrongPlace{"examinationsHoldTheIdentifier",
                   &PatientParts::ncRecordsArray,
                   arrayOf(1, [](StreamBuilder& file) { file.reference(3); }),
                   {"NCRecord", "object 3 (NSString)"}},
        WrongPlace{"examinationsHoldThePatient",
                   &PatientParts::ncRecordsArray,
                   arrayOf(1, [](StreamBuilder& file) { file.reference(0); }),
                   {"NCRecord", "object 0 (PatientRecord)"}},
        WrongPlace{"examinationsHoldMeasurements",
                   &PatientParts::ncRecordsArray,
                   arrayOf(1, [](StreamBuilder& file) { file.measurements(1, 2, 3, 4); }),
                   {"NCRecord", "MeasurementsRecord"}},
        WrongPlace{"examinationsAreOneFewerThanCounted",
                   &PatientParts::ncRecordsArray,
                   arrayOf(2, kExamination),
                   {"(NSMutableArray) ends here"}},
        WrongPlace{"examinationsAreOneMoreThanCounted",
                   &PatientParts::ncRecordsArray,
                   arrayOf(0, kExamination),
                   {"more values follow"}},
        WrongPlace{"examinationsAreCountedBelowZero",
                   &PatientParts::ncRecordsArray,
                   arrayOf(-1, nothing()),
                   {"number of elements", "-1"}},
        WrongPlace{"examinationsAreCountedFarBelowZero",
                   &PatientParts::ncRecordsArray,
                   arrayOf(-2147483648, nothing()),
                   {"number of elements", "-2147483648"}},
        WrongPlace{"examinationsAreCountedAbsurdly",
                   &PatientParts::ncRecordsArray,
                   arrayOf(2147483647, kExamination),
                   {"ends here"}},
        WrongPlace{"examinationsAreCountedBeyond32Bits",
                   &PatientParts::ncRecordsArray,
                   object("NSMutableArray", group("i", "87 01 00 00 00 00 00 00 01")),
                   {"does not fit"}},
        WrongPlace{"examinationsAreCountedByASingle",
                   &PatientParts::ncRecordsArray,
                   object("NSMutableArray", single(1)),
                   {"\"i\"", "\"f\""}},
        WrongPlace{"examinationsAreNotCounted",
                   &PatientParts::ncRecordsArray,
                   object("NSMutableArray", nothing()),
                   {"ends here"}},
        WrongPlace{"standardIsASingle", &PatientParts::standard, single(2.5), {"\"i\"", "\"f\""}},
        WrongPlace{"standardIsMissing", &PatientParts::standard, nothing(), {"\"i\"", "\"f\""}},
        WrongPlace{"standardIsBeyond32Bits",
                   &PatientParts::standard,
                   group("i", "87 01 00 00 00 00 00 00 01"),
                   {"does not fit"}},
        WrongPlace{
            "weightStandardIsASingle", &PatientParts::fetalWeightStandard, single(2), {"\"i\"", "\"f\""}},
        WrongPlace{"fetusesAreAnObject", &PatientParts::numberOfFetuses, text("2"), {"\"i\"", "\"@\""}},
        WrongPlace{
            "gestationIsAnInteger", &PatientParts::extrapolatedGestation, integer(40), {"\"f\"", "\"i\""}},
        WrongPlace{
            "gestationIsADouble", &PatientParts::extrapolatedGestation, group("d", "28"), {"\"f\"", "\"d\""}},
        WrongPlace{"crlStandardIsASingle", &PatientParts::crlStandard, single(1), {"\"i\"", "\"f\""}},
        WrongPlace{"gravidaIsASingle", &PatientParts::gravida, single(1), {"\"i\"", "\"f\""}},
        WrongPlace{
            "gravidaIsMissing", &PatientParts::gravida, nothing(), {"\"i\"", "(PatientRecord) ends here"}},
        WrongPlace{
            "thereIsOneValueMore", &PatientParts::rest, integer(0), {"end of object 0 (PatientRecord)"}},
        WrongPlace{"theEndIsMissing", &PatientParts::rest, nothing(), {"end of object 0", "file ends here"}}),
    [](const auto& row) { return std::string(row.param.name); });

// ---- The wrong thing in one place of an examination

struct WrongExaminationPlace {
  const char* name;
  Put ExaminationParts::*place;
  Put wrong;
  std::vector<std::string> words;

  friend void PrintTo(const WrongExaminationPlace& row, std::ostream* out) { *out << row.name; }
};

class AWrongValueOfAnExamination : public testing::TestWithParam<WrongExaminationPlace> {};

TEST_P(AWrongValueOfAnExamination, isRefusedWhereItStands) {
  std::size_t begin = 0;
  ExaminationParts examination;
  examination.*GetParam().place = [&](StreamBuilder& file) {
    begin = file.size();
    GetParam().wrong(file);
  };
  PatientParts parts;
  parts.ncRecordsArray = onlyExamination(examination);
  const Bytes bytes = parts.bytes();
  expectRefusal(bytes, begin, GetParam().words);
}

const Put kMeasurements = [](StreamBuilder& file) { file.measurements(1, 2, 3, 4); };

INSTANTIATE_TEST_SUITE_P(
    inAnyPlace, AWrongValueOfAnExamination,
    testing::Values(
        WrongExaminationPlace{"noteIsADate", &ExaminationParts::note, tests::date(0), {"string", "NSDate"}},
        WrongExaminationPlace{"noteIsMissing", &ExaminationParts::note, nothing(), {"string", "NSDate"}},
        WrongExaminationPlace{"dateIsAString", &ExaminationParts::examDate, text("x"), {"date", "NSString"}},
        WrongExaminationPlace{"measurementsAreMissing",
                              &ExaminationParts::measurements,
                              nothing(),
                              {"\"@\"", "(NCRecord) ends here"}},
        WrongExaminationPlace{"measurementsAreInline",
                              &ExaminationParts::measurements,
                              inlineLengths(1, 2, 3, 4),
                              {"\"@\"", "\"f\""}},
        WrongExaminationPlace{
            "measurementsAreAString", &ExaminationParts::measurements, text("x"), {"array", "NSString"}},
        WrongExaminationPlace{"measurementsAreOneRecord",
                              &ExaminationParts::measurements,
                              kMeasurements,
                              {"array", "MeasurementsRecord"}},
        // The array of examinations is object 8: to hold it here would be to hold itself.
        WrongExaminationPlace{"measurementsAreTheExaminations",
                              &ExaminationParts::measurements,
                              [](StreamBuilder& file) { file.reference(8); },
                              {"array", "object 8 (NSMutableArray)", "contain itself"}},
        WrongExaminationPlace{"measurementsHoldNil",
                              &ExaminationParts::measurements,
                              arrayOf(1, nil()),
                              {"MeasurementsRecord", "nil"}},
        WrongExaminationPlace{"measurementsHoldThemselves",
                              &ExaminationParts::measurements,
                              [](StreamBuilder& file) {
                                const StreamBuilder::Label itself = file.beginArray(1);
                                file.reference(itself);
                                file.end();
                              },
                              {"MeasurementsRecord", "(NSMutableArray)"}},
        WrongExaminationPlace{"measurementsHoldTheirExamination",
                              &ExaminationParts::measurements,
                              arrayOf(1, [](StreamBuilder& file) { file.reference(11); }),
                              {"MeasurementsRecord", "object 11 (NCRecord)"}},
        WrongExaminationPlace{"measurementsAreCountedBelowZero",
                              &ExaminationParts::measurements,
                              arrayOf(-1, nothing()),
                              {"number of elements", "-1"}},
        WrongExaminationPlace{"measurementsAreCountedAbsurdly",
                              &ExaminationParts::measurements,
                              arrayOf(2147483647, kMeasurements),
                              {"ends here"}},
        WrongExaminationPlace{"measurementsAreOneMoreThanCounted",
                              &ExaminationParts::measurements,
                              arrayOf(1, twice(kMeasurements)),
                              {"more values follow"}},
        WrongExaminationPlace{"lengthsAreThree",
                              &ExaminationParts::measurements,
                              arrayOf(1, object("MeasurementsRecord",
                                                [](StreamBuilder& file) {
                                                  for (int i = 0; i < 3; ++i) file.single(i);
                                                })),
                              {"\"f\"", "(MeasurementsRecord) ends here"}},
        WrongExaminationPlace{"lengthsAreFive",
                              &ExaminationParts::measurements,
                              arrayOf(1, object("MeasurementsRecord",
                                                [](StreamBuilder& file) {
                                                  for (int i = 0; i < 5; ++i) file.single(i);
                                                })),
                              {"more values follow"}},
        WrongExaminationPlace{"lengthsAreOneGroup",
                              &ExaminationParts::measurements,
                              arrayOf(1, object("MeasurementsRecord", group("ffff", "00 00 00 00"))),
                              {"\"f\"", "\"ffff\""}},
        WrongExaminationPlace{"lengthsAreIntegers",
                              &ExaminationParts::measurements,
                              arrayOf(1, object("MeasurementsRecord", twice(twice(integer(1))))),
                              {"\"f\"", "\"i\""}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AnExaminationWithAValueTooMany, isRefused) {
  PatientParts parts;
  parts.ncRecordsArray = arrayOf(1, [](StreamBuilder& file) {
    file.begin("NCRecord");
    const ExaminationParts examination;
    examination.note(file);
    examination.examDate(file);
    examination.measurements(file);
    file.integer(1);
    file.end();
  });
  expectRefusal(parts.bytes(), 0, {"(NCRecord)", "more values follow"});
}

TEST(AnOldExaminationWithAnArray, isRefused) {
  PatientParts parts{.ncRecordVersion = 0};
  expectRefusal(parts.bytes(), 0, {"\"f\"", "\"@\""});
}

// ---- Class versions that the values do not keep to

TEST(APatientThatStatesALaterVersionThanItsValues, isRefused) {
  StreamBuilder file;
  file.begin("PatientRecord");
  const PatientParts parts;
  parts.maternalIDString(file);
  parts.gravidityText(file);
  parts.edd(file);
  parts.ncRecordsArray(file);
  file.end();
  expectRefusal(file.bytes(), 0, {"\"i\"", "(PatientRecord) ends here"});
}

TEST(APatientThatStatesAnEarlierVersionThanItsValues, isRefused) {
  for (std::int64_t version = 0; version < model::class_version::patientRecord; ++version) {
    StreamBuilder file;
    file.setVersion("PatientRecord", version);
    file.begin("PatientRecord");
    PatientParts().putPlacesOf(model::class_version::patientRecord, file);
    expectRefusal(file.bytes(), 0, {});
  }
}

// ---- The root

// A file may state any count: what is made ready for it follows the size of the file.
TEST(AnAbsurdCount, takesNoMemory) {
  if (tests::kIsSanitized) GTEST_SKIP() << "a sanitizer needs the memory";
  PatientParts parts;
  parts.ncRecordsArray = arrayOf(2147483647, kExamination);
  const Bytes bytes = parts.bytes();
  EXPECT_EXIT(
      {
        rlimit limit{};
        limit.rlim_cur = limit.rlim_max = 1U << 30;
        ::setrlimit(RLIMIT_AS, &limit);
        ::_exit(refusalOf(bytes) ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

class AWrongRoot : public testing::TestWithParam<Put> {};

TEST_P(AWrongRoot, isRefused) {
  StreamBuilder file;
  GetParam()(file);
  expectRefusal(file.bytes(), 16, {});
}

INSTANTIATE_TEST_SUITE_P(ofAnyKind, AWrongRoot,
                         testing::Values(text("PatientRecord"), tests::date(0), arrayOf(0, nothing()),
                                         kExamination, object("patientRecord", nothing()),
                                         object("UnknownRecord", nothing()), integer(7), group("@@", "85 85"),
                                         [](StreamBuilder& file) { file.reference(0); }));

TEST(ARootOfNoClass, isRefused) {
  StreamBuilder file;
  file.group("@", "84 85 86");
  expectRefusal(file.bytes(), 16, {"class", "nil"});
}

TEST(AFileOfSomethingElse, isRefused) {
  for (const std::string_view dump :
       {"", "04", "05 0b \"streamtyped\" 81 e8 03", "04 0b \"streamTyped\" 81 e8 03",
        "04 0a \"streamtype\" 81 e8 03", "04 0b \"streamtyped\" 81 e8 03", "\"<?xml version=1.0?>\"", "85",
        "04 85 81 e8 03"}) {
    EXPECT_TRUE(refusalOf(bytesOf(dump))) << dump;
  }
}

// ---- Class records

TEST(AChainOfVeryManySuperclasses, isRefused) {
  StreamBuilder file;
  file.shared("@");
  file.raw("84");
  for (int i = 0; i < 100000; ++i) {
    file.raw("84");
    file.shared(i == 0 ? "PatientRecord" : "C");
    file.number(7);
  }
  file.raw("85");
  expectRefusal(file.bytes(), 16, {});
}

// ---- Texts that are no text

class BytesThatAreNotUtf8 : public testing::TestWithParam<const char*> {};

TEST_P(BytesThatAreNotUtf8, areRefusedInEveryText) {
  const Bytes wrong = bytesOf(GetParam());
  const std::string characters(reinterpret_cast<const char*>(wrong.data()), wrong.size());
  for (const std::string& note : {characters, "before " + characters + " after"}) {
    PatientParts identifier{.maternalIDString = text(note)};
    expectRefusal(identifier.bytes(), 0, {"UTF-8"});
    PatientParts gravidity{.version = 6, .gravidityText = text(note)};
    expectRefusal(gravidity.bytes(), 0, {"UTF-8"});
    PatientParts examination;
    examination.ncRecordsArray =
        onlyExamination({.note = [&](StreamBuilder& file) { file.string(note, "NSMutableString"); }});
    expectRefusal(examination.bytes(), 0, {"UTF-8"});
  }
}

INSTANTIATE_TEST_SUITE_P(ofAnyKind, BytesThatAreNotUtf8,
                         testing::Values("80", "bf", "c3", "c0 80", "c1 bf", "e2 82", "e0 80 80", "ed a0 80",
                                         "ed bf bf", "f0 9f 98", "f0 80 80 80", "f4 90 80 80", "f5 80 80 80",
                                         "fe", "ff", "c3 28", "e9"));

// ---- Damage anywhere

std::vector<Bytes> goodFiles() {
  PatientParts oldest{.version = 0, .ncRecordVersion = 0, .gravidityText = text("G3")};
  oldest.ncRecordsArray = onlyExamination({.measurements = inlineLengths(48.5, 175.0, 150.25, 33.5)});
  PatientParts third{.order = Order::big, .version = 3};
  third.standard = single(2.9);
  third.fetalWeightStandard = single(6.5);
  PatientParts shared;
  shared.ncRecordsArray = [](StreamBuilder& file) {
    file.beginArray(2);
    file.reference(ExaminationParts{.note = text("both")}.putInto(file));
    file.end();
  };
  return {bytesOf(tests::kFreshPatientDump),
          bytesOf(tests::kTwinsDump),
          oldest.bytes(),
          third.bytes(),
          PatientParts{.order = Order::big}.bytes(),
          shared.bytes()};
}

TEST(AFileCutShort, isRefusedAtEveryLength) {
  for (const Bytes& file : goodFiles()) {
    ASSERT_FALSE(refusalOf(file));
    for (std::size_t length = 0; length < file.size(); ++length) {
      // A copy of exactly that size, so that a read past the end is seen.
      const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length));
      const auto refusal = refusalOf(cut);
      ASSERT_TRUE(refusal) << "cut to " << length << " of " << file.size();
      EXPECT_LE(refusal->offset(), length);
    }
  }
}

/// Nothing when the file is refused; otherwise whether saving what was read gives a file that says the same.
std::optional<bool> readsAndSavesTheSame(const Bytes& file) {
  try {
    const auto patient = unarchivedPatient(file).patient;
    if (!patient) return true;
    const Bytes saved = archivedPatient(*patient);
    return archivedPatient(*unarchivedPatient(saved).patient) == saved;
  } catch (const FormatError&) {
    return std::nullopt;
  }
}

// Whatever a byte becomes, the file is refused, or read and saved again without loss; there is no third way.
TEST(AFileWithOneByteChanged, isRefusedOrRead) {
  std::size_t readable = 0;
  for (const Bytes& file : goodFiles()) {
    for (std::size_t at = 0; at < file.size(); ++at) {
      for (const int value :
           {0x00, 0x01, 0x7f, 0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, 0x88, 0x92, 0x93, 0xff}) {
        Bytes changed = file;
        changed[at] = static_cast<std::byte>(value);
        const auto same = readsAndSavesTheSame(changed);
        EXPECT_TRUE(same.value_or(true)) << value << " in place of byte " << at;
        readable += same ? 1U : 0U;
      }
    }
  }
  EXPECT_GT(readable, 0U);
}

TEST(AFileWithOneByteLeftOut, isRefusedOrRead) {
  for (const Bytes& file : goodFiles()) {
    for (std::size_t at = 0; at < file.size(); ++at) {
      Bytes shorter = file;
      shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(at));
      EXPECT_TRUE(readsAndSavesTheSame(shorter).value_or(true)) << "without byte " << at;
    }
  }
}

// ---- Small files that stand for enormous documents

/// The bytes that the copies made so far would take, from the place where a file was refused: its examinations,
/// `step` bytes each, begin at `begin`.
std::size_t copiesBefore(const FormatError& refusal, std::size_t begin, std::size_t step, std::size_t copy) {
  return refusal.offset() <= begin ? 0 : (refusal.offset() - begin) / step * copy;
}

class AFileThatRepeatsALongNote : public testing::TestWithParam<bool> {};

TEST_P(AFileThatRepeatsALongNote, isRefusedBeforeItFillsTheMemory) {
  const bool wholeExaminations = GetParam();
  constexpr int kCount = 20000;
  const std::string note(20000, 'n');
  std::size_t begin = 0;
  std::size_t end = 0;
  PatientParts parts;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(kCount + 1);
    StreamBuilder::Label shared = 0;
    const StreamBuilder::Label examination =
        ExaminationParts{.note = [&](StreamBuilder& at) { shared = at.string(note); }}.putInto(file);
    begin = file.size();
    for (int i = 0; i < kCount; ++i) {
      if (wholeExaminations) {
        file.reference(examination);
      } else {
        ExaminationParts{.note = [&](StreamBuilder& at) { at.reference(shared); },
                         .examDate = nil(),
                         .measurements = nil()}
            .putInto(file);
      }
    }
    end = file.size();
    file.end();
  };
  const Bytes bytes = parts.bytes();
  const auto refusal = refusalOf(bytes);
  ASSERT_TRUE(refusal) << kCount << " copies of " << note.size() << " bytes from a file of " << bytes.size();
  EXPECT_NE(std::string(refusal->what()).find(std::to_string(bytes.size())), std::string::npos)
      << refusal->what();
  EXPECT_LT(copiesBefore(*refusal, begin, (end - begin) / kCount, note.size()), 100 * bytes.size());
}

INSTANTIATE_TEST_SUITE_P(byTextOrByExamination, AFileThatRepeatsALongNote, testing::Bool());

class AFileThatRepeatsManyMeasurements : public testing::TestWithParam<bool> {};

TEST_P(AFileThatRepeatsManyMeasurements, isRefusedBeforeItFillsTheMemory) {
  const bool wholeExaminations = GetParam();
  constexpr int kCount = 20000;
  constexpr int kFetuses = 4000;
  PatientParts parts;
  parts.ncRecordsArray = [&](StreamBuilder& file) {
    file.beginArray(kCount + 1);
    StreamBuilder::Label shared = 0;
    const StreamBuilder::Label examination = ExaminationParts{
        .note = text(""), .measurements = [&](StreamBuilder& at) {
          shared = at.beginArray(kFetuses);
          const StreamBuilder::Label record = at.measurements(1, 2, 3, 4);
          for (int i = 1; i < kFetuses; ++i) at.reference(record);
          at.end();
        }}.putInto(file);
    for (int i = 0; i < kCount; ++i) {
      if (wholeExaminations) {
        file.reference(examination);
      } else {
        ExaminationParts{.note = nil(),
                         .examDate = nil(),
                         .measurements = [&](StreamBuilder& at) { at.reference(shared); }}
            .putInto(file);
      }
    }
    file.end();
  };
  const Bytes bytes = parts.bytes();
  const auto refusal = refusalOf(bytes);
  ASSERT_TRUE(refusal) << kCount << " copies of " << kFetuses << " fetuses from a file of " << bytes.size();
  EXPECT_LT(refusal->offset(), bytes.size() / 2);
}

INSTANTIATE_TEST_SUITE_P(byArrayOrByExamination, AFileThatRepeatsManyMeasurements, testing::Bool());

}  // namespace
}  // namespace nascor::model
