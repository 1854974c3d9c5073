// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <utility>

#include "model/PatientRecord.h"

namespace nascor::tests {

/// The examination that ExaminationParts describes.
inline std::unique_ptr<model::NCRecord> anExamination() {
  auto examination = std::make_unique<model::NCRecord>();
  examination->setNote("20 week scan");
  examination->setExamDate(foundation::Date{220000000.25});
  examination->measurements().emplace_back(
      calc::Biometry{.bpd = 48.5, .hc = 175.0, .ac = 150.25, .fl = 33.5});
  return examination;
}

/// The patient that PatientParts describes.
inline model::PatientRecord aPatient() {
  model::PatientRecord patient;
  patient.setMaternalIDString("A-1024");
  patient.setEDD(foundation::Date{239000000.0});
  patient.ncRecordsArray().push_back(anExamination());
  patient.setStandard(2);
  patient.setFetalWeightStandard(6);
  patient.setNumberOfFetuses(1);
  patient.setExtrapolatedGestation(38.5);
  patient.setCRLStandard(3);
  patient.setGravida(4);
  return patient;
}

}  // namespace nascor::tests
