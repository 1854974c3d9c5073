// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <future>
#include <memory>

namespace nascor::qt {

/// Lets a server be asked while the windows go on painting. One question at a time.
class ServerTask {
 public:
  ServerTask() = default;
  ServerTask(const ServerTask&) = delete;
  ServerTask& operator=(const ServerTask&) = delete;
  /// Waits for what was abandoned, which ends within its time limit.
  ~ServerTask();

  /// Runs `work` aside and shows `what` with a button to cancel. Whether it was done: false when the user did not wait for
  /// the end, or still has another question open. `work` must own all that it uses.
  bool run(QWidget& window, const QString& what, std::function<void()> work);

 private:
  std::future<void> running_;
};

}  // namespace nascor::qt
