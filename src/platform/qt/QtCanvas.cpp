#include "qt/QtCanvas.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/Text.h"

namespace nascor::qt {

using framework::MarkSymbol;
using framework::Point;

namespace {

QColor toolkitColor(const framework::Color& color) {
  const framework::Rgba value = color.value();
  return QColor::fromRgbF(static_cast<float>(value.red), static_cast<float>(value.green),
                          static_cast<float>(value.blue), static_cast<float>(value.alpha));
}

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

bool isFinite(const framework::Rect& rect) {
  return isFinite(Point{rect.x, rect.y}) && isFinite(Point{rect.width, rect.height});
}

/// Without shaping a text of Latin letters reads back from a PDF as it was written; with it, "fi" becomes one sign.
bool needsShaping(const QString& text) {
  constexpr char16_t kEndOfLatin = 0x0250;
  return std::ranges::any_of(text, [](QChar c) { return c.unicode() >= kEndOfLatin; });
}

/// A named family: a generic one would go into a file by its generic name. Sized in units, not in points of the screen;
/// without hinting, so that a text is as wide on a screen as on paper.
QFont fontFor(const QString& text) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(static_cast<int>(framework::kTextHeight));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(needsShaping(text) ? QFont::PreferDefault : QFont::PreferNoShaping);
  return font;
}

double widthOf(const QString& text) { return QFontMetricsF(fontFor(text)).horizontalAdvance(text); }

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, double height, bool isFlipped)
    : painter_(painter),
      height_(height),
      isFlipped_(isFlipped),
      hasPixels_(painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster),
      color_(Qt::black) {
  painter_.setRenderHint(QPainter::Antialiasing);
}

void QtCanvas::setColor(const framework::Color& color) { color_ = toolkitColor(color); }

void QtCanvas::fillPath(const framework::Path& path) {
  QPainterPath filled;
  filled.setFillRule(Qt::WindingFill);
  for (const auto& subpath : path.subpaths()) {
    QPolygonF corners;
    for (const Point point : subpath) corners << placed(point);
    filled.addPolygon(corners);
    filled.closeSubpath();
  }
  painter_.fillPath(filled, color_);
}

void QtCanvas::strokePath(const framework::Path& path) {
  for (const auto& subpath : path.subpaths()) {
    QPolygonF line;
    for (const Point point : subpath) line << placed(point);
    strokePolyline(line, path.lineWidth());
  }
}

void QtCanvas::fillOval(const framework::Rect& rect) {
  if (!isFinite(rect)) return;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(color_);
  painter_.drawEllipse(placed(rect));
}

void QtCanvas::strokeRect(const framework::Rect& rect) {
  if (!isFinite(rect)) return;
  const QRectF edge = placed(rect);
  strokePolyline({edge.topLeft(), edge.topRight(), edge.bottomRight(), edge.bottomLeft(), edge.topLeft()},
                 1.0);
}

void QtCanvas::mark(MarkSymbol symbol, Point centre) {
  if (!isFinite(centre)) return;
  constexpr double kLineWidth = 1.4;
  painter_.save();
  painter_.translate(placed(centre));
  painter_.setPen(QPen(color_, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
  painter_.setBrush(Qt::NoBrush);
  switch (symbol) {
    case MarkSymbol::cross:
      painter_.drawLine(QPointF(-3.5, 0.0), QPointF(3.5, 0.0));
      painter_.drawLine(QPointF(0.0, -3.5), QPointF(0.0, 3.5));
      break;
    case MarkSymbol::circle: painter_.drawEllipse(QPointF(0.0, 0.0), 3.2, 3.2); break;
    case MarkSymbol::triangle:
      painter_.drawPolygon(QPolygonF({QPointF(0.0, -3.2), QPointF(3.1, 2.4), QPointF(-3.1, 2.4)}));
      break;
    case MarkSymbol::square: painter_.drawRect(QRectF(-3.0, -3.0, 6.0, 6.0)); break;
    case MarkSymbol::x:
      painter_.drawLine(QPointF(-2.8, -2.8), QPointF(2.8, 2.8));
      painter_.drawLine(QPointF(-2.8, 2.8), QPointF(2.8, -2.8));
      break;
  }
  painter_.restore();
}

void QtCanvas::text(std::string_view text, Point at, const framework::TextStyle& style) {
  if (!isFinite(at)) return;
  painter_.save();
  painter_.translate(placed(at));
  painter_.rotate(-style.degrees);
  painter_.setPen(toolkitColor(style.color));
  const QString whole = fromUtf8(text);
  const auto draw = [&](const QString& part, double x) {
    const QFont font = fontFor(part);
    const QFontMetricsF metrics(font);
    painter_.setFont(font);
    painter_.drawText(QPointF(x, isFlipped_ ? metrics.ascent() : -metrics.descent()), part);
  };
  const qsizetype tab = whole.indexOf(u'\t');
  draw(whole.left(tab), 0.0);
  if (tab >= 0) draw(whole.mid(tab + 1), style.tabStop);
  painter_.restore();
}

double QtCanvas::textWidth(std::string_view text, const framework::TextStyle& style) const {
  const QString whole = fromUtf8(text);
  const qsizetype tab = whole.indexOf(u'\t');
  return tab < 0 ? widthOf(whole) : style.tabStop + widthOf(whole.mid(tab + 1));
}

QPointF QtCanvas::placed(Point point) const {
  // Farther out than any paper; the toolkit reckons pixels in whole numbers of 32 bits.
  constexpr double kFarOut = 1e5;
  const double y = isFlipped_ ? point.y : height_ - point.y;
  return {std::clamp(point.x, -kFarOut, kFarOut), std::clamp(y, -kFarOut, kFarOut)};
}

QRectF QtCanvas::placed(const framework::Rect& rect) const {
  return QRectF(placed(Point{rect.x, rect.y}), placed(Point{rect.x + rect.width, rect.y + rect.height}))
      .normalized();
}

void QtCanvas::strokePolyline(const QPolygonF& line, double width) {
  bool isSharp = hasPixels_ && painter_.deviceTransform().type() <= QTransform::TxScale;
  for (qsizetype i = 1; i < line.size() && isSharp; ++i) {
    isSharp = line[i - 1].x() == line[i].x() || line[i - 1].y() == line[i].y();
  }
  if (isSharp) {
    for (qsizetype i = 1; i < line.size(); ++i) fillSharpLine(line[i - 1], line[i], width);
    return;
  }
  painter_.setPen(QPen(color_, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPolyline(line);
}

void QtCanvas::fillSharpLine(QPointF from, QPointF to, double width) {
  const QTransform toPixels = painter_.deviceTransform();
  const QRectF axis = QRectF(toPixels.map(from), toPixels.map(to)).normalized();
  const double thickness = std::max(1.0, std::round(width * std::abs(toPixels.m11())));
  const double half = thickness / 2.0;
  const auto extent = [&](double first, double last) {
    const double start = std::round(first - half);
    return std::pair(start, std::round(last - first) + thickness);
  };
  const auto [x, across] = extent(axis.left(), axis.right());
  const auto [y, down] = extent(axis.top(), axis.bottom());
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.fillRect(toPixels.inverted().mapRect(QRectF(x, y, across, down)), color_);
  painter_.setRenderHint(QPainter::Antialiasing);
}

}  // namespace nascor::qt
