#pragma once

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

}  // namespace nascor::calc
