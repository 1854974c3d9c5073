// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/RangeError.h"

namespace nascor::foundation {

void throwRangeError(std::string index, std::size_t count, SourceLocation where) {
  throw RangeError("index " + std::move(index) + " is outside the " + std::to_string(count) + " elements",
                   where);
}

}  // namespace nascor::foundation
