// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "calc/Biometry.h"
#include "foundation/Date.h"
#include "model/PatientRecord.h"

namespace nascor::tests {

/// One visit of a patient: the age in weeks, and the lengths of each fetus.
struct Visit {
  double weeks;
  std::vector<calc::Biometry> fetuses;
};

/// A patient who was examined then, with an EDD.
inline model::PatientRecord examined(const std::vector<Visit>& visits) {
  constexpr double kWeek = 7.0 * 86400.0;
  constexpr foundation::Date kEDD{829008000.0};
  model::PatientRecord patient;
  patient.setEDD(kEDD);
  for (const Visit& visit : visits) {
    auto examination = std::make_unique<model::NCRecord>();
    examination->setExamDate(foundation::Date{kEDD.secondsSince2001 - (40.0 - visit.weeks) * kWeek});
    for (const calc::Biometry& lengths : visit.fetuses) examination->measurements().emplace_back(lengths);
    patient.ncRecordsArray().push_back(std::move(examination));
  }
  return patient;
}

}  // namespace nascor::tests
