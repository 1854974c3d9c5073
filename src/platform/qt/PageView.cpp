#include "qt/PageView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/QtSurface.h"
#include "qt/Text.h"

namespace nascor::qt {

using framework::Page;

PageView::PageView(Page& page, ClickCounter& clicks, QWidget* parent)
    : QWidget(parent), page_(&page), clicks_(clicks) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
}

QRectF PageView::paper() const {
  // The report's frame reaches to the edges of its page.
  constexpr double kMargin = 8.0;
  return paperIn(QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin));
}

QSize PageView::sizeHint() const { return QSizeF(Page::kWidth, Page::kHeight).toSize(); }

QSize PageView::minimumSizeHint() const { return sizeHint() * 0.6; }

framework::Point PageView::onPage(QPointF point) const {
  const QRectF whole = paper();
  return {.x = (point.x() - whole.left()) / whole.width() * Page::kWidth,
          .y = (point.y() - whole.top()) / whole.height() * Page::kHeight};
}

bool PageView::event(QEvent* event) {
  const auto* help = event->type() == QEvent::ToolTip ? dynamic_cast<QHelpEvent*>(event) : nullptr;
  if (!help) return QWidget::event(event);
  const QString text = page_ ? fromUtf8(page_->toolTipAt(onPage(help->pos()))) : QString();
  if (text.isEmpty()) {
    QToolTip::hideText();
    event->ignore();
  } else {
    // It belongs to the mark: it goes as soon as the pointer leaves it.
    constexpr int kReach = 8;
    QToolTip::showText(help->globalPos(), text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")), this,
                       QRect(help->pos(), QSize(1, 1)).adjusted(-kReach, -kReach, kReach, kReach));
  }
  return true;
}

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // The paper brings its own white.
  const QRect filled = page_ ? paper().toAlignedRect().adjusted(1, 1, -1, -1) : QRect();
  for (const QRect& margin : QRegion(rect()) - filled) painter.fillRect(margin, Qt::white);
  if (page_) paintPage(painter, *page_, paper(), texts_);
}

void PageView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  const int count = clicks_.count(*event);
  if (page_ && onClick) onClick(onPage(event->position()), count);
}

}  // namespace nascor::qt
