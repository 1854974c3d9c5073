// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "exchange/Findings.h"
#include "foundation/Calendar.h"
#include "foundation/Sentence.h"
#include "model/PatientRecord.h"

namespace nascor::exchange {

/// What a person has confirmed before findings are stored.
struct Confirmation {
  std::optional<std::string> patientID;  ///< the reports are of this patient, whatever they say
  std::map<std::string, std::int64_t>
      fetusPlaces;       ///< by the ids in the reports, from 0; "" is a fetus without id
  bool takeEDD = false;  ///< the report's EDD takes the place of one that stands
};

/// What became of a value of a report.
enum class Fate {
  stored,          ///< the patient had none; or, of an EDD, a person wanted it in place of hers
  isThereAlready,  ///< the patient has the same
  otherStays,      ///< the patient has another, and keeps it
  isBeyondBounds,  ///< no document takes it
  isNeverStored    ///< a crown-rump length
};

struct StoredEDD {
  Fate fate = Fate::stored;
  std::optional<foundation::CivilDay> standing;  ///< what the patient had; nothing where it is no day
};

struct StoredGravida {
  Fate fate = Fate::stored;
  std::int64_t standing = 0;
};

struct StoredLength {
  std::size_t fetus = 0;   ///< its place in the findings
  std::size_t term = 0;    ///< its place in kLengthTerms
  std::int64_t place = 0;  ///< of the fetus in the document
  Fate fate = Fate::stored;
  double standing = 0.0;  ///< what the patient had, in millimetres; 0 for nothing
};

/// What became of the values of one report.
struct Stored {
  std::optional<StoredEDD> edd;  ///< nothing where the report has none, as the next one
  std::optional<StoredGravida> gravida;
  std::vector<StoredLength> lengths;  ///< in the order of the report
  std::int64_t fetuses = 0;           ///< of the document
};

/// Why findings may be of another patient than the document.
enum class PatientDoubt { none, isUnreadable, reportNamesNobody, documentNamesNobody, isAnother };

/// A new document takes the patient of its first report, unless the ID has characters that could not be read: two such IDs
/// are not known to be one. Blanks around a reference ID do not count.
PatientDoubt patientDoubt(const Findings& findings, bool isNew, std::string_view documentID);

/// Which fetus of the document (from 0, of `count`) that fetus of the report is without doubt: the one of the number that is
/// its ID, or the only one where neither side has another. Nothing for every other ID, such as a letter.
std::optional<std::int64_t> fetusPlace(const FetusFindings& fetus, const Findings& findings,
                                       std::int64_t count);

/// Why the findings of one file cannot be stored together, whatever is confirmed: they are of several patients, whom it names.
/// Nothing when they are of one.
std::optional<foundation::Sentence> severalPatientsFault(std::span<const Findings> all);

/// Adds findings to a patient, whose examinations are in order of date afterwards. Nothing that stands is overwritten:
/// lengths, gravidity and, without confirmation, the EDD stay. An examination of the same local day is filled where it is
/// blank. A crown-rump length is never stored.
///
/// Returns what became of each value; or one sentence, and the patient is unchanged: when the reports may be of another
/// patient, when a fetus may be another one, without a date. A new patient (`isNew`) takes ID and number of fetuses from the
/// first report.
std::variant<Stored, foundation::Sentence> storeFindings(const Findings& findings,
                                                         const Confirmation& confirmation, bool isNew,
                                                         const foundation::Calendar& calendar,
                                                         model::PatientRecord& patient);

/// What of the report was not stored, a sentence each.
std::vector<foundation::Sentence> warningsOf(const Stored& stored, const Findings& findings);

}  // namespace nascor::exchange
