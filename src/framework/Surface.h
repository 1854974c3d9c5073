// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "framework/Canvas.h"
#include "framework/Geometry.h"

namespace nascor::framework {

class ZuPrimitiveGraphView;

/// What a page is painted on: screen, paper or a file. The page's coordinates begin at its upper left, y downward.
class Surface {
 public:
  virtual ~Surface() = default;

  /// For what the page itself draws; flipped.
  virtual Canvas& pageCanvas() = 0;
  /// For one view: its own coordinates, clipped to its `frame` on the page, y upward unless the view is flipped. Valid
  /// until `endView`.
  virtual Canvas& beginView(const ZuPrimitiveGraphView& view, const Rect& frame) = 0;
  virtual void endView() = 0;
};

}  // namespace nascor::framework
