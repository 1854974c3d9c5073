// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <variant>

#include "foundation/Sentence.h"
#include "summary/Typesetter.h"

namespace nascor::typesetting {

/// The typesetter, whose module is loaded by the first call; it lives as long as the program. Or why there is none, in a
/// sentence.
std::variant<summary::Typesetter*, foundation::Sentence> typesetter();

}  // namespace nascor::typesetting
