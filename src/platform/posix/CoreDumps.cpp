// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/CoreDumps.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace nascor::posix {
namespace {

// The sanitizers look into the process as a debugger does.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kMayBeLookedInto = true;
#elif defined(__has_feature)
constexpr bool kMayBeLookedInto = __has_feature(address_sanitizer);
#else
constexpr bool kMayBeLookedInto = false;
#endif

}  // namespace

void switchOffCoreDumps() {
  const rlimit none{.rlim_cur = 0, .rlim_max = 0};
  ::setrlimit(RLIMIT_CORE, &none);
  // A program that the system hands the memory to may disregard the limit.
  if (!kMayBeLookedInto) ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

}  // namespace nascor::posix
