// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Dating.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "calc/EditingBounds.h"
#include "foundation/ConvertInteger.h"

namespace nascor::calc {

using foundation::Calendar;
using foundation::Date;
using foundation::dateByAddingWallClockSeconds;
using foundation::Localizer;
using foundation::truncatedToInteger;

double menstrualAge(std::optional<Date> examDate, std::optional<Date> edd) {
  const auto daysToGo = daysToEDD(examDate, edd);
  if (!daysToGo) return 0.0;
  // Subtracted as doubles: a date from a damaged file may lie at the limit of the integers.
  return (280.0 - static_cast<double>(*daysToGo)) / 7.0;
}

std::optional<std::int64_t> daysToEDD(std::optional<Date> examDate, std::optional<Date> edd) {
  if (!examDate || !edd) return std::nullopt;
  return truncatedToInteger(std::round(timeIntervalSince(*edd, *examDate) / foundation::kSecondsPerDay));
}

WeeksAndDays weeksAndDays(double gestation) {
  // No rounding aid: 230 / 7.0 * 7.0 lies just below 230, so an age of 32w 6d prints as 32w 5d. Existing
  // reports show it so; docs/oddities.md lists the seven ages.
  return {.weeks = truncatedToInteger((gestation * 7.0) / 7.0),
          .days = truncatedToInteger(gestation * 7.0) % 7};
}

std::string gestationText(double gestation, const Localizer& localizer) {
  if (gestation == 0.0) return "-";
  const auto [weeks, days] = weeksAndDays(gestation);
  return foundation::format(localizer.text("NCDocument", "%ldw %ldd"), {weeks, days});
}

namespace {

/// The lengths, in mm, that a formula dates; both belong to them.
struct CRLRange {
  double least;
  double greatest;
};
constexpr CRLRange kHadlockCRL{.least = 2.0, .greatest = 120.0};
constexpr CRLRange kNelsonCRL{.least = 6.7, .greatest = 82.4};
constexpr CRLRange kRobinsonCRL{.least = 7.0, .greatest = 79.6};
constexpr CRLRange kWesterwayCRL{.least = 2.0, .greatest = 87.0};

}  // namespace

double menstrualAgeFromCRLHadlock(double crl) {
  const double c = crl / 10.0;
  // Compared in centimetres: a length a hair outside in millimetres may lie inside.
  if (!(c >= kHadlockCRL.least / 10.0 && c <= kHadlockCRL.greatest / 10.0)) return 0.0;
  return std::exp(1.684969 + 0.315646 * c - 0.049306 * std::pow(c, 2.0) + 0.004057 * std::pow(c, 3.0) -
                  0.000120456 * std::pow(c, 4.0));
}

double menstrualAgeFromCRLNelson(double crl) {
  if (!(crl >= kNelsonCRL.least && crl <= kNelsonCRL.greatest)) return 0.0;
  return (51.0008 + 0.6 * crl) / 7.0;
}

double menstrualAgeFromCRLRobinson(double crl) {
  if (!(crl >= kRobinsonCRL.least && crl <= kRobinsonCRL.greatest)) return 0.0;
  return (8.052 * std::sqrt(crl) + 23.72) / 7.0;
}

double menstrualAgeFromCRLWesterway(double crl) {
  if (!(crl >= kWesterwayCRL.least && crl <= kWesterwayCRL.greatest)) return 0.0;
  return 5.2876 + 0.1584 * crl - 0.0007 * std::pow(crl, 2.0);
}

std::span<const CRLFormula, 4> crlFormulas() {
  static constexpr std::array<CRLFormula, 4> kFormulas{{
      {"Hadlock (1992)", menstrualAgeFromCRLHadlock, kHadlockCRL.least, kHadlockCRL.greatest},
      {"Nelson (1981)", menstrualAgeFromCRLNelson, kNelsonCRL.least, kNelsonCRL.greatest},
      {"Robinson (1975)", menstrualAgeFromCRLRobinson, kRobinsonCRL.least, kRobinsonCRL.greatest},
      {"Westerway (2000)", menstrualAgeFromCRLWesterway, kWesterwayCRL.least, kWesterwayCRL.greatest},
  }};
  return kFormulas;
}

const CRLFormula* crlFormula(std::int64_t crlStandard) {
  const auto formulas = crlFormulas();
  if (crlStandard < 0 || std::cmp_greater_equal(crlStandard, formulas.size())) return nullptr;
  return &formulas[static_cast<std::size_t>(crlStandard)];
}

double menstrualAgeFromCRL(double crl, std::int64_t crlStandard) {
  const CRLFormula* formula = crlFormula(crlStandard);
  return formula ? formula->menstrualAge(crl) : 0.0;
}

std::string crlStandardTitle(std::int64_t crlStandard, const Localizer& localizer) {
  const CRLFormula* formula = crlFormula(crlStandard);
  return localizer.text("NCDocument", "CRL Standard: ") +
         std::string(formula ? formula->label : "Unspecified");
}

// The products below stand in this order because folding 24 x 60 x 60 first moves the last bit.

Date eddFromAgeAtScan(Date scan, double age, const Calendar& calendar) {
  return dateByAddingWallClockSeconds(scan, 7.0 * (40.0 - age) * 24.0 * 60.0 * 60.0, calendar);
}

std::optional<Date> eddFromLMP(Date lmp, std::int64_t cycle, std::int64_t luteal, const Calendar& calendar) {
  constexpr std::int64_t kSecondsIn266Days = 22982400;
  std::int64_t days = 0;
  std::int64_t seconds = 0;
  if (__builtin_sub_overflow(cycle, luteal, &days) ||
      __builtin_mul_overflow(days, std::int64_t{86400}, &seconds) ||
      __builtin_add_overflow(seconds, kSecondsIn266Days, &seconds) || seconds < 0) {
    return std::nullopt;
  }
  return dateByAddingWallClockSeconds(lmp, static_cast<double>(seconds), calendar);
}

Date eddFromMeasurements(Date examDate, double averageGestation, const Calendar& calendar) {
  // One day more than from a crown-rump length: deliberate, existing documents were dated so.
  const double seconds = (7.0 * (40.0 - averageGestation) + 1.0) * 24.0 * 60.0 * 60.0;
  return dateByAddingWallClockSeconds(examDate, seconds, calendar);
}

Date dateAtAge(Date edd, double weeks, const Calendar& calendar) {
  return dateByAddingWallClockSeconds(edd, -((40.0 - weeks) * 7 * 24 * 60 * 60), calendar);
}

std::optional<double> currentWeekOnAxis(std::optional<Date> examDate, std::optional<Date> edd) {
  if (!examDate || !edd) return std::nullopt;
  const double days = std::trunc(timeIntervalSince(*edd, *examDate) * foundation::kSecondsPerDay);
  return 40.0 - days / 7.0;
}

std::size_t nearestDate(Date target, std::span<const std::optional<Date>> dates) {
  std::size_t nearest = 0;
  std::int64_t nearestDistance = 999999;
  for (std::size_t i = 0; i < dates.size(); ++i) {
    if (!dates[i]) continue;
    const std::int64_t distance = truncatedToInteger(std::abs(timeIntervalSince(target, *dates[i])));
    if (distance < nearestDistance) {
      nearest = i;
      nearestDistance = distance;
    }
  }
  return nearest;
}

double plannedDays(double gestation, std::int64_t standard) {
  const double days = (gestation - 40.0) * 7.0;
  const double whole = std::round(days);
  return std::min(std::abs(days - whole) < 0.001 ? whole : days, plannedDeliveryDays(standard).greatest);
}

double plannedGestation(double days) { return days / 7.0 + 40.0; }

Date plannedDeliveryDate(Date edd, double days, const Calendar& calendar) {
  return dateByAddingWallClockSeconds(edd, days * 24.0 * 60.0 * 60.0, calendar);
}

}  // namespace nascor::calc
