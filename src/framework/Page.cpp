#include "framework/Page.h"

namespace nascor::framework {

void Page::addView(ZuPrimitiveGraphView& view, Placement placement) {
  views_.push_back({.view = &view, .placement = std::move(placement), .frame = {}});
}

void Page::layout(double width, double height) {
  for (PlacedView& placed : views_) {
    placed.frame = placed.placement(width, height);
    placed.view->setFrameSize(placed.frame.width, placed.frame.height);
  }
}

void Page::paint(Surface& surface) const {
  constexpr Point kTitlePlace{.x = 50.0, .y = 10.0};
  if (!title_.empty()) surface.pageCanvas().text(title_, kTitlePlace, {});
  for (const PlacedView& placed : views_) {
    placed.view->display(surface.beginView(*placed.view, placed.frame));
    surface.endView();
  }
}

}  // namespace nascor::framework
