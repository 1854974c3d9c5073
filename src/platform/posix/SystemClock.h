// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

namespace nascor::posix {

/// The system's clock, with its fraction of a second.
class SystemClock final : public foundation::Clock {
 public:
  foundation::Date now() const override;
};

}  // namespace nascor::posix
