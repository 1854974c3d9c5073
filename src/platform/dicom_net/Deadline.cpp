// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/Deadline.h"

#include <algorithm>
#include <csignal>

#include <sys/socket.h>

namespace nascor::dicom_net {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

void leaveSignalsToOthers() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

Deadline::Deadline(std::chrono::seconds time) : end_(Clock::now() + time) {
  thread_ = std::thread([this] { run(); });
}

Deadline::~Deadline() {
  {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
  }
  wakes_.notify_all();
  thread_.join();
}

bool Deadline::isPassed() const {
  const std::lock_guard lock(mutex_);
  return Clock::now() >= end_;
}

milliseconds Deadline::remaining() const {
  const std::lock_guard lock(mutex_);
  return std::max(milliseconds(1), std::chrono::duration_cast<milliseconds>(end_ - Clock::now()));
}

void Deadline::shorten(milliseconds time) {
  {
    const std::lock_guard lock(mutex_);
    end_ = std::min(end_, Clock::now() + time);
  }
  wakes_.notify_all();
}

void Deadline::watch(int socket) {
  const std::lock_guard lock(mutex_);
  socket_ = socket;
  if (Clock::now() >= end_) ::shutdown(socket_, SHUT_RDWR);
}

void Deadline::release() {
  const std::lock_guard lock(mutex_);
  socket_ = -1;
}

void Deadline::run() {
  leaveSignalsToOthers();
  std::unique_lock lock(mutex_);
  while (!isOver_ && Clock::now() < end_) {
    const Clock::time_point end = end_;
    wakes_.wait_until(lock, end);
  }
  if (!isOver_ && socket_ >= 0) ::shutdown(socket_, SHUT_RDWR);
}

}  // namespace nascor::dicom_net
