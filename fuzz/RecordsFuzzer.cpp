// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Reads any bytes as a document file. They are refused with a place inside them, or they are a patient who can be saved
// and read again without loss: saving what was read back gives the same bytes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "archive/FormatError.h"
#include "model/PatientFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using nascor::model::archivedPatient;
  using nascor::model::unarchivedPatient;

  std::unique_ptr<nascor::model::PatientRecord> patient;
  try {
    auto read = unarchivedPatient(std::as_bytes(std::span(data, size)));
    if (read.facts.trailingBytes > size) std::abort();
    patient = std::move(read.patient);
  } catch (const nascor::archive::FormatError& error) {
    if (error.offset() > size) std::abort();
    return 0;
  }
  if (!patient) return 0;

  // Out of the block above: what we wrote ourselves may not be refused.
  const std::vector<std::byte> saved = archivedPatient(*patient);
  const auto again = unarchivedPatient(saved);
  if (!again.patient || again.facts.trailingBytes != 0 || again.facts.sharedRecords != 0) std::abort();
  if (archivedPatient(*again.patient) != saved) std::abort();
  return 0;
}
