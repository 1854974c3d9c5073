// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/AbandonedAction.h"

#include "base/SystemLog.h"
#include "foundation/RangeError.h"

namespace nascor::qt {

void logAbandoned(const std::string& what) {
  writeToStandardError("nascor: " + what + "; the action was abandoned\n");
}

void logAbandoned(const std::exception& error) {
  std::string what = error.what();  // a failed assertion names its place itself
  if (const auto* range = dynamic_cast<const foundation::RangeError*>(&error)) {
    what +=
        std::string(" (") + range->where().file_name() + ":" + std::to_string(range->where().line()) + ")";
  }
  logAbandoned(what);
}

}  // namespace nascor::qt
