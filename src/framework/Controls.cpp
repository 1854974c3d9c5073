// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Controls.h"

#include <algorithm>

#include "foundation/RangeError.h"

namespace nascor::framework {

void Stepper::setValue(double value) {
  value_ = std::min(std::max(value, minimum_), maximum_);
  if (value != value) value_ = value;
  onChange();
}

void Stepper::setMinimum(double minimum) {
  minimum_ = minimum;
  setValue(value_);
}

void Stepper::setMaximum(double maximum) {
  maximum_ = maximum;
  setValue(value_);
}

void Panel::makeKeyAndOrderFront() {
  isShown_ = true;
  onChange();
}

void Panel::close() {
  isShown_ = false;
  onChange();
}

Page& TabView::page(std::int64_t index) const { return *foundation::checkedAt(pages_, index); }

void TabView::selectPage(std::int64_t index) {
  foundation::checkedAt(pages_, index);
  selected_ = index;
  onSelect();
}

}  // namespace nascor::framework
