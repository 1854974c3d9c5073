// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Digits.h"

#include <gmock/gmock.h>

namespace nascor::summary {
namespace {

TEST(AFigure, isPartedAtItsDecimalSign) {
  EXPECT_EQ(lengthOfWhole("228.0"), 3U);
  EXPECT_EQ(lengthOfWhole("+1,36"), 2U);
  EXPECT_EQ(lengthOfWhole("<1"), 2U);
  EXPECT_EQ(lengthOfWhole("-"), 1U);
}

TEST(AFigure, isFilledUpToTheDecimalsOfItsColumn) {
  const Table table{.name = "",
                    .title = "",
                    .columns = {{.title = "word"}, {.title = "number", .isNumber = true}},
                    .rows = {{.cells = {{.text = "1.25"}, {.text = "99.5"}}},
                             {.cells = {{.text = ""}, {.text = "<1"}}},
                             {.cells = {{.text = ""}, {.text = "0.25"}}}}};
  EXPECT_EQ(decimalsOfColumns(table), (std::vector<std::size_t>{0, 2}));
  EXPECT_EQ(paddingBehind("0.25", 2), "");
  EXPECT_EQ(paddingBehind("99.5", 2), "\u2007");
  EXPECT_EQ(paddingBehind("<1", 2), "\u2008\u2007\u2007");
  EXPECT_EQ(paddingBehind("-", 0), "");
}

}  // namespace
}  // namespace nascor::summary
