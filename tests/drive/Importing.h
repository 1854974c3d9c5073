// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>
#include <optional>

#include "app/ReportImport.h"

namespace nascor::drive {

/// Machines' reports that are being imported, and what the user decides about them.
class Importing {
 public:
  using Json = nlohmann::ordered_json;

  /// Shows the reports in the files `paths`, beside the document that they go into, which is then in front: what
  /// `description` gives, and `failures`.
  Json begin(const Json& paths, app::NCDocument& document);
  /// `["patient",BOOL]`; `["fetus",ID,N]`, N from 1 or null to leave it out; `["row",FETUS,WHAT,BOOL]`, of the first
  /// examination in which it can be decided, or `["row",FETUS,WHAT,EXAMINATION,BOOL]`; `"OK"`; `"Cancel"`.
  Json decide(const Json& decision);
  /// The document is about to go.
  void forget(const framework::ZuDocument& document);

 private:
  /// `doubt` about the patient, null for none; `fetuses`, the place of each by its name; `rows`, each with fetus, value,
  /// what is reported, what stands, what becomes of it, and whether it is chosen, null where there is no choice; `obstacle`,
  /// null for none.
  Json description() const;
  void decideRow(const Json& decision);

  std::optional<app::ReportImport> import_;
  const framework::ZuDocument* document_ = nullptr;
};

}  // namespace nascor::drive
