// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/Assessment.h"
#include "app/DatingPanels.h"
#include "app/FieldReader.h"
#include "app/PatientHistory.h"
#include "app/PatientPages.h"
#include "calc/Biometry.h"
#include "charts/ChartDocument.h"
#include "exchange/Findings.h"
#include "exchange/StructuredReport.h"
#include "foundation/NotificationCenter.h"
#include "framework/Controls.h"
#include "framework/CorvelDocument.h"
#include "framework/PopUpButton.h"
#include "framework/TextField.h"
#include "model/PatientRecord.h"
#include "summary/Typesetter.h"

namespace nascor::app {

/// The document of one patient: owns the records and the charts, and keeps the window's fields and the records in step.
///
/// Between synchronisations the records are the truth: an action that changes the examination or the fetus on show writes
/// the fields to the records, changes the index, and reads the fields back. A null record means that there is none:
/// readers take 0 or nothing, writers do nothing.
class NCDocument final : public framework::CorvelDocument,
                         public charts::ChartDocument,
                         public foundation::NotificationSender {
 public:
  /// The sender of an action: the document itself, or another object (null will do).
  using Sender = const foundation::NotificationSender*;

  /// A document without a patient; `windowControllerDidLoadNib` gives it a blank one unless a file was loaded.
  explicit NCDocument(const framework::DocumentEnvironment& environment);
  ~NCDocument() override;

  std::string_view className() const override { return "NCDocument"; }
  using ZuDocument::services;

  /// @name The document file
  /// @{

  /// The patient as it stands. Edits that have not reached the records are not in it.
  std::vector<std::byte> dataRepresentationOfType(std::string_view type) const override;
  std::vector<std::byte> contentsAsTyped() override;
  /// True also for a file whose root is nil, which leaves no patient. Throws archive::FormatError for a malformed file.
  bool loadDataRepresentation(std::span<const std::byte> data, std::string_view type) override;
  std::optional<std::string> lossInFile() const override;
  bool holdsContents() const override { return patientRecord_ != nullptr; }
  std::string suggestedFileName() const override { return preferredFileName(false); }

  /// @}
  /// @name Pages into files and to the printer
  /// @{

  /// Told before each page how many of how many are done; false ends the export there.
  using ExportProgress = std::function<bool(std::int64_t done, std::int64_t total)>;
  /// Exports the first and the last page of every fetus, in the order of the fetuses, and asks nothing. The last fetus and
  /// the last page stay on show. Why pages were not written: one sentence for each.
  std::vector<std::string> autoExport(const ExportProgress& goesOn = {});
  /// Prints the page on show, then the weight page.
  void printDocumentWithSettings(const framework::PrintSettings& settings, bool showPrintPanel,
                                 const DidPrint& didPrint) override;
  framework::PageFoot footOfPage(std::int64_t index, std::int64_t number, std::int64_t count) const override;
  /// The patient, or the page's name where she has none; the program; what the page is about.
  framework::SheetFacts factsOfPage(std::int64_t index) const override;

  /// @}
  /// @name The window
  /// @{

  static constexpr std::string_view windowNibName = "MyDocument";
  void windowControllerDidLoadNib() override;
  void windowWillClose() override;

  framework::IntegerField& gravidaField() { return gravidaField_; }
  framework::NumberField& bpdField() { return bpdField_; }
  framework::NumberField& hcField() { return hcField_; }
  framework::NumberField& acField() { return acField_; }
  framework::NumberField& flField() { return flField_; }
  framework::PopUpButton& multiplePopUp() { return multiplePopUp_; }
  const framework::PopUpButton& multiplePopUp() const override { return multiplePopUp_; }

  /// Every text field of the window and its panels that bears a name, the note apart.
  std::span<framework::TextField* const> textFields() const { return textFields_; }
  std::span<framework::Panel* const> panels() const { return panels_; }
  /// Null for a name that no field of `textFields` bears.
  framework::TextField* fieldNamed(std::string_view name) const;
  /// Null for a name that no panel bears.
  framework::Panel* panelNamed(std::string_view name) const;
  /// What stands beside the fields.
  Assessment& assessment() { return assessment_; }
  CRLPanel& crlPanel() { return crlPanel_; }
  LastPeriodPanel& lastPeriodPanel() { return lastPeriodPanel_; }
  MeasurementsPanel& measurementsPanel() { return measurementsPanel_; }
  DeliveryPanel& deliveryPanel() { return deliveryPanel_; }
  framework::Stepper& adjustDeliveryStepper() { return deliveryPanel_.stepper; }

  void synchronizeFromData() override;
  void synchronizeToData() override;
  void updateDisplay() override;
  // Selector: switchToGraph:
  /// Shows that page. Throws RangeError.
  void switchToGraph(std::int64_t tabIndex) override;

  /// @}
  /// @name Examinations and fetuses
  /// @{

  void addExamination() override;
  void deleteCurrentExamination() override;
  // Selector: setCurrentRecordFromRecord:
  /// Makes that very object the current examination; one that is not there leaves the index, held within the array.
  void setCurrentRecordFromRecord(const model::NCRecord* record);
  /// Shows the examination nearest to that menstrual age; nothing happens without an EDD.
  void setCurrentRecordFromClick(double weeks) override;
  void updateArrayOrder() override;
  // Selector: chooseFetus:
  /// Shows the fetus that is selected in the pop-up.
  void chooseFetus(const framework::PopUpButton& popUp);
  // Selector: addFetus:
  /// One fetus more, shown at once; nothing happens with five.
  void addFetus(Sender sender);
  // Selector: deleteFetus:
  /// Asks, then removes the fetus on show from every examination; nothing happens with one.
  void deleteFetus(Sender sender);
  // Selector: deleteFetusAlertDidEnd:returnCode:contextInfo:
  void deleteFetusAlertDidEnd(framework::AlertReturn returnCode);
  /// Rebuilds the choice of fetus from the number of fetuses; `currentFetus` stays within it.
  void updateMultiplePopUp();

  /// @}
  /// @name Standards; none of these marks the document as edited
  /// @{

  std::int64_t standard() const override;
  std::int64_t fetalWeightStandard() const override;
  void doSetStandard(std::int64_t standard);
  void doSetEFWStandard(std::int64_t standard);
  void doSetCRLStandard(std::int64_t standard);
  void updateShowAll();

  /// @}
  /// @name What is drawn over the charts of this window, on screen and in exports, never in print (NCDocumentOverlay.cpp)
  ///
  /// Is no part of the patient: nothing of it is stored in a file or undone.
  /// @{

  /// Nothing while the pages are printed.
  charts::Overlay overlay() const override;
  /// Shows that, and makes it the choice for windows to come.
  void setOverlay(const charts::Overlay& overlay);
  /// Shows what was chosen last.
  void takePreferredOverlay();
  /// What `spokenPage` says of it on that page; empty where nothing is drawn.
  std::string spokenOverlay(model::PatientPage page) const;

  /// @}
  /// @name Dating panels (DatingPanels.h)
  ///
  /// Each opens in front of the window and stays open beside it. Its OK enters the EDD into the window's field, closes the
  /// panel, stores and draws everything and plans the delivery anew; where no EDD comes of it, nothing happens.
  /// @{

  // Selector: doSetEDDfromCRL:
  void doSetEDDfromCRL(Sender sender);
  // Selector: okSetEDDfromCRL:
  void okSetEDDfromCRL(Sender sender);
  ProposedEDD eddFromCRL(Reading reading = Reading::held) const;

  // Selector: doSetEDDfromLMP:
  void doSetEDDfromLMP(Sender sender);
  // Selector: okSetEDDfromLMP:
  void okSetEDDfromLMP(Sender sender);
  ProposedEDD eddFromLMP(Reading reading = Reading::held) const;

  // Selector: doSetEDDfromMeasurements:
  void doSetEDDfromMeasurements(Sender sender);
  // Selector: updateEDDfromMeasurements:
  /// Dates the lengths that the window shows.
  void updateEDDfromMeasurements(Sender sender);
  // Selector: okSetEDDfromMeasurements:
  void okSetEDDfromMeasurements(Sender sender);
  ProposedEDD eddFromMeasurements() const;
  double avGestation() const { return measurementsPanel_.averageGestation(); }

  // Selector: checkOverwriteEDD:
  /// Asks, on `window`, whether an established EDD is to be modified; without one nothing happens.
  void checkOverwriteEDD(framework::Panel& window);
  // Selector: checkOverwriteEDDAlertDidEnd:returnCode:contextInfo:
  void checkOverwriteEDDAlertDidEnd(framework::AlertReturn returnCode, framework::Panel& contextInfo);
  /// Closes `window` and changes nothing; a text in edit there is dropped.
  void cancelDialog(framework::Panel& window);

  /// @}
  /// @name Planned delivery
  /// @{

  /// Whether planning changes anything: without an EDD there is no day to count from.
  bool canAdjustDelivery() const;
  // Selector: doAdjustDeliveryDate:
  void doAdjustDeliveryDate(Sender sender);
  // Selector: adjustDeliveryDate:
  /// Plans the delivery the stepper's days from the EDD, and shows it; unless the document itself asks, everything is
  /// stored and drawn anew.
  void adjustDeliveryDate(Sender sender);
  /// Limits the stepper for the growth standard, then plans the delivery anew.
  void updateAdjustDeliveryStepperForNewStandard();

  /// @}

  /// @name The summary of all fetuses for the records (NCDocumentSummary.cpp), from the records
  /// @{

  /// With the letterhead and the examiner of the user's preferences; nothing without a patient.
  std::optional<summary::Summary> patientSummary() const;
  /// Upright, of the size that was set up.
  summary::Paper summaryPaper() const;
  /// What a file of it is called; `extension` begins with a dot, or is empty.
  std::string summaryFileName(std::string_view extension) const;
  /// Writes it into the file at `path`: HTML where that ends with ".html" or ".htm", else PDF. The text in edit reaches the
  /// records first. Nothing when it was written, else why not.
  std::optional<std::string> exportSummary(const std::string& path,
                                           const summary::FindTypesetter& typesetter);

  /// @}

  /// @name Reports of ultrasound machines (ReportImport.h, NCDocumentImport.cpp)
  /// @{

  /// What is shown once reports have been stored.
  struct Imported {
    std::optional<foundation::CivilDay> shownDay{};  ///< of the examination; nothing for the one on show
    std::int64_t shownFetus = 0;
    std::optional<double> crl{};  ///< in millimetres, for the panel that dates by it
    std::optional<foundation::CivilDay> crlDay{};
  };

  /// Whether nothing but the patient's identity was entered, and no file holds it: then the patient's pregnancy is what
  /// her reports say.
  bool isNewPatient() const { return !filePath() && !isRecovered() && !holdsMoreThanIdentity(); }
  /// Whether its only examination is the one that a new document begins with.
  bool holdsOnlyBlankExamination() const;
  /// The document that reports go into: where this one is blank, the one that their patient has in the documents folder, if
  /// the user opens it in this one's place.
  NCDocument& documentOfPatient(std::span<const exchange::Findings> reports);
  /// Asks whether the established EDD is to become `edd`.
  bool userModifiesEDD(const std::optional<foundation::Date>& edd);
  /// Puts `patient`, this one and what was imported, into this one's place, as one step.
  void takeImported(std::unique_ptr<model::PatientRecord> patient, const Imported& imported);

  /// @}
  /// @name The patient's numbers for other programs (NCDocumentData.cpp), from the records
  /// @{

  /// A row for each fetus at each examination, with all columns of tidy rows, as `nascor-cli rows` prints them: without
  /// reference ID and notes.
  std::string dataAsCsv() const;
  /// All that a document archives, in one line, as `nascor-cli json` prints it.
  std::string dataAsJson() const;
  /// As `nascor-cli export --format fhir` writes it; empty without an examination.
  std::string dataAsFhir() const;
  /// What a file of it is called; `extension` begins with a dot, or is empty.
  std::string dataFileName(std::string_view extension) const;
  /// What writes DICOM reports; or why there is nothing that does, in a sentence.
  using FindReportFiles = std::function<std::variant<exchange::ReportFiles*, foundation::Sentence>()>;
  /// Writes it into the file at `path`, by how that ends: ".fhir.json" a FHIR bundle, ".json" JSON, ".dcm" the examination on
  /// show as a DICOM report, else CSV. The text in edit reaches the records first. Nothing when it was written, else why not.
  std::optional<std::string> exportData(const std::string& path, const FindReportFiles& reportFiles = {});

  /// @}

  /// @name Undo of what changes the patient, one action of the user or of a script at a time (NCDocumentHistory.cpp)
  ///
  /// What is in edit is stored first; with a refused text nothing happens. Examination and fetus on show return too. The
  /// document is unedited again where it is as it was saved. Reading a file begins anew.
  /// @{

  /// What would be taken back, or done again, as a menu names it; nothing for none.
  std::optional<std::string> undoName() const;
  std::optional<std::string> redoName() const;
  void undo();
  void redo();
  /// A script has stored something in the patient, and everything shows it.
  void scriptHasStored();
  foundation::Signal<> onHistoryChanged;  ///< what can be undone or redone may have changed

  /// @}

  // Selector: preferredFileName:
  /// The patient's title: reference ID as typed with "/" as "-", gravidity, and, when asked for and there are several,
  /// which fetus is on show. Empty without a reference ID.
  std::string preferredFileName(bool withFetus) const;
  /// That title as it is shown: in one line, a reference ID that is too long for any page cut.
  std::string shownTitle(bool withFetus) const;

  /// @name Records
  /// @{

  const model::PatientRecord* patientRecord() const override { return patientRecord_.get(); }
  model::PatientRecord* patientRecord() { return patientRecord_.get(); }
  std::int64_t currentFetus() const { return currentFetus_; }
  void setCurrentFetus(std::int64_t fetus) { currentFetus_ = fetus; }
  /// The index of the last examination; 0 when there is none.
  std::int64_t lastExam() const;
  const model::MeasurementsRecord* measurementsForFetus(std::int64_t fetus, std::int64_t exam) const override;
  const model::MeasurementsRecord* measurementsForCurrentFetus(std::int64_t exam) const override;
  const model::MeasurementsRecord* lastMeasurementsRecordForCurrentFetus() const;
  std::int64_t numberOfExaminations() const override;
  /// Null for an index that no examination has.
  const model::NCRecord* examination(std::int64_t exam) const;

  /// @}
  /// @name Dating (calc/Dating.h)
  /// @{

  double menstrualAgeForRecord(std::uint64_t exam) const override;
  std::string menstrualAgeStringForRecord(std::uint64_t exam) const override;
  std::string menstrualAgeStringForGestation(double weeks) const override;
  double menstrualAgeFromCRLHadlock(double crl) const;
  double menstrualAgeFromCRLNelson(double crl) const;
  double menstrualAgeFromCRLRobinson(double crl) const;
  double menstrualAgeFromCRLWesterway(double crl) const;

  /// @}
  /// @name Projection of the current fetus's last measurements to the planned delivery
  /// @{

  /// Each computes one projected length (mm), keeps it in `extrapolatedMeasurements` and returns it.
  double extrapolatedBPDForCurrentFetus() override;
  double extrapolatedHCForCurrentFetus() override;
  double extrapolatedACForCurrentFetus() override;
  double extrapolatedFLForCurrentFetus() override;
  /// What the four last computed; all zero in a new document; never stored in a file.
  const model::MeasurementsRecord& extrapolatedMeasurements() const override {
    return extrapolatedMeasurementsRecord_;
  }

  /// @}
  /// @name Charts
  /// @{

  charts::NascorGraphView* BPDGraph() const override { return &pages_.graph(calc::Measurement::bpd); }
  charts::NascorGraphView* HCGraph() const override { return &pages_.graph(calc::Measurement::hc); }
  charts::NascorGraphView* ACGraph() const override { return &pages_.graph(calc::Measurement::ac); }
  charts::NascorGraphView* FLGraph() const override { return &pages_.graph(calc::Measurement::fl); }
  charts::NascorGraphView& EFWGraph() const { return pages_.efwGraph(); }
  charts::NascorDataView& report() const { return pages_.report(); }
  const PatientPages& patientPages() const { return pages_; }

  /// @}

 private:
  /// Says everything in `assessment` anew.
  void assess();
  void assessDialogs();
  void editedTextChanged() override { assess(); }
  /// Whether `field` would take what the user types in it just now; true for a field that is not in edit.
  bool takesTypedText(framework::TextField& field);
  /// Puts what the fields show, and what the user types, into the patient and the examination on show.
  void storeTyped(model::PatientRecord& patient, model::NCRecord* exam);
  LengthsOnShow lengthsOnShow();
  /// What the fields hold.
  calc::Biometry heldLengths();
  /// The examination on show; or why there is none, in a sentence.
  std::variant<std::vector<std::byte>, std::string> examinationAsReport(
      const FindReportFiles& reportFiles) const;
  framework::TextField* firstEmptyField() override;

  void actionEnded() override;
  void changesWereCleared() override;
  PatientState state() const;
  void beginHistory();
  void goTo(const PatientHistory::Shown& shown);
  /// Makes `value` the choice for new patients.
  void prefer(std::string_view key, std::int64_t value);
  /// Shows the patient, whose examination and fetus are chosen, in all that shows her.
  void showPatient();

  bool controlTextShouldBeginEditing(framework::TextField& field) override;
  bool controlTextShouldEndEditing(framework::TextField& field, std::string_view text) override;
  void controlTextDidEndEditing(framework::TextField& field) override;
  bool currentExaminationHoldsData() const override;
  bool holdsMoreThanIdentity() const override;
  /// The date of the last examination and the EDD.
  std::vector<std::string> factsOfFile(std::span<const std::byte> data) const override;
  std::string referenceIDForFileName() const override;
  std::string exportName() const override { return preferredFileName(true); }

  /// Which fetus is on show and how much was measured of it.
  std::string whatGoesWithFetus() const;
  framework::NumberField& fieldFor(calc::Measurement measurement);
  /// The measurement that `field` shows; nothing for another field.
  std::optional<calc::Measurement> measurementOf(const framework::TextField& field);
  /// Shows `title`, as `shown`, over a page that has a title line.
  void setHeader(model::PatientPage page, const std::string& title, const std::string& shown);
  std::string gravidaAndFetus(bool withFetus) const;
  bool mayModify(const std::string& message, const std::string& information);
  model::NCRecord* currentExamination();
  /// Makes fields without a record read-only: a file may lack the examination, or the record of a fetus.
  void showWhatTakesTyping();
  model::MeasurementsRecord* currentMeasurements();
  /// The day with its month in words.
  std::string longDateText(const foundation::Date& date) const;
  /// Whether the user has typed something into a date field of the window that is no date, and so erases it.
  bool erasesDate(const framework::TextField& field) const;
  void enterEDD(const ProposedEDD& proposal, framework::Panel& window);
  /// The panel of the measurements shows what the window shows, as long as it is open.
  void refreshEDDfromMeasurements();
  /// Gives the dates that the user or a dialog has set to the records, and with them all dates of the document their days,
  /// so that no age is between a day and a moment. Dates that were not set keep the moment of their file.
  void takeDates();
  /// A date without a day stays as it is.
  std::optional<foundation::Date> beginningOfDay(const std::optional<foundation::Date>& date) const;
  double projected(double (model::MeasurementsRecord::*value)() const,
                   void (model::MeasurementsRecord::*store)(double), const charts::NascorGraphView& graph);

  std::unique_ptr<model::PatientRecord> patientRecord_;
  model::MeasurementsRecord extrapolatedMeasurementsRecord_;
  std::int64_t currentFetus_ = 0;
  /// Read back as the day it already was, or another: the records do not tell that it was typed.
  bool examDateWasTyped_ = false;
  /// The examination of a new patient is dated so, and is brought to its day when the fields are first taken.
  std::optional<foundation::Date> madeNow_;
  /// All dates are to be brought to their days when the fields are next taken.
  bool examinationWasAdded_ = false;
  /// The planned gestation that the file holds, which the window may show as a whole day or as the latest that is
  /// permitted. Written again as long as nothing else is planned.
  std::optional<double> gestationInFile_;
  foundation::Subscription showAllSubscription_;
  PatientHistory history_;
  charts::Overlay overlay_;
  std::optional<Preference> preference_;  ///< of the action that is going on, as the next one
  std::optional<PatientChange> nameOfStep_;

  framework::IntegerField gravidaField_;
  framework::NumberField bpdField_;
  framework::NumberField hcField_;
  framework::NumberField acField_;
  framework::NumberField flField_;
  framework::PopUpButton multiplePopUp_;
  /// The title lines of the pages that have one, in their order.
  std::deque<framework::TextField> headers_;
  const FieldReader reader_{services(), fieldEditor()};
  CRLPanel crlPanel_{reader_};
  LastPeriodPanel lastPeriodPanel_{reader_};
  MeasurementsPanel measurementsPanel_{reader_};
  DeliveryPanel deliveryPanel_{reader_};
  const std::array<DatingPanel*, 4> datingPanels_{&crlPanel_, &lastPeriodPanel_, &measurementsPanel_,
                                                  &deliveryPanel_};
  Assessment assessment_;
  std::vector<framework::TextField*> textFields_;
  std::vector<framework::Panel*> panels_;

  PatientPages pages_;
};

}  // namespace nascor::app
