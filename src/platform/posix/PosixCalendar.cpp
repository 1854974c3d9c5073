// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/PosixCalendar.h"

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace nascor::posix {

namespace {

/// From the epoch of the operating system, 1970-01-01, to 2001-01-01.
constexpr double kEpochTo2001 = 978307200.0;

/// Beyond it the operating system has no year to put the instant in: about two thousand million years.
constexpr double kFarthest = 6.7e16;

}  // namespace

PosixCalendar::PosixCalendar() { ::tzset(); }

double PosixCalendar::offsetFromUtc(foundation::Date instant) const {
  const double seconds = std::floor(instant.secondsSince2001);
  if (!(std::fabs(seconds) <= kFarthest)) return 0.0;
  const auto systemTime = static_cast<std::time_t>(seconds + kEpochTo2001);
  std::tm local{};
  if (::localtime_r(&systemTime, &local) == nullptr) return 0.0;
  return static_cast<double>(local.tm_gmtoff);
}

bool chooseTimeZone(const std::string& name) {
  const char* chosenFolder = std::getenv("TZDIR");
  const std::filesystem::path folder = chosenFolder ? chosenFolder : "/usr/share/zoneinfo";
  const bool isPath = name.starts_with('/') || name.find("..") != std::string::npos;
  std::error_code ignored;
  // The system itself takes a name that it does not know for UTC, without a word.
  const bool isKnown = name == "UTC" || (!name.empty() && !isPath && name.find('\0') == std::string::npos &&
                                         std::filesystem::is_regular_file(folder / name, ignored));
  return isKnown && ::setenv("TZ", name.c_str(), 1) == 0;
}

}  // namespace nascor::posix
