// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Projection.h"

#include "calc/Centile.h"
#include "calc/LookUp.h"

namespace nascor::calc {

bool projectionIsShown(double ageAtLastExam, double plannedGestation) {
  const bool hidden = (ageAtLastExam >= plannedGestation) || (ageAtLastExam < 30.0);
  return !hidden;
}

double projectedValue(const ReferenceTable& table, double value, double age, double plannedGestation) {
  const double z = value != 0.0 ? zScore(table, value, age) : 0.0;
  const auto [mean, sd] = meanAndSDForGestation(table, plannedGestation);
  return mean + z * sd;
}

}  // namespace nascor::calc
