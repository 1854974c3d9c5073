// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ctime>
#include <fstream>
#include <sstream>
#include <string>

namespace nascor::tests {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kIsSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
inline constexpr bool kIsSanitized = true;
#else
inline constexpr bool kIsSanitized = false;
#endif
#else
inline constexpr bool kIsSanitized = false;
#endif

/// Whether a sanitizer or the count of covered lines slows the program down.
#ifdef NASCOR_COUNTS_LINES
inline constexpr bool kIsSlowed = true;
#else
inline constexpr bool kIsSlowed = kIsSanitized;
#endif

/// What this process has spent since the beginning of a step: processor time, which others on the machine do not lengthen,
/// and the greatest memory in use on the way.
class Spent {
 public:
  Spent() {
    // Makes the high-water mark of the memory start anew from what is in use now.
    std::ofstream("/proc/self/clear_refs") << "5";
    memoryBefore_ = mebibytes("VmHWM:");
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &begin_);
  }

  double seconds() const {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec - begin_.tv_sec) +
           static_cast<double>(now.tv_nsec - begin_.tv_nsec) * 1e-9;
  }
  /// Above what was in use at the beginning; 0 where the system does not tell.
  double memory() const { return mebibytes("VmHWM:") - memoryBefore_; }

 private:
  static double mebibytes(const std::string& wanted) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
      if (!line.starts_with(wanted)) continue;
      std::istringstream number(line.substr(wanted.size()));
      double kibibytes = 0.0;
      number >> kibibytes;
      return kibibytes / 1024.0;
    }
    return 0.0;
  }

  double memoryBefore_ = 0.0;
  timespec begin_{};
};

/// The most that one step may take with any document: a second of the processor, half of one more where other programs share
/// its caches, and 200 MiB. A sanitizer takes more of both.
inline constexpr double kMostSeconds = kIsSlowed ? 20.0 : 1.5;
inline constexpr double kMostMemory = kIsSanitized ? 4000.0 : 200.0;

}  // namespace nascor::tests
