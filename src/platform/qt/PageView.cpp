#include "qt/PageView.h"

#include <QPainter>

#include "qt/QtSurface.h"

namespace nascor::qt {

using framework::Page;

PageView::PageView(Page& page, QWidget* parent) : QWidget(parent), page_(&page) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QRectF PageView::paper() const { return paperIn(rect()); }

QSize PageView::sizeHint() const { return QSizeF(Page::kWidth, Page::kHeight).toSize(); }

QSize PageView::minimumSizeHint() const { return sizeHint() * 0.6; }

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (page_) paintPage(painter, *page_, paper());
}

}  // namespace nascor::qt
