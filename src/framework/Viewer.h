// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace nascor::framework {

/// Shows documents of other programs in the program that the user has for them.
class Viewer {
 public:
  virtual ~Viewer() = default;
  /// False when no program can show it.
  virtual bool open(const std::string& url) = 0;
};

}  // namespace nascor::framework
