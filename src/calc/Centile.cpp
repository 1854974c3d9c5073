#include "calc/Centile.h"

#include <cmath>
#include <numbers>

#include "calc/LookUp.h"

namespace nascor::calc {

double zScore(const ReferenceTable& table, double value, double age) {
  return zScore(value, meanForGestation(table, age), sdForGestation(table, age));
}

double zScore(double value, double mean, double sd) { return (value - mean) / sd; }

double centileOfZ(double z) {
  // 1 - erf would leave no digits in the lower tail.
  return 50.0 * std::erfc(-z / std::numbers::sqrt2);
}

}  // namespace nascor::calc
