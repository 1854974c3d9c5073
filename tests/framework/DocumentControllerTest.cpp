// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/DocumentController.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DocumentsUnderTest.h"

namespace nascor::framework {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheDocuments : public testing::Test {
 protected:
  TextApplication application;
  DocumentController& documents = application.documents;
};

TEST_F(TheDocuments, areNoneAtTheStart) {
  EXPECT_EQ(documents.currentDocument(), nullptr);
  EXPECT_THAT(documents.documents(), IsEmpty());
  EXPECT_TRUE(documents.closeAllDocuments());
}

TEST_F(TheDocuments, beginBlankAndInFront) {
  std::vector<std::string> told;
  const auto additions = documents.onDocumentAdded.subscribe([&](ZuDocument& added) {
    told.push_back(dynamic_cast<TextDocument&>(added).calls.empty() ? "added before its window" : "too late");
  });
  TextDocument& document = application.newDocument();
  EXPECT_THAT(told, ElementsAre("added before its window"));
  EXPECT_THAT(document.calls, ElementsAre("window loaded"));
  EXPECT_TRUE(document.isBlank());
  EXPECT_EQ(documents.currentDocument(), &document);
}

TEST_F(TheDocuments, openFromFilesWithTheirContents) {
  application.put("/documents/a", "text");
  TextDocument* document = application.open("/documents/a");
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->model, "text");
  EXPECT_EQ(document->filePath(), "/documents/a");
  EXPECT_FALSE(document->isBlank());
  EXPECT_FALSE(document->isDocumentEdited());
}

TEST_F(TheDocuments, openOncePerFile) {
  application.put("/documents/a", "text");
  TextDocument* document = application.open("/documents/a");
  application.newDocument();
  EXPECT_EQ(application.open("/documents/a"), document);
  EXPECT_EQ(documents.currentDocument(), document);
  EXPECT_EQ(application.files.reads(), 1);
}

TEST_F(TheDocuments, sayWhyAFileDoesNotOpen) {
  application.put("/documents/bad", "bad");
  EXPECT_EQ(application.open("/documents/bad"), nullptr);
  EXPECT_EQ(application.error.reason, "bad is not a Nascor document.");
  EXPECT_EQ(application.error.details, "/documents/bad: this is no document");
  EXPECT_EQ(application.open("/documents/none"), nullptr);
  EXPECT_EQ(application.error.reason, "/documents/none: No such file or directory");
  EXPECT_EQ(application.error.details, "");
  EXPECT_THAT(documents.documents(), IsEmpty());
}

TEST_F(TheDocuments, areUntitledWhenTheirFileHoldsNothing) {
  application.put("/documents/nil", "nil");
  TextDocument* document = application.open("/documents/nil");
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->filePath(), std::nullopt);
  EXPECT_TRUE(document->isBlank());
}

TEST_F(TheDocuments, openFromThePanelAndTellOfThoseThatDoNot) {
  application.put("/documents/a", "text");
  application.put("/documents/bad", "bad");
  application.panels.filesToOpen = {"/documents/bad", "/documents/a"};
  documents.openDocuments();
  EXPECT_EQ(application.front()->model, "text");
  EXPECT_THAT(application.alerts.told,
              ElementsAre("The document cannot be opened. bad is not a Nascor document."));
  EXPECT_THAT(application.alerts.toldDetails, ElementsAre("/documents/bad: this is no document"));
}

TEST_F(TheDocuments, areSavedToTheirFile) {
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  document.model = "more";
  EXPECT_TRUE(documents.saveDocument(document));
  EXPECT_EQ(application.textOf("/documents/a"), "more");
  EXPECT_THAT(application.panels.suggested, IsEmpty());
}

TEST_F(TheDocuments, askWhereToSaveWhenTheyHaveNoFile) {
  TextDocument& document = application.newDocument();
  EXPECT_TRUE(documents.saveDocument(document));
  document.name = "A (G1)";
  EXPECT_TRUE(documents.saveDocumentAs(document));
  TextDocument& other = application.newDocument();
  other.name = ".B/1";
  EXPECT_TRUE(documents.saveDocument(other));
  EXPECT_THAT(application.panels.suggested, ElementsAre("Untitled.nascor", "Untitled.nascor", "_B-1.nascor"));
  application.panels.isCancelled = true;
  EXPECT_FALSE(documents.saveDocumentAs(other));
  EXPECT_EQ(application.files.writes(), 3);
}

TEST_F(TheDocuments, areNotSavedWhileAFieldRefuses) {
  TextDocument& document = application.newDocument();
  document.fieldEditor().begin(document.birthDateField());
  document.fieldEditor().replace("refused");
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_FALSE(documents.saveDocumentAs(document));
  document.setFilePath("/documents/a");
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_EQ(application.files.writes(), 0);
  EXPECT_THAT(application.panels.suggested, IsEmpty());
}

TEST_F(TheDocuments, tellWhyAFileWasNotWritten) {
  TextDocument& document = application.newDocument();
  document.setFilePath("/documents/a");
  application.files.failWriteAt = 0;
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_THAT(application.alerts.told,
              ElementsAre("The document was not saved. /documents/a: No space left on device"));
}

TEST_F(TheDocuments, areNotSavedOverOneThatIsOpen) {
  application.put("/documents/Untitled.nascor", "text");
  application.open("/documents/Untitled.nascor");
  TextDocument& document = application.newDocument();
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_EQ(application.textOf("/documents/Untitled.nascor"), "text");
  EXPECT_THAT(application.alerts.told,
              ElementsAre("The document was not saved. /documents/Untitled.nascor: It is "
                          "open in another window."));
  EXPECT_EQ(document.filePath(), std::nullopt);
}

// Documents that another program has open, or has changed.

class ADocumentThatIsHeld : public TheDocuments {
 protected:
  ADocumentThatIsHeld() {
    application.put("/documents/a", "text");
    application.files.holders["/documents/a"] = {
        .user = "anna", .host = "ward-3", .process = 4711, .since = {817034400.0}};
  }
  void edit(TextDocument& document, const std::string& text) {
    document.model = text;
    document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  }
};

TEST_F(ADocumentThatIsHeld, isNotOpenedUnasked) {
  EXPECT_EQ(application.open("/documents/a"), nullptr);
  EXPECT_EQ(application.error.kind, foundation::FileError::Kind::isDeclined);
  EXPECT_THAT(application.alerts.choices,
              ElementsAre("This document is open elsewhere. How do you want to open it?"));
  EXPECT_THAT(
      application.alerts.choiceInformation,
      ElementsAre(testing::StartsWith("/documents/a\n\nUser: anna\nMachine: ward-3\nSince: 22 November "
                                      "2026, 20:00\nProcess: 4711\n\n")));
  EXPECT_THAT(documents.documents(), IsEmpty());
  EXPECT_THAT(application.alerts.told, IsEmpty()) << "the user knows";
}

TEST_F(ADocumentThatIsHeld, isRefusedToAProgramWithoutAQuestion) {
  foundation::FileError error;
  EXPECT_EQ(documents.openDocument("/documents/a", error, DocumentController::IfHeld::refuses), nullptr);
  EXPECT_EQ(
      error.reason,
      "/documents/a: It is open elsewhere. User: anna; Machine: ward-3; Since: 22 November 2026, 20:00; "
      "Process: 4711");
  EXPECT_THAT(application.alerts.choices, IsEmpty());
}

TEST_F(ADocumentThatIsHeld, opensToBeReadAndIsNotSavedUntilItIsFree) {
  application.alerts.choice = "Open Read-Only";
  TextDocument& document = *application.open("/documents/a");
  EXPECT_TRUE(document.isReadOnly());
  edit(document, "mine");
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_THAT(
      application.alerts.told,
      ElementsAre(testing::StartsWith(
          "The document was not saved. /documents/a: It is open elsewhere. User: anna; Machine: ward-3")));
  EXPECT_EQ(application.textOf("/documents/a"), "text");
  EXPECT_TRUE(document.isDocumentEdited());

  application.files.holders.clear();
  EXPECT_TRUE(documents.saveDocument(document));
  EXPECT_FALSE(document.isReadOnly());
  EXPECT_EQ(application.textOf("/documents/a"), "mine");
}

TEST_F(ADocumentThatIsHeld, opensAsACopyThatIsNowhereYet) {
  application.alerts.choice = "Open a Copy";
  const TextDocument& document = *application.open("/documents/a");
  EXPECT_EQ(document.model, "text");
  EXPECT_EQ(document.filePath(), std::nullopt);
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_FALSE(document.isReadOnly());
}

TEST_F(ADocumentThatIsHeld, isTakenOnlyWhereItsHolderMayBeGone) {
  application.alerts.choice = "Open Anyway";
  EXPECT_EQ(application.open("/documents/a"), nullptr) << "which is no answer to what was asked";
  application.files.holders["/documents/a"].mayBeGone = true;
  TextDocument& document = *application.open("/documents/a");
  EXPECT_FALSE(document.isReadOnly());
  edit(document, "mine");
  EXPECT_TRUE(documents.saveDocument(document));
}

TEST_F(ADocumentThatIsHeld, isNotReplacedByAnother) {
  TextDocument& other = application.newDocument();
  edit(other, "other");
  application.panels.fileToSave = "/documents/a";
  EXPECT_FALSE(documents.saveDocumentAs(other));
  EXPECT_EQ(application.textOf("/documents/a"), "text");
  EXPECT_EQ(other.filePath(), std::nullopt);
}

TEST_F(TheDocuments, holdTheirFilesUntilTheyAreClosed) {
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  EXPECT_THAT(application.files.locks, testing::Contains(testing::Key("/documents/a")));
  application.panels.fileToSave = "/documents/b";
  EXPECT_TRUE(documents.saveDocumentAs(document));
  EXPECT_THAT(application.files.locks, ElementsAre(testing::Key("/documents/b")));
  EXPECT_TRUE(documents.closeDocument(document));
  EXPECT_THAT(application.files.locks, IsEmpty()) << "before the document itself is gone";
}

TEST_F(TheDocuments, holdNoFileThatCannotBeOpened) {
  application.put("/documents/bad", "bad");
  application.put("/documents/nil", "nil");
  EXPECT_EQ(application.open("/documents/bad"), nullptr);
  EXPECT_NE(application.open("/documents/nil"), nullptr);
  EXPECT_THAT(application.files.locks, IsEmpty());
}

TEST_F(TheDocuments, letGoOfTheirFilesAtOnce) {
  application.put("/documents/a", "text");
  EXPECT_NE(application.open("/documents/a"), nullptr);
  documents.releaseLocks();
  EXPECT_THAT(application.files.locks, IsEmpty());
}

TEST_F(TheDocuments, areOpenedAndSavedWhereNoLocksCanBeMade) {
  application.files.takesLocks = false;
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  EXPECT_FALSE(document.isReadOnly());
  document.model = "mine";
  EXPECT_TRUE(documents.saveDocument(document));
}

TEST_F(TheDocuments, askOfAChangeInTheLastMoment) {
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  document.model = "mine";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.files.beforeReplacing = [&] { application.put("/documents/a", "a colleague's"); };
  EXPECT_FALSE(documents.saveDocument(document));
  ASSERT_EQ(application.alerts.asked.size(), 1U);
  EXPECT_THAT(application.alerts.asked[0].message,
              testing::StartsWith("Another program has changed the file"));
  EXPECT_EQ(application.textOf("/documents/a"), "a colleague's");
  EXPECT_TRUE(document.isDocumentEdited());

  application.files.beforeReplacing = [&] { application.put("/documents/a", "another one's"); };
  application.alerts.answers = {"Save Anyway", "Save Anyway"};
  EXPECT_TRUE(documents.saveDocument(document)) << "asked twice: what is there is another one's by now";
  EXPECT_EQ(application.alerts.asked.size(), 3U);
  EXPECT_EQ(application.textOf("/documents/a"), "mine");
}

TEST_F(TheDocuments, replaceNothingThatAppearsWhereNothingWas) {
  TextDocument& document = application.newDocument();
  document.model = "mine";
  application.panels.fileToSave = "/documents/a";
  application.files.beforeReplacing = [&] { application.put("/documents/a", "a colleague's"); };
  EXPECT_FALSE(documents.saveDocumentAs(document));
  EXPECT_EQ(application.textOf("/documents/a"), "a colleague's");
}

TEST_F(TheDocuments, callAnUnreadableFileUnreadable) {
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  application.files.failReadAt = application.files.reads();
  EXPECT_FALSE(documents.saveDocument(document));
  ASSERT_EQ(application.alerts.asked.size(), 1U);
  EXPECT_EQ(application.alerts.asked[0].message,
            "The file of this document cannot be read. Do you want to replace it?");
  EXPECT_THAT(application.alerts.asked[0].information, testing::HasSubstr("Input/output error"));
  EXPECT_TRUE(application.alerts.asked[0].isCancelledByReturn);
}

TEST_F(TheDocuments, tellWhenTheSystemDoesNotVouchForTheFile) {
  application.put("/documents/a", "text");
  TextDocument& document = *application.open("/documents/a");
  document.model = "mine";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.files.failFlushAt = application.files.writes();
  EXPECT_FALSE(documents.saveDocument(document));
  EXPECT_THAT(application.alerts.told,
              ElementsAre(testing::HasSubstr("outlasts a power cut. Please save it again. "
                                             "/documents/a: Input/output error")));
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_TRUE(documents.saveDocument(document)) << "without a question about what it has written itself";
  EXPECT_THAT(application.alerts.asked, IsEmpty());
}

TEST_F(TheDocuments, closeWithoutAQuestionWhenTheyWereNotEdited) {
  TextDocument& document = application.newDocument();
  application.alerts.choice = "Cancel";
  EXPECT_TRUE(documents.closeDocument(document));
  EXPECT_THAT(application.alerts.choices, IsEmpty());
  EXPECT_EQ(documents.currentDocument(), nullptr);
  EXPECT_THAT(document.calls, ElementsAre("window loaded", "window closes"))
      << "it lives until it is released";
}

struct CloseCase {
  const char* button;
  bool hasFile;
  int failWriteAt;
  bool isPanelCancelled;
  bool closes;
  int writes;
};
class AnEditedDocument : public testing::TestWithParam<CloseCase> {};

TEST_P(AnEditedDocument, closesOnlyWhenNothingIsLostUnasked) {
  const CloseCase& given = GetParam();
  TextApplication application;
  TextDocument& document = application.newDocument();
  if (given.hasFile) document.setFilePath("/documents/a");
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.alerts.choice = given.button;
  application.files.failWriteAt = given.failWriteAt;
  application.panels.isCancelled = given.isPanelCancelled;
  EXPECT_EQ(application.documents.closeDocument(document), given.closes);
  EXPECT_THAT(application.alerts.choices, ElementsAre("Do you want to save the changes of this document?"));
  EXPECT_EQ(application.documents.currentDocument() == nullptr, given.closes);
  EXPECT_EQ(application.files.writes(), given.writes);
  EXPECT_EQ(document.isDocumentEdited(), given.writes == 0 || !given.closes);
}

INSTANTIATE_TEST_SUITE_P(all, AnEditedDocument,
                         testing::Values(CloseCase{"Save", true, -1, false, true, 1},
                                         CloseCase{"Save", false, -1, false, true, 1},
                                         CloseCase{"Save", false, -1, true, false, 0},
                                         CloseCase{"Save", true, 0, false, false, 1},
                                         CloseCase{"Discard", true, -1, false, true, 0},
                                         CloseCase{"Discard", false, -1, false, true, 0},
                                         CloseCase{"Cancel", true, -1, false, false, 0}));

TEST_F(TheDocuments, dropARefusedTextWithTheirWindow) {
  TextDocument& document = application.newDocument();
  document.setFilePath("/documents/a");
  document.model = "kept";
  document.fieldEditor().begin(document.birthDateField());
  document.fieldEditor().replace("refused");
  application.alerts.choice = "Cancel";
  EXPECT_FALSE(documents.closeDocument(document));
  EXPECT_EQ(document.fieldEditor().text(), "refused");
  application.alerts.choice = "Save";
  EXPECT_TRUE(documents.closeDocument(document));
  EXPECT_EQ(application.textOf("/documents/a"), "kept");
}

TEST_F(TheDocuments, storeANoteBesideAFieldThatRefusesWhenTheyClose) {
  TextDocument& document = application.newDocument();
  document.notesField().takeEditedText("note");
  document.fieldEditor().begin(document.birthDateField());
  document.fieldEditor().replace("refused");
  application.alerts.choice = "Discard";
  documents.closeDocument(document);
  EXPECT_THAT(document.calls, ElementsAre("window loaded", "to data", "window closes"));
}

TEST_F(TheDocuments, arePutInFrontInTheOrderOfTheirUse) {
  TextDocument& one = application.newDocument();
  TextDocument& two = application.newDocument();
  TextDocument& three = application.newDocument();
  std::vector<ZuDocument*> inFront;
  const auto fronts =
      documents.onDocumentInFront.subscribe([&](ZuDocument& front) { inFront.push_back(&front); });
  documents.setCurrentDocument(one);
  EXPECT_THAT(documents.documents(), ElementsAre(&two, &three, &one));
  documents.closeDocument(one);
  EXPECT_EQ(documents.currentDocument(), &three);
  EXPECT_THAT(inFront, ElementsAre(&one, &three));
  TextDocument stranger(application.environment());
  documents.setCurrentDocument(stranger);
  EXPECT_EQ(documents.currentDocument(), &three);
}

TEST_F(TheDocuments, areAllClosedOrNone) {
  TextDocument& one = application.newDocument();
  TextDocument& two = application.newDocument();
  TextDocument& three = application.newDocument();
  two.updateChangeCount(ZuDocument::ChangeType::changeDone);
  EXPECT_FALSE(documents.closeAllDocuments());
  EXPECT_THAT(documents.documents(), ElementsAre(&one, &three, &two)) << "the one asked about is in front";
  application.alerts.choice = "Discard";
  EXPECT_TRUE(documents.closeAllDocuments());
  EXPECT_THAT(documents.documents(), ElementsAre());
}

TEST_F(TheDocuments, areAskedAboutOneByOneWhenTheSessionEndsAndStayOpen) {
  TextDocument& one = application.newDocument();
  TextDocument& two = application.newDocument();
  TextDocument& three = application.newDocument();
  one.setFilePath("/documents/one");
  three.setFilePath("/documents/three");
  one.updateChangeCount(ZuDocument::ChangeType::changeDone);
  three.fieldEditor().begin(three.birthDateField());
  std::vector<ZuDocument*> inFront;
  const auto fronts =
      documents.onDocumentInFront.subscribe([&](ZuDocument& front) { inFront.push_back(&front); });
  application.alerts.choice = "Save";
  EXPECT_TRUE(documents.saveEditedDocuments());
  EXPECT_EQ(application.alerts.choices.size(), 2U);
  EXPECT_THAT(inFront, ElementsAre(&three, &one)) << "the user sees which one is asked about";
  EXPECT_TRUE(application.files.files.contains("/documents/one"));
  EXPECT_TRUE(application.files.files.contains("/documents/three"));
  EXPECT_FALSE(one.isDocumentEdited());
  EXPECT_FALSE(three.isDocumentEdited());
  EXPECT_THAT(documents.documents(), testing::UnorderedElementsAre(&one, &two, &three));
}

TEST_F(TheDocuments, keepWhatIsDiscardedAtTheEndOfASessionUntilItHasEnded) {
  TextDocument& document = application.newDocument();
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.alerts.choice = "Discard";
  EXPECT_TRUE(documents.saveEditedDocuments());
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_EQ(application.files.writes(), 0);
}

TEST_F(TheDocuments, endNoSessionThatTheUserCancelsOrThatTheyCannotBeSavedFor) {
  TextDocument& one = application.newDocument();
  one.setFilePath("/documents/one");
  one.updateChangeCount(ZuDocument::ChangeType::changeDone);
  TextDocument& two = application.newDocument();
  two.updateChangeCount(ZuDocument::ChangeType::changeDone);
  EXPECT_FALSE(documents.saveEditedDocuments());
  EXPECT_EQ(application.alerts.choices.size(), 1U) << "after Cancel nothing more is asked";
  application.alerts.choice = "Save";
  application.files.failWriteAt = 0;
  EXPECT_FALSE(documents.saveEditedDocuments());
  EXPECT_TRUE(one.isDocumentEdited());
}

TEST_F(TheDocuments, goBackToTheirFilesWhenTheUserAgrees) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  document.model = "edited";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  EXPECT_FALSE(documents.revertDocument(document)) << "cancelled";
  EXPECT_EQ(document.model, "edited");
  EXPECT_TRUE(document.isDocumentEdited());
  application.alerts.answers = {"Revert"};
  EXPECT_TRUE(documents.revertDocument(document));
  EXPECT_EQ(document.model, "saved");
  EXPECT_FALSE(document.isDocumentEdited());
  EXPECT_EQ(application.alerts.asked.size(), 2U);
}

TEST_F(TheDocuments, stayAsTheyAreWhenTheirFilesCannotBeReadAgain) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  document.model = "edited";
  application.put("/documents/a", "bad");
  application.alerts.answers = {"Revert"};
  EXPECT_FALSE(documents.revertDocument(document));
  EXPECT_EQ(document.model, "edited");
  EXPECT_THAT(application.alerts.told,
              ElementsAre("The document cannot be read. a is not a Nascor document."));
  EXPECT_THAT(application.alerts.toldDetails, ElementsAre("/documents/a: this is no document"));
}

TEST_F(TheDocuments, withoutAFileHaveNothingToGoBackTo) {
  EXPECT_FALSE(documents.revertDocument(application.newDocument()));
  EXPECT_THAT(application.alerts.asked, IsEmpty());
}

TEST_F(TheDocuments, makeWayOnlyWhenTheyAreUntouched) {
  application.put("/documents/a", "text");
  TextDocument& untouched = application.newDocument();
  EXPECT_TRUE(documents.closeUntouchedDocument(untouched));
  EXPECT_EQ(documents.currentDocument(), nullptr);
  EXPECT_FALSE(documents.closeUntouchedDocument(untouched)) << "it is closed already";

  EXPECT_FALSE(documents.closeUntouchedDocument(*application.open("/documents/a")));
  TextDocument& typedIn = application.newDocument();
  typedIn.fieldEditor().begin(typedIn.referenceIDField());
  EXPECT_FALSE(documents.closeUntouchedDocument(typedIn));
  TextDocument& identified = application.newDocument();
  identified.setDocIsBlank(false);
  EXPECT_FALSE(documents.closeUntouchedDocument(identified));
  EXPECT_EQ(documents.documents().size(), 3U);
}

TEST_F(TheDocuments, takeTheirPlaceFromOneAnother) {
  application.put("/documents/a", "text");
  application.put("/documents/bad", "bad");
  TextDocument& blank = application.newDocument();
  std::vector<ZuDocument*> removed;
  const auto removals =
      documents.onDocumentRemoved.subscribe([&](ZuDocument& document) { removed.push_back(&document); });
  EXPECT_FALSE(documents.replaceDocument(blank, "/documents/bad"));
  EXPECT_THAT(application.alerts.told,
              ElementsAre("The document cannot be opened. bad is not a Nascor document."));
  EXPECT_THAT(application.alerts.toldDetails, ElementsAre("/documents/bad: this is no document"));
  EXPECT_EQ(documents.currentDocument(), &blank);
  EXPECT_TRUE(documents.replaceDocument(blank, "/documents/a"));
  EXPECT_EQ(application.front()->model, "text");
  EXPECT_THAT(removed, ElementsAre(&blank));
  EXPECT_EQ(documents.documents().size(), 1U);
}

TEST_F(TheDocuments, closeOnceWhenALookUpOnTheWayReplacesThem) {
  application.put("/documents/a", "text");
  TextDocument& blank = application.newDocument();
  blank.afterEnd = [&] { documents.replaceDocument(blank, "/documents/a"); };
  blank.fieldEditor().begin(blank.birthDateField());
  EXPECT_TRUE(documents.closeDocument(blank));
  EXPECT_THAT(application.alerts.choices, IsEmpty());
  ASSERT_NE(application.front(), nullptr);
  EXPECT_EQ(application.front()->model, "text") << "the document that was found stays open";
}

TEST_F(TheDocuments, areNotSavedAfterALookUpReplacedThem) {
  application.put("/documents/a", "text");
  TextDocument& blank = application.newDocument();
  blank.afterEnd = [&] { documents.replaceDocument(blank, "/documents/a"); };
  blank.fieldEditor().begin(blank.birthDateField());
  EXPECT_FALSE(documents.saveDocument(blank));
  EXPECT_EQ(application.files.writes(), 0);
  documents.releaseClosedDocuments();
}

}  // namespace
}  // namespace nascor::framework
