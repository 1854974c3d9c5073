// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "compare/Tables.h"

#include <algorithm>
#include <utility>

#include "calc/FetalWeight.h"
#include "compare/CellWriter.h"
#include "compare/Comparison.h"
#include "foundation/NumberText.h"
#include "model/FetusLabels.h"
#include "rows/RowFormat.h"

namespace nascor::compare {
namespace {

using calc::Measurement;
using calc::Method;
using calc::Quantity;
using foundation::Localizer;

constexpr int kSDDecimals = 2;
constexpr int kRatioDecimals = 3;

Cell label(std::string_view text) { return {.text = std::string(text)}; }

Method methodOf(const calc::Reference& reference, Quantity quantity) {
  return {.kind = Method::Kind::reference,
          .place = static_cast<std::size_t>(&reference - calc::references().data()),
          .quantity = quantity};
}

/// Nothing for a formula that is not known.
std::optional<Method> methodOfWeight(std::int64_t formula) {
  if (calc::weightFormula(formula) == nullptr) return std::nullopt;
  return Method{.kind = Method::Kind::weightFormula, .place = static_cast<std::size_t>(formula)};
}

/// Says of the cells that say nothing yet by which method they are worked out.
void addMethod(Row& row, const std::optional<Method>& method) {
  for (Cell& cell : row.cells) {
    if (!cell.method) cell.method = method;
  }
}

/// Ends each row with its remark.
void addRemarks(Table& table, const CellWriter& writer) {
  table.columns.push_back({.title = writer.text("Compare", "Remark")});
  for (Row& row : table.rows) row.cells.push_back(label(row.remark));
}

Table lengthsTable(const std::vector<Length>& lengths, std::int64_t standard, const CellWriter& writer) {
  Table table{
      .name = "lengths",
      .title = writer.text("Compare", "Lengths"),
      .columns = {{.title = writer.text("Compare", "Length")},
                  {.title = writer.text("Compare", "mm"), .isNumber = true},
                  {.title = writer.text("Compare", "Reference")},
                  {.title = writer.text("Compare", "Mean"),
                   .isNumber = true,
                   .explanation = writer.text("Compare",
                                              "The mean of the reference at this age, in mm. A "
                                              "reference that has curves alone has none.")},
                  {.title = writer.text("Compare", "SD"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "One standard deviation at this age, in mm.")},
                  {.title = writer.text("Compare", "Median"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "Half of the population lies below it, in mm.")},
                  {.title = writer.text("Compare", "z"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "Standard deviations from the mean.")},
                  {.title = writer.text("Compare", "Centile"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "How many of 100 lie below the value.")},
                  {.title = writer.text("Compare", "Age"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "The age of which the value is the median.")}},
      .rows = {}};
  for (const Length& length : lengths) {
    for (const Placed& figure : length.references) {
      table.rows.push_back(
          {.cells = {label(writer.name(calc::quantityOf(length.measurement))),
                     writer.number(length.value, kLengthDecimals), label(figure.reference->label),
                     writer.number(figure.mean, kLengthDecimals), writer.number(figure.sd, kSDDecimals),
                     writer.number(figure.median, kLengthDecimals), writer.z(figure.z),
                     writer.centile(figure.centile), writer.age(figure.weeks)},
           .remark = length.value ? writer.remark(figure) : std::string(),
           .isChosen = figure.reference == calc::referenceOfStandard(standard)});
      addMethod(table.rows.back(), methodOf(*figure.reference, calc::quantityOf(length.measurement)));
    }
  }
  addRemarks(table, writer);
  return table;
}

bool needsOneLength(const calc::WeightFormula& formula) {
  return std::ranges::any_of(calc::kMeasurements, [&formula](Measurement measurement) {
    calc::Biometry lengths;
    lengths.*calc::memberFor(measurement) = 1.0;
    return formula.weight(lengths) != 0.0;
  });
}

Table weightsTable(const std::vector<Weight>& weights, std::int64_t chosen, const CellWriter& writer) {
  Table table{
      .name = "weights",
      .title = writer.text("Compare", "Weights"),
      .columns = {{.title = writer.text("Compare", "Formula")},
                  {.title = writer.text("Compare", "g"), .isNumber = true},
                  {.title = writer.text("Compare", "Difference"),
                   .isNumber = true,
                   .explanation = writer.text("Compare", "From the weight by the formula in force, in g.")}},
      .rows = {}};
  for (const calc::Reference& reference : calc::references()) {
    if (!calc::covers(reference, Quantity::efw)) continue;
    table.columns.push_back(
        {.title = writer.text("Compare", "Centile").append(", ").append(reference.label),
         .isNumber = true,
         .explanation = writer.text("Compare", "The centile in this population of weights.")});
  }
  for (const Weight& weight : weights) {
    const calc::WeightFormula& formula = *calc::weightFormula(weight.formula);
    Row row{.cells = {label(formula.longLabel), writer.number(weight.grams, 0),
                      writer.change(weight.difference, 0)},
            .isChosen = weight.formula == chosen};
    if (weight.grams && needsOneLength(formula))
      row.remark = writer.text("Compare", "From one length alone.");
    addMethod(row, methodOfWeight(weight.formula));
    for (const Placed& figure : weight.references) {
      row.cells.push_back(writer.centile(figure.centile));
      row.cells.back().method = methodOf(*figure.reference, Quantity::efw);
      if (weight.grams) CellWriter::append(row.remark, writer.remark(figure));
    }
    table.rows.push_back(std::move(row));
  }
  addRemarks(table, writer);
  return table;
}

Table ratiosTable(const Ratios& ratios, const CellWriter& writer) {
  Table table{.name = "ratios",
              .title = writer.text("Compare", "Ratios"),
              .columns = {{.title = writer.text("Compare", "Ratio")},
                          {.title = writer.text("Compare", "Value"), .isNumber = true}},
              .rows = {}};
  struct Named {
    Quantity above;
    Quantity below;
    std::optional<double> value;
  };
  for (const auto& [above, below, value] :
       {Named{Quantity::hc, Quantity::ac, ratios.hcToAC}, Named{Quantity::fl, Quantity::ac, ratios.flToAC},
        Named{Quantity::fl, Quantity::bpd, ratios.flToBPD}}) {
    table.rows.push_back({.cells = {label(writer.name(above) + "/" + writer.name(below)),
                                    writer.number(value, kRatioDecimals)}});
    addMethod(table.rows.back(), Method{.kind = Method::Kind::quotient});
  }
  return table;
}

/// Every fetus of the examination, with the share by which it weighs less than the heaviest.
Table fetusesTable(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus,
                   const Localizer& localizer, const CellWriter& writer) {
  Table table{.name = "fetuses", .title = writer.text("Compare", "Fetuses"), .columns = {}, .rows = {}};
  table.columns.push_back({.title = writer.text("Compare", "Fetus")});
  for (const Quantity quantity : calc::kQuantities) {
    const bool isWeight = quantity == Quantity::efw;
    table.columns.push_back({.title = writer.name(quantity),
                             .isNumber = true,
                             .explanation = isWeight
                                                ? writer.text("Compare", "By the formula in force, in g.")
                                                : writer.text("Compare", "In mm.")});
  }
  table.columns.push_back(
      {.title = writer.text("Compare", "Discordance (%)"),
       .isNumber = true,
       .explanation = writer.text("Compare", "How much less this fetus weighs than the heaviest.")});
  const auto labels = model::fetusLabels(patient.numberOfFetuses());
  std::size_t place = 0;
  for (const Fetus& each : fetusesAt(patient, examination)) {
    Row row{.cells = {label(place < labels.size() ? localizer.text("NCDocument", labels[place])
                                                  : std::to_string(place + 1))},
            .isChosen = place == fetus};
    for (const Quantity quantity : calc::kQuantities) {
      row.cells.push_back(
          writer.number(each.values.at(static_cast<std::size_t>(quantity)), decimalsOf(quantity)));
    }
    row.cells.back().method = methodOfWeight(patient.fetalWeightStandard());
    row.cells.push_back(writer.number(each.less, 1));
    row.cells.back().method = methodOfWeight(patient.fetalWeightStandard());
    table.rows.push_back(std::move(row));
    ++place;
  }
  return table;
}

Table growthTable(const std::vector<Growth>& all, const model::PatientRecord& patient,
                  const CellWriter& writer) {
  Table table{.name = "growth",
              .title = writer.text("Compare", "Growth"),
              .columns = {{.title = writer.text("Compare", "Measure")},
                          {.title = writer.text("Compare", "Per Week"),
                           .isNumber = true,
                           .explanation = writer.text(
                               "Compare", "Since the last examination that has it: mm a week, or g a week.")},
                          {.title = writer.text("Compare", "Expected"),
                           .isNumber = true,
                           .explanation =
                               writer.text("Compare", "By how much the mean of the growth standard grows.")},
                          {.title = writer.text("Compare", "Change of z"),
                           .isNumber = true,
                           .explanation = writer.text("Compare", "By the growth standard in force.")}},
              .rows = {}};
  for (const Growth& growth : all) {
    const int decimals = decimalsOf(growth.quantity);
    table.rows.push_back(
        {.cells = {label(writer.name(growth.quantity)), writer.change(growth.perWeek, decimals),
                   writer.change(growth.expectedPerWeek, decimals), writer.z(growth.zChange)}});
    const calc::Reference* standard = calc::referenceOfStandard(patient.standard());
    if (growth.quantity == Quantity::efw) {
      addMethod(table.rows.back(), methodOfWeight(patient.fetalWeightStandard()));
    } else if (standard != nullptr) {
      addMethod(table.rows.back(), methodOf(*standard, growth.quantity));
    }
  }
  return table;
}

/// Appends the titles and the rows, cells with `between` after each but the last, and lines with `end`.
template <class AppendTitle, class AppendCell>
std::string lines(const Table& table, std::string_view between, std::string_view end,
                  const AppendTitle& appendTitle, const AppendCell& appendCell) {
  std::string text;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (i > 0) text += between;
    appendTitle(text, table.columns[i].title);
  }
  text += end;
  for (const Row& row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      if (i > 0) text += between;
      appendCell(text, row.cells[i], table.columns[i]);
    }
    text += end;
  }
  return text;
}

}  // namespace

Table tableOf(TableKind kind, const model::PatientRecord& patient, std::size_t examination, std::size_t fetus,
              const Localizer& localizer) {
  const CellWriter writer(localizer);
  switch (kind) {
    case TableKind::lengths:
      return lengthsTable(lengthsAt(patient, examination, fetus), patient.standard(), writer);
    case TableKind::weights:
      return weightsTable(weightsAt(patient, examination, fetus), patient.fetalWeightStandard(), writer);
    case TableKind::ratios: return ratiosTable(ratiosAt(patient, examination, fetus), writer);
    case TableKind::fetuses: return fetusesTable(patient, examination, fetus, localizer, writer);
    case TableKind::growth: break;
  }
  return growthTable(growthAt(patient, examination, fetus), patient, writer);
}

std::vector<Table> tablesOf(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus,
                            const Localizer& localizer) {
  std::vector<Table> tables;
  tables.reserve(kTableKinds.size());
  for (const TableKind kind : kTableKinds)
    tables.push_back(tableOf(kind, patient, examination, fetus, localizer));
  return tables;
}

std::string tabbedText(const Table& table) {
  const auto append = [](std::string& all, const std::string& text) { all += text; };
  return lines(table, "\t", "\n", append,
               [&append](std::string& all, const Cell& cell, const Column&) { append(all, cell.text); });
}

std::string csvText(const Table& table) {
  return lines(table, ",", "\r\n", rows::appendCsvText,
               [](std::string& all, const Cell& cell, const Column& column) {
                 if (!column.isNumber) return rows::appendCsvText(all, cell.text);
                 if (cell.number) all += foundation::shortestText(*cell.number);
               });
}

}  // namespace nascor::compare
