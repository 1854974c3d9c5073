// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientFile.h"

#include "model/Archiver.h"

namespace nascor::model {

std::vector<std::byte> archivedPatient(const PatientRecord& patient) {
  Archiver archiver;
  archiver.encodeRoot(patient);
  return std::move(archiver).finish();
}

UnarchivedPatient unarchivedPatient(std::span<const std::byte> bytes) {
  Unarchiver unarchiver(bytes);
  auto patient = unarchiver.decodeRoot();
  return {.patient = std::move(patient), .facts = unarchiver.facts()};
}

foundation::Sentence refusalSentence(const std::exception& refusal) {
  //: Behind the name of a file; %1 is the reason.
  return foundation::Sentence("Reading", "not a Nascor document (%1)").with(foundation::sentenceOf(refusal));
}

std::string refusalText(const std::exception& refusal) { return english(refusalSentence(refusal)); }

}  // namespace nascor::model
