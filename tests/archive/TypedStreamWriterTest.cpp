// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypedStreamWriter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "Bytes.h"

namespace nascor::archive {
namespace {

constexpr ClassDescription kRoot{"NSObject", 0};
constexpr ClassDescription kString{"NSString", 1, &kRoot};
constexpr ClassDescription kArray{"NSArray", 0, &kRoot};
constexpr ClassDescription kMutableArray{"NSMutableArray", 0, &kArray};
constexpr ClassDescription kDate{"NSDate", 0, &kRoot};

/// What a writer makes of `action`, without the header.
template <class Action>
Bytes written(Action action) {
  TypedStreamWriter writer;
  action(writer);
  Bytes whole = std::move(writer).finish();
  const auto header = static_cast<std::ptrdiff_t>(bytes(kLittle).size());
  EXPECT_EQ(Bytes(whole.begin(), whole.begin() + header), bytes(kLittle));
  return {whole.begin() + header, whole.end()};
}

// ---- Integers and reals

struct IntegerCase {
  char type;
  std::int64_t value;
  const char* spelling;
};
class WritingAnInteger : public testing::TestWithParam<IntegerCase> {};

TEST_P(WritingAnInteger, takesTheShortestForm) {
  const std::string types(1, GetParam().type);
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              writer.beginGroup(types);
              writer.writeInteger(GetParam().value);
            }),
            bytes("84 01 '" + types + "' " + GetParam().spelling));
}

INSTANTIATE_TEST_SUITE_P(
    onBothSidesOfEveryBound, WritingAnInteger,
    testing::Values(IntegerCase{'i', 0, "00"}, IntegerCase{'i', 127, "7f"}, IntegerCase{'i', 128, "81 80 00"},
                    IntegerCase{'i', 752, "81 f0 02"}, IntegerCase{'i', 32767, "81 ff 7f"},
                    IntegerCase{'i', 32768, "82 00 80 00 00"}, IntegerCase{'i', 65535, "82 ff ff 00 00"},
                    IntegerCase{'i', 2147483647, "82 ff ff ff 7f"},
                    IntegerCase{'q', 2147483648LL, "87 00 00 00 80 00 00 00 00"},
                    IntegerCase{'q', std::numeric_limits<std::int64_t>::max(), "87 ff ff ff ff ff ff ff 7f"},
                    IntegerCase{'i', -1, "ff"}, IntegerCase{'i', -110, "92"},
                    IntegerCase{'i', -111, "81 91 ff"}, IntegerCase{'i', -128, "81 80 ff"},
                    IntegerCase{'i', -129, "81 7f ff"}, IntegerCase{'i', -32768, "81 00 80"},
                    IntegerCase{'i', -32769, "82 ff 7f ff ff"},
                    IntegerCase{'i', -2147483648LL, "82 00 00 00 80"},
                    IntegerCase{'q', -2147483649LL, "87 ff ff ff 7f ff ff ff ff"},
                    IntegerCase{'q', std::numeric_limits<std::int64_t>::min(),
                                "87 00 00 00 00 00 00 00 80"}));

INSTANTIATE_TEST_SUITE_P(
    ofOtherTypes, WritingAnInteger,
    testing::Values(IntegerCase{'c', -124, "84"}, IntegerCase{'C', 132, "84"}, IntegerCase{'B', 1, "01"},
                    IntegerCase{'s', 200, "81 c8 00"}, IntegerCase{'S', 65535, "82 ff ff 00 00"},
                    IntegerCase{'S', -1, "ff"}, IntegerCase{'I', 1048576, "82 00 00 10 00"},
                    IntegerCase{'l', 5, "05"}, IntegerCase{'L', 5, "05"}, IntegerCase{'Q', 600, "81 58 02"}));

struct RealCase {
  char type;
  double value;
  const char* spelling;
};
class WritingAReal : public testing::TestWithParam<RealCase> {};

TEST_P(WritingAReal, isAnIntegerWhenWholeAndOf32Bits) {
  const std::string types(1, GetParam().type);
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              writer.beginGroup(types);
              writer.writeReal(GetParam().value);
            }),
            bytes("84 01 '" + types + "' " + GetParam().spelling));
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    floats, WritingAReal,
    testing::Values(
        RealCase{'f', 1.0, "01"}, RealCase{'f', 0.0, "00"}, RealCase{'f', -0.0, "00"},
        RealCase{'f', -3.0, "fd"}, RealCase{'f', 40.0, "28"}, RealCase{'f', 244.0, "81 f4 00"},
        RealCase{'f', 65535.0, "82 ff ff 00 00"}, RealCase{'f', 1e7, "82 80 96 98 00"},
        RealCase{'f', 2147483520.0, "82 80 ff ff 7f"}, RealCase{'f', 2147483648.0, "83 00 00 00 4f"},
        RealCase{'f', -2147483648.0, "82 00 00 00 80"}, RealCase{'f', 0.5647059082984924, "83 91 90 10 3f"},
        RealCase{'f', 25.299999237060547, "83 66 66 ca 41"},
        RealCase{'f', 3.402820018375656e+38, "83 ee ff 7f 7f"},
        RealCase{'f', 3.4028234663852886e+38, "83 ff ff 7f 7f"}, RealCase{'f', kInfinity, "83 00 00 80 7f"},
        RealCase{'f', -kInfinity, "83 00 00 80 ff"}, RealCase{'f', kNaN, "83 00 00 c0 7f"}));

INSTANTIATE_TEST_SUITE_P(doubles, WritingAReal,
                         testing::Values(RealCase{'d', 21692800.0, "82 80 01 4b 01"},
                                         RealCase{'d', -5.0, "fb"}, RealCase{'d', 255.0, "81 ff 00"},
                                         RealCase{'d', 700000000.523, "83 aa f1 42 80 93 dc c4 41"},
                                         RealCase{'d', 100.5, "83 00 00 00 00 00 20 59 40"},
                                         RealCase{'d', 2147483647.0, "82 ff ff ff 7f"},
                                         RealCase{'d', 2147483648.0, "83 00 00 00 00 00 00 e0 41"},
                                         RealCase{'d', -2147483648.0, "82 00 00 00 80"},
                                         RealCase{'d', -2147483649.0, "83 00 00 20 00 00 00 e0 c1"},
                                         RealCase{'d', -0.0, "00"},
                                         RealCase{'d', -kInfinity, "83 00 00 00 00 00 00 f0 ff"},
                                         RealCase{'d', kNaN, "83 00 00 00 00 00 00 f8 7f"}));

// ---- Strings, groups, labels

TEST(WritingStrings, countsBytesAndPutsThemDownAsTheyAre) {
  EXPECT_EQ(written([](TypedStreamWriter& writer) {
              writer.putString("");
              writer.putString("\xc3\xa4");
              writer.putString(std::string(128, 'x'));
              writer.putString(std::string(32768, 'y'));
              writer.beginGroup("+");
              writer.writeNil();
            }),
            bytes("84 01 '+' 00 92 02 c3 a4 92 81 80 00") + repeated(128, "'x'") +
                bytes("92 82 00 80 00 00") + repeated(32768, "'y'") + bytes("92 85"));
}

TEST(WritingStrings, writesASharedOneOnceAndItsNumberFromThenOn) {
  EXPECT_EQ(written([](TypedStreamWriter& writer) {
              writer.beginGroup(":%::");
              writer.writeString("mark:");
              writer.writeString("mark:");
              writer.writeString(":%::");
              writer.writeNil();
            }),
            bytes("84 04 ':%::' 84 05 'mark:' 93 92 85"));
}

TEST(WritingStrings, usesTwoBytesFromTheStringNumber238On) {
  EXPECT_EQ(written([](TypedStreamWriter& writer) {
              writer.beginGroup(":");
              writer.writeString("1");
              for (int i = 2; i <= 239; ++i) {
                writer.beginGroup(":");
                writer.writeString(std::to_string(i));
              }
              for (const int i : {109, 110, 237, 238, 239}) {
                writer.beginGroup(":");
                writer.writeString(std::to_string(i));
              }
            }),
            [] {
              Bytes expected = bytes("84 01 ':' 84 01 '1'");
              for (int i = 2; i <= 239; ++i) {
                const std::string text = std::to_string(i);
                expected = expected + bytes("92 84 0" + std::to_string(text.size()) + "'" + text + "'");
              }
              return expected + bytes("92 ff 92 00 92 7f 92 81 80 00 92 81 81 00");
            }());
}

TEST(WritingObjects, usesTwoBytesFromTheLabel238On) {
  const ClassDescription cls{"A", 0};
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              // Label 0, then the class, then labels 2 to 240.
              for (int i = 0; i < 240; ++i) {
                EXPECT_EQ(writer.putObject(cls), i == 0 ? 0U : static_cast<Label>(i) + 1);
                writer.endObject();
              }
              for (const Label label : {109U, 110U, 237U, 238U, 240U}) writer.putReference(label);
            }),
            bytes("84 01 '@' 84 84 84 01 'A' 00 85 86") + repeated(239, "92 84 93 86") +
                bytes("92 ff 92 00 92 7f 92 81 80 00 92 81 82 00"));
}

TEST(WritingObjects, numbersAnObjectBeforeItsClassAndAClassBeforeItsSuperclass) {
  EXPECT_EQ(written([](TypedStreamWriter& writer) {
              EXPECT_EQ(writer.putObject(kMutableArray), 0U);
              EXPECT_EQ(writer.putObject(kArray), 4U);
              writer.endObject();
              EXPECT_EQ(writer.putObject(kString), 5U);
              writer.endObject();
              EXPECT_EQ(writer.putObject(kRoot), 7U);
              writer.endObject();
              writer.putReference(0);
              writer.putNil();
              writer.endObject();
            }),
            bytes("84 01 '@' 84 84 84 0e 'NSMutableArray' 00 84 84 07 'NSArray' 00 84 84 08 'NSObject' 00 85"
                  "92 84 94 86"
                  "92 84 84 84 08 'NSString' 01 95 86"
                  "92 84 95 86"
                  "92 92 92 85 86"));
}

TEST(WritingObjects, keepsAClassApartFromTheOneItComesFrom) {
  // The root is known already where the second class is written first.
  const ClassDescription second{"B", 0, &kRoot};
  WrittenClass known{&second};
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              writer.putObject(kRoot);
              writer.endObject();
              for (const Label label : {2U, 4U, 5U, 6U}) {
                EXPECT_EQ(writer.putObject(known), label);
                writer.endObject();
              }
              for (const Label label : {0U, 2U, 5U, 6U}) writer.putReference(label);
            }),
            bytes("84 01 '@' 84 84 84 08 'NSObject' 00 85 86"
                  "92 84 84 84 01 'B' 00 93 86"
                  "92 84 95 86 92 84 95 86 92 84 95 86"
                  "92 92 92 94 92 97 92 98"));
}

TEST(WritingObjects, writesClassesAsValues) {
  const ClassDescription cls{"A", 224};
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              writer.beginGroup("###");
              writer.writeClass(cls);
              writer.writeClass(cls);
              writer.writeNil();
            }),
            bytes("84 03 '###' 84 84 01 'A' 81 e0 00 85 92 85"));
}

TEST(WritingCStrings, numbersThemWithTheObjects) {
  const ClassDescription value{"NSValue", 0, nullptr};
  const ClassDescription number{"NSNumber", 0, &value};
  EXPECT_EQ(written([&](TypedStreamWriter& writer) {
              writer.putObject(number);
              writer.beginGroup("*");
              EXPECT_EQ(writer.writeCString("q"), 3U);
              writer.beginGroup("q");
              writer.writeInteger(2);
              writer.endObject();
              writer.beginGroup("**");
              writer.writeReference(3);
              writer.writeNil();
            }),
            bytes("84 01 '@' 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 85"
                  "84 01 '*' 84 84 01 'q' 96 02 86"
                  "84 02 '**' 95 85"));
}

TEST(WritingArraysAndStructures, putsTheirValuesDownOneAfterTheOther) {
  EXPECT_EQ(written([](TypedStreamWriter& writer) {
              writer.beginGroup("[3c]{P=f[2i]}");
              writer.writeBytes(bytes("de ad 00"));
              writer.beginStructure();
              writer.writeReal(0.5);
              writer.beginArray();
              writer.writeInteger(1);
              writer.writeInteger(752);
              writer.endArray();
              writer.endStructure();
            }),
            bytes("84 0d '[3c]{P=f[2i]}' de ad 00 83 00 00 00 3f 01 81 f0 02"));
}

TEST(WritingADocument, givesAFreshPatientByteForByte) {
  const ClassDescription patientClass{"PatientRecord", 7, &kRoot};
  const ClassDescription examinationClass{"NCRecord", 1, &kRoot};
  const ClassDescription measurementsClass{"MeasurementsRecord", 0, &kRoot};

  TypedStreamWriter writer;
  writer.putObject(patientClass);
  const Label emptyText = writer.putObject(kString);
  writer.putString("");
  writer.endObject();
  writer.putObject(kString);
  writer.putString("Deprecated");
  writer.endObject();
  writer.putNil();
  writer.putObject(kMutableArray);
  writer.putInt(1);
  writer.putObject(examinationClass);
  writer.putReference(emptyText);
  writer.putObject(kDate);
  writer.putDouble(221234567.890625);
  writer.endObject();
  writer.putObject(kMutableArray);
  writer.putInt(1);
  writer.putObject(measurementsClass);
  for (int i = 0; i < 4; ++i) writer.putFloat(0.0F);
  writer.endObject();
  writer.endObject();
  writer.endObject();
  writer.endObject();
  writer.putInt(0);
  writer.putInt(0);
  writer.putInt(1);
  writer.putFloat(40.0F);
  writer.putInt(0);
  writer.putInt(0);
  writer.endObject();
  EXPECT_EQ(std::move(writer).finish(), freshPatient());
}

// The stream that docs/file-format.md goes through byte by byte.
TEST(WritingADocument, givesTheStreamOfTheManual) {
  TypedStreamWriter writer;
  writer.putObject(kArray);
  writer.putInt(2);
  const Label text = writer.putObject(kString);
  writer.putString("AB");
  writer.endObject();
  writer.putReference(text);
  writer.endObject();
  EXPECT_EQ(std::move(writer).finish(),
            little("84 01 '@' 84 84 84 07 'NSArray' 00 84 84 08 'NSObject' 00 85 84 01 'i' 02"
                   "92 84 84 84 08 'NSString' 01 94 84 01 '+' 02 'AB' 86 92 95 86"));
}

TEST(WritingADocument, canStateAnotherSystemVersion) {
  TypedStreamWriter writer(7);
  EXPECT_EQ(std::move(writer).finish(), bytes("04 0b 'streamtyped' 07"));
}

// ---- Mistakes of the caller

TEST(CallingTheWriterWrongly, isRefused) {
  TypedStreamWriter writer;
  EXPECT_THROW(writer.writeInteger(1), std::logic_error);  // no group
  EXPECT_THROW(writer.beginGroup("?"), std::logic_error);  // no type
  EXPECT_THROW(writer.endObject(), std::logic_error);      // none open
  writer.beginGroup("fiC[2c]@");
  EXPECT_THROW(writer.beginGroup("i"), std::logic_error);  // values left
  EXPECT_THROW(writer.putInt(1), std::logic_error);
  EXPECT_THROW(writer.putFloat(1), std::logic_error);
  EXPECT_THROW(writer.putString(""), std::logic_error);
  EXPECT_THROW(writer.putNil(), std::logic_error);
  EXPECT_THROW(writer.writeInteger(1), std::logic_error);  // a real is due
  EXPECT_THROW(writer.writeReal(0.1), std::logic_error);   // not a float
  EXPECT_THROW(writer.writeReal(1e300), std::logic_error);
  EXPECT_THROW(writer.writeReal(-1e300), std::logic_error);
  writer.writeReal(0.5);
  EXPECT_THROW(writer.writeInteger(2147483648LL), std::logic_error);
  EXPECT_THROW(writer.writeInteger(-2147483649LL), std::logic_error);
  writer.writeInteger(1);
  EXPECT_THROW(writer.writeInteger(256), std::logic_error);
  EXPECT_THROW(writer.writeInteger(-1), std::logic_error);
  writer.writeInteger(255);
  EXPECT_THROW(writer.writeBytes(bytes("01")), std::logic_error);  // too short
  writer.writeBytes(bytes("01 02"));
  EXPECT_THROW(writer.writeReference(0), std::logic_error);  // nothing written yet
  EXPECT_THROW(std::move(writer).finish(), std::logic_error);
}

TEST(CallingTheWriterWrongly, isRefusedAtTheEndToo) {
  const auto refusal = [](const std::function<void(TypedStreamWriter&)>& put) -> std::string {
    TypedStreamWriter writer;
    put(writer);
    try {
      std::move(writer).finish();
    } catch (const std::logic_error& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal([](TypedStreamWriter& writer) { writer.beginGroup("i"); }),
            "values of the open group are left");
  EXPECT_EQ(refusal([](TypedStreamWriter& writer) { writer.putObject(kRoot); }), "an object is still open");
}

TEST(CallingTheWriterWrongly, includesReferencesToAnotherKind) {
  TypedStreamWriter writer;
  writer.putObject(kRoot);
  EXPECT_THROW(writer.putReference(1), std::logic_error);  // the class
  writer.writeReference(0);
  writer.beginGroup("[2i]");
  EXPECT_THROW(writer.writeBytes(bytes("01 02")), std::logic_error);  // no bytes
  writer.beginArray();
  EXPECT_THROW(writer.endArray(), std::logic_error);
  EXPECT_THROW(writer.endStructure(), std::logic_error);
  EXPECT_THROW(writer.endObject(), std::logic_error);
  writer.writeInteger(1);
  writer.writeInteger(2);
  writer.endArray();
  EXPECT_THROW(std::move(writer).finish(), std::logic_error);  // the object is open
}

}  // namespace
}  // namespace nascor::archive
