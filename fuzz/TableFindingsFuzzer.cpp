// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Any text as a table of examinations. What is refused is refused in sentences; of what is read the findings are JSON, of one
// day each, and hold lengths that a document takes and no fetus twice.

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "calc/EditingBounds.h"
#include "exchange/FindingsJson.h"
#include "exchange/TableFindings.h"
#include "foundation/ConvertInteger.h"

namespace {

using nascor::exchange::Findings;

void require(bool holds) {
  if (!holds) std::abort();
}

void check(const Findings& findings) {
  require(findings.examDate.has_value());
  std::set<std::optional<std::string>> ids;
  for (const auto& fetus : findings.fetuses) {
    require(ids.insert(fetus.id).second);
    require(!fetus.id || *fetus.id == "1" || *fetus.id == "2" || *fetus.id == "3" || *fetus.id == "4" ||
            *fetus.id == "5");
    for (std::size_t i = 0; i < nascor::exchange::kStoredLengths; ++i) {
      const auto& length = fetus.lengths.at(i);
      if (!length) continue;
      const double mm = nascor::foundation::narrowedToFloat(length->mm);
      require(length->mm != 0.0);
      require(nascor::calc::editingBounds(nascor::calc::kMeasurements.at(i)).permit(mm));
    }
  }
  require(!findings.fetuses.empty());
  std::string json;
  nascor::foundation::JsonText text(json);
  nascor::exchange::writeFindingsJson(text, "file", findings);
  require(json.find('\n') == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto found = nascor::exchange::findingsInTable(text);
  if (!found) return 0;
  if (const auto* sentences = std::get_if<1>(&*found)) {
    require(!sentences->empty());
    for (const auto& sentence : *sentences) require(!english(sentence).empty());
    return 0;
  }
  const auto& all = std::get<0>(*found);
  require(!all.empty());
  std::set<std::pair<std::optional<std::string>, std::string>> examinations;
  for (const Findings& findings : all) {
    check(findings);
    std::string day;
    for (const std::int64_t part : {findings.examDate->year, std::int64_t{findings.examDate->month},
                                    std::int64_t{findings.examDate->day}})
      day += std::to_string(part) + "-";
    require(examinations.emplace(findings.patientID, day).second);
  }
  return 0;
}
