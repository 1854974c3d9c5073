// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "foundation/FileStore.h"

namespace nascor::posix {

/// The error of the last call of the operating system, or of that number.
inline foundation::FileError systemError(int number = errno) {
  return foundation::FileError{std::generic_category().message(number)};
}

/// Repeats a call of the operating system that a signal interrupted.
template <class Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

/// An open file, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }

  /// False, with `errno` set, when the system reports a late failure to write.
  bool close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

 private:
  int number_;
};

}  // namespace nascor::posix
