// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Controls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundation/RangeError.h"
#include "support/Calls.h"

namespace nascor::framework {
namespace {

TEST(AStepper, holdsItsValueWithinItsLimits) {
  Stepper stepper(-280, 7, 1);
  const tests::Calls changes(stepper.onChange);
  EXPECT_EQ(stepper.value(), 0);
  EXPECT_EQ(stepper.increment(), 1);
  stepper.setValue(3.5);
  EXPECT_EQ(stepper.value(), 3.5);
  stepper.setValue(8);
  EXPECT_EQ(stepper.value(), 7);
  stepper.setValue(-281);
  EXPECT_EQ(stepper.value(), -280);
  EXPECT_EQ(changes.count(), 3);
}

TEST(AStepper, movesItsValueWithItsLimits) {
  Stepper stepper(-280, 7, 1);
  stepper.setValue(5);
  stepper.setMaximum(0);
  EXPECT_EQ(stepper.value(), 0);
  EXPECT_EQ(stepper.maximum(), 0);
  stepper.setMaximum(7);
  EXPECT_EQ(stepper.value(), 0) << "what was lost is not brought back";
  stepper.setMinimum(2);
  EXPECT_EQ(stepper.value(), 2);
  EXPECT_EQ(stepper.minimum(), 2);
}

TEST(AStepper, keepsWhatIsNoNumber) {
  Stepper stepper(-280, 7, 1);
  stepper.setValue(std::nan(""));
  EXPECT_TRUE(std::isnan(stepper.value()));
  stepper.setValue(std::numeric_limits<double>::infinity());
  EXPECT_EQ(stepper.value(), 7);
}

TEST(ATextView, tellsItsDocumentOfTypingOnly) {
  TextView note("notesField");
  const tests::Calls edits(note.onEdit);
  const tests::Calls changes(note.onChange);
  note.setText("shown");
  EXPECT_EQ(edits.count(), 0);
  EXPECT_FALSE(note.wasEdited());
  note.takeEditedText("typed");
  EXPECT_EQ(note.text(), "typed");
  EXPECT_EQ(edits.count(), 1);
  EXPECT_EQ(changes.count(), 2);
  EXPECT_TRUE(note.wasEdited());
  note.forgetEdits();
  EXPECT_FALSE(note.wasEdited());
  note.takeEditedText("more");
  note.setText("shown");
  EXPECT_FALSE(note.wasEdited());
}

TEST(APanel, isShownInFrontAndClosed) {
  Panel panel("crlWindow");
  panel.center();
  const tests::Calls changes(panel.onChange);
  const tests::Calls centered(panel.onCenter);
  EXPECT_FALSE(panel.isShown());
  panel.center();
  panel.makeKeyAndOrderFront();
  EXPECT_TRUE(panel.isShown());
  panel.makeKeyAndOrderFront();
  EXPECT_EQ(changes.count(), 2) << "brought to the front again";
  panel.close();
  EXPECT_FALSE(panel.isShown());
  EXPECT_EQ(centered.count(), 1);
}

TEST(ACheckBox, isOnOrOff) {
  CheckBox box("measurementsWindowBPDCheck", true);
  const tests::Calls changes(box.onChange);
  EXPECT_TRUE(box.isOn());
  box.setOn(false);
  EXPECT_FALSE(box.isOn());
  EXPECT_EQ(changes.count(), 1);
}

TEST(ATabView, showsOneOfItsPages) {
  Page first("a");
  Page second("b");
  TabView tabs;
  tabs.addPage(first);
  tabs.addPage(second);
  const tests::Calls selections(tabs.onSelect);
  EXPECT_EQ(tabs.numberOfPages(), 2);
  EXPECT_EQ(tabs.indexOfSelectedPage(), 0);
  tabs.selectPage(1);
  EXPECT_EQ(&tabs.page(tabs.indexOfSelectedPage()), &second);
  for (const std::int64_t wrong : {-1, 2}) {
    EXPECT_THROW(tabs.selectPage(wrong), foundation::RangeError);
    EXPECT_THROW(tabs.page(wrong), foundation::RangeError);
  }
  EXPECT_EQ(tabs.indexOfSelectedPage(), 1);
  EXPECT_EQ(selections.count(), 1);
}

TEST(ATabView, asksToBeDrawnAnew) {
  TabView tabs;
  tabs.setNeedsDisplay();
  const tests::Calls asked(tabs.onNeedsDisplay);
  tabs.setNeedsDisplay();
  EXPECT_EQ(asked.count(), 1);
}

}  // namespace
}  // namespace nascor::framework
