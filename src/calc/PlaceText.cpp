// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/PlaceText.h"

#include <algorithm>
#include <cmath>

#include "foundation/NumberText.h"

namespace nascor::calc {

using foundation::fieldText;

std::string zText(double z, const foundation::Localizer& localizer) {
  if (!std::isfinite(z)) return "-";
  return std::string(z >= 0.0 ? "+" : "").append(fieldText(z, 2, localizer.decimalSign()));
}

std::string centileText(const Centile& centile, const foundation::Localizer& localizer) {
  if (!std::isfinite(centile.percent)) return "-";
  if (centile.side != Centile::Side::within) {
    return std::string(centile.side == Centile::Side::below ? "<" : ">")
        .append(fieldText(centile.percent, 0, localizer.decimalSign()));
  }
  constexpr double kLeast = 0.1;
  constexpr double kGreatest = 99.9;
  const double shown = std::clamp(centile.percent, kLeast, kGreatest);
  return std::string(centile.percent < shown   ? "<"
                     : centile.percent > shown ? ">"
                                               : "")
      .append(fieldText(shown, 1, localizer.decimalSign()));
}

}  // namespace nascor::calc
