// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/ScriptValue.h"

#include "foundation/ConvertInteger.h"

namespace nascor::scripting {

std::int64_t integerValue(const ScriptNumber& number) {
  if (const auto* whole = std::get_if<std::int64_t>(&number)) return *whole;
  return foundation::truncatedToInteger(std::get<double>(number));
}

float floatValue(const ScriptNumber& number) {
  // Not by way of a double, which would round twice.
  if (const auto* whole = std::get_if<std::int64_t>(&number)) return static_cast<float>(*whole);
  return foundation::narrowedToFloat(std::get<double>(number));
}

}  // namespace nascor::scripting
