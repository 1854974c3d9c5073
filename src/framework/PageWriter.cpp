// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/PageWriter.h"

#include <algorithm>
#include <array>

namespace nascor::framework {
namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, 3> kExtensions{"pdf", "png", "svg"};

}  // namespace

std::string_view extensionOf(PageFormat format) { return kExtensions.at(static_cast<std::size_t>(format)); }

std::optional<PageFormat> pageFormatNamed(std::string_view name) {
  const auto place = std::ranges::find(kExtensions, name);
  if (place == kExtensions.end()) return std::nullopt;
  return static_cast<PageFormat>(place - kExtensions.begin());
}

}  // namespace nascor::framework
