// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/TextField.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/Calls.h"
#include "support/MarkedLocalizer.h"

namespace nascor::framework {
namespace {

const foundation::EnglishLocalizer kEnglish;

TEST(ATextField, holdsWhatTheProgramShowsAndWhatTheUserTypes) {
  TextField field("referenceIDField");
  const tests::Calls changes(field.onChange);
  EXPECT_EQ(field.name(), "referenceIDField");
  EXPECT_EQ(field.text(), "");
  field.setText("shown");
  EXPECT_EQ(field.text(), "shown");
  EXPECT_FALSE(field.wasEdited());
  field.takeEditedText("typed");
  EXPECT_EQ(field.text(), "typed");
  EXPECT_TRUE(field.wasEdited());
  field.setText("shown again");
  EXPECT_FALSE(field.wasEdited());
  EXPECT_EQ(changes.count(), 3);
}

TEST(ATextField, forgetsOnRequestThatTheUserTyped) {
  TextField field("a");
  field.takeEditedText("typed");
  field.forgetEdits();
  EXPECT_FALSE(field.wasEdited());
  EXPECT_EQ(field.text(), "typed");
}

TEST(ATextField, acceptsAnyText) { EXPECT_TRUE(TextField("a").accepts("\n%ld \xff")); }

TEST(ATextField, turnsRedAndBack) {
  TextField field("a");
  const tests::Calls changes(field.onChange);
  EXPECT_FALSE(field.isRed());
  field.setRed(true);
  EXPECT_TRUE(field.isRed());
  field.setRed(false);
  EXPECT_FALSE(field.isRed());
  EXPECT_EQ(changes.count(), 2);
}

TEST(ATextField, asksItsViewToSelectTheText) {
  TextField field("a");
  field.selectText();
  const tests::Calls asked(field.onSelectText);
  field.selectText();
  EXPECT_EQ(asked.count(), 1);
}

TEST(ANumberField, showsANumberRoundedAndKeepsItWhole) {
  NumberField field("bpdField", 1, kEnglish);
  field.setDoubleValue(45.26);
  EXPECT_EQ(field.text(), "45.3");
  EXPECT_EQ(field.doubleValue(), 45.26);
  EXPECT_FALSE(field.wasEdited());
  field.setDoubleValue(0.0);
  EXPECT_EQ(field.text(), "0.0");
}

TEST(ANumberField, takesTheNumberThatTheUserTypes) {
  NumberField field("bpdField", 1, kEnglish);
  field.takeEditedText(" 45,26 ");
  EXPECT_EQ(field.text(), "45.3");
  EXPECT_EQ(field.doubleValue(), 45.26);
  EXPECT_TRUE(field.wasEdited());
  field.takeEditedText("");
  EXPECT_EQ(field.text(), "0.0");
  EXPECT_EQ(field.doubleValue(), 0.0);
}

TEST(ANumberField, isEmptyAndZeroWhenItIsCleared) {
  NumberField field("bpdField", 1, kEnglish);
  field.takeEditedText("45");
  field.clear();
  EXPECT_EQ(field.text(), "");
  EXPECT_EQ(field.doubleValue(), 0.0);
  EXPECT_FALSE(field.wasEdited());
}

TEST(ANumberField, showsTheDecimalSignOfTheUser) {
  const tests::MarkedLocalizer comma;
  NumberField field("bpdField", 1, comma);
  field.setDoubleValue(45.25);
  EXPECT_EQ(field.text(), "45,3");
}

struct FieldCase {
  const char* text;
  bool isNumber;
  bool isInteger;
};
class TextsForFields : public testing::TestWithParam<FieldCase> {};

TEST_P(TextsForFields, areNumbersWhollyOrNotAtAll) {
  EXPECT_EQ(NumberField("n", 1, kEnglish).accepts(GetParam().text), GetParam().isNumber);
  EXPECT_EQ(IntegerField("i").accepts(GetParam().text), GetParam().isInteger);
}

INSTANTIATE_TEST_SUITE_P(all, TextsForFields,
                         testing::Values(FieldCase{"", true, true}, FieldCase{"  ", true, true},
                                         FieldCase{"0", true, true}, FieldCase{"12", true, true},
                                         FieldCase{" 12 ", true, true}, FieldCase{"-3", true, true},
                                         FieldCase{"+3", true, true}, FieldCase{"4.5", true, false},
                                         FieldCase{"4,5", true, false}, FieldCase{".5", true, false},
                                         FieldCase{"5.", true, false}, FieldCase{"4.5.6", false, false},
                                         FieldCase{"1e2", false, false}, FieldCase{"0x10", false, false},
                                         FieldCase{"nan", false, false}, FieldCase{"inf", false, false},
                                         FieldCase{"45 mm", false, false}, FieldCase{"4 5", false, false},
                                         FieldCase{"--4", false, false}, FieldCase{".", false, false},
                                         FieldCase{"-", false, false}, FieldCase{"two", false, false}));

TEST(AnIntegerField, holdsAWholeNumber) {
  IntegerField field("gravidaField");
  EXPECT_EQ(field.integerValue(), 0);
  field.setIntegerValue(-1);
  EXPECT_EQ(field.text(), "-1");
  EXPECT_FALSE(field.wasEdited());
  field.takeEditedText(" +07 ");
  EXPECT_EQ(field.integerValue(), 7);
  EXPECT_EQ(field.text(), "7");
  EXPECT_TRUE(field.wasEdited());
  field.takeEditedText("");
  EXPECT_EQ(field.text(), "0");
}

TEST(AnIntegerField, endsAtTheGreatestNumber) {
  IntegerField field("gravidaField");
  field.takeEditedText("99999999999999999999");
  EXPECT_EQ(field.integerValue(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(field.text(), "9223372036854775807");
}

}  // namespace
}  // namespace nascor::framework
