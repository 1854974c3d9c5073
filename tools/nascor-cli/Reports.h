#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "exchange/StructuredReport.h"

namespace nascor::cli {

/// What reads and writes DICOM reports, loaded by the first call; or why there is nothing that does, in a sentence.
std::variant<exchange::ReportFiles*, std::string> reportFiles();

/// The reports in the bytes of one file: one of a DICOM file, one for each examination of a FHIR bundle; or why there is
/// none, in a sentence. What begins like an object of JSON is a bundle.
std::variant<std::vector<exchange::StructuredReport>, std::string> reportsIn(
    std::span<const std::byte> bytes);

}  // namespace nascor::cli
