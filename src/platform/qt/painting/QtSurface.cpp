// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/QtSurface.h"

#include <algorithm>

#include "framework/ZuPrimitiveGraphView.h"

namespace nascor::qt {

using framework::Page;

QtSurface::QtSurface(QPainter& painter, TextLayouts& texts)
    : painter_(painter), texts_(texts), page_(painter, QSizeF(Page::kWidth, Page::kHeight), true, texts) {}

framework::Canvas& QtSurface::beginView(const framework::ZuPrimitiveGraphView& view,
                                        const framework::Rect& frame) {
  painter_.save();
  painter_.translate(frame.x, frame.y);
  painter_.setClipRect(QRectF(0.0, 0.0, frame.width, frame.height), Qt::IntersectClip);
  return view_.emplace(painter_, QSizeF(frame.width, frame.height), view.isFlipped(), texts_);
}

void QtSurface::endView() {
  view_.reset();
  painter_.restore();
}

QRectF paperIn(const QRectF& area) {
  const double scale = std::min(area.width() / Page::kWidth, area.height() / Page::kHeight);
  QRectF paper(0.0, 0.0, Page::kWidth * scale, Page::kHeight * scale);
  paper.moveCenter(area.center());
  return paper;
}

void paintPage(QPainter& painter, Page& page, const QRectF& paper, TextLayouts& texts) {
  painter.save();
  painter.setClipRect(paper, Qt::IntersectClip);
  painter.fillRect(paper, Qt::white);
  painter.translate(paper.topLeft());
  painter.scale(paper.width() / Page::kWidth, paper.height() / Page::kHeight);
  page.layout(Page::kWidth, Page::kHeight);
  QtSurface surface(painter, texts);
  page.paint(surface);
  painter.restore();
}

}  // namespace nascor::qt
