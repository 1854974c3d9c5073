// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TypedStreamReader.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "Bytes.h"
#include "archive/TypedStreamWriter.h"

namespace nascor::archive {
namespace {

/// The bytes of one value of one type, behind a header and a type string.
Bytes valueStream(std::string_view header, char type, std::string_view value) {
  return bytes(std::string(header) + "84 01 '" + type + "'" + std::string(value));
}

// ---- Integers

struct IntegerCase {
  const char* name;
  std::string_view header;
  char type;
  const char* spelling;
  std::int64_t value;
};
class ReadingAnInteger : public testing::TestWithParam<IntegerCase> {};

TEST_P(ReadingAnInteger, givesTheValueAndStopsBehindIt) {
  const auto& [name, header, type, spelling, value] = GetParam();
  const Bytes stream = valueStream(header, type, spelling);
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(reader.readInteger(), value);
  EXPECT_EQ(reader.bytesLeft(), 0U);
  EXPECT_EQ(reader.offset(), stream.size());
  EXPECT_EQ(reader.due(), nullptr);
}

constexpr std::int64_t kMin64 = std::numeric_limits<std::int64_t>::min();

INSTANTIATE_TEST_SUITE_P(
    allForms, ReadingAnInteger,
    testing::Values(IntegerCase{"zero", kLittle, 'i', "00", 0},
                    IntegerCase{"largestByte", kLittle, 'i', "7f", 127},
                    IntegerCase{"minusOne", kLittle, 'i', "ff", -1},
                    IntegerCase{"smallestByte", kLittle, 'i', "92", -110},
                    IntegerCase{"firstOfTheTags", kLittle, 'i', "81 91 ff", -111},
                    IntegerCase{"lastOfTheTags", kLittle, 'i', "81 80 ff", -128},
                    IntegerCase{"sixteenBits", kLittle, 'i', "81 f0 02", 752},
                    IntegerCase{"sixteenBitsBig", kBig, 'i', "81 00 b2", 178},
                    IntegerCase{"sixteenBitsLowest", kLittle, 'i', "81 00 80", -32768},
                    IntegerCase{"thirtyTwoBits", kLittle, 'i', "82 ff ff 00 00", 65535},
                    IntegerCase{"thirtyTwoBitsNegative", kLittle, 'i', "82 40 fe 41 84", -2076049856},
                    IntegerCase{"thirtyTwoBitsBig", kBig, 'i', "82 7f ff ff ff", 2147483647},
                    IntegerCase{"thirtyTwoBitsLowest", kBig, 'i', "82 80 00 00 00", -2147483648LL},
                    IntegerCase{"sixtyFourBits", kLittle, 'q', "87 00 00 00 80 00 00 00 00", 2147483648LL},
                    IntegerCase{"sixtyFourBitsBig", kBig, 'q', "87 00 00 00 01 00 00 00 02", 4294967298LL},
                    IntegerCase{"sixtyFourBitsLowest", kBig, 'q', "87 80 00 00 00 00 00 00 00", kMin64}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(longerThanNeeded, ReadingAnInteger,
                         testing::Values(IntegerCase{"inTwoBytes", kLittle, 'i', "81 05 00", 5},
                                         IntegerCase{"inFourBytes", kBig, 'i', "82 ff ff ff fe", -2},
                                         IntegerCase{"inEightBytes", kLittle, 'i',
                                                     "87 07 00 00 00 00 00 00 00", 7}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(otherTypes, ReadingAnInteger,
                         testing::Values(IntegerCase{"byte", kLittle, 'c', "84", -124},
                                         IntegerCase{"unsignedByte", kLittle, 'C', "84", 132},
                                         IntegerCase{"truth", kLittle, 'B', "01", 1},
                                         IntegerCase{"shortHighest", kLittle, 's', "81 ff 7f", 32767},
                                         IntegerCase{"unsignedShort", kLittle, 'S', "82 ff ff 00 00", 65535},
                                         IntegerCase{"unsignedShortAsNegative", kLittle, 'S', "ff", -1},
                                         IntegerCase{"unsignedInt", kLittle, 'I',
                                                     "87 ff ff ff ff 00 00 00 00", 4294967295LL},
                                         IntegerCase{"unsignedIntAsNegative", kLittle, 'I', "ff", -1},
                                         IntegerCase{"longInteger", kLittle, 'l', "81 f4 00", 244},
                                         IntegerCase{"unsignedLong", kLittle, 'L', "01", 1},
                                         IntegerCase{"unsigned64", kBig, 'Q', "81 02 58", 600}),
                         [](const auto& row) { return std::string(row.param.name); });

struct TooLargeCase {
  const char* name;
  char type;
  const char* spelling;
  const char* message;
};
class ReadingAnIntegerOutOfRange : public testing::TestWithParam<TooLargeCase> {};

TEST_P(ReadingAnIntegerOutOfRange, isRefused) {
  const Bytes stream = valueStream(kLittle, GetParam().type, GetParam().spelling);
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(refusal([&] { reader.readInteger(); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    bothSides, ReadingAnIntegerOutOfRange,
    testing::Values(
        TooLargeCase{"aboveInt", 'i', "87 00 00 00 80 00 00 00 00",
                     "at byte 19: expected a 32-bit integer (type \"i\"), but 2147483648 does not fit that"},
        TooLargeCase{"belowInt", 'i', "87 ff ff ff 7f ff ff ff ff",
                     "at byte 19: expected a 32-bit integer (type \"i\"), but -2147483649 does not fit that"},
        TooLargeCase{"aboveShort", 's', "82 00 80 00 00",
                     "at byte 19: expected a 16-bit integer (type \"s\"), but 32768 does not fit that"},
        TooLargeCase{
            "aboveUnsignedShort", 'S', "82 00 00 01 00",
            "at byte 19: expected an unsigned 16-bit integer (type \"S\"), but 65536 does not fit that"},
        TooLargeCase{"aboveUnsignedInt", 'I', "87 00 00 00 00 01 00 00 00",
                     "at byte 19: expected an unsigned 32-bit integer (type \"I\"), but 4294967296 does not "
                     "fit that"}),
    [](const auto& row) { return std::string(row.param.name); });

// ---- Reals

struct RealCase {
  const char* name;
  std::string_view header;
  char type;
  const char* spelling;
  double value;
};
class ReadingAReal : public testing::TestWithParam<RealCase> {};

TEST_P(ReadingAReal, givesTheValueAndStopsBehindIt) {
  const auto& [name, header, type, spelling, value] = GetParam();
  const Bytes stream = valueStream(header, type, spelling);
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(std::bit_cast<std::uint64_t>(reader.readReal()), std::bit_cast<std::uint64_t>(value));
  EXPECT_EQ(reader.bytesLeft(), 0U);
  EXPECT_EQ(reader.due(), nullptr);
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    bothForms, ReadingAReal,
    testing::Values(RealCase{"one", kLittle, 'f', "01", 1.0}, RealCase{"zero", kLittle, 'f', "00", 0.0},
                    RealCase{"minusThree", kLittle, 'f', "fd", -3.0},
                    RealCase{"twoByteInteger", kLittle, 'f', "81 f4 00", 244.0},
                    RealCase{"fourByteInteger", kLittle, 'f', "82 80 96 98 00", 1e7},
                    RealCase{"fourByteIntegerBig", kBig, 'f', "82 00 98 96 80", 1e7},
                    RealCase{"integerThatSinglePrecisionRounds", kLittle, 'f', "82 01 00 00 01", 16777216.0},
                    RealCase{"integerThatDoublePrecisionKeeps", kLittle, 'd', "82 01 00 00 01", 16777217.0},
                    RealCase{"fraction", kLittle, 'f', "83 91 90 10 3f", 0.5647059082984924},
                    RealCase{"fractionBig", kBig, 'f', "83 3f 2a aa ab", 0.6666666865348816},
                    RealCase{"wholeBeyondIntegers", kLittle, 'f', "83 ee ff 7f 7f", 3.402820018375656e+38},
                    RealCase{"wholeBeyondIntegersBig", kBig, 'f', "83 7f 7f ff ee", 3.402820018375656e+38},
                    RealCase{"doubleAsInteger", kLittle, 'd', "82 80 01 4b 01", 21692800.0},
                    RealCase{"doubleAsByte", kLittle, 'd', "fb", -5.0},
                    RealCase{"doubleAsIntegerBig", kBig, 'd', "81 00 ff", 255.0},
                    RealCase{"doubleFraction", kLittle, 'd', "83 aa f1 42 80 93 dc c4 41", 700000000.523},
                    RealCase{"doubleFractionBig", kBig, 'd', "83 3f b9 99 99 99 99 99 9a", 0.1},
                    RealCase{"infinity", kLittle, 'f', "83 00 00 80 7f", kInfinity},
                    RealCase{"wholeInTheLongForm", kBig, 'd', "83 40 59 20 00 00 00 00 00", 100.5},
                    RealCase{"negativeZero", kBig, 'd', "83 80 00 00 00 00 00 00 00", -0.0}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ReadingAReal, keepsNotANumber) {
  const Bytes stream = little("84 01 'f' 83 00 00 c0 7f");
  TypedStreamReader reader(stream);
  EXPECT_TRUE(std::isnan(reader.takeFloat()));
}

// ---- Strings

TEST(ReadingAString, givesItsBytesOutOfTheStreamItself) {
  const Bytes stream = little("84 01 '+' 05 'Hello'");
  TypedStreamReader reader(stream);
  const auto text = reader.takeString();
  ASSERT_TRUE(text);
  EXPECT_EQ(*text, "Hello");
  EXPECT_EQ(static_cast<const void*>(text->data()), &stream[20]);
}

TEST(ReadingAString, tellsNilFromEmpty) {
  const Bytes stream = little("84 02 '++' 85 00");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(reader.readString(), std::nullopt);
  EXPECT_EQ(reader.readString(), "");
}

TEST(ReadingAString, takesAnyBytesAndLongLengths) {
  const Bytes stream = little("84 01 '+' 81 91 00") + repeated(145, "00") + bytes("92 82 02 00 00 00 ff fe");
  TypedStreamReader reader(stream);
  EXPECT_EQ(reader.takeString(), std::string(145, '\0'));
  EXPECT_EQ(reader.takeString(), "\xff\xfe");
}

TEST(ReadingAString, findsSharedOnesByTheirNumber) {
  // The type string is number 0, "mark:" number 1.
  const Bytes stream = little("84 04 '::%:' 84 05 'mark:' 93 92 85");
  TypedStreamReader reader(stream);
  EXPECT_EQ(reader.beginGroup(), "::%:");
  EXPECT_EQ(reader.readString(), "mark:");
  EXPECT_EQ(reader.readString(), "mark:");
  EXPECT_EQ(reader.readString(), "::%:");
  EXPECT_EQ(reader.readString(), std::nullopt);
}

TEST(ReadingACString, countsItWithTheObjectsAndItsTextWithTheStrings) {
  // What a list of numbers holds: object 0, classes 1 and 2, C string 3 with text "q", which then serves as a
  // type.
  const Bytes stream = little(
      "84 01 '@' 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 85"
      "84 01 '*' 84 84 01 'q' 96 02 86"
      "92 84 93 95 95 96 03 86"
      "95 85");
  TypedStreamReader reader(stream);
  ASSERT_TRUE(reader.takeObject().isFresh());
  reader.expectGroup("*");
  const CStringValue first = reader.readCString();
  EXPECT_EQ(first.label, 3U);
  EXPECT_TRUE(first.fresh);
  EXPECT_EQ(first.text, "q");
  reader.expectGroup("q");
  EXPECT_EQ(reader.readInteger(), 2);
  reader.endObject();

  const ObjectValue second = reader.takeObject();
  EXPECT_EQ(second.label, 4U);
  reader.expectGroup("*");
  const CStringValue again = reader.readCString();
  EXPECT_EQ(again.label, 3U);
  EXPECT_FALSE(again.fresh);
  EXPECT_EQ(again.text, "q");
  reader.expectGroup("q");
  EXPECT_EQ(reader.readInteger(), 3);
  reader.endObject();

  reader.expectGroup("*");
  EXPECT_EQ(reader.readCString().label, std::nullopt);
}

// ---- Objects and classes

TEST(ReadingObjects, walksAFreshPatient) {
  const Bytes stream = freshPatient();
  ASSERT_EQ(stream.size(), 224U);
  TypedStreamReader reader(stream);
  EXPECT_EQ(reader.byteOrder(), ByteOrder::little);
  EXPECT_EQ(reader.systemVersion(), 1000);
  EXPECT_EQ(reader.versionForClassName("PatientRecord"), std::nullopt);

  const ObjectValue patient = reader.takeObject();
  ASSERT_TRUE(patient.isFresh());
  EXPECT_EQ(patient.label, 0U);
  EXPECT_EQ(patient.offset, 19U);
  EXPECT_FALSE(patient.complete);
  EXPECT_EQ(reader.due(), nullptr);
  EXPECT_EQ(reader.classNameOf(patient), "PatientRecord");
  EXPECT_EQ(patient.cls.label, 1U);
  EXPECT_EQ(patient.cls.newRecords, 2U);
  EXPECT_EQ(patient.cls.offset, 20U);
  EXPECT_EQ(reader.versionForClassName("PatientRecord"), 7);
  EXPECT_EQ(reader.versionForClassName("NSObject"), 0);
  EXPECT_EQ(reader.superclass(1), 2U);
  EXPECT_EQ(reader.superclass(2), std::nullopt);

  const ObjectValue id = reader.takeObject();
  EXPECT_EQ(reader.describe(id), "object 3 (NSString)");
  EXPECT_EQ(reader.takeString(), "");
  reader.endObject();

  const ObjectValue deprecated = reader.takeObject();
  EXPECT_EQ(deprecated.cls.label, id.cls.label);
  EXPECT_EQ(deprecated.cls.newRecords, 0U);
  EXPECT_EQ(reader.takeString(), "Deprecated");
  reader.endObject();

  const ObjectValue edd = reader.takeObject();
  EXPECT_TRUE(edd.isNil());
  EXPECT_EQ(reader.describe(edd), "nil");

  const ObjectValue examinations = reader.takeObject();
  EXPECT_EQ(reader.classNameOf(examinations), "NSMutableArray");
  EXPECT_EQ(reader.className(*reader.superclass(*examinations.cls.label)), "NSArray");
  EXPECT_EQ(reader.takeInt(), 1);
  const ObjectValue examination = reader.takeObject();
  EXPECT_EQ(reader.classNameOf(examination), "NCRecord");
  EXPECT_EQ(reader.classVersion(*examination.cls.label), 1);

  const ObjectValue note = reader.takeObject();
  ASSERT_TRUE(note.isReference());
  EXPECT_EQ(note.label, id.label);
  EXPECT_TRUE(note.complete);
  EXPECT_EQ(reader.classNameOf(note), "NSString");
  EXPECT_EQ(reader.classOf(note.label), 4U);

  EXPECT_EQ(reader.classNameOf(reader.takeObject()), "NSDate");
  EXPECT_EQ(reader.takeDouble(), 221234567.890625);
  reader.endObject();
  reader.takeObject();
  EXPECT_EQ(reader.takeInt(), 1);
  EXPECT_EQ(reader.takeObject().label, 14U);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(reader.takeFloat(), 0.0);
  EXPECT_FALSE(reader.groupFollows());
  reader.endObject();
  EXPECT_FALSE(reader.groupFollows());
  reader.endObject();
  reader.endObject();
  reader.endObject();
  EXPECT_TRUE(reader.groupFollows());
  EXPECT_EQ(reader.takeInt(), 0);
  EXPECT_EQ(reader.takeInt(), 0);
  EXPECT_EQ(reader.takeInt(), 1);
  EXPECT_EQ(reader.takeFloat(), 40.0);
  EXPECT_EQ(reader.takeInt(), 0);
  EXPECT_EQ(reader.takeInt(), 0);
  reader.endObject();
  EXPECT_FALSE(reader.groupFollows());
  EXPECT_EQ(reader.bytesLeft(), 0U);
}

TEST(ReadingObjects, tellsAnUnfinishedObjectFromACompleteOne) {
  // Object 0 holds itself; behind it stands a reference to it.
  const Bytes stream = little("84 01 '@' 84 84 84 01 'A' 00 85 92 92 86 92 92");
  TypedStreamReader reader(stream);
  reader.takeObject();
  const ObjectValue inside = reader.takeObject();
  EXPECT_TRUE(inside.isReference());
  EXPECT_FALSE(inside.complete);
  reader.endObject();
  EXPECT_TRUE(reader.takeObject().complete);
}

TEST(ReadingObjects, readsClassValuesWithTheirChains) {
  // Classes 0 < 1, then a reference, then class 2 below class 1, then nil.
  const Bytes stream =
      little("84 04 '####' 84 84 01 'B' 05 84 84 01 'A' 81 e0 00 85 92 84 84 01 'C' ff 93 85");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  const ClassValue first = reader.readClass();
  EXPECT_EQ(first.label, 0U);
  EXPECT_EQ(first.newRecords, 2U);
  EXPECT_EQ(reader.classVersion(1), 224);
  const ClassValue again = reader.readClass();
  EXPECT_EQ(again.label, 0U);
  EXPECT_EQ(again.newRecords, 0U);
  const ClassValue third = reader.readClass();
  EXPECT_EQ(third.label, 2U);
  EXPECT_EQ(third.newRecords, 1U);
  EXPECT_EQ(reader.superclass(2), 1U);
  EXPECT_EQ(reader.classVersion(2), -1);
  EXPECT_EQ(reader.readClass().label, std::nullopt);
}

TEST(ReadingObjects, takesTheVersionOfTheFirstRecordOfAName) {
  const Bytes stream = little("84 02 '##' 84 84 01 'A' 03 85 84 93 09 85");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  reader.readClass();
  reader.readClass();
  EXPECT_EQ(reader.versionForClassName("A"), 3);
  EXPECT_EQ(reader.classVersion(1), 9);
}

TEST(ReadingObjects, findsNumbersThatTakeTwoBytes) {
  // 240 objects of one class: labels 0, 1 (the class), 2 ... 240. Label 237 is the last one of a single byte.
  const Bytes stream = little("84 01 '@' 84 84 84 01 'A' 00 85 86") + repeated(239, "92 84 93 86") +
                       bytes("92 ff 92 00 92 7f 92 81 80 00 92 81 82 00");
  TypedStreamReader reader(stream);
  for (int i = 0; i < 240; ++i) {
    EXPECT_TRUE(reader.takeObject().isFresh());
    reader.endObject();
  }
  for (const Label label : {109U, 110U, 237U, 238U, 240U}) EXPECT_EQ(reader.takeObject().label, label);
}

TEST(ReadingObjects, readsBigEndianOnes) {
  const Bytes stream = big("84 01 '@' 84 84 84 06 'NSDate' 00 85 84 01 'd' 83 41 aa 5f 8b 0f c8 00 00 86");
  TypedStreamReader reader(stream);
  EXPECT_EQ(reader.byteOrder(), ByteOrder::big);
  EXPECT_EQ(reader.systemVersion(), 1000);
  reader.takeObject();
  EXPECT_EQ(reader.takeDouble(), 221234567.890625);
  reader.endObject();
}

// ---- Groups, arrays, structures

TEST(ReadingGroups, takesSeveralValuesOfOneTypeString) {
  const Bytes stream = little("84 03 'ffi' 83 66 66 ca 41 28 05");
  TypedStreamReader reader(stream);
  reader.expectGroup("ffi");
  EXPECT_EQ(reader.readReal(), 25.299999237060547);
  EXPECT_EQ(reader.readReal(), 40.0);
  EXPECT_EQ(reader.readInteger(), 5);
}

TEST(ReadingGroups, takesSeveralAtTheTopUntilTheEnd) {
  const Bytes stream = little("84 01 'i' 01 92 02 84 00");
  TypedStreamReader reader(stream);
  EXPECT_TRUE(reader.groupFollows());
  EXPECT_EQ(reader.takeInt(), 1);
  EXPECT_EQ(reader.takeInt(), 2);
  EXPECT_EQ(reader.beginGroup(), "");
  EXPECT_FALSE(reader.groupFollows());
}

TEST(ReadingGroups, saysWhereItStoppedWhenMoreFollows) {
  const Bytes stream = little("84 01 '@' 84 84 84 01 'A' 00 85 86 00 01 02");
  TypedStreamReader reader(stream);
  reader.takeObject();
  reader.endObject();
  EXPECT_EQ(reader.offset(), 27U);
  EXPECT_EQ(reader.bytesLeft(), 3U);
  EXPECT_TRUE(reader.groupFollows());
}

TEST(ReadingArrays, givesRawBytesInOnePiece) {
  const Bytes stream = little("84 0f '[6c][2C]{=[0c]}' de ad be ef 00 7f 01 02");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  ASSERT_TRUE(reader.due()->isByteArray());
  const auto first = reader.readBytes();
  EXPECT_EQ(Bytes(first.begin(), first.end()), bytes("de ad be ef 00 7f"));
  EXPECT_EQ(reader.due()->text, "[2C]");
  EXPECT_EQ(reader.readBytes().size(), 2U);
  EXPECT_EQ(reader.beginStructure(), "");
  EXPECT_EQ(reader.readBytes().size(), 0U);
  reader.endStructure();
  EXPECT_EQ(reader.due(), nullptr);
}

TEST(ReadingArrays, givesOtherElementsOneByOne) {
  const Bytes stream = little("84 04 '[3i]' 01 81 f0 02 ff");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_FALSE(reader.due()->isByteArray());
  EXPECT_EQ(reader.beginArray(), 3U);
  EXPECT_EQ(reader.readInteger(), 1);
  EXPECT_EQ(reader.readInteger(), 752);
  EXPECT_THROW(reader.endArray(), std::logic_error);
  EXPECT_EQ(reader.readInteger(), -1);
  EXPECT_EQ(reader.due(), nullptr);
  reader.endArray();
}

TEST(ReadingArrays, canTakeRawBytesOneByOneToo) {
  const Bytes stream = little("84 04 '[2c]' 05 fe");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(reader.beginArray(), 2U);
  EXPECT_EQ(reader.readInteger(), 5);
  EXPECT_EQ(reader.readInteger(), -2);
  reader.endArray();
}

TEST(ReadingStructures, goesThroughTheirMembers) {
  const Bytes stream = little("84 1f '{NSRect={NSPoint=ff}[2{S=@i}]}i' 01 02 85 03 85 04 05");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  EXPECT_EQ(reader.beginStructure(), "NSRect");
  EXPECT_EQ(reader.beginStructure(), "NSPoint");
  EXPECT_EQ(reader.readReal(), 1.0);
  EXPECT_EQ(reader.readReal(), 2.0);
  reader.endStructure();
  EXPECT_EQ(reader.beginArray(), 2U);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(reader.beginStructure(), "S");
    EXPECT_TRUE(reader.beginObject().isNil());
    EXPECT_EQ(reader.readInteger(), 3 + i);
    reader.endStructure();
  }
  reader.endArray();
  reader.endStructure();
  EXPECT_EQ(reader.readInteger(), 5);
}

TEST(ReadingStructures, findsObjectsInsideThem) {
  const Bytes stream = little("84 06 '{S=@i}' 84 84 84 01 'A' 00 85 84 01 'i' 07 86 08");
  TypedStreamReader reader(stream);
  reader.beginGroup();
  reader.beginStructure();
  EXPECT_TRUE(reader.beginObject().isFresh());
  EXPECT_EQ(reader.takeInt(), 7);
  reader.endObject();
  EXPECT_EQ(reader.readInteger(), 8);
  reader.endStructure();
}

// ---- Mistakes of the caller

TEST(CallingTheReaderOutOfOrder, isAMistakeOfTheProgramNotOfTheFile) {
  const Bytes stream = little("84 01 '@' 84 84 84 01 'A' 00 85 84 04 '[2i]' 01 02 93 86");
  TypedStreamReader reader(stream);
  EXPECT_THROW(reader.readInteger(), std::logic_error);
  EXPECT_THROW(reader.endObject(), std::logic_error);
  EXPECT_THROW(reader.endArray(), std::logic_error);
  reader.beginGroup();
  EXPECT_THROW(reader.groupFollows(), std::logic_error);
  EXPECT_THROW(reader.endStructure(), std::logic_error);
  reader.beginObject();
  reader.beginGroup();
  EXPECT_THROW(reader.endObject(), std::logic_error);
  EXPECT_THROW(reader.beginGroup(), std::logic_error);
  EXPECT_THROW(reader.expectGroup("i"), std::logic_error);
}

TEST(ReadingAnotherTypeThanStandsThere, isRefusedByTheStream) {
  const Bytes stream = little("84 01 'i' 85");  // what would be a nil of another type
  const auto refuses = [&](auto read) {
    TypedStreamReader reader(stream);
    reader.beginGroup();
    EXPECT_THROW(read(reader), FormatError);
  };
  refuses([](TypedStreamReader& reader) { reader.readCString(); });
  refuses([](TypedStreamReader& reader) { reader.readString(); });
  refuses([](TypedStreamReader& reader) { reader.readClass(); });
  refuses([](TypedStreamReader& reader) { reader.readReal(); });
  refuses([](TypedStreamReader& reader) { reader.beginObject(); });
}

}  // namespace
}  // namespace nascor::archive
