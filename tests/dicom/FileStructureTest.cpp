// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom/FileStructure.h"

#include <gmock/gmock.h>

#include <cstring>
#include <tuple>

#include "support/InEnglish.h"
#include "support/MarkedLocalizer.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;

std::string fault(const std::string& file) {
  const auto found = dicom::dataSetIn(std::as_bytes(std::span(file)));
  return found.index() == 0 ? "" : inEnglish(std::get<1>(found));
}

std::string little(std::uint32_t value, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  return bytes;
}

std::string tag(unsigned group, unsigned element) { return little(group, 2) + little(element, 2); }
std::string shortElement(unsigned group, unsigned element, const char* vr, const std::string& value) {
  return tag(group, element) + vr + little(static_cast<std::uint32_t>(value.size()), 2) + value;
}
std::string sequence(std::uint32_t length, const std::string& content) {
  return tag(0x40, 0xA730) + "SQ" + little(0, 2) + little(length, 4) + content;
}
std::string item(std::uint32_t length, const std::string& content) {
  return tag(0xFFFE, 0xE000) + little(length, 4) + content;
}
const std::string kItemEnd = tag(0xFFFE, 0xE00D) + little(0, 4);
const std::string kSequenceEnd = tag(0xFFFE, 0xE0DD) + little(0, 4);
constexpr std::uint32_t kUndefined = 0xFFFFFFFFU;

std::string file(const std::string& content, const std::string& syntax = "1.2.840.10008.1.2.1") {
  const std::string uid = syntax.size() % 2 == 0 ? syntax : syntax + '\0';
  return std::string(128, '\0') + "DICM" + shortElement(2, 0x10, "UI", uid) + content;
}

const std::string kText = shortElement(0x40, 0xA160, "LO", "text");

TEST(TheStructure, ofAWholeFileIsWhole) {
  EXPECT_EQ(fault(file("")), "");
  EXPECT_EQ(fault(file(kText)), "");
  EXPECT_EQ(fault(file(sequence(0, ""))), "");
  EXPECT_EQ(fault(file(sequence(20, item(12, kText)) + kText)), "");
  EXPECT_EQ(
      fault(file(sequence(kUndefined, item(kUndefined, kText + kItemEnd) + item(12, kText) + kSequenceEnd))),
      "");
  EXPECT_EQ(fault(file(sequence(kUndefined, item(12, kText) + kSequenceEnd) + kText)), "");
}

TEST(TheStructure, saysWhereTheDataSetStandsAndHowItIsWritten) {
  for (const auto& [syntax, isExplicit, isBigEndian] :
       {std::tuple("1.2.840.10008.1.2", false, false), std::tuple("1.2.840.10008.1.2.1", true, false),
        std::tuple("1.2.840.10008.1.2.2", true, true)}) {
    const std::string whole = file("", syntax);
    const auto found = dicom::dataSetIn(std::as_bytes(std::span(whole)));
    const auto& dataSet = std::get<dicom::DataSet>(found);
    EXPECT_TRUE(dataSet.bytes.empty());
    EXPECT_EQ(dataSet.encoding.isExplicit, isExplicit) << syntax;
    EXPECT_EQ(dataSet.encoding.isBigEndian, isBigEndian) << syntax;
  }
  const std::string whole = file(kText);
  const auto found = dicom::dataSetIn(std::as_bytes(std::span(whole)));
  EXPECT_EQ(std::get<dicom::DataSet>(found).bytes.size(), kText.size());
}

TEST(TheStructure, isRefusedWhereAPartIsLongerThanWhatHoldsIt) {
  EXPECT_THAT(fault(file(sequence(20, item(10, kText)) + kText)), HasSubstr("damaged"));
  EXPECT_THAT(fault(file(sequence(19, item(12, kText)) + kText)), HasSubstr("damaged"));
  EXPECT_THAT(fault(file(sequence(12, kText))), HasSubstr("damaged"));
  EXPECT_THAT(fault(file(kItemEnd)), HasSubstr("damaged"));
  EXPECT_THAT(fault(file(sequence(kUndefined, item(kUndefined, kText + kSequenceEnd)))),
              HasSubstr("damaged"));
}

TEST(TheStructure, isRefusedWhereItEnds) {
  EXPECT_THAT(fault(file(sequence(kUndefined, item(12, kText)))), HasSubstr("cut off"));
  EXPECT_THAT(fault(file(sequence(21, item(12, kText)))), HasSubstr("cut off"));
  EXPECT_THAT(fault(file(tag(0x40, 0xA160) + "UT" + little(0, 2))), HasSubstr("cut off"));
  EXPECT_THAT(fault(file(tag(0x40, 0xA160))), HasSubstr("cut off"));
}

/// An element with a length of four bytes.
std::string longElement(const char* vr, std::uint32_t length, const std::string& value) {
  return tag(0x40, 0xA160) + vr + little(0, 2) + little(length, 4) + value;
}

TEST(TheStructure, hasLongLengthsForWhatDicomMayYetAdd) {
  EXPECT_EQ(fault(file(longElement("ZZ", 4, "text") + kText)), "");
  EXPECT_THAT(fault(file(longElement("ZZ", 0xFFFE3500U, "text"))), HasSubstr("cut off"));
  // What once filled the place of a representation was of two bytes.
  EXPECT_EQ(fault(file(shortElement(0x40, 0xA160, "??", "text") + kText)), "");
}

TEST(TheStructure, isRefusedWhereAKindIsNone) {
  for (const char* vr : {"ox", "lt", "pi", "Lo", "lO", "  ", "?A", "\x01\x01"})
    EXPECT_THAT(fault(file(longElement(vr, 4, "text"))), HasSubstr("of a kind that DICOM does not have"));
  for (const char* vr : {"UT", "UC", "OF", "ZZ"})
    EXPECT_THAT(fault(file(longElement(vr, kUndefined, kText + kSequenceEnd))), HasSubstr("damaged")) << vr;
}

TEST(TheStructure, isRefusedWhereThereAreMorePartsThanInAnyReport) {
  // One element is the header's.
  std::string many;
  for (int i = 0; i < 99'999; ++i) many += kText;
  EXPECT_EQ(fault(file(many)), "");
  EXPECT_THAT(fault(file(many + kText)), HasSubstr("more parts"));
}

TEST(TheStructure, isRefusedWhereNestedTooDeep) {
  // Without lengths, each level takes twenty bytes; DCMTK would read them by recursion.
  std::string deep;
  for (int i = 0; i < 20000; ++i) deep += sequence(kUndefined, item(kUndefined, ""));
  EXPECT_THAT(fault(file(deep)), HasSubstr("deeper"));
}

TEST(TheStructure, isRefusedWhereNestedTooDeepWithoutRepresentations) {
  std::string deep;
  for (int i = 0; i < 2000; ++i) {
    const auto length = static_cast<std::uint32_t>(deep.size());
    deep.insert(0, tag(0x40, 0xA730) + little(length + 8, 4) + item(length, ""));
  }
  EXPECT_THAT(fault(file(deep, "1.2.840.10008.1.2")), HasSubstr("deeper"));
}

TEST(OtherFiles, areNoDicomFiles) {
  for (const std::string& text :
       {std::string(), std::string("DICM"), std::string(200, 'x'), std::string(131, '\0')})
    EXPECT_THAT(fault(text), HasSubstr("no DICOM file"));
  EXPECT_THAT(fault(file("", "1.2.840.10008.1.2.1.99")), HasSubstr("compressed"));
  EXPECT_THAT(fault(std::string(128, '\0') + "DICM"), HasSubstr("does not say"));
  EXPECT_THAT(fault(std::string(128, '\0') + "DICM" + kText), HasSubstr("does not say"));
}

TEST(WhatIsWrongWithAFile, isSaidInTheLanguageOfTheReader) {
  const std::string text = "no report";
  const auto found = dicom::dataSetIn(std::as_bytes(std::span(text)));
  EXPECT_EQ(said(std::get<1>(found), MarkedLocalizer()), "[ReportFiles:is no DICOM file]");
}

}  // namespace
}  // namespace nascor::tests
