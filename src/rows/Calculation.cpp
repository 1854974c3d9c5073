// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/Calculation.h"

#include <algorithm>
#include <array>

namespace nascor::rows {

using foundation::Sentence;

namespace {

std::vector<std::string> textsOf(std::span<const CsvCell> cells) {
  std::vector<std::string> texts;
  for (const CsvCell& cell : cells) texts.push_back(textOf(cell));
  return texts;
}

}  // namespace

Calculation::Calculation(std::span<const CsvCell> header, const Choice& choice,
                         const std::optional<std::vector<std::string>>& names, bool isFixed)
    : inputNames_(textsOf(header)),
      places_(measuredPlaces(header)),
      columns_(chosenColumns(inputNames_, header, choice, names)),
      format_(columns_, {.style = Style::csv, .isFixed = isFixed, .namesFiles = false}),
      kept_(header.size()),
      quoted_(header.size()) {}

Calculation::Places Calculation::measuredPlaces(std::span<const CsvCell> header) {
  Places places = placesOf(kMeasuredColumns, header);
  if (std::ranges::none_of(places, &std::optional<std::size_t>::has_value)) {
    throw HeaderError(
        Sentence("Reading", "the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm"));
  }
  return places;
}

std::vector<Column> Calculation::chosenColumns(const std::vector<std::string>& inputNames,
                                               std::span<const CsvCell> header, const Choice& choice,
                                               const std::optional<std::vector<std::string>>& names) {
  std::vector<Column> input;
  for (const CsvCell& cell : header) {
    Column column{.name = {}, .content = Content::kept, .number = static_cast<std::int64_t>(input.size())};
    appendCell(column.name, cell);
    input.push_back(std::move(column));
  }
  const std::vector<Column> computed = everyComputedColumn();
  for (const Column& column : computed) {
    if (std::ranges::find(inputNames, column.name) != inputNames.end()) {
      throw HeaderError(
          Sentence("Reading", "the column %1 is one of those that are computed").with(column.name));
    }
  }

  if (!names) {
    std::ranges::copy(computedColumns(choice), std::back_inserter(input));
    return input;
  }
  std::vector<Column> columns;
  for (const std::string& name : *names) {
    const auto kept = std::ranges::find(inputNames, name);
    const auto found = std::ranges::find(computed, name, &Column::name);
    if (kept != inputNames.end()) {
      columns.push_back(input[static_cast<std::size_t>(kept - inputNames.begin())]);
    } else if (found != computed.end()) {
      columns.push_back(*found);
    } else {
      //: %1 stands in quotation marks.
      throw UnknownColumn(
          Sentence("Reading", "%1 is no column of the input and none that is computed").with(inQuotes(name)));
    }
  }
  return columns;
}

std::vector<Sentence> Calculation::missingColumns() const {
  std::vector<Sentence> missing;
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const InputColumn& column = kMeasuredColumns.at(i);
    //: Two names of one column.
    if (!places_[i]) missing.push_back(Sentence("Reading", "%1 or %2").with(column.name, column.shortName));
  }
  return missing;
}

std::optional<Sentence> Calculation::read(std::span<const CsvCell> record, Row& row) const {
  if (record.size() != inputNames_.size()) return cellCountSentence(inputNames_.size(), record.size());
  std::vector<Sentence> wrong;
  std::array<double, kMeasuredColumns.size()> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (!places_[i]) continue;
    const CsvCell& cell = record[*places_[i]];
    const auto number = cell.isQuoted ? measuredFromText(textOf(cell)) : measuredFromText(cell.text);
    if (number) {
      numbers[i] = *number;
    } else {
      wrong.push_back(numberSentence(inputNames_[*places_[i]], textOf(cell)));
    }
  }
  const auto [age, bpd, hc, ac, fl] = numbers;
  row.age = age;
  row.lengths = {.bpd = bpd, .hc = hc, .ac = ac, .fl = fl};
  if (wrong.empty()) return std::nullopt;
  return Sentence::joined(std::move(wrong), "; ");
}

std::optional<Sentence> Calculation::append(std::string& out, std::span<const CsvCell> record) {
  for (const Column& column : columns_) {
    if (column.content != Content::kept) continue;
    const auto i = static_cast<std::size_t>(column.number);
    kept_[i] = i < record.size() ? record[i].text : std::string_view();
    if (i < record.size() && record[i].hasMarks) {
      quoted_[i].clear();
      appendCell(quoted_[i], record[i]);
      kept_[i] = quoted_[i];
    }
  }
  Row row{.kept = kept_};
  auto wrong = read(record, row);
  const std::string error = wrong ? english(*wrong) : std::string();
  row.error = error;
  format_.append(out, row);
  return wrong;
}

}  // namespace nascor::rows
