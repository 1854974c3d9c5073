// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/Module.h"

#include <gtest/gtest.h>

namespace nascor::posix {
namespace {

TEST(AModule, thatIsNotInstalledIsToldOf) {
  const auto found = moduleAddress("none", "function");
  ASSERT_TRUE(std::holds_alternative<foundation::Sentence>(found));
  EXPECT_EQ(english(std::get<foundation::Sentence>(found)), "the module none is not installed");
}

}  // namespace
}  // namespace nascor::posix
