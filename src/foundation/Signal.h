// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace nascor::foundation {

/// Ends the subscription when it is destroyed, replaced or reset. May outlive the signal. One that was made by default or
/// moved from stands for none.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> listener) : listener_(std::move(listener)) {}
  Subscription(Subscription&&) = default;
  Subscription& operator=(Subscription&&) = default;
  void reset() { listener_.reset(); }

 private:
  std::shared_ptr<void> listener_;
};

/// What an object tells its listeners, of which it may have none, one or many: `onChange()` calls them.
///
/// A listener returns nothing. Where the caller needs an answer, or cannot work without the one who is asked, that is a
/// port: an abstract class, or a `std::function` that is handed over where the caller is made.
template <class... Arguments>
class Signal {
 public:
  using Listener = std::function<void(Arguments...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  [[nodiscard]] Subscription subscribe(Listener listener) {
    auto held = std::make_shared<Listener>(std::move(listener));
    std::erase_if(listeners_, [](const auto& known) { return known.expired(); });
    listeners_.push_back(held);
    return Subscription(std::move(held));
  }

  bool hasListeners() const {
    return std::ranges::any_of(listeners_, [](const auto& known) { return !known.expired(); });
  }

  /// Calls the listeners at once, in the order of their subscriptions. They may subscribe, unsubscribe, call this signal
  /// and destroy it: one that was removed meanwhile is not called any more, one that was added hears the next call. An
  /// exception of a listener comes out, and those behind it are not called.
  void operator()(Arguments... arguments) const {
    const auto present = listeners_;
    for (const auto& known : present) {
      // The listener stays alive while it runs, even when it ends its own subscription.
      if (const auto listener = known.lock()) (*listener)(arguments...);
    }
  }

 private:
  std::vector<std::weak_ptr<Listener>> listeners_;
};

}  // namespace nascor::foundation
