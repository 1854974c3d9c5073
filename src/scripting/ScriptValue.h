// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace nascor::scripting {

/// A value as a script gives or takes it; the first alternative is none. A date is a text, the local day in ISO 8601.
using ScriptValue = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

/// A number as a script hands it over, whole or not.
using ScriptNumber = std::variant<std::int64_t, double>;

/// `number` without its fraction; 0 for what is no number, the nearest limit beyond the 64-bit range.
std::int64_t integerValue(const ScriptNumber& number);
/// The nearest single-precision number; beyond its range an infinity.
float floatValue(const ScriptNumber& number);

}  // namespace nascor::scripting
