// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

namespace nascor::foundation {

/// The whole number that `text` begins with: white space, one sign, ASCII digits; what follows is ignored.
/// 0 when there are no digits. Saturates at the 64-bit limits.
std::int64_t leadingInteger(std::string_view text);

}  // namespace nascor::foundation
