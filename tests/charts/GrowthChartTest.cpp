// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "charts/MeasurementCharts.h"
#include "foundation/UserDefaults.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using framework::Color;
using framework::MarkSymbol;
using framework::NamedColor;
using framework::Point;
using framework::Rect;

class AGrowthChart : public ChartTest {
 protected:
  void SetUp() override {
    document.setFetuses(1);
    platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  }
};

TEST_F(AGrowthChart, leavesRoomForItsAxisOnTheLeft) {
  const auto chart = make<BPDGraphView>({0, 0, 800, 500});
  EXPECT_EQ(chart->graphRect(), (Rect{50, 5, 740, 490}));
}

TEST_F(AGrowthChart, showsEightToFortyTwoWeeks) {
  const auto chart = make<BPDGraphView>();
  EXPECT_EQ(chart->minX(), 8.0);
  EXPECT_EQ(chart->maxX(), 42.0);
  EXPECT_EQ(chart->pointForXY(8, 0), (Point{50, 5}));
  EXPECT_EQ(chart->pointForXY(42, 120), (Point{790, 495}));
}

struct FactCase {
  const char* name;
  framework::ViewOwner<NascorGraphView> (*make)(const foundation::Services&);
  const char* yTitle;
  double maxY;
  NamedColor mean, band, points;
};
template <class Chart>
framework::ViewOwner<NascorGraphView> makeAs(const foundation::Services& services) {
  return framework::make<Chart>(services, {0, 0, 800, 500});
}
class EachMeasurement : public AGrowthChart, public testing::WithParamInterface<FactCase> {};

TEST_P(EachMeasurement, hasItsOwnTitleRangeAndColours) {
  document.addExamination(20, {{.bpd = 47, .hc = 174, .ac = 154, .fl = 32}});
  const auto chart = GetParam().make(platform.services());
  chart->setOwningDocument(&document);
  EXPECT_EQ(chart->yTitle(), GetParam().yTitle);
  EXPECT_EQ(chart->minY(), 0.0);
  EXPECT_EQ(chart->maxY(), GetParam().maxY);
  chart->display(canvas);
  EXPECT_EQ(canvas.of(Kind::fillPath).at(0).color.name(), GetParam().band);
  EXPECT_EQ(canvas.of(Kind::strokePath).back().color.name(), GetParam().mean);
  EXPECT_EQ(canvas.of(Kind::mark).at(0).color.name(), GetParam().points);
}

INSTANTIATE_TEST_SUITE_P(
    ofTheFour, EachMeasurement,
    testing::Values(FactCase{"bpd", makeAs<BPDGraphView>, "Biparietal Diameter (mm)", 120,
                             NamedColor::moderateOrange, NamedColor::faintOrange, NamedColor::orange},
                    FactCase{"hc", makeAs<HeadCircumferenceGraphView>, "Head Circ (mm)", 400,
                             NamedColor::moderateRed, NamedColor::quiteFaintRed, NamedColor::red},
                    FactCase{"ac", makeAs<AbdoCircumferenceGraphView>, "Abdo Circ (mm)", 450,
                             NamedColor::moderateBlue, NamedColor::quiteFaintBlue, NamedColor::blue},
                    FactCase{"fl", makeAs<FemurLengthGraphView>, "Femur Length (mm)", 100,
                             NamedColor::heavyGreen, NamedColor::faintGreen, NamedColor::heavyGreen}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(AGrowthChart, drawsFrameBandCurveAndMarksInThisOrder) {
  document.addExamination(20, {{.bpd = 47}});
  document.exam = 0;
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  std::vector<Kind> order;
  bool framed = false;
  for (const auto& entry : canvas.entries()) {
    framed = framed || entry.kind == Kind::strokeRect;
    if (framed) order.push_back(entry.kind);
  }
  EXPECT_THAT(order, testing::ElementsAre(Kind::strokeRect, Kind::fillPath, Kind::strokePath, Kind::fillOval,
                                          Kind::mark));
  EXPECT_EQ(canvas.of(Kind::strokeRect).at(0).rect, chart->graphRect());
  EXPECT_EQ(canvas.of(Kind::strokeRect).at(0).color.name(), NamedColor::faintGray);
}

TEST_F(AGrowthChart, drawsTheBandAsOnePolygonForwardAboveAndBackBelow) {
  document.growthStandard = 3;
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto fill = canvas.of(Kind::fillPath).at(0);
  const auto band = fill.path.subpaths();
  ASSERT_EQ(band.size(), 1U);
  ASSERT_EQ(band[0].size(), 50U);
  // The first and last printed rows: 16 weeks 34.53 +- 2 x 2.275, 40 weeks 93.45 +- 2 x 3.43.
  EXPECT_EQ(band[0][0], chart->pointForXY(16, 34.53 + 2.0 * 2.275));
  EXPECT_EQ(band[0][24], chart->pointForXY(40, 93.45 + 2.0 * 3.43));
  EXPECT_EQ(band[0][25], chart->pointForXY(40, 93.45 - 2.0 * 3.43));
  EXPECT_EQ(band[0][49], chart->pointForXY(16, 34.53 - 2.0 * 2.275));
  EXPECT_TRUE(chart->sdPath().contains(chart->pointForXY(20, 48.22)));
  EXPECT_FALSE(chart->sdPath().contains(chart->pointForXY(20, 60)));
}

TEST_F(AGrowthChart, drawsTheMeanCurveThroughEveryRow) {
  document.growthStandard = 3;
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto curve = canvas.of(Kind::strokePath).back();
  EXPECT_EQ(curve.path.lineWidth(), 1.0);
  ASSERT_EQ(curve.path.subpaths().size(), 1U);
  ASSERT_EQ(curve.path.subpaths()[0].size(), 25U);
  EXPECT_EQ(curve.path.subpaths()[0][4], chart->pointForXY(20, 48.22));
}

TEST_F(AGrowthChart, withoutRowsDrawsNeitherBandNorCurve) {
  document.growthStandard = 9;
  document.addExamination(20, {{.bpd = 47}});
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  EXPECT_TRUE(canvas.of(Kind::fillPath).at(0).path.isEmpty());
  EXPECT_TRUE(canvas.of(Kind::strokePath).back().path.isEmpty());
  EXPECT_FALSE(chart->sdPath().contains(chart->pointForXY(20, 47)));
  EXPECT_EQ(canvas.of(Kind::mark).size(), 1U);
}

TEST_F(AGrowthChart, putsTheMarkAtAgeAndValue) {
  document.addExamination(20.5, {{.bpd = 47.25}});
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  EXPECT_EQ(canvas.of(Kind::mark).at(0).point, chart->pointForXY(20.5, 47.25));
}

struct VisibleCase {
  const char* name;
  double age, bpd;
  bool visible;
};
class AnExamination : public AGrowthChart, public testing::WithParamInterface<VisibleCase> {};

TEST_P(AnExamination, isPlottedWithinTheAxisAndAboveZero) {
  document.addExamination(GetParam().age, {{.bpd = GetParam().bpd}});
  make<BPDGraphView>()->display(canvas);
  EXPECT_EQ(canvas.of(Kind::mark).size(), GetParam().visible ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    bounds, AnExamination,
    testing::Values(VisibleCase{"atEightWeeks", 8, 20, true}, VisibleCase{"justBefore", 7.999, 20, false},
                    VisibleCase{"atFortyTwoWeeks", 42, 95, true}, VisibleCase{"justAfter", 42.001, 95, false},
                    VisibleCase{"notMeasured", 20, 0, false}, VisibleCase{"negative", 20, -1, false},
                    VisibleCase{"unknownAge", 0, 47, false}, VisibleCase{"aboveTheAxis", 20, 150, true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(AGrowthChart, highlightsTheExaminationOnShow) {
  document.addExamination(20, {{.bpd = 47}});
  document.addExamination(24, {{.bpd = 60}});
  document.exam = 1;
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const Point centre = chart->pointForXY(24, 60);
  ASSERT_EQ(canvas.of(Kind::fillOval).size(), 1U);
  EXPECT_EQ(canvas.of(Kind::fillOval)[0].rect, (Rect{centre.x - 10, centre.y - 10, 20, 20}));
  EXPECT_EQ(canvas.of(Kind::fillOval)[0].color.name(), NamedColor::faintGray);

  document.exam = 0;
  canvas.clear();
  chart->display(canvas);
  EXPECT_EQ(canvas.of(Kind::fillOval)[0].rect.x, chart->pointForXY(20, 47).x - 10);
}

TEST_F(AGrowthChart, highlightsNothingWhenTheDocumentSaysSo) {
  document.addExamination(20, {{.bpd = 47}});
  document.showsHilite = false;
  make<BPDGraphView>()->display(canvas);
  EXPECT_TRUE(canvas.of(Kind::fillOval).empty());
}

TEST_F(AGrowthChart, showsEveryFetusWithItsOwnMarkTheSelectedOneInItsColour) {
  document.setFetuses(6);
  document.addExamination(20, std::vector<calc::Biometry>(6, {.bpd = 47}));
  document.popUp.selectItemAtIndex(1);
  make<BPDGraphView>()->display(canvas);
  auto marks = canvas.of(Kind::mark);
  marks.erase(marks.begin(), marks.begin() + 5);  // the legend's
  ASSERT_EQ(marks.size(), 5U) << "a sixth fetus has no symbol";
  const MarkSymbol symbols[] = {MarkSymbol::cross, MarkSymbol::circle, MarkSymbol::triangle,
                                MarkSymbol::square, MarkSymbol::x};
  for (std::size_t i = 0; i < marks.size(); ++i) {
    EXPECT_EQ(marks[i].symbol, symbols[i]) << i;
    EXPECT_EQ(marks[i].color.name(), i == 1 ? NamedColor::orange : NamedColor::moderateOrange) << i;
  }
  EXPECT_EQ(canvas.of(Kind::fillOval).size(), 1U) << "only the selected fetus is highlighted";
}

TEST_F(AGrowthChart, showsTheSelectedFetusAloneWhenAskedTo) {
  platform.defaults.setValue(foundation::defaults_key::showAll, "NO");
  document.setFetuses(3);
  document.addExamination(20, std::vector<calc::Biometry>(3, {.bpd = 47}));
  document.popUp.selectItemAtIndex(2);
  make<BPDGraphView>()->display(canvas);
  auto marks = canvas.of(Kind::mark);
  ASSERT_EQ(marks.size(), 3U + 1U);
  EXPECT_EQ(marks.back().symbol, MarkSymbol::triangle);
}

TEST_F(AGrowthChart, withoutAChoiceOfFetusShowsNoneWhenOnlyTheSelectedOneIsAskedFor) {
  platform.defaults.setValue(foundation::defaults_key::showAll, "NO");
  document.popUp.removeAllItems();
  document.addExamination(20, {{.bpd = 47}});
  make<BPDGraphView>()->display(canvas);
  EXPECT_TRUE(canvas.of(Kind::mark).empty());
}

TEST_F(AGrowthChart, hasNoLegendForOneFetus) {
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  EXPECT_EQ(canvas.text("Fetus 0"), nullptr);
  EXPECT_TRUE(canvas.of(Kind::mark).empty());
}

TEST_F(AGrowthChart, listsTheFetusesInItsLegendTheFirstOnTop) {
  document.setFetuses(2);
  const auto chart = make<BPDGraphView>({0, 0, 800, 500});  // plotting area 490 high
  chart->display(canvas);
  const auto marks = canvas.of(Kind::mark);
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_EQ(marks[0].symbol, MarkSymbol::circle);
  EXPECT_EQ(marks[0].point, (Point{50 + 25, 490 - 50}));
  EXPECT_EQ(marks[1].symbol, MarkSymbol::cross);
  EXPECT_EQ(marks[1].point, (Point{50 + 25, 490 - 30}));
  EXPECT_EQ(marks[1].color.name(), NamedColor::heavyGray);
  const auto& title = *canvas.text("Fetus 0");
  EXPECT_EQ(title.point, (Point{50 + 65, 490 - 36}));
  EXPECT_EQ(title.color.value(), (framework::Rgba{0.1, 0.1, 0.1, 0.75}));
}

TEST_F(AGrowthChart, writesTheTitleOfASixthFetusWithoutASymbol) {
  document.setFetuses(6);
  make<BPDGraphView>()->display(canvas);
  EXPECT_EQ(canvas.of(Kind::mark).size(), 5U);
  EXPECT_NE(canvas.text("Fetus 5"), nullptr);
}

TEST_F(AGrowthChart, takesNoLongerForAFetusCountThatADamagedFileNames) {
  document.setFetuses(2);
  document.addExamination(20, {{.bpd = 47}, {.bpd = 48}});
  document.patient.setNumberOfFetuses(std::int64_t{1} << 50);
  make<BPDGraphView>()->display(canvas);
  EXPECT_EQ(canvas.of(Kind::mark).size(), 2U + 2U);
}

TEST_F(AGrowthChart, drawsEachOfAThousandMarksAndOfMoreNoneThatLiesOnAnother) {
  const auto marks = [this] {
    canvas.clear();
    make<BPDGraphView>()->display(canvas);
    return canvas.of(Kind::mark);
  };
  for (int i = 0; i < 1000; ++i) document.addExamination(20, {{.bpd = 50, .hc = 0, .ac = 0, .fl = 0}});
  EXPECT_EQ(marks().size(), 1000U);
  document.addExamination(20, {{.bpd = 50, .hc = 0, .ac = 0, .fl = 0}});
  document.addExamination(30, {{.bpd = 50, .hc = 0, .ac = 0, .fl = 0}});
  document.addExamination(20, {{.bpd = 5000, .hc = 0, .ac = 0, .fl = 0}});  // outside the chart
  EXPECT_EQ(marks().size(), 2U);
  // The examination on show has its disc and its mark wherever it lies.
  document.exam = 700;
  EXPECT_EQ(marks().size(), 3U);
  EXPECT_EQ(canvas.of(Kind::fillOval).size(), 1U);
}

TEST_F(AGrowthChart, isDrawnWithoutADocumentAndWithoutAPatient) {
  const auto bare = framework::make<BPDGraphView>(platform.services(), {0, 0, 800, 500});
  bare->display(canvas);
  EXPECT_EQ(canvas.of(Kind::fillPath).size(), 1U);
  EXPECT_EQ(bare->valueForFetus(0, 0), 0.0);
  document.hasPatient = false;
  make<BPDGraphView>()->display(canvas);
  EXPECT_TRUE(canvas.of(Kind::mark).empty());
}

TEST_F(AGrowthChart, hasNoHorizontalAxisAndNoReferenceTitleOfItsOwn) {
  make<BPDGraphView>()->display(canvas);
  for (const std::string& text : canvas.texts()) EXPECT_EQ(text.find("Nascor Standard"), std::string::npos);
  EXPECT_THAT(canvas.texts(),
              testing::ElementsAre("0", "20", "40", "60", "80", "100", "120", "Biparietal Diameter (mm)"));
}

TEST_F(AGrowthChart, ofNoMeasurementPlotsNothing) {
  document.addExamination(20, {{.bpd = 47}});
  const auto chart = make<NascorGraphView>();
  chart->display(canvas);
  EXPECT_EQ(chart->valueForFetus(0, 0), 0.0);
  EXPECT_TRUE(canvas.of(Kind::mark).empty());
  EXPECT_EQ(canvas.of(Kind::fillPath).at(0).color.name(), NamedColor::quiteFaintBlue);
  EXPECT_EQ(canvas.of(Kind::strokePath).back().color.name(), NamedColor::gray);
}

TEST_F(AGrowthChart, takesAMissingRecordAsNotMeasured) {
  document.addExamination(20, {});
  const auto chart = make<BPDGraphView>();
  EXPECT_EQ(chart->valueForFetus(0, 0), 0.0);
}

}  // namespace
}  // namespace nascor::charts
