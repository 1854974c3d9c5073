#include "user-guide/GuideDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "user-guide/PdfOutline.h"

namespace nascor::user_guide {
namespace {

constexpr int kResolution = 600;
constexpr double kPointsPerInch = 72.0;
constexpr double kScreenDotsPerInch = 96.0;  // formats of a text document are in these
const QSizeF kPaper(595.0, 842.0);           // in points, as all below
constexpr double kSide = 62.0;
constexpr double kTop = 56.0;
constexpr double kBottom = 64.0;
constexpr double kFootLine = 34.0;
constexpr double kTextSize = 9.5;
constexpr double kTableSize = 8.5;
constexpr double kCodeSize = 7.5;
const QColor kInk(0x1c, 0x1c, 0x1c);
const QColor kAccent(0x1f, 0x4e, 0x79);
const QColor kLine(0xc4, 0xca, 0xd0);
const QColor kShade(0xf2, 0xf4, 0xf7);

/// How large a picture is printed: its texts stay readable.
double pointsToUnit(const QString& picture) {
  constexpr double kOfPages = 0.42;
  constexpr double kOfOthers = 0.54;
  return picture.startsWith(QLatin1String("page-")) ? kOfPages : kOfOthers;
}

double inDots(double points) { return points * kScreenDotsPerInch / kPointsPerInch; }

QFont fontOf(const char* family, double size, bool isBold = false) {
  QFont font{QLatin1String(family)};
  font.setPointSizeF(size);
  font.setBold(isBold);
  // A ligature is one sign, and nobody finds "field" where it is written with one.
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::PreferNoShaping));
  font.setKerning(false);
  return font;
}
QFont textFont(double size, bool isBold = false) { return fontOf("DejaVu Sans", size, isBold); }

void setSize(QTextBlock block, double size) {
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat format;
  format.setFontPointSize(size);
  cursor.mergeCharFormat(format);
}

bool isCode(const QTextBlock& block) {
  return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ||
         block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage) ||
         (block.blockFormat().nonBreakableLines() && block.charFormat().fontFixedPitch());
}

/// A text that is laid out on the pages of a writer.
class PagedText {
 public:
  explicit PagedText(QPdfWriter& writer) {
    text_.setDocumentMargin(0.0);
    text_.setDefaultFont(textFont(kTextSize));
    text_.documentLayout()->setPaintDevice(&writer);
    text_.setPageSize(pageSize());
  }
  QTextDocument& text() { return text_; }

  static double unit() { return kResolution / kPointsPerInch; }
  static QSizeF pageSize() {
    return QSizeF(kPaper.width() - 2.0 * kSide, kPaper.height() - kTop - kBottom) * unit();
  }
  double topOf(const QTextBlock& block) const {
    const double top = text_.documentLayout()->blockBoundingRect(block).top();
    return top;
  }
  int pageOf(const QTextBlock& block) const {
    // The lines, not the block: that begins with the space above it, perhaps on the page before.
    const QTextLayout* lines = block.layout();
    const double top = text_.documentLayout()->blockBoundingRect(block).top() +
                       (lines && lines->lineCount() > 0 ? lines->lineAt(0).y() : 0.0);
    return static_cast<int>(std::floor((top + 1.0) / pageSize().height()));
  }
  void paint(QPainter& painter, int page) {
    const QSizeF size = pageSize();
    painter.save();
    painter.translate(kSide * unit(), kTop * unit() - page * size.height());
    // The first line of the next page may begin a hair above it.
    const QRectF clip(0.0, page * size.height(), size.width(), size.height() - 2.0 * unit());
    painter.setClipRect(clip);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = clip;
    context.palette.setColor(QPalette::Text, kInk);
    text_.documentLayout()->draw(&painter, context);
    painter.restore();
  }

 private:
  QTextDocument text_;
};

/// Lets a picture stand in the text, as large as its own texts stay readable, at most as wide as the text.
void placePictures(QTextDocument& text, const PictureSource& pictures) {
  const double room = kPaper.width() - 2.0 * kSide;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    QString caption;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      QTextImageFormat format = fragment.charFormat().toImageFormat();
      const QUrl url(format.name());
      if (url.scheme() != QLatin1String("picture"))
        throw std::runtime_error("the guide shows what is no picture: " + format.name().toStdString());
      QImage image = pictures(url.path());
      const double dots = image.devicePixelRatio();
      const double width = std::min(room, image.width() / dots * pointsToUnit(url.path()));
      const double height = width * image.height() / image.width();
      image.setDevicePixelRatio(1.0);
      {  // a window without its frame has no edge of its own
        QPainter edge(&image);
        edge.setPen(QPen(QColor(0x9a, 0xa0, 0xa6), 2.0));
        edge.drawRect(QRectF(image.rect()).adjusted(1.0, 1.0, -1.0, -1.0));
      }
      text.addResource(QTextDocument::ImageResource, url, image);
      format.setWidth(inDots(width));
      format.setHeight(inDots(height));
      caption = format.property(QTextFormat::ImageAltText).toString();
      QTextCursor cursor(&text);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      if (!caption.isEmpty()) {
        // In the same block, so that no page comes between them.
        cursor.setPosition(fragment.position() + fragment.length());
        QTextCharFormat small;
        small.setFontPointSize(kTableSize);
        small.setForeground(QColor(0x50, 0x50, 0x50));
        cursor.insertText(QString(QChar::LineSeparator) + caption, small);
      }
      QTextBlockFormat place;
      place.setLineHeight(0.0, QTextBlockFormat::SingleHeight);
      place.setTopMargin(inDots(4.0));
      place.setBottomMargin(inDots(9.0));
      QTextCursor(block).mergeBlockFormat(place);
      break;
    }
  }
}

void styleTables(QTextFrame* frame) {
  for (QTextFrame* child : frame->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(child);
    if (!table) continue;
    QTextTableFormat format = table->format();
    format.setCellPadding(inDots(3.0));
    format.setCellSpacing(0.0);
    format.setBorder(inDots(0.5));
    format.setBorderBrush(kLine);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setTopMargin(inDots(3.0));
    format.setBottomMargin(inDots(8.0));
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100.0));
    table->setFormat(format);
    for (int row = 0; row < table->rows(); ++row) {
      for (int column = 0; column < table->columns(); ++column) {
        QTextTableCell cell = table->cellAt(row, column);
        if (row == 0) {
          QTextCharFormat shaded = cell.format();
          shaded.setBackground(kShade);
          cell.setFormat(shaded);
        }
        for (auto it = cell.begin(); !it.atEnd(); ++it) {
          if (!it.currentBlock().isValid()) continue;
          setSize(it.currentBlock(), kTableSize);
          QTextBlockFormat tight;
          tight.setTopMargin(0.0);
          tight.setBottomMargin(0.0);
          tight.setAlignment(Qt::AlignLeft);
          QTextCursor(it.currentBlock()).mergeBlockFormat(tight);
        }
      }
    }
  }
}

void styleCode(QTextDocument& text) {
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    if (isCode(block)) {
      QTextBlockFormat format;
      format.setNonBreakableLines(
          false);  // a line that is too long goes on in the next one instead of being cut
      format.setBackground(kShade);
      format.setTopMargin(0.0);
      format.setBottomMargin(isCode(block.next()) ? 0.0 : inDots(8.0));
      format.setLeftMargin(0.0);
      format.setRightMargin(0.0);
      QTextCursor(block).mergeBlockFormat(format);
    }
    std::vector<std::pair<int, int>> spans;
    if (isCode(block)) {
      spans.emplace_back(block.position(), block.length() - 1);
    } else {
      for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().fontFixedPitch())
          spans.emplace_back(it.fragment().position(), it.fragment().length());
      }
    }
    for (const auto& [position, length] : spans) {
      QTextCursor cursor(&text);
      cursor.setPosition(position);
      cursor.setPosition(position + length, QTextCursor::KeepAnchor);
      QTextCharFormat format;
      format.setFont(fontOf("DejaVu Sans Mono", isCode(block) ? kCodeSize : kCodeSize + 0.5));
      cursor.mergeCharFormat(format);
    }
  }
}

void styleParagraphs(QTextDocument& text) {
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat format;
    format.setLineHeight(118.0, QTextBlockFormat::ProportionalHeight);
    if (block.textList()) {
      format.setTopMargin(0.0);
      format.setBottomMargin(inDots(block.next().textList() ? 2.5 : 7.0));
    } else if (!isCode(block)) {
      format.setTopMargin(0.0);
      format.setBottomMargin(inDots(5.5));
    }
    QTextCursor(block).mergeBlockFormat(format);
  }
}

/// Numbers the headings, makes them look like such, and lets a chapter begin on a new page.
std::vector<std::pair<QTextBlock, Heading>> styleHeadings(QTextDocument& text) {
  std::vector<std::pair<QTextBlock, Heading>> headings;
  int chapter = 0;
  int section = 0;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == 0) continue;
    QString number;
    if (level == 1) {
      number = QString::number(++chapter);
      section = 0;
    } else if (level == 2) {
      number = QStringLiteral("%1.%2").arg(chapter).arg(++section);
    }
    QTextCursor cursor(block);
    if (!number.isEmpty()) cursor.insertText(number + QStringLiteral("  "));
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat letters;
    letters.setFont(textFont(level == 1 ? 19.0 : level == 2 ? 12.5 : 10.5, true));
    letters.setForeground(kAccent);
    cursor.setCharFormat(letters);
    QTextBlockFormat format;
    format.setTopMargin(level == 1 ? 0.0 : inDots(level == 2 ? 12.0 : 8.0));
    format.setBottomMargin(inDots(level == 1 ? 12.0 : 4.0));
    if (level == 1 && chapter > 1) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    cursor.mergeBlockFormat(format);
    if (level <= 2) headings.push_back({block, {.title = block.text(), .level = level}});
  }
  return headings;
}

/// A heading stands on the page of what follows it.
void keepHeadingsWithTexts(PagedText& body) {
  constexpr int kMostRounds = 8;
  for (int round = 0; round < kMostRounds; ++round) {
    bool isChanged = false;
    for (QTextBlock block = body.text().begin(); block.isValid(); block = block.next()) {
      if (block.blockFormat().headingLevel() == 0 || !block.next().isValid()) continue;
      if (block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) continue;
      QTextBlock first = block;
      while (first.previous().isValid() && first.previous().blockFormat().headingLevel() > 0)
        first = first.previous();
      if (body.pageOf(block.next()) == body.pageOf(first)) continue;
      if (first.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) continue;
      QTextBlockFormat format;
      format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      QTextCursor(first).mergeBlockFormat(format);
      isChanged = true;
    }
    if (!isChanged) return;
  }
}

/// A few lines of code stand together, with the heading above them.
void keepCodeTogether(PagedText& body) {
  constexpr int kFewLines = 24;
  for (QTextBlock first = body.text().begin(); first.isValid(); first = first.next()) {
    if (!isCode(first) || isCode(first.previous())) continue;
    QTextBlock last = first;
    int lines = 1;
    for (; isCode(last.next()); last = last.next()) ++lines;
    if (lines > kFewLines || body.pageOf(first) == body.pageOf(last)) continue;
    QTextBlock begin = first;
    if (first.previous().blockFormat().headingLevel() > 0) begin = first.previous();
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(begin).mergeBlockFormat(format);
  }
}

/// The first row of a table stands on the page of the second.
void keepTableHeadsWithRows(PagedText& body) {
  for (QTextFrame* frame : body.text().rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (!table || table->rows() < 2) continue;
    const auto pageOfRow = [&](int row) {
      return body.pageOf(table->cellAt(row, 0).firstCursorPosition().block());
    };
    if (pageOfRow(0) == pageOfRow(1)) continue;
    QTextTableFormat format = table->format();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    table->setFormat(format);
  }
}

void writeFront(QTextDocument& text, const GuideTitle& title, const std::vector<Heading>& headings,
                int pagesBefore) {
  text.clear();
  QTextCursor cursor(&text);
  cursor.beginEditBlock();
  const auto paragraph = [&](const QString& words, double size, bool isBold, double above,
                             const QColor& color) {
    QTextBlockFormat place;
    place.setTopMargin(inDots(above));
    QTextCharFormat letters;
    letters.setFont(textFont(size, isBold));
    letters.setForeground(color);
    if (cursor.position() > 0) cursor.insertBlock();
    cursor.setBlockFormat(place);
    cursor.setCharFormat(letters);
    cursor.insertText(words, letters);
  };
  paragraph(title.title, 28.0, true, 0.0, kAccent);
  paragraph(title.subtitle, 11.0, false, 6.0, kInk);
  paragraph(title.warning, 11.0, true, 6.0, QColor(0x9c, 0x1c, 0x1c));
  paragraph(QCoreApplication::translate("guide", "Contents"), 15.0, true, 16.0, kAccent);
  QTextTableFormat format;
  format.setBorder(0.0);
  format.setCellSpacing(0.0);
  format.setCellPadding(0.0);
  format.setTopMargin(inDots(6.0));
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100.0));
  format.setColumnWidthConstraints(
      {QTextLength(QTextLength::PercentageLength, 92.0), QTextLength(QTextLength::PercentageLength, 8.0)});
  QTextTable* table = cursor.insertTable(static_cast<int>(headings.size()), 2, format);
  for (int row = 0; row < table->rows(); ++row) {
    const Heading& heading = headings.at(static_cast<std::size_t>(row));
    QTextCharFormat letters;
    letters.setFont(textFont(heading.level == 1 ? 9.0 : 8.0, heading.level == 1));
    letters.setForeground(kInk);
    QTextBlockFormat place;
    place.setTopMargin(inDots(heading.level == 1 && row > 0 ? 2.5 : 0.0));
    QTextBlockFormat left = place;
    left.setLeftMargin(inDots(heading.level == 1 ? 0.0 : 16.0));
    QTextCursor name = table->cellAt(row, 0).firstCursorPosition();
    name.setBlockFormat(left);
    name.insertText(heading.title, letters);
    place.setAlignment(Qt::AlignRight);
    QTextCursor page = table->cellAt(row, 1).firstCursorPosition();
    page.setBlockFormat(place);
    page.insertText(QString::number(pagesBefore + heading.page + 1), letters);
  }
  cursor.endEditBlock();
}

void paintFoot(QPainter& painter, const GuideTitle& title, int page) {
  const double unit = PagedText::unit();
  painter.setFont(textFont(7.5));
  painter.setPen(QColor(0x60, 0x60, 0x60));
  const QRectF foot(kSide * unit, (kPaper.height() - kFootLine - 12.0) * unit,
                    (kPaper.width() - 2.0 * kSide) * unit, 14.0 * unit);
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter,
                   title.title + QStringLiteral("  \u00b7  ") + title.warning);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, QString::number(page));
  painter.setPen(QPen(kLine, 0.5 * unit));
  painter.drawLine(foot.topLeft() - QPointF(0.0, 3.0 * unit), foot.topRight() - QPointF(0.0, 3.0 * unit));
}

}  // namespace

QByteArray guidePdf(const GuideTitle& title, const QString& text, const PictureSource& pictures) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setResolution(kResolution);
  writer.setPageLayout(QPageLayout(QPageSize(kPaper, QPageSize::Point, QString(), QPageSize::ExactMatch),
                                   QPageLayout::Portrait, QMarginsF()));
  writer.setTitle(title.title);
  writer.setCreator(QCoreApplication::applicationName());

  PagedText body(writer);
  body.text().setMarkdown(text, QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) |
                                    QTextDocument::MarkdownNoHTML);
  QTextCursor styling(&body.text());
  styling.beginEditBlock();  // else every change would lay out all pages anew
  styleParagraphs(body.text());
  styleCode(body.text());
  styleTables(body.text().rootFrame());
  placePictures(body.text(), pictures);
  auto blocks = styleHeadings(body.text());
  styling.endEditBlock();
  keepHeadingsWithTexts(body);
  keepTableHeadsWithRows(body);
  keepCodeTogether(body);
  keepHeadingsWithTexts(body);
  const int bodyPages = body.text().pageCount();

  std::vector<Heading> headings;
  for (auto& [block, heading] : blocks) {
    heading.page = body.pageOf(block);
    heading.top =
        kTop + (body.topOf(block) - heading.page * PagedText::pageSize().height()) / PagedText::unit();
    headings.push_back(heading);
  }
  PagedText front(writer);
  writeFront(front.text(), title, headings, 0);
  const int frontPages = front.text().pageCount();
  writeFront(front.text(), title, headings, frontPages);

  QPainter painter;
  if (!painter.begin(&writer)) throw std::runtime_error("the guide cannot be painted");
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (int page = 0; page < frontPages + bodyPages; ++page) {
    if (page > 0) writer.newPage();
    page < frontPages ? front.paint(painter, page) : body.paint(painter, page - frontPages);
    if (page > 0) paintFoot(painter, title, page + 1);
  }
  painter.end();
  for (Heading& heading : headings) heading.page += frontPages;
  return withOutline(file.data(), headings, kPaper.height());
}

}  // namespace nascor::user_guide
