// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/NotificationCenter.h"

#include <utility>

namespace nascor::foundation {

Subscription NotificationCenter::subscribe(NotificationName name, Handler handler) {
  return posted_.subscribe([name, handler = std::move(handler)](const Notification& notification) {
    if (notification.name == name) handler(notification);
  });
}

void NotificationCenter::post(NotificationName name, const NotificationSender* sender) const {
  posted_(Notification{name, sender});
}

}  // namespace nascor::foundation
