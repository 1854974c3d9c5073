// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/Module.h"

#include <filesystem>
#include <system_error>

#include <dlfcn.h>

namespace nascor::posix {

using foundation::Sentence;

std::variant<void*, Sentence> moduleAddress(const std::string& module, const std::string& function) {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return Sentence("Modules", "this program does not know where it lies");
  const std::filesystem::path path =
      (program.parent_path() / NASCOR_MODULES / (module + ".so")).lexically_normal();
  if (!std::filesystem::exists(path, error))
    return Sentence("Modules", "the module %1 is not installed").with(module);

  void* loaded = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* found = loaded ? ::dlsym(loaded, function.c_str()) : nullptr;
  if (found) return found;
  const char* reason = ::dlerror();
  if (!reason)
    return Sentence("Modules", "the module %1 cannot be loaded: it is another module").with(module);
  return Sentence("Modules", "the module %1 cannot be loaded: %2").with(module, reason);
}

}  // namespace nascor::posix
