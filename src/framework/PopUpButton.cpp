// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/PopUpButton.h"

#include <algorithm>

#include "foundation/RangeError.h"

namespace nascor::framework {

void PopUpButton::removeAllItems() {
  wanted_ = std::max<std::int64_t>(indexOfSelectedItem(), 0);
  items_.clear();
  onChange();
}

void PopUpButton::addItem(Item item) {
  items_.push_back(std::move(item));
  onChange();
}

const std::string& PopUpButton::itemTitleAtIndex(std::int64_t index) const {
  return foundation::checkedAt(items_, index).title;
}

std::int64_t PopUpButton::indexOfSelectedItem() const { return std::min(wanted_, numberOfItems() - 1); }

std::string PopUpButton::titleOfSelectedItem() const {
  return items_.empty() ? std::string() : itemTitleAtIndex(indexOfSelectedItem());
}

void PopUpButton::selectItemAtIndex(std::int64_t index) {
  foundation::checkedAt(items_, index);
  wanted_ = index;
  onChange();
}

}  // namespace nascor::framework
