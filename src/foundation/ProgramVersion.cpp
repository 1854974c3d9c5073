// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/ProgramVersion.h"

namespace nascor::foundation {

std::string_view programVersion() { return NASCOR_VERSION; }

}  // namespace nascor::foundation
