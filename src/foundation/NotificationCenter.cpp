#include "foundation/NotificationCenter.h"

#include <utility>

namespace nascor::foundation {

NotificationCenter::Subscription NotificationCenter::subscribe(NotificationName name, Handler handler) {
  auto observer = std::make_shared<Observer>(Observer{name, std::move(handler)});
  std::erase_if(observers_, [](const auto& known) { return known.expired(); });
  observers_.push_back(observer);
  return Subscription(std::move(observer));
}

void NotificationCenter::post(NotificationName name, const NotificationSender* sender) {
  const auto present = observers_;
  for (const auto& known : present) {
    // The handler stays alive while it runs, even when it ends its own subscription.
    if (const auto observer = known.lock(); observer && observer->name == name) {
      observer->handler(Notification{name, sender});
    }
  }
}

}  // namespace nascor::foundation
