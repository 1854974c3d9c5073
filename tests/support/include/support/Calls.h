// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Signal.h"

namespace nascor::tests {

/// Counts the calls of a signal from now on.
class Calls {
 public:
  template <class... Arguments>
  explicit Calls(foundation::Signal<Arguments...>& signal)
      : subscription_(signal.subscribe([this](const Arguments&...) { ++count_; })) {}
  Calls(const Calls&) = delete;
  Calls& operator=(const Calls&) = delete;

  int count() const { return count_; }

 private:
  int count_ = 0;
  foundation::Subscription subscription_;
};

}  // namespace nascor::tests
