// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientDifferences.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>

#include "calc/Biometry.h"

namespace nascor::model {
namespace {

bool isSame(double one, double other) { return one == other || (std::isnan(one) && std::isnan(other)); }

bool isSame(const std::optional<foundation::Date>& one, const std::optional<foundation::Date>& other) {
  if (!one || !other) return !one && !other;
  return isSame(one->secondsSince2001, other->secondsSince2001);
}

bool isSame(std::int64_t one, std::int64_t other) { return one == other; }

bool isSame(const std::optional<std::string>& one, const std::optional<std::string>& other) {
  return one == other;
}

/// The differences that were found, up to as many as are wanted.
class Found {
 public:
  explicit Found(std::size_t most) : most_(most) {}

  bool isFull() const { return differences_.size() >= most_; }
  void add(PatientDifference difference) {
    if (!isFull()) differences_.push_back(std::move(difference));
  }
  std::vector<PatientDifference> take() { return std::move(differences_); }

 private:
  std::size_t most_;
  std::vector<PatientDifference> differences_;
};

std::string keyOf(std::string_view array, std::size_t place) {
  return std::string(array).append("[").append(std::to_string(place)).append("]");
}

void compareExaminations(const NCRecord& before, const NCRecord& after, std::size_t place, Found& found) {
  const std::string key = keyOf("examinations", place);
  const auto add = [&](std::string_view what) {
    found.add({.key = key + "." + std::string(what), .examination = place});
  };
  if (before.note() != after.note()) add("note");
  if (!isSame(before.examDate(), after.examDate())) add("examDate");
  const std::size_t both = std::min(before.measurements().size(), after.measurements().size());
  const std::size_t all = std::max(before.measurements().size(), after.measurements().size());
  for (std::size_t fetus = 0; fetus < all && !found.isFull(); ++fetus) {
    const std::string measured = keyOf("measurements", fetus);
    if (fetus >= both) {
      add(measured);
      continue;
    }
    for (const calc::Measurement measurement : calc::kMeasurements) {
      const auto length = calc::memberFor(measurement);
      if (!isSame(before.measurements()[fetus].biometry().*length,
                  after.measurements()[fetus].biometry().*length)) {
        add(measured + "." + std::string(calc::nameOf(measurement)));
      }
    }
  }
}

bool areAlike(const NCRecord& before, const NCRecord& after) {
  Found first(1);
  compareExaminations(before, after, 0, first);
  return !first.isFull();
}

}  // namespace

std::vector<PatientDifference> patientDifferences(const PatientRecord& before, const PatientRecord& after,
                                                  std::size_t most) {
  Found found(most);
  for (const PatientValue& value : kPatientValues) {
    const bool isAlike = std::visit(
        [&](auto member) { return isSame(before.values().*member, after.values().*member); }, value.member);
    if (!isAlike) found.add({.key = std::string(value.name)});
  }

  const auto& old = before.ncRecordsArray();
  const auto& fresh = after.ncRecordsArray();
  std::size_t begin = 0;
  std::size_t oldEnd = old.size();
  std::size_t freshEnd = fresh.size();
  while (begin < std::min(oldEnd, freshEnd) && areAlike(*old[begin], *fresh[begin])) ++begin;
  while (std::min(oldEnd, freshEnd) > begin && areAlike(*old[oldEnd - 1], *fresh[freshEnd - 1])) {
    --oldEnd;
    --freshEnd;
  }
  for (std::size_t place = begin; place < std::max(oldEnd, freshEnd) && !found.isFull(); ++place) {
    if (place < std::min(oldEnd, freshEnd)) {
      compareExaminations(*old[place], *fresh[place], place, found);
    } else {
      found.add(
          {.key = keyOf("examinations", place), .examination = place, .isMissingAfter = place >= freshEnd});
    }
  }
  return found.take();
}

}  // namespace nascor::model
