#include "qt/PageView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <iterator>

#include "qt/QtSurface.h"
#include "qt/Text.h"

namespace nascor::qt {

using framework::Page;

PageView::PageView(Page& page, ClickCounter& clicks, QWidget* parent)
    : QWidget(parent), page_(&page), clicks_(clicks) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
  // A click belongs to the page: it leaves the focus where the user types.
  setFocusPolicy(Qt::TabFocus);
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

void PageView::setDescription(const QString& description) {
  description_ = description;
  if (mark_ < 0) setAccessibleDescription(description_);
}

void PageView::readOut(std::ptrdiff_t mark) {
  const auto marks = page_ ? page_->readOuts() : std::vector<framework::ReadOut>();
  const bool isThere = mark >= 0 && mark < std::ssize(marks);
  mark_ = isThere ? mark : -1;
  update();
  if (!isThere) {
    QToolTip::hideText();
    setAccessibleDescription(description_);
    return;
  }
  const framework::ReadOut& shown = marks[static_cast<std::size_t>(mark)];
  const QString text = fromUtf8(shown.text);
  const QRectF whole = paper();
  const QPoint at(qRound(whole.left() + shown.at.x / Page::kWidth * whole.width()),
                  qRound(whole.top() + shown.at.y / Page::kHeight * whole.height()));
  QToolTip::showText(mapToGlobal(at), text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")), this);
  setAccessibleDescription(QString(text).replace(u'\n', QStringLiteral(", ")) + QStringLiteral(". ") +
                           description_);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const auto count = page_ ? std::ssize(page_->readOuts()) : 0;
  const bool isMoving = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
  if (count == 0 || !isMoving) {
    QWidget::keyPressEvent(event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Right: readOut(std::min(mark_ + 1, count - 1)); break;
    case Qt::Key_Left: readOut(mark_ < 0 ? count - 1 : std::max<std::ptrdiff_t>(mark_ - 1, 0)); break;
    case Qt::Key_Home: readOut(0); break;
    case Qt::Key_End: readOut(count - 1); break;
    case Qt::Key_Escape: readOut(-1); break;
    default: QWidget::keyPressEvent(event);
  }
}

void PageView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void PageView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  readOut(-1);
}

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // The paper brings its own white.
  const QRect filled = page_ ? paper().toAlignedRect().adjusted(1, 1, -1, -1) : QRect();
  for (const QRect& margin : QRegion(rect()) - filled) painter.fillRect(margin, Qt::white);
  if (page_) paintPage(painter, *page_, paper(), texts_);
  if (!hasFocus()) return;
  constexpr qreal kWidth = 2.0;
  painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
  painter.drawRect(QRectF(rect()).adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
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
