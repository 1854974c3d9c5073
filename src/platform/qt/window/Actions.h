// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>

#include "foundation/Signal.h"

namespace nascor::qt {

/// Lets one action of the user run at a time. A question to the user runs the event loop, and what happens there must not
/// begin a second action in the middle of the first.
class Actions {
 public:
  using Action = std::function<void()>;

  /// Runs `action`; false, and nothing happens, while another is running. Exceptions pass through.
  bool perform(const Action& action);
  /// Runs `action` at once, or as soon as the one that is running has ended.
  void performInTurn(Action action);
  bool isRunning() const { return isRunning_; }

  foundation::Signal<> onIdle;  ///< sent after each action, when none is running any more

 private:
  bool isRunning_ = false;
  std::deque<Action> waiting_;
};

}  // namespace nascor::qt
