// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Dating over every day of eleven years, and over every plan of a delivery.
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "drive/Driver.h"
#include "support/ScopedTimeZone.h"
#include "support/TestApplication.h"

namespace nascor::drive {
namespace {

class InEveryZone : public testing::TestWithParam<const char*> {};

std::string shortText(std::chrono::sys_days day) {
  const std::chrono::year_month_day parts(day);
  std::string text = std::to_string(static_cast<unsigned>(parts.month()));
  text += "/" + std::to_string(static_cast<unsigned>(parts.day()));
  const std::string year = std::to_string(static_cast<int>(parts.year()));
  return text + "/" + year.substr(2);
}

TEST_P(InEveryZone, theEDDIs280DaysAfterTheLastPeriod) {
  const tests::ScopedTimeZone zone(GetParam());
  const posix::PosixCalendar calendar;
  tests::TestApplication platform;
  foundation::Services services{.clock = platform.clock,
                                .calendar = calendar,
                                .localizer = platform.localizer,
                                .defaults = platform.defaults,
                                .files = platform.files,
                                .log = platform.log,
                                .notifications = platform.notifications};
  app::NCDocument document{
      {.services = services, .alerts = platform.alerts, .controller = platform.documents}};
  document.windowControllerDidLoadNib();
  framework::TextField& lmp = document.lastPeriodPanel().lastPeriod;

  using namespace std::chrono_literals;
  const std::chrono::sys_days last = 2030y / 12 / 31;
  int days = 0;
  for (std::chrono::sys_days day = 2020y / 1 / 1; day <= last; day += std::chrono::days(1), ++days) {
    lmp.setText(shortText(day));
    document.okSetEDDfromLMP(nullptr);
    const std::chrono::sys_days due = day + std::chrono::days(280);
    ASSERT_EQ(document.birthDateField().text(), shortText(due)) << lmp.text();
    // What the records took from the text is that day too, and is so when it is read back.
    document.synchronizeFromData();
    ASSERT_EQ(document.birthDateField().text(), shortText(due)) << lmp.text();
  }
  EXPECT_EQ(days, 4018);
}

TEST_P(InEveryZone, aPlannedDeliveryIsTheSameAfterSavingAndOpening) {
  Driver driver;
  const auto say = [&](const Json& line) {
    Json answer = Json::parse(driver.answer(line.dump()));
    EXPECT_FALSE(answer.contains("error")) << line << answer;
    return answer;
  };
  const auto panel = [&] {
    const Json state = say({{"state", true}});
    const Json& fields = state["fields"];
    return Json{{"days", state["stepper"]["value"]},
                {"edd", fields["adjustEDDField"]},
                {"on", fields["adjustDeliverOnField"]},
                {"at", fields["adjustDeliverAtField"]},
                {"gestation", state["document"]["extrapolatedGestation"]}};
  };
  say({{"zone", GetParam()}});
  say({{"new", true}});
  say({{"edit", {"birthDateField", "3/17/27"}}});
  say({{"save", "a.nascor"}});
  for (int days = -35; days <= 7; ++days) {
    EXPECT_EQ(say({{"step", days}})["value"], days);
    const Json before = panel();
    say({{"save", true}});
    say({{"close", "discard"}});
    say({{"open", "a.nascor"}});
    EXPECT_EQ(panel(), before) << days;
    using namespace std::chrono_literals;
    const std::chrono::sys_days edd = 2027y / 3 / 17;
    EXPECT_EQ(before["on"], shortText(edd + std::chrono::days(days)));
  }
}

INSTANTIATE_TEST_SUITE_P(zones, InEveryZone,
                         testing::Values("UTC", "America/New_York", "Europe/Paris", "Australia/Sydney"),
                         [](const auto& zone) {
                           std::string name(zone.param);
                           std::erase(name, '/');
                           std::erase(name, '_');
                           return name;
                         });

}  // namespace
}  // namespace nascor::drive
