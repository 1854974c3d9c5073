// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/RowFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "calc/Centile.h"
#include "calc/FetalWeight.h"
#include "calc/References.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"
#include "rows/Warnings.h"

namespace nascor::rows {

namespace {

constexpr int kDecimals = 1;
constexpr int kZDecimals = 3;

bool needsReference(Content content) {
  return content == Content::mean || content == Content::sd || content == Content::zScore;
}

/// What is known of a row that has an error.
bool isKnownOfAnError(Content content) {
  return content == Content::file || content == Content::kept || content == Content::error;
}

}  // namespace

void appendCsvText(std::string& out, std::string_view text) {
  const auto isMark = [](char byte) { return byte == ',' || byte == '"' || byte == '\r' || byte == '\n'; };
  if (std::ranges::none_of(text, isMark)) {
    out += text;
    return;
  }
  out += '"';
  for (std::size_t start = 0;;) {
    const std::size_t quote = text.find('"', start);
    out += text.substr(start, quote - start);
    if (quote == std::string_view::npos) break;
    out += "\"\"";
    start = quote + 1;
  }
  out += '"';
}

RowFormat::RowFormat(std::vector<Column> columns, Settings settings) : settings_(settings) {
  const bool isJson = settings_.style == Style::jsonLines;
  for (Column& column : columns) {
    std::string prefix(cells_.empty() ? (isJson ? "{" : "") : ",");
    if (isJson) {
      foundation::JsonText(prefix).text(column.name);
      prefix += ':';
    }
    std::size_t standard = 0;
    if (needsReference(column.content)) {
      standard = static_cast<std::size_t>(std::ranges::find(standards_, column.number) - standards_.begin());
      if (standard == standards_.size()) standards_.push_back(column.number);
    }
    cells_.push_back({.prefix = std::move(prefix), .column = std::move(column), .standard = standard});
  }
  for (std::size_t place = 0; place < weeks_.size(); ++place) {
    const auto standard = static_cast<std::int64_t>(place);
    tables_.emplace_back(standard);
    calc::appendStandard(weeks_[place], standard, calc::kMeasurements.front());
  }
}

void RowFormat::appendHeader(std::string& out) const {
  if (settings_.style == Style::jsonLines) return;
  for (const auto& [prefix, column, standard] : cells_) {
    out += prefix;
    // The name of a column of the input is as it came, quotation marks and all.
    column.content == Content::kept ? static_cast<void>(out += column.name) : appendCsvText(out, column.name);
  }
  out += '\n';
}

std::optional<std::size_t> RowFormat::placeOf(std::int64_t standard, const Row& row) {
  if (standard != kOwnStandard) return static_cast<std::size_t>(standard);
  if (!calc::growthStandard(row.standard)) return std::nullopt;
  return static_cast<std::size_t>(row.standard);
}

RowFormat::Normals RowFormat::normalsBy(std::int64_t standard, const Row& row) const {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  Normals normals{.mean = {kNone, kNone, kNone, kNone}, .sd = {kNone, kNone, kNone, kNone}};
  const auto place = placeOf(standard, row);
  if (!place || row.age == 0.0 || !row.error.empty()) return normals;
  if (*place < tables_.size()) return tables_[*place].at(row.age);
  for (const calc::Measurement measurement : calc::kMeasurements) {
    const auto population =
        calc::populationAt(calc::references()[*place], calc::quantityOf(measurement), row.age);
    if (!population) continue;
    const auto at = static_cast<std::size_t>(measurement);
    normals.mean[at] = population->mean().value_or(0.0);
    normals.sd[at] = population->sd().value_or(0.0);
  }
  return normals;
}

void RowFormat::append(std::string& out, const Row& row) const {
  const bool isError = !row.error.empty();
  std::array<Normals, kMostStandards> normals;
  std::ranges::transform(standards_, normals.begin(),
                         [&](std::int64_t standard) { return normalsBy(standard, row); });
  RowText text(out);
  for (const Cell& cell : cells_) {
    text.append(cell.prefix);
    if (isError && !isKnownOfAnError(cell.column.content)) {
      appendEmpty(text);
    } else {
      appendCell(text, cell, row, normals);
    }
  }
  text.append(settings_.style == Style::jsonLines ? "}\n" : "\n");
  text.text();
}

void RowFormat::appendCell(RowText& text, const Cell& cell, const Row& row,
                           std::span<const Normals> normals) const {
  const Column& column = cell.column;
  const auto unlessZero = [&](double value) {
    value == 0.0 ? appendEmpty(text) : appendNumber(text, value, kDecimals);
  };
  switch (column.content) {
    case Content::kept: text.append(row.kept[static_cast<std::size_t>(column.number)]); return;
    case Content::file:
      settings_.namesFiles ? appendText(text, row.fileName)
                           : appendInteger(text, static_cast<std::int64_t>(row.filePlace));
      return;
    case Content::examination: return appendInteger(text, static_cast<std::int64_t>(row.examination));
    case Content::fetus: return appendInteger(text, static_cast<std::int64_t>(row.fetus));
    case Content::examDate: return appendText(text, row.examDate);
    case Content::edd: return appendText(text, row.edd);
    case Content::daysToEDD: return row.daysToEDD ? appendInteger(text, *row.daysToEDD) : appendEmpty(text);
    case Content::age: return unlessZero(row.age);
    case Content::length: return unlessZero(row.lengths.*calc::memberFor(column.measurement));
    case Content::weight: return unlessZero(calc::estimatedFetalWeight(row.lengths, column.number));
    case Content::standard: return appendInteger(text, row.standard);
    case Content::mean:
    case Content::sd:
    case Content::zScore: break;
    case Content::referenceID: return appendText(text, row.referenceID);
    case Content::note: return appendText(text, row.note);
    case Content::warning: return appendWarning(text, row);
    case Content::error: return appendText(text, row.error);
  }
  const auto measurement = static_cast<std::size_t>(column.measurement);
  const double mean = normals[cell.standard].mean[measurement];
  const double sd = normals[cell.standard].sd[measurement];
  if (column.content == Content::mean) return appendNumber(text, mean, kDecimals);
  if (column.content == Content::sd) return appendNumber(text, sd, kDecimals);
  const double length = row.lengths.*calc::memberFor(column.measurement);
  if (length == 0.0) return appendEmpty(text);
  appendNumber(text, calc::zScore(length, mean, sd), kZDecimals);
}

void RowFormat::appendEmpty(RowText& text) const {
  if (settings_.style == Style::jsonLines) text.append("null");
}

void RowFormat::appendNumber(RowText& text, double value, int decimals) const {
  if (!std::isfinite(value)) return appendEmpty(text);
  char* at = text.room();
  text.end(settings_.isFixed ? foundation::writeFixedText(at, value, decimals)
                             : std::to_chars(at, at + RowText::kRoom, value).ptr);
}

void RowFormat::appendInteger(RowText& text, std::int64_t value) {
  char* at = text.room();
  text.end(std::to_chars(at, at + RowText::kRoom, value).ptr);
}

void RowFormat::appendText(RowText& text, std::string_view value) const {
  if (value.empty()) {
    appendEmpty(text);
  } else if (settings_.style == Style::jsonLines) {
    foundation::JsonText(text.text()).text(value);
  } else {
    appendCsvText(text.text(), value);
  }
}

void RowFormat::appendWarning(RowText& text, const Row& row) const {
  std::array<StandardInUse, calc::kGrowthStandardCount> standards;
  std::size_t count = 0;
  std::string beyond;
  for (const std::int64_t identifier : standards_) {
    const auto place = placeOf(identifier, row);
    if (!place) continue;
    if (*place >= tables_.size()) {
      const calc::Reference& reference = calc::references()[*place];
      if (row.age != 0.0 && !calc::reaches(reference, row.age))
        beyond += "; " + outsideText(reference, row.age);
      continue;
    }
    const auto* standard = calc::growthStandard(static_cast<std::int64_t>(*place));
    const auto used = std::span(standards).first(count);
    if (std::ranges::find(used, standard, &StandardInUse::standard) != used.end()) continue;
    standards.at(count++) = {.standard = standard, .table = &weeks_[*place]};
  }
  std::string warning;
  appendWarnings(warning, row.lengths, row.age, std::span(standards).first(count));
  warning += warning.empty() && !beyond.empty() ? beyond.substr(2) : beyond;
  appendText(text, warning);
}

}  // namespace nascor::rows
