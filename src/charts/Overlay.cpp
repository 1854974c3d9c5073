// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/Overlay.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "foundation/ConvertInteger.h"

namespace nascor::charts {

using framework::Path;
using framework::Point;

std::vector<CentileLine> centileLines(const calc::Reference& reference, calc::Quantity quantity) {
  if (!calc::covers(reference, quantity)) return {};
  constexpr int kPointsOfAWeek = 4;  // the tables are straight between whole weeks
  std::vector<CentileLine> lines;
  lines.reserve(kOverlayCentiles.size());
  for (const double percent : kOverlayCentiles) lines.push_back({.percent = percent});
  for (int i = reference.firstWeek * kPointsOfAWeek; i <= reference.lastWeek * kPointsOfAWeek; ++i) {
    const double week = static_cast<double>(i) / kPointsOfAWeek;
    const auto population = calc::populationAt(reference, quantity, week);
    for (CentileLine& line : lines) {
      const auto value = population ? population->valueAtCentile(line.percent) : std::nullopt;
      if (value) line.points.push_back({.x = week, .y = *value});
    }
  }
  return lines;
}

std::array<double, 2> dashesOf(double percent) {
  constexpr double kMiddle = 50.0;
  constexpr double kToTenth = 40.0;
  const double distance = std::abs(percent - kMiddle);
  if (distance == 0.0) return {10.0, 4.0};
  if (distance <= kToTenth) return {5.0, 4.0};
  return {1.5, 3.5};
}

Path dashed(std::span<const Point> line, std::array<double, 2> dashes) {
  Path path;
  if (line.empty()) return path;
  path.moveTo(line.front());
  bool isDash = true;
  double left = dashes[0];  // of the dash or the gap that is going on
  for (std::size_t i = 1; i < line.size(); ++i) {
    const Point from = line[i - 1];
    const Point to = line[i];
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    double done = 0.0;
    while (length - done > left) {
      done += left;
      const double share = done / length;
      const Point at{.x = from.x + share * (to.x - from.x), .y = from.y + share * (to.y - from.y)};
      isDash ? path.lineTo(at) : path.moveTo(at);
      isDash = !isDash;
      left = dashes.at(isDash ? 0 : 1);
    }
    left -= length - done;
    if (isDash) path.lineTo(to);
  }
  return path;
}

std::vector<double> movedApart(std::vector<double> heights, double gap) {
  if (heights.empty()) return heights;
  double moved = 0.0;
  for (std::size_t i = 1; i < heights.size(); ++i) {
    const double least = heights[i - 1] + gap;
    moved += std::max(0.0, least - heights[i]);
    heights[i] = std::max(heights[i], least);
  }
  const double back = moved / static_cast<double>(heights.size());
  for (double& height : heights) height -= back;
  return heights;
}

void drawCentileLines(framework::Canvas& canvas, std::span<const CentileLine> lines) {
  constexpr double kWidth = 1.0;
  constexpr double kGap = 9.0;  // of two numbers; digits are lower than a line of text
  constexpr double kToText = 3.0;
  std::vector<double> heights;
  for (const CentileLine& line : lines) {
    if (line.points.empty()) return;
    Path path = dashed(line.points, dashesOf(line.percent));
    path.setLineWidth(kWidth);
    canvas.strokePath(path);
    heights.push_back(line.points.back().y);
  }
  heights = movedApart(std::move(heights), kGap);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    canvas.text(std::to_string(foundation::truncatedToInteger(lines[i].percent)),
                {.x = lines[i].points.back().x + kToText, .y = heights[i] - framework::kTextHeight / 2.0},
                {});
  }
}

}  // namespace nascor::charts
