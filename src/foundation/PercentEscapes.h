// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace nascor::foundation {

/// `path`, UTF-8, as the path of a URL: each byte that may not stand there as it is becomes "%" and two digits. The signs
/// that end a path, "?" and "#", are such bytes; "/" is not.
std::string withPercentEscapes(std::string_view path);

}  // namespace nascor::foundation
