// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "foundation/RecoveryStore.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "framework/DocumentController.h"
#include "model/PatientDifferences.h"
#include "model/PatientRecord.h"

namespace nascor::app {

/// Keeps what was edited and not saved, and offers it to the user after the program has ended without a question: a crash, a
/// power cut, a signal, a lost display.
class Recovery {
 public:
  /// All of these outlive it.
  Recovery(const foundation::Services& services, framework::DocumentController& documents,
           framework::Alerts& alerts, foundation::RecoveryStore& store)
      : services_(services), documents_(documents), alerts_(alerts), store_(store) {}

  /// Keeps each edited document that is no longer what was kept of it, with what the user is typing, and removes what was kept
  /// of a document that is saved by now. What cannot be kept is said in its window. The window layer sends it within two
  /// seconds of a change.
  void keepChanges();
  /// Whether a document is edited, or something is kept that `keepChanges` would remove.
  bool hasWork() const;
  /// `document` was closed, and the user was asked: nothing of it is to be kept.
  void forget(const framework::ZuDocument& document);

  /// Asks of each document that an earlier program kept whether to recover it; not of what its file holds already. Damaged
  /// files are told of, and stay unless the user removes them. How many documents were opened.
  std::size_t offer();

 private:
  struct Kept {
    std::uint64_t number = 0;  ///< from 1
    std::vector<std::byte> contents;
    foundation::RecoveryOrigin origin;
    bool isWritten = false;  ///< whether the store took these contents
  };

  /// Whether the store holds the document as it is.
  bool keep(framework::ZuDocument& document);
  bool offer(const foundation::RecoveryFile& file);
  void tellDamaged(const foundation::RecoveryFile& file, const std::string& reason);
  std::string informationOf(const foundation::RecoveryFile& file, const model::PatientRecord& patient,
                            const std::vector<model::PatientDifference>& differences) const;
  foundation::RecoveryOrigin originOf(const framework::ZuDocument& document) const;
  /// Whether the document's file holds something else than what the changes were made to.
  bool isFileNewer(const foundation::RecoveryFile& file) const;
  /// The patient in the document at `path`; null where there is none that can be read.
  std::unique_ptr<model::PatientRecord> savedPatient(const std::string& path) const;

  foundation::Services services_;
  framework::DocumentController& documents_;
  framework::Alerts& alerts_;
  foundation::RecoveryStore& store_;
  std::map<const framework::ZuDocument*, Kept> kept_;
  std::uint64_t lastNumber_ = 0;
};

}  // namespace nascor::app
