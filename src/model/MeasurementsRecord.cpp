// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/MeasurementsRecord.h"

#include "calc/FetalWeight.h"
#include "model/Archiver.h"
#include "model/Unarchiver.h"

namespace nascor::model {

MeasurementsRecord::MeasurementsRecord() {
  setBPD(0.0);
  setHC(0.0);
  setAC(0.0);
  setFL(0.0);
}

double MeasurementsRecord::estimatedFetalWeight(std::int64_t fetalWeightStandard) const {
  return calc::estimatedFetalWeight(measured_, fetalWeightStandard);
}
double MeasurementsRecord::estimatedFetalWeightHadlock1() const {
  return calc::estimatedFetalWeightHadlock1(measured_);
}
double MeasurementsRecord::estimatedFetalWeightHadlock2() const {
  return calc::estimatedFetalWeightHadlock2(measured_);
}
double MeasurementsRecord::estimatedFetalWeightHadlock3() const {
  return calc::estimatedFetalWeightHadlock3(measured_);
}
double MeasurementsRecord::estimatedFetalWeightHadlock4() const {
  return calc::estimatedFetalWeightHadlock4(measured_);
}
double MeasurementsRecord::estimatedFetalWeightCampbell() const {
  return calc::estimatedFetalWeightCampbell(measured_);
}
double MeasurementsRecord::estimatedFetalWeightCombs() const {
  return calc::estimatedFetalWeightCombs(measured_);
}
double MeasurementsRecord::estimatedFetalWeightOtt() const {
  return calc::estimatedFetalWeightOtt(measured_);
}
double MeasurementsRecord::estimatedFetalWeightShepard() const {
  return calc::estimatedFetalWeightShepard(measured_);
}

void MeasurementsRecord::encodeWithCoder(Archiver& coder) const { coder.encodeLengths(measured_); }

MeasurementsRecord MeasurementsRecord::initWithCoder(Unarchiver& coder) {
  const auto [bpd, hc, ac, fl] = coder.decodeFourFloats();
  return MeasurementsRecord({.bpd = bpd, .hc = hc, .ac = ac, .fl = fl});
}

}  // namespace nascor::model
