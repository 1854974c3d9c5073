#pragma once

#include <string>
#include <string_view>

namespace nascor::drive {

/// `text`, UTF-8, in capital letters as all of Unicode has them: "straße" becomes "STRASSE".
std::string upperCased(std::string_view text);

}  // namespace nascor::drive
