// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "foundation/NotificationCenter.h"
#include "foundation/Signal.h"
#include "framework/Alerts.h"
#include "framework/Controls.h"
#include "framework/FieldEditor.h"
#include "framework/FilePanels.h"
#include "framework/GraphDocument.h"
#include "framework/PageWriter.h"
#include "framework/Printer.h"
#include "framework/Sheet.h"
#include "framework/StatusLine.h"
#include "framework/TextField.h"
#include "framework/ZuDocument.h"

namespace nascor::framework {

class DocumentController;

/// What a document asks of the application around it.
struct DocumentEnvironment {
  foundation::Services services;
  Alerts& alerts;
  DocumentController& controller;
  // Without these nothing is asked, written or printed.
  FilePanels* panels = nullptr;
  PageWriter* pageWriter = nullptr;
  Printer* printer = nullptr;
};

/// The document of one patient, with a window of fields and pages, seen at a series of examinations of which one is on
/// show. A subclass holds the model and keeps fields and model in step.
class CorvelDocument : public ZuDocument, public virtual GraphDocument, protected TextFieldDelegate {
 public:
  explicit CorvelDocument(const DocumentEnvironment& environment);

  /// @name The window
  /// @{

  TextField& referenceIDField() { return referenceIDField_; }
  const TextField& referenceIDField() const { return referenceIDField_; }
  TextField& birthDateField() { return birthDateField_; }
  const TextField& birthDateField() const { return birthDateField_; }
  TextField& examDateField() { return examDateField_; }
  const TextField& examDateField() const { return examDateField_; }
  TextField& ageField() { return ageField_; }
  TextView& notesField() { return notesField_; }
  const TextView& notesField() const { return notesField_; }
  TabView& tabView() { return tabView_; }
  const TabView& tabView() const { return tabView_; }
  FieldEditor& fieldEditor() { return fieldEditor_; }
  const FieldEditor& fieldEditor() const { return fieldEditor_; }
  StatusLine& statusLine() { return statusLine_; }

  bool commitEditing() override;
  void remark(const std::string& sentence) override { statusLine_.say(sentence, nullptr); }
  /// The user has left the note: what was typed there reaches the records, whatever a field holds back.
  void noteWasLeft();

  /// @}
  /// @name The examination on show
  /// @{

  std::int64_t currentExam() const override { return currentExam_; }
  void setCurrentExam(std::int64_t exam) { currentExam_ = exam; }
  /// Not on paper, where the disc around the examination on show would read as a finding.
  bool shouldShowGraphHilite() const override { return !isOnPaper_; }
  /// Whether the pages go to paper or into files from now on.
  void setOnPaper(bool onPaper) { isOnPaper_ = onPaper; }

  void nextExamination();
  void previousExamination();
  /// Adds an examination dated now, shows it, and puts it into its place.
  void addExaminationAction();
  /// Removes the examination on show and shows its neighbour; never the last one. Asks first when anything was measured
  /// or noted.
  void deleteExaminationAction();

  /// @}

  /// @name Pages into files and to the printer; the text in edit reaches the records first
  /// @{

  // Selector: doExport:
  /// Writes the page on show into a file of the format that the user prefers, under a name that is not taken. Without a
  /// sender it asks and says nothing: the file goes to the folder that was chosen once, else to the document's, else to
  /// the user's documents folder. With one, the user is asked for a folder where none was chosen, and told of a failure.
  /// Nothing when it was written or the user cancelled, else why not.
  std::optional<std::string> doExport(const foundation::NotificationSender* sender);

  /// Sent with the path of each page that was exported.
  foundation::Signal<const std::string&> onExported;

  /// Told once at the end of printing, whether all of it went out.
  using DidPrint = std::function<void(bool)>;

  // Selector: printDocumentWithSettings:showPrintPanel:delegate:didPrintSelector:contextInfo:
  /// Prints the page on show. `didPrint`, which may be empty, stands for delegate, selector and context. A failure is told
  /// to the user where the print panel was shown.
  virtual void printDocumentWithSettings(const PrintSettings& settings, bool showPrintPanel,
                                         const DidPrint& didPrint);

  const PrintInfo& printInfo() const { return printInfo_; }
  void setPrintInfo(const PrintInfo& info) { printInfo_ = info; }

  /// @}

  /// Whether the patient is to be looked up when the next field is left.
  bool lookUpRequired() const { return lookUpRequired_; }
  void setLookUpRequired(bool required) { lookUpRequired_ = required; }

  // Selector: lookUp:askForConfirmation:
  /// Offers the documents of the patient called `name` that lie in the documents folder, each by one question (without
  /// one when `ask` is false). The chosen one takes this window's place; otherwise the fields are stored and work goes on.
  void lookUp(const std::string& name, bool ask);

  // Selector: directUpdateDisplayAndSetDirty:
  /// The fields go to the model, everything is shown anew, and the document is edited.
  void directUpdateDisplayAndSetDirty(bool dirty);

  /// All that happens while the outermost of these lives is one action of the user.
  class OneStep {
   public:
    explicit OneStep(CorvelDocument& document) : document_(document) { ++document_.actions_; }
    ~OneStep() {
      if (--document_.actions_ == 0) document_.actionEnded();
    }
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

   private:
    CorvelDocument& document_;
  };

  /// @name What the subclass provides
  /// @{

  virtual void synchronizeFromData() = 0;
  virtual void synchronizeToData() = 0;
  virtual void updateDisplay();
  /// Appends an examination dated now and makes it the current one; neither sorts nor synchronises.
  virtual void addExamination() = 0;
  /// Removes the current examination; neither guards the last one nor moves `currentExam`.
  virtual void deleteCurrentExamination() = 0;
  /// The fields go to the model, the examinations are put in order of date, and the same one stays on show.
  virtual void updateArrayOrder() = 0;
  virtual std::int64_t numberOfExaminations() const = 0;

  /// @}

  /// Sent after everything on show may have changed.
  foundation::Signal<> onDisplayChanged;

 protected:
  const DocumentEnvironment& environment() const { return environment_; }

  bool controlTextShouldBeginEditing(TextField& field) override;
  void controlTextDidBeginEditing(TextField& field) override;
  void controlTextDidDropEditing(TextField& field) override;
  void changeWasDone() override { statusLine_.clear(); }
  void changesWereCleared() override { isMarkedByEdit_ = false; }

  /// An action that may have changed the model has ended.
  virtual void actionEnded() {}
  /// Whether an action is going on.
  bool isInStep() const { return actions_ > 0; }
  /// Whether pages go to the printer just now.
  bool isPrinting() const { return isPrinting_; }
  /// Another field, another text or none is in edit.
  virtual void editedTextChanged() {}
  /// Where typing goes on after something new was added: the first field of the examination on show that holds nothing yet;
  /// null for none.
  virtual TextField* firstEmptyField() { return nullptr; }
  /// Whether the current examination holds anything that its removal would lose.
  virtual bool currentExaminationHoldsData() const = 0;
  /// Whether anything but reference ID and gravidity was entered.
  virtual bool holdsMoreThanIdentity() const = 0;
  /// What the document in a file is known by, a line each; none where the file cannot be read.
  virtual std::vector<std::string> factsOfFile(std::span<const std::byte>) const { return {}; }
  /// The reference ID in the form that file names have.
  virtual std::string referenceIDForFileName() const = 0;
  /// What exported pages are named after; may be empty.
  virtual std::string exportName() const { return suggestedFileName(); }
  /// What stands under page `index`, which is the `number`th of `count` that go out together.
  virtual PageFoot footOfPage(std::int64_t index, std::int64_t number, std::int64_t count) const;
  /// What a file of page `index` says of itself.
  virtual SheetFacts factsOfPage(std::int64_t index) const;

  /// Offers the documents in the documents folder of the patient called `name`, and those of her reference ID (in the form
  /// that file names have) under any gravidity. True when one has taken this document's place.
  bool opensDocumentOf(const std::string& referenceID, const std::string& name, bool ask);
  /// Commits what is in edit. False when a field refuses its text, or when the patient that was looked up has taken this
  /// document's place: then nothing more may be done with it.
  bool commitsEditing();
  /// Prints these pages as one request.
  void printPages(const std::vector<std::int64_t>& pages, const PrintSettings& settings, bool showPrintPanel,
                  const DidPrint& didPrint);

 private:
  void showExamination(std::int64_t exam);
  std::optional<std::string> exportPage(std::int64_t page, const std::string& folder);
  std::optional<std::string> print(PrintJob& job, const std::vector<std::int64_t>& pages, bool showPrintPanel,
                                   bool& isPrinted);
  PageFoot footIfWanted(std::int64_t index, std::int64_t number, std::int64_t count) const;
  void removeExamination();
  std::vector<foundation::FileEntry> documentsOfPatient(const std::string& referenceID,
                                                        const std::string& name) const;
  bool userOpens(const foundation::FileEntry& file) const;

  DocumentEnvironment environment_;
  TextField referenceIDField_;
  TextField birthDateField_;
  TextField examDateField_;
  TextField ageField_;
  TextView notesField_;
  TabView tabView_;
  FieldEditor fieldEditor_;
  StatusLine statusLine_;
  std::int64_t currentExam_ = 0;
  bool lookUpRequired_ = false;
  bool isOnPaper_ = false;
  bool isPrinting_ = false;
  int actions_ = 0;              ///< those that are going on, one within the other
  bool isMarkedByEdit_ = false;  ///< whether the change count holds a change for the field in edit
  PrintInfo printInfo_;
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::framework
