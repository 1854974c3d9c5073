// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/PatientPages.h"

#include <gmock/gmock.h>

#include "app/NCDocument.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using model::PatientPage;

TEST(ThePagesOfADocument, showTheChartsWhoseMarksAreSpokenOf) {
  tests::TestApplication platform;
  NCDocument document{
      {.services = platform.services(), .alerts = platform.alerts, .controller = platform.documents}};
  const PatientPages pages(platform.services(), document);
  ASSERT_EQ(pages.pages().size(), model::kPatientPages.size());
  for (const model::PatientPageFacts& each : model::kPatientPages) {
    EXPECT_EQ(pages.pages().at(model::placeOf(each.page)).name(), each.name);
    EXPECT_EQ(pages.graphsOn(each.page).empty(), each.page == PatientPage::report) << each.name;
    if (each.length) {
      EXPECT_THAT(pages.graphsOn(each.page), testing::ElementsAre(&pages.graph(*each.length))) << each.name;
    }
  }
  EXPECT_EQ(pages.graphsOn(PatientPage::trends).size(), calc::kMeasurements.size());
  EXPECT_THAT(pages.graphsOn(PatientPage::weight), testing::ElementsAre(&pages.efwGraph()));
}

}  // namespace
}  // namespace nascor::app
