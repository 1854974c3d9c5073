// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "selftest/Examples.h"

namespace nascor::selftest {

/// How the examples of one group came out.
struct GroupResult {
  std::string_view group;
  std::size_t values = 0;
  std::size_t differences = 0;
};

/// What the program answers to an example; NaN where it has no answer.
double answerTo(const Example& example);

/// Whether that is what the example expects.
bool agrees(const Example& example);

/// Works all of `examples` out again: a result for each group, then "total".
std::vector<GroupResult> replay(std::span<const Example> examples);

}  // namespace nascor::selftest
