// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <fcntl.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace nascor::tests {

/// An application that is told what to do, a line at a time.
class Program {
 public:
  /// `settings` are NAME=VALUE of its environment.
  explicit Program(const std::vector<std::string>& settings = {}) {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    if (::pipe2(in.data(), O_CLOEXEC) != 0 || ::pipe2(out.data(), O_CLOEXEC) != 0) return;
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(in[0], STDIN_FILENO);
      ::dup2(out[1], STDOUT_FILENO);
      for (const std::string& setting : settings) {
        const std::size_t equals = setting.find('=');
        ::setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
      }
      ::execl(NASCOR_DRIVE, NASCOR_DRIVE, nullptr);
      ::_exit(127);
    }
    ::close(in[0]);
    ::close(out[1]);
    in_ = in[1];
    out_ = ::fdopen(out[0], "r");
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() { end(0); }

  std::string answer(const std::string& line) const {
    const std::string sent = line + "\n";
    if (::write(in_, sent.data(), sent.size()) < 0) return "";
    std::string answer;
    for (int c = std::fgetc(out_); c != EOF && c != '\n'; c = std::fgetc(out_))
      answer += static_cast<char>(c);
    return answer;
  }
  /// By closing its input, or by a signal.
  void end(int signal) {
    if (out_ == nullptr) return;
    ::close(in_);
    if (signal != 0) ::kill(process_, signal);
    ::waitpid(process_, nullptr, 0);
    std::fclose(out_);
    out_ = nullptr;
  }
  pid_t process() const { return process_; }

 private:
  pid_t process_ = -1;
  int in_ = -1;
  std::FILE* out_ = nullptr;
};

}  // namespace nascor::tests
