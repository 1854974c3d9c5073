// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "charts/ChartDocument.h"
#include "foundation/ConvertInteger.h"
#include "framework/MakeView.h"
#include "support/RecordingCanvas.h"
#include "support/TestServices.h"

namespace nascor::charts {

/// A document whose answers a test sets.
struct FakeChartDocument final : ChartDocument {
  model::PatientRecord patient;
  bool hasPatient = true;
  std::int64_t growthStandard = 0;
  framework::PopUpButton popUp;
  std::vector<double> ages;  ///< menstrual age at each examination
  std::int64_t exam = 0;
  bool showsHilite = true;
  std::int64_t weightFormula = 0;
  std::int64_t fetus = 0;
  std::vector<double> clicks;
  std::vector<std::int64_t> graphsShown;
  NascorGraphView* bpdGraph = nullptr;
  NascorGraphView* hcGraph = nullptr;
  NascorGraphView* acGraph = nullptr;
  NascorGraphView* flGraph = nullptr;
  model::MeasurementsRecord projected;
  Overlay drawnOver;

  const model::PatientRecord* patientRecord() const override { return hasPatient ? &patient : nullptr; }
  std::int64_t standard() const override { return growthStandard; }
  const framework::PopUpButton& multiplePopUp() const override { return popUp; }
  double menstrualAgeForRecord(std::uint64_t e) const override { return e < ages.size() ? ages[e] : 0.0; }
  const model::MeasurementsRecord* measurementsForFetus(std::int64_t f, std::int64_t e) const override {
    const auto& records = patient.ncRecordsArray().at(static_cast<std::size_t>(e))->measurements();
    return static_cast<std::size_t>(f) < records.size() ? &records[static_cast<std::size_t>(f)] : nullptr;
  }
  std::int64_t currentExam() const override { return exam; }
  bool shouldShowGraphHilite() const override { return showsHilite; }
  void setCurrentRecordFromClick(double weeks) override { clicks.push_back(weeks); }

  const model::MeasurementsRecord* measurementsForCurrentFetus(std::int64_t e) const override {
    return measurementsForFetus(fetus, e);
  }
  std::int64_t fetalWeightStandard() const override { return weightFormula; }
  Overlay overlay() const override { return drawnOver; }
  std::string menstrualAgeStringForRecord(std::uint64_t e) const override {
    return "age " + std::to_string(e);
  }
  std::string menstrualAgeStringForGestation(double weeks) const override {
    return std::to_string(foundation::truncatedToInteger(weeks)) + " weeks";
  }
  double extrapolatedBPDForCurrentFetus() override { return projected.bpd(); }
  double extrapolatedHCForCurrentFetus() override { return projected.hc(); }
  double extrapolatedACForCurrentFetus() override { return projected.ac(); }
  double extrapolatedFLForCurrentFetus() override { return projected.fl(); }
  const model::MeasurementsRecord& extrapolatedMeasurements() const override { return projected; }
  NascorGraphView* BPDGraph() const override { return bpdGraph; }
  NascorGraphView* HCGraph() const override { return hcGraph; }
  NascorGraphView* ACGraph() const override { return acGraph; }
  NascorGraphView* FLGraph() const override { return flGraph; }
  void switchToGraph(std::int64_t tabIndex) override { graphsShown.push_back(tabIndex); }

  void setFetuses(std::int64_t count) {
    patient.setNumberOfFetuses(count);
    popUp.removeAllItems();
    for (std::int64_t i = 0; i < count; ++i)
      popUp.addItem({.title = "Fetus " + std::to_string(i), .keyEquivalent = ""});
  }
  /// An examination at `age` weeks; the four lengths of each fetus.
  void addExamination(double age, std::vector<calc::Biometry> fetuses) {
    auto record = std::make_unique<model::NCRecord>();
    for (const calc::Biometry& measured : fetuses) record->measurements().emplace_back(measured);
    patient.ncRecordsArray().push_back(std::move(record));
    ages.push_back(age);
  }
};

class ChartTest : public testing::Test {
 protected:
  using Kind = tests::RecordingCanvas::Entry::Kind;

  tests::TestServices platform;
  FakeChartDocument document;
  tests::RecordingCanvas canvas;

  template <class Chart>
  framework::ViewOwner<Chart> make(framework::Rect frame = {0, 0, 800, 500}) {
    auto chart = framework::make<Chart>(platform.services(), frame);
    chart->setOwningDocument(&document);
    chart->resetStandards();
    return chart;
  }
};

}  // namespace nascor::charts
