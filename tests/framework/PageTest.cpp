// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Page.h"

#include <gtest/gtest.h>

#include <vector>

#include "framework/MakeView.h"
#include "support/RecordingCanvas.h"
#include "support/TestServices.h"

namespace nascor::framework {
namespace {

class APage : public testing::Test {
 protected:
  tests::TestServices platform;
  ViewOwner<ZuPrimitiveGraphView> back = make<ZuPrimitiveGraphView>(platform.services(), {});
  ViewOwner<ZuPrimitiveGraphView> front = make<ZuPrimitiveGraphView>(platform.services(), {});
  Page page{"BPD"};
  tests::RecordingSurface surface;

  void SetUp() override {
    page.addView(*back, [](double width, double height) { return Rect{0, 0, width, height}; });
    page.addView(*front, [](double width, double height) { return Rect{10, 20, width / 2, height / 4}; });
  }
};

TEST_F(APage, laysItsViewsOutInItsSize) {
  page.layout(800, 560);
  EXPECT_EQ(back->bounds(), (Rect{0, 0, 800, 560}));
  EXPECT_EQ(front->bounds(), (Rect{0, 0, 400, 140}));
}

TEST_F(APage, paintsTitleAndViewsFromBackToFront) {
  page.setTitle("AB-123 (G2)");
  page.layout(400, 200);
  page.paint(surface);
  ASSERT_EQ(surface.page.texts().size(), 1U);
  EXPECT_EQ(surface.page.texts().front(), "AB-123 (G2)");
  ASSERT_EQ(surface.views.size(), 2U);
  EXPECT_EQ(surface.views[0].view, back.get());
  EXPECT_EQ(surface.views[1].view, front.get());
  EXPECT_EQ(surface.views[1].frame, (Rect{10, 20, 200, 50}));
  EXPECT_FALSE(surface.views[0].canvas.entries().empty());
  EXPECT_EQ(surface.viewsEnded, 2U);
}

TEST_F(APage, leavesOutTheMiddleOfATitleThatIsTooLongForIt) {
  const auto paintedTitle = [&](const std::string& title, double width) {
    page.setTitle(title);
    page.layout(width, 200);
    surface = {};
    page.paint(surface);
    return surface.page.texts().front();
  };
  // 60 units of the width are left and right of it, and a character is 6 wide: 20 characters fit into 180, 19 into 179.
  EXPECT_EQ(paintedTitle("ABCDEFGHIJKLMNO (G2)", 180), "ABCDEFGHIJKLMNO (G2)");
  EXPECT_EQ(paintedTitle("ABCDEFGHIJKLMNO (G2)", 179), "ABCDEFGHIJKLM\u2026 (G2)");
  EXPECT_EQ(paintedTitle("ABCDEFGHIJKLMNOPQRSTU (G2) 1 of 2", 180), "ABCDEFG\u2026 (G2) 1 of 2");
  EXPECT_EQ(paintedTitle("ABCDEFGHIJKLMNOPQRSTUVWXYZ", 180), "ABCDEFGHIJKLMNOPQRS\u2026");
  EXPECT_EQ(paintedTitle("\u00C4\u00D6\u00DCDEFGHIJKLMNO (G2)", 110), "\u00C4\u00D6\u2026 (G2)");
  EXPECT_EQ(paintedTitle("ABCDEFGHIJKLMNO (G2)", 0), "\u2026 (G2)")
      << "nothing fits, and nothing is lost of the end";
}

TEST_F(APage, withoutATitlePaintsNone) {
  page.layout(400, 200);
  page.paint(surface);
  EXPECT_TRUE(surface.page.entries().empty());
}

/// Tells what it hears, and takes only what it is told to.
class ListeningView : public ZuPrimitiveGraphView {
 public:
  using ZuPrimitiveGraphView::ZuPrimitiveGraphView;
  bool takes = true;
  bool flipped = false;
  std::vector<MouseEvent> heard;

  bool isFlipped() const override { return flipped; }
  ZuPrimitiveGraphView* hitTest(Point point) override {
    return takes ? ZuPrimitiveGraphView::hitTest(point) : nullptr;
  }
  void mouseDown(const MouseEvent& event) override { heard.push_back(event); }
  std::string toolTipAt(Point point) const override { return point.x < 5 ? "left" : ""; }
};

class AClickOnAPage : public testing::Test {
 protected:
  tests::TestServices platform;
  ViewOwner<ListeningView> back = make<ListeningView>(platform.services(), {});
  ViewOwner<ListeningView> front = make<ListeningView>(platform.services(), {});
  Page page{"BPD"};

  void SetUp() override {
    page.addView(*back, [](double width, double height) { return Rect{0, 0, width, height}; });
    page.addView(*front, [](double, double) { return Rect{100, 50, 200, 80}; });
    page.layout(800, 560);
  }
};

TEST_F(AClickOnAPage, goesToTheFrontmostViewInItsOwnCoordinates) {
  EXPECT_TRUE(page.click({110, 70}, 2));
  ASSERT_EQ(front->heard.size(), 1U);
  EXPECT_EQ(front->heard[0].location, (Point{10, 60})) << "y upward from the lower edge";
  EXPECT_EQ(front->heard[0].clickCount, 2);
  EXPECT_TRUE(back->heard.empty());
}

TEST_F(AClickOnAPage, isNotTurnedOverForAViewThatIsFlipped) {
  front->flipped = true;
  page.click({110, 70}, 1);
  EXPECT_EQ(front->heard.at(0).location, (Point{10, 20}));
}

TEST_F(AClickOnAPage, goesToWhatLiesBehindWhereTheFrontDoesNotTakeIt) {
  front->takes = false;
  EXPECT_TRUE(page.click({110, 70}, 1));
  EXPECT_TRUE(front->heard.empty());
  EXPECT_EQ(back->heard.at(0).location, (Point{110, 490}));
}

TEST_F(AClickOnAPage, isNobodysBesideEveryView) {
  back->takes = false;
  EXPECT_FALSE(page.click({99, 70}, 1));
  EXPECT_TRUE(front->heard.empty());
  EXPECT_TRUE(page.click({100, 130}, 1)) << "the edges belong to the view";
  EXPECT_TRUE(page.click({300, 50}, 1));
  EXPECT_FALSE(page.click({300.1, 50}, 1));
}

TEST_F(AClickOnAPage, hasItsToolTipFromTheFrontmostViewThatHasOne) {
  EXPECT_EQ(page.toolTipAt({102, 70}), "left");
  EXPECT_EQ(page.toolTipAt({110, 70}), "");
}

TEST_F(APage, paintsItsCaptionsAfterItsTitle) {
  page.setTitle("AB-123 (G2)");
  page.addCaption("Head Circ (mm)", NamedColor::red, [](double width, double) {
    return Rect{width / 2, 34, 100, 14};
  });
  page.layout(800, 560);
  page.paint(surface);
  ASSERT_EQ(surface.page.texts(), (std::vector<std::string>{"AB-123 (G2)", "Head Circ (mm)"}));
  EXPECT_EQ(surface.page.entries().back().point, (Point{400, 34}));
  EXPECT_EQ(surface.page.entries().back().color.name(), NamedColor::red);
}

}  // namespace
}  // namespace nascor::framework
