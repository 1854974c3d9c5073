// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "charts/EFWGraphView.h"
#include "charts/SummaryCharts.h"
#include "foundation/UserDefaults.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using framework::MouseEvent;
using framework::Point;

/// A chart of BPD whose band at 20 weeks reaches from 42.67 to 53.65 mm (48.22 -+ 2 x 2.71 rounded inward).
class AClickOnAChart : public ChartTest {
 protected:
  void SetUp() override {
    document.setFetuses(1);
    document.growthStandard = 3;
    platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  }
};

TEST_F(AClickOnAChart, isItsOwnInsideTheBandAndNotBesideIt) {
  const auto chart = make<BPDGraphView>();
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 48.22)), nullptr) << "no band was drawn yet";
  chart->display(canvas);
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 48.22)), chart.get());
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 53.6)), chart.get());
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 53.7)), nullptr);
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 42.85)), chart.get());
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 42.75)), nullptr);
  EXPECT_EQ(chart->hitTest(chart->pointForXY(15.9, 34)), nullptr) << "left of the first week";
  EXPECT_EQ(chart->hitTest({-1, 48}), nullptr) << "outside the view";
}

TEST_F(AClickOnAChart, isMeasuredByTheBandAsItWasDrawn) {
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const Point place = chart->pointForXY(20, 48.22);
  chart->setFrameSize(400, 500);
  const Point now = chart->pointForXY(20, 48.22);
  EXPECT_EQ(chart->hitTest(place), chart.get());
  EXPECT_EQ(chart->hitTest(now), nullptr);
  chart->display(canvas);
  EXPECT_EQ(chart->hitTest(place), nullptr);
  EXPECT_EQ(chart->hitTest(now), chart.get());
}

TEST_F(AClickOnAChart, alwaysFallsThroughWhereThereIsNoBand) {
  document.growthStandard = 9;
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  EXPECT_EQ(chart->hitTest(chart->pointForXY(20, 48.22)), nullptr);
}

TEST_F(AClickOnAChart, chosesAnExaminationOnceAndLeadsToTheTrendsTwice) {
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const Point inside = chart->pointForXY(20, 48.22);
  chart->mouseDown({.location = inside, .clickCount = 1});
  ASSERT_EQ(document.clicks.size(), 1U);
  EXPECT_DOUBLE_EQ(document.clicks[0], 20);
  EXPECT_TRUE(document.graphsShown.empty());
  chart->mouseDown({.location = inside, .clickCount = 2});
  EXPECT_EQ(document.clicks.size(), 1U);
  EXPECT_EQ(document.graphsShown, std::vector<std::int64_t>{0});
  chart->mouseDown({.location = inside, .clickCount = 3});
  chart->mouseDown({.location = inside, .clickCount = 4});
  chart->mouseDown({.location = inside, .clickCount = 0});
  chart->mouseDown({.location = chart->pointForXY(20, 90), .clickCount = 2});
  EXPECT_EQ(document.clicks.size(), 1U);
  EXPECT_EQ(document.graphsShown.size(), 1U);
}

TEST_F(AClickOnAChart, withoutADocumentDoesNothing) {
  const auto chart = framework::make<BPDGraphView>(platform.services(), {0, 0, 800, 500});
  chart->display(canvas);
  chart->mouseDown({.location = chart->pointForXY(20, 47.4), .clickCount = 1});
  chart->mouseDown({.location = chart->pointForXY(20, 47.4), .clickCount = 2});
  const auto summary = framework::make<BPDSummaryGraphView>(platform.services(), {0, 0, 800, 500});
  summary->display(canvas);
  summary->mouseDown({.location = summary->pointForXY(20, 47.4), .clickCount = 2});
  EXPECT_EQ(chart->toolTipAt(chart->pointForXY(20, 47.4)), "");
}

template <class Summary>
void expectDoubleClickLeadsTo(std::int64_t page, double mean, const foundation::Services& services,
                              FakeChartDocument& document) {
  tests::RecordingCanvas canvas;
  const auto chart = framework::make<Summary>(services, {0, 0, 390, 217});
  chart->setOwningDocument(&document);
  chart->resetStandards();
  chart->display(canvas);
  document.graphsShown.clear();
  chart->mouseDown({.location = chart->pointForXY(20, mean), .clickCount = 2});
  EXPECT_EQ(document.graphsShown, std::vector<std::int64_t>{page});
}

TEST_F(AClickOnAChart, ofTheTrendsLeadsToItsOwnPage) {
  expectDoubleClickLeadsTo<BPDSummaryGraphView>(1, 48.22, platform.services(), document);
  expectDoubleClickLeadsTo<HeadCircumferenceSummaryGraphView>(2, 172.47, platform.services(), document);
  expectDoubleClickLeadsTo<AbdoCircumferenceSummaryGraphView>(3, 151.4, platform.services(), document);
  expectDoubleClickLeadsTo<FemurLengthSummaryGraphView>(4, 32.23, platform.services(), document);
}

TEST_F(AClickOnAChart, isTakenByNoStripAndByNoBandWithoutWidth) {
  const auto strip = make<NoYaxisGraphView>({0, 0, 740, 50});
  strip->display(canvas);
  EXPECT_EQ(strip->hitTest({300, 45}), nullptr);
}

class APointerOverAMark : public AClickOnAChart {};

TEST_F(APointerOverAMark, readsDateAgeValueAndDeviation) {
  document.addExamination(20, {{.bpd = 53.64}});
  // Noon of 21 November 2026, ten hours ahead of UTC.
  document.patient.ncRecordsArray()[0]->setExamDate(foundation::Date{816912000.0 + 2.0 * 3600.0});
  const auto chart = make<BPDGraphView>();
  const Point mark = chart->pointForXY(20, 53.64);
  // (53.64 - 48.22) / 2.71 = 2.00
  EXPECT_EQ(chart->toolTipAt(mark), "11/21/26, age 0\n53.6 mm, z-score +2.00");
  EXPECT_EQ(chart->toolTipAt({mark.x + 5, mark.y - 5}), chart->toolTipAt(mark));
  EXPECT_EQ(chart->toolTipAt({mark.x + 9, mark.y}), "");
  document.patient.ncRecordsArray()[0]->measurementsForFetus(0).setBPD(45.51);
  EXPECT_EQ(chart->toolTipAt(chart->pointForXY(20, 45.51)), "11/21/26, age 0\n45.5 mm, z-score -1.00");
}

TEST_F(APointerOverAMark, isToldWhichTwinItIs) {
  document.setFetuses(2);
  document.addExamination(20, {{.bpd = 48.22}, {.bpd = 48.22}});
  const auto chart = make<BPDGraphView>();
  EXPECT_EQ(chart->toolTipAt(chart->pointForXY(20, 48.22)).substr(0, 9), "Fetus 1\n,")
      << "on top lies the later one";
  platform.defaults.setValue(foundation::defaults_key::showAll, "NO");
  EXPECT_EQ(chart->toolTipAt(chart->pointForXY(20, 48.22)).substr(0, 9), "Fetus 0\n,");
}

TEST_F(APointerOverAMark, isNotNeededToReadIt) {
  document.setFetuses(2);
  document.addExamination(24, {{.bpd = 60}, {.bpd = 0}});
  document.addExamination(20, {{.bpd = 48.22}, {.bpd = 47}});
  const auto chart = make<BPDGraphView>();
  const auto readOuts = chart->readOuts();
  ASSERT_EQ(readOuts.size(), 3U) << "what is not measured has no mark";
  EXPECT_EQ(readOuts[0].text, chart->toolTipAt(chart->pointForXY(20, 48.22))) << "by age";
  EXPECT_EQ(readOuts[1].text, chart->toolTipAt(chart->pointForXY(20, 47)));
  EXPECT_EQ(readOuts[2].text, chart->toolTipAt(chart->pointForXY(24, 60)));
  EXPECT_EQ(readOuts[2].at.x, chart->pointForXY(24, 60).x);
}

TEST_F(APointerOverAMark, readsWeightsInGrams) {
  document.addExamination(20, {{.bpd = 0, .hc = 0, .ac = 154.374, .fl = 0}});
  document.weightFormula = 4;  // by the abdominal circumference alone
  const auto chart = make<EFWGraphView>();
  const double grams = chart->valueForFetus(0, 0);
  ASSERT_GT(grams, 100.0);
  const std::string text = chart->toolTipAt(chart->pointForXY(20, grams));
  EXPECT_NE(text.find(" g"), std::string::npos) << text;
  EXPECT_EQ(text.find("z-score"), std::string::npos) << "the formula has no error of its own: " << text;
}

}  // namespace
}  // namespace nascor::charts
