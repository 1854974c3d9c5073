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

void MeasurementsRecord::encodeWithCoder(Archiver& coder) const {
  coder.encodeFloat(bpd());
  coder.encodeFloat(hc());
  coder.encodeFloat(ac());
  coder.encodeFloat(fl());
}

MeasurementsRecord MeasurementsRecord::initWithCoder(Unarchiver& coder) {
  MeasurementsRecord record;
  record.setBPD(coder.decodeFloat());
  record.setHC(coder.decodeFloat());
  record.setAC(coder.decodeFloat());
  record.setFL(coder.decodeFloat());
  return record;
}

}  // namespace nascor::model
