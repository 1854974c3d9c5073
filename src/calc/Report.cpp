// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Report.h"

#include "foundation/ConvertInteger.h"
#include "foundation/NumberText.h"

namespace nascor::calc {

using foundation::fixedText;

std::string reportedWeight(double grams) { return grams > 100.0 ? fixedText(grams, 0) : "-"; }

double deliveryAdjustment(double plannedGestation) { return (plannedGestation - 40.0) * 7.0; }

std::string daysToGoLine(double plannedGestation, const foundation::Localizer& localizer) {
  // Always 0: deliberate, and listed in docs/oddities.md. Reports in use show it so.
  constexpr std::int64_t kDaysToGo = 0;
  std::string line = foundation::format(localizer.text("", "Days to Go:\t%ld"), {kDaysToGo});
  const double adjustment = deliveryAdjustment(plannedGestation);
  if (adjustment != 0.0) line += " (" + fixedText(static_cast<double>(kDaysToGo) + adjustment, 0) + ")";
  return line;
}

std::uint64_t firstExaminationShown(std::uint64_t examinations, double height, bool withProjection) {
  constexpr double kLine = 24.0;
  constexpr double kFrameTop = 124.0;
  constexpr double kRowPitch = 41.0;
  auto fit =
      static_cast<std::uint64_t>(foundation::truncatedToInteger((height - kLine - kFrameTop) / kRowPitch));
  if (withProjection) --fit;
  return examinations > fit ? examinations - fit : 0;
}

}  // namespace nascor::calc
