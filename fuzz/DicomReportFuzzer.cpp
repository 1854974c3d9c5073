// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Any bytes as a DICOM report. What is refused is refused in a sentence; of what is read the findings are JSON, and their
// lengths are positive and finite, each with its kind.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "dicom/DcmtkReportFiles.h"
#include "exchange/Findings.h"
#include "exchange/FindingsJson.h"
#include "foundation/Utf8.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static nascor::dicom::DcmtkReportFiles files;
  const auto report = files.read(std::as_bytes(std::span(data, size)));
  if (report.index() == 1) {
    require(!english(std::get<1>(report)).empty());
    return 0;
  }
  const auto findings = nascor::exchange::findingsIn(std::get<0>(report));
  if (findings.index() == 1) return 0;
  for (const auto& fetus : std::get<0>(findings).fetuses) {
    for (const auto& length : fetus.lengths)
      require(!length || (length->mm > 0.0 && std::isfinite(length->mm) && !length->chosen.empty()));
  }
  std::string json;
  nascor::foundation::JsonText text(json);
  nascor::exchange::writeFindingsJson(text, "file", std::get<0>(findings));
  require(nascor::foundation::isValidUtf8(json) && json.find('\n') == std::string::npos);
  return 0;
}
