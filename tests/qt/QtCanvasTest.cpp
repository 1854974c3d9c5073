// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/QtCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <functional>
#include <limits>
#include <string>

#include "Pixels.h"

namespace nascor::tests {
namespace {

using framework::MarkSymbol;
using framework::NamedColor;
using framework::Path;
using qt::QtCanvas;

constexpr double kSize = 100.0;
constexpr bool kUpward = false;
constexpr bool kFlipped = true;

/// A view of 100 x 100 units, painted at `scale` pixels to the unit.
QImage painted(const std::function<void(QtCanvas&)>& draw, bool isFlipped = kUpward, double scale = 1.0) {
  const int pixels = static_cast<int>(std::lround(kSize * scale));
  QImage image(pixels, pixels, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(scale, scale);
  qt::TextLayouts texts;
  QtCanvas canvas(painter, QSizeF(kSize, kSize), isFlipped, texts);
  draw(canvas);
  return image;
}

Path square(double from, double to) {
  Path path;
  path.moveTo({from, from});
  path.lineTo({to, from});
  path.lineTo({to, to});
  path.lineTo({from, to});
  return path;
}

Path twoSquaresOneInTheOther() {
  Path path = square(20.0, 80.0);
  path.moveTo({40.0, 40.0});
  path.lineTo({60.0, 40.0});
  path.lineTo({60.0, 60.0});
  path.lineTo({40.0, 60.0});
  return path;
}

TEST(QtCanvas, countsYUpwardFromTheLowerEdge) {
  const auto fill = [](QtCanvas& canvas) {
    canvas.setColor(NamedColor::blue);
    canvas.fillPath(square(10.0, 30.0));
  };
  EXPECT_EQ(inkOf(painted(fill)), QRect(10, 70, 20, 20));
}

TEST(QtCanvas, countsYDownwardInAFlippedView) {
  const auto fill = [](QtCanvas& canvas) { canvas.fillPath(square(10.0, 30.0)); };
  EXPECT_EQ(inkOf(painted(fill, kFlipped)), QRect(10, 10, 20, 20));
}

TEST(QtCanvas, fillsByWinding) {
  const QImage image = painted([](QtCanvas& canvas) {
    canvas.setColor(NamedColor::blue);
    canvas.fillPath(twoSquaresOneInTheOther());
  });
  EXPECT_EQ(colorAt(image, {30.5, 50.5}), colorOf(NamedColor::blue));
  EXPECT_EQ(colorAt(image, {50.5, 50.5}), colorOf(NamedColor::blue));
}

TEST(QtCanvas, closesWhatItFills) {
  Path triangle;
  triangle.moveTo({10.0, 10.0});
  triangle.lineTo({90.0, 10.0});
  triangle.lineTo({10.0, 90.0});
  const QImage image = painted([&](QtCanvas& canvas) { canvas.fillPath(triangle); });
  EXPECT_EQ(colorAt(image, {20.5, 79.5}), QColor(Qt::black));
  EXPECT_EQ(colorAt(image, {80.5, 20.5}), QColor(Qt::white));
}

TEST(QtCanvas, beginsInBlack) {
  const QImage image = painted([](QtCanvas& canvas) { canvas.fillOval({40.0, 40.0, 20.0, 20.0}); });
  EXPECT_EQ(colorAt(image, {50.5, 50.5}), QColor(Qt::black));
  EXPECT_EQ(inkOf(image), QRect(40, 40, 20, 20));
}

TEST(QtCanvas, paintsAColourByItsValue) {
  const framework::Rgba value{.red = 0.2, .green = 0.4, .blue = 0.6, .alpha = 1.0};
  const QImage image = painted([&](QtCanvas& canvas) {
    canvas.setColor(framework::Color(value));
    canvas.fillPath(square(0.0, 100.0));
  });
  EXPECT_EQ(colorAt(image, {50.5, 50.5}), QColor(51, 102, 153));
}

class AtAnyScale : public testing::TestWithParam<double> {};

TEST_P(AtAnyScale, linesAlongTheAxesHaveNoBlurredPixels) {
  const QImage image = painted(
      [](QtCanvas& canvas) {
        canvas.strokeRect({10.3, 10.7, 60.1, 40.9});
        canvas.strokePath(Path::line({5.2, 90.1}, {80.9, 90.1}));
        canvas.strokePath(Path::line({90.6, 5.3}, {90.6, 77.7}));
      },
      kUpward, GetParam());
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, y);
      if (color == QColor(Qt::black)) ++inked;
      ASSERT_TRUE(color == QColor(Qt::black) || color == QColor(Qt::white))
          << x << ", " << y << ": " << color;
    }
  }
  // The five lines' whole length, one unit wide, but at least a pixel.
  const double length = 2.0 * (60.1 + 40.9) + 75.7 + 72.4;
  const double width = std::max(1.0, std::round(GetParam()));
  EXPECT_NEAR(inked, length * GetParam() * width, 12.0 * GetParam() * width);
}

INSTANTIATE_TEST_SUITE_P(scales, AtAnyScale, testing::Values(0.7, 1.0, 1.13, 1.5, 2.0, 2.37));

TEST(QtCanvas, strokesARectangleOneUnitWideAroundItsEdge) {
  const QImage image = painted(
      [](QtCanvas& canvas) {
        canvas.strokeRect({20.0, 20.0, 60.0, 60.0});
      },
      kUpward, 4.0);
  // One unit is four pixels: two to each side of the edge, which lies 80 pixels from the left.
  EXPECT_EQ(inkOf(image), QRect(78, 78, 244, 244));
  EXPECT_EQ(colorAt(image, {81.5, 200.5}), QColor(Qt::black));
  EXPECT_EQ(colorAt(image, {82.5, 200.5}), QColor(Qt::white));
}

TEST(QtCanvas, strokesASlantedLineInItsWidth) {
  Path line = Path::line({10.0, 10.0}, {90.0, 90.0});
  line.setLineWidth(6.0);
  const QImage image = painted([&](QtCanvas& canvas) {
    canvas.setColor(NamedColor::red);
    canvas.strokePath(line);
  });
  EXPECT_EQ(colorAt(image, {50.5, 50.5}), colorOf(NamedColor::red));
  // Three units to the side is a little over four along x.
  EXPECT_EQ(colorAt(image, {51.5, 50.5}), colorOf(NamedColor::red));
  EXPECT_EQ(colorAt(image, {56.5, 50.5}), QColor(Qt::white));
}

struct MarkCase {
  const char* name;
  MarkSymbol symbol;
};
class EachMark : public testing::TestWithParam<MarkCase> {};

TEST_P(EachMark, isAboutEightUnitsAcrossAroundItsCentre) {
  constexpr double kScale = 10.0;
  const QImage image = painted(
      [](QtCanvas& canvas) {
        canvas.mark(GetParam().symbol, {50.0, 30.0});
      },
      kUpward, kScale);
  const QRect ink = inkOf(image);
  EXPECT_GE(ink.width(), 6.5 * kScale);
  EXPECT_LE(ink.width(), 9.0 * kScale);
  EXPECT_NEAR(ink.center().x(), 500.0, 1.0);
  EXPECT_NEAR(ink.center().y(), 700.0, kScale);
}

TEST_P(EachMark, hasTheCurrentColour) {
  const QImage image = painted(
      [](QtCanvas& canvas) {
        canvas.setColor(NamedColor::blue);
        canvas.mark(GetParam().symbol, {50.0, 50.0});
      },
      kUpward, 10.0);
  int blue = 0;
  for (int x = 400; x < 600; ++x) {
    if (image.pixelColor(x, 520) == colorOf(NamedColor::blue)) ++blue;
  }
  EXPECT_GT(blue, 0);
}

INSTANTIATE_TEST_SUITE_P(marks, EachMark,
                         testing::Values(MarkCase{"cross", MarkSymbol::cross},
                                         MarkCase{"circle", MarkSymbol::circle},
                                         MarkCase{"triangle", MarkSymbol::triangle},
                                         MarkCase{"square", MarkSymbol::square},
                                         MarkCase{"x", MarkSymbol::x}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(QtCanvasText, standsOnTheLowerLeftCornerOfItsBox) {
  const QRect ink = inkOf(painted(
      [](QtCanvas& canvas) {
        canvas.text("Hg", {10.0, 40.0}, {});
      },
      kUpward, 10.0));
  // Row 600 is where y is 40. The box is some twelve units high; the g hangs nearly to its lower edge.
  EXPECT_GE(ink.top(), 480);
  EXPECT_LE(ink.top(), 510);
  EXPECT_GE(ink.bottom(), 580);
  EXPECT_LT(ink.bottom(), 600);
  EXPECT_GE(ink.left(), 100);
  EXPECT_LE(ink.left(), 120);
}

TEST(QtCanvasText, hangsFromTheUpperLeftCornerOfItsBoxInAFlippedView) {
  const QRect ink = inkOf(painted(
      [](QtCanvas& canvas) {
        canvas.text("Hg", {10.0, 40.0}, {});
      },
      kFlipped, 10.0));
  EXPECT_GE(ink.top(), 400);
  EXPECT_LE(ink.top(), 430);
  EXPECT_GE(ink.bottom(), 490);
  EXPECT_LT(ink.bottom(), 520);
}

TEST(QtCanvasText, isNotMirrored) {
  // An L has its ink on the left and at the bottom.
  for (const bool isFlipped : {kUpward, kFlipped}) {
    const QImage image = painted(
        [](QtCanvas& canvas) {
          canvas.text("L", {40.0, 40.0}, {});
        },
        isFlipped, 8.0);
    const QRect ink = inkOf(image);
    EXPECT_EQ(colorAt(image, ink.topLeft() + QPoint(2, 2)), QColor(Qt::black));
    EXPECT_EQ(colorAt(image, ink.bottomRight() - QPoint(2, 2)), QColor(Qt::black));
    EXPECT_EQ(colorAt(image, ink.topRight() + QPoint(-2, 2)), QColor(Qt::white));
  }
}

TEST(QtCanvasText, turnsCounterClockwiseAboutItsPoint) {
  const QRect ink = inkOf(painted([](QtCanvas& canvas) {
    canvas.text("HHHH", {50.0, 20.0}, {.degrees = 90.0});
  }));
  // It reads upward from row 80, and its box lies to the left of column 50.
  EXPECT_LT(ink.right(), 50);
  EXPECT_GE(ink.left(), 37);
  EXPECT_LE(ink.bottom(), 79);
  EXPECT_GE(ink.bottom(), 77);
  EXPECT_NEAR(ink.height(), 4 * 7.5, 3.0);
}

TEST(QtCanvasText, goesOnAtTheStopBehindATab) {
  const framework::TextStyle style{.tabStop = 50.0};
  const QImage image = painted([&](QtCanvas& canvas) { canvas.text("I\tH", {10.0, 40.0}, style); });
  EXPECT_EQ(inkOf(image.copy(16, 0, 44, 100)), QRect());
  const QRect behind = inkOf(image.copy(60, 0, 40, 100));
  EXPECT_LE(behind.left(), 2);
  EXPECT_GE(behind.width(), 4);
}

TEST(QtCanvasText, measuresATabByItsStop) {
  painted([](QtCanvas& canvas) {
    EXPECT_DOUBLE_EQ(canvas.textWidth("Note:\tH", {.tabStop = 50.0}), 50.0 + canvas.textWidth("H", {}));
  });
}

TEST(QtCanvasText, hasAColourOfItsOwn) {
  const QImage image = painted(
      [](QtCanvas& canvas) {
        canvas.setColor(NamedColor::red);
        canvas.text("H", {10.0, 40.0}, {});
      },
      kUpward, 8.0);
  const QRect ink = inkOf(image);
  EXPECT_EQ(colorAt(image, ink.topLeft() + QPoint(3, 20)), QColor(Qt::black));
}

TEST(QtCanvasText, isTenPixelsHighAtScaleOneWhateverTheScreensResolution) {
  // The advances of these letters in DejaVu Sans are 7.54 units in all at a size of 1.
  painted([](QtCanvas& canvas) { EXPECT_NEAR(canvas.textWidth("Menstrual Age:", {}), 75.4, 1.0); });
}

TEST(QtCanvasText, isAsWideAtEveryScale) {
  double atOne = 0.0;
  double atThree = 0.0;
  painted([&](QtCanvas& canvas) { atOne = canvas.textWidth("Biparietal Diameter (mm)", {}); });
  painted([&](QtCanvas& canvas) { atThree = canvas.textWidth("Biparietal Diameter (mm)", {}); }, kUpward,
          3.0);
  EXPECT_DOUBLE_EQ(atOne, atThree);
}

TEST(QtCanvas, leavesOutWhatHasNoPlace) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  const QImage image = painted([&](QtCanvas& canvas) {
    for (const double nowhere : {nan, infinity, -infinity}) {
      canvas.mark(MarkSymbol::cross, {nowhere, 50.0});
      canvas.mark(MarkSymbol::circle, {50.0, nowhere});
      canvas.text("H", {nowhere, 50.0}, {});
      canvas.fillOval({50.0, nowhere, 20.0, 20.0});
      canvas.strokeRect({nowhere, 50.0, 20.0, 20.0});
      canvas.strokeRect({50.0, 50.0, 20.0, nowhere});
    }
    canvas.fillPath(Path());
    canvas.strokePath(Path());
  });
  EXPECT_EQ(inkOf(image), QRect());
}

TEST(QtCanvas, leavesOutMarksBeyondItsView) {
  QImage image(300, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.translate(kSize, kSize);
  qt::TextLayouts texts;
  QtCanvas canvas(painter, QSizeF(kSize, kSize), kFlipped, texts);
  for (const double beyond : {-6.0, kSize + 6.0}) {
    canvas.mark(MarkSymbol::cross, {50.0, beyond});
    canvas.mark(MarkSymbol::circle, {beyond, 50.0});
  }
  EXPECT_TRUE(inkOf(image).isEmpty());
  canvas.mark(MarkSymbol::cross, {50.0, kSize + 3.0});
  EXPECT_FALSE(inkOf(image).isEmpty()) << "half of this one is to be seen";
}

TEST(QtCanvas, drawsALineToFarOutUpToTheEdge) {
  const QImage image = painted([](QtCanvas& canvas) {
    canvas.strokePath(Path::line({50.0, 50.0}, {50.0, 3e38}));
    canvas.mark(MarkSymbol::circle, {3e38, 50.0});
  });
  EXPECT_EQ(inkOf(image).top(), 0);
  EXPECT_NEAR(inkOf(image).bottom(), 50, 1);
  EXPECT_EQ(inkOf(image).width(), 1);
}

}  // namespace
}  // namespace nascor::tests
