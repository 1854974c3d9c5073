// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "calc/Standards.h"

namespace nascor::calc {

// Where a value lies among its peers. Not finite where the table gives no mean or no deviation; an age of exactly 0.0,
// unknown, is such a place.

/// Standard deviations by which `value` lies above the mean at `age` weeks, by the look-ups of calc/LookUp.h: beyond the
/// table its first or last week counts.
double zScore(const ReferenceTable& table, double value, double age);

/// The same from a mean and a standard deviation that were looked up before.
inline double zScore(double value, double mean, double sd) { return (value - mean) / sd; }

/// The share, in percent, of a normal distribution that lies below `z` standard deviations. Right to 1e-9, and in the
/// lower tail to twelve digits however small it is; 0 and 100 at the infinities, NaN for NaN.
double centileOfZ(double z);

/// The z below which `centile` percent of a normal distribution lie, for more than 0 and less than 100: the inverse of
/// `centileOfZ`, exactly 0 for 50.
double zOfCentile(double centile);

}  // namespace nascor::calc
