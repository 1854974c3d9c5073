// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/Module.h"

#include <filesystem>
#include <system_error>

#include <dlfcn.h>

namespace nascor::posix {

std::variant<void*, std::string> moduleAddress(const std::string& module, const std::string& function) {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return "this program does not know where it lies";
  const std::filesystem::path path =
      (program.parent_path() / NASCOR_MODULES / (module + ".so")).lexically_normal();
  if (!std::filesystem::exists(path, error)) return "the module " + module + " is not installed";

  void* loaded = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* found = loaded ? ::dlsym(loaded, function.c_str()) : nullptr;
  if (found) return found;
  const char* reason = ::dlerror();
  return "the module " + module + " cannot be loaded: " + (reason ? reason : "it is another module");
}

}  // namespace nascor::posix
