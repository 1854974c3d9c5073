// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "selftest/SelfTest.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/Projection.h"
#include "calc/References.h"
#include "calc/Standards.h"

namespace nascor::selftest {
namespace {

using foundation::Date;

constexpr double kNoAnswer = std::numeric_limits<double>::quiet_NaN();

/// A zone in which every day has 24 hours.
class Greenwich final : public foundation::Calendar {
 public:
  double offsetFromUtc(Date /*instant*/) const override { return 0.0; }
};

calc::Measurement measurementOf(const Example& example) { return calc::kMeasurements.at(example.quantity); }

calc::ReferenceTable tableOf(const Example& example) {
  calc::ReferenceTable table;
  calc::appendStandard(table, static_cast<std::int64_t>(example.which), measurementOf(example));
  return table;
}

double formulaAnswer(const Example& example) {
  const auto& [a, b, c, d] = example.given;
  if (example.question == Question::weight)
    return calc::weightFormulas()[example.which].weight({.bpd = a, .hc = b, .ac = c, .fl = d});
  return calc::crlFormulas()[example.which].menstrualAge(a);
}

double standardAnswer(const Example& example) {
  const auto& [a, b, c, d] = example.given;
  const auto row = [&example] {
    const int week = static_cast<int>(example.given[0]);
    return calc::growthStandards()[example.which].row(measurementOf(example), week);
  };
  switch (example.question) {
    case Question::rowMean: return row().mean();
    case Question::rowSD: return row().sd();
    case Question::lookUpMean: return calc::meanForGestation(tableOf(example), a);
    case Question::lookUpSD: return calc::sdForGestation(tableOf(example), a);
    case Question::lookUpGestation: return calc::gestationForMeasurement(tableOf(example), a);
    default: return calc::projectedValue(tableOf(example), a, b, c);
  }
}

double datingAnswer(const Example& example) {
  const auto& [a, b, c, d] = example.given;
  const Greenwich greenwich;
  const auto secondsOf = [](const std::optional<Date>& date) {
    return date ? date->secondsSince2001 : kNoAnswer;
  };
  switch (example.question) {
    case Question::age: return calc::menstrualAge(Date{a}, Date{b});
    case Question::weeksOfAge: return static_cast<double>(calc::weeksAndDays(a).weeks);
    case Question::daysOfAge: return static_cast<double>(calc::weeksAndDays(a).days);
    case Question::eddFromPeriod:
      return secondsOf(
          calc::eddFromLMP(Date{a}, static_cast<std::int64_t>(b), static_cast<std::int64_t>(c), greenwich));
    case Question::eddFromAge: return secondsOf(calc::eddFromAgeAtScan(Date{a}, b, greenwich));
    case Question::eddFromLengths: return secondsOf(calc::eddFromMeasurements(Date{a}, b, greenwich));
    default: return calc::plannedDays(a, static_cast<std::int64_t>(b));
  }
}

double referenceAnswer(const Example& example) {
  const auto& [a, b, c, d] = example.given;
  const calc::Reference& reference = calc::references()[example.which];
  const calc::Quantity quantity = calc::kQuantities.at(example.quantity);
  if (example.question == Question::weekOfMedian)
    return calc::weekOfMedian(reference, quantity, a).value_or(kNoAnswer);
  const auto population = calc::populationAt(reference, quantity, a);
  if (!population) return kNoAnswer;
  switch (example.question) {
    case Question::median: return population->median();
    case Question::z: return population->z(b).value_or(kNoAnswer);
    case Question::valueAtZ: return population->valueAtZ(b).value_or(kNoAnswer);
    case Question::valueAtCentile: return population->valueAtCentile(b).value_or(kNoAnswer);
    default: break;
  }
  const auto centile = population->centile(b);
  const bool isKnown = centile && centile->side == calc::Centile::Side::within;
  return isKnown ? centile->percent : kNoAnswer;
}

}  // namespace

double answerTo(const Example& example) {
  switch (example.question) {
    case Question::weight:
    case Question::crlAge: return formulaAnswer(example);
    case Question::rowMean:
    case Question::rowSD:
    case Question::lookUpMean:
    case Question::lookUpSD:
    case Question::lookUpGestation:
    case Question::projection: return standardAnswer(example);
    case Question::documentField:
      return documentField(example.which, static_cast<std::size_t>(example.given[0]),
                           static_cast<std::size_t>(example.given[1]));
    case Question::documentBytes: return documentDifferences();
    case Question::median:
    case Question::z:
    case Question::centile:
    case Question::valueAtZ:
    case Question::valueAtCentile:
    case Question::weekOfMedian: return referenceAnswer(example);
    default: return datingAnswer(example);
  }
}

bool agrees(const Example& example) {
  return std::abs(answerTo(example) - example.expected) <= example.tolerance;
}

std::span<const std::string_view> groups() {
  static constexpr std::array<std::string_view, 14> kGroups{
      "weights", "crl",      "standards", "look-ups",         "dating",           "archive",      "westerway",
      "hadlock", "schluter", "cfef",      "intergrowth-2014", "intergrowth-2020", "hadlock-1991", "who-2017"};
  return kGroups;
}

std::vector<Example> examples() {
  std::vector<Example> all = printedExamples();
  const auto computed = computedExamples();
  all.insert(all.end(), computed.begin(), computed.end());
  return all;
}

std::vector<GroupResult> replay(std::span<const Example> examples) {
  std::vector<GroupResult> results;
  GroupResult total{.group = "total"};
  for (const std::string_view group : groups()) {
    GroupResult& result = results.emplace_back(GroupResult{.group = group});
    for (const Example& example : examples) {
      if (example.group != group) continue;
      ++result.values;
      if (!agrees(example)) ++result.differences;
    }
    total.values += result.values;
    total.differences += result.differences;
  }
  results.push_back(total);
  return results;
}

}  // namespace nascor::selftest
