// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "compare/Comparison.h"

#include <algorithm>
#include <cmath>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "foundation/RangeError.h"

namespace nascor::compare {
namespace {

using calc::Measurement;
using calc::Quantity;
using model::NCRecord;
using model::PatientRecord;

std::optional<double> ifAboveZero(double value) {
  if (!std::isfinite(value) || !(value > 0.0)) return std::nullopt;
  return value;
}

std::optional<double> ageAt(const PatientRecord& patient, const NCRecord& examination) {
  const double age = calc::menstrualAge(examination.examDate(), patient.edd());
  if (age == 0.0 || !std::isfinite(age)) return std::nullopt;
  return age;
}

calc::Biometry lengthsOf(const NCRecord& examination, std::size_t fetus) {
  const auto& measurements = examination.measurements();
  return fetus < measurements.size() ? measurements[fetus].biometry() : calc::Biometry{};
}

/// A length, or the weight by the formula that the document names.
std::optional<double> valueOf(const PatientRecord& patient, const calc::Biometry& lengths,
                              Quantity quantity) {
  if (quantity == Quantity::efw)
    return ifAboveZero(calc::estimatedFetalWeight(lengths, patient.fetalWeightStandard()));
  return ifAboveZero(lengths.*calc::memberFor(calc::kMeasurements.at(static_cast<std::size_t>(quantity))));
}

Length lengthOf(Measurement measurement, const calc::Biometry& lengths, std::optional<double> age) {
  Length length{.measurement = measurement, .value = ifAboveZero(lengths.*calc::memberFor(measurement))};
  const Quantity quantity = calc::quantityOf(measurement);
  for (const calc::Reference& reference : calc::references()) {
    if (calc::covers(reference, quantity))
      length.references.push_back(placed(reference, quantity, length.value, age));
  }
  return length;
}

Weight weightOf(std::int64_t formula, const calc::Biometry& lengths, std::optional<double> chosen,
                std::optional<double> age) {
  Weight weight{.formula = formula, .grams = ifAboveZero(calc::estimatedFetalWeight(lengths, formula))};
  if (weight.grams && chosen) weight.difference = *weight.grams - *chosen;
  for (const calc::Reference& reference : calc::references()) {
    if (!calc::covers(reference, Quantity::efw)) continue;
    Placed& figure = weight.references.emplace_back(placed(reference, Quantity::efw, weight.grams, age));
    const bool isOther = reference.onlyFormula && *reference.onlyFormula != formula;
    if (isOther && weight.grams) figure.cautions.push_back(Caution::otherFormula);
  }
  return weight;
}

std::optional<double> quotient(double dividend, double divisor) {
  if (!ifAboveZero(dividend) || !ifAboveZero(divisor)) return std::nullopt;
  return dividend / divisor;
}

std::vector<Fetus> fetusesOf(const PatientRecord& patient, const NCRecord& examination) {
  std::vector<Fetus> fetuses;
  std::size_t weighed = 0;
  double heaviest = 0.0;
  for (const model::MeasurementsRecord& measured : examination.measurements()) {
    const calc::Biometry lengths = measured.biometry();
    Fetus& fetus = fetuses.emplace_back();
    for (const Quantity quantity : calc::kQuantities)
      fetus.values.at(static_cast<std::size_t>(quantity)) = valueOf(patient, lengths, quantity);
    if (const auto& weight = fetus.values.back()) {
      ++weighed;
      heaviest = std::max(heaviest, *weight);
    }
  }
  if (weighed < 2) return fetuses;
  for (Fetus& fetus : fetuses) {
    if (const auto& weight = fetus.values.back()) fetus.less = (heaviest - *weight) / heaviest * 100.0;
  }
  return fetuses;
}

std::optional<double> discordanceAt(const PatientRecord& patient, const NCRecord& examination) {
  std::optional<double> greatest;
  for (const Fetus& fetus : fetusesOf(patient, examination)) {
    if (fetus.less) greatest = std::max(greatest.value_or(0.0), *fetus.less);
  }
  return greatest;
}

/// Weeks from one examination to a later one: the difference of their ages, or of their days where these are not known.
std::optional<double> weeksBetween(const PatientRecord& patient, const NCRecord& before,
                                   const NCRecord& now) {
  const auto ageBefore = ageAt(patient, before);
  const auto ageNow = ageAt(patient, now);
  if (ageBefore && ageNow) return *ageNow - *ageBefore;
  const auto days = calc::daysToEDD(before.examDate(), now.examDate());
  if (!days) return std::nullopt;
  return static_cast<double>(*days) / 7.0;
}

/// By the growth standard that the document names; empty for one that is not known.
Placed placedByDocument(const PatientRecord& patient, const NCRecord& examination, Quantity quantity,
                        double value) {
  const calc::Reference* reference = calc::referenceOfStandard(patient.standard());
  return reference != nullptr ? placed(*reference, quantity, value, ageAt(patient, examination)) : Placed{};
}

std::optional<Growth> growthOf(Quantity quantity, const PatientRecord& patient, std::size_t place,
                               std::size_t fetus) {
  const auto& examinations = patient.ncRecordsArray();
  const NCRecord& now = *examinations[place];
  const auto valueNow = valueOf(patient, lengthsOf(now, fetus), quantity);
  if (!valueNow) return std::nullopt;
  for (std::size_t earlier = place; earlier-- > 0;) {
    const NCRecord& before = *examinations[earlier];
    const auto valueBefore = valueOf(patient, lengthsOf(before, fetus), quantity);
    if (!valueBefore) continue;
    Growth growth{.quantity = quantity};
    const auto weeks = weeksBetween(patient, before, now);
    if (weeks && *weeks > 0.0) growth.perWeek = (*valueNow - *valueBefore) / *weeks;
    const Placed then = placedByDocument(patient, before, quantity, *valueBefore);
    const Placed today = placedByDocument(patient, now, quantity, *valueNow);
    if (then.z && today.z) growth.zChange = *today.z - *then.z;
    if (growth.perWeek && then.mean && today.mean)
      growth.expectedPerWeek = (*today.mean - *then.mean) / *weeks;
    return growth;
  }
  return std::nullopt;
}

}  // namespace

Placed placed(const calc::Reference& reference, Quantity quantity, std::optional<double> value,
              std::optional<double> age) {
  Placed figure{.reference = &reference};
  if (value) figure.weeks = calc::weekOfMedian(reference, quantity, *value);
  if (!age) {
    figure.cautions.push_back(Caution::ageUnknown);
    return figure;
  }
  if (!calc::reaches(reference, *age)) {
    figure.cautions.push_back(Caution::outsideWeeks);
    return figure;
  }
  const auto population = calc::populationAt(reference, quantity, *age);
  if (!population) return figure;
  figure.mean = population->mean();
  figure.sd = population->sd();
  figure.median = population->median();
  if (!value) return figure;
  figure.z = population->z(*value);
  figure.centile = population->centile(*value);
  if (!figure.centile) figure.cautions.push_back(Caution::withoutPlace);
  return figure;
}

std::vector<Fetus> fetusesAt(const PatientRecord& patient, std::size_t examination) {
  return fetusesOf(patient, *foundation::checkedAt(patient.ncRecordsArray(), examination));
}

std::vector<Length> lengthsAt(const PatientRecord& patient, std::size_t examination, std::size_t fetus) {
  const NCRecord& now = *foundation::checkedAt(patient.ncRecordsArray(), examination);
  const calc::Biometry lengths = lengthsOf(now, fetus);
  const auto age = ageAt(patient, now);
  std::vector<Length> all;
  all.reserve(calc::kMeasurements.size());
  for (const Measurement measurement : calc::kMeasurements)
    all.push_back(lengthOf(measurement, lengths, age));
  return all;
}

std::vector<Weight> weightsAt(const PatientRecord& patient, std::size_t examination, std::size_t fetus) {
  const NCRecord& now = *foundation::checkedAt(patient.ncRecordsArray(), examination);
  const calc::Biometry lengths = lengthsOf(now, fetus);
  const auto age = ageAt(patient, now);
  const auto chosen = valueOf(patient, lengths, Quantity::efw);
  std::vector<Weight> all;
  all.reserve(calc::weightFormulas().size());
  for (std::size_t formula = 0; formula < calc::weightFormulas().size(); ++formula)
    all.push_back(weightOf(static_cast<std::int64_t>(formula), lengths, chosen, age));
  return all;
}

Ratios ratiosAt(const PatientRecord& patient, std::size_t examination, std::size_t fetus) {
  const calc::Biometry lengths =
      lengthsOf(*foundation::checkedAt(patient.ncRecordsArray(), examination), fetus);
  return {.hcToAC = quotient(lengths.hc, lengths.ac),
          .flToAC = quotient(lengths.fl, lengths.ac),
          .flToBPD = quotient(lengths.fl, lengths.bpd)};
}

std::vector<Growth> growthAt(const PatientRecord& patient, std::size_t examination, std::size_t fetus) {
  static_cast<void>(foundation::checkedAt(patient.ncRecordsArray(), examination));
  std::vector<Growth> all;
  for (const Quantity quantity : calc::kQuantities) {
    if (const auto growth = growthOf(quantity, patient, examination, fetus)) all.push_back(*growth);
  }
  return all;
}

Comparison comparisonOf(const PatientRecord& patient, std::size_t examination, std::size_t fetus) {
  const NCRecord& now = *foundation::checkedAt(patient.ncRecordsArray(), examination);
  return {.age = ageAt(patient, now),
          .lengths = lengthsAt(patient, examination, fetus),
          .weights = weightsAt(patient, examination, fetus),
          .ratios = ratiosAt(patient, examination, fetus),
          .discordance = discordanceAt(patient, now),
          .growth = growthAt(patient, examination, fetus)};
}

}  // namespace nascor::compare
