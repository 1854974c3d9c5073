// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <variant>

#include "foundation/Sentence.h"

namespace nascor::posix {

/// The address of a function in a module of this program (NAME.so in the folder of its modules, which is found from the
/// program's own place, wherever that is). The module is loaded by the first call and stays. Or why there is none, in a
/// sentence.
std::variant<void*, foundation::Sentence> moduleAddress(const std::string& module,
                                                        const std::string& function);

/// That function itself, of the type with which the module defines it.
template <class Function>
std::variant<Function, foundation::Sentence> moduleFunction(const std::string& module,
                                                            const std::string& function) {
  const auto found = moduleAddress(module, function);
  if (const auto* why = std::get_if<foundation::Sentence>(&found)) return *why;
  // How POSIX has a function be made of what dlsym returns.
  return reinterpret_cast<Function>(std::get<void*>(found));
}

}  // namespace nascor::posix
