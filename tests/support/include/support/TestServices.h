// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/Localizer.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"
#include "support/FaultyFileStore.h"
#include "support/FixedClock.h"
#include "support/FixedOffsetCalendar.h"
#include "support/MemoryUserDefaults.h"

namespace nascor::tests {

/// Keeps the lines that were logged.
class MemoryLog final : public foundation::Log {
 public:
  void write(std::string_view line) override { lines.emplace_back(line); }
  std::vector<std::string> lines;
};

/// Everything that a document asks of the platform, without a platform. The zone is ten hours ahead of UTC, so that a
/// mistake between local and absolute time shows.
struct TestServices {
  FixedClock clock{foundation::Date{817034400.0}};  // 2026-11-22 10:00 UTC
  FixedOffsetCalendar calendar{10.0 * 3600.0};
  foundation::EnglishLocalizer localizer;
  MemoryUserDefaults defaults;
  FaultyFileStore files;
  MemoryLog log;
  foundation::NotificationCenter notifications;

  foundation::Services services() {
    return {.clock = clock,
            .calendar = calendar,
            .localizer = localizer,
            .defaults = defaults,
            .files = files,
            .log = log,
            .notifications = notifications};
  }
};

}  // namespace nascor::tests
