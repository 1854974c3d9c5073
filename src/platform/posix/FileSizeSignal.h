// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

namespace nascor::posix {

/// From now on a file that grows beyond the size that the system permits fails to be written, like one on a full disk, and does
/// not end the program.
void ignoreFileSizeSignal();

}  // namespace nascor::posix
