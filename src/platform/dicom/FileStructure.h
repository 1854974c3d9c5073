#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace nascor::dicom {

/// Looks at the structure of a DICOM file alone: that it has its header, that every element lies within what holds it,
/// that nothing is cut off, and that sequences are not nested deeper than a report ever nests them (DCMTK reads them by
/// recursion). Nothing when all is well, else a sentence.
std::optional<std::string> structureFault(std::span<const std::byte> bytes);

}  // namespace nascor::dicom
