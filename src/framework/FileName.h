#pragma once

#include <string>
#include <string_view>

namespace nascor::framework {

/// `text`, UTF-8, as part of a file's name: "/" and control characters are "-", and a "." or "-" at its start, which would
/// hide the file or read as an option, is "_".
std::string fileNameText(std::string_view text);

/// The same for every usual file system: what some of them refuse (`<>:"\\|?*`, a blank or dot at the end) is "-" too.
std::string portableFileNameText(std::string_view text);

/// `name` and `ending`, as a file name of at most 255 bytes: a longer name loses whole characters at its end.
std::string fileNameEndingIn(std::string_view name, std::string_view ending);

/// A file name of `fileNameText(name)` and ".extension", of at most 255 bytes: a longer name loses whole characters at its
/// end.
std::string fileName(std::string_view name, std::string_view extension);

}  // namespace nascor::framework
