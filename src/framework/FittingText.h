// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include "framework/Canvas.h"

namespace nascor::framework {

/// `text` as it fits into `width`: what does not fit is left out before its last `bytesOfEnd` bytes, which stay even where
/// they do not fit.
std::string fittingText(const std::string& text, std::size_t bytesOfEnd, const Canvas& canvas, double width);

}  // namespace nascor::framework
