#pragma once

#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "exchange/Findings.h"
#include "foundation/Calendar.h"
#include "model/PatientRecord.h"

namespace nascor::exchange {

/// What a person has confirmed before findings are stored.
struct Confirmation {
  std::optional<std::string> patientID;  ///< the reports are of this patient, whatever they say
  std::map<std::string, std::int64_t>
      fetusPlaces;       ///< by the ids in the reports, from 0; "" is a fetus without id
  bool takeEDD = false;  ///< the report's EDD takes the place of one that stands
};

/// Adds findings to a patient, whose examinations are in order of date afterwards. Nothing that stands is overwritten:
/// lengths, gravidity and, without confirmation, the EDD stay, with a warning where the report says something else. An
/// examination of the same local day is filled where it is blank. A crown-rump length is never stored.
///
/// Returns the warnings; or one sentence, and the patient is unchanged: when the reports may be of another patient, when
/// a fetus may be another one, without a date. A new patient (`isNew`) takes ID and number of fetuses from the first
/// report.
std::variant<std::vector<std::string>, std::string> storeFindings(const Findings& findings,
                                                                  const Confirmation& confirmation,
                                                                  bool isNew,
                                                                  const foundation::Calendar& calendar,
                                                                  model::PatientRecord& patient);

}  // namespace nascor::exchange
