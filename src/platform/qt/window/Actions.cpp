// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/Actions.h"

#include <utility>

namespace nascor::qt {

bool Actions::perform(const Action& action) {
  if (isRunning_) return false;
  {
    isRunning_ = true;
    struct Ended {
      bool& flag;
      ~Ended() { flag = false; }
    } const ended{isRunning_};
    action();
  }
  if (!waiting_.empty()) {
    const Action next = std::move(waiting_.front());
    waiting_.pop_front();
    return perform(next);
  }
  onIdle();
  return true;
}

void Actions::performInTurn(Action action) {
  if (!perform(action)) waiting_.push_back(std::move(action));
}

}  // namespace nascor::qt
