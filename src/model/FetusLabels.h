// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace nascor::model {

/// The names of the fetuses of a pregnancy, in their order, in English: keys of the table "NCDocument". None for a
/// number of fetuses outside 1 to 5.
std::span<const std::string_view> fetusLabels(std::int64_t numberOfFetuses);

}  // namespace nascor::model
