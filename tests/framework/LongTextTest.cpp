// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/LongText.h"

#include <gtest/gtest.h>

#include "foundation/Utf8.h"
#include "framework/Controls.h"
#include "framework/FieldEditor.h"

namespace nascor::framework {
namespace {

// Edits here take eight units.
constexpr std::size_t kMost = 8;

TypedText typed(std::string_view held, std::string_view text) { return typedOver(held, text, kMost); }

TEST(AnEdit, showsALongTextInPart) {
  EXPECT_EQ(shownInEdit("", kMost), "");
  EXPECT_EQ(shownInEdit("12345678", kMost), "12345678");
  EXPECT_EQ(shownInEdit("123456789", kMost), "1234567\u2026");
  // Signs beyond the first 65,536 take two units of UTF-16 each.
  EXPECT_EQ(shownInEdit("\U0001F476\U0001F476\U0001F476\U0001F476", kMost),
            "\U0001F476\U0001F476\U0001F476\U0001F476");
  EXPECT_EQ(shownInEdit("\U0001F476\U0001F476\U0001F476\U0001F476x", kMost),
            "\U0001F476\U0001F476\U0001F476\u2026");
  EXPECT_EQ(shownInEdit("123456e\u030189", kMost), "123456\u2026") << "no letter without its accent";
}

TEST(AnEdit, takesWhatFits) {
  EXPECT_EQ(typed("", "12345678").text, "12345678");
  EXPECT_FALSE(typed("", "12345678").isFull);
  EXPECT_EQ(typed("ab", "").text, "");
}

TEST(AnEdit, leavesOutWhatFindsNoRoomWhereItWasTyped) {
  EXPECT_EQ(typed("", "123456789").text, "12345678");
  EXPECT_TRUE(typed("", "123456789").isFull);
  EXPECT_EQ(typed("12345678", "1234x5678").text, "12345678") << "the end is not pushed out";
  EXPECT_EQ(typed("123678", "123xyz678").text, "123xy678");
  EXPECT_EQ(typed("123678", "123\U0001F476\U0001F476678").text, "123\U0001F476678") << "no half of a sign";
  EXPECT_EQ(typed("\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4",
                  "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00F6")
                .text,
            "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4");
}

TEST(ALongTextInAField, isKeptWholeAndTakesNoTyping) {
  TextField field("referenceIDField");
  field.setText(std::string(kMostInField, 'A'));
  EXPECT_TRUE(field.isEditable());
  EXPECT_FALSE(field.isShownInPart());
  const std::string held(kMostInField + 1, 'A');
  field.setText(held);
  EXPECT_TRUE(field.isShownInPart());
  EXPECT_FALSE(field.isEditable());
  FieldEditor editor;
  EXPECT_FALSE(editor.begin(field));
  editor.replace("B-1");
  EXPECT_TRUE(editor.end());
  EXPECT_EQ(field.text(), held);

  field.setText("B-1");
  EXPECT_TRUE(editor.begin(field)) << "a shorter text can be edited again";
}

TEST(ALongTextInAField, isNotTyped) {
  TextField field("referenceIDField");
  FieldEditor editor;
  ASSERT_TRUE(editor.begin(field));
  editor.replace(std::string(kMostInField, 'A'));
  EXPECT_FALSE(editor.isFull());
  editor.replace(std::string(kMostInField + 1, 'A'));
  EXPECT_TRUE(editor.isFull());
  EXPECT_EQ(editor.text(), std::string(kMostInField, 'A'));
  editor.replace("A");
  EXPECT_FALSE(editor.isFull());
}

TEST(ALongNote, isKeptWholeAndTakesNoTyping) {
  TextView note("notesField");
  note.setText(std::string(kMostInNote, 'A'));
  EXPECT_TRUE(note.isEditable());
  const std::string held(kMostInNote + 1, 'A');
  note.setText(held);
  EXPECT_TRUE(note.isShownInPart());
  EXPECT_FALSE(note.isEditable());
  EXPECT_EQ(note.text(), held);
  note.setText("");
  EXPECT_TRUE(note.isEditable());
}

TEST(ALongNote, isNotTyped) {
  TextView note("notesField");
  note.takeEditedText(std::string(kMostInNote, 'B'));
  EXPECT_FALSE(note.isFull());
  note.takeEditedText(std::string(kMostInNote + 1, 'B'));
  EXPECT_TRUE(note.isFull());
  EXPECT_EQ(note.text(), std::string(kMostInNote, 'B'));
  EXPECT_TRUE(note.isEditable());
  note.setText("");
  EXPECT_FALSE(note.isFull());
}

}  // namespace
}  // namespace nascor::framework
