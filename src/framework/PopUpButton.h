// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/Signal.h"
#include "framework/Geometry.h"

namespace nascor::framework {

/// The state of a pop-up button: what is offered and what is chosen. A view listens to `onChange`.
class PopUpButton {
 public:
  struct Item {
    std::string title;
    std::string keyEquivalent;  ///< empty for none
  };

  /// Removing all items keeps the selected index for the items that follow: it is held within them, the last where it
  /// is past the end, the first where there was none.
  void removeAllItems();
  void addItem(Item item);

  std::int64_t numberOfItems() const { return static_cast<std::int64_t>(items_.size()); }
  /// The title of an item. Throws RangeError.
  const std::string& itemTitleAtIndex(std::int64_t index) const;
  const std::vector<Item>& items() const { return items_; }

  /// -1 when there is no item.
  std::int64_t indexOfSelectedItem() const;
  /// Empty when there is no item.
  std::string titleOfSelectedItem() const;
  /// Throws RangeError.
  void selectItemAtIndex(std::int64_t index);

  /// Where the button stands in its window, set by the view that shows it.
  const Rect& frame() const { return frame_; }
  void setFrame(const Rect& frame) { frame_ = frame; }
  /// Plays an animation of the platform at a point of the window: 10 is a puff of smoke.
  void showAnimationEffect(int effect, Point at) const { onAnimationEffect(effect, at); }

  foundation::Signal<int, Point> onAnimationEffect;  ///< the effect and its place, as above
  foundation::Signal<> onChange;                     ///< items or choice have changed

 private:
  std::vector<Item> items_;
  std::int64_t wanted_ = 0;
  Rect frame_;
};

}  // namespace nascor::framework
