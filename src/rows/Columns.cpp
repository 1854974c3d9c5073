// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/Columns.h"

#include <numeric>

#include "calc/FetalWeight.h"
#include "calc/Standards.h"

namespace nascor::rows {

namespace {

void append(std::vector<Column>& columns, const char* name, Content content) {
  columns.push_back({.name = name, .content = content});
}

void appendWeights(std::vector<Column>& columns, std::optional<std::int64_t> formula) {
  for (std::size_t place = 0; place < calc::weightFormulas().size(); ++place) {
    const auto identifier = static_cast<std::int64_t>(place);
    if (formula && *formula != identifier) continue;
    columns.push_back({.name = "efw_" + std::to_string(place) + "_g",
                       .content = Content::weight,
                       .measurement = {},
                       .number = identifier});
  }
}

/// Mean, standard deviation and z-score of each length.
void appendBlock(std::vector<Column>& columns, std::int64_t standard) {
  const std::string prefix =
      standard == kOwnStandard
          ? std::string()
          : std::string(calc::references()[static_cast<std::size_t>(standard)].name) + "_";
  for (const calc::Measurement measurement : calc::kMeasurements) {
    const auto appendOne = [&](const char* ending, Content content) {
      columns.push_back({.name = prefix + std::string(calc::nameOf(measurement)) + ending,
                         .content = content,
                         .measurement = measurement,
                         .number = standard});
    };
    appendOne("_mean_mm", Content::mean);
    appendOne("_sd_mm", Content::sd);
    appendOne("_z", Content::zScore);
  }
}

void appendOwnBlock(std::vector<Column>& columns) {
  append(columns, "standard", Content::standard);
  appendBlock(columns, kOwnStandard);
}

void appendHead(std::vector<Column>& columns, bool datesAreRelative) {
  append(columns, "file", Content::file);
  append(columns, "exam", Content::examination);
  append(columns, "fetus", Content::fetus);
  if (datesAreRelative) {
    append(columns, "days_to_edd", Content::daysToEDD);
  } else {
    append(columns, "exam_date", Content::examDate);
    append(columns, "edd", Content::edd);
  }
  append(columns, "ga_weeks", Content::age);
  for (const calc::Measurement measurement : calc::kMeasurements) {
    columns.push_back({.name = std::string(calc::nameOf(measurement)) + "_mm",
                       .content = Content::length,
                       .measurement = measurement});
  }
}

void appendTail(std::vector<Column>& columns, bool identified) {
  if (identified) {
    append(columns, "reference_id", Content::referenceID);
    append(columns, "note", Content::note);
  }
  append(columns, "warning", Content::warning);
  append(columns, "error", Content::error);
}

/// The places of all references of which a block can be made.
std::vector<std::int64_t> allBlocks() {
  std::vector<std::int64_t> places;
  for (std::size_t place = 0; place < calc::references().size(); ++place) {
    if (hasBlock(calc::references()[place])) places.push_back(static_cast<std::int64_t>(place));
  }
  return places;
}

}  // namespace

bool hasBlock(const calc::Reference& reference) {
  const bool hasMeanAndSD =
      reference.form == calc::ReferenceForm::table || reference.form == calc::ReferenceForm::meanAndSD;
  return hasMeanAndSD && calc::covers(reference, calc::Quantity::bpd);
}

std::vector<std::int64_t> allStandards() {
  std::vector<std::int64_t> standards(calc::growthStandards().size());
  std::iota(standards.begin(), standards.end(), std::int64_t{0});
  return standards;
}

std::vector<Column> patientColumns(const Choice& choice) {
  std::vector<Column> columns;
  appendHead(columns, choice.datesAreRelative);
  appendWeights(columns, choice.formula);
  if (choice.standards.empty()) appendOwnBlock(columns);
  for (const std::int64_t standard : choice.standards) appendBlock(columns, standard);
  appendTail(columns, choice.identified);
  return columns;
}

std::vector<Column> computedColumns(const Choice& choice) {
  std::vector<Column> columns;
  appendWeights(columns, choice.formula);
  for (const std::int64_t standard : choice.standards) appendBlock(columns, standard);
  appendTail(columns, false);
  return columns;
}

std::vector<Column> everyPatientColumn(bool identified, bool datesAreRelative) {
  std::vector<Column> columns;
  appendHead(columns, datesAreRelative);
  appendWeights(columns, std::nullopt);
  appendOwnBlock(columns);
  for (const std::int64_t standard : allBlocks()) appendBlock(columns, standard);
  appendTail(columns, identified);
  return columns;
}

std::vector<Column> everyComputedColumn() {
  return computedColumns({.standards = allBlocks(), .formula = std::nullopt});
}

}  // namespace nascor::rows
