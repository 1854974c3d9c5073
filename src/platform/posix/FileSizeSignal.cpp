// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/FileSizeSignal.h"

#include <csignal>

namespace nascor::posix {

void ignoreFileSizeSignal() { static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); }

}  // namespace nascor::posix
