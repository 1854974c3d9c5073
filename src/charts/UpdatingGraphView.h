// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "calc/Standards.h"
#include "charts/ChartDocument.h"
#include "foundation/NotificationCenter.h"
#include "framework/CorvelGraphView.h"

namespace nascor::charts {

/// A view that owns the rows of a reference standard and rebuilds them whenever a standard is chosen.
class UpdatingGraphView : public framework::CorvelGraphView {
 public:
  using CorvelGraphView::CorvelGraphView;

  void initWithFrame(const framework::Rect& frame) override;
  void dealloc() override;

  /// Null while the view is being made.
  ChartDocument* owningDocument() const { return owningDocument_; }
  void setOwningDocument(ChartDocument* document);

  /// The reference table: the live rows, created once with the view and never replaced.
  const calc::ReferenceTable& standardData() const { return standardData_; }

  /// Empties and rebuilds the table for the standard in force. Empty here.
  virtual void resetStandards() {}

  /// Appends the rows of the growth standard of that identifier to the table; none for an unknown one. Empty here.
  virtual void appendStandard(std::int64_t /*standard*/) {}
  /// @name The same by the name of each standard
  /// @{
  void initASUMStandards() { appendStandard(calc::kASUM); }
  void initHadlockStandards() { appendStandard(calc::kHadlock); }
  void initSchluterStandards() { appendStandard(calc::kSchluter); }
  void initCFEFStandards() { appendStandard(calc::kCFEF); }
  /// @}

 protected:
  /// From now on a choice of standard is not heard.
  void stopObservingStandards() { standardsSubscription_.reset(); }
  void updateStandards(const foundation::Notification& notification);
  calc::ReferenceTable& table() { return standardData_; }

 private:
  ChartDocument* owningDocument_ = nullptr;
  calc::ReferenceTable standardData_;
  foundation::Subscription standardsSubscription_;
};

}  // namespace nascor::charts
