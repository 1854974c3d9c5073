// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "calc/Biometry.h"
#include "calc/Standards.h"

namespace nascor::calc {

// What may be entered and is improbable all the same: a slip of the keys, another unit, another patient's date. It is
// never refused; the one who shows it finds the words.

enum class Improbable {
  beforeLastPeriod,     ///< an age below 0: the examination lies before the first day of the pregnancy
  longPastTerm,         ///< an age above 45 weeks
  outsideBounds,        ///< a length that the window does not let anybody type
  shorterThanAnywhere,  ///< a length below the first mean of each growth standard, at an age that is not known
  farBelowStandard,     ///< a length more than 4 standard deviations below the mean
  farAboveStandard,     ///< the same above it
  headTooSmall,         ///< an HC below nine tenths of pi times the BPD, which no head can have
};

/// Whether cycle and luteal phase, in days, are of the usual length: 24 to 38 (Munro et al., Int J Gynecol Obstet 2018;143:393-408)
/// and 11 to 17 (ASRM, Fertil Steril 2021;115:1416-1423).
bool isUsualCycle(std::int64_t cycle, std::int64_t luteal);

/// What is improbable about an age in weeks; nothing for 0.0, unknown, and for one that is not a number.
std::optional<Improbable> improbableAge(double age);

/// What is improbable about one of `lengths`, nothing for one that is 0.0. `table` is that of the length under the growth
/// standard in force; before its first week a length can only be far above it, behind its last only far below. Outside the bounds nothing
/// else is looked at.
std::vector<Improbable> improbableLength(Measurement measurement, const Biometry& lengths, double age,
                                         const ReferenceTable& table);

}  // namespace nascor::calc
