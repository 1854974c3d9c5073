// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/QtCanvas.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/Text.h"

namespace nascor::qt {

using framework::MarkSymbol;
using framework::Point;

namespace {

QColor qtColor(const framework::Color& color) {
  const framework::Rgba value = color.value();
  const auto byte = [](double part) { return static_cast<int>(std::lround(part * 255.0)); };
  return QColor(byte(value.red), byte(value.green), byte(value.blue), byte(value.alpha));
}

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

bool isFinite(const framework::Rect& rect) {
  return isFinite(Point{rect.x, rect.y}) && isFinite(Point{rect.width, rect.height});
}

constexpr double kMarkLineWidth = 1.4;

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, QSizeF size, bool isFlipped, TextLayouts& texts)
    : painter_(painter),
      size_(size),
      isFlipped_(isFlipped),
      hasPixels_(painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster),
      isSharp_(hasPixels_ && painter.deviceTransform().type() <= QTransform::TxScale),
      isShiftOnly_(painter.deviceTransform().type() <= QTransform::TxTranslate),
      toPixels_(painter.deviceTransform()),
      fromPixels_(toPixels_.inverted()),
      texts_(texts),
      color_(Qt::black) {
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void QtCanvas::setColor(const framework::Color& color) { color_ = qtColor(color); }

void QtCanvas::use(Tool tool, double penWidth) {
  if (tool == tool_ && color_ == toolColor_ && penWidth == penWidth_) return;
  tool_ = tool;
  toolColor_ = color_;
  penWidth_ = penWidth;
  textColor_ = QColor();
  switch (tool) {
    case Tool::unknown: break;
    case Tool::brush:
      painter_.setPen(Qt::NoPen);
      painter_.setBrush(color_);
      break;
    case Tool::pen:
      painter_.setPen(QPen(color_, penWidth, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
      painter_.setBrush(Qt::NoBrush);
      break;
    case Tool::mark:
      painter_.setPen(QPen(color_, penWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
      painter_.setBrush(Qt::NoBrush);
      break;
  }
}

void QtCanvas::setSmooth(bool isSmooth) {
  if (isSmooth == isSmooth_) return;
  isSmooth_ = isSmooth;
  painter_.setRenderHint(QPainter::Antialiasing, isSmooth);
}

void QtCanvas::fillPath(const framework::Path& path) {
  if (path.isEmpty()) return;
  use(Tool::brush);
  setSmooth(true);
  QPainterPath several;
  several.setFillRule(Qt::WindingFill);
  for (const auto& subpath : path.subpaths()) {
    QPolygonF corners;
    corners.reserve(static_cast<qsizetype>(subpath.size()));
    for (const Point point : subpath) corners << placed(point);
    if (path.subpaths().size() == 1) {
      painter_.drawPolygon(corners, Qt::WindingFill);
      return;
    }
    several.addPolygon(corners);
    several.closeSubpath();
  }
  painter_.drawPath(several);
}

void QtCanvas::strokePath(const framework::Path& path) {
  for (const auto& subpath : path.subpaths()) {
    QPolygonF line;
    line.reserve(static_cast<qsizetype>(subpath.size()));
    for (const Point point : subpath) line << placed(point);
    if (drawnSharp(line, path.lineWidth())) continue;
    use(Tool::pen, path.lineWidth());
    setSmooth(true);
    painter_.drawPolyline(line);
  }
}

void QtCanvas::fillOval(const framework::Rect& rect) {
  if (!isFinite(rect)) return;
  use(Tool::brush);
  setSmooth(true);
  const QRectF oval = placed(rect);
  if (isSharp_ && color_.alpha() < 255) {
    fillOvalInSlices(oval);
  } else {
    painter_.drawEllipse(oval);
  }
}

void QtCanvas::fillOvalInSlices(const QRectF& oval) {
  // Qt blends a shape of many rows in several threads, which costs more than it saves for one as small as this.
  // The slices meet on the edge of a row of pixels, so that no seam shows.
  constexpr double kRows = 8.0;
  constexpr qsizetype kPointsOfASide = 12;
  const QPointF centre = oval.center();
  const double rx = oval.width() / 2.0;
  const double ry = oval.height() / 2.0;
  if (!(rx > 0.0 && ry > 0.0)) return;
  const double scale = toPixels_.m22();
  const double firstRow = std::floor(oval.top() * scale + toPixels_.dy());
  for (double row = firstRow;; row += kRows) {
    const double top = std::max(oval.top(), (row - toPixels_.dy()) / scale);
    const double bottom = std::min(oval.bottom(), (row + kRows - toPixels_.dy()) / scale);
    if (!(bottom > top)) return;
    const double from = std::acos(std::clamp((centre.y() - top) / ry, -1.0, 1.0));
    const double to = std::acos(std::clamp((centre.y() - bottom) / ry, -1.0, 1.0));
    QPolygonF slice(2 * (kPointsOfASide + 1));
    for (qsizetype i = 0; i <= kPointsOfASide; ++i) {
      const double angle = from + (to - from) * static_cast<double>(i) / static_cast<double>(kPointsOfASide);
      const QPointF along(rx * std::sin(angle), -ry * std::cos(angle));
      slice[i] = centre + along;
      slice[slice.size() - 1 - i] = centre + QPointF(-along.x(), along.y());
    }
    painter_.drawPolygon(slice);
  }
}

void QtCanvas::strokeRect(const framework::Rect& rect) {
  if (!isFinite(rect)) return;
  constexpr double kHalf = 0.5;
  QRectF edge = placed(rect);
  const QRectF inside(QPointF(kHalf, kHalf), size_ - QSizeF(2.0 * kHalf, 2.0 * kHalf));
  if (edge.left() == 0.0) edge.setLeft(inside.left());
  if (edge.top() == 0.0) edge.setTop(inside.top());
  if (edge.right() == size_.width()) edge.setRight(inside.right());
  if (edge.bottom() == size_.height()) edge.setBottom(inside.bottom());
  if (isSharp_) {
    strokeSharpRect(edge);
    return;
  }
  use(Tool::pen, 1.0);
  setSmooth(true);
  painter_.drawRect(edge);
}

void QtCanvas::mark(MarkSymbol symbol, Point centre) {
  if (!isFinite(centre)) return;
  const QPointF at = placed(centre);
  // One beyond the view is clipped away, but not by every viewer of a file.
  constexpr double kReach = 5.0;
  if (!QRectF(at - QPointF(kReach, kReach), QSizeF(2.0 * kReach, 2.0 * kReach))
           .intersects(QRectF(QPointF(), size_)))
    return;
  use(Tool::mark, kMarkLineWidth);
  setSmooth(true);
  switch (symbol) {
    case MarkSymbol::cross: {
      const std::array lines{QLineF(at - QPointF(4.0, 0.0), at + QPointF(4.0, 0.0)),
                             QLineF(at - QPointF(0.0, 4.0), at + QPointF(0.0, 4.0))};
      painter_.drawLines(lines.data(), static_cast<int>(lines.size()));
      break;
    }
    case MarkSymbol::circle: painter_.drawEllipse(at, 3.2, 3.2); break;
    case MarkSymbol::triangle:
      painter_.drawPolygon(
          QPolygonF({at + QPointF(0.0, -3.2), at + QPointF(3.1, 2.4), at + QPointF(-3.1, 2.4)}));
      break;
    case MarkSymbol::square:
      painter_.drawPolygon(QPolygonF({at + QPointF(-3.0, -3.0), at + QPointF(3.0, -3.0),
                                      at + QPointF(3.0, 3.0), at + QPointF(-3.0, 3.0)}));
      break;
    case MarkSymbol::x: {
      const std::array lines{QLineF(at + QPointF(-3.2, -3.2), at + QPointF(3.2, 3.2)),
                             QLineF(at + QPointF(-3.2, 3.2), at + QPointF(3.2, -3.2))};
      painter_.drawLines(lines.data(), static_cast<int>(lines.size()));
      break;
    }
  }
}

void QtCanvas::drawText(const LaidOutText& text, QPointF at, const QColor& color) {
  if (text.text.isEmpty()) return;
  if (color != textColor_) {
    tool_ = Tool::unknown;
    textColor_ = color;
    painter_.setPen(color);
  }
  const QFont& font = texts_.fontFor(text);
  if (&font != font_) {
    font_ = &font;
    painter_.setFont(font);
  }
  const QFontMetricsF& metrics = texts_.metricsFor(text);
  const double baseline = at.y() + (isFlipped_ ? metrics.ascent() : -metrics.descent());
  // A file is to hold the text as a text; a picture only its signs, whose places are known already.
  if (hasPixels_) {
    painter_.drawStaticText(QPointF(at.x(), baseline - metrics.ascent()), text.layout);
  } else {
    painter_.drawText(QPointF(at.x(), baseline), text.text);
  }
}

void QtCanvas::text(std::string_view text, Point at, const framework::TextStyle& style) {
  if (!isFinite(at)) return;
  // A text beyond the view is clipped away, but a reader of a file would still find it there.
  constexpr double kTallest = 1.5 * framework::kTextHeight;
  const bool isBeyond = at.y >= size_.height() || at.y + kTallest <= 0.0;
  if (style.degrees == 0.0 && isBeyond) return;
  const QColor color = qtColor(style.color);
  const QPointF place = placed(at);
  const bool isTurned = style.degrees != 0.0;
  const QTransform upright = isTurned ? painter_.worldTransform() : QTransform();
  if (isTurned) {
    painter_.translate(place);
    painter_.rotate(-style.degrees);
  }
  const QPointF start = isTurned ? QPointF() : place;
  const std::size_t tab = text.find('\t');
  drawText(texts_.of(text.substr(0, tab)), start, color);
  if (tab != std::string_view::npos) {
    drawText(texts_.of(text.substr(tab + 1)), start + QPointF(style.tabStop, 0.0), color);
  }
  if (isTurned) painter_.setWorldTransform(upright);
}

double QtCanvas::textWidth(std::string_view text, const framework::TextStyle& style) const {
  const std::size_t tab = text.find('\t');
  return tab == std::string_view::npos ? texts_.of(text).width
                                       : style.tabStop + texts_.of(text.substr(tab + 1)).width;
}

QPointF QtCanvas::placed(Point point) const {
  // Farther out than any paper; Qt computes pixels as 32-bit integers.
  constexpr double kFarOut = 1e5;
  const double y = isFlipped_ ? point.y : size_.height() - point.y;
  return {std::clamp(point.x, -kFarOut, kFarOut), std::clamp(y, -kFarOut, kFarOut)};
}

QRectF QtCanvas::placed(const framework::Rect& rect) const {
  return QRectF(placed(Point{rect.x, rect.y}), placed(Point{rect.x + rect.width, rect.y + rect.height}))
      .normalized();
}

bool QtCanvas::drawnSharp(const QPolygonF& line, double width) {
  if (!isSharp_) return false;
  for (qsizetype i = 1; i < line.size(); ++i) {
    if (line[i - 1].x() != line[i].x() && line[i - 1].y() != line[i].y()) return false;
  }
  for (qsizetype i = 1; i < line.size(); ++i) fillSharpLine(line[i - 1], line[i], width);
  return true;
}

double QtCanvas::sharpThickness(double width) const {
  return std::max(1.0, std::round(width * std::abs(toPixels_.m11())));
}

void QtCanvas::fillSharpLine(QPointF from, QPointF to, double width) {
  const QRectF axis = QRectF(toPixels_.map(from), toPixels_.map(to)).normalized();
  const double thickness = sharpThickness(width);
  fillPixels(QRectF(std::round(axis.left() - thickness / 2.0), std::round(axis.top() - thickness / 2.0),
                    std::round(axis.width()) + thickness, std::round(axis.height()) + thickness));
}

void QtCanvas::strokeSharpRect(const QRectF& edge) {
  const QRectF axis = toPixels_.mapRect(edge);
  const double thickness = sharpThickness(1.0);
  const QRectF outer(std::round(axis.left() - thickness / 2.0), std::round(axis.top() - thickness / 2.0),
                     std::round(axis.width()) + thickness, std::round(axis.height()) + thickness);
  // Each corner once: the colour may let through what lies below.
  fillPixels(QRectF(outer.topLeft(), QSizeF(outer.width(), thickness)));
  fillPixels(QRectF(outer.left(), outer.bottom() - thickness, outer.width(), thickness));
  const double height = outer.height() - 2.0 * thickness;
  fillPixels(QRectF(outer.left(), outer.top() + thickness, thickness, height));
  fillPixels(QRectF(outer.right() - thickness, outer.top() + thickness, thickness, height));
}

void QtCanvas::fillPixels(const QRectF& pixels) {
  // As with ovals: many rows at once would be shared out among threads.
  constexpr double kMostRows = 64.0;
  setSmooth(false);
  const double rows = color_.alpha() < 255 ? kMostRows : std::max(1.0, pixels.height());
  const int parts = static_cast<int>(std::ceil(pixels.height() / rows));
  for (int i = 0; i < parts; ++i) {
    const double top = pixels.top() + rows * i;
    const QRectF part(pixels.left(), top, pixels.width(), std::min(rows, pixels.bottom() - top));
    painter_.fillRect(
        isShiftOnly_ ? part.translated(-toPixels_.dx(), -toPixels_.dy()) : fromPixels_.mapRect(part), color_);
  }
}

}  // namespace nascor::qt
