#include "framework/Page.h"

#include <gtest/gtest.h>

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

TEST_F(APage, withoutATitlePaintsNone) {
  page.layout(400, 200);
  page.paint(surface);
  EXPECT_TRUE(surface.page.entries().empty());
}

}  // namespace
}  // namespace nascor::framework
