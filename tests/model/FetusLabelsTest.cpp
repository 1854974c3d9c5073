// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/FetusLabels.h"

#include <gmock/gmock.h>

#include <limits>

namespace nascor::tests {
namespace {

using model::fetusLabels;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FetusLabels, nameEachFetusOfOneToFive) {
  EXPECT_THAT(fetusLabels(1), ElementsAre("Singleton"));
  EXPECT_THAT(fetusLabels(2), ElementsAre("Twin 1", "Twin 2"));
  EXPECT_THAT(fetusLabels(3), ElementsAre("Triplet 1 of 3", "Triplet 2 of 3", "Triplet 3 of 3"));
  EXPECT_THAT(fetusLabels(4), ElementsAre("Quad 1 of 4", "Quad 2 of 4", "Quad 3 of 4", "Quad 4 of 4"));
  EXPECT_THAT(fetusLabels(5),
              ElementsAre("Quin 1 of 5", "Quin 2 of 5", "Quin 3 of 5", "Quin 4 of 5", "Quin 5 of 5"));
}

TEST(FetusLabels, thereAreNoneForOtherCounts) {
  for (const std::int64_t count :
       {std::int64_t{0}, std::int64_t{-1}, std::int64_t{6}, std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_THAT(fetusLabels(count), IsEmpty()) << count;
  }
}

}  // namespace
}  // namespace nascor::tests
