// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "exchange/StructuredReport.h"
#include "foundation/Sentence.h"

namespace nascor::exchange {

/// The examinations in a FHIR R4 bundle of the shape that `writeBundle` gives, each as the report that holds the same;
/// or a sentence that says why it is none.
std::variant<std::vector<StructuredReport>, foundation::Sentence> reportsInBundle(std::string_view json);

}  // namespace nascor::exchange
