// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "exchange/StructuredReport.h"

namespace nascor::dicom {

/// Structured reports as DICOM files (PS3.10), read and written by DCMTK. Needs no file of DCMTK's data dictionary: the
/// elements of a report are known to this class. Nothing is printed.
class DcmtkReportFiles final : public exchange::ReportFiles {
 public:
  DcmtkReportFiles();

  std::variant<exchange::StructuredReport, std::string> read(std::span<const std::byte> bytes) override;
  std::variant<std::vector<std::byte>, std::string> write(const exchange::StructuredReport& report) override;
};

}  // namespace nascor::dicom
