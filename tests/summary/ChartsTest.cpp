// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Charts.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace nascor::summary {
namespace {

using testing::SizeIs;

const foundation::EnglishLocalizer kEnglish;

Chart bpdChart(std::vector<Point> values) {
  return chartOf(*calc::referenceNamed("westerway"), calc::Quantity::bpd, std::move(values), kEnglish);
}

TEST(AChart, hasTheCentilesOfItsReferenceWithinItsWeeks) {
  const Chart chart = bpdChart({{20.0, 50.0}});
  EXPECT_EQ(chart.title, "BPD (mm)");
  ASSERT_THAT(chart.curves, SizeIs(5));
  for (const Curve& curve : chart.curves) {
    ASSERT_THAT(curve.points, SizeIs(31));
    EXPECT_EQ(curve.points.front().x, 11.0);
    EXPECT_EQ(curve.points.back().x, 41.0);
    const auto population = calc::populationAt(*calc::referenceNamed("westerway"), calc::Quantity::bpd, 20.0);
    EXPECT_EQ(curve.points[9].y, population->valueAtCentile(curve.centile));
  }
  EXPECT_EQ(chart.curves[2].centile, kMedian);
}

TEST(AChart, putsItsValuesWhereTheyBelong) {
  const Chart chart = bpdChart({{20.0, 50.0}});
  const Plot plot{.x = 10.0, .y = 20.0, .width = 100.0, .height = 50.0};
  EXPECT_EQ(placeOf(chart, plot, {chart.firstWeek, 0.0}).x, 10.0);
  EXPECT_EQ(placeOf(chart, plot, {chart.firstWeek, 0.0}).y, 70.0);
  EXPECT_EQ(placeOf(chart, plot, {chart.lastWeek, chart.greatest}).x, 110.0);
  EXPECT_EQ(placeOf(chart, plot, {chart.lastWeek, chart.greatest}).y, 20.0);
}

TEST(AChart, makesRoomForAnImprobableValueAndLeavesOutAnImprobableAge) {
  const Chart chart = bpdChart({{20.0, 400.0}, {500.0, 90.0}});
  EXPECT_GT(chart.greatest, 400.0);
  EXPECT_THAT(chart.values, SizeIs(1));
  EXPECT_EQ(chart.description, "20w 0d 400.0, 500w 0d 90.0");
}

TEST(AChart, hasAFewRoundMarks) {
  const Chart chart = bpdChart({{20.0, 50.0}});
  ASSERT_GE(chart.valueMarks.size(), 3U);
  EXPECT_LE(chart.valueMarks.size(), 7U);
  EXPECT_EQ(chart.valueMarks[0].text, "0");
  EXPECT_LE(chart.valueMarks.back().at, chart.greatest);
  std::vector<std::string> weeks;
  for (const Mark& mark : chart.weekMarks) weeks.push_back(mark.text);
  EXPECT_THAT(weeks, testing::ElementsAre("8", "16", "24", "32", "40"));
}

}  // namespace
}  // namespace nascor::summary
