// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "charts/Overlay.h"
#include "framework/GraphDocument.h"
#include "framework/PopUpButton.h"
#include "model/PatientRecord.h"

namespace nascor::charts {

class NascorGraphView;

/// What a chart asks of the document that it belongs to. Declared by the charts, implemented by the document.
class ChartDocument : public virtual framework::GraphDocument {
 public:
  /// The root of the document; null while it has none.
  virtual const model::PatientRecord* patientRecord() const = 0;
  /// The identifier of the growth standard in force.
  virtual std::int64_t standard() const = 0;
  /// The choice of fetus; item i is fetus i.
  virtual const framework::PopUpButton& multiplePopUp() const = 0;
  /// Menstrual age in weeks at an examination; 0.0 when it is not known or there is no such examination.
  virtual double menstrualAgeForRecord(std::uint64_t exam) const = 0;
  // Selector: measurementsForFetus:exam:
  /// Null when there is no such examination or fetus.
  virtual const model::MeasurementsRecord* measurementsForFetus(std::int64_t fetus,
                                                                std::int64_t exam) const = 0;
  // Selector: measurementsForCurrentFetus:
  /// Those of the fetus on show. Null when there is no such examination or fetus.
  virtual const model::MeasurementsRecord* measurementsForCurrentFetus(std::int64_t exam) const = 0;
  /// The identifier of the weight formula in force.
  virtual std::int64_t fetalWeightStandard() const = 0;
  /// What is to be drawn over the charts at this time.
  virtual Overlay overlay() const = 0;
  // Selector: menstrualAgeStringForRecord:
  virtual std::string menstrualAgeStringForRecord(std::uint64_t exam) const = 0;
  // Selector: menstrualAgeStringForGestation:
  virtual std::string menstrualAgeStringForGestation(double weeks) const = 0;

  /// @name Projection of the last measurements of the fetus on show to the planned delivery
  /// @{

  /// Each computes one projected length (mm), keeps it in `extrapolatedMeasurements` and returns it.
  virtual double extrapolatedBPDForCurrentFetus() = 0;
  virtual double extrapolatedHCForCurrentFetus() = 0;
  virtual double extrapolatedACForCurrentFetus() = 0;
  virtual double extrapolatedFLForCurrentFetus() = 0;
  /// What the four last computed.
  virtual const model::MeasurementsRecord& extrapolatedMeasurements() const = 0;

  /// @}
  /// @name The measurement charts; null where there is none
  /// @{

  virtual NascorGraphView* BPDGraph() const = 0;
  virtual NascorGraphView* HCGraph() const = 0;
  virtual NascorGraphView* ACGraph() const = 0;
  virtual NascorGraphView* FLGraph() const = 0;

  /// @}

  // Selector: switchToGraph:
  /// Shows that page. Throws RangeError.
  virtual void switchToGraph(std::int64_t tabIndex) = 0;
};

}  // namespace nascor::charts
