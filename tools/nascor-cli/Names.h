// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "calc/Biometry.h"

namespace nascor::cli {

// One rule for what has a number and a name, on every command: the number, from 0, or the name, in either letter case.

/// ASCII letters as small ones.
std::string inSmallLetters(std::string_view text);

/// The place in `names` of the name or number in `text`; nothing when it is neither.
std::optional<std::size_t> placeOf(std::string_view text, std::span<const std::string_view> names);

/// The growth standard in `text`, or nothing: 0 to 3, westerway, hadlock, schluter, cfef.
std::optional<std::int64_t> standardFromText(std::string_view text);

/// The weight formula in `text`, or nothing: 0 to 7, hadlock1 to hadlock4, campbell, combs, ott, shepard.
std::optional<std::int64_t> formulaFromText(std::string_view text);

// The same, or a UsageError that names `what` and lists what there is.

std::int64_t requiredStandard(std::string_view what, const std::string& text);
std::int64_t requiredFormula(std::string_view what, const std::string& text);

/// The name of the estimated weight where it stands beside the four lengths.
inline constexpr std::string_view kWeightName = "efw";

/// What a table is of: a length, or the estimated weight.
struct Measure {
  std::optional<calc::Measurement> length{};  ///< nothing for the weight
};

/// bpd, hc, ac, fl or efw. Numbers are none: the pages of a document count otherwise.
Measure requiredMeasure(const std::string& text);

}  // namespace nascor::cli
