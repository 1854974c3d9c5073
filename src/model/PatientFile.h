// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "foundation/Sentence.h"
#include "model/PatientRecord.h"
#include "model/Unarchiver.h"

namespace nascor::model {

/// The bytes of a document file. Lengths and the planned gestation are narrowed to single precision and whole numbers to
/// their low 32 bits, as the format has it; dates keep every bit.
std::vector<std::byte> archivedPatient(const PatientRecord& patient);

struct UnarchivedPatient {
  std::unique_ptr<PatientRecord> patient;  ///< null when the file holds no patient (its root is nil)
  ArchiveFacts facts;
};

/// Reads a document file of any class version. Nothing in it is checked for sense: see PatientRecord.
/// Throws archive::FormatError, whose sentence names the byte; the caller names the file.
UnarchivedPatient unarchivedPatient(std::span<const std::byte> bytes);

/// What is said in one line of a file that `unarchivedPatient` has refused: "not a Nascor document (at byte 54: ...)".
foundation::Sentence refusalSentence(const std::exception& refusal);
/// The same in English.
std::string refusalText(const std::exception& refusal);

}  // namespace nascor::model
