// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "framework/CorvelGraphView.h"
#include "framework/MakeView.h"
#include "framework/Page.h"
#include "framework/ZuPrimitiveGraphView.h"
#include "support/Calls.h"
#include "support/RecordingCanvas.h"
#include "support/TestServices.h"

namespace nascor::framework {
namespace {

using tests::RecordingCanvas;
using Kind = RecordingCanvas::Entry::Kind;

class AGraphView : public testing::Test {
 protected:
  tests::TestServices platform;
  RecordingCanvas canvas;
};

/// A view that moves its plotting area inside the one it is offered.
class ShiftedView : public ZuPrimitiveGraphView {
 public:
  using ZuPrimitiveGraphView::ZuPrimitiveGraphView;
  void setGraphRect(const Rect& rect) override {
    ZuPrimitiveGraphView::setGraphRect({rect.x + 40, rect.y + 20, rect.width - 50, rect.height - 30});
  }
  using ZuPrimitiveGraphView::plotMark;
  int graphsDrawn = 0;

 protected:
  void drawGraph() override {
    ++graphsDrawn;
    for (int code = 0; code <= 6; ++code) plotMark(code, code, 0.5);
  }
};

TEST_F(AGraphView, startsWithTheUnitRange) {
  const auto view = make<ZuPrimitiveGraphView>(platform.services(), {0, 0, 100, 50});
  EXPECT_EQ(view->minX(), 0.0);
  EXPECT_EQ(view->maxX(), 1.0);
  EXPECT_EQ(view->minY(), 0.0);
  EXPECT_EQ(view->maxY(), 1.0);
  EXPECT_EQ(view->graphRect(), (Rect{0, 0, 100, 50}));
  EXPECT_FALSE(view->isFlipped());
}

TEST_F(AGraphView, mapsTheRangeOntoThePlottingArea) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 250, 130});  // area 40, 20, 200, 100
  view->setMinX(8);
  view->setMaxX(42);
  view->setMaxY(120);
  EXPECT_EQ(view->pointForXY(8, 0), (Point{40, 20}));
  EXPECT_EQ(view->pointForXY(42, 120), (Point{240, 120}));
  EXPECT_EQ(view->pointForXY(25, 60), (Point{140, 70}));
  EXPECT_EQ(view->pointForXY(59, -120), (Point{340, -80}));  // outside the range, outside the area
  EXPECT_EQ(view->xForPoint({40, 0}), 8.0);
  EXPECT_EQ(view->xForPoint({140, 99}), 25.0);
}

TEST_F(AGraphView, mapsARangeOrAnAreaWithoutExtentToItsLowerLeft) {
  const auto view = make<ZuPrimitiveGraphView>(platform.services(), {0, 0, 100, 0});
  view->setMinX(5);
  view->setMaxX(5);
  EXPECT_EQ(view->pointForXY(7, 0.5), (Point{0, 0}));
  view->setFrameSize(0, 100);
  EXPECT_EQ(view->xForPoint({3, 0}), 5.0);
}

TEST_F(AGraphView, asksItsSubclassForThePlottingAreaAtEveryLayout) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 100, 100});
  EXPECT_EQ(view->graphRect(), (Rect{40, 20, 50, 70}));
  view->setFrameSize(200, 200);
  EXPECT_EQ(view->graphRect(), (Rect{40, 20, 150, 170}));
}

TEST_F(AGraphView, drawsNothingWithoutRoomForAPlottingArea) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 50, 100});
  view->display(canvas);
  EXPECT_TRUE(canvas.entries().empty());
  EXPECT_EQ(view->graphsDrawn, 0);
}

TEST_F(AGraphView, drawsTheSymbolOfEachMarkCodeAndNoneForOthers) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 250, 130});
  view->setMaxX(10);
  view->display(canvas);
  const auto marks = canvas.of(Kind::mark);
  ASSERT_EQ(marks.size(), 5U);
  const MarkSymbol expected[] = {MarkSymbol::cross, MarkSymbol::x, MarkSymbol::triangle, MarkSymbol::circle,
                                 MarkSymbol::square};
  for (std::size_t i = 0; i < marks.size(); ++i) {
    EXPECT_EQ(marks[i].symbol, expected[i]) << i;
    EXPECT_EQ(marks[i].point, view->pointForXY(static_cast<double>(i + 1), 0.5)) << i;
  }
}

TEST_F(AGraphView, labelsItsAxesAtTheMajorIntervals) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 250, 130});
  view->setMinX(8);
  view->setMaxX(20);
  view->setMajorXInterval(4);
  view->setMinorXInterval(1);
  view->setMaxY(40);
  view->setMajorYInterval(20);
  view->setXTitle("weeks");
  view->setYTitle("mm");
  view->setReferenceTitle("by somebody");
  view->display(canvas);
  EXPECT_THAT(canvas.texts(),
              testing::ElementsAre("8", "12", "16", "20", "weeks", "0", "20", "40", "mm", "by somebody"));
  EXPECT_EQ(canvas.text("mm")->style.degrees, 90.0);
  // One horizontal axis, thirteen minor and four major ticks; one vertical axis and three ticks.
  EXPECT_EQ(canvas.of(Kind::strokePath).size(), 1U + 13U + 4U + 1U + 3U);
  const RecordingCanvas::Entry& label = *canvas.text("12");
  const double tick = view->pointForXY(12, 0).x;
  EXPECT_EQ(label.point.x + RecordingCanvas::kCharacterWidth, tick);  // two characters, centred
}

TEST_F(AGraphView, keepsTheEndLabelsOfAnAxisInsideTheView) {
  const auto view = make<ZuPrimitiveGraphView>(platform.services(), {0, 0, 100, 50});
  view->setMinX(8);
  view->setMaxX(12);
  view->setMajorXInterval(4);
  view->display(canvas);
  EXPECT_EQ(canvas.text("8")->point.x, 0.0);
  EXPECT_EQ(canvas.text("12")->point.x, 100.0 - 2 * RecordingCanvas::kCharacterWidth);
}

TEST_F(AGraphView, drawsNoTicksForAnIntervalThatIsNoneOrFarTooSmall) {
  const auto view = make<ZuPrimitiveGraphView>(platform.services(), {0, 0, 100, 50});
  view->setMajorXInterval(0.0);
  view->setMinorXInterval(-1.0);
  view->setMajorYInterval(1e-12);
  view->display(canvas);
  EXPECT_EQ(canvas.of(Kind::strokePath).size(), 2U);  // the two axes
}

TEST_F(AGraphView, asksTheOwnersOfItsPageToDrawItAnew) {
  const auto view = make<ZuPrimitiveGraphView>(platform.services(), {0, 0, 100, 50});
  Page page("a");
  page.addView(*view, [](double width, double height) { return Rect{0, 0, width, height}; });
  const tests::Calls asked(page.onNeedsDisplay);
  view->setNeedsDisplay();
  EXPECT_EQ(asked.count(), 1);
}

struct ClickedDocument final : GraphDocument {
  std::vector<double> weeks;
  std::int64_t currentExam() const override { return 0; }
  bool shouldShowGraphHilite() const override { return true; }
  void setCurrentRecordFromClick(double clicked) override { weeks.push_back(clicked); }
};

class ADocumentsView : public CorvelGraphView {
 public:
  ADocumentsView(const foundation::Services& services) : CorvelGraphView(services) {}
  using CorvelGraphView::setOwningGraphDocument;
  void setGraphRect(const Rect& rect) override {
    CorvelGraphView::setGraphRect({rect.x + 40, rect.y + 20, rect.width - 50, rect.height - 30});
  }
};

TEST_F(AGraphView, tellsItsDocumentTheWeekOfASingleClickInThePlottingArea) {
  ClickedDocument document;
  const auto view = make<ADocumentsView>(platform.services(), {0, 0, 250, 130});  // area 40, 20, 200, 100
  view->setMinX(8);
  view->setMaxX(42);
  view->mouseDown({.location = {140, 70}, .clickCount = 1});
  EXPECT_TRUE(document.weeks.empty()) << "it has no document yet";
  view->setOwningGraphDocument(&document);
  for (const Point point : {Point{140, 70}, Point{40, 20}, Point{240, 120},  // inside, and two corners
                            Point{39.9, 70}, Point{240.1, 70}, Point{140, 19.9}, Point{140, 120.1}}) {
    view->mouseDown({.location = point, .clickCount = 1});
  }
  EXPECT_EQ(document.weeks, (std::vector<double>{25, 8, 42}));
  view->mouseDown({.location = {140, 70}, .clickCount = 2});
  view->mouseDown({.location = {140, 70}, .clickCount = 3});
  EXPECT_EQ(document.weeks.size(), 3U);
}

TEST_F(AGraphView, withoutRoomForAPlottingAreaTakesNoClick) {
  ClickedDocument document;
  const auto view = make<ADocumentsView>(platform.services(), {0, 0, 50, 30});  // area 40, 20, 0, 0
  view->setOwningGraphDocument(&document);
  view->mouseDown({.location = {40, 20}, .clickCount = 1});
  EXPECT_TRUE(document.weeks.empty());
}

TEST_F(AGraphView, writesItsReferenceTitleBelowTheOtherWhereTheyWouldMeet) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 250, 130});  // 200 wide: 33 characters
  view->setXTitle("0123456789");
  view->setReferenceTitle("0123456789");
  view->display(canvas);
  const double line = canvas.text("0123456789")->point.y;
  EXPECT_EQ(canvas.of(Kind::text).back().point.y, line);
  canvas.clear();
  view->setReferenceTitle("01234567890123456789012");
  view->display(canvas);
  EXPECT_LE(canvas.text("01234567890123456789012")->point.y, line - kTextHeight);
}

TEST_F(AGraphView, leavesOutWhatOfItsReferenceTitleIsWiderThanItsPlottingArea) {
  const auto view = make<ShiftedView>(platform.services(), {0, 0, 250, 130});  // 200 wide: 33 characters
  const auto title = [&](const std::string& text) {
    canvas.clear();
    view->setReferenceTitle(text);
    view->display(canvas);
    return canvas.of(Kind::text).back();
  };
  EXPECT_EQ(title("012345678901234567890123456789012").text, "012345678901234567890123456789012");
  EXPECT_EQ(title("0123456789012345678901234567890123").text, "01234567890123456789012345678901\u2026");
  EXPECT_EQ(title("0123456789012345678901234 / 9012345678").text, "0123456789012345678\u2026 / 9012345678");
  EXPECT_EQ(title("0123456789 / 678901234567890123456789").text, "0123456789 / 6789012345678901234\u2026");
}

}  // namespace
}  // namespace nascor::framework
