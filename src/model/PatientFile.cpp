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

std::string refusalText(const std::runtime_error& refusal) {
  return std::string("not a Nascor document (") + refusal.what() + ")";
}

}  // namespace nascor::model
