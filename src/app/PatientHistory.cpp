// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/PatientHistory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>
#include <utility>
#include <variant>

#include "calc/Biometry.h"
#include "calc/Dating.h"

namespace nascor::app {
namespace {

using calc::Measurement;
using model::NCRecord;

bool isSame(double one, double other) {
  return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

bool isSame(std::int64_t one, std::int64_t other) { return one == other; }

bool isSame(const std::optional<std::string>& one, const std::optional<std::string>& other) {
  return one == other;
}

bool isSame(const std::optional<foundation::Date>& one, const std::optional<foundation::Date>& other) {
  if (!one || !other) return one.has_value() == other.has_value();
  return isSame(one->secondsSince2001, other->secondsSince2001);
}

bool isSame(const model::MeasurementsRecord& one, const model::MeasurementsRecord& other) {
  return std::ranges::all_of(calc::kMeasurements, [&](Measurement measurement) {
    const auto member = calc::memberFor(measurement);
    return isSame(one.biometry().*member, other.biometry().*member);
  });
}

bool hasSameLengths(const NCRecord& one, const NCRecord& other) {
  return std::ranges::equal(one.measurements(), other.measurements(),
                            [](const auto& a, const auto& b) { return isSame(a, b); });
}

bool isSame(const NCRecord& one, const NCRecord& other) {
  return one.note() == other.note() && isSame(one.examDate(), other.examDate()) && hasSameLengths(one, other);
}

double plannedGestation(const PatientState& state) {
  return state.gestationInFile.value_or(calc::plannedGestation(state.plannedDays));
}

/// The only measurement that differs; `lengths` for several.
PatientChange changeOfLengths(const PatientState& before, const PatientState& after) {
  std::optional<Measurement> only;
  for (std::size_t i = 0; i < after.examinations.size(); ++i) {
    const auto& old = before.examinations[i]->measurements();
    const auto& now = after.examinations[i]->measurements();
    for (std::size_t fetus = 0; fetus < std::min(old.size(), now.size()); ++fetus) {
      for (const Measurement measurement : calc::kMeasurements) {
        const auto member = calc::memberFor(measurement);
        if (isSame(old[fetus].biometry().*member, now[fetus].biometry().*member)) continue;
        if (only && *only != measurement) return PatientChange::lengths;
        only = measurement;
      }
    }
  }
  switch (only.value_or(Measurement::bpd)) {
    case Measurement::bpd: return only ? PatientChange::bpd : PatientChange::lengths;
    case Measurement::hc: return PatientChange::hc;
    case Measurement::ac: return PatientChange::ac;
    case Measurement::fl: break;
  }
  return PatientChange::fl;
}

/// What a change of a value is called. Where a step changes several, the first of them here names it.
struct NamedChange {
  std::string_view value;  ///< in model::kPatientValues
  PatientChange change;
};
constexpr std::array kNamedChanges{NamedChange{"edd", PatientChange::edd},
                                   NamedChange{"standard", PatientChange::growthStandard},
                                   NamedChange{"fetalWeightStandard", PatientChange::weightFormula},
                                   NamedChange{"crlStandard", PatientChange::crlFormula},
                                   NamedChange{"maternalIDString", PatientChange::identifier},
                                   NamedChange{"gravida", PatientChange::gravidity}};

/// `changeBetween` looks at these two itself: at the number before all else, at the plan behind all else.
constexpr std::array<std::string_view, 2> kOtherValues{"numberOfFetuses", "extrapolatedGestation"};

static_assert(std::ranges::all_of(model::kPatientValues, [](const model::PatientValue& value) {
  return std::ranges::find(kOtherValues, value.name) != kOtherValues.end() ||
         std::ranges::find(kNamedChanges, value.name, &NamedChange::value) != kNamedChanges.end();
}));

bool isSame(const model::PatientValue& value, const model::PatientValues& before,
            const model::PatientValues& after) {
  return std::visit([&](auto member) { return isSame(before.*member, after.*member); }, value.member);
}

std::optional<PatientChange> changeOfPatient(const model::PatientRecord& before,
                                             const model::PatientRecord& after) {
  for (const NamedChange& named : kNamedChanges) {
    const auto* const value =
        std::ranges::find(model::kPatientValues, named.value, &model::PatientValue::name);
    if (!isSame(*value, before.values(), after.values())) return named.change;
  }
  return std::nullopt;
}

/// Of as many examinations in both.
std::optional<PatientChange> changeOfExaminations(const PatientState& before, const PatientState& after) {
  const auto differs = [&](const auto& isAlike) {
    return !std::ranges::equal(
        before.examinations, after.examinations,
        [&](const auto& one, const auto& other) { return one == other || isAlike(*one, *other); });
  };
  if (differs([](const NCRecord& a, const NCRecord& b) { return isSame(a.examDate(), b.examDate()); }))
    return PatientChange::examinationDate;
  if (differs(hasSameLengths)) return changeOfLengths(before, after);
  if (differs([](const NCRecord& a, const NCRecord& b) { return a.note() == b.note(); }))
    return PatientChange::note;
  return std::nullopt;
}

}  // namespace

void PatientState::take(const model::PatientRecord& record, const Examinations& before) {
  patient = record.withoutExaminations();
  const auto& now = record.ncRecordsArray();
  examinations.assign(now.size(), nullptr);
  const std::size_t common = std::min(now.size(), before.size());
  std::size_t first = 0;
  for (; first < common && isSame(*now[first], *before[first]); ++first) examinations[first] = before[first];
  for (std::size_t last = 1; last <= common - first; ++last) {
    const auto& old = before[before.size() - last];
    if (!isSame(*now[now.size() - last], *old)) break;
    examinations[now.size() - last] = old;
  }
  for (std::size_t i = first; i < now.size(); ++i) {
    if (!examinations[i]) examinations[i] = std::make_shared<const NCRecord>(*now[i]);
  }
}

std::unique_ptr<model::PatientRecord> PatientState::record() const {
  auto record = std::make_unique<model::PatientRecord>(patient.withoutExaminations());
  for (const auto& examination : examinations)
    record->ncRecordsArray().push_back(std::make_unique<NCRecord>(*examination));
  return record;
}

std::optional<PatientChange> changeBetween(const PatientState& before, const PatientState& after) {
  if (before.examinations.size() != after.examinations.size()) {
    return before.examinations.size() < after.examinations.size() ? PatientChange::examinationAdded
                                                                  : PatientChange::examinationDeleted;
  }
  const std::int64_t fetuses = before.patient.numberOfFetuses();
  if (fetuses != after.patient.numberOfFetuses()) {
    return fetuses < after.patient.numberOfFetuses() ? PatientChange::fetusAdded
                                                     : PatientChange::fetusRemoved;
  }
  if (const auto change = changeOfPatient(before.patient, after.patient)) return change;
  if (const auto change = changeOfExaminations(before, after)) return change;
  if (!isSame(plannedGestation(before), plannedGestation(after))) return PatientChange::plannedDelivery;
  return std::nullopt;
}

void PatientHistory::begin(PatientState state, Place place, bool isSaved) {
  start_ = std::move(state);
  steps_.clear();
  done_ = 0;
  saved_ = isSaved ? std::optional<std::size_t>(0) : std::nullopt;
  place_ = place;
}

bool PatientHistory::note(PatientState state, Place place, std::optional<Preference> preference,
                          std::optional<PatientChange> name) {
  const Place from = std::exchange(place_, place);
  const auto change = changeBetween(present(), state);
  if (!change) return false;
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
  if (saved_ && *saved_ > done_) saved_.reset();
  steps_.push_back({.state = std::move(state),
                    .from = from,
                    .to = place,
                    .change = name.value_or(*change),
                    .preference = std::move(preference)});
  ++done_;
  return true;
}

bool PatientHistory::noteScript(PatientState state, Place place) {
  const bool isLast = done_ > 0 && done_ == steps_.size() && saved_ != done_;
  const bool mayGoOn = isLast && steps_.back().isOfScript && steps_.back().to == place && place_ == place;
  if (mayGoOn && changeBetween(present(), state) == steps_.back().change) {
    steps_.back().state = std::move(state);
    return true;
  }
  if (!note(std::move(state), place)) return false;
  steps_.back().isOfScript = true;
  return true;
}

std::optional<PatientChange> PatientHistory::undone() const {
  return done_ == 0 ? std::nullopt : std::optional(steps_[done_ - 1].change);
}

std::optional<PatientChange> PatientHistory::redone() const {
  return done_ == steps_.size() ? std::nullopt : std::optional(steps_[done_].change);
}

PatientHistory::Shown PatientHistory::undo() {
  --done_;
  place_ = steps_[done_].from;
  return {.state = present(), .place = place_, .preference = steps_[done_].preference};
}

PatientHistory::Shown PatientHistory::redo() {
  place_ = steps_[done_].to;
  ++done_;
  return {.state = present(), .place = place_, .preference = steps_[done_ - 1].preference};
}

}  // namespace nascor::app
