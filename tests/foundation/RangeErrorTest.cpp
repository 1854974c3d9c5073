// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/RangeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace nascor::foundation {
namespace {

template <class Index>
class CheckedAt : public testing::Test {};

using IndexTypes = testing::Types<std::int8_t, std::uint8_t, int, unsigned, std::int64_t, std::uint64_t>;
TYPED_TEST_SUITE(CheckedAt, IndexTypes);

TYPED_TEST(CheckedAt, givesTheElementItself) {
  std::vector<int> numbers{10, 20, 30};
  EXPECT_EQ(checkedAt(numbers, TypeParam{0}), 10);
  EXPECT_EQ(checkedAt(numbers, TypeParam{2}), 30);
  checkedAt(numbers, TypeParam{1}) = 21;
  EXPECT_EQ(numbers[1], 21);
  const std::array<int, 2> fixed{1, 2};
  EXPECT_EQ(&checkedAt(fixed, TypeParam{1}), &fixed[1]);
}

TYPED_TEST(CheckedAt, refusesEveryOtherIndex) {
  std::vector<int> numbers{10, 20, 30};
  std::vector<int> none;
  EXPECT_THROW(checkedAt(numbers, TypeParam{3}), RangeError);
  EXPECT_THROW(checkedAt(numbers, std::numeric_limits<TypeParam>::max()), RangeError);
  EXPECT_THROW(checkedAt(none, TypeParam{0}), RangeError);
  if constexpr (std::numeric_limits<TypeParam>::is_signed) {
    EXPECT_THROW(checkedAt(numbers, TypeParam{-1}), RangeError);
    EXPECT_THROW(checkedAt(numbers, std::numeric_limits<TypeParam>::min()), RangeError);
  }
}

TEST(RangeErrors, nameTheIndexTheCountAndThePlace) {
  const std::vector<int> numbers{10, 20, 30};
  unsigned line = 0;
  try {
    line = __LINE__ + 1;
    checkedAt(numbers, -1);
    FAIL() << "the index was taken";
  } catch (const RangeError& error) {
    EXPECT_STREQ(error.what(), "index -1 is outside the 3 elements");
    EXPECT_EQ(error.where().line(), line);
    EXPECT_TRUE(std::string_view(error.where().file_name()).ends_with("RangeErrorTest.cpp"));
  }
}

}  // namespace
}  // namespace nascor::foundation
