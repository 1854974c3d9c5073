#include "qt/Platform.h"

#include <utility>

namespace nascor::qt {

void registerDefaults(foundation::UserDefaults& defaults) {
  namespace key = foundation::defaults_key;
  defaults.registerDefault(key::dataFileExtension, "nascor");
  defaults.registerDefault(key::showAll, "YES");
  defaults.registerDefault(key::standard, "0");
  defaults.registerDefault(key::estimatedFetalWeightStandard, "0");
  defaults.registerDefault(key::crlStandard, "0");
}

Platform::Platform(QLocale locale) : localizer_(std::move(locale)) { registerDefaults(defaults_); }

foundation::Services Platform::services() {
  return {.clock = clock_,
          .calendar = calendar_,
          .localizer = localizer_,
          .defaults = defaults_,
          .files = files_,
          .log = log_,
          .notifications = notifications_};
}

}  // namespace nascor::qt
