// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string_view>

namespace nascor::calc {

/// The four lengths measured on one fetus at one examination, in millimetres. Exactly 0.0 means not measured.
struct Biometry {
  double bpd = 0.0;  ///< biparietal diameter
  double hc = 0.0;   ///< head circumference
  double ac = 0.0;   ///< abdominal circumference
  double fl = 0.0;   ///< femur length
};

/// Whether any of the four was measured.
constexpr bool isAnyMeasured(const Biometry& lengths) {
  return lengths.bpd != 0.0 || lengths.hc != 0.0 || lengths.ac != 0.0 || lengths.fl != 0.0;
}

enum class Measurement { bpd, hc, ac, fl };

/// The four in the order in which the program lists them everywhere.
inline constexpr std::array kMeasurements{Measurement::bpd, Measurement::hc, Measurement::ac,
                                          Measurement::fl};

/// The member of `Biometry` that holds `measurement`.
constexpr double Biometry::*memberFor(Measurement measurement) {
  switch (measurement) {
    case Measurement::bpd: return &Biometry::bpd;
    case Measurement::hc: return &Biometry::hc;
    case Measurement::ac: return &Biometry::ac;
    case Measurement::fl: break;
  }
  return &Biometry::fl;
}

/// "bpd", "hc", "ac", "fl": the names in JSON, CSV and on the command line.
constexpr std::string_view nameOf(Measurement measurement) {
  switch (measurement) {
    case Measurement::bpd: return "bpd";
    case Measurement::hc: return "hc";
    case Measurement::ac: return "ac";
    case Measurement::fl: break;
  }
  return "fl";
}

}  // namespace nascor::calc
