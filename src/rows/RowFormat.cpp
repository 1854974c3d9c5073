#include "rows/RowFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "calc/Centile.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
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

RowFormat::RowFormat(std::vector<Column> columns, Settings settings)
    : columns_(std::move(columns)), settings_(settings) {
  for (const Column& column : columns_) {
    const bool isJson = settings_.style == Style::jsonLines;
    std::string prefix(prefixes_.empty() ? (isJson ? "{" : "") : ",");
    if (isJson) {
      foundation::JsonText(prefix).text(column.name);
      prefix += ':';
    }
    prefixes_.push_back(std::move(prefix));

    std::size_t place = 0;
    if (needsReference(column.content)) {
      const auto isThis = [&](const Reference& each) {
        return each.standard == column.number && each.measurement == column.measurement;
      };
      place = static_cast<std::size_t>(std::ranges::find_if(references_, isThis) - references_.begin());
      if (place == references_.size()) references_.push_back({column.number, column.measurement});
      if (std::ranges::find(standards_, column.number) == standards_.end())
        standards_.push_back(column.number);
    }
    referenceOf_.push_back(place);
  }
  for (std::size_t standard = 0; standard < tables_.size(); ++standard) {
    for (const calc::Measurement measurement : calc::kMeasurements) {
      calc::appendStandard(tables_[standard][static_cast<std::size_t>(measurement)],
                           static_cast<std::int64_t>(standard), measurement);
    }
  }
}

void RowFormat::appendHeader(std::string& out) const {
  if (settings_.style == Style::jsonLines) return;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    out += prefixes_[i];
    // The name of a column of the input is as it came, quotation marks and all.
    columns_[i].content == Content::kept ? static_cast<void>(out += columns_[i].name)
                                         : appendCsvText(out, columns_[i].name);
  }
  out += '\n';
}

std::optional<std::size_t> RowFormat::placeOf(std::int64_t standard, const Row& row) {
  if (standard != kOwnStandard) return static_cast<std::size_t>(standard);
  if (!calc::growthStandard(row.standard)) return std::nullopt;
  return static_cast<std::size_t>(row.standard);
}

RowFormat::Found RowFormat::foundBy(const Reference& reference, const Row& row) const {
  const auto place = placeOf(reference.standard, row);
  if (!place) return {};
  if (*place < tables_.size()) {
    const calc::ReferenceTable& table = tables_[*place][static_cast<std::size_t>(reference.measurement)];
    return {.isThere = true,
            .mean = calc::meanForGestation(table, row.age),
            .sd = calc::sdForGestation(table, row.age)};
  }
  const auto population =
      calc::populationAt(calc::references()[*place], calc::quantityOf(reference.measurement), row.age);
  if (!population) return {};
  return {.isThere = true, .mean = population->mean().value_or(0.0), .sd = population->sd().value_or(0.0)};
}

void RowFormat::append(std::string& out, const Row& row) const {
  std::array<Found, kMostReferences> found;
  if (row.error.empty() && row.age != 0.0) {
    for (std::size_t i = 0; i < references_.size(); ++i) found[i] = foundBy(references_[i], row);
  }
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    out += prefixes_[i];
    if (!row.error.empty() && !isKnownOfAnError(columns_[i].content)) {
      appendEmpty(out);
    } else {
      appendCell(out, i, row, std::span(found).first(references_.size()));
    }
  }
  if (settings_.style == Style::jsonLines) out += '}';
  out += '\n';
}

void RowFormat::appendCell(std::string& out, std::size_t place, const Row& row,
                           std::span<const Found> found) const {
  const Column& column = columns_[place];
  const double length = row.lengths.*calc::memberFor(column.measurement);
  const auto unlessZero = [&](double value) {
    value == 0.0 ? appendEmpty(out) : appendNumber(out, value, kDecimals);
  };
  switch (column.content) {
    case Content::kept: out += row.kept[static_cast<std::size_t>(column.number)]; return;
    case Content::file:
      settings_.namesFiles ? appendText(out, row.fileName)
                           : appendInteger(out, static_cast<std::int64_t>(row.filePlace));
      return;
    case Content::examination: return appendInteger(out, static_cast<std::int64_t>(row.examination));
    case Content::fetus: return appendInteger(out, static_cast<std::int64_t>(row.fetus));
    case Content::examDate: return appendText(out, row.examDate);
    case Content::edd: return appendText(out, row.edd);
    case Content::daysToEDD: return row.daysToEDD ? appendInteger(out, *row.daysToEDD) : appendEmpty(out);
    case Content::age: return unlessZero(row.age);
    case Content::length: return unlessZero(length);
    case Content::weight: return unlessZero(calc::estimatedFetalWeight(row.lengths, column.number));
    case Content::standard: return appendInteger(out, row.standard);
    case Content::mean:
    case Content::sd:
    case Content::zScore: break;
    case Content::referenceID: return appendText(out, row.referenceID);
    case Content::note: return appendText(out, row.note);
    case Content::warning: return appendWarning(out, row);
    case Content::error: return appendText(out, row.error);
  }
  const Found& reference = found[referenceOf_[place]];
  if (!reference.isThere) return appendEmpty(out);
  if (column.content == Content::mean) return appendNumber(out, reference.mean, kDecimals);
  if (column.content == Content::sd) return appendNumber(out, reference.sd, kDecimals);
  if (length == 0.0) return appendEmpty(out);
  appendNumber(out, calc::zScore(length, reference.mean, reference.sd), kZDecimals);
}

void RowFormat::appendEmpty(std::string& out) const {
  if (settings_.style == Style::jsonLines) out += "null";
}

void RowFormat::appendNumber(std::string& out, double value, int decimals) const {
  if (!std::isfinite(value)) return appendEmpty(out);
  if (settings_.isFixed) return foundation::appendFixedText(out, value, decimals);
  std::array<char, 32> buffer;
  out.append(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
}

void RowFormat::appendInteger(std::string& out, std::int64_t value) const {
  std::array<char, 20> buffer;
  out.append(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
}

void RowFormat::appendText(std::string& out, std::string_view text) const {
  if (text.empty()) {
    appendEmpty(out);
  } else if (settings_.style == Style::jsonLines) {
    foundation::JsonText(out).text(text);
  } else {
    appendCsvText(out, text);
  }
}

void RowFormat::appendWarning(std::string& out, const Row& row) const {
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
    standards.at(count++) = {.standard = standard, .table = &tables_[*place].front()};
  }
  std::string warning;
  appendWarnings(warning, row.lengths, row.age, std::span(standards).first(count));
  warning += warning.empty() && !beyond.empty() ? beyond.substr(2) : beyond;
  appendText(out, warning);
}

}  // namespace nascor::rows
