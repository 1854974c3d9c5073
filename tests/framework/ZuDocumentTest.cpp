// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/ZuDocument.h"

#include <gtest/gtest.h>

#include "DocumentsUnderTest.h"
#include "support/Calls.h"

namespace nascor::framework {
namespace {

class ADocumentWithAFile : public testing::Test {
 protected:
  TextApplication application;
};

TEST_F(ADocumentWithAFile, isUntitledUntilItIsSaved) {
  TextDocument document(application.environment());
  EXPECT_EQ(document.filePath(), std::nullopt);
  EXPECT_EQ(document.displayName(), "Untitled");
  EXPECT_EQ(document.writeToFile("/documents/a b.nascor"), std::nullopt);
  EXPECT_EQ(document.filePath(), "/documents/a b.nascor");
  EXPECT_EQ(document.displayName(), "a b.nascor");
  document.setFilePath("plain");
  EXPECT_EQ(document.displayName(), "plain");
}

TEST_F(ADocumentWithAFile, isNeitherEditedNorBlankAfterSaving) {
  TextDocument document(application.environment());
  document.model = "one";
  document.setDocIsBlank(true);
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  const tests::Calls told(document.onStateChanged);
  EXPECT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  EXPECT_FALSE(document.isDocumentEdited());
  EXPECT_FALSE(document.isBlank());
  EXPECT_EQ(application.textOf("/documents/a"), "one");
  EXPECT_GE(told.count(), 1);
}

TEST_F(ADocumentWithAFile, isUnchangedAndTheOldFileWholeWhenAWriteFails) {
  TextDocument document(application.environment());
  document.model = "one";
  ASSERT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  document.model = "two";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.files.failWriteAt = 1;
  const auto error = document.writeToFile("/documents/b");
  ASSERT_TRUE(error);
  EXPECT_EQ(error->reason, "No space left on device");
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_EQ(document.filePath(), "/documents/a") << "the file stays the one that it was";
  EXPECT_EQ(application.textOf("/documents/a"), "one");
  // The disk has room again.
  EXPECT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  EXPECT_EQ(application.textOf("/documents/a"), "two");
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ADocumentWithAFile, isBlankStillWhenItsFirstWriteFails) {
  TextDocument document(application.environment());
  document.setDocIsBlank(true);
  application.files.failWriteAt = 0;
  EXPECT_TRUE(document.writeToFile("/documents/a"));
  EXPECT_TRUE(document.isBlank());
  EXPECT_EQ(document.filePath(), std::nullopt);
}

TEST_F(ADocumentWithAFile, countsItsChanges) {
  using enum ZuDocument::ChangeType;
  TextDocument document(application.environment());
  EXPECT_FALSE(document.isDocumentEdited());
  document.updateChangeCount(changeDone);
  document.updateChangeCount(changeDone);
  document.updateChangeCount(changeUndone);
  EXPECT_TRUE(document.isDocumentEdited());
  document.updateChangeCount(changeUndone);
  EXPECT_FALSE(document.isDocumentEdited());
  document.updateChangeCount(changeUndone);
  EXPECT_TRUE(document.isDocumentEdited()) << "taken back to before the last save";
  document.updateChangeCount(changeCleared);
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ADocumentWithAFile, readsItsFileAgain) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  document.model = "changed";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  EXPECT_EQ(document.revertToSaved(), std::nullopt);
  EXPECT_EQ(document.model, "saved");
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(ADocumentWithAFile, staysAsItIsWhenItsFileCannotBeReadAgain) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  document.model = "changed";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.files.failReadAt = application.files.reads();
  EXPECT_EQ(document.revertToSaved()->reason, "Input/output error");
  application.put("/documents/a", "bad");
  EXPECT_EQ(document.revertToSaved()->reason, "a is not a Nascor document.");
  EXPECT_EQ(document.model, "changed");
  EXPECT_TRUE(document.isDocumentEdited());
  TextDocument unsaved(application.environment());
  EXPECT_TRUE(unsaved.revertToSaved());
}

TEST_F(ADocumentWithAFile, knowsWhatBecameOfIt) {
  using State = ZuDocument::FileState;
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  EXPECT_EQ(document.lookAtFile().state, State::asKnown);
  application.put("/documents/a", "other");
  EXPECT_EQ(document.lookAtFile().state, State::isChanged) << "of the same length";
  EXPECT_EQ(document.revertToSaved(), std::nullopt);
  EXPECT_EQ(document.lookAtFile().state, State::asKnown);
  document.model = "mine";
  EXPECT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  EXPECT_EQ(document.lookAtFile().state, State::asKnown);
  application.files.failReadAt = application.files.reads();
  const ZuDocument::FileLook look = document.lookAtFile();
  EXPECT_EQ(look.state, State::isUnreadable);
  EXPECT_EQ(look.reason, "Input/output error");
  application.files.files.erase("/documents/a");
  EXPECT_EQ(document.lookAtFile().state, State::isGone);
  TextDocument unsaved(application.environment());
  EXPECT_EQ(unsaved.lookAtFile().state, State::asKnown);
}

TEST_F(ADocumentWithAFile, staysEditedWhenItsFileMayNotOutlastAPowerCut) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  document.model = "mine";
  document.updateChangeCount(ZuDocument::ChangeType::changeDone);
  application.files.failFlushAt = application.files.writes();
  const auto error = document.writeToFile("/documents/a");
  ASSERT_TRUE(error);
  EXPECT_EQ(error->kind, foundation::FileError::Kind::isWritten);
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_EQ(document.lookAtFile().state, ZuDocument::FileState::asKnown) << "it has written that itself";
}

TEST_F(ADocumentWithAFile, letsGoOfAFileThatHoldsNothingAnyMore) {
  application.put("/documents/a", "saved");
  TextDocument& document = *application.open("/documents/a");
  application.put("/documents/a", "nil");
  EXPECT_EQ(document.revertToSaved(), std::nullopt);
  EXPECT_EQ(document.filePath(), std::nullopt);
  EXPECT_TRUE(document.isBlank());
}

}  // namespace
}  // namespace nascor::framework
