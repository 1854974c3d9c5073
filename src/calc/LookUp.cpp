// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/LookUp.h"

#include <cstddef>

namespace nascor::calc {
namespace {

/// The place of an age in a table: in a row, or some way from that row to the next.
struct Place {
  const DatabaseRecord* row;  ///< null on an empty table and for an age of exactly 0.0
  bool isBetween;
  double part;  ///< of the way to the next row
};

/// With a row for each week, the weeks since the first row lead to the age at once; in another table the neighbours are looked
/// at.
Place placeOf(const ReferenceTable& table, double gestation) {
  if (gestation == 0.0 || table.empty()) return {nullptr, false, 0.0};
  const DatabaseRecord* const first = table.data();
  const DatabaseRecord* const last = first + (table.size() - 1);
  if (!(gestation <= last->observation())) return {last, false, 0.0};
  const double weeks = gestation - first->observation();
  if (weeks <= 0.0) return {first, false, 0.0};

  // The first row that is not before the age. There is one, and it is not the first.
  const DatabaseRecord* after =
      weeks < static_cast<double>(last - first) ? first + static_cast<std::ptrdiff_t>(weeks) : last;
  while (after->observation() < gestation) ++after;
  while (after[-1].observation() >= gestation) --after;
  const DatabaseRecord* const before = after - 1;
  return {before, true, (gestation - before->observation()) / (after->observation() - before->observation())};
}

template <double (DatabaseRecord::*kColumn)() const>
double valueAt(const Place& place) {
  if (place.row == nullptr) return 0.0;
  const double before = (place.row->*kColumn)();
  return place.isBetween ? before + place.part * ((place.row[1].*kColumn)() - before) : before;
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
  return valueAt<&DatabaseRecord::mean>(placeOf(table, gestation));
}

double sdForGestation(const ReferenceTable& table, double gestation) {
  return valueAt<&DatabaseRecord::sd>(placeOf(table, gestation));
}

MeanAndSD meanAndSDForGestation(const ReferenceTable& table, double gestation) {
  const Place place = placeOf(table, gestation);
  return {.mean = valueAt<&DatabaseRecord::mean>(place), .sd = valueAt<&DatabaseRecord::sd>(place)};
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
