// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::exchange {

/// A term of a coding scheme: 11820-8 of LN (LOINC), "Biparietal Diameter". A unit is one of UCUM.
struct Code {
  std::string value;
  std::string scheme;
  std::string meaning;
};

enum class ValueType { container, number, code, text, date, other };

/// One item of a report's content. Texts are UTF-8 without blanks at their ends.
struct ContentItem {
  ValueType type = ValueType::other;
  std::string relationship;  ///< to the item above: "CONTAINS", "HAS OBS CONTEXT"; empty at the root
  Code name;
  std::string text;  ///< of a text, a date (YYYYMMDD) or a number (decimal), as it was written; may be empty
  Code code;         ///< the value of a code; the unit of a number
  std::vector<ContentItem> items;
};

/// A DICOM structured report, without what belongs to its file format.
struct StructuredReport {
  std::string sopClass;     ///< the UID of the kind of report
  std::string instanceUID;  ///< set for writing only, as the next two
  std::string seriesUID;
  std::string studyUID;
  std::string patientID;
  std::string studyDate;    ///< YYYYMMDD; empty when none is known, as the next one
  std::string contentDate;  ///< YYYYMMDD
  std::vector<foundation::Sentence>
      warnings;  ///< texts that were not in the character set that the file states
  bool hasContent = false;
  ContentItem root;
};

/// Reads and writes the files of structured reports. A sentence in place of a result says why there is none.
class ReportFiles {
 public:
  virtual ~ReportFiles() = default;

  /// The whole report, never a part of one. Items are nested at most a few dozen deep.
  virtual std::variant<StructuredReport, foundation::Sentence> read(std::span<const std::byte> bytes) = 0;

  virtual std::variant<std::vector<std::byte>, foundation::Sentence> write(
      const StructuredReport& report) = 0;
};

}  // namespace nascor::exchange
