// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/Utf8.h"

namespace nascor::framework {

/// The bytes of a beginning of `text`, of whole characters, that is too wide, though not by far; all of `text` when none is.
/// So what is much too long need not be measured again and again.
template <class Fits>
std::size_t roughBeginning(std::string_view text, const Fits& fits) {
  constexpr std::size_t kFirst = 128;  // code points
  for (std::size_t most = kFirst;; most *= 2) {
    const std::size_t end = foundation::lengthOfBeginning(text, most);
    if (end == text.size() || !fits(text.substr(0, end))) return end;
  }
}

/// The bytes of the longest beginning of `text`, a whole number of code points, that fits; 0 for none.
template <class Fits>
std::size_t fittingBeginning(std::string_view text, const Fits& fits) {
  std::size_t end = roughBeginning(text, fits);
  while (end > 0 && !fits(text.substr(0, end))) end = foundation::lengthWithin(text, end - 1);
  return end;
}

}  // namespace nascor::framework
