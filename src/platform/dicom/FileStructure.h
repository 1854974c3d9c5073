// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <variant>

#include "foundation/Sentence.h"

namespace nascor::dicom {

/// How the elements of a data set are written.
struct Encoding {
  bool isExplicit = true;
  bool isBigEndian = false;
};

/// Where the elements of a file stand that come after its header.
struct DataSet {
  std::span<const std::byte> bytes;
  Encoding encoding;
};

/// Looks at the structure of a DICOM file alone: that it has its header, that every element lies within what holds it,
/// that nothing is cut off, that it has no more elements than any report, and that sequences are not nested deeper than a
/// report ever nests them (DCMTK reads them by recursion). Its data set when all is well, within `bytes`, else what is wrong.
std::variant<DataSet, foundation::Sentence> dataSetIn(std::span<const std::byte> bytes);

/// The same look at elements that came without a header; nothing when all is well.
std::optional<foundation::Sentence> faultIn(const DataSet& elements);

}  // namespace nascor::dicom
