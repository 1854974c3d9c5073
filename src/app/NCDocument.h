#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "charts/ChartDocument.h"
#include "charts/MeasurementCharts.h"
#include "foundation/NotificationCenter.h"
#include "framework/CorvelDocument.h"
#include "framework/MakeView.h"
#include "framework/Page.h"
#include "framework/TextField.h"
#include "model/PatientRecord.h"

namespace nascor::app {

/// The document of one patient: owns the records, the charts, and the state of the window's fields.
///
/// A null record means that there is none: readers take 0 or nothing, nothing fails.
class NCDocument : public framework::CorvelDocument,
                   public charts::ChartDocument,
                   public foundation::NotificationSender {
 public:
  /// A document without a patient; `windowControllerDidLoadNib` gives it a blank one unless a file was loaded.
  explicit NCDocument(const foundation::Services& services);
  ~NCDocument() override;

  /// @name The document file
  /// @{

  // Selector: dataRepresentationOfType:
  /// The patient as it stands, whatever the type. Edits that have not reached the records are not in it.
  std::vector<std::byte> dataRepresentationOfType(std::string_view type) const;
  // Selector: loadDataRepresentation:ofType:
  /// Replaces the patient by the one in the file, whatever the type. True also for a file whose root is nil, which leaves
  /// no patient. Throws archive::FormatError for a malformed file, and then keeps the patient.
  bool loadDataRepresentation(std::span<const std::byte> data, std::string_view type);

  /// @}
  /// @name The window
  /// @{

  // Selector: windowControllerDidLoadNib:
  /// Shows the newest examination of the first fetus; a document without a patient gets a blank one.
  void windowControllerDidLoadNib();

  framework::TextField& referenceIDField() { return referenceIDField_; }
  framework::TextField& birthDateField() { return birthDateField_; }  ///< the estimated date of delivery
  framework::TextField& examDateField() { return examDateField_; }
  framework::TextField& ageField() { return ageField_; }  ///< menstrual age at the examination on show
  framework::PopUpButton& multiplePopUp() { return multiplePopUp_; }
  const framework::PopUpButton& multiplePopUp() const override { return multiplePopUp_; }
  /// The chart of the biparietal diameter with its axis.
  framework::Page& bpdPage() { return bpdPage_; }

  void synchronizeFromData() override;
  void updateDisplay();
  /// Rebuilds the choice of fetus from the number of fetuses; `currentFetus` stays within it.
  void updateMultiplePopUp();

  // Selector: preferredFileName:
  /// The patient's title: reference ID as typed with "/" as "-", gravidity, and, when asked for and there are several,
  /// which fetus is on show. Empty without a reference ID.
  std::string preferredFileName(bool withFetus) const;

  /// Sent after everything that is on show may have changed; set by the window layer, may be empty.
  std::function<void()> onDisplayChanged;

  /// @}
  /// @name Records
  /// @{

  const model::PatientRecord* patientRecord() const override { return patientRecord_.get(); }
  model::PatientRecord* patientRecord() { return patientRecord_.get(); }
  std::int64_t standard() const override;
  std::int64_t fetalWeightStandard() const;

  std::int64_t currentFetus() const { return currentFetus_; }
  void setCurrentFetus(std::int64_t fetus) { currentFetus_ = fetus; }

  /// The index of the last examination; 0 when there is none.
  std::int64_t lastExam() const;
  const model::MeasurementsRecord* measurementsForFetus(std::int64_t fetus, std::int64_t exam) const override;
  const model::MeasurementsRecord* measurementsForCurrentFetus(std::int64_t exam) const;
  const model::MeasurementsRecord* lastMeasurementsRecordForCurrentFetus() const;

  /// Shows the examination nearest to that menstrual age; nothing happens without an EDD.
  void setCurrentRecordFromClick(double weeks) override;

  /// @}
  /// @name Dating (calc/Dating.h)
  /// @{

  double menstrualAgeForRecord(std::uint64_t exam) const override;
  std::string menstrualAgeStringForRecord(std::uint64_t exam) const;
  std::string menstrualAgeStringForGestation(double weeks) const;
  double menstrualAgeFromCRLHadlock(double crl) const;
  double menstrualAgeFromCRLNelson(double crl) const;
  double menstrualAgeFromCRLRobinson(double crl) const;
  double menstrualAgeFromCRLWesterway(double crl) const;

  /// @}
  /// @name Projection of the current fetus's last measurements to the planned delivery
  /// @{

  /// Each computes one projected length (mm), keeps it in `extrapolatedMeasurements` and returns it.
  double extrapolatedBPDForCurrentFetus();
  double extrapolatedHCForCurrentFetus();
  double extrapolatedACForCurrentFetus();
  double extrapolatedFLForCurrentFetus();
  /// What the four last computed; all zero in a new document; never stored in a file.
  const model::MeasurementsRecord& extrapolatedMeasurements() const {
    return extrapolatedMeasurementsRecord_;
  }

  /// @}
  /// @name Charts
  /// @{

  charts::NascorGraphView& BPDGraph() { return *bpdGraph_; }
  charts::NascorGraphView& HCGraph() { return *hcGraph_; }
  charts::NascorGraphView& ACGraph() { return *acGraph_; }
  charts::NascorGraphView& FLGraph() { return *flGraph_; }

  /// @}

 private:
  std::int64_t numberOfExaminations() const override;
  const model::NCRecord* examination(std::int64_t exam) const;
  std::string shortDateText(const std::optional<foundation::Date>& date) const;
  double projected(double (model::MeasurementsRecord::*value)() const,
                   void (model::MeasurementsRecord::*store)(double), const charts::NascorGraphView& graph);

  std::unique_ptr<model::PatientRecord> patientRecord_;
  model::MeasurementsRecord extrapolatedMeasurementsRecord_;
  std::int64_t currentFetus_ = 0;

  framework::TextField referenceIDField_;
  framework::TextField birthDateField_;
  framework::TextField examDateField_;
  framework::TextField ageField_;
  framework::PopUpButton multiplePopUp_;

  framework::ViewOwner<charts::BPDGraphView> bpdGraph_;
  framework::ViewOwner<charts::HeadCircumferenceGraphView> hcGraph_;
  framework::ViewOwner<charts::AbdoCircumferenceGraphView> acGraph_;
  framework::ViewOwner<charts::FemurLengthGraphView> flGraph_;
  framework::ViewOwner<charts::NoYaxisGraphView> bpdAxis_;
  framework::Page bpdPage_;
};

}  // namespace nascor::app
