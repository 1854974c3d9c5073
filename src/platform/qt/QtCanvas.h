#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

#include "framework/Canvas.h"

namespace nascor::qt {

/// Paints one view.
///
/// On a screen or picture, lines along the axes stand on whole pixels, so that they stay sharp at any scale; on paper,
/// which has no pixels, they stand where they are.
class QtCanvas final : public framework::Canvas {
 public:
  /// One unit of `painter` is one layout unit and its origin is the upper left corner of the view, which has that
  /// `height`. Keeps a reference to `painter`.
  QtCanvas(QPainter& painter, double height, bool isFlipped);

  void setColor(const framework::Color& color) override;
  void fillPath(const framework::Path& path) override;
  void strokePath(const framework::Path& path) override;
  void fillOval(const framework::Rect& rect) override;
  void strokeRect(const framework::Rect& rect) override;
  void mark(framework::MarkSymbol symbol, framework::Point centre) override;
  void text(std::string_view text, framework::Point at, const framework::TextStyle& style) override;
  double textWidth(std::string_view text, const framework::TextStyle& style) const override;

 private:
  /// The one place where y is turned over. A mirrored painter would mirror the texts too.
  QPointF placed(framework::Point point) const;
  QRectF placed(const framework::Rect& rect) const;
  void strokePolyline(const QPolygonF& line, double width);
  void fillSharpLine(QPointF from, QPointF to, double width);

  QPainter& painter_;
  double height_;
  bool isFlipped_;
  bool hasPixels_;
  QColor color_;
};

}  // namespace nascor::qt
