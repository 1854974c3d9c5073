// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "exchange/OutgoingExamination.h"

namespace nascor::exchange {

/// How the resources of a document stand together.
enum class FhirForm {
  bundle,  ///< one Bundle of type collection, indented
  lines    ///< NDJSON: one resource a line, references by type and id
};

/// The examinations of one document as FHIR R4. A mother without examinations has no resource: `examinations` must not be
/// empty. docs/exchange.md describes the resources.
std::string writeFhir(std::span<const OutgoingExamination> examinations, FhirForm form);

/// "A" for the first fetus, "B" for the second, "AA" after "Z".
std::string letterOfFetus(std::size_t fetus);

/// The fetus, from 0, that one or two capital letters name.
std::optional<std::size_t> fetusOfLetter(std::string_view letter);

inline constexpr const char* kLoinc = "http://loinc.org";
inline constexpr const char* kUcum = "http://unitsofmeasure.org";

}  // namespace nascor::exchange
