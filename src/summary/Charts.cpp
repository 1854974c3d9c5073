// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Charts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "calc/Dating.h"
#include "compare/CellWriter.h"
#include "foundation/NumberText.h"

namespace nascor::summary {

namespace {

constexpr std::array<double, 5> kCentiles{3, 10, 50, 90, 97};
// A pregnancy as charts show it; an age beyond is on record in the table.
constexpr double kFirstWeek = 8.0;
constexpr double kLastWeek = 44.0;
constexpr double kWeekStep = 8.0;
constexpr double kHeadroom = 1.05;

/// The least of 1, 2 and 5 times a power of ten with which at most six marks reach `greatest`.
double stepFor(double greatest) {
  constexpr double kMostMarks = 6.0;
  const double power = std::pow(10.0, std::floor(std::log10(greatest / kMostMarks)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (step * power * kMostMarks >= greatest) return step * power;
  }
  return 10.0 * power;
}

Curve curveOf(const calc::Reference& reference, calc::Quantity quantity, double centile) {
  Curve curve{.centile = centile, .points = {}};
  for (int week = reference.firstWeek; week <= reference.lastWeek; ++week) {
    const auto population = calc::populationAt(reference, quantity, week);
    const auto value = population ? population->valueAtCentile(centile) : std::nullopt;
    if (value) curve.points.push_back({static_cast<double>(week), *value});
  }
  return curve;
}

/// The multiples of `step` from `from` to `to`.
std::vector<Mark> marksOf(double from, double to, double step) {
  std::vector<Mark> marks;
  const auto last = static_cast<std::int64_t>(std::floor(to / step));
  for (auto factor = static_cast<std::int64_t>(std::ceil(from / step)); factor <= last; ++factor) {
    const double at = static_cast<double>(factor) * step;
    marks.push_back({.at = at, .text = foundation::fixedText(at, 0)});
  }
  return marks;
}

bool isOnTheAxes(const Point& point) { return point.x >= kFirstWeek && point.x <= kLastWeek; }

}  // namespace

Chart chartOf(const calc::Reference& reference, calc::Quantity quantity, std::vector<Point> values,
              const foundation::Localizer& localizer) {
  const compare::CellWriter writer(localizer);
  const bool isWeight = quantity == calc::Quantity::efw;
  Chart chart{.title = writer.name(quantity) +
                       (isWeight ? writer.text("Summary", " (g)") : writer.text("Summary", " (mm)")),
              .description = {}};
  for (const Point& value : values) {
    chart.description.append(chart.description.empty() ? "" : ", ")
        .append(calc::gestationText(value.x, localizer))
        .append(" ")
        .append(writer.number(value.y, compare::decimalsOf(quantity)).text);
  }
  for (const double centile : kCentiles) chart.curves.push_back(curveOf(reference, quantity, centile));
  chart.firstWeek = kFirstWeek;
  chart.lastWeek = kLastWeek;
  for (const Curve& curve : chart.curves) {
    for (const Point& point : curve.points) chart.greatest = std::max(chart.greatest, point.y);
  }
  for (const Point& value : values) {
    if (isOnTheAxes(value)) chart.greatest = std::max(chart.greatest, value.y);
  }
  chart.greatest *= kHeadroom;
  chart.weekMarks = marksOf(kFirstWeek, kLastWeek, kWeekStep);
  chart.valueMarks = marksOf(0.0, chart.greatest, stepFor(chart.greatest));
  chart.values = std::move(values);
  std::erase_if(chart.values, [](const Point& value) { return !isOnTheAxes(value); });
  return chart;
}

}  // namespace nascor::summary
