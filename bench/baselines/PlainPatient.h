// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nascor::bench {

// The records of a patient without anything that they can do: from these and to these the other formats are measured.

struct PlainMeasurements {
  double bpd = 0.0, hc = 0.0, ac = 0.0, fl = 0.0;
};

struct PlainExamination {
  std::optional<std::string> note;
  std::optional<double> examDate;
  std::vector<PlainMeasurements> measurements;
};

struct PlainPatient {
  std::optional<std::string> maternalID;
  std::optional<double> edd;
  std::vector<PlainExamination> examinations;
  std::int64_t standard = 0;
  std::int64_t fetalWeightStandard = 0;
  std::int64_t numberOfFetuses = 0;
  double extrapolatedGestation = 0.0;
  std::int64_t crlStandard = 0;
  std::int64_t gravida = 0;
};

std::string encodedByProtobuf(const PlainPatient& patient);
/// Throws std::runtime_error where the bytes are no patient.
PlainPatient decodedByProtobuf(const std::string& bytes);

std::string encodedByBoost(const PlainPatient& patient);
PlainPatient decodedByBoost(const std::string& bytes);

}  // namespace nascor::bench
