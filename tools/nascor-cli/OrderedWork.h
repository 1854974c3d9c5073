// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <condition_variable>
#include <csignal>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace nascor::cli {

/// Does pieces of work on threads of its own and hands on what comes of them in the order of the pieces. One thread adds
/// and takes; it decides how many pieces are under way.
template <class Piece, class Result>
class OrderedWork {
 public:
  /// `work` is called by all threads.
  OrderedWork(std::size_t threads, std::function<Result(Piece)> work) : work_(std::move(work)) {
    // Signals are for the thread that writes.
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    for (std::size_t i = 0; i < threads; ++i) threads_.emplace_back([this] { run(); });
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  }
  OrderedWork(const OrderedWork&) = delete;
  OrderedWork& operator=(const OrderedWork&) = delete;
  /// Waits for the pieces under way; those that wait are left.
  ~OrderedWork() {
    {
      const std::lock_guard lock(mutex_);
      isOver_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
  }

  void add(Piece piece) {
    {
      const std::lock_guard lock(mutex_);
      jobs_.push_back(std::make_unique<Job>(std::move(piece)));
      waiting_.push_back(jobs_.back().get());
    }
    changed_.notify_one();
  }

  /// The pieces that were added and not taken.
  std::size_t count() const { return jobs_.size(); }

  /// What came of the oldest piece. Throws what the work threw. Precondition: there is one.
  Result take() {
    std::unique_ptr<Job> job;
    {
      std::unique_lock lock(mutex_);
      done_.wait(lock, [&] { return jobs_.front()->result || jobs_.front()->thrown; });
      job = std::move(jobs_.front());
      jobs_.pop_front();
    }
    if (job->thrown) std::rethrow_exception(job->thrown);
    return std::move(*job->result);
  }

 private:
  struct Job {
    explicit Job(Piece added) : piece(std::move(added)) {}
    Piece piece;
    std::optional<Result> result{};
    std::exception_ptr thrown{};
  };

  void run() {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [&] { return isOver_ || !waiting_.empty(); });
      if (isOver_) return;
      Job& job = *waiting_.front();
      waiting_.pop_front();
      lock.unlock();
      std::optional<Result> result;
      std::exception_ptr thrown;
      try {
        result = work_(std::move(job.piece));
      } catch (...) {
        thrown = std::current_exception();
      }
      lock.lock();
      job.result = std::move(result);
      job.thrown = thrown;
      done_.notify_one();
    }
  }

  std::function<Result(Piece)> work_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::condition_variable done_;
  std::deque<std::unique_ptr<Job>> jobs_;
  std::deque<Job*> waiting_;
  bool isOver_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace nascor::cli
