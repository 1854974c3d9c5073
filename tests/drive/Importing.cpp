// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Importing.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "posix/PosixFileStore.h"
#include "reports/Reports.h"

namespace nascor::drive {

using Json = Importing::Json;

namespace {

Json inEnglish(const std::vector<foundation::Sentence>& sentences) {
  Json all = Json::array();
  for (const foundation::Sentence& each : sentences) all.push_back(english(each));
  return all;
}

Json textOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

}  // namespace

Json Importing::begin(const Json& paths, app::NCDocument& document) {
  import_.reset();
  const auto files = paths.get<std::vector<std::string>>();
  reports::FoundInFiles found = reports::findingsInFiles(files, document.services().files);
  if (found.findings.empty()) return {{"failures", inEnglish(found.failures)}};
  if (!document.commitEditing()) throw std::runtime_error("a field refuses its text");
  app::NCDocument& target = document.documentOfPatient(found.findings);
  document_ = &target;
  import_.emplace(target, std::move(found.findings));
  Json answer = description();
  answer["failures"] = inEnglish(found.failures);
  return answer;
}

Json Importing::decide(const Json& decision) {
  if (!import_) throw std::runtime_error("nothing is being imported");
  if (decision == "OK") {
    const bool isStored = import_->store();
    if (isStored) import_.reset();
    return {{"stored", isStored}};
  }
  if (decision == "Cancel") {
    import_.reset();
    return Json::object();
  }
  const auto what = decision.at(0).get<std::string>();
  if (what == "patient") {
    import_->confirmPatient(decision.at(1).get<bool>());
  } else if (what == "fetus") {
    const auto& fetuses = import_->fetuses();
    std::size_t fetus = 0;
    while (fetus < fetuses.size() && fetuses[fetus].id != decision.at(1).get<std::string>()) ++fetus;
    if (fetus == fetuses.size()) throw std::runtime_error("there is no such fetus");
    if (decision.at(2).is_null()) {
      import_->leaveOut(fetus);
    } else {
      import_->setPlace(fetus, decision.at(2).get<std::int64_t>() - 1);
    }
  } else if (what == "row") {
    decideRow(decision);
  } else {
    throw std::runtime_error("there is no decision \"" + what + "\"");
  }
  return description();
}

void Importing::decideRow(const Json& decision) {
  const bool isOfOne = decision.size() == 5;
  const auto& rows = import_->rows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto& row = rows[i];
    if (!row.canBeChosen || row.fetus != decision.at(1) || row.what != decision.at(2)) continue;
    if (isOfOne && row.examination != decision.at(3)) continue;
    import_->choose(i, decision.at(isOfOne ? 4 : 3).get<bool>());
    return;
  }
  throw std::runtime_error("there is no such row that can be decided");
}

void Importing::forget(const framework::ZuDocument& document) {
  if (document_ == &document) import_.reset();
}

Json Importing::description() const {
  Json fetuses = Json::object();
  const auto names = import_->placeNames();
  for (const auto& fetus : import_->fetuses()) {
    Json& place = fetuses[fetus.name];
    if (fetus.isLeftOut) place = "left out";
    if (fetus.place) place = names.at(static_cast<std::size_t>(*fetus.place));
  }
  Json rows = Json::array();
  for (const auto& row : import_->rows()) {
    rows.push_back({row.fetus, row.what, row.reported, row.standing, row.outcome,
                    row.canBeChosen ? Json(row.isChosen) : Json()});
  }
  return {{"doubt", textOrNull(import_->patientDoubt())},
          {"fetuses", fetuses},
          {"rows", rows},
          {"obstacle", textOrNull(import_->obstacle())}};
}

}  // namespace nascor::drive
