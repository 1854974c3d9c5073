// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

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

class TheWeekOnTheStrip : public AnAxisStrip {
 protected:
  void SetUp() override {
    document.setFetuses(1);
    document.addExamination(40, {{}});
    document.patient.ncRecordsArray()[0]->setExamDate(foundation::Date{8e8});
    document.patient.setEDD(foundation::Date{8e8});
  }
  bool isMarked() {
    canvas.clear();
    make<NoYaxisGraphView>({0, 0, 740, 50})->display(canvas);
    const auto strokes = canvas.of(Kind::strokePath);
    return strokes.front().color.name() == framework::NamedColor::red;
  }
};

TEST_F(TheWeekOnTheStrip, isAShortThickLineAtTheDayOfDelivery) {
  const auto strip = make<NoYaxisGraphView>({0, 0, 740, 50});
  strip->display(canvas);
  const auto marker = canvas.of(Kind::strokePath).front();
  EXPECT_EQ(marker.color.name(), framework::NamedColor::red);
  EXPECT_EQ(marker.path.lineWidth(), 3.0);
  const double x = 740.0 * (40.0 - 8.0) / (42.0 - 8.0);
  ASSERT_EQ(marker.path.subpaths().size(), 1U);
  ASSERT_EQ(marker.path.subpaths()[0].size(), 2U);
  EXPECT_DOUBLE_EQ(marker.path.subpaths()[0][0].x, x);
  EXPECT_EQ(marker.path.subpaths()[0][0].y, 41.0);
  EXPECT_EQ(marker.path.subpaths()[0][1].y, 35.0);
  EXPECT_EQ(canvas.of(Kind::strokePath).at(1).color.name(), framework::NamedColor::black);
}

TEST_F(TheWeekOnTheStrip, isMissingOnAnyOtherDay) {
  EXPECT_TRUE(isMarked());
  document.patient.setEDD(foundation::Date{8e8 + 86400.0});
  EXPECT_FALSE(isMarked());
  document.patient.setEDD(foundation::Date{8e8 - 1.0});
  EXPECT_FALSE(isMarked());
  // 40 - d / 7 stays within 8 and 42: d = 224 belongs to it, d = -14 does not.
  document.patient.ncRecordsArray()[0]->setExamDate(foundation::Date{0.0});
  document.patient.setEDD(foundation::Date{224.5 / 86400.0});
  EXPECT_TRUE(isMarked());
  document.patient.setEDD(foundation::Date{225.5 / 86400.0});
  EXPECT_FALSE(isMarked());
  document.patient.setEDD(foundation::Date{-13.5 / 86400.0});
  EXPECT_TRUE(isMarked());
  document.patient.setEDD(foundation::Date{-14.5 / 86400.0});
  EXPECT_FALSE(isMarked());
}

TEST_F(TheWeekOnTheStrip, isMissingWithoutTheDatesOrTheExamination) {
  document.patient.setEDD(std::nullopt);
  EXPECT_FALSE(isMarked());
  document.patient.setEDD(foundation::Date{8e8});
  document.patient.ncRecordsArray()[0]->setExamDate(std::nullopt);
  EXPECT_FALSE(isMarked());
  document.patient.ncRecordsArray()[0]->setExamDate(foundation::Date{8e8});
  document.exam = 1;
  EXPECT_FALSE(isMarked());
  document.exam = -1;
  EXPECT_FALSE(isMarked());
}

TEST_F(AnAxisStrip, ofTheWeightNamesTheFormulaToo) {
  const std::vector<std::string> names{"Hadlock 1", "Hadlock 2", "Hadlock 3", "Hadlock 4", "Campbell",
                                       "Combs",     "Ott",       "Shepard",   "Unknown"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    document.patient.setFetalWeightStandard(static_cast<std::int64_t>(i));
    EXPECT_EQ(make<NoYaxisEFWGraphView>()->referenceTitle(),
              "Nascor Standard: Westerway (ASUM 2001) / Fetal Weight Formula: " + names[i]);
  }
  const auto early = framework::make<NoYaxisEFWGraphView>(platform.services(), {});
  EXPECT_EQ(early->referenceTitle(),
            "Nascor Standard: Westerway (ASUM 2001) / Fetal Weight Formula: Hadlock 1");
}

}  // namespace
}  // namespace nascor::charts
