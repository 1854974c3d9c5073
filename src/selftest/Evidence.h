// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Equations.h"
#include "calc/Publications.h"
#include "foundation/Localizer.h"
#include "selftest/Examples.h"

namespace nascor::selftest {

/// What stands behind a figure: how it is worked out, where that was published, and what it was checked with.
struct Evidence {
  std::string_view label;  ///< UTF-8; empty for a quotient
  std::optional<calc::Publication> publication{};
  std::vector<calc::Equation> equations{};
  std::vector<calc::PrintedRow> rows{};  ///< of a standard that is a printed table, of one quantity
  /// @name From where to where it holds: weeks of a reference, mm of a crown-rump length
  /// @{
  std::optional<double> first{};
  std::optional<double> last{};
  /// @}
  std::string_view assumes{};       ///< what a value must be, in English; may be empty
  std::vector<Example> examples{};  ///< of one quantity where the method names one
};

/// All behind the figures of `method`.
Evidence evidenceFor(const calc::Method& method);

/// What an example gives and what it asks for, in words: "Week 14, centile 3: value".
std::string questionText(const Example& example, const foundation::Localizer& localizer);

}  // namespace nascor::selftest
