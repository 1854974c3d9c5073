// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The same figure by every way that leads to it: fields and texts of the window, Compare, the charts' read-outs, the report,
// rows, the worked examples, scripts. To the last bit where it is a number.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/NCDocument.h"
#include "app/PageTexts.h"
#include "calc/Centile.h"
#include "calc/LookUp.h"
#include "calc/PlaceText.h"
#include "model/PatientFile.h"
#include "model/PatientReport.h"
#include "rows/Columns.h"
#include "rows/PatientRows.h"
#include "scripting/NCDocumentScripting.h"
#include "selftest/SelfTest.h"
#include "support/Bits.h"
#include "support/Spent.h"
#include "support/TestApplication.h"

namespace nascor::drive {
namespace {

using calc::Measurement;
using calc::Quantity;
using Json = nlohmann::json;
using selftest::Question;
using testing::HasSubstr;
using tests::isExactly;

constexpr unsigned kSeed = 20261122;
constexpr int kPatients = tests::kIsSlowed ? 100 : 1000;

class Draw {
 public:
  int among(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  double between(double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random_);
  }
  /// A length of a fetus at that age, about as long as it should be; sometimes none.
  double length(double atTerm, double week) {
    return among(6) == 0 ? 0.0 : atTerm * week / 40.0 * between(0.8, 1.2);
  }
  model::PatientRecord patient() {
    constexpr double kDay = 86400.0;
    model::PatientRecord patient;
    const foundation::Date edd{(9000 + among(800)) * kDay};
    patient.setMaternalIDString("P-1");
    patient.setEDD(edd);
    patient.setStandard(among(4));
    patient.setFetalWeightStandard(among(8));
    patient.setExtrapolatedGestation(39.0);
    const int fetuses = 1 + among(2);
    patient.setNumberOfFetuses(fetuses);
    int day = 84 + among(60);
    const int examinations = 1 + among(3);
    for (int i = 0; i < examinations; ++i, day += 7 + among(40)) {
      auto examination = std::make_unique<model::NCRecord>();
      examination->setExamDate(foundation::Date{edd.secondsSince2001 - (280 - day) * kDay});
      const double week = day / 7.0;
      for (int fetus = 0; fetus < fetuses; ++fetus) {
        examination->measurements().emplace_back(calc::Biometry{.bpd = length(93.0, week),
                                                                .hc = length(330.0, week),
                                                                .ac = length(345.0, week),
                                                                .fl = length(74.0, week)});
      }
      patient.ncRecordsArray().push_back(std::move(examination));
    }
    return patient;
  }

 private:
  std::mt19937_64 random_{kSeed};
};

const compare::Table& tableNamed(const std::vector<compare::Table>& tables, std::string_view name) {
  const auto found = std::ranges::find(tables, name, &compare::Table::name);
  if (found == tables.end()) throw std::runtime_error(std::string(name));
  return *found;
}

/// What the program answers as a worked example.
double answer(Question question, std::size_t which, std::size_t quantity, std::array<double, 4> given) {
  return selftest::answerTo({.group = "",
                             .question = question,
                             .which = which,
                             .quantity = quantity,
                             .given = given,
                             .expected = 0.0,
                             .tolerance = 0.0,
                             .source = ""});
}

class EveryView : public testing::Test {
 protected:
  void show(const model::PatientRecord& patient) {
    document.loadDataRepresentation(model::archivedPatient(patient), {});
    document.windowControllerDidLoadNib();
    std::string lines;
    rows::appendPatientRows(
        lines, *document.patientRecord(), {},
        rows::RowFormat(rows::everyPatientColumn(false, false), {.style = rows::Style::jsonLines}),
        application.services().calendar);
    rowsOfAll.clear();
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) rowsOfAll.push_back(Json::parse(line));
  }
  /// The cell of the row of that examination and fetus.
  const Json& rowCell(const std::string& column) const {
    for (const Json& row : rowsOfAll) {
      if (row["exam"] == document.currentExam() && row["fetus"] == document.currentFetus())
        return row.at(column);
    }
    throw std::runtime_error("no such row");
  }
  void same(double actual, double expected, const std::string& what) {
    ++compared;
    EXPECT_TRUE(isExactly(actual, expected)) << what;
  }
  void sameAsRow(const std::string& column, const std::optional<double>& figure) {
    if (!figure) return;
    const Json& cell = rowCell(column);
    ASSERT_TRUE(cell.is_number()) << column;
    same(cell.get<double>(), *figure, column);
  }

  void compareAll() {
    const auto tables = app::comparison(document);
    const double age = document.menstrualAgeForRecord(static_cast<std::uint64_t>(document.currentExam()));
    sameAsRow("ga_weeks", age);
    for (const compare::Row& row : tableNamed(tables, "lengths").rows) compareLength(row, age);
    compareWeights(tableNamed(tables, "weights"));
  }

  void compareLength(const compare::Row& row, double age) {
    const calc::Method method = *row.cells.front().method;
    const auto quantity = static_cast<std::size_t>(*method.quantity);
    const Measurement measurement = calc::kMeasurements.at(quantity);
    const auto& value = row.cells.at(1).number;
    if (!value) return;
    const auto& mean = row.cells.at(3).number;
    const auto& sd = row.cells.at(4).number;
    const auto& median = row.cells.at(5).number;
    const auto& z = row.cells.at(6).number;
    const std::string name(calc::nameOf(*method.quantity));
    const std::string prefix = std::string(calc::references()[method.place].name) + "_" + name;
    if (z) {
      const auto example = [&](Question question) {
        return answer(question, method.place, quantity, {age, *value});
      };
      same(example(Question::z), *z, prefix);
      same(example(Question::centile), *row.cells.at(7).number, prefix);
      same(example(Question::median), *median, prefix);
      same(calc::centileOfZ(*z), *row.cells.at(7).number, prefix);
      sameAsRow(prefix + "_mean_mm", mean);
      sameAsRow(prefix + "_sd_mm", sd);
      sameAsRow(prefix + "_z", z);
    }
    if (const auto& week = row.cells.at(8).number)
      same(answer(Question::weekOfMedian, method.place, quantity, {*value}), *week, prefix);
    if (row.isChosen) compareChosen(measurement, *value, z, row.cells.at(7).text, age);
  }

  /// By the standard in force, which the window shows.
  void compareChosen(Measurement measurement, double value, const std::optional<double>& z,
                     const std::string& centileText, double age) {
    const std::string name(calc::nameOf(measurement));
    same(fieldOf(measurement).doubleValue(), value, name);
    sameAsRow(name + "_mm", value);
    const auto& examined =
        *document.patientRecord()->ncRecordsArray().at(static_cast<std::size_t>(document.currentExam()));
    const model::PatientReport report(*document.patientRecord(), 39.0);
    const auto row = report.row(examined, document.measurementsForCurrentFetus(document.currentExam()));
    same(row.lengths.*calc::memberFor(measurement), value, name);
    const charts::NascorGraphView& chart = graphOf(measurement);
    same(chart.valueForFetus(static_cast<std::uint64_t>(document.currentFetus()),
                             static_cast<std::uint64_t>(document.currentExam())),
         value, name);
    if (document.currentExam() == document.lastExam()) same(scripted(measurement), value, name);
    if (!z) return;
    sameAsRow(name + "_z", z);
    same(calc::zScore(chart.standardData(), value, age), *z, name);
    const auto& shown = document.assessment().length(measurement);
    EXPECT_EQ(shown.z.text(), calc::zText(*z, application.services().localizer)) << name;
    EXPECT_EQ(shown.centile.text(), centileText) << name;
    EXPECT_THAT(chart.spokenValue(document.currentExam()), HasSubstr("z-score " + shown.z.text() + "."))
        << name;
  }

  void compareWeights(const compare::Table& weights) {
    const auto& examined =
        *document.patientRecord()->ncRecordsArray().at(static_cast<std::size_t>(document.currentExam()));
    const auto* measured = document.measurementsForCurrentFetus(document.currentExam());
    const calc::Biometry lengths = measured != nullptr ? measured->biometry() : calc::Biometry{};
    for (std::size_t i = 0; i < weights.rows.size(); ++i) {
      const compare::Row& row = weights.rows[i];
      const auto& grams = row.cells.at(1).number;
      if (!grams) continue;
      const std::string what = row.cells.front().text;
      same(answer(Question::weight, i, 0, {lengths.bpd, lengths.hc, lengths.ac, lengths.fl}), *grams, what);
      sameAsRow("efw_" + std::to_string(i) + "_g", grams);
      if (!row.isChosen) continue;
      const model::PatientReport report(*document.patientRecord(), 39.0);
      same(report.row(examined, measured).weight, *grams, what);
      same(document.EFWGraph().valueForFetus(static_cast<std::uint64_t>(document.currentFetus()),
                                             static_cast<std::uint64_t>(document.currentExam())),
           *grams, what);
      // The window, as the report, names no weight that is not above 100 g.
      if (*grams > 100.0) {
        EXPECT_EQ(document.assessment().weight.text(), row.cells.at(1).text + " g") << what;
      }
    }
  }

  framework::NumberField& fieldOf(Measurement measurement) {
    switch (measurement) {
      case Measurement::bpd: return document.bpdField();
      case Measurement::hc: return document.hcField();
      case Measurement::ac: return document.acField();
      case Measurement::fl: break;
    }
    return document.flField();
  }
  const charts::NascorGraphView& graphOf(Measurement measurement) const {
    switch (measurement) {
      case Measurement::bpd: return *document.BPDGraph();
      case Measurement::hc: return *document.HCGraph();
      case Measurement::ac: return *document.ACGraph();
      case Measurement::fl: break;
    }
    return *document.FLGraph();
  }
  double scripted(Measurement measurement) const {
    switch (measurement) {
      case Measurement::bpd: return script.bpd();
      case Measurement::hc: return script.hc();
      case Measurement::ac: return script.ac();
      case Measurement::fl: break;
    }
    return script.fl();
  }

  tests::TestApplication application;
  app::NCDocument document{application.environment()};
  scripting::NCDocumentScripting script{document, application.services().log};
  std::vector<Json> rowsOfAll;
  std::size_t compared = 0;
};

TEST_F(EveryView, givesTheSameFiguresOfEveryPatient) {
  std::cout << kPatients << " patients, drawn with the seed " << kSeed << '\n';
  Draw draw;
  for (int i = 0; i < kPatients && !HasFailure(); ++i) {
    SCOPED_TRACE("patient " + std::to_string(i));
    show(draw.patient());
    for (std::int64_t fetus = 0; fetus < document.multiplePopUp().numberOfItems(); ++fetus) {
      document.multiplePopUp().selectItemAtIndex(fetus);
      document.chooseFetus(document.multiplePopUp());
      while (document.currentExam() > 0) document.previousExamination();
      compareAll();
      while (document.currentExam() < document.lastExam()) {
        document.nextExamination();
        compareAll();
      }
    }
  }
  EXPECT_GT(compared, 30'000U);
}

}  // namespace
}  // namespace nascor::drive
