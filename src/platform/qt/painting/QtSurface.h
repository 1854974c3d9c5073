// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>
#include <QRectF>
#include <optional>

#include "framework/Page.h"
#include "framework/Surface.h"
#include "painting/QtCanvas.h"
#include "painting/TextLayouts.h"

namespace nascor::qt {

/// A page on any paint device.
class QtSurface final : public framework::Surface {
 public:
  /// One unit of `painter` is one unit of the page, its origin the page's upper left corner.
  QtSurface(QPainter& painter, TextLayouts& texts);

  framework::Canvas& pageCanvas() override { return page_; }
  framework::Canvas& beginView(const framework::ZuPrimitiveGraphView& view,
                               const framework::Rect& frame) override;
  void endView() override;

 private:
  QPainter& painter_;
  TextLayouts& texts_;
  QtCanvas page_;
  std::optional<QtCanvas> view_;
};

/// The largest rectangle in the middle of `area` that has the shape of a page.
QRectF paperIn(const QRectF& area);

/// Lays `page` out as for paper and paints it on white, scaled as a whole to fill `paper`.
/// `texts` may serve any number of pages and redraws.
void paintPage(QPainter& painter, framework::Page& page, const QRectF& paper, TextLayouts& texts);

}  // namespace nascor::qt
