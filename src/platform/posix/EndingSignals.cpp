// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/EndingSignals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace nascor::posix {
namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a signal handler reaches nothing else
volatile std::sig_atomic_t pipeEnd = -1;

constexpr std::array kSignals{SIGTERM, SIGHUP};

void passOn(int signal) {
  const int error = errno;
  const auto number = static_cast<unsigned char>(signal);
  // A full pipe holds a signal already.
  [[maybe_unused]] const auto written = ::write(pipeEnd, &number, 1);
  errno = error;
}

void handleBy(void (*handler)(int)) {
  for (const int signal : kSignals) {
    struct sigaction before {};
    // A program that was started with one of them ignored, by nohup, goes on ignoring it.
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN) continue;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
  }
}

}  // namespace

EndingSignals::EndingSignals() {
  if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    ends_.fill(-1);
    return;
  }
  pipeEnd = ends_[1];
  handleBy(passOn);
}

EndingSignals::~EndingSignals() {
  if (ends_[0] < 0) return;
  handleBy(SIG_DFL);
  pipeEnd = -1;
  ::close(ends_[0]);
  ::close(ends_[1]);
}

void EndingSignals::obey() const {
  unsigned char signal = 0;
  if (::read(ends_[0], &signal, 1) != 1) return;
  ::signal(signal, SIG_DFL);
  ::raise(signal);
}

}  // namespace nascor::posix
