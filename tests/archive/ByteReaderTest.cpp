// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/ByteReader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "Bytes.h"

namespace nascor::archive {
namespace {

/// The sentence with which `read` refuses a stream.
template <class Read>
std::string refusalOf(std::string_view spelling, const Read& read) {
  const Bytes stream = bytes(spelling);
  ByteReader reader(stream);
  return refusal([&] { read(reader); });
}

TEST(TheByteReader, readsNumbersOfEachLengthInTheOrderOfTheStream) {
  const Bytes stream = bytes("05 81 01 02 82 01 02 03 04 87 01 02 03 04 05 06 07 08 ff");
  for (const ByteOrder order : {ByteOrder::little, ByteOrder::big}) {
    ByteReader reader(stream);
    reader.setOrder(order);
    const bool isBig = order == ByteOrder::big;
    EXPECT_EQ(reader.takeNumber("a number"), 5);
    EXPECT_EQ(reader.takeNumber("a number"), isBig ? 0x0102 : 0x0201);
    EXPECT_EQ(reader.takeNumber("a number"), isBig ? 0x01020304 : 0x04030201);
    EXPECT_EQ(reader.takeNumber("a number"), isBig ? 0x0102030405060708 : 0x0807060504030201);
    EXPECT_EQ(reader.takeNumber("a number"), -1);
    EXPECT_EQ(reader.left(), 0U);
  }
}

TEST(TheByteReader, looksAtAHeadBeforeItIsTaken) {
  const Bytes stream = bytes("85 86");
  ByteReader reader(stream);
  EXPECT_EQ(reader.head("a value"), kNilTag);
  EXPECT_FALSE(reader.tookHead(kEndTag));
  EXPECT_EQ(reader.position(), 0U);
  EXPECT_TRUE(reader.tookHead(kNilTag));
  EXPECT_EQ(reader.headAhead(0), kEndTag);
  EXPECT_TRUE(reader.tookHead(kEndTag));
  EXPECT_FALSE(reader.tookHead(kEndTag)) << "at the end of the file";
}

TEST(TheByteReader, tellsAnEmptyTextFromNil) {
  const Bytes stream = bytes("03 'abc' 00 85");
  ByteReader reader(stream);
  EXPECT_EQ(reader.takeText("a text"), "abc");
  EXPECT_EQ(reader.takeText("a text"), "");
  EXPECT_EQ(reader.takeText("a text"), std::nullopt);
}

TEST(TheByteReader, countsNumbersOfThingsFromTheFirstHeadThatIsANumber) {
  const Bytes stream = bytes("92 93 81 92 00");
  ByteReader reader(stream);
  EXPECT_EQ(reader.takeNumberOf(ByteReader::Thing::label, 257, "an object"), 0U);
  EXPECT_EQ(reader.takeNumberOf(ByteReader::Thing::label, 257, "an object"), 1U);
  EXPECT_EQ(reader.takeNumberOf(ByteReader::Thing::label, 257, "an object"), 256U);
}

TEST(TheByteReader, saysWhereWhatWasWantedAndWhatStandsThere) {
  EXPECT_EQ(refusalOf("", [](ByteReader& reader) { reader.head("an object"); }),
            "at byte 0: expected an object, but the file ends here");
  EXPECT_EQ(refusalOf("", [](ByteReader& reader) { reader.takeBytes(1, "a byte"); }),
            "at byte 0: expected a byte, but the file ends here");
  EXPECT_EQ(refusalOf("82 01 02", [](ByteReader& reader) { reader.takeNumber("a number"); }),
            "at byte 1: expected a number, but only 2 of its 4 bytes are left");
  EXPECT_EQ(refusalOf("84", [](ByteReader& reader) { reader.takeNumber("a number"); }),
            "at byte 0: expected a number, but the mark of something new stands here");
  EXPECT_EQ(refusalOf("ff", [](ByteReader& reader) { reader.takeText("a text"); }),
            "at byte 0: expected a text, but its length is -1");
  EXPECT_EQ(
      refusalOf("93",
                [](ByteReader& reader) { reader.takeNumberOf(ByteReader::Thing::label, 1, "an object"); }),
      "at byte 0: expected an object, but label 1 is outside the 1 given so far");
}

}  // namespace
}  // namespace nascor::archive
