#pragma once

#include <cstdint>

#include "framework/GraphDocument.h"
#include "framework/PopUpButton.h"
#include "model/PatientRecord.h"

namespace nascor::charts {

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
};

}  // namespace nascor::charts
