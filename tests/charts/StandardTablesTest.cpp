// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calc/Standards.h"
#include "charts/MeasurementCharts.h"
#include "foundation/UserDefaults.h"
#include "support/Calls.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using foundation::Notification;
using foundation::NotificationName;

class AChartsTable : public ChartTest {};

TEST_F(AChartsTable, isThatOfTheUsersPreferenceBeforeThereIsADocument) {
  platform.defaults.setValue(foundation::defaults_key::standard, "3");
  const auto chart = framework::make<BPDGraphView>(platform.services(), {});
  ASSERT_EQ(chart->standardData().size(), 25U);
  EXPECT_EQ(chart->standardData().front().mean(), 34.53);
  EXPECT_EQ(chart->referenceTitle(), "Nascor Standard: CFEF (Biométrie 2000)");
}

TEST_F(AChartsTable, isRebuiltByThePreferenceWhileThereIsNoDocument) {
  const auto chart = framework::make<BPDGraphView>(platform.services(), {});
  platform.defaults.setValue(foundation::defaults_key::standard, "3");
  platform.notifications.post(NotificationName::updateStandards, nullptr);
  EXPECT_EQ(chart->standardData().size(), 25U);
}

TEST_F(AChartsTable, isThatOfTheDocumentOnceItHasOne) {
  platform.defaults.setValue(foundation::defaults_key::standard, "3");
  document.growthStandard = 1;
  const auto chart = make<BPDGraphView>();
  EXPECT_EQ(chart->standardData().size(), 29U);
  EXPECT_EQ(chart->referenceTitle(), "Nascor Standard: Hadlock (1984)");
}

TEST_F(AChartsTable, holdsTheRowsOfItsOwnMeasurement) {
  // The means at 16 weeks, the first row of the printed CFEF table.
  document.growthStandard = 3;
  EXPECT_EQ(make<BPDGraphView>()->standardData().front().mean(), 34.53);
  EXPECT_EQ(make<HeadCircumferenceGraphView>()->standardData().front().mean(), 120.86);
  EXPECT_EQ(make<AbdoCircumferenceGraphView>()->standardData().front().mean(), 106.4);
  EXPECT_EQ(make<FemurLengthGraphView>()->standardData().front().mean(), 19.95);
}

struct TitleCase {
  std::int64_t standard;
  const char* title;
  std::size_t rows;
};
class EveryStandard : public AChartsTable, public testing::WithParamInterface<TitleCase> {};

TEST_P(EveryStandard, givesTitleAndRows) {
  document.growthStandard = GetParam().standard;
  for (const auto& rows : {make<BPDGraphView>()->standardData().size(),
                           make<HeadCircumferenceGraphView>()->standardData().size(),
                           make<AbdoCircumferenceGraphView>()->standardData().size(),
                           make<FemurLengthGraphView>()->standardData().size()}) {
    EXPECT_EQ(rows, GetParam().rows);
  }
  EXPECT_EQ(make<BPDGraphView>()->referenceTitle(), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(byIdentifier, EveryStandard,
                         testing::Values(TitleCase{0, "Nascor Standard: Westerway (ASUM 2001)", 31},
                                         TitleCase{1, "Nascor Standard: Hadlock (1984)", 29},
                                         TitleCase{2, "Nascor Standard: Schluter (2004)", 31},
                                         TitleCase{3, "Nascor Standard: CFEF (Biométrie 2000)", 25},
                                         TitleCase{4, "Nascor Standard: ", 0},
                                         TitleCase{-1, "Nascor Standard: ", 0}));

struct RowsCase {
  std::int64_t standard;
  double bpd, hc, ac, fl;  ///< the published means at 20 weeks, mm to three decimals
};
class TheRowsOfEachStandard : public AChartsTable, public testing::WithParamInterface<RowsCase> {};

TEST_P(TheRowsOfEachStandard, areInTheTableOfEachMeasurement) {
  document.growthStandard = GetParam().standard;
  EXPECT_NEAR(make<BPDGraphView>()->meanForGestation(20.0), GetParam().bpd, 0.0005);
  EXPECT_NEAR(make<HeadCircumferenceGraphView>()->meanForGestation(20.0), GetParam().hc, 0.0005);
  EXPECT_NEAR(make<AbdoCircumferenceGraphView>()->meanForGestation(20.0), GetParam().ac, 0.0005);
  EXPECT_NEAR(make<FemurLengthGraphView>()->meanForGestation(20.0), GetParam().fl, 0.0005);
}

INSTANTIATE_TEST_SUITE_P(byIdentifier, TheRowsOfEachStandard,
                         testing::Values(RowsCase{0, 47.414, 174.01, 154.374, 32.117},
                                         RowsCase{1, 46.32, 176.816, 149.08, 32.7},
                                         RowsCase{2, 46.674, 172.269, 149.553, 31.496},
                                         RowsCase{3, 48.22, 172.47, 151.4, 32.23}));

TEST_F(AChartsTable, growsWithEachBuilderWhichDoesNotEmptyIt) {
  document.growthStandard = 4;  // begins without rows
  const auto chart = make<BPDGraphView>();
  std::vector<std::size_t> rows;
  for (const auto builder : {&BPDGraphView::initASUMStandards, &BPDGraphView::initHadlockStandards,
                             &BPDGraphView::initSchluterStandards, &BPDGraphView::initCFEFStandards}) {
    (chart.get()->*builder)();
    rows.push_back(chart->standardData().size());
  }
  EXPECT_EQ(rows, (std::vector<std::size_t>{31, 31 + 29, 31 + 29 + 31, 31 + 29 + 31 + 25}));
}

/// Notes how many rows there are whenever the title is set.
class NotingGraphView : public BPDGraphView {
 public:
  using BPDGraphView::BPDGraphView;
  void setReferenceTitle(const std::string& title) override {
    rowsAtTitle.push_back(standardData().size());
    BPDGraphView::setReferenceTitle(title);
  }
  std::vector<std::size_t> rowsAtTitle;
};

TEST_F(AChartsTable, isFilledBeforeTheTitleIsSet) {
  document.growthStandard = 3;
  EXPECT_EQ(make<NotingGraphView>()->rowsAtTitle, (std::vector<std::size_t>{31, 25}))
      << "the preference's rows first, then the document's";
}

TEST_F(AChartsTable, isRebuiltWhenAStandardIsChosenAndAsksForARedraw) {
  const auto chart = make<BPDGraphView>();
  const auto* rows = &chart->standardData();
  const tests::Calls asked(chart->onNeedsDisplay);
  document.growthStandard = 3;
  platform.notifications.post(NotificationName::updateStandards, nullptr);
  EXPECT_EQ(chart->standardData().size(), 25U);
  EXPECT_EQ(&chart->standardData(), rows) << "the table is emptied and refilled, never replaced";
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(AChartsTable, isAnnouncedOnlyWhenRowsAndTitleAreInPlace) {
  const auto chart = make<BPDGraphView>();
  std::vector<const foundation::NotificationSender*> senders;
  const auto subscription = platform.notifications.subscribe(
      NotificationName::updateStandardsForEFW, [&](const Notification& posted) {
        senders.push_back(posted.sender);
        EXPECT_EQ(chart->standardData().size(), 25U);
        EXPECT_EQ(chart->referenceTitle(), "Nascor Standard: CFEF (Biométrie 2000)");
      });
  document.growthStandard = 3;
  chart->resetStandards();
  ASSERT_EQ(senders.size(), 1U);
  EXPECT_EQ(senders.front(), chart.get());
}

TEST_F(AChartsTable, isLeftAloneOnceTheChartIsGone) {
  { const auto chart = make<BPDGraphView>(); }
  platform.notifications.post(NotificationName::updateStandards, nullptr);  // must reach nothing
}

TEST_F(AChartsTable, answersLookUps) {
  const auto chart = make<BPDGraphView>();
  const double mean20 = chart->standardData()[9].mean();
  const double mean21 = chart->standardData()[10].mean();
  EXPECT_NEAR(mean20, 47.414, 1e-9);
  EXPECT_EQ(chart->gestationForMeasurement(mean20), 20.0);
  EXPECT_EQ(chart->gestationForMeasurement((mean20 + mean21) / 2.0), 20.5);
  EXPECT_NEAR(chart->meanForGestation(20.5), (mean20 + mean21) / 2.0, 1e-12);
  EXPECT_NEAR(chart->sdForGestation(20.0), 1.9, 1e-12);
}

TEST_F(AChartsTable, ofTheFourBuildersIsEmptyOnAPlainGrowthChart) {
  const auto chart = make<NascorGraphView>();
  EXPECT_TRUE(chart->standardData().empty());
  EXPECT_EQ(chart->referenceTitle(), "Nascor Standard: Westerway (ASUM 2001)");
  EXPECT_EQ(chart->meanForGestation(20.0), 0.0);
}

}  // namespace
}  // namespace nascor::charts
