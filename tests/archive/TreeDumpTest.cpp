// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "archive/TreeDump.h"

#include <gtest/gtest.h>

#include <string>

#include "Bytes.h"
#include "archive/FormatError.h"
#include "support/Spent.h"

namespace nascor::archive {
namespace {

/// The JSON of the groups at the top.
std::string groups(std::string_view body) {
  const std::string json = dumpAsJson(little(body));
  const std::string_view begin = R"({"byte_order":"little","system_version":1000,"groups":[)";
  const std::string_view end = "]}";
  EXPECT_TRUE(json.starts_with(begin) && json.ends_with(end)) << json;
  return json.substr(begin.size(), json.size() - begin.size() - end.size());
}

TEST(DumpingAsJson, printsObjectsClassesAndReferences) {
  EXPECT_EQ(groups("84 01 '@' 84 84 84 01 'B' 05 84 84 01 'A' 00 85 92 84 94 86 92 92 92 85 86"),
            R"({"types":"@","values":[{"obj":0,"class":{"cls":1,"name":"B","version":5,)"
            R"("super":{"cls":2,"name":"A","version":0,"super":null}},"groups":[)"
            R"({"types":"@","values":[{"obj":3,"class":{"ref":2},"groups":[]}]},)"
            R"({"types":"@","values":[{"ref":0}]},)"
            R"({"types":"@","values":[null]}]}]})");
}

TEST(DumpingAsJson, printsClassesAsValues) {
  EXPECT_EQ(groups("84 04 '####' 84 84 01 'A' 00 85 84 84 01 'B' 00 92 92 85"),
            R"({"types":"####","values":[{"cls":0,"name":"A","version":0,"super":null},)"
            R"({"cls":1,"name":"B","version":0,"super":{"ref":0}},{"ref":0},null]})");
}

TEST(DumpingAsJson, printsNumbersInTheirShortestForm) {
  EXPECT_EQ(groups("84 08 'cCsIiqfd' ff ff 81 f0 02 05 fb 87 00 00 00 80 00 00 00 00 83 cd cc 4c 3f"
                   "83 9a 99 99 99 99 99 b9 3f"),
            R"({"types":"cCsIiqfd","values":[-1,255,752,5,-5,2147483648,0.800000011920929,0.1]})");
  EXPECT_EQ(groups("84 05 'fffff' 83 00 00 c0 7f 83 00 00 80 7f 83 00 00 80 ff 28 83 00 00 20 41"),
            R"({"types":"fffff","values":["nan","inf","-inf",40,10]})");
}

TEST(DumpingAsJson, printsTypesWithoutSignAsTheyAre) {
  EXPECT_EQ(
      groups("84 0a 'CSILQcsilq' ff ff ff ff ff ff ff ff ff ff"),
      R"({"types":"CSILQcsilq","values":[255,65535,4294967295,18446744073709551615,18446744073709551615,)"
      R"(-1,-1,-1,-1,-1]})");
  EXPECT_EQ(groups("84 03 'SIQ' 81 00 80 82 00 00 00 80 87 00 00 00 00 00 00 00 80"),
            R"({"types":"SIQ","values":[32768,2147483648,9223372036854775808]})");
}

TEST(DumpingAsJson, printsTexts) {
  EXPECT_EQ(groups("84 05 '++::%' 06 'a\"b' 0a c3 a4 85 84 01 'm' 85 93"),
            R"({"types":"++::%","values":[{"s":"a\"b\nä"},null,{"s":"m"},null,{"s":"m"}]})");
  EXPECT_EQ(groups("84 04 '**+*' 84 84 01 'q' 92 02 c3 28 85"),
            R"({"types":"**+*","values":[{"cstr":0,"s":"q"},{"ref":0},{"hex":"c328"},null]})");
  EXPECT_EQ(groups("84 01 '*' 84 84 01 ff"), R"({"types":"*","values":[{"cstr":0,"hex":"ff"}]})");
}

TEST(DumpingAsJson, printsArraysAndStructures) {
  EXPECT_EQ(groups("84 16 '[3c][2i][0c]{P=f{Q=i}}' de ad 0f 01 02 05 06"),
            R"({"types":"[3c][2i][0c]{P=f{Q=i}}","values":[{"hex":"dead0f"},[1,2],{"hex":""},[5,[6]]]})");
}

TEST(DumpingAsJson, printsEveryGroupAtTheTop) {
  EXPECT_EQ(groups("84 01 'i' 01 92 02 84 00"),
            R"({"types":"i","values":[1]},{"types":"i","values":[2]},{"types":"","values":[]})");
  EXPECT_EQ(groups(""), "");
}

TEST(DumpingAsJson, namesTheByteOrder) {
  EXPECT_EQ(
      dumpAsJson(big("84 01 'f' 83 3f 80 00 01")),
      R"({"byte_order":"big","system_version":1000,"groups":[{"types":"f","values":[1.0000001192092896]}]})");
}

TEST(DumpingAsText, printsOneLineAValue) {
  EXPECT_EQ(dumpAsText(freshPatient()), R"(typed stream, little-endian, system version 1000
      19  @ object 0: PatientRecord (class 1, version 7) < NSObject (class 2, version 0)
      51    @ object 3: NSString (class 4, version 1) < NSObject (class 2)
      68      + ""
      71    @ object 5: NSString (class 4)
      74      + "Deprecated"
      87    @ nil
      89    @ object 6: NSMutableArray (class 7, version 0) < NSArray (class 8, version 0) < NSObject (class 2)
     123      i 1
     125      @ object 9: NCRecord (class 10, version 1) < NSObject (class 2)
     140        @ -> object 3 (NSString)
     142        @ object 11: NSDate (class 12, version 0) < NSObject (class 2)
     157          d 221234567.890625
     168        @ object 13: NSMutableArray (class 7)
     171          i 1
     173          @ object 14: MeasurementsRecord (class 15, version 0) < NSObject (class 2)
     200            f 0
     202            f 0
     204            f 0
     206            f 0
     212    i 0
     214    i 0
     216    i 1
     218    f 40
     220    i 0
     222    i 0
)");
}

TEST(DumpingAsText, putsTheValuesOfAGroupUnderItsTypes) {
  EXPECT_EQ(dumpAsText(big("84 10 '*#[2c][2i]{P=+@}' 84 84 01 'q' 84 84 01 'A' 00 85 01 ff 01 02 01 80 85"
                           "84 05 '**##@' 92 85 93 85 85")),
            R"(typed stream, big-endian, system version 1000
      16  group "*#[2c][2i]{P=+@}"
      34    * C string 0 "q"
      38    # A (class 1, version 0)
      44    [2c] 01ff
      46    [2i]
      46      i 1
      47      i 2
      48    {P=+@}
      48      + not UTF-8: 80
      50      @ nil
      51  group "**##@"
      58    * -> C string 0 "q"
      59    * nil
      60    # A (class 1)
      61    # nil
      62    @ nil
)");
}

TEST(DumpingAsText, goesBackBehindAGroupOfSeveralValues) {
  EXPECT_EQ(dumpAsText(little("84 02 '@i' 84 84 84 01 'A' 00 85 84 01 'i' 05 86 07 94 08")),
            R"(typed stream, little-endian, system version 1000
      16  group "@i"
      20    @ object 0: A (class 1, version 0)
      30      i 5
      32    i 7
      34  i 8
)");
}

TEST(DumpingAsText, printsTypesWithoutSignAsTheyAre) {
  EXPECT_NE(dumpAsText(little("84 01 'I' ff")).find("I 4294967295\n"), std::string::npos);
  EXPECT_NE(dumpAsText(little("84 01 'i' ff")).find("i -1\n"), std::string::npos);
}

TEST(DumpingAsText, givesATerminalNoOrders) {
  const std::string text = dumpAsText(little("84 01 '#' 84 84 05 1b '[31m' 00 85"));
  EXPECT_EQ(text.find('\x1b'), std::string::npos);
  EXPECT_NE(text.find("\\x1b[31m"), std::string::npos);
  // DEL, and the control characters beyond ASCII.
  EXPECT_NE(dumpAsText(little("84 01 '+' 04 7f c2 9b 'm'")).find("\\u007f\\u009bm"), std::string::npos);
}

TEST(DumpingAsText, showsAGroupOfNoValues) {
  EXPECT_EQ(dumpAsText(little("84 00")),
            "typed stream, little-endian, system version 1000\n      16  group \"\"\n");
}

// ---- Proportion

TEST(DumpingAHostileStream, refusesATextOutOfAllProportion) {
  // One C string of 20,000 bytes and 2,500 more with the same text by its number: 50 MB as a text.
  const Bytes stream =
      little("84 01 '*' 84 84 81 20 4e") + repeated(20'000, "'x'") + repeated(2'500, "92 84 93");
  const std::string message = refusal([&] { dumpAsJson(stream); });
  EXPECT_NE(message.find("the text of this stream is more than 250 times as long"), std::string::npos)
      << message;
  EXPECT_NE(refusal([&] { dumpAsText(stream); }), "");
}

TEST(DumpingAHostileStream, takesADeepButHonestOne) {
  // 100,000 bytes, each a line at the deepest indentation: number, two blanks, 2 x 50 blanks, "c 0", line end.
  const Bytes stream = little("84 01 '@' 84 84 84 01 'A' 00 85") + repeated(255, "92 84 93") +
                       bytes("84 82 a0 86 01 00") + repeated(100'000, "'c'") + repeated(100'000, "00") +
                       repeated(256, "86");
  EXPECT_GT(dumpAsText(stream).size(), 100'000U * 114U);
  EXPECT_GT(dumpAsJson(stream).size(), 100'000U * 2U);
}

TEST(DumpingAHostileStream, keepsItsJsonValidWhenNamesAreNot) {
  EXPECT_EQ(
      groups("84 01 '#' 84 84 02 'A' ff 00 85"),
      "{\"types\":\"#\",\"values\":[{\"cls\":0,\"name\":\"A\xEF\xBF\xBD\",\"version\":0,\"super\":null}]}");
}

// ---- In pieces

/// A group of as many bytes.
Bytes longStream(std::size_t values) {
  Bytes stream = little("");
  for (std::size_t i = 0; i < values; ++i) {
    const Bytes group = i == 0 ? bytes("84 01 'i' 05") : bytes("92 05");
    stream.insert(stream.end(), group.begin(), group.end());
  }
  return stream;
}

TEST(DumpingInPieces, givesTheSameText) {
  const Bytes stream = longStream(50'000);
  std::string text;
  std::size_t pieces = 0;
  dumpAsTextInPieces(stream, [&](std::string_view piece) {
    text += piece;
    ++pieces;
  });
  EXPECT_TRUE(text == dumpAsText(stream));
  EXPECT_GT(pieces, 10U);
  text.clear();
  dumpAsJsonInPieces(stream, [&](std::string_view piece) { text += piece; });
  EXPECT_TRUE(text == dumpAsJson(stream));
}

TEST(DumpingInPieces, handsOnNothingOfABrokenStream) {
  Bytes stream = longStream(50'000);
  stream.push_back(std::byte{0x92});
  std::size_t pieces = 0;
  const auto count = [&](std::string_view) { ++pieces; };
  for (const bool asJson : {false, true})
    EXPECT_THROW((asJson ? dumpAsJsonInPieces : dumpAsTextInPieces)(stream, count), FormatError);
  EXPECT_EQ(pieces, 0U);
}

TEST(DumpingInPieces, takesNoMoreMemoryThanFiftyBytesAByte) {
  if (tests::kIsSanitized) GTEST_SKIP() << "a sanitizer keeps memory of its own";
  // Groups of one byte's type and value; objects as short as can be; one long text.
  const Bytes shortObjects = little("84 01 '@' 84 84 84 01 'A' 00 85 86") + repeated(300'000, "92 84 93 86");
  for (const Bytes& stream :
       {longStream(500'000), shortObjects, little("84 01 '+' 82 00 00 10 00") + repeated(1'048'576, "1b")}) {
    const tests::Spent spent;
    dumpAsTextInPieces(stream, [](std::string_view) {});
    dumpAsJsonInPieces(stream, [](std::string_view) {});
    EXPECT_LT(spent.memory() * 1048576.0, 50.0 * static_cast<double>(stream.size()));
  }
}

}  // namespace
}  // namespace nascor::archive
