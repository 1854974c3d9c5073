// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/NotificationCenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace nascor::foundation {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr NotificationName kStandards = NotificationName::updateStandards;
constexpr NotificationName kWeights = NotificationName::updateStandardsForEFW;

class Sender final : public NotificationSender {
 public:
  std::string_view className() const override { return "Sender"; }
};

class NotificationCenterTest : public testing::Test {
 protected:
  /// A handler that writes `name` into the list of what was heard.
  NotificationCenter::Handler hears(const std::string& name) {
    return [this, name](const Notification&) { heard_.push_back(name); };
  }
  void post(NotificationName name) { center_.post(name, nullptr); }

  NotificationCenter center_;
  std::vector<std::string> heard_;
};

TEST_F(NotificationCenterTest, callsTheObserversOfTheNameInTheOrderOfTheirSubscriptions) {
  const auto first = center_.subscribe(kStandards, hears("first"));
  const auto other = center_.subscribe(kWeights, hears("other"));
  const auto second = center_.subscribe(kStandards, hears("second"));

  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("first", "second"));
  post(kWeights);
  EXPECT_THAT(heard_, ElementsAre("first", "second", "other"));
}

TEST_F(NotificationCenterTest, tellsNameAndSender) {
  const Sender sender;
  std::vector<const NotificationSender*> senders;
  std::vector<std::string> names;
  const auto subscription = center_.subscribe(kStandards, [&](const Notification& notification) {
    senders.push_back(notification.sender);
    names.emplace_back(notification.name.text());
  });
  center_.post(kStandards, &sender);
  center_.post(kStandards, nullptr);
  EXPECT_THAT(senders, ElementsAre(&sender, nullptr));
  EXPECT_THAT(names, ElementsAre("UpdateStandards", "UpdateStandards"));
}

TEST(NotificationNames, areThoseThatOtherProgramsMayKnow) {
  EXPECT_EQ(NotificationName::updateStandards.text(), "UpdateStandards");
  EXPECT_EQ(NotificationName::updateStandardsForEFW.text(), "UpdateStandardsForEFW");
  EXPECT_EQ(NotificationName::updateShowAll.text(), "UpdateShowAll");
  EXPECT_FALSE(NotificationName::updateStandards == NotificationName::updateStandardsForEFW);
}

TEST_F(NotificationCenterTest, isSilentAfterTheEndOfASubscription) {
  auto first = center_.subscribe(kStandards, hears("first"));
  { const auto second = center_.subscribe(kStandards, hears("second")); }
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("first"));
  first.reset();
  first.reset();
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("first"));
}

TEST_F(NotificationCenterTest, endsTheOldSubscriptionThatANewOneReplaces) {
  auto subscription = center_.subscribe(kStandards, hears("old"));
  subscription = center_.subscribe(kStandards, hears("new"));
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("new"));
}

TEST_F(NotificationCenterTest, keepsASubscriptionThatMoves) {
  auto subscription = center_.subscribe(kStandards, hears("it"));
  std::vector<Subscription> kept;
  kept.push_back(std::move(subscription));
  subscription.reset();
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("it"));
}

TEST_F(NotificationCenterTest, letsAnObserverEndItsOwnSubscriptionWhileItIsCalled) {
  Subscription own;
  // What the handler holds must stay alive until it returns.
  const auto held = std::make_shared<std::string>("held");
  own = center_.subscribe(kStandards, [this, &own, held](const Notification&) {
    own.reset();
    heard_.push_back(*held);
  });
  const auto after = center_.subscribe(kStandards, hears("after"));
  post(kStandards);
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("held", "after", "after"));
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NotificationCenterTest, doesNotCallAnObserverThatAnEarlierOneRemoved) {
  Subscription second;
  const auto first = center_.subscribe(kStandards, [&](const Notification&) {
    heard_.emplace_back("first");
    second.reset();
  });
  second = center_.subscribe(kStandards, hears("second"));
  const auto third = center_.subscribe(kStandards, hears("third"));
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("first", "third"));
}

TEST_F(NotificationCenterTest, callsAnObserverThatWasAddedMeanwhileFromTheNextPostOn) {
  std::vector<Subscription> added;
  const auto first = center_.subscribe(kStandards, [&](const Notification&) {
    heard_.emplace_back("first");
    // Many, so that the centre's own list has to grow while it is being read.
    if (added.empty()) {
      for (int i = 0; i < 100; ++i) added.push_back(center_.subscribe(kStandards, hears("added")));
    }
  });
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("first"));
  heard_.clear();
  post(kStandards);
  EXPECT_EQ(heard_.size(), 101U);
}

TEST_F(NotificationCenterTest, deliversAPostWithinAPostAtOnce) {
  const auto outer = center_.subscribe(kStandards, [&](const Notification&) {
    heard_.emplace_back("outer begins");
    post(kWeights);
    heard_.emplace_back("outer ends");
  });
  const auto inner = center_.subscribe(kWeights, hears("inner"));
  const auto last = center_.subscribe(kStandards, hears("last"));
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("outer begins", "inner", "outer ends", "last"));
}

TEST_F(NotificationCenterTest, remembersInAnOuterPostWhatAnInnerOneRemoved) {
  Subscription last;
  int depth = 0;
  const auto first = center_.subscribe(kStandards, [&](const Notification&) {
    if (++depth == 1) post(kStandards);
    last.reset();
  });
  last = center_.subscribe(kStandards, hears("last"));
  post(kStandards);
  EXPECT_EQ(depth, 2);
  EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(NotificationCenterTest, canBeUsedAfterAnObserverThrew) {
  bool throws = true;
  const auto first = center_.subscribe(kStandards, [&](const Notification&) {
    if (throws) throw std::runtime_error("broken");
  });
  const auto second = center_.subscribe(kStandards, hears("second"));
  EXPECT_THROW(post(kStandards), std::runtime_error);
  throws = false;
  post(kStandards);
  EXPECT_THAT(heard_, ElementsAre("second"));
}

TEST(Subscription, mayOutliveTheCenter) {
  Subscription subscription;
  {
    NotificationCenter center;
    subscription = center.subscribe(kStandards, [](const Notification&) {});
  }
  subscription.reset();
}

}  // namespace
}  // namespace nascor::foundation
