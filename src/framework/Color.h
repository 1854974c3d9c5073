// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

namespace nascor::framework {

/// Red, green, blue and alpha, each from 0 to 1.
struct Rgba {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
  double alpha = 1.0;
  friend bool operator==(const Rgba&, const Rgba&) = default;
};

/// The drawing colours by name. Within a hue the plain and Heavy ones are strong enough for marks and lines, the
/// Moderate ones for a mean curve over its band, the Faint ones light enough for a band that marks and lines stay
/// readable upon.
enum class NamedColor : std::uint8_t {
  black,
  red,
  moderateRed,
  quiteFaintRed,
  orange,
  moderateOrange,
  faintOrange,
  blue,
  moderateBlue,
  quiteFaintBlue,
  heavyGreen,
  faintGreen,
  gray,
  heavyGray,
  faintGray,
  darkGray,  ///< texts of the projected row of the report
};

/// "Black", "ModerateRed", ...
std::string_view nameOf(NamedColor color);
Rgba valueOf(NamedColor color);

/// A named colour, or one by value.
class Color {
 public:
  constexpr Color(NamedColor name)
      : name_(name), isNamed_(true) {}  // NOLINT(google-explicit-constructor): drop-in
  constexpr explicit Color(const Rgba& value) : value_(value) {}

  constexpr bool isNamed() const { return isNamed_; }
  /// Precondition: `isNamed()`.
  constexpr NamedColor name() const { return name_; }
  Rgba value() const { return isNamed_ ? valueOf(name_) : value_; }

 private:
  NamedColor name_ = NamedColor::black;
  Rgba value_;
  bool isNamed_ = false;
};

}  // namespace nascor::framework
