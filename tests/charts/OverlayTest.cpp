// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/Overlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "charts/EFWGraphView.h"
#include "charts/MeasurementCharts.h"
#include "charts/SummaryCharts.h"
#include "foundation/UserDefaults.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using calc::Quantity;
using framework::NamedColor;
using framework::Path;
using framework::Point;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const calc::Reference* named(std::string_view name) { return calc::referenceNamed(name); }

double valueAt(const CentileLine& line, double week) {
  const auto point = std::ranges::find(line.points, week, &Point::x);
  return point != line.points.end() ? point->y : 0.0;
}

TEST(CentileLines, areThoseOfThePublication) {
  // BPD of INTERGROWTH-21st 2014 as printed, to one decimal.
  const auto lines = centileLines(*named("intergrowth-2014"), Quantity::bpd);
  ASSERT_THAT(lines, SizeIs(5));
  EXPECT_NEAR(valueAt(lines[0], 14), 26.3, 0.08);
  EXPECT_NEAR(valueAt(lines[1], 27), 66.9, 0.08);
  EXPECT_NEAR(valueAt(lines[2], 27), 70.6, 0.08);
  EXPECT_NEAR(valueAt(lines[3], 27), 74.3, 0.08);
  EXPECT_NEAR(valueAt(lines[4], 40), 102.3, 0.08);
  EXPECT_EQ(lines[0].percent, 3.0);
  EXPECT_EQ(lines[4].percent, 97.0);
}

TEST(CentileLines, endWhereTheWeeksOfTheReferenceEnd) {
  for (const calc::Reference& reference : calc::references()) {
    for (const Quantity quantity : reference.quantities) {
      for (const CentileLine& line : centileLines(reference, quantity)) {
        ASSERT_FALSE(line.points.empty()) << reference.name;
        EXPECT_EQ(line.points.front().x, reference.firstWeek) << reference.name;
        EXPECT_EQ(line.points.back().x, reference.lastWeek) << reference.name;
        EXPECT_TRUE(std::ranges::is_sorted(line.points, {}, &Point::x)) << reference.name;
      }
    }
  }
}

TEST(CentileLines, areMissingForWhatTheReferenceDoesNotCover) {
  EXPECT_THAT(centileLines(*named("westerway"), Quantity::efw), IsEmpty());
  EXPECT_THAT(centileLines(*named("hadlock-1991"), Quantity::bpd), IsEmpty());
}

std::vector<Path::Subpath> subpaths(const Path& path) {
  return {path.subpaths().begin(), path.subpaths().end()};
}

TEST(ADashedLine, hasDashesAndGapsOfTheirLengths) {
  const std::array line{Point{0, 7}, Point{30, 7}};
  EXPECT_THAT(subpaths(dashed(line, {10, 4})),
              ElementsAre(Path::Subpath{{0, 7}, {10, 7}}, Path::Subpath{{14, 7}, {24, 7}},
                          Path::Subpath{{28, 7}, {30, 7}}));
}

TEST(ADashedLine, goesOnAroundCorners) {
  const std::array line{Point{0, 0}, Point{6, 0}, Point{6, 3}, Point{6, 12}};
  EXPECT_THAT(subpaths(dashed(line, {8, 3})),
              ElementsAre(Path::Subpath{{0, 0}, {6, 0}, {6, 2}}, Path::Subpath{{6, 5}, {6, 12}}));
}

TEST(ADashedLine, isToldApartFromTheOthersByItsDashes) {
  EXPECT_EQ(dashesOf(3), dashesOf(97));
  EXPECT_EQ(dashesOf(10), dashesOf(90));
  EXPECT_GT(dashesOf(50)[0], dashesOf(10)[0]);
  EXPECT_GT(dashesOf(10)[0], dashesOf(3)[0]);
}

TEST(Heights, areMovedApartAroundTheirMiddle) {
  EXPECT_THAT(movedApart({10, 30, 50}, 9), ElementsAre(10, 30, 50));
  EXPECT_THAT(movedApart({20, 22}, 10), ElementsAre(16, 26));
  EXPECT_THAT(movedApart({}, 10), IsEmpty());
}

class AnOverlay : public ChartTest {
 protected:
  void SetUp() override {
    document.setFetuses(1);
    platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
    document.addExamination(20, {{.bpd = 47, .hc = 174, .ac = 154, .fl = 32}});
    document.addExamination(24, {{.bpd = 60, .hc = 217, .ac = 194, .fl = 43}});
  }
  /// Strokes of several pieces.
  std::vector<Path> dashedLines() const {
    std::vector<Path> lines;
    for (const auto& entry : canvas.of(Kind::strokePath)) {
      if (entry.path.subpaths().size() > 1) lines.push_back(entry.path);
    }
    return lines;
  }
  std::vector<tests::RecordingCanvas::Entry> joinedLines() const {
    std::vector<tests::RecordingCanvas::Entry> lines;
    for (const auto& entry : canvas.of(Kind::strokePath)) {
      if (entry.path.lineWidth() == 0.75) lines.push_back(entry);
    }
    return lines;
  }
};

TEST_F(AnOverlay, addsToTheDrawingAndChangesNothingOfIt) {
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto plain = canvas.entries();
  canvas.clear();
  document.drawnOver = {.centiles = named("who-2017"), .joinsMarks = true};
  chart->display(canvas);
  // Five lines, their numbers, sample and text of the legend, the line from mark to mark.
  EXPECT_EQ(canvas.entries().size(), plain.size() + 5 + 5 + 2 + 1);
  auto next = plain.begin();
  for (const auto& entry : canvas.entries()) {
    const bool isNext = next != plain.end() && entry.kind == next->kind && entry.text == next->text &&
                        entry.point == next->point && entry.rect == next->rect &&
                        std::ranges::equal(entry.path.subpaths(), next->path.subpaths()) &&
                        entry.color.value() == next->color.value();
    if (isNext) ++next;
  }
  EXPECT_EQ(next, plain.end()) << "what was drawn before is drawn still, in its order";
  canvas.clear();
  document.drawnOver = {};
  chart->display(canvas);
  EXPECT_EQ(canvas.entries().size(), plain.size());
}

TEST_F(AnOverlay, liesOverTheBandAndUnderTheMarks) {
  document.drawnOver = {.centiles = named("who-2017"), .joinsMarks = true};
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto& entries = canvas.entries();
  const auto placeOf = [&entries](Kind kind) {
    return std::ranges::find(entries, kind, &tests::RecordingCanvas::Entry::kind) - entries.begin();
  };
  const auto dashes =
      std::ranges::find_if(entries, [](const auto& entry) { return entry.path.subpaths().size() > 1; });
  EXPECT_GT(dashes - entries.begin(), placeOf(Kind::fillPath));
  EXPECT_LT(dashes - entries.begin(), placeOf(Kind::mark));
}

TEST_F(AnOverlay, goesFromTheFirstToTheLastWeekOfTheReference) {
  document.drawnOver = {.centiles = named("intergrowth-2014")};
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto lines = dashedLines();
  ASSERT_THAT(lines, SizeIs(6));  // with the legend's sample
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(lines[i].subpaths().front().front().x, chart->pointForXY(14, 0).x);
    for (const auto& dash : lines[i].subpaths()) EXPECT_LE(dash.back().x, chart->pointForXY(40, 0).x);
  }
  // 94.9 mm is the printed median of the last week.
  const double end = lines[2].subpaths().back().back().y;
  EXPECT_NEAR(end, chart->pointForXY(40, 94.9).y, 4.0);
}

TEST_F(AnOverlay, namesTheReferenceAndEachCentileAtItsRightEnd) {
  document.drawnOver = {.centiles = named("intergrowth-2014")};
  const auto chart = make<BPDSummaryGraphView>({0, 0, 390, 206});
  chart->display(canvas);
  ASSERT_NE(canvas.text("Centiles: INTERGROWTH-21st (2014)"), nullptr);
  EXPECT_EQ(chart->centilesText(), "Centiles: INTERGROWTH-21st (2014)");
  double below = 0.0;
  for (const char* centile : {"3", "10", "50", "90", "97"}) {
    const auto* text = canvas.text(centile);
    ASSERT_NE(text, nullptr) << centile;
    EXPECT_GT(text->point.x, chart->pointForXY(40, 0).x);
    EXPECT_LE(text->point.x + canvas.textWidth(centile, {}), 390.0);
    EXPECT_GE(text->point.y - below, 8.999);
    below = text->point.y;
  }
}

TEST_F(AnOverlay, saysWhatTheReferenceDoesNotKnow) {
  document.drawnOver = {.centiles = named("hadlock-1991")};
  const auto chart = make<FemurLengthGraphView>();
  chart->display(canvas);
  EXPECT_THAT(dashedLines(), IsEmpty());
  EXPECT_NE(canvas.text("Hadlock (1991) has no centiles of this measure"), nullptr);
  const auto weight = make<EFWGraphView>();
  EXPECT_EQ(weight->centilesText(), "Centiles: Hadlock (1991)");
  document.drawnOver = {.centiles = named("cfef")};
  EXPECT_EQ(weight->centilesText(), "CFEF (Biométrie 2000) has no centiles of this measure");
}

TEST_F(AnOverlay, saysOfAWeightThatItsFormulaDoesNotFit) {
  document.drawnOver = {.centiles = named("intergrowth-2020")};
  const auto chart = make<EFWGraphView>();
  EXPECT_EQ(chart->centilesText(), "Centiles: INTERGROWTH-21st (2020)");
  document.weightFormula = 7;
  EXPECT_EQ(
      chart->centilesText(),
      "Centiles: INTERGROWTH-21st (2020), which fits weights by another formula alone: Hadlock 1 (HC/AC/FL)");
}

TEST_F(AnOverlay, isChangedByAnotherChoice) {
  const auto chart = make<BPDGraphView>();
  document.drawnOver = {.centiles = named("who-2017")};
  chart->display(canvas);
  const double first = dashedLines().at(2).subpaths().front().front().y;
  canvas.clear();
  document.drawnOver = {.centiles = named("intergrowth-2014")};
  chart->display(canvas);
  EXPECT_NE(dashedLines().at(2).subpaths().front().front().y, first);
}

TEST_F(AnOverlay, joinsTheMarksOfEachFetusByAge) {
  document.setFetuses(2);
  auto& examinations = document.patient.ncRecordsArray();
  examinations[0]->measurements().emplace_back(calc::Biometry{.bpd = 45});
  examinations[1]->measurements().emplace_back(calc::Biometry{.bpd = 58});
  document.addExamination(22, {{.bpd = 53}});  // a script may leave an examination out of order
  document.drawnOver = {.joinsMarks = true};
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  const auto lines = joinedLines();
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_THAT(subpaths(lines[0].path),
              ElementsAre(Path::Subpath{chart->pointForXY(20, 47), chart->pointForXY(22, 53),
                                        chart->pointForXY(24, 60)}));
  EXPECT_THAT(subpaths(lines[1].path),
              ElementsAre(Path::Subpath{chart->pointForXY(20, 45), chart->pointForXY(24, 58)}));
  EXPECT_EQ(lines[0].color.name(), NamedColor::orange);
  EXPECT_EQ(lines[1].color.name(), NamedColor::moderateOrange);
  EXPECT_THAT(dashedLines(), IsEmpty());
  EXPECT_EQ(chart->centilesText(), "");
}

TEST_F(AnOverlay, joinsNoSingleMark) {
  document.ages = {20, 0};
  document.drawnOver = {.joinsMarks = true};
  const auto chart = make<BPDGraphView>();
  chart->display(canvas);
  EXPECT_THAT(joinedLines(), IsEmpty());
}

TEST_F(AnOverlay, leavesTheStripBelowAlone) {
  const auto strip = make<NoYaxisEFWGraphView>({0, 0, 720, 50});
  strip->display(canvas);
  const std::size_t plain = canvas.entries().size();
  canvas.clear();
  document.drawnOver = {.centiles = named("who-2017"), .joinsMarks = true};
  strip->display(canvas);
  EXPECT_EQ(canvas.entries().size(), plain);
}

}  // namespace
}  // namespace nascor::charts
