// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom/DcmtkReportFiles.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "exchange/Codes.h"
#include "support/InEnglish.h"

namespace nascor::tests {
namespace {

using exchange::ContentItem;
using exchange::StructuredReport;
using exchange::ValueType;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace term = exchange::term;

using Bytes = std::vector<std::byte>;

exchange::ReportFiles& files() {
  static dicom::DcmtkReportFiles files;
  return files;
}

Bytes machineReport(const std::string& name) {
  std::ifstream stream(std::string(NASCOR_REPORTS "/") + name + ".dcm", std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(stream)), {});
  EXPECT_FALSE(text.empty()) << name;
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

StructuredReport readReport(const std::string& name) {
  auto report = files().read(machineReport(name));
  if (auto* why = std::get_if<foundation::Sentence>(&report)) ADD_FAILURE() << name << " " << inEnglish(*why);
  return report.index() == 0 ? std::get<0>(report) : StructuredReport();
}

ContentItem item(ValueType type, const exchange::Term& name, std::string text, const exchange::Term& code) {
  return {.type = type,
          .relationship = "CONTAINS",
          .name = name.code(),
          .text = std::move(text),
          .code = code.code(),
          .items = {}};
}

/// One of each kind of item.
StructuredReport aReport() {
  StructuredReport report;
  report.sopClass = exchange::kComprehensiveSR;
  report.instanceUID = "2.25.1";
  report.seriesUID = "2.25.2";
  report.studyUID = "2.25.3";
  report.patientID = "MÜLLER-Ž";
  report.studyDate = "20261113";
  report.contentDate = "20261113";
  report.hasContent = true;
  report.root = item(ValueType::container, term::report, "", {});
  report.root.relationship = "";
  ContentItem section = item(ValueType::container, term::fetalBiometry, "", {});
  section.items = {item(ValueType::text, term::fetusID, "Größe", {}),
                   item(ValueType::number, term::bpd, "60.9", term::millimetre),
                   item(ValueType::date, term::edd, "20270304", {}),
                   item(ValueType::code, term::equation, "", exchange::kWeightEquations[0])};
  report.root.items.push_back(section);
  return report;
}

/// Everything that an item says, on one line.
std::string described(const ContentItem& item) {
  std::string text = item.relationship + " " + std::to_string(static_cast<int>(item.type)) + " " +
                     item.name.value + "," + item.name.scheme + "," + item.name.meaning + "=" + item.text +
                     " " + item.code.value + "," + item.code.scheme + "," + item.code.meaning + "(";
  for (const ContentItem& child : item.items) text += described(child);
  return text + ")";
}

Bytes written(const StructuredReport& report) {
  auto bytes = files().write(report);
  EXPECT_EQ(bytes.index(), 0U);
  return std::get<0>(bytes);
}

TEST(AReport, readsBackAsItWasWritten) {
  const auto read = files().read(written(aReport()));
  ASSERT_EQ(read.index(), 0U) << inEnglish(std::get<1>(read));
  const StructuredReport& report = std::get<0>(read);
  EXPECT_EQ(report.sopClass, exchange::kComprehensiveSR);
  EXPECT_EQ(report.patientID, "MÜLLER-Ž");
  EXPECT_EQ(report.studyDate, "20261113");
  EXPECT_EQ(report.contentDate, "20261113");
  EXPECT_TRUE(report.hasContent);
  EXPECT_THAT(report.warnings, IsEmpty());
  EXPECT_EQ(described(report.root), described(aReport().root));
}

TEST(AReport, thatIsLongIsWrittenWhole) {
  StructuredReport report = aReport();
  for (int i = 0; i < 1500; ++i) report.root.items.push_back(report.root.items[0]);
  const Bytes bytes = written(report);
  EXPECT_GT(bytes.size(), 750000U);
  const auto read = files().read(bytes);
  ASSERT_EQ(read.index(), 0U);
  EXPECT_EQ(std::get<0>(read).root.items.size(), 1501U);
}

/// Each cut must be refused, or be the whole but for what does not belong to the content.
void expectNoPart(const Bytes& whole) {
  const auto all = files().read(whole);
  ASSERT_EQ(all.index(), 0U) << inEnglish(std::get<1>(all));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto cut = files().read(std::span(whole).first(length));
    if (cut.index() == 1) continue;
    // Behind an element at the top a file may end: then all of the content is there, or none.
    const StructuredReport& report = std::get<0>(cut);
    if (report.hasContent) {
      EXPECT_EQ(described(report.root), described(std::get<0>(all).root)) << length;
    }
  }
}

TEST(AReportThatIsCutOff, givesNoPart) { expectNoPart(written(aReport())); }

TEST(AReportThatIsCutOff, givesNoPartWithoutLengthsNorRepresentations) {
  expectNoPart(machineReport("calculated"));
  expectNoPart(machineReport("early"));
  expectNoPart(machineReport("plain"));
}

TEST(AReportWithAnyByteChanged, isReadOrRefused) {
  const Bytes whole = machineReport("calculated");
  // A sample of all places; the fuzzer tries the others.
  for (std::size_t at = 0; at < whole.size(); at += 11) {
    Bytes changed = whole;
    changed[at] ^= std::byte{0xFF};
    const auto read = files().read(changed);
    EXPECT_TRUE(read.index() == 0 || !inEnglish(std::get<1>(read)).empty());
  }
}

TEST(TheTextsOfAReport, areReadByTheirCharacterSet) {
  EXPECT_EQ(readReport("early").patientID, "MÜLLER-1") << "ISO_IR 100";
  EXPECT_EQ(readReport("utf8").patientID, "ŽÍ-1") << "ISO_IR 192";
  EXPECT_EQ(readReport("iso-2022-escaped").patientID, "MÜ-1");
  EXPECT_EQ(readReport("iso-2022").patientID, "MÜ-1") << "without the sequence that switches";
  for (const char* name : {"early", "utf8", "iso-2022-escaped", "iso-2022"})
    EXPECT_THAT(readReport(name).warnings, IsEmpty()) << name;
}

TEST(ATextThatDoesNotFitItsCharacterSet, isSaid) {
  const StructuredReport report = readReport("not-ascii");
  EXPECT_EQ(report.patientID, "M\xEF\xBF\xBD-1");
  EXPECT_THAT(inEnglish(report.warnings), ElementsAre(HasSubstr("character set")));
}

TEST(TheEncodingsOfAFile, areAllThreeRead) {
  // Little endian, without representations, big endian.
  for (const char* name : {"means", "calculated", "groups"}) {
    const StructuredReport report = readReport(name);
    EXPECT_EQ(report.root.name.value, "125000") << name;
    EXPECT_EQ(report.patientID, "AB-123") << name;
    EXPECT_GT(report.root.items.size(), 2U) << name;
  }
}

TEST(ThePatientsName, isNotRead) {
  EXPECT_EQ(described(readReport("means").root).find("Made"), std::string::npos);
}

}  // namespace
}  // namespace nascor::tests
