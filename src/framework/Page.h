// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Signal.h"
#include "framework/Color.h"
#include "framework/Geometry.h"
#include "framework/Surface.h"
#include "framework/ZuPrimitiveGraphView.h"

namespace nascor::framework {

/// A page of a document: a title line, captions and views. Screen, paper and files all show it through `layout` and `paint`.
/// Its coordinates begin at its upper left, y downward.
class Page {
 public:
  /// The size that paper and files use; the window scales the whole.
  static constexpr double kWidth = 800.0;
  static constexpr double kHeight = 560.0;

  /// The rectangle of a view on a page of that size.
  using Placement = std::function<Rect(double width, double height)>;

  explicit Page(std::string_view name) : name_(name) {}

  /// What the page is called in the window and in file names.
  const std::string& name() const { return name_; }
  void setTitle(std::string title) { title_ = std::move(title); }
  const std::string& title() const { return title_; }

  /// Adds a view in front of the others. It outlives the page.
  void addView(ZuPrimitiveGraphView& view, Placement placement);

  /// Adds a line of text at the upper left corner of its rectangle.
  void addCaption(std::string text, NamedColor color, Placement placement);

  void layout(double width, double height);
  /// Paints the page as it was last laid out. A title that is too long for the page loses its middle.
  void paint(Surface& surface) const;

  // Selector: click:count:
  /// A press of the mouse button at `point` of the page as it was last laid out and painted. The frontmost view that takes it
  /// acts. False when no view takes it.
  bool click(Point point, int count);
  /// What a tool tip at `point` says; empty for none.
  std::string toolTipAt(Point point) const;
  /// The marks of all views, in the views' order, with their places on the page as it was last laid out.
  std::vector<ReadOut> readOuts() const;

  /// Sent when one of its views is to be drawn anew.
  foundation::Signal<> onNeedsDisplay;

 private:
  struct PlacedView {
    ZuPrimitiveGraphView* view;
    Placement placement;
    Rect frame;

    /// `point` of the page in the view's own coordinates.
    Point inView(Point point) const;
    /// `point` of the view on the page.
    Point onPage(Point point) const;
  };
  struct Caption {
    std::string text;
    NamedColor color;
    Placement placement;
    Rect frame;
  };
  std::string name_;
  std::string title_;
  double width_ = kWidth;
  std::vector<Caption> captions_;
  std::vector<PlacedView> views_;
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::framework
