// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

#include "framework/Color.h"

namespace nascor::framework {
namespace {

Path polygon(std::initializer_list<Point> points) {
  Path path;
  bool isFirst = true;
  for (const Point& point : points) {
    isFirst ? path.moveTo(point) : path.lineTo(point);
    isFirst = false;
  }
  return path;
}

TEST(APath, coversWhatLiesInsideItsClosedOutline) {
  const Path triangle = polygon({{0, 0}, {10, 0}, {0, 10}});
  EXPECT_TRUE(triangle.contains({1, 1}));
  EXPECT_TRUE(triangle.contains({4, 5}));
  EXPECT_FALSE(triangle.contains({6, 5}));
  EXPECT_FALSE(triangle.contains({-1, 1}));
  EXPECT_FALSE(triangle.contains({1, -1}));
}

TEST(APath, coversAlikeWhicheverWayItRuns) {
  const Path other = polygon({{0, 10}, {10, 0}, {0, 0}});
  EXPECT_TRUE(other.contains({1, 1}));
  EXPECT_FALSE(other.contains({6, 5}));
}

TEST(APath, coversADoublyWoundAreaThatEvenOddWouldLeaveOut) {
  Path twice = polygon({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
  twice.moveTo({2, 2});
  for (const Point point : {Point{8, 2}, Point{8, 8}, Point{2, 8}}) twice.lineTo(point);
  EXPECT_TRUE(twice.contains({5, 5}));
}

TEST(APath, leavesOutAnAreaWoundBothWays) {
  Path hole = polygon({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
  hole.moveTo({2, 2});
  for (const Point point : {Point{2, 8}, Point{8, 8}, Point{8, 2}}) hole.lineTo(point);
  EXPECT_FALSE(hole.contains({5, 5}));
  EXPECT_TRUE(hole.contains({1, 5}));
}

TEST(APath, withoutAreaCoversNothingNotEvenItsOwnPoints) {
  const Path flat = polygon({{0, 5}, {10, 5}, {0, 5}});
  EXPECT_FALSE(flat.contains({5, 5}));
  EXPECT_FALSE(Path().contains({0, 0}));
}

TEST(APath, leavesOutPointsThatAreNotFinite) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  Path path;
  path.moveTo({nan, 0});
  EXPECT_TRUE(path.isEmpty());
  path.lineTo({1, 1});
  path.lineTo({infinity, 2});
  path.lineTo({3, -infinity});
  path.lineTo({4, 4});
  ASSERT_EQ(path.subpaths().size(), 1U);
  EXPECT_EQ(path.subpaths()[0], (Path::Subpath{{1, 1}, {4, 4}}));
}

TEST(APath, isEmptyAgainWhenItsPointsAreRemovedAndKeepsItsWidth) {
  Path path = Path::line({0, 0}, {1, 1});
  path.setLineWidth(3.0);
  path.removeAllPoints();
  EXPECT_TRUE(path.isEmpty());
  EXPECT_EQ(path.lineWidth(), 3.0);
}

/// How strongly a colour stands out from white paper.
double strength(NamedColor color) {
  const Rgba value = valueOf(color);
  return value.alpha * (1.0 - (0.2126 * value.red + 0.7152 * value.green + 0.0722 * value.blue));
}

TEST(TheNamedColours, keepTheirOrderOfStrengthWithinEachHue) {
  using enum NamedColor;
  EXPECT_GT(strength(red), strength(moderateRed));
  EXPECT_GT(strength(moderateRed), strength(quiteFaintRed));
  EXPECT_GT(strength(orange), strength(moderateOrange));
  EXPECT_GT(strength(moderateOrange), strength(faintOrange));
  EXPECT_GT(strength(blue), strength(moderateBlue));
  EXPECT_GT(strength(moderateBlue), strength(quiteFaintBlue));
  EXPECT_GT(strength(heavyGreen), strength(faintGreen));
  EXPECT_GT(strength(black), strength(heavyGray));
  EXPECT_GT(strength(heavyGray), strength(gray));
  EXPECT_GT(strength(gray), strength(faintGray));
}

TEST(TheNamedColours, areKnownByTheirNames) {
  EXPECT_EQ(nameOf(NamedColor::black), "Black");
  EXPECT_EQ(nameOf(NamedColor::quiteFaintBlue), "QuiteFaintBlue");
  EXPECT_EQ(nameOf(NamedColor::heavyGreen), "HeavyGreen");
  EXPECT_EQ(nameOf(NamedColor::darkGray), "DarkGray");
}

}  // namespace
}  // namespace nascor::framework
