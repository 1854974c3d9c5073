// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What a story cannot see of the dating dialogs: the order of what happens, where a dialog opens, and what stands in its way.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/NCDocument.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes when a question comes, and keeps its answer back.
class NotingAlerts final : public framework::Alerts {
 public:
  explicit NotingAlerts(std::vector<std::string>& events) : events_(events) {}

  framework::AlertReturn runModal(const framework::Alert&) override {
    events_.emplace_back("asked in front of everything");
    return framework::AlertReturn::alternate;
  }
  void beginSheet(const framework::Alert& alert,
                  std::function<void(framework::AlertReturn)> didEnd) override {
    events_.push_back("asked on " + (alert.window ? alert.window->name() : "the document"));
    answer = std::move(didEnd);
  }
  std::size_t chooseOne(const std::string&, const std::string&, const std::vector<std::string>&) override {
    return 0;
  }
  void tell(const std::string&, const std::string&) override {}
  void tellDetails(const std::string&, const std::string&, const std::string&) override {}

  std::function<void(framework::AlertReturn)> answer;

 private:
  std::vector<std::string>& events_;
};

class TheDatingDialogs : public testing::Test {
 protected:
  TheDatingDialogs() {
    document.windowControllerDidLoadNib();
    for (framework::Panel* panel : document.panels()) {
      subscriptions.push_back(
          panel->onCenter.subscribe([this, panel] { events.push_back(panel->name() + " centred"); }));
      subscriptions.push_back(panel->onChange.subscribe(
          [this, panel] { events.push_back(panel->name() + (panel->isShown() ? " in front" : " closed")); }));
    }
  }
  std::vector<std::string> eventsSince(const std::function<void()>& action) {
    events.clear();
    action();
    return events;
  }
  framework::TextField& field(std::string_view name) {
    if (framework::TextField* named = document.fieldNamed(name)) return *named;
    throw std::out_of_range(std::string(name));
  }
  void enter(std::string_view name, const std::string& text) {
    ASSERT_TRUE(document.fieldEditor().begin(field(name)));
    document.fieldEditor().replace(text);
    ASSERT_TRUE(document.fieldEditor().end());
  }
  static std::vector<std::string> names(const std::vector<const framework::TextField*>& fields) {
    std::vector<std::string> all;
    for (const framework::TextField* each : fields) all.push_back(each->name());
    return all;
  }
  void establishEDD() {
    field("birthDateField").takeEditedText("4/10/27");
    document.synchronizeToData();
  }

  std::vector<std::string> events;
  tests::TestApplication platform;
  NotingAlerts alerts{events};
  NCDocument document{{.services = platform.services(), .alerts = alerts, .controller = platform.documents}};
  std::vector<foundation::Subscription> subscriptions;
};

TEST_F(TheDatingDialogs, openInTheMiddleWhileTheirDateIsEmpty) {
  const auto crl = [this] { document.doSetEDDfromCRL(nullptr); };
  EXPECT_THAT(eventsSince(crl), ElementsAre("crlWindow centred", "crlWindow in front"));
  EXPECT_THAT(eventsSince(crl), ElementsAre("crlWindow in front")) << "the date was filled";

  const auto lmp = [this] { document.doSetEDDfromLMP(nullptr); };
  EXPECT_THAT(eventsSince(lmp), ElementsAre("lmpWindow centred", "lmpWindow in front"));
  EXPECT_THAT(eventsSince(lmp), ElementsAre("lmpWindow centred", "lmpWindow in front")) << "still empty";
  enter("lmpWindowLMP", "7/1/26");
  EXPECT_THAT(eventsSince(lmp), ElementsAre("lmpWindow in front"));

  const auto measurements = [this] { document.doSetEDDfromMeasurements(nullptr); };
  for (int i = 0; i < 2; ++i) {
    EXPECT_THAT(eventsSince(measurements),
                ElementsAre("measurementsWindow centred", "measurementsWindow in front"));
    EXPECT_THAT(eventsSince([this] { document.doAdjustDeliveryDate(nullptr); }),
                ElementsAre("adjustDeliveryPanel centred", "adjustDeliveryPanel in front"));
  }
}

TEST_F(TheDatingDialogs, areShownBeforeTheQuestionComesOnThem) {
  establishEDD();
  enter("lmpWindowLMP", "7/1/26");
  field("crlWindowDate").setText("8/20/26");
  EXPECT_THAT(eventsSince([this] { document.doSetEDDfromCRL(nullptr); }),
              ElementsAre("crlWindow in front", "asked on crlWindow"));
  EXPECT_THAT(eventsSince([this] { document.doSetEDDfromLMP(nullptr); }),
              ElementsAre("lmpWindow in front", "asked on lmpWindow"));
  EXPECT_THAT(eventsSince([this] { document.doSetEDDfromMeasurements(nullptr); }),
              ElementsAre("measurementsWindow centred", "measurementsWindow in front",
                          "asked on measurementsWindow"));
  EXPECT_THAT(eventsSince([this] { document.doAdjustDeliveryDate(nullptr); }),
              ElementsAre("adjustDeliveryPanel centred", "adjustDeliveryPanel in front"));
}

TEST_F(TheDatingDialogs, comeToTheFrontAgainOrCloseWithTheAnswer) {
  establishEDD();
  document.doSetEDDfromCRL(nullptr);
  EXPECT_THAT(eventsSince([this] { alerts.answer(framework::AlertReturn::defaultButton); }),
              ElementsAre("crlWindow in front"));
  document.doSetEDDfromCRL(nullptr);
  EXPECT_THAT(eventsSince([this] { alerts.answer(framework::AlertReturn::alternate); }),
              ElementsAre("crlWindow closed"));
  EXPECT_EQ(field("birthDateField").text(), "4/10/27");
  EXPECT_FALSE(document.isDocumentEdited());
}

TEST_F(TheDatingDialogs, enterCloseStoreAndPlanInThisOrder) {
  document.doSetEDDfromLMP(nullptr);
  enter("lmpWindowLMP", "7/1/26");
  subscriptions.push_back(field("birthDateField").onChange.subscribe([this] {
    EXPECT_FALSE(document.patientRecord()->edd().has_value());
    events.emplace_back("entered");
  }));
  subscriptions.push_back(document.tabView().onNeedsDisplay.subscribe([this] {
    EXPECT_TRUE(document.patientRecord()->edd().has_value());
    EXPECT_FALSE(document.isDocumentEdited());
    events.emplace_back("drawn");
  }));
  subscriptions.push_back(field("adjustEDDField").onChange.subscribe([this] {
    EXPECT_TRUE(document.isDocumentEdited());
    events.emplace_back("planned");
  }));
  EXPECT_THAT(eventsSince([this] { document.okSetEDDfromLMP(nullptr); }),
              ElementsAre("entered", "lmpWindow closed", "drawn", "planned"));
}

TEST_F(TheDatingDialogs, tellWhatStandsInTheirWay) {
  EXPECT_THAT(names(document.eddFromCRL().obstacles), ElementsAre("crlWindowDate", "crlWindowCRL"));
  enter("crlWindowDate", "8/20/26");
  EXPECT_THAT(names(document.eddFromCRL().obstacles), ElementsAre("crlWindowCRL"));
  enter("crlWindowCRL", "45");
  EXPECT_THAT(document.eddFromCRL().obstacles, IsEmpty());
  EXPECT_EQ(document.eddFromCRL().text, "3/8/27");
  document.doSetCRLStandard(4);
  EXPECT_THAT(names(document.eddFromCRL().obstacles), ElementsAre("crlStandardReference"));
  document.doSetCRLStandard(0);
  enter("crlWindowDate", "12/31/9999");
  EXPECT_THAT(names(document.eddFromCRL().obstacles), ElementsAre("crlWindowDate"));

  EXPECT_THAT(names(document.eddFromLMP().obstacles), ElementsAre("lmpWindowLMP"));
  enter("lmpWindowLMP", "7/1/26");
  EXPECT_THAT(document.eddFromLMP().obstacles, IsEmpty());
  EXPECT_EQ(document.eddFromLMP().text, "4/7/27");
  enter("lmpWindowLutealField", "295");
  EXPECT_THAT(names(document.eddFromLMP().obstacles),
              ElementsAre("lmpWindowCycleField", "lmpWindowLutealField"));

  EXPECT_THAT(document.eddFromMeasurements().obstacles, IsEmpty());
  enter("examDateField", "");
  EXPECT_THAT(names(document.eddFromMeasurements().obstacles), ElementsAre("examDateField"));
  EXPECT_EQ(document.eddFromMeasurements().text, "");
}

TEST_F(TheDatingDialogs, doNothingForADocumentThatHasNoPatientYet) {
  NCDocument empty{{.services = platform.services(), .alerts = alerts, .controller = platform.documents}};
  events.clear();
  empty.doSetEDDfromCRL(nullptr);
  empty.okSetEDDfromCRL(nullptr);
  empty.okSetEDDfromLMP(nullptr);
  empty.okSetEDDfromMeasurements(nullptr);
  EXPECT_EQ(empty.birthDateField().text(), "");
  EXPECT_FALSE(empty.isDocumentEdited());
  EXPECT_THAT(events, IsEmpty());
}

}  // namespace
}  // namespace nascor::app
