// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <cstddef>
#include <optional>

#include "foundation/Signal.h"
#include "framework/Page.h"
#include "painting/TextLayouts.h"
#include "window/ClickCounter.h"

class QLabel;
class QScrollBar;

namespace nascor::qt {

/// Shows a page on white, as large as fits or at a scale of its own, whatever the colours of the desktop. Tells of clicks,
/// what a mark means when the pointer rests on it or the arrow keys reach it, and what the page lacks.
class PageView final : public QWidget {
 public:
  /// `page` outlives the view, or `release` is called before it goes. `clicks` is shared by the pages of a window: a row of
  /// clicks may lead from one to another.
  PageView(framework::Page& page, ClickCounter& clicks, QWidget* parent = nullptr);

  /// Shows blank paper from now on.
  void release();

  /// Shows the page at that many pixels to its unit, and scrolls where that is larger than the widget; without a scale as
  /// large as fits. What was in the middle stays there.
  void setScale(std::optional<double> scale);
  /// The pixels to a unit at which the page is on show.
  double scale() const { return paper().width() / framework::Page::kWidth; }
  /// The same when the page is as large as fits.
  double fittingScale() const;

  /// Says that over the page; nothing when it is empty. Clicks go through it.
  void setAdvice(const QString& advice);

  /// Where the page lies in the widget. A page that is larger than the widget begins before it.
  QRectF paper() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  /// What screen readers say of the page, behind the mark that the keys have reached.
  void setDescription(const QString& description);

  /// A press of the left button, in page coordinates, and its place in a row of presses.
  foundation::Signal<framework::Point, int> onClick;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Goes to the mark that the key means. False where the key means none.
  bool readOutByKey(const QKeyEvent& event);
  /// Scrolls by the key. False where the page is shown whole.
  bool scrollByKey(const QKeyEvent& event);
  /// Reads out the mark of that place among those of the page; a place outside them reads none.
  void readOut(std::ptrdiff_t mark);
  framework::Point onPage(QPointF point) const;
  /// The widget without its scroll bars.
  QRect viewport() const;
  QRectF fittingPaper() const;
  /// Shows the scroll bars that the page needs at its scale.
  void layOutScrollBars();
  /// Puts that point of the page into the middle, as far as the page reaches.
  void centre(framework::Point point);
  void placeAdvice();

  framework::Page* page_;
  foundation::Subscription redraws_;
  ClickCounter& clicks_;
  TextLayouts texts_;
  QString description_;
  std::ptrdiff_t mark_ = -1;  ///< the mark that the keys have reached; -1 for none
  std::optional<double> scale_;
  QScrollBar* horizontal_ = nullptr;  ///< made when the page is scaled for the first time, as is the other
  QScrollBar* vertical_ = nullptr;
  QLabel* advice_ = nullptr;  ///< made when there is something to say
};

}  // namespace nascor::qt
