// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Color.h"

#include <array>

namespace nascor::framework {
namespace {

struct ColorRow {
  std::string_view name;
  Rgba value;
};

constexpr Rgba rgb(int hex) {
  return {((hex >> 16) & 0xFF) / 255.0, ((hex >> 8) & 0xFF) / 255.0, (hex & 0xFF) / 255.0, 1.0};
}

/// In the order of `NamedColor`. docs/colours.md says how they were chosen and checked.
constexpr std::array<ColorRow, 16> kColors{{
    {"Black", rgb(0x000000)},
    {"Red", rgb(0xB3122D)},
    {"ModerateRed", rgb(0xC9485C)},
    {"QuiteFaintRed", rgb(0xF8DDE1)},
    {"Orange", rgb(0x9A4300)},
    {"ModerateOrange", rgb(0xB8640F)},
    {"FaintOrange", rgb(0xFBE5CC)},
    {"Blue", rgb(0x1D4E9E)},
    {"ModerateBlue", rgb(0x4A78C0)},
    {"QuiteFaintBlue", rgb(0xDDE8F7)},
    {"HeavyGreen", rgb(0x1B6E3C)},
    {"FaintGreen", rgb(0xDCEFE0)},
    {"Gray", rgb(0x707070)},
    {"HeavyGray", rgb(0x404040)},
    // Lets the curve under the disc be seen, and the disc on a band of the same colour.
    {"FaintGray", {.red = 0.0, .green = 0.0, .blue = 0.0, .alpha = 0.15}},
    {"DarkGray", rgb(0x555555)},
}};

}  // namespace

std::string_view nameOf(NamedColor color) { return kColors.at(static_cast<std::size_t>(color)).name; }

Rgba valueOf(NamedColor color) { return kColors.at(static_cast<std::size_t>(color)).value; }

}  // namespace nascor::framework
