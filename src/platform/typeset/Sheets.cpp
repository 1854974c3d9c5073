// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typeset/Sheets.h"

#include <cmath>
#include <span>

namespace nascor::typeset {

namespace {

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  auto& all = *static_cast<std::vector<std::byte>*>(bytes);
  const auto added = std::as_bytes(std::span(data, length));
  all.insert(all.end(), added.begin(), added.end());
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

NoSheets::NoSheets()
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)), canvas_(cairo_create(surface_.get())) {}

PdfSheets::PdfSheets(const summary::Summary& summary, const summary::Paper& paper)
    : surface_(cairo_pdf_surface_create_for_stream(append, &bytes_, paper.width, paper.height)),
      canvas_(cairo_create(surface_.get())) {
  say(CAIRO_PDF_METADATA_TITLE, summary.title);
  say(CAIRO_PDF_METADATA_AUTHOR, summary.author);
  say(CAIRO_PDF_METADATA_SUBJECT, summary.subject);
  say(CAIRO_PDF_METADATA_CREATOR, summary.program);
  say(CAIRO_PDF_METADATA_CREATE_DATE, summary.moment);
  say(CAIRO_PDF_METADATA_MOD_DATE, summary.moment);
}

void PdfSheets::say(cairo_pdf_metadata_t what, const std::string& text) {
  cairo_pdf_surface_set_metadata(surface_.get(), what, text.c_str());
}

void PdfSheets::addOutline(const std::string& title, std::int64_t page) {
  const std::string where = "page=" + std::to_string(page);
  cairo_pdf_surface_add_outline(surface_.get(), CAIRO_PDF_OUTLINE_ROOT, title.c_str(), where.c_str(),
                                CAIRO_PDF_OUTLINE_FLAG_OPEN);
}

std::variant<std::vector<std::byte>, std::string> PdfSheets::finish() {
  if (const cairo_status_t status = cairo_status(canvas_.get()); status != CAIRO_STATUS_SUCCESS)
    return cairo_status_to_string(status);
  cairo_surface_finish(surface_.get());
  if (const cairo_status_t status = cairo_surface_status(surface_.get()); status != CAIRO_STATUS_SUCCESS)
    return cairo_status_to_string(status);
  return std::move(bytes_);
}

PictureSheets::PictureSheets(const summary::Paper& paper, double dotsPerInch) {
  constexpr double kPointsAnInch = 72.0;
  const double scale = dotsPerInch / kPointsAnInch;
  surface_.reset(cairo_image_surface_create(CAIRO_FORMAT_RGB24,
                                            static_cast<int>(std::lround(paper.width * scale)),
                                            static_cast<int>(std::lround(paper.height * scale))));
  canvas_.reset(cairo_create(surface_.get()));
  cairo_scale(canvas_.get(), scale, scale);
  clear();
}

void PictureSheets::clear() {
  cairo_set_source_rgb(canvas_.get(), 1.0, 1.0, 1.0);
  cairo_paint(canvas_.get());
}

void PictureSheets::endPage() {
  cairo_surface_flush(surface_.get());
  const unsigned char* data = cairo_image_surface_get_data(surface_.get());
  if (data == nullptr) return;
  summary::Picture& picture = pictures_.emplace_back();
  picture.width = cairo_image_surface_get_width(surface_.get());
  picture.height = cairo_image_surface_get_height(surface_.get());
  picture.bytesPerRow = cairo_image_surface_get_stride(surface_.get());
  const auto size = static_cast<std::size_t>(picture.bytesPerRow) * static_cast<std::size_t>(picture.height);
  const auto bytes = std::as_bytes(std::span(data, size));
  picture.bytes.assign(bytes.begin(), bytes.end());
  clear();
}

std::variant<std::vector<summary::Picture>, std::string> PictureSheets::finish() {
  if (const cairo_status_t status = cairo_status(canvas_.get()); status != CAIRO_STATUS_SUCCESS)
    return cairo_status_to_string(status);
  return std::move(pictures_);
}

}  // namespace nascor::typeset
