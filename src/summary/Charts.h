// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "calc/References.h"
#include "foundation/Localizer.h"

namespace nascor::summary {

// Small charts: the values of a fetus over lines of centiles.

struct Point {
  double x;  ///< weeks
  double y;  ///< mm, or g
};

inline constexpr double kMedian = 50.0;  ///< its centile

/// The values of one centile by age.
struct Curve {
  double centile;  ///< percent
  std::vector<Point> points;
};

/// A place of an axis, and what stands there.
struct Mark {
  double at;
  std::string text;
};

/// One quantity. What lies outside its weeks or above its greatest value is not drawn.
struct Chart {
  std::string title;        ///< with the unit
  std::string description;  ///< its values in words, for those who do not see it
  double firstWeek = 0.0;
  double lastWeek = 0.0;
  double greatest = 0.0;  ///< of the other axis, which begins at 0
  std::vector<Mark> weekMarks{};
  std::vector<Mark> valueMarks{};
  std::vector<Curve> curves{};
  std::vector<Point> values{};
};

/// The chart of those values, of which there is at least one, each at a known age.
Chart chartOf(const calc::Reference& reference, calc::Quantity quantity, std::vector<Point> values,
              const foundation::Localizer& localizer);

/// A rectangle for a chart's lines, y growing downwards.
struct Plot {
  double x;
  double y;
  double width;
  double height;
};

/// Where a point of the chart lies in its plot.
inline Point placeOf(const Chart& chart, const Plot& plot, const Point& point) {
  return {plot.x + (point.x - chart.firstWeek) / (chart.lastWeek - chart.firstWeek) * plot.width,
          plot.y + plot.height - point.y / chart.greatest * plot.height};
}

}  // namespace nascor::summary
