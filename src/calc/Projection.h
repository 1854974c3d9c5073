// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "calc/Standards.h"

namespace nascor::calc {

/// Whether the report projects to `plannedGestation`: the last examination lies before it, and not before 30 weeks.
/// A value that is not a number does not hide the projection.
bool projectionIsShown(double ageAtLastExam, double plannedGestation);

/// `value` (mm, at `age` weeks) carried to `plannedGestation` on the same z-score. A value of 0.0, not measured,
/// gives the mean at `plannedGestation`. An age of 0.0, unknown, gives a result that is not finite.
double projectedValue(const ReferenceTable& table, double value, double age, double plannedGestation);

}  // namespace nascor::calc
