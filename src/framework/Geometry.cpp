// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Geometry.h"

#include <cmath>

namespace nascor::framework {
namespace {

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

/// Twice the area of the triangle from, to, point: positive when `point` lies to the left of the line.
double side(Point from, Point to, Point point) {
  return (to.x - from.x) * (point.y - from.y) - (point.x - from.x) * (to.y - from.y);
}

}  // namespace

void Path::moveTo(Point point) {
  if (isFinite(point)) subpaths_.push_back({point});
}

void Path::lineTo(Point point) {
  if (!isFinite(point)) return;
  if (subpaths_.empty()) subpaths_.emplace_back();
  subpaths_.back().push_back(point);
}

bool Path::contains(Point point) const {
  int winding = 0;
  for (const Subpath& subpath : subpaths_) {
    for (std::size_t i = 0; i < subpath.size(); ++i) {
      const Point from = subpath[i];
      const Point to = subpath[(i + 1) % subpath.size()];
      if (from.y <= point.y && to.y > point.y && side(from, to, point) > 0.0) ++winding;
      if (from.y > point.y && to.y <= point.y && side(from, to, point) < 0.0) --winding;
    }
  }
  return winding != 0;
}

Path Path::line(Point from, Point to) {
  Path path;
  path.moveTo(from);
  path.lineTo(to);
  return path;
}

}  // namespace nascor::framework
