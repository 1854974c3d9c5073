// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/CorvelDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DocumentsUnderTest.h"
#include "support/Calls.h"
#include "support/MarkedLocalizer.h"

namespace nascor::framework {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class APatientsDocument : public testing::Test {
 protected:
  TextApplication application;
  TextDocument& document = application.newDocument();

  APatientsDocument() { document.calls.clear(); }

  void examinations(std::vector<std::string> texts, std::int64_t current) {
    document.examinations = std::move(texts);
    document.setCurrentExam(current);
  }
};

TEST_F(APatientsDocument, storesTheFieldsBeforeItGoesToAnotherExamination) {
  examinations({"a", "b", "c"}, 1);
  document.nextExamination();
  EXPECT_EQ(document.currentExam(), 2);
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data", "from data"));
  document.nextExamination();
  EXPECT_THAT(document.takeCalls(), IsEmpty());
  document.previousExamination();
  document.previousExamination();
  EXPECT_EQ(document.currentExam(), 0);
  document.takeCalls();
  document.previousExamination();
  EXPECT_THAT(document.takeCalls(), IsEmpty());
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(APatientsDocument, readsTheNewExaminationBeforeItPutsAllInOrder) {
  document.addExaminationAction();
  EXPECT_THAT(document.calls, ElementsAre("to data", "add", "from data", "order"));
  EXPECT_TRUE(document.isDocumentEdited());
}

TEST_F(APatientsDocument, storesNothingBetweenADeletionAndItsReading) {
  examinations({"a", "", "c"}, 1);
  document.deleteExaminationAction();
  EXPECT_THAT(document.calls, ElementsAre("to data", "delete 1", "from data"));
  EXPECT_EQ(document.currentExam(), 1);
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_THAT(application.alerts.asked, IsEmpty());
}

TEST_F(APatientsDocument, showsTheOneBeforeADeletedLastExamination) {
  examinations({"a", "b", ""}, 2);
  document.deleteExaminationAction();
  EXPECT_EQ(document.currentExam(), 1);
}

TEST_F(APatientsDocument, asksBeforeItDeletesAnExaminationThatHoldsAnything) {
  examinations({"a", "b"}, 1);
  document.deleteExaminationAction();
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data"));
  EXPECT_FALSE(document.isDocumentEdited());
  application.alerts.answers = {"Remove"};
  document.deleteExaminationAction();
  EXPECT_THAT(document.calls, ElementsAre("to data", "delete 1", "from data"));
  ASSERT_EQ(application.alerts.asked.size(), 2U);
  EXPECT_EQ(application.alerts.asked[0].message, "Are you sure you want to remove this examination?");
  EXPECT_EQ(application.alerts.asked[0].information, "");
}

TEST_F(APatientsDocument, keepsItsLastExamination) {
  examinations({""}, 0);
  document.deleteExaminationAction();
  EXPECT_THAT(document.calls, ElementsAre("to data"));
  examinations({}, 0);
  document.deleteExaminationAction();
  EXPECT_EQ(document.numberOfExaminations(), 0);
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(APatientsDocument, storesTheFieldsDrawsAndMarksItself) {
  const tests::Calls displayed(document.onDisplayChanged);
  document.directUpdateDisplayAndSetDirty(false);
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data", "display"));
  EXPECT_FALSE(document.isDocumentEdited());
  document.directUpdateDisplayAndSetDirty(true);
  EXPECT_TRUE(document.isDocumentEdited());
  EXPECT_EQ(displayed.count(), 2);
}

TEST_F(APatientsDocument, isEditedFromTheFirstChangeOfAField) {
  document.fieldEditor().begin(document.referenceIDField());
  EXPECT_TRUE(document.isDocumentEdited());
  document.updateChangeCount(ZuDocument::ChangeType::changeCleared);
  document.notesField().takeEditedText("n");
  EXPECT_TRUE(document.isDocumentEdited());
}

TEST_F(APatientsDocument, saysWhatItTellsUntilTheNextChange) {
  document.statusLine().say("told", &document.examDateField());
  document.fieldEditor().revert();
  EXPECT_EQ(document.statusLine().message(), "told");
  EXPECT_EQ(document.statusLine().field(), &document.examDateField());

  document.fieldEditor().begin(document.referenceIDField());
  EXPECT_EQ(document.statusLine().message(), "");
  EXPECT_EQ(document.statusLine().field(), nullptr);

  document.statusLine().say("told");
  document.notesField().takeEditedText("n");
  EXPECT_EQ(document.statusLine().message(), "");
}

TEST_F(APatientsDocument, isNotEditedByTypingThatWasTakenBack) {
  FieldEditor& editor = document.fieldEditor();
  editor.begin(document.referenceIDField());
  editor.replace("x");
  editor.revert();
  EXPECT_FALSE(document.isDocumentEdited());

  editor.begin(document.referenceIDField());
  editor.end();
  editor.begin(document.examDateField());
  editor.revert();
  EXPECT_TRUE(document.isDocumentEdited()) << "the reference ID was typed and left";
}

TEST_F(APatientsDocument, staysEditedByANoteWhenTypingOlderThanItsLastSaveIsTakenBack) {
  FieldEditor& editor = document.fieldEditor();
  editor.begin(document.examDateField());
  editor.replace("refused");
  ASSERT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  editor.revert();
  EXPECT_FALSE(document.isDocumentEdited());

  editor.begin(document.examDateField());
  ASSERT_EQ(document.writeToFile("/documents/a"), std::nullopt);
  document.notesField().takeEditedText("n");
  editor.revert();
  EXPECT_TRUE(document.isDocumentEdited());
}

TEST_F(APatientsDocument, commitsTheFieldInEditAndATypedNote) {
  EXPECT_TRUE(document.commitEditing());
  EXPECT_THAT(document.takeCalls(), IsEmpty());
  document.notesField().takeEditedText("n");
  EXPECT_TRUE(document.commitEditing());
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data"));
  document.fieldEditor().begin(document.examDateField());
  document.fieldEditor().replace("refused");
  EXPECT_FALSE(document.commitEditing());
}

class ALookUp : public APatientsDocument {
 protected:
  std::vector<std::string> offered() const {
    std::vector<std::string> names;
    for (const Alert& alert : application.alerts.asked) {
      names.push_back(alert.information.substr(0, alert.information.find('\n')));
    }
    return names;
  }
  void putDated(const std::string& name, double day) {
    application.put("/documents/" + name, "text of " + name);
    application.files.modificationDates["/documents/" + name] = {day * 86400.0};
  }
};

TEST_F(ALookUp, offersTheExactNameFirstAndThenTheNewest) {
  putDated("ID (G1).nascor", 10);
  putDated("ID (G0).nascor", 1);
  putDated("ID (G22).nascor", 30);
  putDated("ID (G3).nascor", 20);
  for (const char* other : {"ID.nascor", "ID (G1)", "ID (G1).txt", "IDX (G1).nascor", "XID (G1).nascor",
                            "ID (G1).nascor~", "id (G1).nascor", "ID (G.nascor"}) {
    putDated(other, 40);
  }
  application.put("/elsewhere/ID (G9).nascor", "x");
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(offered(),
              ElementsAre("ID (G0).nascor", "ID (G22).nascor", "ID (G3).nascor", "ID (G1).nascor"));
}

TEST_F(ALookUp, tellsFileDateAndSizeAndWhatWouldBeLost) {
  // 100 days after 2001-01-01 00:00 UTC it is 11 April, ten in the morning, in the zone of the tests.
  putDated("ID (G1).nascor", 100);
  document.lookUp("ID (G0)", true);
  document.holdsMore = true;
  document.lookUp("ID (G0)", true);
  ASSERT_EQ(application.alerts.asked.size(), 2U);
  const Alert& alert = application.alerts.asked[0];
  EXPECT_EQ(alert.message, "This patient has a document already.");
  EXPECT_EQ(alert.information, "ID (G1).nascor\n4/11/01, 22 bytes");
  EXPECT_EQ(alert.defaultButton, "Open");
  EXPECT_EQ(alert.alternateButton, "Cancel");
  EXPECT_EQ(application.alerts.asked[1].information,
            "ID (G1).nascor\n4/11/01, 22 bytes\nWhat was entered here besides reference ID and gravidity "
            "will be lost.");
}

TEST_F(ALookUp, takesItsTextsFromTheFrameworksTables) {
  const tests::MarkedLocalizer marked;
  const foundation::Services services{.clock = application.clock,
                                      .calendar = application.calendar,
                                      .localizer = marked,
                                      .defaults = application.defaults,
                                      .files = application.files,
                                      .log = application.log,
                                      .notifications = application.notifications};
  TextDocument translated(
      {.services = services, .alerts = application.alerts, .controller = application.documents});
  EXPECT_EQ(translated.displayName(), "[CorvelDocument:Untitled]");
  translated.holdsMore = true;
  putDated("ID (G1).nascor", 100);
  translated.lookUp("ID (G0)", true);
  const Alert& alert = application.alerts.asked.at(0);
  EXPECT_EQ(alert.message, "[CorvelDocument:This patient has a document already.]");
  EXPECT_EQ(
      alert.information,
      "ID (G1).nascor\n11.4.2001, [CorvelDocument:22 bytes]\n[CorvelDocument:What was entered here besides "
      "reference ID and gravidity will be lost.]");
  EXPECT_EQ(alert.defaultButton, "[CorvelDocument:Open]");
  EXPECT_EQ(alert.alternateButton, "[ZuVersion:Cancel]");
}

TEST_F(ALookUp, storesTheFieldsWhenNothingIsOpened) {
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data", "display"));
  EXPECT_TRUE(document.isDocumentEdited());
  putDated("ID (G1).nascor", 10);
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(document.takeCalls(), ElementsAre("to data", "display"));
}

TEST_F(ALookUp, opensWithoutAQuestionWhenNoneIsWanted) {
  putDated("ID (G1).nascor", 10);
  putDated("ID (G2).nascor", 20);
  document.lookUp("ID (G0)", false);
  EXPECT_THAT(application.alerts.asked, IsEmpty());
  EXPECT_EQ(application.front()->model, "text of ID (G2).nascor");
  EXPECT_EQ(application.documents.documents().size(), 1U);
  EXPECT_THAT(document.calls, ElementsAre("window closes")) << "nothing of the blank window is stored";
}

TEST_F(ALookUp, goesOnToTheNextWhenADocumentCannotBeRead) {
  putDated("ID (G1).nascor", 10);
  application.put("/documents/ID (G2).nascor", "bad");
  application.files.modificationDates["/documents/ID (G2).nascor"] = {86400.0 * 20};
  application.alerts.answers = {"Open", "Open"};
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(application.alerts.told, ElementsAre(HasSubstr("is not a Nascor document.")));
  EXPECT_EQ(application.front()->model, "text of ID (G1).nascor");
}

TEST_F(ALookUp, doesNotOfferTheDocumentItself) {
  putDated("ID (G1).nascor", 10);
  document.setFilePath("/documents/ID (G1).nascor");
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(application.alerts.asked, IsEmpty());
  EXPECT_EQ(application.documents.currentDocument(), &document);
}

TEST_F(ALookUp, findsADocumentUnderTheNameThatItWasSavedBy) {
  document.fileNameOfID = ".x";
  putDated("_x (G1).nascor", 10);
  document.lookUp(".x (G0)", true);
  EXPECT_THAT(offered(), ElementsAre("_x (G1).nascor"));
}

TEST_F(ALookUp, looksForTheExtensionThatThePreferencesName) {
  application.defaults.setValue("DataFile Extension", "obs");
  putDated("ID (G1).nascor", 10);
  putDated("ID (G1).obs", 10);
  document.lookUp("ID (G0)", true);
  EXPECT_THAT(offered(), ElementsAre("ID (G1).obs"));
}

}  // namespace
}  // namespace nascor::framework
