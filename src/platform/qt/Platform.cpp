#include "qt/Platform.h"

namespace nascor::qt {

void registerDefaults(foundation::UserDefaults& defaults) {
  namespace key = foundation::defaults_key;
  defaults.registerDefault(key::dataFileExtension, "nascor");
  defaults.registerDefault(key::showAll, "YES");
  defaults.registerDefault(key::standard, "0");
  defaults.registerDefault(key::estimatedFetalWeightStandard, "0");
  defaults.registerDefault(key::crlStandard, "0");
}

Platform::Platform(const QLocale& locale) : localizer_(locale) { registerDefaults(defaults_); }

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
