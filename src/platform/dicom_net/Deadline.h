// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace nascor::dicom_net {

/// Keeps signals from the calling thread, so that those of the program handle them.
void leaveSignalsToOthers();

/// The end of the time that an operation has. At that moment the connection that it watches is cut, so that a call that
/// waits for it returns, whatever it waits for.
class Deadline {
 public:
  explicit Deadline(std::chrono::seconds time);
  ~Deadline();
  Deadline(const Deadline&) = delete;
  Deadline& operator=(const Deadline&) = delete;

  bool isPassed() const;
  /// At least one millisecond.
  std::chrono::milliseconds remaining() const;
  /// Brings the end nearer, where it is farther.
  void shorten(std::chrono::milliseconds time);

  /// Cuts this socket in time. One at a time.
  void watch(int socket);
  /// Before the socket is closed.
  void release();

 private:
  void run();

  mutable std::mutex mutex_;
  std::chrono::steady_clock::time_point end_;
  std::condition_variable wakes_;
  int socket_ = -1;
  bool isOver_ = false;
  std::thread thread_;
};

}  // namespace nascor::dicom_net
