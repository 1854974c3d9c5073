// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ServerTask.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>
#include <chrono>
#include <utility>

#include "base/Text.h"

namespace nascor::qt {

namespace {

constexpr std::chrono::milliseconds kLook{20};

bool isDone(const std::future<void>& running) {
  return running.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace

ServerTask::~ServerTask() {
  if (running_.valid()) running_.wait();
}

bool ServerTask::run(QWidget& window, const QString& what, std::function<void()> work) {
  const bool waitsForOther = running_.valid() && !isDone(running_);
  if (!waitsForOther) running_ = std::async(std::launch::async, std::move(work));
  QProgressDialog progress(
      waitsForOther ? said("ServerTask", "Waiting for the end of the last question...") : what,
      said("ServerTask", "Cancel"), 0, 0, &window);
  progress.setObjectName(QStringLiteral("serverProgress"));
  progress.setWindowModality(Qt::ApplicationModal);
  progress.setMinimumDuration(300);
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (isDone(running_)) loop.quit();
  });
  QObject::connect(&progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
  look.start(kLook);
  if (!isDone(running_)) loop.exec();
  const bool wasDone = isDone(running_);
  progress.reset();
  if (!wasDone || waitsForOther) return false;
  running_.get();
  return true;
}

}  // namespace nascor::qt
