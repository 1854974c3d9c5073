// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cairo.h>
#include <pango/pango.h>

#include <memory>
#include <string>
#include <string_view>

namespace nascor::typeset {

/// How Pango and Cairo give back what they made.
struct GiveBack {
  void operator()(PangoContext* context) const { g_object_unref(context); }
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoFontMap* fonts) const { g_object_unref(fonts); }
  void operator()(cairo_t* canvas) const { cairo_destroy(canvas); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
template <class Thing>
using Owned = std::unique_ptr<Thing, GiveBack>;

struct Style {
  double size;  ///< points
  bool isBold = false;
  double gray = 0.07;  ///< 0 is black, 1 is white
};

/// The system's fonts, measured without regard to pixels, so that all devices break lines alike.
class Fonts {
 public:
  explicit Fonts(const std::string& language);
  PangoContext* context() const { return context_.get(); }

 private:
  Owned<PangoFontMap> map_;
  Owned<PangoContext> context_;
};

enum class Overflow { isWrapped, isCut };

/// A laid-out text, in points.
class Text {
 public:
  /// In one line where `width` is 0; else in lines of that width, or in one with a sign for what is cut off. `text` is UTF-8.
  Text(const Fonts& fonts, std::string_view text, const Style& style, double width = 0.0,
       Overflow overflow = Overflow::isWrapped);

  int lines() const;
  /// Of the widest line.
  double width() const;
  /// Draws one line, its left end at `x`; the right end of the room for a text that runs to the left.
  void drawLine(cairo_t* canvas, int line, double x, double baseline) const;

 private:
  Owned<PangoLayout> layout_;
  double room_;
  double gray_;
};

}  // namespace nascor::typeset
