// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Page.h"

#include "framework/Canvas.h"
#include "framework/FittingText.h"

namespace nascor::framework {

namespace {

constexpr Point kTitlePlace{.x = 50.0, .y = 10.0};

/// `title` as it fits into `width`. What tells one title from another stands at both ends of it, gravidity and fetus at the
/// second: so it is the middle that goes.
std::string fittingTitle(const std::string& title, const Canvas& canvas, double width) {
  constexpr std::size_t kMostOfEnd = 40;  // bytes
  const std::size_t last = title.rfind(" (");
  const bool hasEnd = last != std::string::npos && title.size() - last <= kMostOfEnd;
  return fittingText(title, hasEnd ? title.size() - last : 0, canvas, width);
}

}  // namespace

void Page::addView(ZuPrimitiveGraphView& view, Placement placement) {
  views_.push_back({.view = &view, .placement = std::move(placement), .frame = {}});
  subscriptions_.push_back(view.onNeedsDisplay.subscribe([this] { onNeedsDisplay(); }));
}

void Page::addCaption(std::string text, NamedColor color, Placement placement) {
  captions_.push_back(
      {.text = std::move(text), .color = color, .placement = std::move(placement), .frame = {}});
}

void Page::layout(double width, double height) {
  width_ = width;
  for (Caption& caption : captions_) caption.frame = caption.placement(width, height);
  for (PlacedView& placed : views_) {
    placed.frame = placed.placement(width, height);
    placed.view->setFrameSize(placed.frame.width, placed.frame.height);
  }
}

void Page::paint(Surface& surface) const {
  constexpr double kMargin = 10.0;
  if (!title_.empty()) {
    Canvas& canvas = surface.pageCanvas();
    canvas.text(fittingTitle(title_, canvas, width_ - kTitlePlace.x - kMargin), kTitlePlace, {});
  }
  for (const Caption& caption : captions_) {
    surface.pageCanvas().text(caption.text, {.x = caption.frame.x, .y = caption.frame.y},
                              {.color = caption.color});
  }
  for (const PlacedView& placed : views_) {
    placed.view->display(surface.beginView(*placed.view, placed.frame));
    surface.endView();
  }
}

Point Page::PlacedView::inView(Point point) const {
  const double down = point.y - frame.y;
  return {.x = point.x - frame.x, .y = view->isFlipped() ? down : frame.height - down};
}

Point Page::PlacedView::onPage(Point point) const {
  return {.x = frame.x + point.x, .y = frame.y + (view->isFlipped() ? point.y : frame.height - point.y)};
}

bool Page::click(Point point, int count) {
  for (std::size_t i = views_.size(); i-- > 0;) {
    const PlacedView& placed = views_[i];
    const Point location = placed.inView(point);
    if (ZuPrimitiveGraphView* hit = placed.view->hitTest(location)) {
      hit->mouseDown({.location = location, .clickCount = count});
      return true;
    }
  }
  return false;
}

std::string Page::toolTipAt(Point point) const {
  for (std::size_t i = views_.size(); i-- > 0;) {
    std::string text = views_[i].view->toolTipAt(views_[i].inView(point));
    if (!text.empty()) return text;
  }
  return {};
}

std::vector<ReadOut> Page::readOuts() const {
  std::vector<ReadOut> all;
  for (const PlacedView& placed : views_) {
    for (ReadOut& readOut : placed.view->readOuts())
      all.push_back({.at = placed.onPage(readOut.at), .text = std::move(readOut.text)});
  }
  return all;
}

}  // namespace nascor::framework
