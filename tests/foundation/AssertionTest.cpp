// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Assertion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nascor::foundation {
namespace {

TEST(Required, givesBackWhatIsThere) {
  int number = 7;
  int* pointer = &number;
  EXPECT_EQ(required(pointer), &number);
  EXPECT_EQ(*required(std::optional<int>(0)), 0) << "an optional that holds nothing but zero is there";

  std::optional<std::string> text("a");
  required(text)->append("b");
  EXPECT_EQ(text, "ab");

  const std::unique_ptr<int> taken = required(std::make_unique<int>(3));
  EXPECT_EQ(*taken, 3);
}

TEST(Required, saysThatTheValueIsNilAndWhere) {
  const int* nothing = nullptr;
  unsigned line = 0;
  try {
    line = __LINE__ + 1;
    required(nothing);
    FAIL() << "nothing was taken";
  } catch (const AssertionFailure& failure) {
    const std::string place = "AssertionTest.cpp:" + std::to_string(line);
    EXPECT_THAT(failure.what(), testing::StartsWith("Value==nil"));
    EXPECT_THAT(failure.what(), testing::HasSubstr(place));
    EXPECT_EQ(failure.where().line(), line);
    EXPECT_TRUE(std::string_view(failure.where().file_name()).ends_with("AssertionTest.cpp"));
  }
}

TEST(Required, refusesAnEmptyOptionalAndAnEmptyOwner) {
  std::optional<int> none;
  std::unique_ptr<int> nobody;
  EXPECT_THROW(required(none), AssertionFailure);
  EXPECT_THROW(required(nobody), AssertionFailure);
  EXPECT_THROW(required(std::optional<int>()), AssertionFailure);
}

}  // namespace
}  // namespace nascor::foundation
