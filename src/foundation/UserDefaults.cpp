// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"

#include <algorithm>

#include "foundation/LeadingInteger.h"

namespace nascor::foundation {

std::int64_t integerForKey(const UserDefaults& defaults, std::string_view key) {
  return leadingInteger(defaults.value(key).value_or(""));
}

bool boolForKey(const UserDefaults& defaults, std::string_view key) {
  const std::string text = defaults.value(key).value_or("");
  const auto first = text.find_first_not_of(" \t\n\r");
  if (first == std::string::npos) return false;
  const char initial = text[first];
  if (initial == 'Y' || initial == 'y' || initial == 'T' || initial == 't') return true;
  return leadingInteger(text) != 0;
}

}  // namespace nascor::foundation
