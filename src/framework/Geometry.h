// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace nascor::framework {

/// Lengths are layout units: one unit is one point on paper and one pixel at scale 1.
struct Point {
  double x = 0.0;
  double y = 0.0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Rect {
  double x = 0.0;
  double y = 0.0;
  double width = 0.0;
  double height = 0.0;
  friend bool operator==(const Rect&, const Rect&) = default;

  /// Whether `point` lies inside or on an edge. A rectangle without extent holds nothing.
  bool contains(Point point) const {
    return width > 0.0 && height > 0.0 && point.x >= x && point.x <= x + width && point.y >= y &&
           point.y <= y + height;
  }
};

/// A path of straight lines: subpaths, each begun by `moveTo`. A point that is not finite is left out; the line goes on
/// from the last one that is.
class Path {
 public:
  using Subpath = std::vector<Point>;

  void moveTo(Point point);
  void lineTo(Point point);
  void removeAllPoints() { subpaths_.clear(); }
  void setLineWidth(double width) { lineWidth_ = width; }

  double lineWidth() const { return lineWidth_; }
  std::span<const Subpath> subpaths() const { return subpaths_; }
  bool isEmpty() const { return subpaths_.empty(); }

  /// Whether the filled path covers `point`: non-zero winding, each subpath closed. A path without area covers nothing.
  bool contains(Point point) const;

  static Path line(Point from, Point to);

 private:
  double lineWidth_ = 1.0;
  std::vector<Subpath> subpaths_;
};

}  // namespace nascor::framework
