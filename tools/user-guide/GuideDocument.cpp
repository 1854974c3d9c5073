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

#include "user-guide/GuideText.h"
#include "user-guide/PdfNavigation.h"

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
  return picture.startsWith(QLatin1String("page-")) || picture == QLatin1String("dialog-preview") ? kOfPages
                                                                                                  : kOfOthers;
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

void setSize(const QTextBlock& block, double size) {
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat format;
  format.setFontPointSize(size);
  cursor.mergeCharFormat(format);
}

QTextTable* tableAt(const QTextBlock& block) { return QTextCursor(block).currentTable(); }

/// The block, or the table that it stands in, begins a page.
void breakPageBefore(const QTextBlock& block) {
  if (QTextTable* table = tableAt(block)) {
    QTextTableFormat format = table->format();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    table->setFormat(format);
    return;
  }
  QTextBlockFormat format;
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QTextCursor(block).mergeBlockFormat(format);
}

bool isHeading(const QTextBlock& block) { return block.blockFormat().headingLevel() > 0; }

bool isPicture(const QTextBlock& block) {
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    if (it.fragment().charFormat().isImageFormat()) return true;
  }
  return false;
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
  /// The page of a line of the block, or of its last one where it has fewer.
  int pageOf(const QTextBlock& block, int line = 0) const {
    // The lines, not the block: that begins with the space above it, perhaps on the page before.
    double top = text_.documentLayout()->blockBoundingRect(block).top();
    const QTextLayout* lines = block.layout();
    if (lines && lines->lineCount() > 0) top += lines->lineAt(std::min(line, lines->lineCount() - 1)).y();
    return static_cast<int>(std::floor((top + 1.0) / pageSize().height()));
  }
  double heightOf(QTextTable& table) const {
    return text_.documentLayout()->frameBoundingRect(&table).height();
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
    format.setHeaderRowCount(1);  // the head stands again on each further page
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

using PlacedHeading = std::pair<QTextBlock, Heading>;

/// The name of a heading, with a number where one before it is called the same.
QString nameOf(const QString& title, const std::vector<PlacedHeading>& before) {
  const QString name = headingName(title);
  const auto isTaken = [&](const QString& wanted) {
    return std::any_of(before.begin(), before.end(),
                       [&](const PlacedHeading& other) { return other.second.name == wanted; });
  };
  QString unique = name;
  for (int i = 1; isTaken(unique); ++i) unique = QStringLiteral("%1-%2").arg(name).arg(i);
  return unique;
}

/// Numbers the headings, makes them look like such, and lets a chapter begin on a new page.
std::vector<PlacedHeading> styleHeadings(QTextDocument& text) {
  std::vector<PlacedHeading> headings;
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
    const QString name = nameOf(block.text(), headings);
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
    if (level <= 2) headings.push_back({block, {.title = block.text(), .level = level, .name = name}});
  }
  return headings;
}

/// Behind the words of a link stands the number of the section that it leads to, for those who read on paper.
void styleLinks(QTextDocument& text, const std::vector<PlacedHeading>& headings) {
  std::vector<QTextFragment> links;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      if (!it.fragment().charFormat().anchorHref().isEmpty()) links.push_back(it.fragment());
    }
  }
  std::reverse(links.begin(), links.end());  // an insertion moves what is behind it
  for (const QTextFragment& link : links) {
    QTextCharFormat format = link.charFormat();
    format.setForeground(kAccent);
    format.setFontUnderline(false);
    QTextCursor cursor(&text);
    cursor.setPosition(link.position());
    cursor.setPosition(link.position() + link.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
    const auto heading = std::find_if(headings.begin(), headings.end(), [&](const PlacedHeading& each) {
      return QStringLiteral("#") + each.second.name == format.anchorHref();
    });
    if (heading == headings.end()) continue;
    cursor.setPosition(link.position() + link.length());
    cursor.insertText(QStringLiteral(" (%1)").arg(heading->second.title.section(u' ', 0, 0)), format);
  }
}

/// What must stand on one page.
struct Group {
  QTextBlock last;
  int lastLine = 0;
};

/// A heading stands with what follows it, also with what follows a picture; a sentence stands with what it announces, a
/// picture with the table under it; a few lines of code and a table that is no longer than a page stand whole; of a longer table the head stands with its first row.
Group groupFrom(const PagedText& body, const QTextBlock& first) {
  constexpr int kAllLines = 1000;
  constexpr int kFewLines = 24;
  constexpr double kMostOfAPage = 0.9;
  if (QTextTable* table = tableAt(first)) {
    const bool fits = body.heightOf(*table) < PagedText::pageSize().height() * kMostOfAPage;
    const int row = fits ? table->rows() - 1 : std::min(1, table->rows() - 1);
    return {.last = table->cellAt(row, table->columns() - 1).lastCursorPosition().block(),
            .lastLine = kAllLines};
  }
  const bool hasNext = first.next().isValid();
  if (isCode(first)) {
    QTextBlock last = first;
    int lines = 1;
    for (; lines < kFewLines && isCode(last.next()); last = last.next()) ++lines;
    return {.last = last, .lastLine = kAllLines};
  }
  const QTextBlock next = first.next();
  const bool isUnderHeading = first.previous().isValid() && isHeading(first.previous());
  const bool explainsPicture = isUnderHeading && !isHeading(next) && !isPicture(next);
  const bool announces = isHeading(first) || first.text().endsWith(u':') ||
                         (isPicture(first) && hasNext && (explainsPicture || tableAt(next) != nullptr));
  if (announces && hasNext) return groupFrom(body, first.next());
  // No line stands alone, neither the first nor the last.
  constexpr int kFewTextLines = 4;
  const QTextLayout* lines = first.layout();
  const bool isShort = isPicture(first) || lines == nullptr || lines->lineCount() < kFewTextLines;
  return {.last = first, .lastLine = isShort ? kAllLines : 1};
}

/// The block behind what must not be looked at again: code and tables are groups as a whole.
QTextBlock blockBehind(const QTextBlock& block) {
  if (QTextTable* table = tableAt(block))
    return table->cellAt(table->rows() - 1, table->columns() - 1).lastCursorPosition().block().next();
  QTextBlock next = block.next();
  while (isCode(block) && isCode(next)) next = next.next();
  return next;
}

/// From the front to the back, as a page that breaks moves all that is behind it.
void keepGroupsTogether(PagedText& body) {
  for (QTextBlock block = body.text().begin(); block.isValid(); block = blockBehind(block)) {
    if (block.previous().isValid() && isHeading(block.previous())) continue;  // looked at with its heading
    const Group group = groupFrom(body, block);
    if (body.pageOf(block) != body.pageOf(group.last, group.lastLine)) breakPageBefore(block);
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
    letters.setAnchor(true);
    letters.setAnchorHref(QStringLiteral("#") + heading.name);
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
  styleLinks(body.text(), blocks);
  styling.endEditBlock();
  keepGroupsTogether(body);
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
  return withNavigation(file.data(), headings, kPaper.height());
}

}  // namespace nascor::user_guide
