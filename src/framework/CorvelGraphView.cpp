// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/CorvelGraphView.h"

namespace nascor::framework {

void CorvelGraphView::mouseDown(const MouseEvent& event) {
  if (event.clickCount != 1 || !owningGraphDocument_ || !graphRect().contains(event.location)) return;
  owningGraphDocument_->setCurrentRecordFromClick(xForPoint(event.location));
}

}  // namespace nascor::framework
