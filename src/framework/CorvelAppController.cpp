// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/CorvelAppController.h"

namespace nascor::framework {

bool CorvelAppController::validateMenuItem(MenuItem&) { return true; }

}  // namespace nascor::framework
