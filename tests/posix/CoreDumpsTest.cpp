// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/CoreDumps.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include "support/Spent.h"

namespace nascor::posix {
namespace {

TEST(CoreDumps, areSwitchedOffForTheProgram) {
  // In a process of its own: what is switched off stays so.
  EXPECT_EXIT(
      {
        switchOffCoreDumps();
        rlimit limit{};
        const bool isLimited =
            ::getrlimit(RLIMIT_CORE, &limit) == 0 && limit.rlim_cur == 0 && limit.rlim_max == 0;
        const bool isKept = tests::kIsSanitized || ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 0;
        ::_exit(isLimited && isKept ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace nascor::posix
