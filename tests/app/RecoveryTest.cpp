// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/Recovery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/NCDocument.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "support/MemoryRecoveryStore.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::MemoryRecoveryStore;

const std::string kFile = "/documents/AB-123 (G2).nascor";

class TheRecovery : public testing::Test {
 protected:
  TheRecovery() {
    platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
    platform.defaults.registerDefault(foundation::defaults_key::dataFileExtension, "nascor");
    platform.documents.setFactory([this] { return std::make_unique<NCDocument>(platform.environment()); });
    removals = platform.documents.onDocumentRemoved.subscribe(
        [this](framework::ZuDocument& document) { recovery.forget(document); });
    platform.files.files[kFile] = bytesOf(patient());
  }

  static model::PatientRecord patient() {
    model::PatientRecord record;
    record.setMaternalIDString("AB-123");
    record.setGravida(2);
    record.setNumberOfFetuses(1);
    record.setExtrapolatedGestation(40.0);
    for (const double day : {9000.0, 9030.0}) {
      auto exam = std::make_unique<model::NCRecord>();
      exam->setNote("");
      exam->setExamDate(foundation::Date{day * foundation::kSecondsPerDay - 36000.0});
      exam->addMeasurementsRecord();
      record.ncRecordsArray().push_back(std::move(exam));
    }
    return record;
  }
  static std::vector<std::byte> bytesOf(const model::PatientRecord& record) {
    return model::archivedPatient(record);
  }
  NCDocument& open() {
    foundation::FileError error;
    return dynamic_cast<NCDocument&>(*platform.documents.openDocument(kFile, error));
  }
  NCDocument& current() { return dynamic_cast<NCDocument&>(*platform.documents.currentDocument()); }
  /// The patient of the first document that is kept; null for none.
  std::unique_ptr<model::PatientRecord> kept(std::uint64_t number = 1) {
    const auto found = platform.files.files.find(MemoryRecoveryStore::pathOf(number));
    return found == platform.files.files.end() ? nullptr : model::unarchivedPatient(found->second).patient;
  }
  /// Types into a field without leaving it.
  static void type(NCDocument& document, framework::TextField& field, const std::string& text) {
    ASSERT_TRUE(document.fieldEditor().begin(field));
    document.fieldEditor().replace(text);
  }
  void leave(const model::PatientRecord& record, const std::string& document) {
    leave(bytesOf(record), document);
  }
  void leave(std::vector<std::byte> bytes, const std::string& document) {
    platform.files.files["/recovery/left.nascor"] = std::move(bytes);
    store.abandoned = {
        {.path = "/recovery/left.nascor", .origin = {.document = document}, .saved = {817041600.0}}};
  }
  bool isLeft() { return platform.files.files.contains("/recovery/left.nascor"); }

  tests::TestApplication platform;
  MemoryRecoveryStore store{platform.files};
  Recovery recovery{platform.services(), platform.documents, platform.alerts, store};
  foundation::Subscription removals;
};

TEST_F(TheRecovery, keepsNothingOfADocumentThatWasNotEdited) {
  open();
  EXPECT_FALSE(recovery.hasWork());
  recovery.keepChanges();
  EXPECT_EQ(store.timesKept, 0);
}

TEST_F(TheRecovery, keepsWhatIsTypedBeforeTheFieldIsLeft) {
  NCDocument& document = open();
  const auto before = document.dataRepresentationOfType("");
  document.notesField().takeEditedText("a note");
  type(document, document.flField(), "33.5");
  EXPECT_TRUE(recovery.hasWork());
  recovery.keepChanges();
  const auto patient = kept();
  ASSERT_TRUE(patient);
  const model::NCRecord& exam = *patient->ncRecordsArray().back();
  EXPECT_EQ(exam.note(), "a note");
  EXPECT_EQ(exam.measurements().front().fl(), 33.5);
  EXPECT_EQ(store.documents.at(1), kFile);
  EXPECT_EQ(document.dataRepresentationOfType(""), before) << "the document itself is as it was";
  EXPECT_TRUE(document.fieldEditor().field());
}

TEST_F(TheRecovery, keepsEachKindOfField) {
  NCDocument& document = open();
  type(document, document.referenceIDField(), "CD-4");
  recovery.keepChanges();
  EXPECT_EQ(kept()->maternalIDString(), "CD-4");
  document.fieldEditor().revert();
  platform.alerts.answers = {"Modify"};
  type(document, document.gravidaField(), "3");
  recovery.keepChanges();
  EXPECT_EQ(kept()->gravida(), 3);
  EXPECT_EQ(kept()->maternalIDString(), "AB-123") << "what was taken back is not kept";
  document.fieldEditor().revert();
  type(document, document.birthDateField(), "4/10/27");
  recovery.keepChanges();
  ASSERT_TRUE(kept()->edd());
  EXPECT_EQ(kept()->edd()->secondsSince2001, 829008000.0 - 36000.0);
  document.fieldEditor().revert();
  type(document, document.examDateField(), "11/21/26");
  recovery.keepChanges();
  EXPECT_EQ(kept()->ncRecordsArray().back()->examDate()->secondsSince2001, 816912000.0 - 36000.0);
}

TEST_F(TheRecovery, keepsWhatIsKnownWhereAFieldWouldRefuse) {
  NCDocument& document = open();
  type(document, document.bpdField(), "999");
  recovery.keepChanges();
  EXPECT_EQ(kept()->ncRecordsArray().back()->measurements().front().bpd(), 0.0);
  document.fieldEditor().revert();
  type(document, document.examDateField(), "11/2");
  recovery.keepChanges();
  EXPECT_TRUE(kept()->ncRecordsArray().back()->examDate()) << "half a date takes none away";
}

TEST_F(TheRecovery, keepsWhatAScriptHasSet) {
  NCDocument& document = open();
  document.patientRecord()->setGravida(4);
  document.synchronizeFromData();
  document.updateChangeCount(NCDocument::ChangeType::changeDone);
  recovery.keepChanges();
  EXPECT_EQ(kept()->gravida(), 4);
}

TEST_F(TheRecovery, writesOnlyWhatHasChanged) {
  NCDocument& document = open();
  document.notesField().takeEditedText("a");
  recovery.keepChanges();
  recovery.keepChanges();
  EXPECT_EQ(store.timesKept, 1);
  document.notesField().takeEditedText("ab");
  recovery.keepChanges();
  EXPECT_EQ(store.timesKept, 2);
  EXPECT_EQ(kept()->ncRecordsArray().back()->note(), "ab") << "in the same place";
}

TEST_F(TheRecovery, isEmptyOnceTheDocumentIsSavedOrClosed) {
  NCDocument& document = open();
  document.notesField().takeEditedText("a");
  recovery.keepChanges();
  EXPECT_TRUE(platform.documents.saveDocument(document));
  EXPECT_TRUE(recovery.hasWork());
  recovery.keepChanges();
  EXPECT_FALSE(kept());
  EXPECT_FALSE(recovery.hasWork());

  document.notesField().takeEditedText("b");
  recovery.keepChanges();
  ASSERT_TRUE(kept(2));
  platform.alerts.choice = "Discard";
  EXPECT_TRUE(platform.documents.closeDocument(document));
  EXPECT_FALSE(kept(2));
}

TEST_F(TheRecovery, saysInTheWindowWhatCannotBeKept) {
  NCDocument& document = open();
  document.notesField().takeEditedText("a");
  platform.files.failWriteAt = platform.files.writes();
  recovery.keepChanges();
  EXPECT_THAT(document.statusLine().message(), HasSubstr("cannot be kept against a crash"));
  EXPECT_THAT(document.statusLine().message(), HasSubstr("No space left on device"));
  recovery.keepChanges();
  EXPECT_TRUE(kept()) << "it is tried again";
}

TEST_F(TheRecovery, offersWhatWasLeftWithPatientTimeAndDifferences) {
  model::PatientRecord edited = patient();
  edited.setGravida(3);
  edited.ncRecordsArray().back()->setNote("typed");
  edited.ncRecordsArray().back()->measurements().front().setBPD(50);
  leave(edited, kFile);
  EXPECT_EQ(recovery.offer(), 0U) << "not now";
  ASSERT_EQ(platform.alerts.choiceInformation.size(), 1U);
  EXPECT_EQ(platform.alerts.choiceInformation.front(),
            "Patient: AB-123\n"
            "Document: /documents/AB-123 (G2).nascor\n"
            "Last kept: 22 November 2026, 22:00\n"
            "\n"
            "What differs from the saved document:\n"
            "Gravidity\n"
            "Examination of 22 September 2025");
  EXPECT_TRUE(isLeft());
  EXPECT_THAT(platform.documents.documents(), IsEmpty());
}

TEST_F(TheRecovery, opensWhatIsToBeRecoveredAsEdited) {
  model::PatientRecord edited = patient();
  edited.setGravida(3);
  leave(edited, kFile);
  platform.alerts.choice = "Recover";
  EXPECT_EQ(recovery.offer(), 1U);
  EXPECT_TRUE(current().isDocumentEdited());
  EXPECT_EQ(current().filePath(), kFile);
  EXPECT_EQ(current().patientRecord()->gravida(), 3);
  EXPECT_FALSE(isLeft());
  EXPECT_EQ(kept()->gravida(), 3) << "kept anew";
  EXPECT_EQ(platform.files.files.at(kFile), bytesOf(patient())) << "nothing is saved unasked";
  EXPECT_TRUE(platform.documents.saveDocument(current()));
  EXPECT_THAT(platform.alerts.asked, IsEmpty()) << "the file is the one that was compared";
  EXPECT_EQ(platform.files.files.at(kFile), bytesOf(edited));
}

TEST_F(TheRecovery, remembersTheWholePathOfAFileAndWhatItHeld) {
  platform.files.resolved["t.nascor"] = "/documents/t.nascor";
  platform.files.files["t.nascor"] = bytesOf(patient());
  foundation::FileError error;
  auto& document = dynamic_cast<NCDocument&>(*platform.documents.openDocument("t.nascor", error));
  type(document, document.flField(), "33.5");
  recovery.keepChanges();
  EXPECT_EQ(store.documents.at(1), "/documents/t.nascor");
  EXPECT_NE(store.bases.at(1), "");
}

TEST_F(TheRecovery, asksBeforeItReplacesWhatWasSavedSince) {
  NCDocument& edited = open();
  type(edited, edited.flField(), "33.5");
  recovery.keepChanges();
  const std::vector<std::byte> left = platform.files.files.at(MemoryRecoveryStore::pathOf(1));
  // The program ended; then the file was saved again.
  model::PatientRecord later = patient();
  later.setGravida(3);
  platform.files.files[kFile] = bytesOf(later);
  leave(left, kFile);
  store.abandoned.front().origin.basis = store.bases.at(1);
  Recovery next(platform.services(), platform.documents, platform.alerts, store);
  platform.alerts.choice = "Recover";
  EXPECT_EQ(next.offer(), 1U);
  EXPECT_THAT(platform.alerts.choiceInformation.back(), HasSubstr("saved again since"));
  EXPECT_EQ(current().lookAtFile().state, framework::ZuDocument::FileState::isChanged);
}

TEST_F(TheRecovery, leavesAFileThatItCannotKeepAnew) {
  model::PatientRecord edited = patient();
  edited.setGravida(3);
  leave(edited, kFile);
  platform.alerts.choice = "Recover";
  platform.files.failWriteAt = platform.files.writes();
  EXPECT_EQ(recovery.offer(), 1U);
  EXPECT_TRUE(isLeft());
}

TEST_F(TheRecovery, opensADocumentThatWasNeverSavedAsUntitled) {
  leave(patient(), "");
  platform.alerts.choice = "Recover";
  EXPECT_EQ(recovery.offer(), 1U);
  EXPECT_THAT(platform.alerts.choiceInformation, ElementsAre(HasSubstr("Document: never saved")));
  EXPECT_FALSE(current().filePath());
  EXPECT_FALSE(current().isBlank());
}

TEST_F(TheRecovery, removesWhatTheUserDiscards) {
  model::PatientRecord edited = patient();
  edited.setGravida(3);
  leave(edited, kFile);
  platform.alerts.choice = "Discard";
  EXPECT_EQ(recovery.offer(), 0U);
  EXPECT_FALSE(isLeft());
}

TEST_F(TheRecovery, asksNothingWhereNothingWouldBeLost) {
  leave(patient(), kFile);
  EXPECT_EQ(recovery.offer(), 0U);
  EXPECT_FALSE(isLeft()) << "the file holds it all";
  leave(model::PatientRecord(platform.clock, platform.defaults), "");
  EXPECT_EQ(recovery.offer(), 0U);
  EXPECT_FALSE(isLeft()) << "nothing was entered";
  EXPECT_THAT(platform.alerts.choices, IsEmpty());
}

TEST_F(TheRecovery, tellsOfADamagedFileAndKeepsItUnlessToldOtherwise) {
  auto bytes = bytesOf(patient());
  bytes.resize(bytes.size() / 2);
  leave(bytes, kFile);
  EXPECT_EQ(recovery.offer(), 0U);
  ASSERT_EQ(platform.alerts.asked.size(), 1U);
  EXPECT_THAT(platform.alerts.asked.front().information, testing::StartsWith("/recovery/left.nascor: "));
  EXPECT_TRUE(platform.alerts.asked.front().isCancelledByReturn);
  EXPECT_TRUE(isLeft());
  platform.alerts.answers = {"Remove the File"};
  recovery.offer();
  EXPECT_FALSE(isLeft());
}

}  // namespace
}  // namespace nascor::app
