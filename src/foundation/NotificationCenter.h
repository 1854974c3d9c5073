// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string_view>

#include "foundation/Signal.h"

namespace nascor::foundation {

/// The name of a notification. The names are constants of this type, below; nothing else may be posted.
class NotificationName {
 public:
  constexpr std::string_view text() const { return text_; }
  friend constexpr bool operator==(const NotificationName&, const NotificationName&) = default;

  static const NotificationName updateStandards;        ///< a document's growth or weight standard changed
  static const NotificationName updateStandardsForEFW;  ///< a measurement chart has rebuilt its table
  static const NotificationName updateShowAll;          ///< the preference "Show All" changed

 private:
  explicit constexpr NotificationName(std::string_view text) : text_(text) {}
  std::string_view text_;
};

inline constexpr NotificationName NotificationName::updateStandards{"UpdateStandards"};
inline constexpr NotificationName NotificationName::updateStandardsForEFW{"UpdateStandardsForEFW"};
inline constexpr NotificationName NotificationName::updateShowAll{"UpdateShowAll"};

/// Anything that can post a notification.
class NotificationSender {
 public:
  virtual ~NotificationSender() = default;
  /// The name of its class; what is posted is told apart by it in tests and stories.
  virtual std::string_view className() const = 0;
};

struct Notification {
  NotificationName name;
  const NotificationSender* sender = nullptr;  ///< never dereferenced here; observers compare it
};

/// Delivers notifications at once: when `post` returns, every observer has acted. Observers hear any sender.
class NotificationCenter {
 public:
  using Handler = std::function<void(const Notification&)>;

  [[nodiscard]] Subscription subscribe(NotificationName name, Handler handler);

  /// Calls the handlers in the order of their subscriptions. Handlers may subscribe, unsubscribe and post:
  /// one that was removed meanwhile is not called any more, one that was added hears the next post.
  void post(NotificationName name, const NotificationSender* sender) const;

 private:
  Signal<const Notification&> posted_;
};

}  // namespace nascor::foundation
