// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/SvgSurface.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include "framework/ZuPrimitiveGraphView.h"
#include "painting/QtCanvas.h"

namespace nascor::qt {
namespace {

QString number(double value) { return QString::number(value, 'g', 10); }

/// `text` without the signs that XML has no place for.
QString onlyXmlCharacters(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar sign = text[i];
    if (sign.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      result += sign;
      result += text[++i];
      continue;
    }
    const char16_t code = sign.unicode();
    const bool isControl = code < u' ' && code != u'\t' && code != u'\n' && code != u'\r';
    result += isControl || sign.isSurrogate() || code >= 0xFFFE ? QChar(QChar::ReplacementCharacter) : sign;
  }
  return result;
}

}  // namespace

/// One drawing of Qt's generator, of which only the contents are used.
class SvgSurface::Layer {
 public:
  Layer(const framework::Rect& frame, bool isFlipped, TextLayouts& texts) : frame_(frame) {
    file_.open(QIODevice::WriteOnly);
    generator_.setOutputDevice(&file_);
    generator_.setViewBox(QRectF(0.0, 0.0, frame.width, frame.height));
    painter_.begin(&generator_);
    canvas_ = std::make_unique<QtCanvas>(painter_, QSizeF(frame.width, frame.height), isFlipped, texts);
  }

  framework::Canvas& canvas() { return *canvas_; }
  const framework::Rect& frame() const { return frame_; }

  QString contents() {
    painter_.end();
    const QString whole = QString::fromUtf8(file_.data());
    const QString kDefinitionsEnd = QStringLiteral("</defs>");
    const qsizetype start = whole.indexOf(kDefinitionsEnd) + kDefinitionsEnd.size();
    return onlyXmlCharacters(whole.mid(start, whole.lastIndexOf(QStringLiteral("</svg>")) - start));
  }

 private:
  framework::Rect frame_;
  QBuffer file_;
  QSvgGenerator generator_;
  QPainter painter_;
  std::unique_ptr<QtCanvas> canvas_;
};

SvgSurface::SvgSurface(double width, double height, TextLayouts& texts)
    : width_(width),
      height_(height),
      texts_(texts),
      page_(std::make_unique<Layer>(framework::Rect{.x = 0.0, .y = 0.0, .width = width, .height = height},
                                    true, texts)) {}

SvgSurface::~SvgSurface() = default;

framework::Canvas& SvgSurface::pageCanvas() { return page_->canvas(); }

framework::Canvas& SvgSurface::beginView(const framework::ZuPrimitiveGraphView& view,
                                         const framework::Rect& frame) {
  return beginLayer(frame, view.isFlipped());
}

framework::Canvas& SvgSurface::beginLayer(const framework::Rect& frame, bool isFlipped) {
  view_ = std::make_unique<Layer>(frame, isFlipped, texts_);
  return view_->canvas();
}

void SvgSurface::endView() {
  const framework::Rect& frame = view_->frame();
  // Viewers of plain SVG, which know no clipping, would paint the rectangle in black if it stood among what is drawn.
  views_ += QStringLiteral(
                "<defs><clipPath id=\"view%1\"><rect width=\"%2\" height=\"%3\"/></clipPath></defs>\n"
                "<g transform=\"translate(%4 %5)\" clip-path=\"url(#view%1)\">")
                .arg(QString::number(++layers_), number(frame.width), number(frame.height), number(frame.x),
                     number(frame.y));
  views_ += view_->contents() + QStringLiteral("</g>\n");
  view_.reset();
}

QByteArray SvgSurface::finish(const Facts& facts) {
  const QString size = QStringLiteral("width=\"%1\" height=\"%2\"").arg(number(width_), number(height_));
  const auto element = [](const QString& name, const QString& text) {
    if (text.isEmpty()) return QString();
    return u'<' + name + u'>' + onlyXmlCharacters(text).toHtmlEscaped() + QStringLiteral("</") + name +
           QStringLiteral(">\n");
  };
  QString metadata = element(QStringLiteral("dc:creator"), facts.author) +
                     element(QStringLiteral("dc:subject"), facts.subject);
  if (!metadata.isEmpty()) {
    metadata = QStringLiteral(
                   "<metadata>\n<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\" "
                   "xmlns:dc=\"http://purl.org/dc/elements/1.1/\">\n<rdf:Description rdf:about=\"\">\n") +
               metadata + QStringLiteral("</rdf:Description>\n</rdf:RDF>\n</metadata>\n");
  }
  return (QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<svg xmlns=\"http://www.w3.org/2000/svg\" ") +
          size + QStringLiteral(" viewBox=\"0 0 ") + number(width_) + u' ' + number(height_) +
          QStringLiteral("\">\n<title>") + onlyXmlCharacters(facts.title).toHtmlEscaped() +
          QStringLiteral("</title>\n") + metadata + QStringLiteral("<rect ") + size +
          QStringLiteral(" fill=\"#ffffff\"/>\n") + page_->contents() + views_ + QStringLiteral("</svg>\n"))
      .toUtf8();
}

}  // namespace nascor::qt
