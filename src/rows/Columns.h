// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/Biometry.h"
#include "calc/References.h"

namespace nascor::rows {

// The columns of tidy rows: one row for each fetus at each examination, lengths in mm, weights in g, ages in weeks.

/// What a column holds.
enum class Content {
  kept,  ///< a cell of the input, as it came
  file,
  examination,
  fetus,
  examDate,
  edd,
  daysToEDD,
  age,
  length,
  weight,
  standard,
  mean,
  sd,
  zScore,
  referenceID,
  note,
  warning,
  error
};

/// Stands for the growth standard that the document of a row names.
inline constexpr std::int64_t kOwnStandard = -1;

struct Column {
  std::string name;  ///< UTF-8, but for a column of the input
  Content content;
  calc::Measurement measurement{};  ///< of a length, mean, standard deviation or z-score
  /// Of a weight the identifier of its formula; of a mean, standard deviation or z-score the place of its reference
  /// (calc/References.h), which for a growth standard is its identifier, or `kOwnStandard`; of a cell of the input its place there, from 0.
  std::int64_t number = 0;
};

/// Which columns there are.
struct Choice {
  /// Places of references, a block for each, in this order; without any each document's own.
  std::vector<std::int64_t> standards{};
  std::optional<std::int64_t> formula{};  ///< one weight; without it all eight
  bool identified = false;                ///< reference ID and note too
  bool datesAreRelative = false;          ///< days to the EDD in place of examination date and EDD
};

/// All four growth standards.
std::vector<std::int64_t> allStandards();

/// Whether a block can be made of that reference: it tells mean and standard deviation of all four lengths.
bool hasBlock(const calc::Reference& reference);

/// The columns of rows of documents, in order.
std::vector<Column> patientColumns(const Choice& choice);

/// What is computed from one age and four lengths: weights, a block for each standard of the choice, warning, error.
std::vector<Column> computedColumns(const Choice& choice);

/// The columns above with every weight and every block, those of the document's own standard and of all four: what can be
/// asked for by name.
std::vector<Column> everyPatientColumn(bool identified, bool datesAreRelative);

/// The same of what is computed.
std::vector<Column> everyComputedColumn();

}  // namespace nascor::rows
