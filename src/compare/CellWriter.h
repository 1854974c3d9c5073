// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "compare/Comparison.h"
#include "compare/Tables.h"
#include "foundation/Localizer.h"

namespace nascor::compare {

inline constexpr int kLengthDecimals = 1;  ///< of a length in mm
inline constexpr int kWeightDecimals = 0;  ///< of a weight in g

/// The decimals with which a quantity is shown.
int decimalsOf(calc::Quantity quantity);

/// Writes figures in the user's way; "-" for what is missing or not finite.
class CellWriter {
 public:
  /// `localizer` outlives it.
  explicit CellWriter(const foundation::Localizer& localizer) : localizer_(localizer) {}

  std::string text(std::string_view table, std::string_view key) const { return localizer_.text(table, key); }

  /// Rounded half up, as the fields of the window show numbers.
  Cell number(std::optional<double> value, int decimals) const;
  /// With its sign.
  Cell change(std::optional<double> value, int decimals) const;
  Cell z(std::optional<double> z) const;
  Cell centile(const std::optional<calc::Centile>& centile) const;
  Cell age(std::optional<double> weeks) const;
  /// "BPD", "HC", "AC", "FL", "EFW", as the fields of the window have them.
  std::string name(calc::Quantity quantity) const;

  /// Why a place is missing, or stands for little; empty for neither.
  std::string remark(const Placed& figure) const;
  /// Appends a sentence, which may be empty, to others, unless it stands there already.
  static void append(std::string& all, const std::string& sentence);

 private:
  std::string sentence(Caution caution, const calc::Reference& reference) const;

  const foundation::Localizer& localizer_;
};

}  // namespace nascor::compare
