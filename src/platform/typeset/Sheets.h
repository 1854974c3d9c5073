// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cairo-pdf.h>
#include <cairo.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "summary/Typesetter.h"
#include "typeset/Text.h"

namespace nascor::typeset {

/// Pages that are drawn one after the other.
class Sheets {
 public:
  virtual ~Sheets() = default;
  /// What the page that goes on is drawn on, in points from its upper left corner.
  virtual cairo_t* canvas() = 0;
  /// The page is done.
  virtual void endPage() = 0;
  /// A heading for the reader's list of them, on the page that goes on.
  virtual void addOutline(const std::string& /*title*/, std::int64_t /*page*/) {}
};

/// For counting: nothing is kept.
class NoSheets final : public Sheets {
 public:
  NoSheets();
  cairo_t* canvas() override { return canvas_.get(); }
  void endPage() override {}

 private:
  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> canvas_;
};

/// A tagged PDF document.
class PdfSheets final : public Sheets {
 public:
  PdfSheets(const summary::Summary& summary, const summary::Paper& paper);
  cairo_t* canvas() override { return canvas_.get(); }
  void endPage() override { cairo_show_page(canvas_.get()); }
  void addOutline(const std::string& title, std::int64_t page) override;
  /// The document, or why there is none.
  std::variant<std::vector<std::byte>, std::string> finish();

 private:
  void say(cairo_pdf_metadata_t what, const std::string& text);

  std::vector<std::byte> bytes_;
  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> canvas_;
};

/// Pictures of the pages.
class PictureSheets final : public Sheets {
 public:
  PictureSheets(const summary::Paper& paper, double dotsPerInch);
  cairo_t* canvas() override { return canvas_.get(); }
  void endPage() override;
  /// The pages, or why there are none.
  std::variant<std::vector<summary::Picture>, std::string> finish();

 private:
  void clear();

  Owned<cairo_surface_t> surface_;
  Owned<cairo_t> canvas_;
  std::vector<summary::Picture> pictures_;
};

}  // namespace nascor::typeset
