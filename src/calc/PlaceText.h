// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "calc/References.h"
#include "foundation/Localizer.h"

namespace nascor::calc {

// How people read where a value lies among its peers.

/// "+1.25"; "-" for what is not finite.
std::string zText(double z, const foundation::Localizer& localizer);

/// "89.4"; never 0 or 100: "<0.1" and ">99.9". Beyond the outermost curve of a reference "<1" or ">99", and "-" for what is
/// not finite.
std::string centileText(const Centile& centile, const foundation::Localizer& localizer);

}  // namespace nascor::calc
