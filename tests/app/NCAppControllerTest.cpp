// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/NCAppController.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calc/FetalWeight.h"
#include "foundation/Assertion.h"
#include "foundation/UserDefaults.h"
#include "support/Calls.h"
#include "support/MarkedLocalizer.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using framework::MenuItem;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;
namespace defaults_key = foundation::defaults_key;

class TheApplication : public testing::Test {
 protected:
  TheApplication() {
    platform.documents.setFactory([this] { return std::make_unique<NCDocument>(platform.environment()); });
  }
  NCDocument& newDocument() { return dynamic_cast<NCDocument&>(platform.documents.newDocument()); }
  static MenuItem item(const char* menu, std::int64_t tag) {
    return {.menuTitle = menu, .title = "", .tag = tag, .state = 7};
  }

  tests::TestApplication platform;
  NCAppController controller{platform.services(), platform.documents};
};

TEST_F(TheApplication, registersItsPreferencesWithoutWritingThem) {
  controller.awakeFromNib();
  EXPECT_THAT(platform.defaults.registered(),
              UnorderedElementsAre(Pair("DataFile Extension", "nascor"), Pair("Show All", "YES"),
                                   Pair("Standard", "0"), Pair("Estimated Fetal Weight Standard", "0"),
                                   Pair("CRL Standard", "0")));
  EXPECT_TRUE(platform.defaults.written().empty());
  EXPECT_EQ(controller.showAllMenuItem().state, 1);
  EXPECT_EQ(controller.showAllMenuItem().title, "Show All");
}

TEST_F(TheApplication, keepsWhatTheUserChoseBefore) {
  platform.defaults.setValue(defaults_key::showAll, "false");
  platform.defaults.setValue(defaults_key::standard, "2");
  controller.awakeFromNib();
  EXPECT_EQ(controller.showAllMenuItem().state, 0);
  EXPECT_EQ(newDocument().standard(), 2);
}

struct ShowAllCase {
  const char* stored;
  std::int64_t state;
};
class TheTickOfShowAll : public TheApplication, public testing::WithParamInterface<ShowAllCase> {};

TEST_P(TheTickOfShowAll, followsTheStoredTruthValue) {
  platform.defaults.setValue(defaults_key::showAll, GetParam().stored);
  controller.awakeFromNib();
  EXPECT_EQ(controller.showAllMenuItem().state, GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(all, TheTickOfShowAll,
                         testing::Values(ShowAllCase{"YES", 1}, ShowAllCase{"true", 1}, ShowAllCase{"1", 1},
                                         ShowAllCase{"NO", 0}, ShowAllCase{"false", 0}, ShowAllCase{"0", 0},
                                         ShowAllCase{"", 0}));

TEST_F(TheApplication, togglesShowAllAndTellsEverybodyOnce) {
  controller.awakeFromNib();
  std::vector<std::string> heard;
  const auto subscription = platform.notifications.subscribe(
      foundation::NotificationName::updateShowAll, [&](const foundation::Notification& notification) {
        EXPECT_EQ(notification.sender, &controller);
        // The new value is stored when the others hear of it.
        heard.push_back(*platform.defaults.value(defaults_key::showAll));
      });
  MenuItem& showAll = controller.showAllMenuItem();
  controller.toggleShowAll(showAll);
  EXPECT_EQ(showAll.state, 0);
  controller.toggleShowAll(showAll);
  EXPECT_EQ(showAll.state, 1);
  showAll.state = -1;  // a mixed state counts as on
  controller.toggleShowAll(showAll);
  EXPECT_EQ(showAll.state, 0);
  EXPECT_THAT(heard, ElementsAre("false", "true", "false"));
  EXPECT_FALSE(foundation::boolForKey(platform.defaults, defaults_key::showAll));
}

TEST_F(TheApplication, marksThePagesOfEveryOpenWindowWhenShowAllChanges) {
  controller.awakeFromNib();
  NCDocument& one = newDocument();
  NCDocument& two = newDocument();
  NCDocument& closed = newDocument();
  platform.documents.closeDocument(closed);
  const tests::Calls drawnInOne(one.tabView().onNeedsDisplay);
  const tests::Calls drawnInTwo(two.tabView().onNeedsDisplay);
  const tests::Calls drawnInClosed(closed.tabView().onNeedsDisplay);
  controller.toggleShowAll(controller.showAllMenuItem());
  EXPECT_EQ(drawnInOne.count(), 1);
  EXPECT_EQ(drawnInTwo.count(), 1);
  EXPECT_EQ(drawnInClosed.count(), 0);
}

TEST_F(TheApplication, ticksAndEnablesTheStandardsOfTheDocumentInFront) {
  controller.awakeFromNib();
  NCDocument& document = newDocument();
  document.doSetStandard(2);
  document.doSetEFWStandard(5);
  document.doSetCRLStandard(1);
  for (const auto& [menu, chosen] :
       {std::pair{"Standards", 2}, {"Estimated Fetal Weight", 5}, {"Crown Rump Length", 1}}) {
    for (std::int64_t tag = 0; tag < 8; ++tag) {
      MenuItem each = item(menu, tag);
      EXPECT_TRUE(controller.validateMenuItem(each));
      EXPECT_EQ(each.state, tag == chosen ? 1 : 0) << menu << tag;
    }
  }
}

TEST_F(TheApplication, disablesTheStandardsWithoutADocumentAndTicksTheFirst) {
  controller.awakeFromNib();
  for (const char* menu : {"Standards", "Estimated Fetal Weight", "Crown Rump Length"}) {
    for (const std::int64_t tag : {0, 1}) {
      MenuItem each = item(menu, tag);
      EXPECT_FALSE(controller.validateMenuItem(each)) << menu;
      EXPECT_EQ(each.state, tag == 0 ? 1 : 0) << menu;
    }
  }
}

TEST_F(TheApplication, leavesOtherMenusToTheFramework) {
  MenuItem other = item("File", 0);
  EXPECT_TRUE(controller.validateMenuItem(other));
  EXPECT_EQ(other.state, 7) << "and their ticks alone";
  EXPECT_FALSE(controller.chooseStandard(other));
}

TEST_F(TheApplication, sendsTheTagToTheDocumentInFront) {
  controller.awakeFromNib();
  NCDocument& behind = newDocument();
  NCDocument& front = newDocument();
  controller.doSetStandard(item("", 3));
  controller.doSetEFWStandard(item("", 4));
  controller.doSetCRLStandard(item("", -5));
  controller.doAdjustDeliveryDate(&controller);
  EXPECT_EQ(front.standard(), 3);
  EXPECT_EQ(front.fetalWeightStandard(), 4);
  EXPECT_EQ(front.patientRecord()->crlStandard(), -5);
  EXPECT_EQ(behind.standard(), 0);
  EXPECT_EQ(behind.fetalWeightStandard(), 0);
  EXPECT_EQ(behind.patientRecord()->crlStandard(), 0);
}

TEST_F(TheApplication, dropsCommandsWithoutADocument) {
  controller.awakeFromNib();
  controller.doSetStandard(item("", 3));
  controller.doSetEFWStandard(item("", 3));
  controller.doSetCRLStandard(item("", 3));
  controller.doAdjustDeliveryDate(nullptr);
  EXPECT_TRUE(platform.defaults.written().empty());
}

TEST_F(TheApplication, hasAnItemForEachStandardTaggedWithIts) {
  controller.awakeFromNib();
  newDocument();
  std::map<std::string, std::vector<std::int64_t>> tags;
  for (const MenuItem& each : controller.standardsMenuItems()) tags[each.menuTitle].push_back(each.tag);
  EXPECT_THAT(tags["Standards"], ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(tags["Estimated Fetal Weight"], ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
  EXPECT_THAT(tags["Crown Rump Length"], ElementsAre(0, 1, 2, 3));
  for (const MenuItem& each : controller.standardsMenuItems()) {
    EXPECT_TRUE(controller.chooseStandard(each));
    MenuItem chosen = each;
    EXPECT_TRUE(controller.validateMenuItem(chosen));
    EXPECT_EQ(chosen.state, 1) << each.menuTitle << " " << each.title;
  }
}

TEST(TheApplicationInAnotherLanguage, knowsItsMenusByTheirTranslatedTitles) {
  tests::TestApplication platform;
  const tests::MarkedLocalizer marked;
  foundation::Services services{.clock = platform.clock,
                                .calendar = platform.calendar,
                                .localizer = marked,
                                .defaults = platform.defaults,
                                .files = platform.files,
                                .log = platform.log,
                                .notifications = platform.notifications};
  NCAppController controller(services, platform.documents);
  MenuItem translated{.menuTitle = "[NCAppController:Standards]", .title = "", .tag = 0, .state = 0};
  EXPECT_FALSE(controller.validateMenuItem(translated));
  EXPECT_EQ(translated.state, 1);
  MenuItem english{.menuTitle = "Standards", .title = "", .tag = 0, .state = 0};
  EXPECT_TRUE(controller.validateMenuItem(english));
}

TEST_F(TheApplication, showsTheUserGuideByItsEscapedUrl) {
  tests::RecordingViewer viewer;
  viewer.canShow = false;  // which is nobody's error
  NCAppController(platform.services(), platform.documents,
                  {.resourcePath = "/opt/My Apps/100%/Zo\xC3\xAB", .viewer = &viewer})
      .doHelp();
  EXPECT_THAT(viewer.opened, ElementsAre("file:///opt/My%20Apps/100%25/Zo%C3%AB/Nascor%20User%20Guide.pdf"));
}

TEST_F(TheApplication, abandonsHelpWhenItDoesNotKnowWhereItsResourcesAre) {
  tests::RecordingViewer viewer;
  NCAppController lost(platform.services(), platform.documents,
                       {.resourcePath = std::nullopt, .viewer = &viewer});
  try {
    lost.doHelp();
    ADD_FAILURE() << "no assertion";
  } catch (const foundation::AssertionFailure& failure) {
    EXPECT_THAT(failure.what(), testing::HasSubstr("Value==nil"));
    EXPECT_THAT(failure.where().file_name(), testing::HasSubstr("NCAppController"));
  }
  EXPECT_TRUE(viewer.opened.empty());
}

}  // namespace
}  // namespace nascor::app
