// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/CsvReader.h"

#include <gmock/gmock.h>

namespace nascor::rows {
namespace {

using Records = std::vector<std::vector<std::string>>;

/// What a reader makes of `text` that comes in pieces of `step` bytes; a last record says the error, if any.
Records recordsOf(std::string_view text, std::size_t step) {
  CsvReader reader;
  Records records;
  try {
    for (std::size_t at = 0;;) {
      const auto next = reader.next();
      if (next == CsvReader::Next::end) return records;
      if (next == CsvReader::Next::more) {
        const auto piece = text.substr(at, step);
        at += piece.size();
        piece.empty() ? reader.finish() : reader.read(piece);
        continue;
      }
      std::vector<std::string> record{std::to_string(reader.line())};
      for (const CsvCell& cell : reader.cells()) record.push_back(textOf(cell));
      records.push_back(record);
    }
  } catch (const CsvError& error) {
    records.push_back({"error", std::to_string(error.line())});
  }
  return records;
}

struct CsvCase {
  const char* name;
  std::string text;
  Records records;
};
class Csv : public testing::TestWithParam<CsvCase> {};

TEST_P(Csv, isReadAlikeInPiecesOfAnySize) {
  for (std::size_t step = 1; step <= GetParam().text.size() + 1; ++step) {
    EXPECT_EQ(recordsOf(GetParam().text, step), GetParam().records) << step;
  }
}

INSTANTIATE_TEST_SUITE_P(
    table, Csv,
    testing::Values(
        CsvCase{"nothing", "", {}}, CsvCase{"plain", "a,b\nc,d\n", {{"1", "a", "b"}, {"2", "c", "d"}}},
        CsvCase{"withoutLastEnd", "a,b\nc,d", {{"1", "a", "b"}, {"2", "c", "d"}}},
        CsvCase{"carriageReturns", "a\r\nb\rc\r\nd\r", {{"1", "a"}, {"2", "b\rc"}, {"3", "d"}}},
        CsvCase{"emptyLines", "\n\r\na\n\n\n,\n\r", {{"3", "a"}, {"6", "", ""}}},
        CsvCase{"byteOrderMark", "\xEF\xBB\xBF\"a\"\n\xEF\xBB\xBF\n", {{"1", "a"}, {"2", "\xEF\xBB\xBF"}}},
        CsvCase{"quoted", "\"a,\n\"\"b\"\"\",c\nd,\"\"\n", {{"1", "a,\n\"b\"", "c"}, {"3", "d", ""}}},
        CsvCase{"quotedLastCell", "a,\"b\"\r\n\"\"\"\"", {{"1", "a", "b"}, {"2", "\""}}},
        CsvCase{"quoteWithin", "a\"b\",c\n", {{"1", "a\"b\"", "c"}}},
        CsvCase{"lastCellEmpty", "a,\n,", {{"1", "a", ""}, {"2", "", ""}}},
        CsvCase{"textBehindQuote", "a\n\"b\nb\"c\n", {{"1", "a"}, {"error", "3"}}},
        CsvCase{"returnBehindQuote", "\"b\"\rc\n", {{"error", "1"}}},
        CsvCase{"quoteThatNeverCloses", "a\nb,\"c\n", {{"1", "a"}, {"error", "2"}}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CsvCells, areWrittenAsTheyCameUnlessTheyNeedQuotationMarks) {
  const auto written = [](const CsvCell& cell) {
    std::string out;
    appendCell(out, cell);
    return out;
  };
  EXPECT_EQ(written({"plain", false}), "plain");
  EXPECT_EQ(written({"\"plain\"", true}), "\"plain\"");
  EXPECT_EQ(written({"5\" long", false}), "\"5\"\" long\"");
  EXPECT_EQ(written({"a\rb", false}), "\"a\rb\"");
}

TEST(Csv, refusesARecordWithoutEnd) {
  CsvReader reader;
  const std::string piece(std::size_t{1} << 20, 'x');
  std::size_t taken = 0;
  EXPECT_THROW(
      {
        while (reader.next() == CsvReader::Next::more && taken < 64) {
          reader.read(piece);
          ++taken;
        }
      },
      CsvError);
  EXPECT_LE(taken, 5U);
}

}  // namespace
}  // namespace nascor::rows
