// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "foundation/Localizer.h"

namespace nascor::calc {

// Texts of the tabular report that need more than a format.

/// The weight of an examination: whole grams, or "-" for one that is not above 100 g (NaN included).
std::string reportedWeight(double grams);

/// The days by which a delivery planned at `plannedGestation` weeks differs from 40 weeks.
double deliveryAdjustment(double plannedGestation);

/// "Days to Go:", a tab and the days; then the adjustment in parentheses unless that is 0.0.
std::string daysToGoLine(double plannedGestation, const foundation::Localizer& localizer);

/// The index of the first examination that a report of that height lists: the latest ones that fit, in order. The
/// projected row takes the place of one of them. Where no row fits at all (and with the projection none besides it)
/// nothing is left out instead: the count wraps around, and existing prints show it so.
std::uint64_t firstExaminationShown(std::uint64_t examinations, double height, bool withProjection);

}  // namespace nascor::calc
