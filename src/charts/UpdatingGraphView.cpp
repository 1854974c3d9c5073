// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/UpdatingGraphView.h"

namespace nascor::charts {

void UpdatingGraphView::initWithFrame(const framework::Rect& frame) {
  CorvelGraphView::initWithFrame(frame);
  resetStandards();
  standardsSubscription_ = services().notifications.subscribe(
      foundation::NotificationName::updateStandards,
      [this](const foundation::Notification& notification) { updateStandards(notification); });
}

void UpdatingGraphView::dealloc() {
  standardsSubscription_.reset();
  CorvelGraphView::dealloc();
}

void UpdatingGraphView::setOwningDocument(ChartDocument* document) {
  owningDocument_ = document;
  setOwningGraphDocument(document);
}

void UpdatingGraphView::updateStandards(const foundation::Notification&) {
  resetStandards();
  setNeedsDisplay();
}

}  // namespace nascor::charts
