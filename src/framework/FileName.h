#pragma once

#include <string>
#include <string_view>

namespace nascor::framework {

/// `text`, UTF-8, as part of a file's name: "/" and control characters are "-", and a "." or "-" at its start, which would
/// hide the file or read as an option, is "_".
std::string fileNameText(std::string_view text);

/// A file name of `fileNameText(name)` and ".extension", of at most 255 bytes: a longer name loses whole characters at its
/// end.
std::string fileName(std::string_view name, std::string_view extension);

}  // namespace nascor::framework
