// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// A mebibyte of anything is read, or refused, within a tenth of a second.

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "archive/FormatError.h"
#include "exchange/FhirReader.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/LeadingInteger.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"
#include "foundation/Utf8.h"
#include "model/PatientFile.h"
#include "model/PatientJsonReader.h"
#include "posix/PosixCalendar.h"
#include "reports/Reports.h"
#include "rows/CsvReader.h"
#include "support/HeavyDocuments.h"
#include "support/Spent.h"
#include "tar/TarReader.h"

namespace nascor::cli {
namespace {

constexpr std::size_t kMebibyte = std::size_t{1} << 20U;
constexpr double kMostSecondsOfAReader = tests::kIsSlowed ? 5.0 : 0.1;

/// Other programs on the machine make a reader slower, never quicker: the best of a few tries counts.
void expectQuick(const std::string& name, const std::function<void()>& read,
                 double mostSeconds = kMostSecondsOfAReader) {
  constexpr int kTries = 20;
  double seconds = 0.0;
  for (int i = 0; i == 0 || (i < kTries && seconds >= mostSeconds); ++i) {
    const tests::Spent spent;
    read();
    seconds = spent.seconds();
  }
  EXPECT_LT(seconds, mostSeconds) << name;
}

TEST(AMebibyteOfText, isReadOrRefusedAtOnceByWhateverReadsTexts) {
  const posix::PosixCalendar calendar;
  const foundation::ShortDateForm form = foundation::EnglishLocalizer().shortDateForm();
  auto texts = tests::heavyTexts(kMebibyte);
  for (const char* piece : {"1", "-", "1/", "0.", "9999999999 ", "\\", "\"", "{\"a\":", "[", "\xFF", "e9"})
    texts.push_back({piece, tests::repeated(piece, kMebibyte)});
  for (const tests::HeavyText& each : texts) {
    const std::string& name = each.name;
    const std::string& text = each.text;
    expectQuick(name + " as a number", [&] { static_cast<void>(foundation::numberFromFieldText(text)); });
    expectQuick(name + " as a whole number",
                [&] { static_cast<void>(foundation::integerFromFieldText(text)); });
    expectQuick(name + " as a leading number", [&] { static_cast<void>(foundation::leadingInteger(text)); });
    expectQuick(name + " as a date",
                [&] { static_cast<void>(foundation::civilDayFromShortText(text, form)); });
    expectQuick(name + " as an ISO date", [&] { static_cast<void>(dateFromIsoText(text, calendar)); });
    expectQuick(name + " as an old gravidity", [&] { static_cast<void>(model::gravidaFromOldText(text)); });
    expectQuick(name + " as a line", [&] { static_cast<void>(foundation::shownLine(text)); });
    expectQuick(name + " as JSON", [&] {
      EXPECT_THROW(static_cast<void>(model::patientFromJson(text, calendar)), model::JsonDocumentError);
    });
    expectQuick(name + " as a file", [&] {
      EXPECT_THROW(static_cast<void>(model::unarchivedPatient(std::as_bytes(std::span(text)))),
                   archive::FormatError);
    });
    // A control character takes six bytes.
    constexpr std::size_t kLongestEscape = 6;
    std::string note = "{\"maternalIDString\":";
    foundation::JsonText(note).text(std::string_view(text).substr(0, kMebibyte / kLongestEscape));
    note += '}';
    expectQuick(name + " within JSON", [&] { static_cast<void>(model::patientFromJson(note, calendar)); });
  }
}

/// Reads a table to its end, or to where it is none.
void readTable(std::string_view text) {
  rows::CsvReader reader;
  reader.read(text);
  reader.finish();
  try {
    while (reader.next() != rows::CsvReader::Next::end) continue;
  } catch (const rows::CsvError&) {
    return;
  }
}

void readArchive(std::string_view text) {
  tar::TarReader reader(
      [left = text]() mutable -> std::variant<std::span<const char>, foundation::Sentence> {
        return std::span<const char>(std::exchange(left, {}));
      },
      ".nascor");
  while (reader.next()) continue;
}

/// A file of a report in explicit little endian whose data set this is.
std::string asReport(std::string_view dataSet) {
  constexpr std::size_t kPreamble = 128;
  std::string file(kPreamble, '\0');
  file += "DICM";
  file.append("\x02\x00\x10\x00UI\x14\x00", 8).append("1.2.840.10008.1.2.1\0", 20).append(dataSet);
  return file;
}

TEST(AMebibyteOfText, isReadOrRefusedAtOnceAsATableAnArchiveOrAReport) {
  auto texts = tests::heavyTexts(kMebibyte);
  // A text, a sequence and an item of undefined length, an item of none: by the bytes of a report.
  const std::string text("\x40\x00\x60\xA1UT\0\0\x04\0\0\0text", 16);
  const std::string sequence("\x40\x00\x30\xA7SQ\0\0\xFF\xFF\xFF\xFF\xFE\xFF\x00\xE0\xFF\xFF\xFF\xFF", 20);
  const std::string emptyItem("\xFE\xFF\x00\xE0\0\0\0\0", 8);
  for (const std::string& piece :
       {std::string(","), std::string("\""), std::string("\"\","), std::string("\n"), std::string("1,2\n"),
        std::string("[{\"a\":"), std::string("{\"resourceType\":\"Patient\"},"), std::string(512, '\0'),
        std::string(1, '\0'), text, sequence, emptyItem})
    texts.push_back({"a text of " + foundation::shownLine(piece), tests::repeated(piece, kMebibyte)});
  for (const tests::HeavyText& each : texts) {
    expectQuick(each.name + " as a table", [&] { readTable(each.text); });
    expectQuick(each.name + " as an archive", [&] { readArchive(each.text); });
    const std::string bundle = R"({"resourceType":"Bundle","entry":[)" + each.text;
    expectQuick(each.name + " as a bundle",
                [&] { EXPECT_EQ(exchange::reportsInBundle(bundle).index(), 1U); });
    const std::string table = "exam_date,bpd_mm\n" + each.text;
    expectQuick(each.name + " as rows of examinations",
                [&] { EXPECT_EQ(reports::findingsIn(std::as_bytes(std::span(table))).index(), 1U); });
    const std::string report = asReport(each.text);
    expectQuick(each.name + " as a report",
                [&] { static_cast<void>(reports::reportsIn(std::as_bytes(std::span(report)))); });
  }
}

/// Up to a mebibyte of rows, each of another day, which stands between `begin` and `end`.
std::string tableOfDays(const std::string& header, const std::string& begin, const std::string& end) {
  std::string table = header;
  for (std::int64_t day = 0; table.size() + begin.size() + end.size() + 10 <= kMebibyte; ++day) {
    const auto civil = foundation::civilDayFromDaysSince2001(day).value();
    table.append(begin).append(std::to_string(civil.year));
    for (const int part : {civil.month, civil.day})
      table.append(part < 10 ? "-0" : "-").append(std::to_string(part));
    table.append(end);
  }
  return table;
}

TEST(AMebibyteOfRows, isReadOrRefusedAtOnceAsATableOfExaminations) {
  const std::string header = "exam_date,bpd";
  const std::pair<std::string, std::size_t> tables[] = {
      {tableOfDays(header + ",hc,ac,fl,fetus,edd,reference_id\n", "",
                   ",60.9,227.3,202.8,44.9,0,2027-03-04,AB-123\n"),
       0},
      {tableOfDays(header + "\n", "", ",60\n"), 0},
      {tableOfDays(header + "\n", "", ",x\n"), 1},
      {header + "\n" + tests::repeated("2026-11-13,\n", kMebibyte), 1},
      {header + std::string(kMebibyte, ',') + "\n2026-11-13,60\n", 1},
      {header + "\n2026-11-13," + std::string(kMebibyte, ',') + "\n", 1},
      {header + "\n2026-11-13,\"" + std::string(kMebibyte, 'x') + "\"\n", 1}};
  for (const auto& row : tables) {
    // No structured binding: clang 14 lets no lambda capture one.
    const std::string& table = row.first;
    const std::size_t outcome = row.second;
    expectQuick(table.substr(0, 80),
                [&] { EXPECT_EQ(reports::findingsIn(std::as_bytes(std::span(table))).index(), outcome); });
  }
}

/// Private elements without values, of tags in order.
std::string privateElements(std::uint32_t count) {
  constexpr std::uint32_t kFirst = 0x00090000U;
  std::string all;
  for (std::uint32_t tag = kFirst; tag < kFirst + count; ++tag) {
    for (const unsigned place : {16U, 24U, 0U, 8U}) all += static_cast<char>(tag >> place & 0xFFU);
    all.append("LO\0\0", 4);
  }
  return all;
}

TEST(AReportOfManyParts, isReadOrRefusedSoon) {
  const auto read = [](const std::string& report) {
    return reports::reportsIn(std::as_bytes(std::span(report))).index();
  };
  const std::string tooMany = asReport(privateElements(kMebibyte / 8));
  expectQuick("more than are read", [&] { EXPECT_EQ(read(tooMany), 1U); });
  // DCMTK takes two or three microseconds for each.
  const std::string most = asReport(privateElements(99'000));
  expectQuick(
      "as many as are read", [&] { EXPECT_EQ(read(most), 0U); }, 5.0 * kMostSecondsOfAReader);
}

TEST(AMebibyteOfText, isReadAtOnceWithinAFile) {
  const posix::PosixCalendar calendar;
  for (const tests::HeavyText& each : tests::heavyTexts(kMebibyte / 2)) {
    const auto bytes =
        model::archivedPatient(*tests::heavyPatient({.identifier = each.text, .note = each.text}, calendar));
    expectQuick(each.name, [&] { EXPECT_TRUE(model::unarchivedPatient(bytes).patient); });
  }
}

}  // namespace
}  // namespace nascor::cli
