// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/FileStore.h"
#include "framework/Sheet.h"

namespace nascor::framework {

enum class PageFormat : std::uint8_t { pdf, png, svg };

/// The extension of files of that format, which is also its name in the preferences.
std::string_view extensionOf(PageFormat format);
/// The format of that name; nothing for another text.
std::optional<PageFormat> pageFormatNamed(std::string_view name);

/// Preferences of printing and exporting, by the names under which they are stored.
namespace export_key {
inline constexpr std::string_view folder = "Export Folder";  ///< a path; nothing until the user chose one
inline constexpr std::string_view format =
    "Export Format";                                       ///< the name of a format; PDF where there is none
inline constexpr std::string_view pageFoot = "Page Foot";  ///< a truth value; true where there is none
}  // namespace export_key

/// Makes files of pages. Implemented by the window layer.
class PageWriter {
 public:
  virtual ~PageWriter() = default;

  /// Writes one page into the file at `path`, which is there whole afterwards or is as it was. Says why not.
  virtual std::optional<foundation::FileError> writePage(const Sheet& sheet, PageFormat format,
                                                         const std::string& path) = 0;
};

}  // namespace nascor::framework
