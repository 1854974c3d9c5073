#pragma once

#include <QWidget>
#include <cstddef>
#include <functional>

#include "framework/Page.h"
#include "qt/ClickCounter.h"
#include "qt/TextLayouts.h"

namespace nascor::qt {

/// Shows a page on white, as large as fits, whatever the colours of the desktop. Tells of clicks, and what a mark means when
/// the pointer rests on it or the arrow keys reach it.
class PageView final : public QWidget {
 public:
  /// `page` outlives the view, or `release` is called before it goes. `clicks` is shared by the pages of a window: a row of
  /// clicks may lead from one to another.
  PageView(framework::Page& page, ClickCounter& clicks, QWidget* parent = nullptr);

  /// Shows blank paper from now on.
  void release() { page_ = nullptr; }

  /// Where the page lies in the widget.
  QRectF paper() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  /// What screen readers say of the page, behind the mark that the keys have reached.
  void setDescription(const QString& description);

  /// A press of the left button, in page coordinates, and its place in a row of presses.
  std::function<void(framework::Point, int count)> onClick;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Reads out the mark of that place among those of the page; a place outside them reads none.
  void readOut(std::ptrdiff_t mark);
  framework::Point onPage(QPointF point) const;

  framework::Page* page_;
  ClickCounter& clicks_;
  TextLayouts texts_;
  QString description_;
  std::ptrdiff_t mark_ = -1;  ///< the mark that the keys have reached; -1 for none
};

}  // namespace nascor::qt
