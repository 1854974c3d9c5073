// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "foundation/Calendar.h"

namespace nascor::posix {

/// The time zone of this process: that of the environment variable `TZ`, else the system's. It is read when a
/// calendar is made; a process that changes `TZ` makes a new one, which then counts for all.
class PosixCalendar final : public foundation::Calendar {
 public:
  PosixCalendar();
  double offsetFromUtc(foundation::Date instant) const override;
};

/// Makes `name` ("Europe/Paris") the time zone of this process, for calendars that are made afterwards. False, and nothing
/// changes, when the system's list of zones has no such name.
bool chooseTimeZone(const std::string& name);

}  // namespace nascor::posix
