// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "calc/Standards.h"

namespace nascor::calc {

// Look-ups in a reference table, by linear interpolation between whole weeks. They assume the order that a
// `ReferenceTable` has. On an empty table each answers 0.0.

/// The gestation, in weeks, of which `value` is the mean; 0.0 for a value that is not above zero (NaN included).
/// Never extrapolated: the first week at or below the first mean, and the last week for any value above the mean of
/// the last week but one. The last row's own mean is not looked at; documents in use rely on that.
double gestationForMeasurement(const ReferenceTable& table, double value);

/// The mean at `gestation` weeks; 0.0 for a gestation of exactly 0.0. The first row's at or below the first week
/// (negative ages too), the last row's beyond the last week or for NaN.
double meanForGestation(const ReferenceTable& table, double gestation);

/// The standard deviation at `gestation` weeks, by the same rules.
double sdForGestation(const ReferenceTable& table, double gestation);

struct MeanAndSD {
  double mean;
  double sd;
};

/// Both, for about the price of one.
MeanAndSD meanAndSDForGestation(const ReferenceTable& table, double gestation);

/// Where a look-up leaves its table, and which week it then answers from.
enum class BeyondTable { no, before, after };

/// Whether the first or the last week stands in for `gestation` in the look-ups of mean and deviation. `no` for a gestation
/// of exactly 0.0, which has none, and on an empty table.
BeyondTable weekBeyondTable(const ReferenceTable& table, double gestation);

/// Whether the first or the last week stands in for the gestation of `value`, because no two weeks lie around it. `no` for a
/// value that is not above zero, and on an empty table.
BeyondTable valueBeyondTable(const ReferenceTable& table, double value);

}  // namespace nascor::calc
