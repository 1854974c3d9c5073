// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Signal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace nascor::foundation {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_copy_constructible_v<Signal<>>, "a copy would have listeners that do not know of it");
static_assert(!std::is_copy_constructible_v<Subscription>, "one holder ends it");

class SignalTest : public testing::Test {
 protected:
  /// A listener that writes `name` into the list of what was heard.
  Signal<>::Listener hears(const std::string& name) {
    return [this, name] { heard_.push_back(name); };
  }

  Signal<> signal_;
  std::vector<std::string> heard_;
};

TEST_F(SignalTest, withoutListenersDoesNothing) {
  signal_();
  EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(SignalTest, knowsWhetherItHasListeners) {
  EXPECT_FALSE(signal_.hasListeners());
  auto first = signal_.subscribe(hears("first"));
  auto second = signal_.subscribe(hears("second"));
  first.reset();
  EXPECT_TRUE(signal_.hasListeners());
  second.reset();
  EXPECT_FALSE(signal_.hasListeners());
}

TEST_F(SignalTest, callsItsListenersInTheOrderOfTheirSubscriptions) {
  const auto first = signal_.subscribe(hears("first"));
  const auto second = signal_.subscribe(hears("second"));
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first", "second"));
}

TEST_F(SignalTest, handsTheSameArgumentsToEachListener) {
  Signal<int, const std::string&, std::string> told;
  const std::string there = "there";
  std::vector<std::string> heard;
  const auto listens = [&](int number, const std::string& same, std::string copied) {
    EXPECT_EQ(&same, &there);
    heard.push_back(std::to_string(number) + std::move(copied));
  };
  const auto first = told.subscribe(listens);
  const auto second = told.subscribe(listens);
  told(7, there, " days");
  EXPECT_THAT(heard, ElementsAre("7 days", "7 days"));
}

TEST_F(SignalTest, isSilentAfterTheEndOfASubscription) {
  auto first = signal_.subscribe(hears("first"));
  { const auto second = signal_.subscribe(hears("second")); }
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first"));
  first.reset();
  first.reset();
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first"));
}

TEST_F(SignalTest, callsNoListenerWhoseHolderIsGone) {
  struct Holder {
    Holder(const Signal<>::Listener& listener, Signal<>& heard) : subscription(heard.subscribe(listener)) {}
    Subscription subscription;
  };
  const auto stays = signal_.subscribe(hears("stays"));
  auto holder = std::make_unique<Holder>(hears("goes"), signal_);
  signal_();
  holder.reset();
  signal_();
  EXPECT_THAT(heard_, ElementsAre("stays", "goes", "stays"));
}

TEST_F(SignalTest, endsTheOldSubscriptionThatANewOneReplaces) {
  auto subscription = signal_.subscribe(hears("old"));
  subscription = signal_.subscribe(hears("new"));
  signal_();
  EXPECT_THAT(heard_, ElementsAre("new"));
}

TEST_F(SignalTest, keepsASubscriptionThatMoves) {
  auto subscription = signal_.subscribe(hears("it"));
  std::vector<Subscription> kept;
  kept.push_back(std::move(subscription));
  subscription.reset();
  signal_();
  EXPECT_THAT(heard_, ElementsAre("it"));
}

TEST_F(SignalTest, letsAListenerEndItsOwnSubscriptionWhileItIsCalled) {
  Subscription own;
  // What the listener holds must stay alive until it returns.
  const auto held = std::make_shared<std::string>("held");
  own = signal_.subscribe([this, &own, held] {
    own.reset();
    heard_.push_back(*held);
  });
  const auto after = signal_.subscribe(hears("after"));
  signal_();
  signal_();
  EXPECT_THAT(heard_, ElementsAre("held", "after", "after"));
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(SignalTest, doesNotCallAListenerThatAnEarlierOneRemoved) {
  Subscription second;
  const auto first = signal_.subscribe([&] {
    heard_.emplace_back("first");
    second.reset();
  });
  second = signal_.subscribe(hears("second"));
  const auto third = signal_.subscribe(hears("third"));
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first", "third"));
}

TEST_F(SignalTest, callsAListenerThatWasAddedMeanwhileFromTheNextCallOn) {
  std::vector<Subscription> added;
  const auto first = signal_.subscribe([&] {
    heard_.emplace_back("first");
    // Many, so that the signal's own list has to grow while it is being read.
    if (added.empty())
      for (int i = 0; i < 100; ++i) added.push_back(signal_.subscribe(hears("added")));
  });
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first"));
  heard_.clear();
  signal_();
  EXPECT_EQ(heard_.size(), 101U);
}

TEST_F(SignalTest, deliversACallWithinACallAtOnce) {
  int depth = 0;
  const auto first = signal_.subscribe([&] {
    heard_.push_back("first " + std::to_string(depth));
    if (++depth == 1) signal_();
  });
  const auto second = signal_.subscribe(hears("second"));
  signal_();
  EXPECT_THAT(heard_, ElementsAre("first 0", "first 1", "second", "second"));
}

TEST_F(SignalTest, mayBeDestroyedByItsListener) {
  auto told = std::make_unique<Signal<>>();
  const auto first = told->subscribe([&] {
    told.reset();
    heard_.emplace_back("first");
  });
  const auto second = told->subscribe(hears("second"));
  (*told)();
  EXPECT_THAT(heard_, ElementsAre("first", "second"));
}

TEST_F(SignalTest, mayGoBeforeItsSubscriptions) {
  std::optional<Signal<>> told;
  told.emplace();
  auto subscription = told->subscribe(hears("it"));
  told.reset();
  subscription.reset();
  EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(SignalTest, letsAnExceptionOutAndGoesOnWorking) {
  bool fails = true;
  const auto first = signal_.subscribe([&] {
    if (fails) throw std::runtime_error("no such page");
  });
  const auto second = signal_.subscribe(hears("second"));
  EXPECT_THROW(signal_(), std::runtime_error);
  EXPECT_THAT(heard_, IsEmpty());
  fails = false;
  signal_();
  EXPECT_THAT(heard_, ElementsAre("second"));
}

}  // namespace
}  // namespace nascor::foundation
