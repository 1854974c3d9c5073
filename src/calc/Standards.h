// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Biometry.h"
#include "foundation/Localizer.h"

namespace nascor::calc {

/// One row of a reference table.
class DatabaseRecord {
 public:
  // Selector: initWithData:mean:sd:
  /// A new row: menstrual age in weeks; mean and standard deviation in millimetres (grams for weight).
  static DatabaseRecord initWithData(double observation, double mean, double sd) {
    return DatabaseRecord(observation, mean, sd);
  }

  double observation() const { return observation_; }
  double mean() const { return mean_; }
  double sd() const { return sd_; }
  void setObservation(double observation) { observation_ = observation; }
  void setMean(double mean) { mean_ = mean; }
  void setSD(double sd) { sd_ = sd; }

  /// True for anything: rows have no equality of their own, and nothing may search a table by it.
  template <class Anything>
  bool isEqual(const Anything&) const {
    return true;
  }
  friend bool operator==(const DatabaseRecord&, const DatabaseRecord&) = delete;

 private:
  DatabaseRecord(double observation, double mean, double sd)
      : observation_(observation), mean_(mean), sd_(sd) {}

  double observation_;
  double mean_;
  double sd_;
};

/// Rows by increasing menstrual age, one per whole week, no gaps. May be empty.
using ReferenceTable = std::vector<DatabaseRecord>;

inline constexpr double kUsualLastDeliveryDay = 7.0;

/// A published growth standard: mean and standard deviation of each length by whole week.
/// The citations are in docs/sources.md, under the label of each standard.
struct GrowthStandard {
  std::string_view label;  ///< UTF-8
  std::string_view name;   ///< on the command line and in names of columns: small letters without blanks
  int firstWeek;
  int lastWeek;
  /// The row of a week from `firstWeek` to `lastWeek`.
  DatabaseRecord (*row)(Measurement measurement, int week);
  /// The last day, counted from the EDD, at which delivery can be planned under this standard.
  double lastDeliveryDay = kUsualLastDeliveryDay;
};

/// The identifiers, as documents store them: places in `growthStandards()`.
enum GrowthStandardIdentifier : std::int64_t { kASUM, kHadlock, kSchluter, kCFEF };

inline constexpr std::size_t kGrowthStandardCount = 4;

/// All standards; a standard's place is its identifier.
std::span<const GrowthStandard, kGrowthStandardCount> growthStandards();

/// The standard of an identifier, null for an unknown one. Documents keep unknown identifiers unchanged.
const GrowthStandard* growthStandard(std::int64_t standard);

/// Appends the rows of `standard` for `measurement`; appends nothing for an unknown identifier.
void appendStandard(ReferenceTable& table, std::int64_t standard, Measurement measurement);

/// "Nascor Standard: " and the label; the bare prefix for an unknown identifier.
std::string growthStandardTitle(std::int64_t standard, const foundation::Localizer& localizer);

/// The weights, in grams, of a fetus whose four lengths are the means of the four tables; the standard deviation is
/// the weight times the formula's factor. One row for each row of the BPD table. A length whose table has no such
/// row counts as not measured.
ReferenceTable fetalWeightTable(const ReferenceTable& bpd, const ReferenceTable& hc, const ReferenceTable& ac,
                                const ReferenceTable& fl, std::int64_t fetalWeightStandard);

}  // namespace nascor::calc
