#pragma once

#include <string_view>

namespace nascor::foundation {

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF. NUL is a
/// character like any other.
bool isValidUtf8(std::string_view bytes);

}  // namespace nascor::foundation
