// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "PlainPatient.h"
#include "patient.pb.h"

namespace nascor::bench {

std::string encodedByProtobuf(const PlainPatient& patient) {
  Patient message;
  if (patient.maternalID) message.set_maternal_id(*patient.maternalID);
  if (patient.edd) message.set_edd(*patient.edd);
  for (const PlainExamination& examination : patient.examinations) {
    Examination& one = *message.add_examinations();
    if (examination.note) one.set_note(*examination.note);
    if (examination.examDate) one.set_exam_date(*examination.examDate);
    for (const PlainMeasurements& lengths : examination.measurements) {
      Measurements& fetus = *one.add_measurements();
      fetus.set_bpd(static_cast<float>(lengths.bpd));
      fetus.set_hc(static_cast<float>(lengths.hc));
      fetus.set_ac(static_cast<float>(lengths.ac));
      fetus.set_fl(static_cast<float>(lengths.fl));
    }
  }
  message.set_standard(static_cast<std::int32_t>(patient.standard));
  message.set_fetal_weight_standard(static_cast<std::int32_t>(patient.fetalWeightStandard));
  message.set_number_of_fetuses(static_cast<std::int32_t>(patient.numberOfFetuses));
  message.set_extrapolated_gestation(static_cast<float>(patient.extrapolatedGestation));
  message.set_crl_standard(static_cast<std::int32_t>(patient.crlStandard));
  message.set_gravida(static_cast<std::int32_t>(patient.gravida));
  return message.SerializeAsString();
}

PlainPatient decodedByProtobuf(const std::string& bytes) {
  Patient message;
  if (!message.ParseFromString(bytes)) throw std::runtime_error("no patient");
  PlainPatient patient;
  if (message.has_maternal_id()) patient.maternalID = message.maternal_id();
  if (message.has_edd()) patient.edd = message.edd();
  patient.examinations.reserve(static_cast<std::size_t>(message.examinations_size()));
  for (const Examination& one : message.examinations()) {
    PlainExamination& examination = patient.examinations.emplace_back();
    if (one.has_note()) examination.note = one.note();
    if (one.has_exam_date()) examination.examDate = one.exam_date();
    examination.measurements.reserve(static_cast<std::size_t>(one.measurements_size()));
    for (const Measurements& fetus : one.measurements()) {
      examination.measurements.push_back(
          {.bpd = fetus.bpd(), .hc = fetus.hc(), .ac = fetus.ac(), .fl = fetus.fl()});
    }
  }
  patient.standard = message.standard();
  patient.fetalWeightStandard = message.fetal_weight_standard();
  patient.numberOfFetuses = message.number_of_fetuses();
  patient.extrapolatedGestation = message.extrapolated_gestation();
  patient.crlStandard = message.crl_standard();
  patient.gravida = message.gravida();
  return patient;
}

}  // namespace nascor::bench
