// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "calc/FetalWeight.h"
#include "charts/EFWGraphView.h"
#include "charts/SummaryCharts.h"
#include "support/Bits.h"
#include "support/Calls.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using foundation::NotificationName;
using framework::NamedColor;

/// A document with its four charts and the weight chart, as its window has them.
struct Charts {
  FakeChartDocument document;
  framework::ViewOwner<BPDGraphView> bpd;
  framework::ViewOwner<HeadCircumferenceGraphView> hc;
  framework::ViewOwner<AbdoCircumferenceGraphView> ac;
  framework::ViewOwner<FemurLengthGraphView> fl;
  framework::ViewOwner<BPDSummaryGraphView> summary;
  framework::ViewOwner<NoYaxisEFWGraphView> strip;
  framework::ViewOwner<EFWGraphView> efw;

  explicit Charts(const foundation::Services& services)
      : bpd(framework::make<BPDGraphView>(services, {})),
        hc(framework::make<HeadCircumferenceGraphView>(services, {})),
        ac(framework::make<AbdoCircumferenceGraphView>(services, {})),
        fl(framework::make<FemurLengthGraphView>(services, {})),
        summary(framework::make<BPDSummaryGraphView>(services, {})),
        strip(framework::make<NoYaxisEFWGraphView>(services, {})),
        efw(framework::make<EFWGraphView>(services, {})) {
    document.bpdGraph = bpd.get();
    document.hcGraph = hc.get();
    document.acGraph = ac.get();
    document.flGraph = fl.get();
    for (UpdatingGraphView* view : views()) view->setOwningDocument(&document);
  }
  std::vector<UpdatingGraphView*> views() const {
    return {bpd.get(), hc.get(), ac.get(), fl.get(), summary.get(), strip.get(), efw.get()};
  }
};

class TheWeightTable : public ChartTest {
 protected:
  Charts charts{platform.services()};
  void choose(std::int64_t standard) {
    charts.document.growthStandard = standard;
    platform.notifications.post(NotificationName::updateStandards, nullptr);
  }
};

TEST_F(TheWeightTable, isEmptyUntilAllFourChartsHaveAnnounced) {
  EXPECT_TRUE(charts.efw->standardData().empty());
  charts.bpd->resetStandards();
  charts.hc->resetStandards();
  charts.ac->resetStandards();
  EXPECT_TRUE(charts.efw->standardData().empty());
  charts.ac->resetStandards();
  EXPECT_TRUE(charts.efw->standardData().empty()) << "a chart that announces twice is not two";
  charts.fl->resetStandards();
  EXPECT_EQ(charts.efw->standardData().size(), 31U);
}

TEST_F(TheWeightTable, isRebuiltExactlyOnceForEachChoice) {
  choose(3);
  EXPECT_EQ(charts.efw->standardData().size(), 25U);
  const tests::Calls asked(charts.efw->onNeedsDisplay);
  choose(0);
  EXPECT_EQ(charts.efw->standardData().size(), 31U);
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(TheWeightTable, isRebuiltExactlyOnceWithTenDocumentsOpen) {
  std::vector<std::unique_ptr<Charts>> others;
  for (int i = 0; i < 9; ++i) others.push_back(std::make_unique<Charts>(platform.services()));
  choose(0);
  std::vector<std::unique_ptr<tests::Calls>> asked;
  for (const auto& other : others)
    asked.push_back(std::make_unique<tests::Calls>(other->efw->onNeedsDisplay));
  const tests::Calls askedHere(charts.efw->onNeedsDisplay);
  choose(1);
  EXPECT_EQ(askedHere.count(), 1);
  EXPECT_EQ(charts.efw->standardData().size(), 29U);
  for (std::size_t i = 0; i < others.size(); ++i) {
    EXPECT_EQ(asked[i]->count(), 1) << i;
    EXPECT_EQ(others[i]->efw->standardData().size(), 31U) << i;
  }
}

TEST_F(TheWeightTable, isNotTouchedByAnotherDocumentsChart) {
  const Charts other(platform.services());
  choose(0);
  charts.bpd->resetStandards();
  charts.hc->resetStandards();
  charts.ac->resetStandards();
  const tests::Calls asked(charts.efw->onNeedsDisplay);
  other.fl->resetStandards();
  EXPECT_EQ(asked.count(), 0);
  charts.fl->resetStandards();
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(TheWeightTable, holdsTheWeightsOfTheMeansWithTheFormulasError) {
  const double factors[] = {0.074, 0.077, 0.073, 0.073, 0.0, 0.0, 0.0, 0.106, 0.0};
  for (std::size_t formula = 0; formula < std::size(factors); ++formula) {
    charts.document.weightFormula = static_cast<std::int64_t>(formula);
    choose(3);
    const auto& row = charts.efw->standardData().at(4);
    // The printed means of week 20.
    const double weight = calc::estimatedFetalWeight({.bpd = 48.22, .hc = 172.47, .ac = 151.4, .fl = 32.23},
                                                     static_cast<std::int64_t>(formula));
    EXPECT_EQ(row.observation(), 20.0);
    EXPECT_TRUE(tests::isExactly(row.mean(), weight)) << formula;
    EXPECT_TRUE(tests::isExactly(row.sd(), weight * factors[formula])) << formula;
  }
}

TEST_F(TheWeightTable, isEmptyForAnUnknownStandardAndWithoutABPDChart) {
  choose(0);
  choose(9);
  EXPECT_TRUE(charts.efw->standardData().empty());
  charts.document.bpdGraph = nullptr;
  choose(0);
  EXPECT_TRUE(charts.efw->standardData().empty());
}

TEST_F(TheWeightTable, takesAMissingChartAsNotMeasured) {
  charts.document.flGraph = nullptr;
  choose(0);
  choose(0);  // the chart that is gone was still awaited the first time
  ASSERT_EQ(charts.efw->standardData().size(), 31U);
  EXPECT_EQ(charts.efw->standardData()[9].mean(), 0.0) << "Hadlock 1 needs the femur";
  charts.document.weightFormula = 4;
  choose(0);
  EXPECT_GT(charts.efw->standardData()[9].mean(), 0.0) << "Campbell does not";
}

TEST_F(TheWeightTable, isNotRebuiltByAChoiceItself) {
  choose(0);
  const tests::Calls asked(charts.efw->onNeedsDisplay);
  charts.document.bpdGraph = charts.document.hcGraph = charts.document.acGraph = nullptr;
  charts.document.flGraph = nullptr;
  choose(1);
  choose(1);
  EXPECT_LE(asked.count(), 1);
  EXPECT_EQ(charts.efw->referenceTitle(), "Nascor Standard: Westerway (ASUM 2001)")
      << "the weight chart does not hear of the choice";
}

TEST_F(TheWeightTable, plotsTheWeightOfTheDocumentsFormula) {
  charts.document.setFetuses(1);
  charts.document.addExamination(20, {{.bpd = 48.22, .hc = 172.47, .ac = 151.4, .fl = 32.23}});
  for (const std::int64_t formula : {0, 3, 7}) {
    charts.document.weightFormula = formula;
    EXPECT_TRUE(tests::isExactly(
        charts.efw->valueForFetus(0, 0),
        calc::estimatedFetalWeight({.bpd = 48.22, .hc = 172.47, .ac = 151.4, .fl = 32.23}, formula)));
  }
  EXPECT_EQ(charts.efw->valueForFetus(1, 0), 0.0);
  EXPECT_EQ(charts.efw->yTitle(), "Estimated Fetal Weight (g)");
  EXPECT_EQ(charts.efw->maxY(), 5500.0);
  charts.efw->setFrameSize(800, 500);
  charts.efw->display(canvas);
  EXPECT_EQ(canvas.of(Kind::fillPath).at(0).color.name(), NamedColor::faintGray);
  EXPECT_EQ(canvas.of(Kind::strokePath).back().color.name(), NamedColor::heavyGray);
  EXPECT_EQ(canvas.of(Kind::mark).at(0).color.name(), NamedColor::heavyGray);
}

class ASummary : public ChartTest {
 protected:
  void SetUp() override { document.setFetuses(3); }
};

template <class Summary>
std::vector<std::string> textsOf(const foundation::Services& services, FakeChartDocument& document,
                                 tests::RecordingCanvas& canvas) {
  const auto chart = framework::make<Summary>(services, {0, 0, 390, 217});
  chart->setOwningDocument(&document);
  canvas.clear();
  chart->display(canvas);
  return canvas.texts();
}

TEST_F(ASummary, hasNeitherAxisNorFrameAndOneShowsTheLegend) {
  const std::vector<std::string> legend{"Fetus 2", "Fetus 1", "Fetus 0"};
  EXPECT_EQ(textsOf<BPDSummaryGraphView>(platform.services(), document, canvas), legend);
  EXPECT_TRUE(canvas.of(Kind::strokeRect).empty());
  EXPECT_EQ(canvas.of(Kind::strokePath).size(), 1U) << "the mean curve alone";
  EXPECT_TRUE(textsOf<HeadCircumferenceSummaryGraphView>(platform.services(), document, canvas).empty());
  EXPECT_TRUE(canvas.of(Kind::strokeRect).empty());
  EXPECT_TRUE(textsOf<AbdoCircumferenceSummaryGraphView>(platform.services(), document, canvas).empty());
  EXPECT_TRUE(canvas.of(Kind::strokeRect).empty());
  EXPECT_TRUE(textsOf<FemurLengthSummaryGraphView>(platform.services(), document, canvas).empty());
  EXPECT_TRUE(canvas.of(Kind::strokeRect).empty());
}

TEST_F(ASummary, keepsTheRangeOfItsChartButForTheBPD) {
  EXPECT_EQ(make<BPDSummaryGraphView>()->maxY(), 110.0);
  EXPECT_EQ(make<HeadCircumferenceSummaryGraphView>()->maxY(), 400.0);
  EXPECT_EQ(make<AbdoCircumferenceSummaryGraphView>()->maxY(), 450.0);
  EXPECT_EQ(make<FemurLengthSummaryGraphView>()->maxY(), 100.0);
}

}  // namespace
}  // namespace nascor::charts
