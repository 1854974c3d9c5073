// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/FieldEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/Calls.h"

namespace nascor::framework {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Agrees or not as a test says, and keeps what it was asked and told.
struct RecordingDelegate final : TextFieldDelegate {
  bool agreesToBegin = true;
  std::string refusedText;
  std::function<void()> afterEnd;
  std::vector<std::string> calls;

  bool controlTextShouldBeginEditing(TextField& field) override {
    calls.push_back("should begin " + field.name());
    return agreesToBegin;
  }
  void controlTextDidBeginEditing(TextField& field) override { calls.push_back("did begin " + field.name()); }
  bool controlTextShouldEndEditing(TextField& field, std::string_view text) override {
    calls.push_back("should end " + field.name() + " with " + std::string(text));
    return text != refusedText;
  }
  void controlTextDidDropEditing(TextField& field) override { calls.push_back("did drop " + field.name()); }
  void controlTextDidEndEditing(TextField& field) override {
    calls.push_back("did end " + field.name() + " as " + field.text());
    if (afterEnd) afterEnd();
  }
};

class AFieldEditor : public testing::Test {
 protected:
  AFieldEditor() { delegate.refusedText = "bad"; }

  RecordingDelegate delegate;
  TextField one{"one", &delegate};
  TextField two{"two", &delegate};
  IntegerField number{"number", &delegate};
  TextField free{"free"};
  FieldEditor editor;
};

TEST_F(AFieldEditor, asksAndTellsInOrder) {
  one.setText("old");
  EXPECT_TRUE(editor.begin(one));
  EXPECT_EQ(editor.field(), &one);
  EXPECT_EQ(editor.text(), "old");
  editor.replace("new");
  EXPECT_EQ(one.text(), "old") << "the field does not see what is not left yet";
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(one.text(), "new");
  EXPECT_TRUE(one.wasEdited());
  EXPECT_EQ(editor.field(), nullptr);
  EXPECT_THAT(delegate.calls, ElementsAre("should begin one", "did begin one", "should end one with new",
                                          "did end one as new"));
}

TEST_F(AFieldEditor, leavesAFieldAloneThatMayNotBeChanged) {
  delegate.agreesToBegin = false;
  EXPECT_FALSE(editor.begin(one));
  EXPECT_EQ(editor.field(), nullptr);
  editor.replace("new");
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(one.text(), "");
  EXPECT_THAT(delegate.calls, ElementsAre("should begin one"));
}

TEST_F(AFieldEditor, opensNoFieldThatHoldsNothing) {
  const tests::Calls shown(one.onChange);
  one.setEditable(false);
  one.setEditable(false);
  EXPECT_EQ(shown.count(), 1);
  EXPECT_FALSE(editor.begin(one));
  EXPECT_EQ(editor.field(), nullptr);
  EXPECT_THAT(delegate.calls, IsEmpty());
  one.setEditable(true);
  EXPECT_EQ(shown.count(), 2);
  EXPECT_TRUE(editor.begin(one));
}

TEST_F(AFieldEditor, asksOnceWhileAFieldIsInEdit) {
  EXPECT_TRUE(editor.begin(one));
  EXPECT_TRUE(editor.begin(one));
  EXPECT_THAT(delegate.calls, ElementsAre("should begin one", "did begin one"));
}

TEST_F(AFieldEditor, endsOneFieldBeforeTheNext) {
  editor.begin(one);
  editor.replace("x");
  EXPECT_TRUE(editor.begin(two));
  EXPECT_THAT(delegate.calls, ElementsAre("should begin one", "did begin one", "should end one with x",
                                          "did end one as x", "should begin two", "did begin two"));
}

TEST_F(AFieldEditor, keepsARefusedTextInEditAndOutOfTheField) {
  one.setText("old");
  editor.begin(one);
  editor.replace("bad");
  EXPECT_FALSE(editor.isRefusing());
  EXPECT_FALSE(editor.end());
  EXPECT_TRUE(editor.isRefusing());
  EXPECT_EQ(editor.field(), &one);
  EXPECT_EQ(editor.text(), "bad");
  EXPECT_EQ(one.text(), "old");
  EXPECT_FALSE(editor.begin(two));
  EXPECT_FALSE(editor.end()) << "refused as often as it is tried";
  editor.replace("good");
  EXPECT_FALSE(editor.isRefusing());
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(one.text(), "good");
}

TEST_F(AFieldEditor, doesNotEvenAskAboutATextThatTheFieldCannotHold) {
  editor.begin(number);
  editor.replace("two");
  delegate.calls.clear();
  EXPECT_FALSE(editor.end());
  EXPECT_TRUE(editor.isRefusing());
  EXPECT_THAT(delegate.calls, IsEmpty());
}

TEST_F(AFieldEditor, givesTheTextBackWithoutAsking) {
  one.setText("old");
  editor.begin(one);
  editor.replace("bad");
  editor.end();
  delegate.calls.clear();
  editor.revert();
  EXPECT_EQ(editor.field(), nullptr);
  EXPECT_FALSE(editor.isRefusing());
  EXPECT_EQ(one.text(), "old");
  EXPECT_FALSE(one.wasEdited());
  EXPECT_TRUE(editor.end());
  editor.revert();
  EXPECT_THAT(delegate.calls, ElementsAre("did drop one"));
  editor.begin(free);
  editor.replace("x");
  editor.revert();
  EXPECT_EQ(free.text(), "");
}

TEST_F(AFieldEditor, editsAFieldWithoutADelegate) {
  EXPECT_TRUE(editor.begin(free));
  editor.replace("bad");
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(free.text(), "bad");
}

TEST_F(AFieldEditor, mayBeEndedAgainByWhatFollowsItsEnd) {
  bool endedAgain = false;
  delegate.afterEnd = [&] { endedAgain = editor.end(); };
  editor.begin(one);
  EXPECT_TRUE(editor.end());
  EXPECT_TRUE(endedAgain);
  EXPECT_EQ(delegate.calls.size(), 4U);
}

TEST_F(AFieldEditor, worksOnAfterAnExceptionOfItsDelegate) {
  delegate.afterEnd = [] { throw std::out_of_range("nothing there"); };
  editor.begin(one);
  EXPECT_THROW(editor.end(), std::out_of_range);
  delegate.afterEnd = nullptr;
  EXPECT_TRUE(editor.begin(two));
  editor.replace("x");
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(two.text(), "x");
}

TEST_F(AFieldEditor, tellsItsViewOfEveryChange) {
  const tests::Calls changes(editor.onChange);
  editor.begin(one);       // 1
  editor.replace("bad");   // 2
  editor.end();            // 3: outlined
  editor.replace("good");  // 4
  editor.end();            // 5
  editor.end();
  editor.revert();
  EXPECT_EQ(changes.count(), 5);
}

}  // namespace
}  // namespace nascor::framework
