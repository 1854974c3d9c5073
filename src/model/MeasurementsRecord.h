// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "calc/Biometry.h"

namespace nascor::model {

class Archiver;
class Unarchiver;

/// One fetus's biometry at one examination: four lengths in millimetres; 0.0 means not measured.
class MeasurementsRecord {
 public:
  MeasurementsRecord();
  explicit MeasurementsRecord(const calc::Biometry& measured) : measured_(measured) {}

  double bpd() const { return measured_.bpd; }  ///< biparietal diameter
  double hc() const { return measured_.hc; }    ///< head circumference
  double ac() const { return measured_.ac; }    ///< abdominal circumference
  double fl() const { return measured_.fl; }    ///< femur length
  void setBPD(double bpd) { measured_.bpd = bpd; }
  void setHC(double hc) { measured_.hc = hc; }
  void setAC(double ac) { measured_.ac = ac; }
  void setFL(double fl) { measured_.fl = fl; }

  /// The four together.
  const calc::Biometry& biometry() const { return measured_; }
  calc::Biometry& biometry() { return measured_; }

  /// The weight in grams by the formula of that identifier (calc/FetalWeight.h); 0.0 when a length that it needs is
  /// missing, and for an unknown identifier.
  double estimatedFetalWeight(std::int64_t fetalWeightStandard) const;
  double estimatedFetalWeightHadlock1() const;
  double estimatedFetalWeightHadlock2() const;
  double estimatedFetalWeightHadlock3() const;
  double estimatedFetalWeightHadlock4() const;
  double estimatedFetalWeightCampbell() const;
  double estimatedFetalWeightCombs() const;
  double estimatedFetalWeightOtt() const;
  double estimatedFetalWeightShepard() const;

  /// Four single-precision numbers: a length comes back from a file as the nearest `float`.
  void encodeWithCoder(Archiver& coder) const;
  /// Reads the same, whatever class version the file records.
  static MeasurementsRecord initWithCoder(Unarchiver& coder);

 private:
  calc::Biometry measured_;
};

}  // namespace nascor::model
