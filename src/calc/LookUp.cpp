#include "calc/LookUp.h"

#include <algorithm>

namespace nascor::calc {
namespace {

/// The first row that is not before `gestation`; the number of rows where there is none. With a row for each week, the weeks
/// since the first row lead there at once; in another table the neighbours are looked at.
std::size_t rowForGestation(const ReferenceTable& table, double gestation) {
  if (!(gestation <= table.back().observation())) return table.size();
  const double weeks = gestation - table.front().observation();
  if (weeks <= 0.0) return 0;
  std::size_t i = std::min(static_cast<std::size_t>(weeks), table.size() - 1);
  while (table[i].observation() < gestation) ++i;
  while (table[i - 1].observation() >= gestation) --i;
  return i;
}

double interpolated(const ReferenceTable& table, double gestation, double (DatabaseRecord::*column)() const) {
  if (gestation == 0.0 || table.empty()) return 0.0;
  const std::size_t i = rowForGestation(table, gestation);
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
