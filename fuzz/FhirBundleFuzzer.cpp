// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Any text as a FHIR bundle. What is refused is refused in a sentence; of what is read the findings are JSON, and their
// lengths are positive and finite.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "exchange/FhirReader.h"
#include "exchange/Findings.h"
#include "exchange/FindingsJson.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto reports =
      nascor::exchange::reportsInBundle(std::string_view(reinterpret_cast<const char*>(data), size));
  if (reports.index() == 1) {
    require(!english(std::get<1>(reports)).empty());
    return 0;
  }
  for (const auto& report : std::get<0>(reports)) {
    const auto findings = nascor::exchange::findingsIn(report);
    require(findings.index() == 0);
    for (const auto& fetus : std::get<0>(findings).fetuses) {
      for (const auto& length : fetus.lengths)
        require(!length || (length->mm > 0.0 && std::isfinite(length->mm) && !length->chosen.empty()));
    }
    std::string json;
    nascor::foundation::JsonText text(json);
    nascor::exchange::writeFindingsJson(text, "file", std::get<0>(findings));
    require(json.find('\n') == std::string::npos);
  }
  return 0;
}
