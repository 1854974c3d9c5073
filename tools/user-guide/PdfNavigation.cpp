#include "user-guide/PdfNavigation.h"

#include <QRegularExpression>
#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>

namespace nascor::user_guide {
namespace {

/// A finished file, and the objects that come behind it, new ones or in the place of older ones.
class PdfUpdate {
 public:
  explicit PdfUpdate(const QByteArray& pdf) : pdf_(pdf), text_(QString::fromLatin1(pdf)) {
    root_ = lastMatch(text_, R"(/Root (\d+) 0 R)").toInt();
    objects_ = lastMatch(text_, R"(/Size (\d+))").toInt();
    const int tree = lastMatch(catalog(), R"(/Pages (\d+) 0 R)").toInt();
    const QString kids = lastMatch(dictionary(tree), R"(/Kids\s*\[([^\]]*)\])");
    static const QRegularExpression reference(QStringLiteral(R"((\d+) 0 R)"));
    for (auto matches = reference.globalMatch(kids); matches.hasNext();)
      pages_.push_back(matches.next().captured(1).toLatin1());
  }

  /// The file; one sign a byte, so that what is found in it is what stands there.
  const QString& text() const { return text_; }
  /// The inside of the dictionary that names everything else.
  QString catalog() const { return dictionary(root_); }
  void replaceCatalog(const QByteArray& inside) { put(root_, "<<" + inside + ">>"); }
  /// Numbers for `count` new objects, one after another; the first of them.
  int reserve(int count) {
    const int first = objects_;
    objects_ += count;
    return first;
  }
  void put(int object, const QByteArray& body) { changed_.insert_or_assign(object, body); }
  /// How an entry names a place; `top` is in points from the upper edge.
  QByteArray destination(int page, double top, double pageHeight) const {
    return "[" + pages_.at(static_cast<std::size_t>(page)) + " 0 R /XYZ 0 " +
           QByteArray::number(pageHeight - top, 'f', 1) + " 0]";
  }

  QByteArray finished() const {
    const QByteArray info = lastMatch(text_, R"(/Info (\d+) 0 R)").toLatin1();
    const QByteArray before = lastMatch(text_, R"(startxref\s+(\d+))").toLatin1();
    QByteArray result = pdf_;
    if (!result.endsWith('\n')) result += '\n';
    QByteArray table = "xref\n";
    for (const auto& [object, body] : changed_) {
      table += QByteArray::number(object) + " 1\n" +
               QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
      result += QByteArray::number(object) + " 0 obj\n" + body + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(result.size());
    result += table + "trailer\n<< /Size " + QByteArray::number(objects_) + " /Root " +
              QByteArray::number(root_) + " 0 R /Info " + info + " 0 R /Prev " + before + " >>\nstartxref\n" +
              start + "\n%%EOF\n";
    return result;
  }

 private:
  /// What `pattern` finds last in `text`.
  static QString lastMatch(const QString& text, const char* pattern) {
    const QRegularExpression expression{QLatin1String(pattern)};
    QString found;
    for (auto matches = expression.globalMatch(text); matches.hasNext();) found = matches.next().captured(1);
    if (found.isEmpty()) throw std::runtime_error(std::string("the PDF has no ").append(pattern));
    return found;
  }
  /// The inside of an object, between its braces.
  QString dictionary(int object) const {
    const qsizetype from = text_.indexOf(QStringLiteral("\n%1 0 obj\n").arg(object));
    const qsizetype open = from < 0 ? -1 : text_.indexOf(QStringLiteral("<<"), from);
    const qsizetype end = open < 0 ? -1 : text_.indexOf(QStringLiteral("endobj"), open);
    const qsizetype close = end < 0 ? -1 : text_.lastIndexOf(QStringLiteral(">>"), end);
    if (close < open || close < 0) throw std::runtime_error("the PDF lacks an object");
    return text_.mid(open + 2, close - open - 2);
  }

  QByteArray pdf_;
  QString text_;
  int root_ = 0;
  int objects_ = 0;
  std::vector<QByteArray> pages_;
  std::map<int, QByteArray> changed_;
};

/// A text of any script, in the form that a dictionary holds.
QByteArray textString(const QString& text) {
  QByteArray hex = "<FEFF";
  for (const QChar sign : text)
    hex += QByteArray::number(sign.unicode(), 16).rightJustified(4, '0').toUpper();
  return hex + '>';
}

/// An entry such as " /Next 12 0 R"; nothing without an object.
QByteArray entry(const char* name, std::optional<int> object) {
  return object ? QByteArray(" /") + name + ' ' + QByteArray::number(*object) + " 0 R" : QByteArray();
}

/// What of a tree of headings stands beside, above and under each of them.
class HeadingTree {
 public:
  explicit HeadingTree(const std::vector<Heading>& headings) : headings_(headings) {}

  int count() const { return static_cast<int>(headings_.size()); }
  const Heading& at(int heading) const { return headings_.at(static_cast<std::size_t>(heading)); }
  /// The next (`step` 1) or previous (-1) heading of the same level in the same chapter.
  std::optional<int> neighbour(int heading, int step) const {
    for (int i = heading + step; i >= 0 && i < count() && at(i).level >= at(heading).level; i += step) {
      if (at(i).level == at(heading).level) return i;
    }
    return std::nullopt;
  }
  /// The heading whose section this one is; none for a chapter.
  std::optional<int> parent(int heading) const {
    for (int i = heading - 1; i >= 0; --i) {
      if (at(i).level < at(heading).level) return i;
    }
    return std::nullopt;
  }
  int sections(int heading) const {
    int found = 0;
    while (heading + 1 + found < count() && at(heading + 1 + found).level > at(heading).level) ++found;
    return found;
  }

 private:
  const std::vector<Heading>& headings_;
};

void addOutline(PdfUpdate& update, const std::vector<Heading>& headings, double pageHeight) {
  const HeadingTree tree(headings);
  const int outline = update.reserve(1 + tree.count());
  const auto objectOf = [&](std::optional<int> heading) {
    return heading ? std::optional(outline + 1 + *heading) : std::nullopt;
  };
  std::optional<int> firstChapter;
  std::optional<int> lastChapter;
  int chapters = 0;
  for (int i = 0; i < tree.count(); ++i) {
    const Heading& heading = tree.at(i);
    if (heading.level == 1) {
      ++chapters;
      if (!firstChapter) firstChapter = i;
      lastChapter = i;
    }
    QByteArray item = "<< /Title " + textString(heading.title);
    item += entry("Parent", heading.level == 1 ? outline : objectOf(tree.parent(i)));
    item += entry("Next", objectOf(tree.neighbour(i, 1)));
    item += entry("Prev", objectOf(tree.neighbour(i, -1)));
    if (const int sections = tree.sections(i); sections > 0) {
      item += entry("First", objectOf(i + 1)) + entry("Last", objectOf(i + sections)) + " /Count -" +
              QByteArray::number(sections);  // closed at first
    }
    item += " /Dest " + update.destination(heading.page, heading.top, pageHeight) + " >>";
    update.put(outline + 1 + i, item);
  }
  update.put(outline, "<< /Type /Outlines" + entry("First", objectOf(firstChapter)) +
                          entry("Last", objectOf(lastChapter)) + " /Count " + QByteArray::number(chapters) +
                          " >>");
  update.replaceCatalog(update.catalog().toLatin1() + entry("Outlines", outline) +
                        " /PageMode /UseOutlines ");
}

void leadLinksToHeadings(PdfUpdate& update, const std::vector<Heading>& headings, double pageHeight) {
  static const QRegularExpression link(QStringLiteral(
      R"(\n(\d+) 0 obj\n<<\n/Type /Annot\n/Subtype /Link\n/Rect (\[[^\]]*\])[^>]*/URI \(#([^)]*)\))"));
  for (auto matches = link.globalMatch(update.text()); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QString name = match.captured(3);
    const auto heading = std::find_if(headings.begin(), headings.end(),
                                      [&](const Heading& each) { return each.name == name; });
    if (heading == headings.end())
      throw std::runtime_error("no heading has the name of the link #" + name.toStdString());
    update.put(match.captured(1).toInt(), "<< /Type /Annot /Subtype /Link /Rect " +
                                              match.captured(2).toLatin1() + " /Border [0 0 0] /Dest " +
                                              update.destination(heading->page, heading->top, pageHeight) +
                                              " >>");
  }
}

}  // namespace

QByteArray withNavigation(const QByteArray& pdf, const std::vector<Heading>& headings, double pageHeight) {
  PdfUpdate update(pdf);
  addOutline(update, headings, pageHeight);
  leadLinksToHeadings(update, headings, pageHeight);
  return update.finished();
}

}  // namespace nascor::user_guide
