// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "calc/Standards.h"
#include "model/PatientRecord.h"

namespace nascor::clinic {

/// A document file.
struct Document {
  std::string name;  ///< a path: a folder for each thousand, then the reference ID
  std::vector<std::byte> bytes;
  bool isDamaged = false;  ///< cut off, empty, or with zeros where its end was; no program reads it
};

/// The patients of a clinic that does not exist. Each is made of the seed and a number alone, so any part of a clinic can be
/// made anywhere, in any order, and has the same bytes.
///
/// Fetuses grow along the Westerway means, each on a z-score of its own with the scatter of a measurement; some fall behind
/// late. There are twins and triplets, lengths and dates that are missing, notes with commas, quotation marks and letters of
/// several scripts, examinations at the wall clocks of five time zones, document files of all class versions, and, in each
/// thousand, one that is damaged.
class Clinic {
 public:
  explicit Clinic(std::uint64_t seed = 1);

  /// The patient of a number, from 0, as she was entered.
  model::PatientRecord patient(std::uint64_t number) const;

  /// Her document. An old one lacks what its class version has no place for.
  Document document(std::uint64_t number) const;

 private:
  std::uint64_t seed_;
  std::array<calc::ReferenceTable, 4> tables_;  // by measurement
};

}  // namespace nascor::clinic
