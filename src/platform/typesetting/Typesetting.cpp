#include "typesetting/Typesetting.h"

#include "posix/Module.h"

namespace nascor::typesetting {

std::variant<summary::Typesetter*, std::string> typesetter() {
  const auto found = posix::moduleFunction("nascor-typeset", "nascorTypesetter");
  if (const auto* why = std::get_if<std::string>(&found)) return *why;
  // How POSIX has a function be made of what dlsym returns.
  const auto function = reinterpret_cast<summary::Typesetter* (*)()>(std::get<void*>(found));
  return function();
}

}  // namespace nascor::typesetting
