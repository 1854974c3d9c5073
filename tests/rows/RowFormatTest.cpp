// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/RowFormat.h"

#include <gmock/gmock.h>

#include <array>
#include <charconv>

#include "calc/Centile.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "rows/Calculation.h"
#include "rows/Warnings.h"

namespace nascor::rows {
namespace {

std::vector<double> numbersOf(const std::string& row, std::size_t count) {
  std::vector<double> numbers;
  for (std::size_t at = 0; numbers.size() < count;) {
    std::size_t used = 0;
    numbers.push_back(std::stod(row.substr(at), &used));
    at += used + 1;
  }
  return numbers;
}

TEST(Rows, holdTheBitsOfTheLookUpsAndFormulas) {
  const RowFormat format(computedColumns({.standards = allStandards()}), {});
  const calc::Biometry lengths{.bpd = 48.3, .hc = 171.9, .ac = 150.1, .fl = 31.7};
  for (const double age : {8.0, 20.0, 20 + 3 / 7.0, 40.5, 44.0}) {
    std::vector<double> expected;
    for (std::int64_t formula = 0; formula < 8; ++formula) {
      expected.push_back(calc::estimatedFetalWeight(lengths, formula));
    }
    for (const std::int64_t standard : allStandards()) {
      for (const auto measurement : calc::kMeasurements) {
        calc::ReferenceTable table;
        calc::appendStandard(table, standard, measurement);
        expected.push_back(calc::meanForGestation(table, age));
        expected.push_back(calc::sdForGestation(table, age));
        expected.push_back(calc::zScore(table, lengths.*calc::memberFor(measurement), age));
      }
    }
    std::string written;
    format.append(written, {.age = age, .lengths = lengths});
    EXPECT_EQ(numbersOf(written, expected.size()), expected) << age;
  }
}

TEST(Rows, bearTheGreatestNumber) {
  const std::vector<Column> columns{
      {.name = "bpd_mm", .content = Content::length, .measurement = calc::Measurement::bpd}};
  std::string out;
  RowFormat(columns, {.isFixed = true}).append(out, {.lengths = {.bpd = -1.7976931348623157e308}});
  EXPECT_EQ(out.size(), 1U + 309 + 2 + 1);
  out.clear();
  RowFormat(columns, {}).append(out, {.lengths = {.bpd = 5e-324}});
  EXPECT_EQ(out, "5e-324\n");
}

TEST(CsvTexts, areQuotedWhereTheyMustBe) {
  const auto written = [](std::string_view text) {
    std::string out;
    appendCsvText(out, text);
    return out;
  };
  EXPECT_EQ(written("=1+1;' x"), "=1+1;' x");
  EXPECT_EQ(written("a,b"), "\"a,b\"");
  EXPECT_EQ(written("a\nb"), "\"a\nb\"");
  EXPECT_EQ(written("a\rb"), "\"a\rb\"");
  EXPECT_EQ(written("\""), "\"\"\"\"");
}

TEST(Measured, isNothingForNumbersNextToZero) {
  EXPECT_EQ(measuredFromText("1e-999"), 0.0);
  EXPECT_EQ(measuredFromText("1e999"), std::nullopt);
  EXPECT_EQ(measuredFromText("-1e999"), std::nullopt);
  EXPECT_EQ(measuredFromText("1e-310"), 1e-310);
}

TEST(PlainNumbers, areTheNearestDoubles) {
  std::uint64_t bits = 1;
  const auto next = [&] { return (bits = bits * 6364136223846793005U + 1442695040888963407U) >> 33U; };
  for (int i = 0; i < 100'000; ++i) {
    std::string text;
    const std::size_t count = 1 + next() % 15;
    for (std::size_t digit = 0; digit < count; ++digit) text += static_cast<char>('0' + next() % 10);
    if (count < 15 && next() % 4 != 0) text.insert(next() % (count + 1), ".");
    double nearest = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), nearest);
    ASSERT_EQ(plainNumber(text), nearest) << text;
  }
  for (const char* text : {"999999999999999", ".99999999999999", "00000000000.001", "5.", ".5", "0", "0."})
    EXPECT_EQ(plainNumber(text), std::stod(text)) << text;
}

TEST(PlainNumbers, areNoOtherTexts) {
  for (const char* text : {"", ".", "-1", "+1", "1e1", " 1", "1 ", "1..", "1.2.3", "1,5", "/", ":", "nan",
                           "inf", "0x1", "1234567890123456", "1.00000000000000", "\xD9\xA4"}) {
    EXPECT_EQ(plainNumber(text), std::nullopt) << text;
  }
}

TEST(Rows, holdCellsOfAnyLengthInTheirOrder) {
  const std::vector<Column> columns{{.name = "a", .content = Content::note},
                                    {.name = "b", .content = Content::fetus},
                                    {.name = "c", .content = Content::kept, .number = 0},
                                    {.name = "d", .content = Content::error}};
  for (const std::size_t size : {1U, 2U, 319U, 320U, 321U, 960U, 1280U, 5000U}) {
    const std::string note(size, 'n');
    const std::string kept(size, 'k');
    const std::array<std::string_view, 1> cells{kept};
    std::string out = "before\n";
    RowFormat(columns, {}).append(out, {.fetus = 7, .note = note, .kept = cells});
    EXPECT_EQ(out, "before\n" + note + ",7," + kept + ",\n");
  }
  const std::vector<Column> many(
      500, {.name = "x", .content = Content::length, .measurement = calc::Measurement::hc});
  std::string out;
  RowFormat(many, {.isFixed = true}).append(out, {.lengths = {.hc = -1.7976931348623157e308}});
  EXPECT_EQ(out.size(), 500U * (1 + 309 + 2 + 1));
}

TEST(Warnings, areSilentForAnUnknownAge) {
  std::string out;
  calc::ReferenceTable table;
  calc::appendStandard(table, 0, calc::Measurement::bpd);
  const std::array<StandardInUse, 1> standards{{{calc::growthStandard(0), &table}}};
  appendWarnings(out, {}, 0.0, standards);
  EXPECT_EQ(out, "");
}

}  // namespace
}  // namespace nascor::rows
