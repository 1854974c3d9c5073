#pragma once

#include <QWidget>

#include "framework/Page.h"

namespace nascor::qt {

/// Shows a page on white, as large as fits, whatever the colours of the desktop.
class PageView final : public QWidget {
 public:
  /// `page` outlives the view, or `release` is called before it goes.
  explicit PageView(framework::Page& page, QWidget* parent = nullptr);

  /// Shows blank paper from now on.
  void release() { page_ = nullptr; }

  /// Where the page lies in the widget.
  QRectF paper() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  framework::Page* page_;
};

}  // namespace nascor::qt
