#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "charts/MeasurementCharts.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using framework::Rect;

class AnAxisStrip : public ChartTest {};

TEST_F(AnAxisStrip, showsTheWeeksItsTitleAndTheStandard) {
  document.setFetuses(1);
  make<NoYaxisGraphView>({0, 0, 740, 50})->display(canvas);
  EXPECT_THAT(canvas.texts(),
              testing::ElementsAre("8", "12", "16", "20", "24", "28", "32", "36", "40",
                                   "Menstrual Age (Weeks)", "Nascor Standard: Westerway (ASUM 2001)"));
}

TEST_F(AnAxisStrip, plotsInTenUnitsAtItsTop) {
  EXPECT_EQ(make<NoYaxisGraphView>({0, 0, 740, 50})->graphRect(), (Rect{0, 40, 740, 10}));
  EXPECT_EQ(make<NoYaxisGraphView>({0, 0, 740, 6})->graphRect(), (Rect{0, 0, 740, 6}));
}

TEST_F(AnAxisStrip, putsEachWeekUnderThatOfItsChart) {
  const Rect chartFrame{10, 30, 780, 470};
  const auto chart = make<BPDGraphView>({0, 0, chartFrame.width, chartFrame.height});
  const auto strip = make<NoYaxisGraphView>({0, 0, chartFrame.width - 60, 50});
  for (const double week : {8.0, 20.0, 33.3, 42.0}) {
    EXPECT_DOUBLE_EQ(chartFrame.x + 50 + strip->pointForXY(week, 0).x,
                     chartFrame.x + chart->pointForXY(week, 0).x);
  }
}

TEST_F(AnAxisStrip, hasNeitherRowsNorFrame) {
  document.setFetuses(1);
  document.addExamination(20, {{.bpd = 47}});
  const auto strip = make<NoYaxisGraphView>({0, 0, 740, 50});
  strip->display(canvas);
  EXPECT_TRUE(strip->standardData().empty());
  EXPECT_TRUE(canvas.of(Kind::strokeRect).empty());
  EXPECT_TRUE(canvas.of(Kind::mark).empty());
}

}  // namespace
}  // namespace nascor::charts
