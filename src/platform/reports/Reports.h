// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "exchange/Findings.h"
#include "exchange/ReportServer.h"
#include "exchange/StructuredReport.h"
#include "foundation/FileStore.h"
#include "foundation/Sentence.h"

namespace nascor::reports {

/// What reads and writes DICOM reports, loaded by the first call; or why there is nothing that does, in a sentence.
std::variant<exchange::ReportFiles*, foundation::Sentence> reportFiles();

/// What speaks to servers of reports, likewise.
std::variant<exchange::ReportServer*, foundation::Sentence> reportServer();

/// Whether a file that begins so is a report of some kind, and no document of this program: DICOM, an object of JSON, or
/// a CSV table of examinations.
bool isReport(std::span<const std::byte> bytes);

/// The reports in the bytes of one file: one of a DICOM file, one for each examination of a FHIR bundle; or why there is
/// none, in a sentence. What begins like an object of JSON is a bundle.
std::variant<std::vector<exchange::StructuredReport>, foundation::Sentence> reportsIn(
    std::span<const std::byte> bytes);

/// The findings in the bytes of one file, one for each examination: of its reports, of a document in JSON, or of what begins
/// like a CSV table of examinations; or why there are none, in sentences, for a table one for each row that does not fit.
std::variant<std::vector<exchange::Findings>, std::vector<foundation::Sentence>> findingsIn(
    std::span<const std::byte> bytes);

/// What the reports in some files hold.
struct FoundInFiles {
  std::vector<exchange::Findings> findings;
  std::vector<foundation::Sentence>
      failures;  ///< why a file cannot be read: its name, and a sentence; of many the first
};

FoundInFiles findingsInFiles(std::span<const std::string> paths, const foundation::FileStore& files);

}  // namespace nascor::reports
