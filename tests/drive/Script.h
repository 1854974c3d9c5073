// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "drive/Driver.h"
#include "foundation/Services.h"
#include "framework/DocumentController.h"

namespace nascor::drive {

/// Does what a script does: `["get",KEY]` and `["set",KEY,VALUE]` on the current document, `["command",NAME]` on the
/// application (null for a command without a name). Throws what the scripting layer throws, and std::runtime_error for
/// what is no such line.
Json script(const Json& call, framework::DocumentController& documents, const foundation::Services& services);

}  // namespace nascor::drive
