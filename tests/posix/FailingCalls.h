// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>

namespace nascor::tests {

/// What calls of the operating system answer in these tests, in place of the system: the number of an error, with which they
/// fail; or nothing, when they go on to the system. Only while an object of this lives.
struct FailingCalls {
  using Answer = std::function<std::optional<int>()>;

  FailingCalls();
  FailingCalls(const FailingCalls&) = delete;
  FailingCalls& operator=(const FailingCalls&) = delete;
  ~FailingCalls();

  Answer flock{};
  Answer fsync{};
  Answer syncfs{};
  Answer fchmod{};
  Answer linkat{};
  Answer renameat2{};
  std::function<std::optional<int>(const std::string& path)> open{};
  Answer pipe2{};
  Answer unlink{};
  bool hidesKinds = false;  ///< The list of a folder does not say what each name is.
};

}  // namespace nascor::tests
