// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "foundation/Utf8.h"

/// `text` without what is no UTF-8: no file can hold that, and no bus delivers it.
inline std::string validText(std::string_view text) {
  std::string kept;
  while (!text.empty()) {
    const std::size_t length = nascor::foundation::characterLength(text);
    kept += text.substr(0, length);
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return kept;
}
