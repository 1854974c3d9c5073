// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/SystemClock.h"

#include <chrono>

namespace nascor::posix {

foundation::Date SystemClock::now() const {
  namespace chrono = std::chrono;
  constexpr chrono::sys_days kReferenceDay{chrono::year{2001} / chrono::January / 1};
  return {chrono::duration<double>(chrono::system_clock::now() - kReferenceDay).count()};
}

}  // namespace nascor::posix
