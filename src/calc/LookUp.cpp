#include "calc/LookUp.h"

namespace nascor::calc {
namespace {

double interpolated(const ReferenceTable& table, double gestation, double (DatabaseRecord::*column)() const) {
  if (gestation == 0.0 || table.empty()) return 0.0;
  std::size_t i = 0;
  while (i < table.size() && !(table[i].observation() >= gestation)) ++i;
  if (i == table.size()) return (table.back().*column)();
  if (i == 0) return (table.front().*column)();

  const DatabaseRecord& before = table[i - 1];
  const DatabaseRecord& after = table[i];
  return (before.*column)() + (gestation - before.observation()) /
                                  (after.observation() - before.observation()) *
                                  ((after.*column)() - (before.*column)());
}

}  // namespace

double gestationForMeasurement(const ReferenceTable& table, double value) {
  if (!(value > 0.0) || table.empty()) return 0.0;
  const std::size_t last = table.size() - 1;
  std::size_t i = 0;
  while (i < last && !(table[i].mean() >= value)) ++i;
  if (i == 0 || i == last || table[i].mean() == value) return table[i].observation();

  const DatabaseRecord& before = table[i - 1];
  const DatabaseRecord& after = table[i];
  return before.observation() + (value - before.mean()) / (after.mean() - before.mean()) *
                                    (after.observation() - before.observation());
}

double meanForGestation(const ReferenceTable& table, double gestation) {
  return interpolated(table, gestation, &DatabaseRecord::mean);
}

double sdForGestation(const ReferenceTable& table, double gestation) {
  return interpolated(table, gestation, &DatabaseRecord::sd);
}

}  // namespace nascor::calc
