#include "framework/Controls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundation/RangeError.h"

namespace nascor::framework {
namespace {

TEST(AStepper, holdsItsValueWithinItsLimits) {
  Stepper stepper(-280, 7, 1);
  int changes = 0;
  stepper.onChange = [&] { ++changes; };
  EXPECT_EQ(stepper.value(), 0);
  EXPECT_EQ(stepper.increment(), 1);
  stepper.setValue(3.5);
  EXPECT_EQ(stepper.value(), 3.5);
  stepper.setValue(8);
  EXPECT_EQ(stepper.value(), 7);
  stepper.setValue(-281);
  EXPECT_EQ(stepper.value(), -280);
  EXPECT_EQ(changes, 3);
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
  int edits = 0;
  int changes = 0;
  note.onEdit = [&] { ++edits; };
  note.onChange = [&] { ++changes; };
  note.setText("shown");
  EXPECT_EQ(edits, 0);
  EXPECT_FALSE(note.wasEdited());
  note.takeEditedText("typed");
  EXPECT_EQ(note.text(), "typed");
  EXPECT_EQ(edits, 1);
  EXPECT_EQ(changes, 2);
  EXPECT_TRUE(note.wasEdited());
  note.forgetEdits();
  EXPECT_FALSE(note.wasEdited());
  note.takeEditedText("more");
  note.setText("shown");
  EXPECT_FALSE(note.wasEdited());
}

TEST(APanel, isShownInFrontAndClosed) {
  Panel panel("crlWindow");
  int changes = 0;
  int centered = 0;
  panel.center();
  panel.onChange = [&] { ++changes; };
  panel.onCenter = [&] { ++centered; };
  EXPECT_FALSE(panel.isShown());
  panel.center();
  panel.makeKeyAndOrderFront();
  EXPECT_TRUE(panel.isShown());
  panel.makeKeyAndOrderFront();
  EXPECT_EQ(changes, 2) << "brought to the front again";
  panel.close();
  EXPECT_FALSE(panel.isShown());
  EXPECT_EQ(centered, 1);
}

TEST(ACheckBox, isOnOrOff) {
  CheckBox box("measurementsWindowBPDCheck", true);
  int changes = 0;
  box.onChange = [&] { ++changes; };
  EXPECT_TRUE(box.isOn());
  box.setOn(false);
  EXPECT_FALSE(box.isOn());
  EXPECT_EQ(changes, 1);
}

TEST(ATabView, showsOneOfItsPages) {
  Page first("a");
  Page second("b");
  TabView tabs;
  tabs.addPage(first);
  tabs.addPage(second);
  int selections = 0;
  tabs.onSelect = [&] { ++selections; };
  EXPECT_EQ(tabs.numberOfPages(), 2);
  EXPECT_EQ(tabs.indexOfSelectedPage(), 0);
  tabs.selectPage(1);
  EXPECT_EQ(&tabs.page(tabs.indexOfSelectedPage()), &second);
  for (const std::int64_t wrong : {-1, 2}) {
    EXPECT_THROW(tabs.selectPage(wrong), foundation::RangeError);
    EXPECT_THROW(tabs.page(wrong), foundation::RangeError);
  }
  EXPECT_EQ(tabs.indexOfSelectedPage(), 1);
  EXPECT_EQ(selections, 1);
}

TEST(ATabView, countsHowOftenItWasToBeDrawnAnew) {
  TabView tabs;
  int asked = 0;
  tabs.setNeedsDisplay();
  tabs.onNeedsDisplay = [&] { ++asked; };
  tabs.setNeedsDisplay();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(tabs.timesDisplayAsked(), 2);
}

}  // namespace
}  // namespace nascor::framework
