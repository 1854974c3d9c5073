// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "exchange/StructuredReport.h"
#include "foundation/Sentence.h"

namespace nascor::dicom {

/// Structured reports as DICOM files (PS3.10), read and written by DCMTK. Needs no file of DCMTK's data dictionary: the
/// elements of a report are known to this class. Nothing is printed.
class DcmtkReportFiles final : public exchange::ReportFiles {
 public:
  DcmtkReportFiles();

  std::variant<exchange::StructuredReport, foundation::Sentence> read(
      std::span<const std::byte> bytes) override;
  std::variant<std::vector<std::byte>, foundation::Sentence> write(
      const exchange::StructuredReport& report) override;
};

}  // namespace nascor::dicom
