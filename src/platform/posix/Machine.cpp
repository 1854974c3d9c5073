// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/Machine.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fstream>
#include <sstream>

#include <unistd.h>

namespace nascor::posix {
namespace {

std::string firstLineOf(const std::string& path) {
  std::string line;
  std::getline(std::ifstream(path), line);
  return line;
}

std::string hostName() {
  std::array<char, HOST_NAME_MAX + 1> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::string processSpace() {
  std::array<char, 64> text{};
  const ssize_t length = ::readlink("/proc/self/ns/pid", text.data(), text.size());
  return length > 0 ? std::string(text.data(), static_cast<std::size_t>(length)) : "";
}

Machine lookAtMachine() {
  const std::string number = firstLineOf("/etc/machine-id");
  return {.host = hostName(),
          .mark = number.empty() ? "" : digest("nascor" + number),
          .boot = firstLineOf("/proc/sys/kernel/random/boot_id"),
          .space = processSpace()};
}

}  // namespace

const Machine& thisMachine() {
  static const Machine machine = lookAtMachine();
  return machine;
}

std::string digest(const std::string& text) {
  std::uint64_t hash = 0xcbf29ce484222325U;  // FNV-1a
  for (const char byte : text) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
  std::string digits;
  for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[hash >> shift & 0xFU];
  return digits;
}

std::int64_t startOfProcess(pid_t process) {
  if (process <= 0 || (::kill(process, 0) != 0 && errno == ESRCH)) return 0;
  const std::string line = firstLineOf("/proc/" + std::to_string(process) + "/stat");
  // The program's name, which stands in parentheses, may hold some of its own.
  const std::size_t end = line.rfind(')');
  if (end == std::string::npos) return -1;
  std::istringstream rest(line.substr(end + 1));
  std::string state;
  rest >> state;
  if (state == "Z" || state == "X") return 0;
  constexpr int kBetween = 18;
  std::string word;
  for (int i = 0; i < kBetween; ++i) rest >> word;
  std::int64_t start = -1;
  rest >> start;
  return rest.fail() ? -1 : start;
}

}  // namespace nascor::posix
