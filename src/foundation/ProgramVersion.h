// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace nascor::foundation {

/// The version of the program, such as "1.2.3".
std::string_view programVersion();

}  // namespace nascor::foundation
