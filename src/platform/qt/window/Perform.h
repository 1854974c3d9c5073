// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "app/NCDocument.h"

namespace nascor::qt {

using DocumentAction = std::function<void(app::NCDocument&)>;

/// How the parts of a window act on its document: does the action of the user, or nothing when the window holds it back.
using Perform = std::function<void(const DocumentAction&)>;

}  // namespace nascor::qt
