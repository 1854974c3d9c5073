// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "Bytes.h"
#include "archive/TreeDump.h"
#include "archive/TypedStreamReader.h"
#include "archive/TypedStreamWriter.h"

namespace nascor::archive {
namespace {

/// Reads all of a stream from memory that ends exactly with it, so that a sanitizer sees a read past the end.
void readWhole(std::span<const std::byte> stream) {
  const auto exact = std::make_unique<std::byte[]>(stream.size());
  std::copy(stream.begin(), stream.end(), exact.get());
  dumpAsJson({exact.get(), stream.size()});
  dumpAsText({exact.get(), stream.size()});
}

/// One value or more of every type that there is.
Bytes oneOfEverything() {
  static constexpr ClassDescription kRoot{"NSObject", 0};
  static constexpr ClassDescription kString{"NSString", 1, &kRoot};
  TypedStreamWriter writer;
  const Label root = writer.putObject(kString);
  writer.beginGroup("cCBsSiIlLqQ");
  for (int i = 0; i < 10; ++i) writer.writeInteger(5);
  writer.writeInteger(5'000'000'000);
  writer.beginGroup("fd++:%*#");
  writer.writeReal(0.5);
  writer.writeReal(0.1);
  writer.writeString("text");
  writer.writeNil();
  writer.writeString("mark:");
  writer.writeString("shared");
  const Label text = writer.writeCString("i");
  writer.writeClass(kRoot);
  writer.beginGroup("[4c]{P=f[2i]}*@");
  writer.writeBytes(bytes("01 02 03 04"));
  writer.beginStructure();
  writer.writeReal(1000.0);
  writer.beginArray();
  writer.writeInteger(70'000);
  writer.writeInteger(-1);
  writer.endArray();
  writer.endStructure();
  writer.writeReference(text);
  writer.beginObject(kRoot);
  writer.putReference(root);
  writer.endObject();
  writer.endObject();
  return std::move(writer).finish();
}

class ATruncatedStream : public testing::TestWithParam<Bytes (*)()> {};

TEST_P(ATruncatedStream, isRefusedAtEveryLength) {
  const Bytes whole = GetParam()();
  readWhole(whole);
  const std::size_t header = bytes(kLittle).size();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const std::span<const std::byte> cut(whole.data(), length);
    if (length == header) {
      readWhole(cut);  // a stream of no groups is whole
      continue;
    }
    try {
      readWhole(cut);
      FAIL() << "cut after " << length << " bytes and taken";
    } catch (const FormatError& error) {
      EXPECT_LE(error.offset(), length);
      const std::string sentence = error.what();
      EXPECT_TRUE(sentence.find("the file ends here") != std::string::npos ||
                  sentence.find("left") != std::string::npos)
          << sentence;
    }
  }
}

Bytes bigEndianDate() {
  return big(
      "84 01 '@' 84 84 84 06 'NSDate' 81 03 e8 85 84 02 'df' 83 41 aa 5f 8b 0f c8 00 00 83 3f 2a aa ab 86");
}

INSTANTIATE_TEST_SUITE_P(ofEveryKind, ATruncatedStream,
                         testing::Values(freshPatient, oneOfEverything, bigEndianDate));

struct BadCase {
  const char* name;
  Bytes stream;
  const char* message;
};
class AMalformedStream : public testing::TestWithParam<BadCase> {};

TEST_P(AMalformedStream, isRefusedWithPlaceAndExpectation) {
  EXPECT_EQ(refusal([] { readWhole(GetParam().stream); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    atItsHeader, AMalformedStream,
    testing::Values(
        BadCase{"empty", {}, "at byte 0: expected a typed stream of version 4, but the file ends here"},
        BadCase{"version5", bytes("05 0b 'streamtyped' 81 e8 03"),
                "at byte 0: expected a typed stream of version 4, but the version is 5"},
        BadCase{"text", bytes("'{ }'"),
                "at byte 0: expected a typed stream of version 4, but the version is 123"},
        BadCase{"tagAsVersion", bytes("84"),
                "at byte 0: expected a typed stream of version 4, but the mark of something new stands here"},
        BadCase{"otherSignature", bytes("04 0b 'streamtypes' 81 e8 03"),
                "at byte 1: expected the signature of a typed stream, but \"streamtypes\" stands here"},
        BadCase{"shortSignature", bytes("04 0a 'streamtype' 81 e8 03"),
                "at byte 1: expected the signature of a typed stream, but \"streamtype\" stands here"},
        BadCase{"nilSignature", bytes("04 85"),
                "at byte 1: expected the signature of a typed stream, but nil stands here"},
        BadCase{"hugeSignature", bytes("04 82 ff ff ff 7f 'a'"),
                "at byte 6: expected the signature of a typed stream, but only 1 of its 2147483647 bytes are "
                "left"},
        BadCase{"noSystemVersion", bytes("04 0b 'streamtyped' 86"),
                "at byte 13: expected the system version, but the end of an object stands here"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    inItsGroups, AMalformedStream,
    testing::Values(
        BadCase{"endMarkAtTheTop", little("86"),
                "at byte 16: expected the types of a group, but the end of an object stands here"},
        BadCase{"nilTypes", little("85"), "at byte 16: expected a group of values, but nil stands here"},
        BadCase{"nilTextOfTypes", little("84 85"),
                "at byte 16: expected the types of a group, but its text is nil"},
        BadCase{"stringOutOfRange", little("92"),
                "at byte 16: expected the types of a group, but string 0 is outside the 0 given so far"},
        BadCase{"stringBelowZero", little("84 01 'i' 01 81 91 ff"),
                "at byte 20: expected the types of a group, but string -1 is outside the 1 given so far"},
        BadCase{"stringNumberOf64Bits", little("84 01 'i' 01 87 ff ff ff ff ff ff ff 7f"),
                "at byte 20: expected the types of a group, but string 9223372036854775917 is outside the 1 "
                "given so far"},
        BadCase{"unknownType", little("84 01 '?' 01"),
                "at byte 16: the type string \"?\" has the unknown type code \"?\""},
        BadCase{"classNameAsTypes", little("84 01 '#' 84 84 01 'A' 00 85 93"),
                "at byte 25: the type string \"A\" has the unknown type code \"A\""},
        BadCase{"negativeLength", little("84 01 '+' ff"),
                "at byte 19: expected a string, but its length is -1"},
        BadCase{"hugeLength", little("84 01 '+' 87 ff ff ff ff ff ff ff 7f 'a'"),
                "at byte 28: expected a string, but only 1 of its 9223372036854775807 bytes are left"},
        BadCase{"oneByteMissing", little("84 01 '+' 01"),
                "at byte 20: expected a string, but the file ends here"},
        BadCase{"realTagForInteger", little("84 01 'i' 83 00 00 00 00"),
                "at byte 19: expected an integer, but a real stands here"},
        BadCase{"newTagForReal", little("84 01 'f' 84"),
                "at byte 19: expected a real, but the mark of something new stands here"},
        BadCase{"nilForInteger", little("84 01 'i' 85"),
                "at byte 19: expected an integer, but nil stands here"},
        BadCase{"unusedTag80", little("84 01 'i' 80"),
                "at byte 19: expected an integer, but the meaningless byte \"\\x80\" stands here"},
        BadCase{"unusedTag88", little("84 01 'i' 88"),
                "at byte 19: expected an integer, but the meaningless byte \"\\x88\" stands here"},
        BadCase{"unusedTag91", little("84 01 'i' 91"),
                "at byte 19: expected an integer, but the meaningless byte \"\\x91\" stands here"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    inItsObjects, AMalformedStream,
    testing::Values(
        BadCase{"labelOutOfRange", little("84 01 '@' 84 84 84 01 'A' 00 85 92 94 86"),
                "at byte 27: expected an object, but label 2 is outside the 2 given so far"},
        BadCase{"labelBelowZero", little("84 01 '@' 84 84 84 01 'A' 00 85 92 81 91 ff 86"),
                "at byte 27: expected an object, but label -1 is outside the 2 given so far"},
        BadCase{"hugeLabel", little("84 01 '@' 84 84 84 01 'A' 00 85 92 82 ff ff ff 7f 86"),
                "at byte 27: expected an object, but label 2147483757 is outside the 2 given so far"},
        BadCase{"classForObject", little("84 01 '@' 84 84 84 01 'A' 00 85 92 93 86"),
                "at byte 27: expected an object, but class 1 (A) stands here"},
        BadCase{"objectForClass", little("84 01 '@' 84 84 84 01 'A' 00 85 92 84 92"),
                "at byte 28: expected the class of an object, but object 0 (A) stands here"},
        BadCase{"objectForItsOwnClass", little("84 01 '@' 84 92"),
                "at byte 20: expected the class of an object, but object 0 (of no class yet) stands here"},
        BadCase{"objectForSuperclass", little("84 01 '@' 84 84 84 01 'A' 00 92"),
                "at byte 25: expected a superclass, but object 0 (of no class yet) stands here"},
        BadCase{"cStringForObject", little("84 02 '*@' 84 84 01 'x' 92"),
                "at byte 24: expected an object, but C string 0 stands here"},
        BadCase{"objectForCString", little("84 02 '@*' 84 84 84 01 'A' 00 85 86 92"),
                "at byte 28: expected a C string, but object 0 (A) stands here"},
        BadCase{"nilTextOfACString", little("84 01 '*' 84 85"),
                "at byte 19: expected a C string, but its text is nil"},
        BadCase{"objectOfNilClass", little("84 01 '@' 84 85"),
                "at byte 20: expected the class of an object, but nil stands here"},
        BadCase{"classOfNilName", little("84 01 '#' 84 85 00 85"),
                "at byte 19: expected a class name, but nil stands here"},
        BadCase{"tagForVersion", little("84 01 '#' 84 84 01 'A' 83"),
                "at byte 23: expected a class version, but a real stands here"},
        BadCase{"endMarkForObject", little("84 01 '@' 86"),
                "at byte 19: expected an object, but the end of an object stands here"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    withAbsurdCounts, AMalformedStream,
    testing::Values(
        BadCase{"bytes", little("84 0d '[2147483647c]' 01 02"),
                "at byte 31: expected an array of bytes, but only 2 of its 2147483647 bytes are left"},
        BadCase{
            "integers", little("84 0d '[2147483647i]' 01 02"),
            "at byte 31: expected an array (type \"[2147483647i]\"), but it takes at least 2147483647 bytes, "
            "and 2 are left"},
        BadCase{
            "oneMore", little("84 04 '[1i]'"),
            "at byte 22: expected an array (type \"[1i]\"), but it takes at least 1 byte, and 0 are left"},
        BadCase{"nothings", little("84 10 '[2147483647{A=}]'"),
                "at byte 16: the type string \"[2147483647{A=}]\" has an array whose elements take no bytes"},
        BadCase{
            "nestedNothings", little("84 11 '[65535[65535[0c]]' ']'"),
            "at byte 16: the type string \"[65535[65535[0c]]\" has an array whose elements take no bytes"},
        BadCase{"beyond64Bits", little("84 18 '[99999999999999999999@]]' 85"),
                "at byte 16: the type string \"[99999999999999999999@]]\" has the unknown type code \"]\""},
        BadCase{"saturated", little("84 17 '[99999999999999999999@]' 85"),
                "at byte 41: expected an array (type \"[99999999999999999999@]\"), but it takes at least "
                "18446744073709551615 bytes, and 1 are left"}),
    [](const auto& row) { return std::string(row.param.name); });

// ---- Depth

constexpr const char* kTooDeep = "objects, arrays and structures nest more than 256 deep";

/// `depth` objects, each in the one before.
Bytes nestedObjects(std::size_t depth) {
  return little("84 01 '@' 84 84 84 01 'A' 00 85") + repeated(depth - 1, "92 84 93") + repeated(depth, "86");
}

TEST(DeepNesting, isReadUpToTheLimit) { readWhole(nestedObjects(kDepthLimit)); }

TEST(DeepNesting, isRefusedBeyondIt) {
  // The 257th object: header 16, the first object and its class 10, then three bytes for each; its own begins
  // with a type.
  const std::string message = "at byte " + std::to_string(16 + 10 + 255 * 3 + 1) + ": " + kTooDeep;
  EXPECT_EQ(refusal([] { readWhole(nestedObjects(kDepthLimit + 1)); }), message);
  EXPECT_EQ(refusal([] { readWhole(nestedObjects(100'000)); }), message);
}

TEST(DeepNesting, countsArraysAndStructuresWithTheObjects) {
  // Two levels for each object: the object itself and the structure or array that it stands in.
  const Bytes structures = little("84 05 '{S=@}' 84 84 84 01 'A' 00 85") + repeated(127, "92 84 93");
  readWhole(structures + repeated(128, "86"));
  EXPECT_NE(refusal([&] { readWhole(structures + bytes("92 84 93") + repeated(129, "86")); }).find(kTooDeep),
            std::string::npos);

  const Bytes arrays = little("84 04 '[1@]' 84 84 84 01 'A' 00 85") + repeated(127, "92 84 93");
  readWhole(arrays + repeated(128, "86"));
  EXPECT_NE(refusal([&] { readWhole(arrays + bytes("92 84 93") + repeated(129, "86")); }).find(kTooDeep),
            std::string::npos);
}

TEST(DeepNesting, isRefusedInTypeStrings) {
  const std::string reason = " nests arrays and structures more than 256 deep";
  const auto message = [](const char* spelling) {
    // 200,000 bytes: 82 40 0d 03 00
    return refusal(
        [&] { readWhole(little("84 82 40 0d 03 00") + repeated(100'000, spelling) + bytes("01")); });
  };
  EXPECT_NE(message("'[1'").find(reason), std::string::npos);
  EXPECT_NE(message("'{='").find(reason), std::string::npos);
}

TEST(DeepNesting, isRefusedInClassChains) {
  const auto chain = [](std::size_t classes) {
    return little("84 01 '#' 84 84 01 'A' 00") + repeated(classes - 1, "84 93 00") + bytes("85");
  };
  readWhole(chain(kDepthLimit));
  EXPECT_EQ(refusal([&] { readWhole(chain(kDepthLimit + 1)); }),
            "at byte " + std::to_string(16 + 8 + 255 * 3) +
                ": expected a superclass, but more than 256 class records stand in a chain");
  EXPECT_NE(refusal([&] { readWhole(chain(100'000)); }), "");
}

// ---- What the caller expected

struct MismatchCase {
  const char* name;
  const char* body;
  void (*read)(TypedStreamReader&);
  const char* message;
};
class AnUnexpectedValue : public testing::TestWithParam<MismatchCase> {};

TEST_P(AnUnexpectedValue, isRefusedInWords) {
  const Bytes stream = little(GetParam().body);
  TypedStreamReader reader(stream);
  EXPECT_EQ(refusal([&] { GetParam().read(reader); }), GetParam().message);
}

using Reader = TypedStreamReader;

INSTANTIATE_TEST_SUITE_P(
    ofAnotherType, AnUnexpectedValue,
    testing::Values(
        MismatchCase{
            "intForFloat", "84 01 'i' 01", [](Reader& r) { r.takeFloat(); },
            "at byte 16: expected a 32-bit real (type \"f\"), but a 32-bit integer (type \"i\") stands here"},
        MismatchCase{
            "floatForInt", "84 01 'f' 01", [](Reader& r) { r.takeInt(); },
            "at byte 16: expected a 32-bit integer (type \"i\"), but a 32-bit real (type \"f\") stands here"},
        MismatchCase{
            "floatForDouble", "84 01 'f' 01", [](Reader& r) { r.takeDouble(); },
            "at byte 16: expected a 64-bit real (type \"d\"), but a 32-bit real (type \"f\") stands here"},
        MismatchCase{"twoObjectsForOne", "84 02 '@@' 85 85", [](Reader& r) { r.takeObject(); },
                     "at byte 16: expected an object (type \"@\"), but values (type \"@@\") stands here"},
        MismatchCase{"nothingForString", "84 00", [](Reader& r) { r.takeString(); },
                     "at byte 16: expected a string (type \"+\"), but values (type \"\") stands here"},
        MismatchCase{"endOfObjectForInt", "84 01 '@' 84 84 84 01 'A' 00 85 86",
                     [](Reader& r) {
                       r.takeObject();
                       r.takeInt();
                     },
                     "at byte 26: expected a 32-bit integer (type \"i\"), but object 0 (A) ends here"},
        MismatchCase{"endOfFileForInt", "", [](Reader& r) { r.takeInt(); },
                     "at byte 16: expected a 32-bit integer (type \"i\"), but the file ends here"},
        MismatchCase{"moreForEndOfObject", "84 01 '@' 84 84 84 01 'A' 00 85 92 85 86",
                     [](Reader& r) {
                       r.takeObject();
                       r.endObject();
                     },
                     "at byte 26: expected the end of object 0 (A), but more values follow"},
        MismatchCase{"endOfFileForEndOfObject", "84 01 '@' 84 84 84 01 'A' 00 85",
                     [](Reader& r) {
                       r.takeObject();
                       r.endObject();
                     },
                     "at byte 26: expected the end of object 0 (A), but the file ends here"},
        MismatchCase{"realForInteger", "84 01 'f' 01",
                     [](Reader& r) {
                       r.beginGroup();
                       r.readInteger();
                     },
                     "at byte 19: expected an integer, but a 32-bit real (type \"f\") stands here"},
        MismatchCase{"arrayForBytes", "84 04 '[2i]' 01 02",
                     [](Reader& r) {
                       r.beginGroup();
                       r.readBytes();
                     },
                     "at byte 22: expected an array of bytes, but an array (type \"[2i]\") stands here"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace nascor::archive
