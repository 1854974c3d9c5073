// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/PopUpButton.h"

#include <gtest/gtest.h>

#include "foundation/RangeError.h"
#include "support/Calls.h"

namespace nascor::framework {
namespace {

void fill(PopUpButton& button, std::initializer_list<const char*> titles) {
  button.removeAllItems();
  for (const char* title : titles) button.addItem({.title = title, .keyEquivalent = ""});
}

TEST(APopUpButton, withoutItemsHasNoSelection) {
  const PopUpButton button;
  EXPECT_EQ(button.numberOfItems(), 0);
  EXPECT_EQ(button.indexOfSelectedItem(), -1);
  EXPECT_EQ(button.titleOfSelectedItem(), "");
}

TEST(APopUpButton, selectsItsFirstItem) {
  PopUpButton button;
  fill(button, {"Twin 1", "Twin 2"});
  EXPECT_EQ(button.indexOfSelectedItem(), 0);
  EXPECT_EQ(button.titleOfSelectedItem(), "Twin 1");
  EXPECT_EQ(button.itemTitleAtIndex(1), "Twin 2");
}

TEST(APopUpButton, keepsItsSelectionWhenItIsFilledAnew) {
  PopUpButton button;
  fill(button, {"a", "b", "c"});
  button.selectItemAtIndex(1);
  fill(button, {"d", "e", "f", "g"});
  EXPECT_EQ(button.titleOfSelectedItem(), "e");
}

TEST(APopUpButton, selectsTheLastItemWhereItsSelectionIsPastTheEnd) {
  PopUpButton button;
  fill(button, {"a", "b", "c"});
  button.selectItemAtIndex(2);
  fill(button, {"d", "e"});
  EXPECT_EQ(button.titleOfSelectedItem(), "e");
  // What was past the end is forgotten: more items do not bring it back.
  fill(button, {"f", "g", "h"});
  EXPECT_EQ(button.titleOfSelectedItem(), "g");
}

TEST(APopUpButton, selectsTheFirstItemAfterItHadNone) {
  PopUpButton button;
  fill(button, {"a", "b"});
  button.selectItemAtIndex(1);
  fill(button, {});
  fill(button, {"c", "d"});
  EXPECT_EQ(button.titleOfSelectedItem(), "c");
}

TEST(APopUpButton, refusesIndicesOutsideItsItems) {
  PopUpButton button;
  fill(button, {"a"});
  EXPECT_THROW(button.selectItemAtIndex(1), foundation::RangeError);
  EXPECT_THROW(button.selectItemAtIndex(-1), foundation::RangeError);
  EXPECT_THROW(static_cast<void>(button.itemTitleAtIndex(1)), foundation::RangeError);
  EXPECT_EQ(button.indexOfSelectedItem(), 0);
}

TEST(APopUpButton, tellsItsViewOfEveryChange) {
  PopUpButton button;
  const tests::Calls changes(button.onChange);
  fill(button, {"a", "b"});
  button.selectItemAtIndex(1);
  EXPECT_EQ(changes.count(), 4);
}

}  // namespace
}  // namespace nascor::framework
