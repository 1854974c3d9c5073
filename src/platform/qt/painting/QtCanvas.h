// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QSizeF>
#include <QTransform>

#include "framework/Canvas.h"
#include "painting/TextLayouts.h"

namespace nascor::qt {

/// Paints one view.
///
/// On a screen or picture, lines along the axes stand on whole pixels, so that they stay sharp at any scale; on paper,
/// which has no pixels, they stand where they are.
class QtCanvas final : public framework::Canvas {
 public:
  /// One unit of `painter` is one layout unit and its origin is the upper left corner of the view, which has that `size`.
  /// Keeps references to `painter` and `texts`.
  QtCanvas(QPainter& painter, QSizeF size, bool isFlipped, TextLayouts& texts);

  void setColor(const framework::Color& color) override;
  void fillPath(const framework::Path& path) override;
  void strokePath(const framework::Path& path) override;
  void fillOval(const framework::Rect& rect) override;
  /// A line on the very edge of the view is kept inside it.
  void strokeRect(const framework::Rect& rect) override;
  void mark(framework::MarkSymbol symbol, framework::Point centre) override;
  void text(std::string_view text, framework::Point at, const framework::TextStyle& style) override;
  double textWidth(std::string_view text, const framework::TextStyle& style) const override;

 private:
  /// What the painter is set to for shapes; told again only where that changes.
  enum class Tool { unknown, brush, pen, mark };
  void use(Tool tool, double penWidth = 0.0);
  void setSmooth(bool isSmooth);
  void drawText(const LaidOutText& text, QPointF at, const QColor& color);

  /// The one place where y is turned over. A mirrored painter would mirror the texts too.
  QPointF placed(framework::Point point) const;
  QRectF placed(const framework::Rect& rect) const;
  /// Whether the line was along the axes throughout, and drawn.
  bool drawnSharp(const QPolygonF& line, double width);
  void fillOvalInSlices(const QRectF& oval);
  void fillSharpLine(QPointF from, QPointF to, double width);
  void strokeSharpRect(const QRectF& edge);
  void fillPixels(const QRectF& pixels);
  /// Of a line of that width, in whole pixels.
  double sharpThickness(double width) const;

  QPainter& painter_;
  QSizeF size_;
  bool isFlipped_;
  bool hasPixels_;
  bool isSharp_;  ///< whether a line along the axes is along the pixels
  bool isShiftOnly_;
  QTransform toPixels_;
  QTransform fromPixels_;
  TextLayouts& texts_;
  QColor color_;

  Tool tool_ = Tool::unknown;
  QColor toolColor_;
  double penWidth_ = 0.0;
  bool isSmooth_ = false;
  QColor textColor_;
  const QFont* font_ = nullptr;
};

}  // namespace nascor::qt
