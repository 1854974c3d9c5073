// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "calc/Biometry.h"

namespace nascor::calc {

// What may be typed into a document. A file may hold anything, and is accepted as it stands.

/// The least and the greatest permitted value; both are permitted. NaN is not.
struct EditingBounds {
  double least = 0.0;
  double greatest = 0.0;

  constexpr bool permit(double value) const { return value >= least && value <= greatest; }
};

/// In millimetres.
constexpr EditingBounds editingBounds(Measurement measurement) {
  switch (measurement) {
    case Measurement::bpd: return {.least = 0.0, .greatest = 200.0};
    case Measurement::hc: return {.least = 0.0, .greatest = 500.0};
    case Measurement::ac: return {.least = 0.0, .greatest = 600.0};
    case Measurement::fl: break;
  }
  return {.least = 0.0, .greatest = 200.0};
}

/// The gravidity has no upper bound.
inline constexpr std::int64_t kLeastGravida = 0;

inline constexpr std::int64_t kFewestFetuses = 1;
inline constexpr std::int64_t kMostFetuses = 5;

/// The days from the EDD at which delivery can be planned: from the first day of the pregnancy to the last day of the
/// growth standard, or, for an unknown one, to a week after the EDD.
EditingBounds plannedDeliveryDays(std::int64_t standard);

}  // namespace nascor::calc
