// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What the pages cost as PDF, beside the same drawing by plain calls of Qt: one page, ten pages in one document, and
// the export of all pages of many documents. Ratios of medians, measured by turns in one run.
//
// usage: bench-pdf DOCUMENT [TIMES] [DOCUMENTS]

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <span>
#include <variant>
#include <vector>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "framework/DocumentController.h"
#include "painting/PageFiles.h"
#include "program/PageExport.h"
#include "program/Platform.h"
#include "support/RecordingCanvas.h"
#include "support/ScriptedAlerts.h"

namespace {

using namespace nascor;
using tests::RecordingCanvas;
using Kind = RecordingCanvas::Entry::Kind;

/// A page as calls of Qt with everything made before.
struct PlainPage {
  struct Text {
    QTransform place;
    QColor color;
    QString text;
    QFont font;
  };
  struct Shape {
    QTransform place;
    QRectF clip;
    QColor color;
    double width;  ///< of the line; 0 for a filled shape
    QPainterPath path;
  };
  std::vector<std::variant<Text, Shape>> calls;

  void paint(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& call : calls) {
      painter.save();
      if (const auto* text = std::get_if<Text>(&call)) {
        painter.setTransform(text->place, true);
        painter.setPen(text->color);
        painter.setFont(text->font);
        painter.drawText(QPointF(), text->text);
      } else {
        const auto& shape = std::get<Shape>(call);
        painter.setTransform(shape.place, true);
        painter.setClipRect(shape.clip);
        if (shape.width > 0.0) {
          painter.strokePath(shape.path, QPen(shape.color, shape.width));
        } else {
          painter.fillPath(shape.path, shape.color);
        }
      }
      painter.restore();
    }
  }
};

QColor colorOf(const framework::Color& color) {
  const framework::Rgba value = color.value();
  return QColor::fromRgbF(static_cast<float>(value.red), static_cast<float>(value.green),
                          static_cast<float>(value.blue), static_cast<float>(value.alpha));
}

void append(PlainPage& page, const RecordingCanvas& canvas, const framework::Rect& frame, bool isFlipped) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(10);
  font.setStyleStrategy(QFont::PreferNoShaping);
  const auto placed = [&](framework::Point point) {
    return QPointF(point.x, isFlipped ? point.y : frame.height - point.y);
  };
  const QTransform corner = QTransform::fromTranslate(frame.x, frame.y);
  const QRectF clip(0.0, 0.0, frame.width, frame.height);
  for (const RecordingCanvas::Entry& entry : canvas.entries()) {
    const QColor color = colorOf(entry.color);
    if (entry.kind == Kind::text) {
      double x = 0.0;
      for (const QString& part : QString::fromStdString(entry.text).split(u'\t')) {
        QTransform place = corner;
        const QPointF at = placed(entry.point);
        place.translate(at.x(), at.y());
        place.rotate(-entry.style.degrees);
        place.translate(x, isFlipped ? QFontMetricsF(font).ascent() : -QFontMetricsF(font).descent());
        page.calls.push_back(PlainPage::Text{place, color, part, font});
        x += entry.style.tabStop;
      }
      continue;
    }
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    double width = 0.0;
    const QRectF rect = QRectF(placed({entry.rect.x, entry.rect.y}),
                               placed({entry.rect.x + entry.rect.width, entry.rect.y + entry.rect.height}))
                            .normalized();
    switch (entry.kind) {
      case Kind::fillPath:
      case Kind::strokePath:
        for (const auto& subpath : entry.path.subpaths()) {
          QPolygonF line;
          for (const framework::Point point : subpath) line << placed(point);
          path.addPolygon(line);
        }
        if (entry.kind == Kind::strokePath) width = entry.path.lineWidth();
        break;
      case Kind::fillOval: path.addEllipse(rect); break;
      case Kind::strokeRect:
        path.addRect(rect);
        width = 1.0;
        break;
      default:
        path.addRect(QRectF(placed(entry.point) - QPointF(3.0, 3.0), QSizeF(6.0, 6.0)));
        width = 1.4;
        break;
    }
    page.calls.push_back(PlainPage::Shape{corner, clip, color, width, path});
  }
}

PlainPage plainPage(framework::Page& page) {
  page.layout(framework::Page::kWidth, framework::Page::kHeight);
  tests::RecordingSurface surface;
  page.paint(surface);
  PlainPage plain;
  append(plain, surface.page,
         {.x = 0.0, .y = 0.0, .width = framework::Page::kWidth, .height = framework::Page::kHeight}, true);
  for (const auto& view : surface.views) append(plain, view.canvas, view.frame, view.view->isFlipped());
  return plain;
}

QByteArray plainPdf(std::span<const PlainPage* const> pages) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&file);
    writer.setResolution(72);
    writer.setPageLayout(
        QPageLayout(QPageSize(QSizeF(800.0, 560.0), QPageSize::Point, {}, QPageSize::ExactMatch),
                    QPageLayout::Portrait, QMarginsF()));
    QPainter painter(&writer);
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) writer.newPage();
      pages[i]->paint(painter);
    }
  }
  return file.data();
}

double milliseconds(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

/// Measures both by turns, and prints the medians and their ratio.
void compare(const char* what, int times, const std::function<void()>& ours,
             const std::function<void()>& plain) {
  std::vector<double> oursTook;
  std::vector<double> plainTook;
  ours();
  plain();
  for (int i = 0; i < times; ++i) {
    oursTook.push_back(milliseconds(ours));
    plainTook.push_back(milliseconds(plain));
  }
  std::printf("%-42s %9.2f ms   plain %9.2f ms   ratio %.3f\n", what, median(oursTook), median(plainTook),
              median(oursTook) / median(plainTook));
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: bench-pdf DOCUMENT [TIMES] [DOCUMENTS]\n", stderr);
    return 2;
  }
  const int times = argc > 2 ? std::atoi(argv[2]) : 31;
  const int documents = argc > 3 ? std::atoi(argv[3]) : 100;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  qt::Platform platform{QLocale()};
  tests::ScriptedAlerts alerts;
  tests::ScriptedFilePanels panels("/tmp");
  framework::DocumentController controller(platform.services(), alerts, panels);
  app::NCAppController(platform.services(), controller).awakeFromNib();
  app::NCDocument document({.services = platform.services(), .alerts = alerts, .controller = controller});
  const auto contents = platform.services().files.contents(argv[1]);
  if (!std::holds_alternative<std::vector<std::byte>>(contents)) {
    std::fputs("the document cannot be read\n", stderr);
    return 1;
  }
  document.loadDataRepresentation(std::get<std::vector<std::byte>>(contents), "");
  document.windowControllerDidLoadNib();
  document.setOnPaper(true);

  std::vector<PlainPage> plain;  // of every fetus, as the export writes them
  const std::int64_t count = document.tabView().numberOfPages();
  for (std::int64_t fetus = 0; fetus < document.multiplePopUp().numberOfItems(); ++fetus) {
    document.multiplePopUp().selectItemAtIndex(fetus);
    document.chooseFetus(document.multiplePopUp());
    for (std::int64_t i = 0; i < count; ++i) plain.push_back(plainPage(document.tabView().page(i)));
  }
  document.multiplePopUp().selectItemAtIndex(0);
  document.chooseFetus(document.multiplePopUp());
  constexpr std::int64_t kBPD = 1;
  framework::Page& bpd = document.tabView().page(kBPD);
  const PlainPage* plainBPD = &plain[kBPD];

  compare(
      "one page", times, [&] { qt::pdfOfSheet(qt::LaidOutSheet({.page = bpd, .foot = {}})); },
      [&] {
        plainPdf({&plainBPD, 1});
      });
  const std::vector<const PlainPage*> ten(10, plainBPD);
  compare(
      "ten pages in one document", times,
      [&] {
        qt::PdfPages pages;
        const auto texts = std::make_shared<qt::TextLayouts>();
        for (int i = 0; i < 10; ++i) pages.add(qt::LaidOutSheet({.page = bpd, .foot = {}}, texts));
        pages.finish();
      },
      [&] { plainPdf(ten); });

  const QTemporaryDir folder;
  qt::PageExport wanted;
  wanted.folder = folder.filePath(QStringLiteral("out"));
  wanted.hasFoot = false;
  for (int i = 0; i < documents; ++i) {
    const QString copy = folder.filePath(QStringLiteral("%1.nascor").arg(i));
    QFile::copy(QFile::decodeName(argv[1]), copy);
    wanted.files << copy;
  }
  QDir().mkpath(folder.filePath(QStringLiteral("plain")));
  std::vector<const PlainPage*> all;
  for (const PlainPage& page : plain) all.push_back(&page);
  compare(
      "all pages of many documents, into files", std::max(times / 6, 3),
      [&] { qt::exportPages(wanted, platform.services()); },
      [&] {
        for (int i = 0; i < documents; ++i) {
          QFile file(folder.filePath(QStringLiteral("plain/%1.pdf").arg(i)));
          if (file.open(QIODevice::WriteOnly)) file.write(plainPdf(all));
        }
      });
  return 0;
}
