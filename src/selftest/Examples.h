// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace nascor::selftest {

/// What a worked example asks of the program, and what it gives for it.
enum class Question {
  weight,           ///< by formula `which`: BPD, HC, AC, FL; grams
  crlAge,           ///< by formula `which`: a crown-rump length; weeks
  rowMean,          ///< of standard `which`: a whole week; the mean in its table
  rowSD,            ///<
  lookUpMean,       ///< of standard `which`: a week; the mean by look-up
  lookUpSD,         ///<
  lookUpGestation,  ///< of standard `which`: a length; weeks
  projection,       ///< by standard `which`: length, its age, planned age; the length then
  age,              ///< seconds of the examination and of the EDD; weeks
  weeksOfAge,       ///< a gestation; its whole weeks
  daysOfAge,        ///< a gestation; the days beside them
  eddFromPeriod,    ///< seconds of the last period, cycle, luteal phase; seconds
  eddFromAge,       ///< seconds of a scan, its age; seconds
  eddFromLengths,   ///< seconds of an examination, its average age; seconds
  plannedDays,      ///< a planned gestation, the standard; days from the EDD
  documentField,  ///< field `which` of the document in the examples, given its examination and fetus; see Documents.cpp
  documentBytes,   ///< the bytes of that document that differ when it is written again
  median,          ///< of reference `which`: a week
  z,               ///< by reference `which`: a week, a value
  centile,         ///< by reference `which`: a week, a value; percent
  valueAtZ,        ///< of reference `which`: a week, a z
  valueAtCentile,  ///< of reference `which`: a week, a centile
  weekOfMedian,    ///< of reference `which`: a value; weeks
};

/// A number that was worked out or printed elsewhere.
struct Example {
  std::string_view group;
  Question question;
  std::size_t which;            ///< place of the formula, standard, reference or field; else 0
  std::size_t quantity;         ///< place in calc::kQuantities; else 0
  std::array<double, 4> given;  ///< in the order of the question; what it does not need is 0
  double expected;
  double
      tolerance;  ///< the farthest that the program may be off: half of the last digit of print, or of rounding
  std::string_view source;  ///< where the number comes from
};

/// The groups, in the order in which they are told.
std::span<const std::string_view> groups();

/// All worked examples.
std::vector<Example> examples();

/// @name Their parts
/// @{
std::vector<Example> printedExamples();
std::span<const Example> computedExamples();
/// @}

/// Field `which` of the document that the examples hold as bytes. Of an examination or fetus where the field is of one.
double documentField(std::size_t which, std::size_t examination, std::size_t fetus);
/// The bytes in which that document differs from itself after it was read and written.
double documentDifferences();

}  // namespace nascor::selftest
