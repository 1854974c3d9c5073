// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/ZuPrimitiveGraphView.h"

#include <algorithm>
#include <cmath>

#include "foundation/ConvertInteger.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "framework/FittingText.h"

namespace nascor::framework {
namespace {

constexpr double kTick = 5.0;
constexpr double kMinorTick = 3.0;
constexpr double kGap = 3.0;
/// From the middle of a number down to the lower edge of its box, which leaves room for letters that hang lower.
constexpr double kBelowMiddle = 6.0;

/// Calls `use` with the multiples of `interval` above `from`, and `from` itself, up to `to`. A range of more ticks than
/// anybody could see apart has none.
template <class Use>
void forEachTick(double from, double to, double interval, Use use) {
  constexpr double kMostTicks = 1000.0;
  const double count = (to - from) / interval;
  if (!(interval > 0.0) || !(count >= 0.0) || count > kMostTicks) return;
  const std::int64_t last = foundation::truncatedToInteger(count + 1e-9);
  for (std::int64_t i = 0; i <= last; ++i) use(from + static_cast<double>(i) * interval);
}

}  // namespace

void ZuPrimitiveGraphView::initWithFrame(const Rect& frame) { setFrameSize(frame.width, frame.height); }

void ZuPrimitiveGraphView::setFrameSize(double width, double height) {
  bounds_ = {.x = 0.0, .y = 0.0, .width = width, .height = height};
  setGraphRect(offeredGraphRect());
}

Point ZuPrimitiveGraphView::pointForXY(double x, double y) const {
  const auto map = [](double value, double from, double to, double origin, double extent) {
    return to > from && extent > 0.0 ? origin + (value - from) / (to - from) * extent : origin;
  };
  return {.x = map(x, minX_, maxX_, graphRect_.x, graphRect_.width),
          .y = map(y, minY_, maxY_, graphRect_.y, graphRect_.height)};
}

double ZuPrimitiveGraphView::xForPoint(Point point) const {
  if (!(graphRect_.width > 0.0)) return minX_;
  return minX_ + (point.x - graphRect_.x) / graphRect_.width * (maxX_ - minX_);
}

ZuPrimitiveGraphView* ZuPrimitiveGraphView::hitTest(Point point) {
  return bounds_.contains(point) ? this : nullptr;
}

void ZuPrimitiveGraphView::display(Canvas& canvas) {
  canvas_ = &canvas;
  drawRect(bounds_);
  canvas_ = nullptr;
}

void ZuPrimitiveGraphView::drawRect(const Rect&) {
  if (!(graphRect_.width > 0.0 && graphRect_.height > 0.0)) return;
  drawXAxis();
  drawYAxis();
  drawReferenceTitle();
  drawGraph();
}

void ZuPrimitiveGraphView::drawXAxis() {
  const double base = graphRect_.y;
  canvas().setColor(NamedColor::black);
  canvas().strokePath(Path::line({graphRect_.x, base}, {graphRect_.x + graphRect_.width, base}));
  forEachTick(minX_, maxX_, minorXInterval_, [&](double x) {
    const double at = pointForXY(x, minY_).x;
    canvas().strokePath(Path::line({at, base}, {at, base - kMinorTick}));
  });
  forEachTick(minX_, maxX_, majorXInterval_, [&](double x) {
    const double at = pointForXY(x, minY_).x;
    canvas().strokePath(Path::line({at, base}, {at, base - kTick}));
    const std::string label = foundation::shortestText(x);
    const double width = canvas().textWidth(label, {});
    // A label at the end of the axis stays inside the view.
    const double left =
        std::clamp(at - width / 2.0, bounds_.x, std::max(bounds_.x, bounds_.x + bounds_.width - width));
    canvas().text(label, {left, base - kTick - kGap - kTextHeight}, {});
  });
  canvas().text(xTitle_, {graphRect_.x, base - kTick - 3.0 * kGap - 2.0 * kTextHeight}, {});
}

void ZuPrimitiveGraphView::drawYAxis() {
  const double left = graphRect_.x;
  canvas().setColor(NamedColor::black);
  canvas().strokePath(Path::line({left, graphRect_.y}, {left, graphRect_.y + graphRect_.height}));
  double widest = 0.0;
  forEachTick(minY_, maxY_, majorYInterval_, [&](double y) {
    const double at = pointForXY(minX_, y).y;
    canvas().strokePath(Path::line({left, at}, {left - kTick, at}));
    const std::string label = foundation::shortestText(y);
    const double width = canvas().textWidth(label, {});
    widest = std::max(widest, width);
    canvas().text(label, {left - kTick - kGap - width, at - kBelowMiddle}, {});
  });
  const double length = canvas().textWidth(yTitle_, {});
  const double middle = graphRect_.y + graphRect_.height / 2.0;
  const double column = std::max(kTextHeight + kGap, left - kTick - 3.0 * kGap - widest);
  canvas().text(yTitle_, {column, middle - length / 2.0}, {.degrees = 90.0});
}

void ZuPrimitiveGraphView::drawReferenceTitle() {
  // What stands behind a stroke is a title of its own: where there is room for some of both, the end of the first goes.
  const std::size_t stroke = std::min(referenceTitle_.rfind(" / "), referenceTitle_.size());
  const std::string end = referenceTitle_.substr(stroke);
  const bool keepsEnd = canvas().textWidth(end, {}) <= graphRect_.width * 2.0 / 3.0;
  const std::string title =
      fittingText(referenceTitle_, keepsEnd ? end.size() : 0, canvas(), graphRect_.width);
  const double width = canvas().textWidth(title, {});
  double base = graphRect_.y - kTick - 3.0 * kGap - 2.0 * kTextHeight;
  // Where the two titles do not fit on one line, this one takes the next.
  const double room = graphRect_.width - canvas().textWidth(xTitle_, {}) - 4.0 * kGap;
  if (width > room) base -= kTextHeight + kGap;
  canvas().text(title, {std::max(graphRect_.x, graphRect_.x + graphRect_.width - width), base}, {});
}

void ZuPrimitiveGraphView::plotMark(int code, double x, double y) {
  const Point point = pointForXY(x, y);
  switch (code) {
    case 1: plotCrossAtPoint(point); break;
    case 2: plotXAtPoint(point); break;
    case 3: plotTriangleAtPoint(point); break;
    case 4: plotCircleAtPoint(point); break;
    case 5: plotSquareAtPoint(point); break;
    default: break;
  }
}

std::string ZuPrimitiveGraphView::localized(std::string_view table, std::string_view key) const {
  return services_.localizer.text(table, key);
}

}  // namespace nascor::framework
