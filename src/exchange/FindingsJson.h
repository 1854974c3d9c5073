// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "exchange/Findings.h"
#include "foundation/JsonText.h"

namespace nascor::exchange {

/// Writes one object with all that was found in `file`: docs/json.md lists its keys. Lengths are in millimetres, the
/// weight in grams; what is not known is null.
void writeFindingsJson(foundation::JsonText& json, std::string_view file, const Findings& findings);

}  // namespace nascor::exchange
