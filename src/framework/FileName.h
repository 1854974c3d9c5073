// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
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

/// `name`, `kept` and `extension` as `fileNameEndingIn` joins them, cutting `name` alone. Where that is taken, with the first
/// of " (2)", " (3)", ... behind `kept` that is free.
std::string freeFileName(std::string_view name, std::string_view kept, std::string_view extension,
                         const std::function<bool(const std::string&)>& isTaken);

/// A file name of `fileNameText(name)` and ".extension", of at most 255 bytes: a longer name loses whole characters at its
/// end.
std::string fileName(std::string_view name, std::string_view extension);

/// Whether `path` ends with a dot and `extension`, which is in small letters; in the path large ones are the same.
bool hasExtension(std::string_view path, std::string_view extension);

}  // namespace nascor::framework
