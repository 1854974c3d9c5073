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

/// The first row whose mean is not below `value`; the last one where there is none, without a look at its mean.
std::size_t rowForMeasurement(const ReferenceTable& table, double value) {
  const std::size_t last = table.size() - 1;
  std::size_t i = 0;
  while (i < last && !(table[i].mean() >= value)) ++i;
  return i;
}

}  // namespace

double gestationForMeasurement(const ReferenceTable& table, double value) {
  if (!(value > 0.0) || table.empty()) return 0.0;
  const std::size_t last = table.size() - 1;
  const std::size_t i = rowForMeasurement(table, value);
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

BeyondTable weekBeyondTable(const ReferenceTable& table, double gestation) {
  if (gestation == 0.0 || table.empty()) return BeyondTable::no;
  if (gestation < table.front().observation()) return BeyondTable::before;
  return gestation <= table.back().observation() ? BeyondTable::no : BeyondTable::after;
}

BeyondTable valueBeyondTable(const ReferenceTable& table, double value) {
  if (!(value > 0.0) || table.empty()) return BeyondTable::no;
  const std::size_t i = rowForMeasurement(table, value);
  if (table[i].mean() == value) return BeyondTable::no;
  if (i + 1 == table.size()) return BeyondTable::after;
  return i == 0 ? BeyondTable::before : BeyondTable::no;
}

}  // namespace nascor::calc
