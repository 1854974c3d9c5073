// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/Canvas.h"
#include "framework/Geometry.h"

namespace nascor::framework {

/// A press of the mouse button in a view.
struct MouseEvent {
  Point location;      ///< in the view's own coordinates
  int clickCount = 1;  ///< 2 for the second press of a double click, whose first one came by itself
};

/// A mark of a chart in words.
struct ReadOut {
  Point at;  ///< of the view, or of its page where the page says so
  std::string text;
};

/// A view that maps data into a plotting rectangle and draws axes, titles and marks.
///
/// Coordinates are the view's own: they begin at its lower left, y upward, unless `isFlipped`. Views are made by
/// `make` (framework/MakeView.h) and by nothing else: creation sends messages that a subclass may answer, which no
/// constructor can.
class ZuPrimitiveGraphView : public foundation::NotificationSender {
 public:
  explicit ZuPrimitiveGraphView(const foundation::Services& services) : services_(services) {}
  ZuPrimitiveGraphView(const ZuPrimitiveGraphView&) = delete;
  ZuPrimitiveGraphView& operator=(const ZuPrimitiveGraphView&) = delete;

  std::string_view className() const override { return "ZuPrimitiveGraphView"; }

  virtual void initWithFrame(const Rect& frame);
  /// Ends the view's subscriptions; sent before it is destroyed.
  virtual void dealloc() {}

  /// The view's size, its origin at 0; laying out recomputes the plotting area.
  void setFrameSize(double width, double height);
  const Rect& bounds() const { return bounds_; }
  virtual bool isFlipped() const { return false; }

  /// @name The data range and the spacing of ticks, in data units
  /// @{
  double minX() const { return minX_; }
  double maxX() const { return maxX_; }
  double minY() const { return minY_; }
  double maxY() const { return maxY_; }
  void setMinX(double minX) { minX_ = minX; }
  void setMaxX(double maxX) { maxX_ = maxX; }
  void setMinY(double minY) { minY_ = minY; }
  void setMaxY(double maxY) { maxY_ = maxY; }
  void setMajorXInterval(double interval) { majorXInterval_ = interval; }
  void setMinorXInterval(double interval) { minorXInterval_ = interval; }
  void setMajorYInterval(double interval) { majorYInterval_ = interval; }
  /// @}

  void setXTitle(std::string title) { xTitle_ = std::move(title); }
  void setYTitle(std::string title) { yTitle_ = std::move(title); }
  const std::string& xTitle() const { return xTitle_; }
  const std::string& yTitle() const { return yTitle_; }
  const std::string& referenceTitle() const { return referenceTitle_; }
  virtual void setReferenceTitle(const std::string& title) { referenceTitle_ = title; }

  /// The plotting area. Sent at every layout, so that a subclass may put a rectangle of its own in its place.
  virtual void setGraphRect(const Rect& rect) { graphRect_ = rect; }
  const Rect& graphRect() const { return graphRect_; }

  // Selector: pointForX:Y:
  /// The place of a data point: `minX` at the left edge of the plotting area, `minY` at its lower edge. Points outside
  /// the range fall outside. A range or an area without extent maps to its left or lower edge.
  Point pointForXY(double x, double y) const;
  /// The inverse of `pointForXY` for x.
  double xForPoint(Point point) const;

  /// Draws the whole view.
  void display(Canvas& canvas);
  /// @name The mouse
  /// @{

  // Selector: hitTest:
  /// The view that a press at `point` (this view's coordinates) is for: this one, or null when it goes to what lies behind.
  virtual ZuPrimitiveGraphView* hitTest(Point point);
  // Selector: mouseDown:
  virtual void mouseDown(const MouseEvent&) {}
  /// What a tool tip at `point` says; empty for none.
  virtual std::string toolTipAt(Point) const { return {}; }
  /// What the tool tips of all marks say, in the order in which a reader goes through them.
  virtual std::vector<ReadOut> readOuts() const { return {}; }

  /// @}

  /// Asks those who show the view to draw it anew.
  void setNeedsDisplay() const { onNeedsDisplay(); }
  foundation::Signal<> onNeedsDisplay;

 protected:
  /// What `display` draws. The base draws axes, reference title and graph.
  virtual void drawRect(const Rect& rect);
  virtual void drawXAxis();
  virtual void drawYAxis();
  virtual void drawReferenceTitle();
  virtual void drawGraph() {}
  /// The rectangle that the layout hands to `setGraphRect`.
  virtual Rect offeredGraphRect() const { return bounds_; }

  /// @name Marks, in the current colour, in view coordinates
  /// @{
  void plotCrossAtPoint(Point point) { canvas().mark(MarkSymbol::cross, point); }
  void plotCircleAtPoint(Point point) { canvas().mark(MarkSymbol::circle, point); }
  void plotTriangleAtPoint(Point point) { canvas().mark(MarkSymbol::triangle, point); }
  void plotSquareAtPoint(Point point) { canvas().mark(MarkSymbol::square, point); }
  void plotXAtPoint(Point point) { canvas().mark(MarkSymbol::x, point); }
  /// @}
  // Selector: plotMark:X:Y:
  /// Codes: 1 cross, 2 diagonal cross, 3 triangle, 4 circle, 5 square; nothing for any other. Data units.
  void plotMark(int code, double x, double y);

  /// The canvas of the drawing in progress.
  Canvas& canvas() const { return *canvas_; }
  const foundation::Services& services() const { return services_; }
  /// The translation of `key` in `table`.
  std::string localized(std::string_view table, std::string_view key) const;

 private:
  foundation::Services services_;
  Rect bounds_;
  Rect graphRect_;
  double minX_ = 0.0;
  double maxX_ = 1.0;
  double minY_ = 0.0;
  double maxY_ = 1.0;
  double majorXInterval_ = 0.0;
  double minorXInterval_ = 0.0;
  double majorYInterval_ = 0.0;
  std::string xTitle_;
  std::string yTitle_;
  std::string referenceTitle_;
  Canvas* canvas_ = nullptr;
};

}  // namespace nascor::framework
