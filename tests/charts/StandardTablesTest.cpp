#include <gtest/gtest.h>

#include "calc/Standards.h"
#include "charts/MeasurementCharts.h"
#include "foundation/UserDefaults.h"
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

TEST_F(AChartsTable, isRebuiltWhenAStandardIsChosenAndAsksForARedraw) {
  const auto chart = make<BPDGraphView>();
  const auto* rows = &chart->standardData();
  const auto asked = chart->timesDisplayAsked();
  document.growthStandard = 3;
  platform.notifications.post(NotificationName::updateStandards, nullptr);
  EXPECT_EQ(chart->standardData().size(), 25U);
  EXPECT_EQ(&chart->standardData(), rows) << "the table is emptied and refilled, never replaced";
  EXPECT_EQ(chart->timesDisplayAsked(), asked + 1);
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
