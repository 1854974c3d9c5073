// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

#include "framework/Color.h"
#include "framework/Geometry.h"

namespace nascor::framework {

enum class MarkSymbol : std::uint8_t { cross, circle, triangle, square, x };

/// How a text is set. Every text of the program is 10 units high. Its colour is its own, not the current one.
struct TextStyle {
  Color color = NamedColor::black;
  double degrees = 0.0;  ///< turned counter-clockwise about its point
  double tabStop = 0.0;  ///< what follows a tab starts here, from the text's own start
};

inline constexpr double kTextHeight = 10.0;

/// Takes the drawing of one view, in the view's own coordinates. Implemented by the window layer for screen, paper and
/// files; tests record what is drawn.
class Canvas {
 public:
  virtual ~Canvas() = default;

  /// The colour of everything but text that is drawn from now on; black at the start of a view.
  virtual void setColor(const Color& color) = 0;
  /// Fills by non-zero winding, each subpath closed.
  virtual void fillPath(const Path& path) = 0;
  virtual void strokePath(const Path& path) = 0;
  virtual void fillOval(const Rect& rect) = 0;
  /// Strokes the edge of `rect`, one unit wide.
  virtual void strokeRect(const Rect& rect) = 0;
  /// A symbol of a fixed size around its centre.
  virtual void mark(MarkSymbol symbol, Point centre) = 0;
  /// A text of one line. `at` is the lower left corner of its box where y grows upward, the upper left corner in a
  /// view that is flipped.
  virtual void text(std::string_view text, Point at, const TextStyle& style) = 0;
  /// The width that `text` takes.
  virtual double textWidth(std::string_view text, const TextStyle& style) const = 0;
};

}  // namespace nascor::framework
