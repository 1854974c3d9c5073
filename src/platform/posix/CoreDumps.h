// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

namespace nascor::posix {

/// From now on the system writes no memory of this process into a file when it crashes: patients' records are in it.
void switchOffCoreDumps();

}  // namespace nascor::posix
