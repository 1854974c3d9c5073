// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "foundation/Calendar.h"
#include "foundation/Date.h"
#include "foundation/Localizer.h"

namespace nascor::calc {

// Menstrual age ("gestation") is in weeks with a fraction; exactly 0.0 means unknown. A pregnancy is dated by its
// estimated date of delivery (EDD), 280 days after the first day of the last menstrual period (LMP).

/// The age at an examination: whole days between the dates (halves rounded away from zero), in weeks. 0.0 without
/// either date. Not clamped: more than 40 after the EDD, negative more than 280 days before it.
double menstrualAge(std::optional<foundation::Date> examDate, std::optional<foundation::Date> edd);

/// The whole days from an examination to the EDD that the age counts, halves rounded away from zero; negative after the
/// EDD. Nothing without either date.
std::optional<std::int64_t> daysToEDD(std::optional<foundation::Date> examDate,
                                      std::optional<foundation::Date> edd);

/// A gestation as whole weeks and days, both truncated toward zero: -0.5 weeks is 0 weeks and -3 days.
struct WeeksAndDays {
  std::int64_t weeks = 0;
  std::int64_t days = 0;
};
WeeksAndDays weeksAndDays(double gestation);

/// The one text of a gestation in the whole program: "20w 3d", or "-" for exactly 0.0.
std::string gestationText(double gestation, const foundation::Localizer& localizer);

// Menstrual age in weeks from the crown-rump length in millimetres. 0.0 outside the formula's range (bounds belong
// to it). The citations are in docs/sources.md, under the label of each formula.

double menstrualAgeFromCRLHadlock(double crl);    ///< 2.0 to 120.0 mm
double menstrualAgeFromCRLNelson(double crl);     ///< 6.7 to 82.4 mm
double menstrualAgeFromCRLRobinson(double crl);   ///< 7.0 to 79.6 mm
double menstrualAgeFromCRLWesterway(double crl);  ///< 2.0 to 87.0 mm

struct CRLFormula {
  std::string_view label;
  double (*menstrualAge)(double crl);
  double least;     ///< mm; the shortest length that it dates
  double greatest;  ///< mm; the longest
};

/// The four formulas; a formula's place is its identifier.
std::span<const CRLFormula, 4> crlFormulas();

/// The formula of an identifier, null for one outside 0 to 3.
const CRLFormula* crlFormula(std::int64_t crlStandard);

/// The age by the formula of that identifier; 0.0 for an unknown one.
double menstrualAgeFromCRL(double crl, std::int64_t crlStandard);

/// "CRL Standard: " and the label; "Unspecified" for an unknown identifier.
std::string crlStandardTitle(std::int64_t crlStandard, const foundation::Localizer& localizer);

/// The EDD of a pregnancy that is `age` weeks old at `scan`. The time of day of `scan` is kept.
foundation::Date eddFromAgeAtScan(foundation::Date scan, double age, const foundation::Calendar& calendar);

/// The EDD from the LMP, the length of the cycle and of its luteal phase in days: LMP + 280 days for 28 and 14.
/// Nothing when the sum of days is negative or beyond 64-bit seconds: no such pregnancy exists.
std::optional<foundation::Date> eddFromLMP(foundation::Date lmp, std::int64_t cycle, std::int64_t luteal,
                                           const foundation::Calendar& calendar);

/// The EDD from the average gestation of an examination's measurements. One day later than `eddFromAgeAtScan`.
foundation::Date eddFromMeasurements(foundation::Date examDate, double averageGestation,
                                     const foundation::Calendar& calendar);

/// The days from the EDD to the delivery that a document plans at `gestation` weeks, under the growth standard of that
/// identifier: no more than it permits (calc/EditingBounds.h). A file holds the gestation in single precision; within a
/// thousandth of a whole day it is that day, or the plan would read a day short.
double plannedDays(double gestation, std::int64_t standard);

/// The gestation, in weeks, of a delivery planned `days` after the EDD (before it when negative).
double plannedGestation(double days);

/// The date of a delivery planned `days` after the EDD.
foundation::Date plannedDeliveryDate(foundation::Date edd, double days, const foundation::Calendar& calendar);

/// The date at which a pregnancy is `weeks` old.
foundation::Date dateAtAge(foundation::Date edd, double weeks, const foundation::Calendar& calendar);

/// The week at which the axis marks an examination; nothing without either date. The seconds between the dates are
/// multiplied by those of a day, not divided: deliberate, so that the mark shows only on the day of delivery, at week 40.
std::optional<double> currentWeekOnAxis(std::optional<foundation::Date> examDate,
                                        std::optional<foundation::Date> edd);

/// The place in `dates` of the one nearest to `target`, by whole seconds; the first of equals. 0 when none lies within
/// 999999 seconds (eleven days and a half): deliberate, so that a click always shows an examination. Missing dates are
/// passed over.
std::size_t nearestDate(foundation::Date target, std::span<const std::optional<foundation::Date>> dates);

}  // namespace nascor::calc
