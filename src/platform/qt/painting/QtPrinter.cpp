// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/QtPrinter.h"

#include <QCoreApplication>
#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <memory>

#include "base/Text.h"
#include "painting/PageFiles.h"

namespace nascor::qt {

using foundation::FileError;
using framework::PrintOutcome;

namespace {

/// The paper within its margins, in the printer's own units. Its origin is the corner within the margins.
QRectF paintRectOf(const QPrinter& printer) {
  return {QPointF(), QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size())};
}

class QtPrintJob final : public framework::PrintJob {
 public:
  QtPrintJob(foundation::FileStore& files, const framework::PrintInfo& info,
             const framework::PrintSettings& settings, std::function<bool(QPrinter&)> ask)
      : files_(files),
        layout_(layoutOf(info)),
        name_(fromUtf8(settings.name)),
        file_(QFile::decodeName(QByteArray::fromStdString(settings.file))),
        ask_(std::move(ask)) {}

  std::variant<PrintOutcome, FileError> addPage(const framework::Sheet& sheet, bool showsPanel) override {
    if (file_.isEmpty()) {
      if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setPageLayout(layout_);
        printer_->setDocName(name_);
      }
      if (showsPanel && !ask_(*printer_)) return PrintOutcome::cancelled;
      layout_ = printer_->pageLayout();
      if (printer_->outputFormat() == QPrinter::PdfFormat) {
        file_ = printer_->outputFileName();
        if (file_.isEmpty()) {
          return FileError{
              toUtf8(said("Printer",
                          "There is no printer. Please choose a file to print into in the print panel, or "
                          "export the page."))};
        }
      }
    }
    const LaidOutSheet laidOut(sheet);
    return file_.isEmpty() ? print(laidOut) : addToFile(laidOut);
  }

  std::optional<FileError> finish() override {
    if (file_.isEmpty()) return std::nullopt;
    if (const auto error = writeBytes(files_, QFile::encodeName(file_).toStdString(), pdf_.finish())) {
      return FileError{toUtf8(file_) + ": " + error->reason + "\n" +
                       toUtf8(said("Printer", "Please make room there or choose another file."))};
    }
    return std::nullopt;
  }

 private:
  std::variant<PrintOutcome, FileError> addToFile(const LaidOutSheet& sheet) {
    if (pdf_.add(sheet, layout_)) return PrintOutcome::printed;
    return FileError{toUtf8(said("Printer", "The page could not be painted."))};
  }

  std::variant<PrintOutcome, FileError> print(const LaidOutSheet& sheet) {
    QPainter painter;
    if (!painter.begin(printer_.get())) {
      return FileError{
          toUtf8(said("Printer", "The printer %1 does not answer. Please look after it or choose another.")
                     .arg(printer_->printerName()))};
    }
    sheet.paint(painter, paintRectOf(*printer_));
    painter.end();
    if (printer_->printerState() == QPrinter::Error)
      return FileError{toUtf8(said("Printer", "The printer refused the page."))};
    return PrintOutcome::printed;
  }

  foundation::FileStore& files_;
  QPageLayout layout_;
  QString name_;
  QString file_;
  std::function<bool(QPrinter&)> ask_;
  std::unique_ptr<QPrinter> printer_;
  PdfPages pdf_;
};

/// All pages into one printer, as they would come out.
class PreviewJob final : public framework::PrintJob {
 public:
  explicit PreviewJob(QPrinter& preview) : preview_(preview) {}

  std::variant<PrintOutcome, FileError> addPage(const framework::Sheet& sheet, bool) override {
    const bool isReady = painter_.isActive() ? preview_.newPage() : painter_.begin(&preview_);
    if (!isReady) return FileError{toUtf8(said("Printer", "The page could not be painted."))};
    LaidOutSheet(sheet).paint(painter_, paintRectOf(preview_));
    return PrintOutcome::printed;
  }
  std::optional<FileError> finish() override {
    painter_.end();
    return std::nullopt;
  }

 private:
  QPrinter& preview_;
  QPainter painter_;
};

}  // namespace

QtPrinter::QtPrinter(foundation::FileStore& files) : files_(files) {
  ask = [this](QPrinter& printer) {
    QPrintDialog dialog(&printer, frontWindow ? frontWindow() : nullptr);
    return dialog.exec() == QDialog::Accepted;
  };
}

std::unique_ptr<framework::PrintJob> QtPrinter::beginJob(const framework::PrintInfo& info,
                                                         const framework::PrintSettings& settings) {
  if (preview_) return std::make_unique<PreviewJob>(*preview_);
  return std::make_unique<QtPrintJob>(files_, info, settings, ask);
}

void QtPrinter::paintInto(QPrinter* preview, const std::function<void()>& print) {
  preview_ = preview;
  print();
  preview_ = nullptr;
}

QPageLayout layoutOf(const framework::PrintInfo& info) {
  return {QPageSize(QSizeF(info.paperWidth, info.paperHeight), QPageSize::Point),
          info.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
          QMarginsF(info.leftMargin, info.topMargin, info.rightMargin, info.bottomMargin),
          QPageLayout::Point};
}

framework::PrintInfo printInfoOf(const QPageLayout& layout) {
  const QSizeF size = layout.pageSize().size(QPageSize::Point);
  const QMarginsF margins = layout.margins(QPageLayout::Point);
  return {.paperWidth = size.width(),
          .paperHeight = size.height(),
          .isLandscape = layout.orientation() == QPageLayout::Landscape,
          .leftMargin = margins.left(),
          .topMargin = margins.top(),
          .rightMargin = margins.right(),
          .bottomMargin = margins.bottom()};
}

}  // namespace nascor::qt
