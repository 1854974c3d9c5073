// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/PageView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/Text.h"
#include "painting/QtSurface.h"

namespace nascor::qt {

using framework::Page;

namespace {

// The report's frame reaches to the edges of its page.
constexpr double kMargin = 8.0;

}  // namespace

PageView::PageView(Page& page, ClickCounter& clicks, QWidget* parent)
    : QWidget(parent),
      page_(&page),
      redraws_(page.onNeedsDisplay.subscribe([this] { update(); })),
      clicks_(clicks) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
  // A click belongs to the page: it leaves the focus where the user types.
  setFocusPolicy(Qt::TabFocus);
}

void PageView::release() {
  redraws_.reset();
  page_ = nullptr;
}

QRectF PageView::fittingPaper() const {
  return paperIn(QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin));
}

double PageView::fittingScale() const { return fittingPaper().width() / Page::kWidth; }

QRectF PageView::paper() const {
  if (!scale_) return fittingPaper();
  const QSizeF size(Page::kWidth * *scale_, Page::kHeight * *scale_);
  const QRectF area = viewport();
  const auto start = [](double room, double length, const QScrollBar* bar) {
    return bar->isHidden() ? (room - length) / 2.0 : kMargin - bar->value();
  };
  return {
      QPointF(start(area.width(), size.width(), horizontal_), start(area.height(), size.height(), vertical_)),
      size};
}

QRect PageView::viewport() const {
  QRect area = rect();
  if (vertical_ && !vertical_->isHidden()) area.setWidth(area.width() - vertical_->sizeHint().width());
  if (horizontal_ && !horizontal_->isHidden())
    area.setHeight(area.height() - horizontal_->sizeHint().height());
  return area;
}

void PageView::setScale(std::optional<double> scale) {
  if (scale == scale_) return;
  const framework::Point middle = onPage(QRectF(viewport()).center());
  if (!horizontal_) {
    horizontal_ = new QScrollBar(Qt::Horizontal, this);
    vertical_ = new QScrollBar(Qt::Vertical, this);
    for (QScrollBar* bar : {horizontal_, vertical_}) {
      bar->hide();
      connect(bar, &QScrollBar::valueChanged, this, [this] {
        placeAdvice();
        update();
      });
    }
  }
  scale_ = scale;
  layOutScrollBars();
  if (scale_) centre(middle);
  placeAdvice();
  update();
}

void PageView::layOutScrollBars() {
  if (!horizontal_) return;
  const int width = scale_ ? static_cast<int>(std::ceil(Page::kWidth * *scale_ + 2.0 * kMargin)) : 0;
  const int height = scale_ ? static_cast<int>(std::ceil(Page::kHeight * *scale_ + 2.0 * kMargin)) : 0;
  const int across = horizontal_->sizeHint().height();
  const int down = vertical_->sizeHint().width();
  // A bar takes room, so that the other may be needed for its sake.
  bool isWide = width > this->width();
  const bool isHigh = height > this->height() - (isWide ? across : 0);
  isWide = isWide || width > this->width() - (isHigh ? down : 0);
  horizontal_->setVisible(isWide);
  vertical_->setVisible(isHigh);
  const QRect area = viewport();
  horizontal_->setGeometry(0, area.height(), area.width(), across);
  // To the foot, so that no corner is left between the two.
  vertical_->setGeometry(area.width(), 0, down, this->height());
  const auto setRange = [this](QScrollBar& bar, int length, int room) {
    bar.setRange(0, std::max(0, length - room));
    bar.setPageStep(room);
    bar.setSingleStep(3 * fontMetrics().height());
  };
  setRange(*horizontal_, width, area.width());
  setRange(*vertical_, height, area.height());
}

void PageView::centre(framework::Point point) {
  const QRect area = viewport();
  horizontal_->setValue(static_cast<int>(std::lround(kMargin + point.x * *scale_ - area.width() / 2.0)));
  vertical_->setValue(static_cast<int>(std::lround(kMargin + point.y * *scale_ - area.height() / 2.0)));
}

void PageView::setAdvice(const QString& advice) {
  if (!advice_) {
    if (advice.isEmpty()) return;
    advice_ = new QLabel(this);
    advice_->setObjectName(QStringLiteral("pageAdvice"));
    advice_->setTextFormat(Qt::PlainText);
    advice_->setAttribute(Qt::WA_TransparentForMouseEvents);
    advice_->setFrameShape(QFrame::Box);
    advice_->setMargin(6);
    advice_->setAutoFillBackground(true);
    advice_->setBackgroundRole(QPalette::ToolTipBase);
    advice_->setForegroundRole(QPalette::ToolTipText);
    advice_->hide();
  }
  advice_->setText(advice);
  placeAdvice();
}

void PageView::placeAdvice() {
  // Before the view has its size, placing would wrap the text again and again into a window of nothing.
  if (!advice_ || testAttribute(Qt::WA_PendingResizeEvent)) return;
  if (advice_->text().isEmpty()) {
    advice_->hide();
    return;
  }
  // Under the curves, where a chart is empty; clear of the axis below it.
  constexpr double kFromRight = 24.0;
  constexpr double kFromBottom = 76.0;
  const QRectF page = paper();
  const QRectF area = viewport();
  const double right = std::min(page.right() - kFromRight * scale(), area.right() - kMargin);
  const double bottom = std::min(page.bottom() - kFromBottom * scale(), area.bottom() - kMargin);
  const int most = static_cast<int>(area.width() - 2.0 * kMargin);
  // Each change of wrapping lays the text out.
  if (advice_->wordWrap()) advice_->setWordWrap(false);
  if (advice_->sizeHint().width() > most) advice_->setWordWrap(true);
  const int width = std::min(advice_->sizeHint().width(), most);
  const int height = advice_->wordWrap() ? advice_->heightForWidth(width) : advice_->sizeHint().height();
  advice_->setGeometry(std::max(static_cast<int>(kMargin), static_cast<int>(right) - width),
                       std::max(static_cast<int>(kMargin), static_cast<int>(bottom) - height), width, height);
  advice_->show();
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
  if (scale_) centre(shown.at);
  const QString text = fromUtf8(shown.text);
  const QRectF whole = paper();
  const QPoint at(qRound(whole.left() + shown.at.x / Page::kWidth * whole.width()),
                  qRound(whole.top() + shown.at.y / Page::kHeight * whole.height()));
  QToolTip::showText(mapToGlobal(at), text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")), this);
  setAccessibleDescription(QString(text).replace(u'\n', QStringLiteral(", ")) + QStringLiteral(". ") +
                           description_);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  if (!readOutByKey(*event) && !scrollByKey(*event)) QWidget::keyPressEvent(event);
}

bool PageView::readOutByKey(const QKeyEvent& event) {
  const auto count = page_ ? std::ssize(page_->readOuts()) : 0;
  const bool isMoving = event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
  if (count == 0 || !isMoving) return false;
  switch (event.key()) {
    case Qt::Key_Right: readOut(std::min(mark_ + 1, count - 1)); return true;
    case Qt::Key_Left: readOut(mark_ < 0 ? count - 1 : std::max<std::ptrdiff_t>(mark_ - 1, 0)); return true;
    case Qt::Key_Home: readOut(0); return true;
    case Qt::Key_End: readOut(count - 1); return true;
    case Qt::Key_Escape: readOut(-1); return true;
    default: return false;
  }
}

bool PageView::scrollByKey(const QKeyEvent& event) {
  const bool isAcross = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
  QScrollBar* bar = isAcross ? horizontal_ : vertical_;
  if (!bar || bar->isHidden()) return false;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up: bar->triggerAction(QAbstractSlider::SliderSingleStepSub); return true;
    case Qt::Key_Right:
    case Qt::Key_Down: bar->triggerAction(QAbstractSlider::SliderSingleStepAdd); return true;
    case Qt::Key_PageUp: bar->triggerAction(QAbstractSlider::SliderPageStepSub); return true;
    case Qt::Key_PageDown: bar->triggerAction(QAbstractSlider::SliderPageStepAdd); return true;
    case Qt::Key_Home: bar->triggerAction(QAbstractSlider::SliderToMinimum); return true;
    case Qt::Key_End: bar->triggerAction(QAbstractSlider::SliderToMaximum); return true;
    default: return false;
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
  constexpr double kWidth = 2.0;
  painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
  painter.drawRect(QRectF(viewport()).adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
}

void PageView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOutScrollBars();
  placeAdvice();
}

void PageView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  const int count = clicks_.count(*event);
  if (page_) onClick(onPage(event->position()), count);
}

void PageView::wheelEvent(QWheelEvent* event) {
  const bool isAcross = std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y()) ||
                        event->modifiers().testFlag(Qt::ShiftModifier);
  QScrollBar* bar = isAcross ? horizontal_ : vertical_;
  if (!bar || bar->isHidden()) {
    event->ignore();
    return;
  }
  constexpr int kNotch = 120;
  constexpr int kStepsOfANotch = 3;
  const QPoint pixels = event->pixelDelta();
  const QPoint notches = event->angleDelta() * kStepsOfANotch * bar->singleStep() / kNotch;
  const QPoint by = pixels.isNull() ? notches : pixels;
  // Shift turns a wheel that goes up and down only.
  bar->setValue(bar->value() - (isAcross && by.x() != 0 ? by.x() : by.y()));
  event->accept();
}

}  // namespace nascor::qt
