// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Date.h"

namespace nascor::foundation {

/// Tells the time. Implemented once for the operating system; tests stop it.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date now() const = 0;
};

}  // namespace nascor::foundation
