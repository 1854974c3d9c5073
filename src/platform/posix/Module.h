#pragma once

#include <string>
#include <variant>

namespace nascor::posix {

/// The address of a function in a module of this program (NAME.so in the folder of its modules, which is found from the
/// program's own place, wherever that is). The module is loaded by the first call and stays. Or why there is none, in a
/// sentence.
std::variant<void*, std::string> moduleFunction(const std::string& module, const std::string& function);

}  // namespace nascor::posix
