// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The figures of a summary are those of the comparison and of the report, to the bit.
#include <gmock/gmock.h>

#include <rapidcheck.h>

#include <cmath>
#include <memory>

#include "Summarised.h"
#include "calc/Report.h"
#include "compare/CellWriter.h"
#include "compare/Comparison.h"
#include "model/PatientReport.h"
#include "support/Bits.h"

namespace nascor::summary {
namespace {

using tests::isExactly;

double drawnLength(double greatest) {
  const int tenths = *rc::gen::inRange(0, static_cast<int>(greatest * 10.0));
  return *rc::gen::element(0.0, static_cast<double>(static_cast<float>(tenths) / 10.0F));
}

model::PatientRecord drawnPatient() {
  constexpr double kDay = 86400.0;
  constexpr foundation::Date kEDD{829008000.0};
  model::PatientRecord patient;
  patient.setMaternalIDString("AB-123");
  if (*rc::gen::inRange(0, 5) > 0) patient.setEDD(kEDD);
  patient.setStandard(*rc::gen::inRange(0, 5));
  patient.setFetalWeightStandard(*rc::gen::inRange(0, 9));
  const int fetuses = *rc::gen::inRange(1, 4);
  patient.setNumberOfFetuses(fetuses);
  patient.setExtrapolatedGestation(40.0);
  for (int days = *rc::gen::inRange(50, 120); days < 300; days += *rc::gen::inRange(5, 60)) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setExamDate(foundation::Date{kEDD.secondsSince2001 - (280 - days) * kDay});
    for (int fetus = 0; fetus < fetuses; ++fetus) {
      examination->measurements().emplace_back(calc::Biometry{.bpd = drawnLength(110.0),
                                                              .hc = drawnLength(400.0),
                                                              .ac = drawnLength(420.0),
                                                              .fl = drawnLength(90.0)});
    }
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

bool isSame(const std::optional<double>& one, const std::optional<double>& other) {
  return one.has_value() == other.has_value() && (!one || isExactly(*one, *other));
}

const compare::Placed* placeBy(const calc::Reference* reference, const std::vector<compare::Placed>& all) {
  for (const compare::Placed& each : all) {
    if (reference != nullptr && each.reference == reference) return &each;
  }
  return nullptr;
}

void checkPlace(const Row& row, std::size_t column, const compare::Placed* figure) {
  const auto centile = figure != nullptr ? figure->centile : std::nullopt;
  RC_ASSERT(isSame(row.cells[column].number, figure != nullptr ? figure->z : std::nullopt));
  RC_ASSERT(isSame(row.cells[column + 1].number, centile ? std::optional(centile->percent) : std::nullopt));
}

void checkRow(const Row& row, const model::PatientRecord& patient, std::size_t examination,
              std::size_t fetus) {
  const foundation::EnglishLocalizer localizer;
  const compare::CellWriter writer(localizer);
  const compare::Comparison comparison = compare::comparisonOf(patient, examination, fetus);
  const model::PatientReport report(patient, 40.0);
  const model::NCRecord& record = *patient.ncRecordsArray()[examination];
  const auto reported = report.row(record, &record.measurements()[fetus]);
  RC_ASSERT(isSame(row.cells[1].number, comparison.age));
  RC_ASSERT(isExactly(row.cells[1].number.value_or(0.0), reported.age));
  std::size_t column = 2;
  for (const compare::Length& length : comparison.lengths) {
    RC_ASSERT(isSame(row.cells[column].number, length.value));
    RC_ASSERT(isExactly(length.value.value_or(0.0), reported.lengths.*calc::memberFor(length.measurement)));
    RC_ASSERT(row.cells[column].text == writer.number(length.value, 1).text);
    checkPlace(row, column + 1, placeBy(calc::referenceOfStandard(patient.standard()), length.references));
    column += 3;
  }
  const bool isGiven = reported.weightText() != "-";
  RC_ASSERT(row.cells[column].number.has_value() == isGiven);
  if (!isGiven) return;
  RC_ASSERT(isExactly(*row.cells[column].number, reported.weight));
  const auto& weight = comparison.weights[static_cast<std::size_t>(patient.fetalWeightStandard())];
  checkPlace(row, column + 1, placeBy(calc::referenceNamed("hadlock-1991"), weight.references));
}

TEST(TheFiguresOfASummary, areThoseOfTheComparisonAndTheReport) {
  EXPECT_TRUE(rc::check([] {
    const model::PatientRecord patient = drawnPatient();
    const Summary summary = tests::summarised(patient);
    RC_ASSERT(summary.fetuses.size() == static_cast<std::size_t>(patient.numberOfFetuses()));
    for (std::size_t fetus = 0; fetus < summary.fetuses.size(); ++fetus) {
      const Table& table = summary.fetuses[fetus].measurements;
      RC_ASSERT(table.rows.size() == patient.ncRecordsArray().size());
      for (std::size_t i = 0; i < table.rows.size(); ++i) checkRow(table.rows[i], patient, i, fetus);
    }
  }));
}

/// A figure without a number is a dash, and one that could be expected says why.
TEST(TheFiguresOfASummary, areDashesWhereTheyAreMissing) {
  EXPECT_TRUE(rc::check([] {
    for (const FetusSummary& fetus : tests::summarised(drawnPatient()).fetuses) {
      for (const Table* table : {&fetus.measurements, &fetus.growth}) {
        for (const Row& row : table->rows) {
          RC_ASSERT(row.cells.size() == table->columns.size());
          for (std::size_t i = 2; i < row.cells.size(); ++i) {
            const Cell& cell = row.cells[i];
            RC_ASSERT(cell.number.has_value() == (cell.text != "-"));
            RC_ASSERT(cell.note <= table->notes.size());
          }
          for (std::size_t i = 2; table == &fetus.measurements && i < row.cells.size(); i += 3) {
            const bool isPlaced = row.cells[i + 2].number.has_value();
            RC_ASSERT(!row.cells[i].number || isPlaced || row.cells[i + 2].note > 0);
          }
        }
      }
    }
  }));
}

}  // namespace
}  // namespace nascor::summary
