// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRectF>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/FileStore.h"
#include "framework/PageWriter.h"
#include "framework/Sheet.h"
#include "painting/TextLayouts.h"

namespace nascor::qt {

/// A sheet with its foot in lines: 800 units wide, and as high as the page and its foot.
class LaidOutSheet {
 public:
  /// `texts` may serve any number of sheets, which is quicker; without it the sheet has its own.
  explicit LaidOutSheet(const framework::Sheet& sheet, std::shared_ptr<TextLayouts> texts = nullptr);

  double height() const;
  /// The title among the sheet's facts, else that of the page.
  QString title() const;
  const framework::SheetFacts& facts() const { return facts_; }
  /// Paints page and foot on white, as a whole and as large as `paper` permits: at its top, in the middle of its width.
  void paint(QPainter& painter, const QRectF& paper) const;

  framework::Page& page() const { return *page_; }
  const std::vector<std::string>& footLines() const { return footLines_; }
  TextLayouts& texts() const { return *texts_; }

 private:
  framework::Page* page_;
  std::shared_ptr<TextLayouts> texts_;
  std::vector<std::string> footLines_;
  framework::SheetFacts facts_;
};

/// One PDF document of sheets, its texts as text and its fonts inside, each font once.
class PdfPages {
 public:
  PdfPages();

  /// One page more, of the sheet's own size with a point to the unit. False when it cannot be painted.
  bool add(const LaidOutSheet& sheet);
  /// One page more on paper, within its margins.
  bool add(const LaidOutSheet& sheet, const QPageLayout& paper);
  /// The document. Empty when there is no page or it could not be made. Nothing can be added any more.
  QByteArray finish();

 private:
  bool beginPage(const QPageLayout& layout, const LaidOutSheet& sheet);

  QBuffer file_;
  QPdfWriter writer_;
  QPainter painter_;
  framework::SheetFacts facts_;  ///< of the first page
};

/// One page of a point to the unit. Empty when it could not be made, as are the other two.
QByteArray pdfOfSheet(const LaidOutSheet& sheet);
/// A picture of `scale` pixels to the unit.
QByteArray pngOfSheet(const LaidOutSheet& sheet, double scale);
/// A drawing of 800 units' width, its texts as text in a named font.
QByteArray svgOfSheet(const LaidOutSheet& sheet);

inline constexpr double kUsualPngScale = 2.0;

/// The contents of a file of that format.
QByteArray bytesOfSheet(const LaidOutSheet& sheet, framework::PageFormat format, double pngScale);

/// Writes pages through the file store, whole or not at all.
class QtPageWriter final : public framework::PageWriter {
 public:
  explicit QtPageWriter(foundation::FileStore& files) : files_(files) {}

  std::optional<foundation::FileError> writePage(const framework::Sheet& sheet, framework::PageFormat format,
                                                 const std::string& path) override;

 private:
  foundation::FileStore& files_;
};

/// Writes `bytes`, which are empty when they could not be made.
std::optional<foundation::FileError> writeBytes(foundation::FileStore& files, const std::string& path,
                                                const QByteArray& bytes);

}  // namespace nascor::qt
