// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typeset/Text.h"

#include <pango/pangocairo.h>

namespace nascor::typeset {

namespace {

int inPangoUnits(double points) { return pango_units_from_double(points); }

}  // namespace

Fonts::Fonts(const std::string& language)
    : map_(pango_cairo_font_map_new()), context_(pango_font_map_create_context(map_.get())) {
  constexpr double kPointsAnInch = 72.0;
  pango_cairo_context_set_resolution(context_.get(), kPointsAnInch);
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context_.get(), options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  pango_context_set_language(context_.get(), pango_language_from_string(language.c_str()));
}

Text::Text(const Fonts& fonts, std::string_view text, const Style& style, double width, Overflow overflow)
    : layout_(pango_layout_new(fonts.context())), room_(width), gray_(style.gray) {
  PangoFontDescription* font = pango_font_description_new();
  pango_font_description_set_family_static(font, "Sans");
  pango_font_description_set_absolute_size(font, inPangoUnits(style.size));
  pango_font_description_set_weight(font, style.isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_layout_set_font_description(layout_.get(), font);
  pango_font_description_free(font);
  // Digits of one width; and each letter for itself, so that what is copied and searched are letters.
  PangoAttrList* features = pango_attr_list_new();
  pango_attr_list_insert(features, pango_attr_font_features_new("tnum=1, liga=0, clig=0"));
  // Nor a hyphen that no text has: a long reference ID would be another.
  pango_attr_list_insert(features, pango_attr_insert_hyphens_new(FALSE));
  pango_layout_set_attributes(layout_.get(), features);
  pango_attr_list_unref(features);
  pango_layout_set_single_paragraph_mode(layout_.get(), TRUE);
  if (width > 0.0) {
    pango_layout_set_width(layout_.get(), inPangoUnits(width));
    pango_layout_set_wrap(layout_.get(), PANGO_WRAP_WORD_CHAR);
    if (overflow == Overflow::isCut) pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_END);
  }
  pango_layout_set_text(layout_.get(), text.data(), static_cast<int>(text.size()));
}

int Text::lines() const { return pango_layout_get_line_count(layout_.get()); }

double Text::width() const {
  PangoRectangle logical;
  pango_layout_get_extents(layout_.get(), nullptr, &logical);
  return pango_units_to_double(logical.width);
}

void Text::drawLine(cairo_t* canvas, int line, double x, double baseline) const {
  PangoLayoutLine* laidOut = pango_layout_get_line_readonly(layout_.get(), line);
  if (room_ > 0.0 && pango_layout_line_get_resolved_direction(laidOut) == PANGO_DIRECTION_RTL) {
    PangoRectangle logical;
    pango_layout_line_get_extents(laidOut, nullptr, &logical);
    x += room_ - pango_units_to_double(logical.width);
  }
  cairo_set_source_rgb(canvas, gray_, gray_, gray_);
  cairo_move_to(canvas, x, baseline);
  pango_cairo_show_layout_line(canvas, laidOut);
}

}  // namespace nascor::typeset
