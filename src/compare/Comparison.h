// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "calc/References.h"
#include "model/PatientRecord.h"

namespace nascor::compare {

// Each number of a fetus at an examination beside its peers: by every reference, by every formula, beside the other fetuses
// and beside the examination before. What cannot be said is missing.

/// Why a figure is missing, or stands for less than the others.
enum class Caution {
  ageUnknown,    ///< no EDD or no date of the examination
  outsideWeeks,  ///< the age lies outside the weeks of the reference
  otherFormula,  ///< the reference fits weights by another formula
  withoutPlace,  ///< the value lies where the reference has no place for it
};

/// A value beside one reference.
struct Placed {
  const calc::Reference* reference = nullptr;
  std::optional<double> mean{};    ///< of a population that is normal in the value; likewise `sd`
  std::optional<double> sd{};      ///<
  std::optional<double> median{};  ///< within the weeks of the reference
  std::optional<double> z{};
  std::optional<calc::Centile> centile{};
  std::optional<double> weeks{};  ///< the age of which the value is the median
  std::vector<Caution> cautions{};
};

struct Length {
  calc::Measurement measurement{};
  std::optional<double> value{};     ///< mm; missing when it was not measured
  std::vector<Placed> references{};  ///< those that tell of it, in their order
};

struct Weight {
  std::int64_t formula = 0;            ///< its identifier
  std::optional<double> grams{};       ///< missing when a length that it needs is
  std::optional<double> difference{};  ///< g from the weight by the formula that the document names
  std::vector<Placed> references{};    ///< those that tell of weight
};

/// From the last examination before this one at which the quantity was there too.
struct Growth {
  calc::Quantity quantity{};
  std::optional<double>
      perWeek{};  ///< mm or g; missing when the examinations are not dated one after the other
  /// @name By the growth standard that the document names, for a length within its weeks both times. No weight has them: which
  /// population would count is not said.
  /// @{
  std::optional<double> expectedPerWeek{};  ///< mm by which the mean grows meanwhile
  std::optional<double> zChange{};
  /// @}
};

struct Ratios {
  std::optional<double> hcToAC{};
  std::optional<double> flToAC{};
  std::optional<double> flToBPD{};
};

/// All of one fetus at one examination.
struct Comparison {
  std::optional<double> age{};    ///< weeks
  std::vector<Length> lengths{};  ///< BPD, HC, AC, FL
  std::vector<Weight> weights{};  ///< by identifier of the formula
  Ratios ratios{};
  /// By how many percent of the heaviest fetus of this examination the lightest weighs less, by the formula that the document
  /// names. Missing for fewer than two weights.
  std::optional<double> discordance{};
  std::vector<Growth> growth{};  ///< of what was there before; BPD, HC, AC, FL, then the weight
};

/// One of the fetuses of an examination, beside the others.
struct Fetus {
  std::array<std::optional<double>, calc::kQuantities.size()>
      values{};  ///< mm, and g by the document's formula
  std::optional<double>
      less{};  ///< percent by which it weighs less than the heaviest; missing for fewer than two weights
};

/// Those of the examination at place `examination`, which must be there. Takes time in proportion to their number.
std::vector<Fetus> fetusesAt(const model::PatientRecord& patient, std::size_t examination);

/// A value, if there is one, beside one reference at an age in weeks, if it is known.
Placed placed(const calc::Reference& reference, calc::Quantity quantity, std::optional<double> value,
              std::optional<double> age);

/// @name Parts of `comparisonOf`, each by itself.
/// @{
std::vector<Length> lengthsAt(const model::PatientRecord& patient, std::size_t examination,
                              std::size_t fetus);
std::vector<Weight> weightsAt(const model::PatientRecord& patient, std::size_t examination,
                              std::size_t fetus);
Ratios ratiosAt(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus);
std::vector<Growth> growthAt(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus);
/// @}

/// Figures of the fetus at place `fetus` of the examination at place `examination`, both from 0; a fetus without a record
/// there was not measured. Throws RangeError for an examination that is not there.
Comparison comparisonOf(const model::PatientRecord& patient, std::size_t examination, std::size_t fetus);

}  // namespace nascor::compare
