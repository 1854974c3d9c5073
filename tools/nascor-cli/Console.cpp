// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Console.h"

#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace nascor::cli {

namespace {

/// 0, or the number of the system's error.
int writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      return ENOSPC;
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

constexpr int kInterrupted = 130;

// Only the thread that writes takes the signal, so it comes before a write, after it or within it.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): a signal handler reaches nothing else
volatile std::sig_atomic_t isWriting = 0;
volatile std::sig_atomic_t isInterrupted = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void interrupted(int) {
  if (isWriting == 0) ::_exit(kInterrupted);
  isInterrupted = 1;
}

void writeOutput(std::string_view bytes) {
  isWriting = 1;
  const int error = writeAll(STDOUT_FILENO, bytes);
  isWriting = 0;
  if (isInterrupted != 0) ::_exit(kInterrupted);
  if (error != 0) throw OutputError(std::generic_category().message(error), error == EPIPE);
}

}  // namespace

Console::Console(const foundation::Localizer& localizer)
    : localizer_(localizer), outputIsTerminal_(::isatty(STDOUT_FILENO) == 1) {}

bool Console::errorsAloneAreSeen() const { return !outputIsTerminal_ && ::isatty(STDERR_FILENO) == 1; }

void Console::lineDone() {
  out_ += '\n';
  linesDone();
}

void Console::linesDone() { outputIsTerminal_ ? flush() : partDone(); }

void Console::partDone() {
  constexpr std::size_t kEnough = std::size_t{1} << 16;
  if (out_.size() >= kEnough) flush();
}

void Console::endOnInterrupt() {
  struct sigaction action {};
  action.sa_handler = interrupted;
  // A write goes on where it was.
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  ::sigaction(SIGINT, &action, nullptr);
}

void Console::flush() {
  // Emptied first: what could not be written is not tried again.
  const std::string text = std::exchange(out_, {});
  writeOutput(text);
}

void Console::writeBytes(std::span<const std::byte> bytes) {
  flush();
  writeOutput({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

void Console::complain(std::string_view source, const Sentence& sentence) {
  allWell_ = false;
  warn(source, sentence);
}

void Console::warn(std::string_view source, const Sentence& sentence) {
  // In the order of events, where both go to the same place.
  flush();
  const bool isName = source != kStandardInput && source != kWarning;
  const std::string shown = isName ? std::string(source) : localizer_.text("CommandLine", source);
  writeError(oneLine(shown) + ": " + oneLine(said(sentence, localizer_)) + "\n");
}

void Console::writeError(std::string_view text) { writeAll(STDERR_FILENO, text); }

}  // namespace nascor::cli
