// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include "model/MeasurementsRecord.h"

namespace nascor::tests {

/// BPD, HC, AC and FL of one fetus, to compare in one go.
using Lengths = std::array<double, 4>;

inline Lengths lengthsOf(const model::MeasurementsRecord& record) {
  return {record.bpd(), record.hc(), record.ac(), record.fl()};
}

inline constexpr Lengths kUnmeasured{0.0, 0.0, 0.0, 0.0};

}  // namespace nascor::tests
