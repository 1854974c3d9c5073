// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "foundation/Date.h"

namespace nascor::model {

/// All that a document holds of a patient beside the examinations.
struct PatientValues {
  std::optional<std::string> maternalIDString;
  std::optional<foundation::Date> edd;
  std::int64_t standard = 0;
  std::int64_t fetalWeightStandard = 0;
  std::int64_t numberOfFetuses = 0;
  double extrapolatedGestation = 0.0;
  std::int64_t crlStandard = 0;
  std::int64_t gravida = 0;
};

/// One of them, for those that treat all alike: JSON, the comparison of two records, undo.
struct PatientValue {
  using Text = std::optional<std::string> PatientValues::*;
  using Moment = std::optional<foundation::Date> PatientValues::*;
  using Integer = std::int64_t PatientValues::*;
  using Number = double PatientValues::*;

  std::string_view name;  ///< as JSON names it (docs/json.md)
  std::variant<Text, Moment, Integer, Number> member;
};

/// Every value, in the order of the file.
inline constexpr std::array kPatientValues{
    PatientValue{"maternalIDString", &PatientValues::maternalIDString},
    PatientValue{"edd", &PatientValues::edd},
    PatientValue{"standard", &PatientValues::standard},
    PatientValue{"fetalWeightStandard", &PatientValues::fetalWeightStandard},
    PatientValue{"numberOfFetuses", &PatientValues::numberOfFetuses},
    PatientValue{"extrapolatedGestation", &PatientValues::extrapolatedGestation},
    PatientValue{"crlStandard", &PatientValues::crlStandard},
    PatientValue{"gravida", &PatientValues::gravida}};

}  // namespace nascor::model
