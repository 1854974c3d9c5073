// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What another program left as unsaved changes, and who has a document open, as any bytes. The first byte is what the user
// answers. Changes are never lost: the file is there until it was recovered, or the user threw it away, or it held nothing new.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

#include "app/NCDocument.h"
#include "app/Recovery.h"
#include "foundation/UserDefaults.h"
#include "model/PatientFile.h"
#include "posix/DocumentLock.h"
#include "support/MemoryRecoveryStore.h"
#include "support/TestApplication.h"

namespace {

using namespace nascor;

constexpr const char* kLeft = "/recovery/left.nascor";
constexpr const char* kDocument = "/documents/a.nascor";

void require(bool holds) {
  if (!holds) std::abort();
}

void recover(std::span<const std::uint8_t> bytes, const std::string& answer, bool hasDocument) {
  tests::TestApplication platform;
  platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  platform.documents.setFactory([&] { return std::make_unique<app::NCDocument>(platform.environment()); });
  tests::MemoryRecoveryStore store{platform.files};
  app::Recovery recovery{platform.services(), platform.documents, platform.alerts, store};

  const auto left = std::as_bytes(bytes);
  platform.files.files[kLeft] = {left.begin(), left.end()};
  if (hasDocument) {
    const model::PatientRecord saved(platform.clock, platform.defaults);
    platform.files.files[kDocument] = model::archivedPatient(saved);
  }
  store.abandoned = {
      {.path = kLeft, .origin = {.document = hasDocument ? kDocument : ""}, .saved = {817041600.0}}};
  platform.alerts.choice = answer;
  const std::size_t opened = recovery.offer();

  const bool isThere = platform.files.files.contains(kLeft);
  require(opened == platform.documents.documents().size());
  if (opened == 1) require(answer == "Recover" && !isThere && store.timesKept == 1);
  if (answer == "Not Now" && !platform.alerts.choices.empty()) require(isThere);
  // Damaged ones are told of, and kept unless the user says otherwise.
  if (!platform.alerts.asked.empty()) require(isThere);
}

void readLock(std::span<const std::uint8_t> bytes) {
  const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const posix::LockRecord record = posix::lockRecordIn(text);
  require(posix::lockRecordIn(posix::textOf(record)) == record);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::span bytes(data + 1, size - 1);
  static const std::string kAnswers[]{"Recover", "Discard", "Not Now"};
  recover(bytes, kAnswers[data[0] % 3], data[0] % 2 == 0);
  readLock(bytes);
  return 0;
}
