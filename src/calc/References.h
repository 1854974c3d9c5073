// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "calc/Biometry.h"
#include "calc/Standards.h"

namespace nascor::calc {

// Published populations that a value is read against: the four growth standards, and further references beside them. A
// document names one of the four standards (calc/Standards.h) and none of the others.
// The citations are in docs/sources.md, under the label of each reference.

/// What a reference tells of: a length in millimetres, or the estimated weight in grams.
enum class Quantity { bpd, hc, ac, fl, efw };

inline constexpr std::array kQuantities{Quantity::bpd, Quantity::hc, Quantity::ac, Quantity::fl,
                                        Quantity::efw};

constexpr Quantity quantityOf(Measurement measurement) {
  return kQuantities[static_cast<std::size_t>(measurement)];
}

/// "bpd", "hc", "ac", "fl", "efw": the names in JSON and on the command line.
std::string_view nameOf(Quantity quantity);

/// A share of a population, in percent, or the side of the outermost curve on which a value lies where a reference has
/// curves alone.
struct Centile {
  enum class Side { within, below, above };
  double percent;  ///< of the outermost curve when the value lies beyond it
  Side side = Side::within;
};

/// How a reference describes its population at an age.
enum class ReferenceForm {
  table,      ///< mean and standard deviation of whole weeks, between them by linear interpolation
  meanAndSD,  ///< mean and standard deviation by equations, normal in the value
  lms,        ///< skewness, median and variation of the logarithm, by equations
  quantiles   ///< curves of eleven centiles; beyond the outermost nothing is known
};

/// "table", "mean-sd", "lms", "quantiles".
std::string_view nameOf(ReferenceForm form);

/// A population that is normal in the value.
struct NormalPopulation {
  double mean;
  double sd;
};

/// A population whose values, as logarithms divided by `mu` and raised to `lambda`, are normal; with a `lambda` of 0 the
/// logarithms of these quotients are.
struct SkewedPopulation {
  double lambda;
  double mu;  ///< the natural logarithm of the median
  double sigma;
};

/// A population of which the values at eleven centiles are known.
struct QuantilePopulation {
  /// In percent.
  static constexpr std::array<double, 11> kCentiles{1, 2.5, 5, 10, 25, 50, 75, 90, 95, 97.5, 99};
  std::array<double, kCentiles.size()> values;
};

/// A population at one age. What it cannot say, or what is not finite, is missing.
class Population {
 public:
  using Kind = std::variant<NormalPopulation, SkewedPopulation, QuantilePopulation>;
  explicit Population(const Kind& kind) : kind_(kind) {}

  double median() const;
  /// @name Only of a population that is normal in the value
  /// @{
  std::optional<double> mean() const;
  std::optional<double> sd() const;
  /// @}

  /// Standard deviations above the mean, of the value or of what the reference takes for normal. Curves have none.
  std::optional<double> z(double value) const;
  std::optional<Centile> centile(double value) const;
  /// The value of a z, or nothing where curves have none.
  std::optional<double> valueAtZ(double z) const;
  /// The value of a centile between 0 and 100, both excluded; of curves from the first to the last.
  std::optional<double> valueAtCentile(double percent) const;

 private:
  Kind kind_;
};

/// A published population: all that the program knows of it.
struct Reference {
  std::string_view name;   ///< on the command line and in JSON: small letters without blanks
  std::string_view label;  ///< UTF-8
  ReferenceForm form{};
  std::span<const Quantity> quantities{};
  int firstWeek = 0;  ///< the first and the last week belong to it
  int lastWeek = 0;
  std::string_view assumes{};  ///< what a value must be to be compared with it, in English; never empty
  std::optional<std::int64_t>
      onlyFormula{};  ///< the one weight formula whose weights it fits; without it any
  /// The population at an age; ask by `populationAt`.
  Population (*population)(Quantity quantity, double week) = nullptr;
  /// The age of a median; ask by the function of that name.
  std::optional<double> (*weekOfMedian)(Quantity quantity, double value) = nullptr;
};

/// The growth standards, which come first, and four more.
inline constexpr std::size_t kReferenceCount = kGrowthStandardCount + 4;

/// The references, the growth standards first, each in the place of its identifier.
std::span<const Reference, kReferenceCount> references();

/// The growth standard of that identifier, as a reference; null for an unknown one.
const Reference* referenceOfStandard(std::int64_t standard);

/// The reference of that name, in small letters; null for an unknown one.
const Reference* referenceNamed(std::string_view name);

/// Whether `quantity` is one of those of `reference`.
bool covers(const Reference& reference, Quantity quantity);

/// Whether an age in weeks lies within the weeks of `reference`; both ends do, NaN does not.
bool reaches(const Reference& reference, double week);

/// The population at that age; nothing outside the weeks of `reference`, which are never extrapolated, and for a quantity that
/// it does not cover.
std::optional<Population> populationAt(const Reference& reference, Quantity quantity, double week);

/// The age, in weeks, of which `value` is the median, the youngest where there are two. Nothing for a value below that of
/// the first week or above all medians, and for a quantity that `reference` does not cover.
std::optional<double> weekOfMedian(const Reference& reference, Quantity quantity, double value);

/// The coefficients of WHO (2017), by rising powers of the week: the curve of place `centile` among
/// `QuantilePopulation::kCentiles` is the exponential of that polynomial. Throws std::out_of_range.
std::span<const double> whoCoefficients(Quantity quantity, std::size_t centile);

}  // namespace nascor::calc
