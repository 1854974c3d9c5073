// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typesetting/Typesetting.h"

#include "posix/Module.h"

namespace nascor::typesetting {

std::variant<summary::Typesetter*, foundation::Sentence> typesetter() {
  const auto found = posix::moduleFunction<summary::Typesetter* (*)()>("nascor-typeset", "nascorTypesetter");
  if (const auto* why = std::get_if<foundation::Sentence>(&found)) return *why;
  return std::get<0>(found)();
}

}  // namespace nascor::typesetting
