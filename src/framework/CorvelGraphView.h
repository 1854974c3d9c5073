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

 protected:
  void setOwningGraphDocument(GraphDocument* document) { owningGraphDocument_ = document; }

 private:
  GraphDocument* owningGraphDocument_ = nullptr;
};

}  // namespace nascor::framework
