// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calc/References.h"
#include "foundation/JsonText.h"

namespace nascor::cli {

// How commands write what a reference says: null in JSON, and a dash for people, for what it cannot say.

/// "<1" and ">99" beyond the outermost curves; else the shortest digits.
std::string centileText(const calc::Centile& centile);

void writeOrNull(foundation::JsonText& json, std::optional<double> number);
void writeOrNull(foundation::JsonText& json, const std::optional<calc::Centile>& centile);

/// The reference of that name, in letters of any size, or a UsageError that lists what there is.
const calc::Reference& requiredReference(std::string_view what, const std::string& text);

}  // namespace nascor::cli
