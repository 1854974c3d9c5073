// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/PageFiles.h"

#include <QCoreApplication>
#include <QImage>
#include <QPageSize>
#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "base/Text.h"
#include "painting/PdfInformation.h"
#include "painting/QtCanvas.h"
#include "painting/QtSurface.h"
#include "painting/SvgSurface.h"

namespace nascor::qt {

using framework::Page;
using framework::PageFormat;

namespace {

constexpr double kPointsPerInch = 72.0;

/// The foot in lines, measured as it is drawn.
std::vector<std::string> linesOfFoot(const framework::PageFoot& foot, TextLayouts& texts) {
  if (foot.lines.empty()) return {};
  QImage ruler(1, 1, QImage::Format_RGB32);
  QPainter painter(&ruler);
  return framework::wrappedFoot(foot, QtCanvas(painter, QSizeF(1.0, 1.0), true, texts),
                                Page::kWidth - 2.0 * framework::kFootMargin);
}

}  // namespace

LaidOutSheet::LaidOutSheet(const framework::Sheet& sheet, std::shared_ptr<TextLayouts> texts)
    : page_(&sheet.page),
      texts_(texts ? std::move(texts) : std::make_shared<TextLayouts>()),
      footLines_(linesOfFoot(sheet.foot, *texts_)),
      facts_(sheet.facts) {}

double LaidOutSheet::height() const { return Page::kHeight + framework::footHeight(footLines_.size()); }

QString LaidOutSheet::title() const { return fromUtf8(facts_.title.empty() ? page_->title() : facts_.title); }

void LaidOutSheet::paint(QPainter& painter, const QRectF& paper) const {
  const double scale = std::min(paper.width() / Page::kWidth, paper.height() / height());
  painter.save();
  painter.translate(paper.left() + (paper.width() - scale * Page::kWidth) / 2.0, paper.top());
  painter.scale(scale, scale);
  paintPage(painter, *page_, QRectF(0.0, 0.0, Page::kWidth, Page::kHeight), *texts_);
  if (!footLines_.empty()) {
    const QRectF foot(0.0, Page::kHeight, Page::kWidth, height() - Page::kHeight);
    painter.fillRect(foot, Qt::white);
    painter.translate(foot.topLeft());
    QtCanvas canvas(painter, foot.size(), true, *texts_);
    framework::drawFoot(canvas, footLines_);
  }
  painter.restore();
}

PdfPages::PdfPages() : writer_((file_.open(QIODevice::WriteOnly), &file_)) {
  writer_.setResolution(static_cast<int>(kPointsPerInch));
  writer_.setCreator(QCoreApplication::applicationName());
}

bool PdfPages::beginPage(const QPageLayout& layout, const LaidOutSheet& sheet) {
  if (!writer_.setPageLayout(layout)) return false;
  if (painter_.isActive()) return writer_.newPage();
  writer_.setTitle(sheet.title());
  facts_ = sheet.facts();
  return painter_.begin(&writer_);
}

bool PdfPages::add(const LaidOutSheet& sheet) {
  const QPageSize size(QSizeF(Page::kWidth, sheet.height()), QPageSize::Point, QString(),
                       QPageSize::ExactMatch);
  if (!beginPage(QPageLayout(size, QPageLayout::Portrait, QMarginsF()), sheet)) return false;
  sheet.paint(painter_, QRectF(0.0, 0.0, Page::kWidth, sheet.height()));
  return true;
}

bool PdfPages::add(const LaidOutSheet& sheet, const QPageLayout& paper) {
  if (!beginPage(paper, sheet)) return false;
  // The painter's origin is the corner within the margins.
  sheet.paint(painter_, QRectF(QPointF(), paper.paintRect(QPageLayout::Point).size()));
  return true;
}

QByteArray PdfPages::finish() {
  if (!painter_.isActive() || !painter_.end()) return {};
  return withPdfInformation(file_.data(), fromUtf8(facts_.author), fromUtf8(facts_.subject));
}

QByteArray pdfOfSheet(const LaidOutSheet& sheet) {
  PdfPages pages;
  return pages.add(sheet) ? pages.finish() : QByteArray();
}

QByteArray pngOfSheet(const LaidOutSheet& sheet, double scale) {
  QImage image(static_cast<int>(std::lround(Page::kWidth * scale)),
               static_cast<int>(std::lround(sheet.height() * scale)), QImage::Format_RGB32);
  if (image.isNull()) return {};
  constexpr double kMetresPerInch = 0.0254;
  const int dotsPerMetre = static_cast<int>(std::lround(scale * kPointsPerInch / kMetresPerInch));
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  image.fill(Qt::white);
  QPainter painter;
  if (!painter.begin(&image)) return {};
  sheet.paint(painter, QRectF(image.rect()));
  painter.end();
  const auto describe = [&](const char* keyword, const QString& text) {
    if (!text.isEmpty()) image.setText(QLatin1String(keyword), text);
  };
  // Keywords that PNG defines.
  describe("Title", sheet.title());
  describe("Author", fromUtf8(sheet.facts().author));
  describe("Description", fromUtf8(sheet.facts().subject));
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  return image.save(&file, "PNG") ? file.data() : QByteArray();
}

QByteArray svgOfSheet(const LaidOutSheet& sheet) {
  SvgSurface surface(Page::kWidth, sheet.height(), sheet.texts());
  sheet.page().layout(Page::kWidth, Page::kHeight);
  sheet.page().paint(surface);
  if (!sheet.footLines().empty()) {
    framework::drawFoot(
        surface.beginLayer(
            {.x = 0.0, .y = Page::kHeight, .width = Page::kWidth, .height = sheet.height() - Page::kHeight},
            true),
        sheet.footLines());
    surface.endView();
  }
  return surface.finish({.title = sheet.title(),
                         .author = fromUtf8(sheet.facts().author),
                         .subject = fromUtf8(sheet.facts().subject)});
}

QByteArray bytesOfSheet(const LaidOutSheet& sheet, PageFormat format, double pngScale) {
  switch (format) {
    case PageFormat::pdf: return pdfOfSheet(sheet);
    case PageFormat::png: return pngOfSheet(sheet, pngScale);
    case PageFormat::svg: break;
  }
  return svgOfSheet(sheet);
}

std::optional<foundation::FileError> QtPageWriter::writePage(const framework::Sheet& sheet, PageFormat format,
                                                             const std::string& path) {
  return writeBytes(files_, path, bytesOfSheet(LaidOutSheet(sheet), format, kUsualPngScale));
}

std::optional<foundation::FileError> writeBytes(foundation::FileStore& files, const std::string& path,
                                                const QByteArray& bytes) {
  if (bytes.isEmpty()) return foundation::FileError{toUtf8(said("PageFiles", "it could not be painted"))};
  return files.replaceContents(
      path, std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
}

}  // namespace nascor::qt
