// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "framework/GraphDocument.h"
#include "framework/ZuPrimitiveGraphView.h"

namespace nascor::framework {

/// A plotting view that belongs to a document.
class CorvelGraphView : public ZuPrimitiveGraphView {
 public:
  using ZuPrimitiveGraphView::ZuPrimitiveGraphView;

  /// Null while the view is being made.
  GraphDocument* owningGraphDocument() const { return owningGraphDocument_; }

  /// A single click in the plotting area makes the examination nearest to that week the one on show.
  void mouseDown(const MouseEvent& event) override;

 protected:
  void setOwningGraphDocument(GraphDocument* document) { owningGraphDocument_ = document; }

 private:
  GraphDocument* owningGraphDocument_ = nullptr;
};

}  // namespace nascor::framework
